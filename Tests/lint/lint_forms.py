"""Looks through Designer forms for what a person would trip over and nobody sees on the page: labels of no field, and
inputs without a name for screen readers."""

import sys
import xml.etree.ElementTree as ElementTree
from pathlib import Path

FIELDS = {"QLineEdit", "QComboBox", "QSpinBox", "QDoubleSpinBox", "QPlainTextEdit", "QTextEdit", "QTableWidget",
          "QTreeWidget", "QListWidget", "QSlider", "QOLSlider", "QOLWheelPrec", "QOLSpiner", "QOLColorManipulator"}
BUTTONS = {"QCheckBox", "QRadioButton", "QPushButton", "QToolButton", "QOLPushButton"}


def text_of(widget, name):
    element = widget.find(f"property[@name='{name}']/string")
    return element.text or "" if element is not None else ""


def is_true(widget, name):
    element = widget.find(f"property[@name='{name}']/bool")
    return element is not None and element.text == "true"


class Form:
    def __init__(self, path):
        self.page = ElementTree.parse(path).getroot().find("widget")
        self.widgets = list(self.page.iter("widget"))
        self.names = {widget.get("name"): widget for widget in self.widgets}

    def inputs(self):
        for widget in self.widgets:
            kind = widget.get("class")
            if kind in FIELDS or kind in BUTTONS or (kind == "QGroupBox" and is_true(widget, "checkable")):
                yield widget

    def faults(self):
        yield from self.page_faults()
        yield from self.label_faults()
        yield from self.input_faults()

    def page_faults(self):
        if not text_of(self.page, "windowTitle"):
            yield "the page has no window title"
        for widget in self.widgets:
            name = widget.get("name")
            if widget.get("class") == "QTabWidget" and widget.findtext("property[@name='currentIndex']/number", "0") != "0":
                yield f"{name} does not open at its first tab"
            fields = text_of(widget, "olCompanionOf")
            if fields and fields not in self.names:
                yield f"{name} is a companion of {fields}, which does not exist"

    def label_faults(self):
        for layout in self.page.iter("layout"):
            if layout.get("class") != "QFormLayout":
                continue
            rows = {}
            for item in layout.findall("item"):
                rows.setdefault(item.get("row"), {})[item.get("column")] = item.find("widget")
            for row in rows.values():
                label = row.get("0")
                if label is not None and label.get("class") == "QLabel" and len(row) > 1 \
                        and label.find("property[@name='buddy']") is None:
                    yield f"{label.get('name')} stands before a field and has no buddy"

    def input_faults(self):
        for widget in self.inputs():
            own = text_of(widget, "title") or text_of(widget, "text") if widget.get("class") not in FIELDS else ""
            if not own and not text_of(widget, "accessibleName"):
                yield f"{widget.get('name')} has no accessible name"


def main():
    files = sorted(path for folder in sys.argv[1:] for path in Path(folder).rglob("*.ui"))
    if not files:
        sys.exit("no forms found")
    faults = [f"{path.name}: {fault}" for path in files for fault in Form(path).faults()]
    print("\n".join(faults) or f"{len(files)} forms without a fault")
    sys.exit(1 if faults else 0)


main()

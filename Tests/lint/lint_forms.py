"""Looks through Designer forms for what a person would trip over: labels of no field, inputs without a name for screen
readers, an accidental tab order, and fixed geometry instead of layouts."""

import sys
import xml.etree.ElementTree as ElementTree
from collections import Counter
from pathlib import Path

FIELDS = {"QLineEdit", "QComboBox", "QSpinBox", "QDoubleSpinBox", "QPlainTextEdit", "QTextEdit", "QTableWidget",
          "QTreeWidget", "QListWidget", "QSlider", "QOLSlider", "QOLWheelPrec", "QOLSpiner", "QOLColorManipulator"}
BUTTONS = {"QCheckBox", "QRadioButton", "QPushButton", "QToolButton", "QOLPushButton"}
# Host widgets that bring their own labels.
BLOCKS = {"olTesselationSettings"}
CONTAINERS = {"QWidget", "QGroupBox", "QFrame", "QOLCollapsibleFrame"}


def text_of(widget, name):
    element = widget.find(f"property[@name='{name}']/string")
    return element.text or "" if element is not None else ""


def is_true(widget, name):
    element = widget.find(f"property[@name='{name}']/bool")
    return element is not None and element.text == "true"


class Form:
    def __init__(self, path):
        self.root = ElementTree.parse(path).getroot()
        self.page = self.root.find("widget")
        self.widgets = list(self.page.iter("widget"))
        self.names = {widget.get("name"): widget for widget in self.widgets}
        self.buddies = {}
        for label in self.widgets:
            buddy = label.find("property[@name='buddy']/cstring")
            if buddy is not None:
                self.buddies[buddy.text] = label

    def inputs(self):
        for widget in self.widgets:
            kind = widget.get("class")
            if kind in FIELDS or kind in BUTTONS or (kind == "QGroupBox" and is_true(widget, "checkable")):
                yield widget

    def faults(self):
        yield from self.page_faults()
        yield from self.label_faults()
        yield from self.input_faults()
        yield from self.tab_order_faults()

    def page_faults(self):
        if not text_of(self.page, "windowTitle"):
            yield "the page has no window title"
        for widget in self.widgets:
            name = widget.get("name")
            if widget is not self.page and widget.find("property[@name='geometry']") is not None:
                yield f"{name} has a fixed geometry"
            for size in ("maximumSize", "baseSize"):
                if widget.find(f"property[@name='{size}']") is not None:
                    yield f"{name} has a {size}, beyond which its text could not grow"
            if widget.get("class") == "QTabWidget" and widget.findtext("property[@name='currentIndex']/number", "0") != "0":
                yield f"{name} does not open at its first tab"
            fields = text_of(widget, "olCompanionOf")
            if fields and fields not in self.names:
                yield f"{name} is a companion of {fields}, which does not exist"
            if widget.get("class") in CONTAINERS and widget.find("widget") is not None and widget.find("layout") is None:
                yield f"{name} has children but no layout"
        for alignment in self.page.iter("set"):
            if "AlignAbsolute" in alignment.text:
                yield "an alignment keeps its side where reading goes from right to left"
        for name, count in Counter(widget.get("name") for widget in self.widgets).items():
            if count > 1:
                yield f"{count} widgets are named {name}"

    def label_faults(self):
        for buddy in self.buddies:
            if buddy not in self.names:
                yield f"a label's buddy {buddy} does not exist"
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

    def tab_order_faults(self):
        stops = [stop.text for stop in self.root.findall("tabstops/tabstop")]
        inputs = [widget.get("name") for widget in self.inputs()]
        for name in inputs:
            if name not in stops:
                yield f"{name} has no place in the tab order"
        ordered = [name for name in stops if name in inputs]
        expected = [name for name in inputs if name in stops]
        if ordered != expected:
            first = next(pair for pair in zip(ordered, expected) if pair[0] != pair[1])
            yield f"the tab order is not top-down: {first[0]} comes before {first[1]}"


def main():
    files = sorted(path for folder in sys.argv[1:] for path in Path(folder).rglob("*.ui"))
    if not files:
        sys.exit("no forms found")
    faults = [f"{path.name}: {fault}" for path in files for fault in Form(path).faults()]
    print("\n".join(faults) or f"{len(files)} forms without a fault")
    sys.exit(1 if faults else 0)


main()

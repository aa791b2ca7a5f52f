"""Looks through the sources for what the rings forbid: the plug-in knows only the SDK, never the embedded host behind
it, and every header guards itself. What the documents say of each setting is held against the settings there are."""

import re
import sys
from pathlib import Path

SDK_FOLDERS = {"Display", "Kernel", "KernelServices", "OpenSG", "Utilities", "Widgets"}
PLUGIN_FOLDERS = {"Framework", "Viewer", "FileIO"}
INCLUDE = re.compile(r'^\s*#\s*include\s*(["<])([^">]+)[">]', re.MULTILINE)


# Sizes of widgets follow from their texts, their font and the screen. No margin at all, or a pixel, is none.
PIXELS = re.compile(r"\b(?:set(?:Fixed|Minimum|Maximum)(?:Size|Width|Height)|setPixelSize|setSpacing|setIconSize|resize)"
                    r"\((?:QSize\()?\s*[1-9]|setContentsMargins\([^)]*\b(?:[2-9]|\d\d+)\b|AlignAbsolute")


def widget_faults(text):
    for found in PIXELS.findall(text):
        yield f"gives a widget a fixed size or side: {found}"


def plugin_faults(path, text):
    for quote, name in INCLUDE.findall(text):
        folder = name.split("/")[0] if "/" in name else ""
        own = folder in PLUGIN_FOLDERS or name.startswith("ui_") or name == "olKernelPreferences.h"
        if quote == '"' and folder not in SDK_FOLDERS and not own and not name.endswith(".moc"):
            yield f"includes {name}, which is not in the SDK"
        if quote == "<" and folder and folder not in {"OpenSG", "boost", "sys"}:
            yield f"includes {name}, which is no dependency of the plug-in"
    if "QStringLiteral" in text:
        yield "uses QStringLiteral, whose text would go with the library while the host may still hold it"


def sdk_faults(path, text):
    if path.suffix != ".h":
        return
    for quote, name in INCLUDE.findall(text):
        if name.split("/")[0] in {"State"}:
            yield f"an SDK header includes {name} of the embedded host"


def unexplained_settings(root):
    """Every setting is named where it stands what it does here: by its place on the page, or without one by its key."""
    explained = " ".join((root / "docs/settings-in-the-view.md").read_text().split())
    for key, place in re.findall(r"^\| `([^`]+)` \|.*\| (.*) ?\|[^|]*\|$", (root / "docs/settings.md").read_text(), re.M):
        name = place.split(" › ")[-1].strip() or f"`{key}`"
        if name not in explained:
            yield f"settings-in-the-view.md: says nothing of {name} ({key})"


def main():
    root = Path(sys.argv[1])
    faults = list(unexplained_settings(root))
    for path in sorted((root / "Plugins").rglob("*")):
        if path.suffix in {".h", ".cpp"}:
            faults += [f"{path.relative_to(root)}: {fault}" for fault in plugin_faults(path, path.read_text())]
    for folder in sorted(SDK_FOLDERS):
        for path in sorted((root / "Sdk" / folder).rglob("*.h")):
            faults += [f"{path.relative_to(root)}: {fault}" for fault in sdk_faults(path, path.read_text())]
    for folder in ("Apps/orlo", "Host/Dialog", "Host/Editing", "Sdk/Widgets", "Plugins"):
        for path in sorted((root / folder).rglob("*.cpp")):
            faults += [f"{path.relative_to(root)}: {fault}" for fault in widget_faults(path.read_text())]
    for top in ("Apps", "Benchmarks", "Host", "Plugins", "Sdk", "Tests"):
        for path in sorted((root / top).rglob("*.h")):
            if not path.read_text().startswith("#pragma once"):
                faults.append(f"{path.relative_to(root)}: does not begin with #pragma once")
    print("\n".join(faults) or "no fault")
    sys.exit(1 if faults else 0)


main()

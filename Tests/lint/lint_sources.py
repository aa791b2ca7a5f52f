"""Looks through the sources for what no compiler forbids."""

import re
import sys
from pathlib import Path

# Sizes of widgets follow from their texts, their font and the screen. No margin at all, or a pixel, is none.
PIXELS = re.compile(r"\b(?:set(?:Fixed|Minimum|Maximum)(?:Size|Width|Height)|setPixelSize|setSpacing|setIconSize|resize)"
                    r"\((?:QSize\()?\s*[1-9]|setContentsMargins\([^)]*\b(?:[2-9]|\d\d+)\b|AlignAbsolute")
# What must not be in which files of which folders, and why.
FORBIDDEN = (
    (re.compile("QStringLiteral"), "*.*", ["Plugins"],
     "its text would go with the library while the host may still hold it"),
    (PIXELS, "*.cpp", ["Apps/orlo", "Host/Dialog", "Host/Editing", "Sdk/Widgets", "Plugins"],
     "a widget has a fixed size or side"),
    (re.compile(r"\A(?!#pragma once)"), "*.h", ["Apps", "Benchmarks", "Host", "Plugins", "Sdk", "Tests"],
     "it does not begin with #pragma once"))


def main():
    root = Path(sys.argv[1])
    faults = [f"{path.relative_to(root)}: {found} {why}"
              for pattern, files, folders, why in FORBIDDEN for folder in folders
              for path in sorted((root / folder).rglob(files)) for found in pattern.findall(path.read_text())]
    print("\n".join(faults) or "no fault")
    sys.exit(1 if faults else 0)


main()

"""docs/settings-in-the-view.md names every setting, and says of exactly those that they are only recorded of which the
host says so too.

    check_recorded.py TOOL REPOSITORY
"""

import json
import re
import subprocess
import sys
import tempfile
from pathlib import Path

OTHERS = "The other formats"
WORDS = "only recorded"


def sections(document):
    """Each by every name in its title."""
    parts = (part.split("\n", 1) for part in re.split(r"^## ", document, flags=re.M)[1:])
    return {name: text for title, text in parts for name in title.strip().split(", ")}


def told(section, name):
    """What the section says of the setting: the row of its table that names it, or else the paragraphs."""
    rows = re.findall(r"^\| (.*?) \| (.*?) \|$", section, re.M)
    named = [text for names, text in rows if name in re.split(r", |: | of a preset", names)]
    if named:
        return " ".join(named)
    return next((text for text in section.split("\n\n") if not text.startswith("|") and name in " ".join(text.split())), "")


def unexplained(modules, document):
    """Every setting is named where it stands what it does here: as the page calls it, or without a control by its key."""
    words = " ".join(document.split())
    of_module = sections(document)
    for module in modules:
        if module["settings"] and module["name"] not in of_module and module["name"] not in of_module[OTHERS]:
            yield f"it says nowhere what becomes of the settings of {module['name']}"
        for setting in module["settings"]:
            name = setting.get("label") or f"`{setting['key']}`"
            if name not in words:
                yield f"it says nothing of {name} ({setting['key']})"


def faults(modules, document):
    of_module = sections(document)
    for module in modules:
        section = of_module.get(module["name"])
        for setting in module["settings"]:
            name = setting.get("label") or f"`{setting['key']}`"
            if section is None:
                # What has no reader is recorded as a whole.
                says = module["name"] in of_module[OTHERS]
            else:
                says = WORDS in " ".join(told(section, name).split())
            if says != setting["recorded"]:
                yield (f"{module['name']}, {name} ({setting['key']}): the host says "
                       f"{'it is' if setting['recorded'] else 'it is not'} {WORDS}")


def main():
    tool, repository = sys.argv[1], Path(sys.argv[2])
    with tempfile.TemporaryDirectory() as folder:
        listed = subprocess.run([tool, "--store", f"{folder}/preferences.db", "list", "--json"], check=True,
                                capture_output=True, encoding="utf-8").stdout
    modules, document = json.loads(listed), (repository / "docs/settings-in-the-view.md").read_text()
    found = [*unexplained(modules, document), *faults(modules, document)]
    print("\n".join(found) or "no fault")
    sys.exit(1 if found else 0)


if __name__ == "__main__":
    main()

"""What the packages say of the programs agrees with itself, and with what desktops and software centres understand."""

import re
import shutil
import struct
import subprocess
import sys
from pathlib import Path


def faults(root):
    desktop = root / "Apps/orlo/desktop"
    entry, component = desktop / "org.example.orlo.desktop", desktop / "org.example.orlo.metainfo.xml"
    for tool, command in (("desktop-file-validate", [entry]), ("appstreamcli", ["validate", "--no-net", component])):
        if shutil.which(tool):
            result = subprocess.run([tool, *command], capture_output=True, encoding="utf-8", check=False)
            if result.returncode != 0:
                yield result.stdout + result.stderr

    entry, component = entry.read_text(), component.read_text()
    opened = re.search(r"MimeType=(.*);", entry).group(1).split(";")
    if opened != re.findall(r"<mediatype>(.*)</mediatype>", component):
        yield "the desktop entry and the metadata name other types of files"

    version = re.search(r"project\(orlo VERSION ([\d.]+)", (root / "CMakeLists.txt").read_text()).group(1)
    told = {"debian/changelog": re.search(r"\((.*?)\)", (root / "debian/changelog").read_text()).group(1),
            "the metadata": re.search(r'<release version="(.*?)"', component).group(1)}
    for place, its in told.items():
        if its != version:
            yield f"{place} is of version {its}, the project of {version}"

    for picture in sorted((desktop / "icons").glob("*.png")):
        size = struct.unpack(">II", picture.read_bytes()[16:24])
        if size != (int(picture.stem), int(picture.stem)):
            yield f"{picture.name} is {size}"

    # One list says what is needed; those who build packages read it in another place.
    listed = set(re.findall(r"(?m)^[^#\s]\S*$", (root / "tools/packages.txt").read_text()))
    control = (root / "debian/control").read_text()
    needed = re.findall(r"(?m)^ ([a-z0-9+.-]+),?$", control.split("\nStandards-Version")[0])
    for package in set(needed) - listed:
        yield f"debian/control needs {package}, which tools/packages.txt does not have"


def main():
    found = list(faults(Path(sys.argv[1])))
    print("\n".join(found) or "no fault")
    sys.exit(1 if found else 0)


main()

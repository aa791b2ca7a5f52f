"""What the packages say of the programs agrees with itself, and with what desktops and software centres understand."""

import re
import shutil
import struct
import subprocess
import sys
import tempfile
from fnmatch import fnmatch
from pathlib import Path
from xml.etree import ElementTree

MIME = "{http://www.freedesktop.org/standards/shared-mime-info}"


def suffixes_that_open_nothing(root, opened):
    """Of the files that the viewer reads, those that a desktop does not know to be of a type that the entry names."""
    system = Path("/usr/share/mime/packages/freedesktop.org.xml")
    if not system.exists():
        return
    known = {glob.get("pattern") for file in (system, root / "Apps/orlo/desktop/org.example.orlo.xml")
             for kind in ElementTree.parse(file).iter(f"{MIME}mime-type") if kind.get("type") in opened
             for glob in kind.iter(f"{MIME}glob")}
    for source in sorted((root / "Scene/Exchange/Formats").glob("*Format.cpp")):
        suffixes = re.search(r"\n    return \{[^;]*?\{(QStringLiteral[^}]*)\}", source.read_text()).group(1)
        yield from (f"a desktop opens no .{suffix} file with the viewer" for suffix in re.findall(r'"(\w+)"', suffixes)
                    if f"*.{suffix}" not in known)


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
    yield from suffixes_that_open_nothing(root, opened)

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

    # One list says what is needed; those who build packages read it in another place. The compiler comes by itself.
    package_list = (root / "tools/packages.txt").read_text()
    listed, built_with = (set(re.findall(r"(?m)^[^#\s]\S*$", text))
                          for text in (package_list, package_list.split("# tests")[0]))
    control = (root / "debian/control").read_text()
    needed = set(re.findall(r"(?m)^ ([a-z0-9+.-]+),?$", control.split("\nStandards-Version")[0]))
    for package in needed - listed:
        yield f"debian/control needs {package}, which tools/packages.txt does not have"
    for package in built_with - needed - {"build-essential"}:
        yield f"tools/packages.txt has {package} for the build, which debian/control does not need"


def files_of_no_package(root, build):
    # With the system's folder for libraries, and without.
    patterns = [pattern for file in (root / "debian").glob("*.install") for line in file.read_text().split()
                for pattern in (line, line.replace("/lib/*/", "/lib/"))]
    with tempfile.TemporaryDirectory() as installed:
        subprocess.run(["cmake", "--install", build, "--prefix", f"{installed}/usr"], stdout=subprocess.DEVNULL,
                       check=True)
        for file in Path(installed).rglob("*"):
            name = file.relative_to(installed)
            if file.is_file() and not any(fnmatch(str(part), pattern)
                                          for part in (name, *name.parents) for pattern in patterns):
                yield f"{name} is installed, but in no package"


def main():
    root = Path(sys.argv[1])
    found = [*faults(root), *files_of_no_package(root, sys.argv[2])]
    print("\n".join(found) or "no fault")
    sys.exit(1 if found else 0)


main()

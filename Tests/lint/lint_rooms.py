"""Holds every include of ours against the rooms of the house: what each folder may include. A room may include itself
and what its line names, all of which stands above it; so no include runs upward and none in a circle."""

import re
import sys
from pathlib import Path

SDK = "Sdk/OpenSG Sdk/Utilities Sdk/Kernel Sdk/KernelServices Sdk/Display Sdk/Widgets"
ROOMS = {
    # the SDK: what a plug-in includes, and the state behind it
    "Sdk/Utilities": "",
    "Sdk/OpenSG": "Sdk/Utilities",
    "Sdk/State": "Sdk/Utilities Sdk/OpenSG",
    "Sdk/Kernel": "Sdk/Utilities Sdk/OpenSG Sdk/State",
    "Sdk/KernelServices": "Sdk/Utilities Sdk/State",
    "Sdk/Display": "Sdk/Utilities Sdk/State",
    "Sdk/Widgets": "Sdk/Utilities Sdk/OpenSG Sdk/State",
    # the plug-in
    "Plugins/KernelPreferences/Framework": SDK,
    "Plugins/KernelPreferences/Viewer": SDK + " Plugins/KernelPreferences/Framework",
    "Plugins/KernelPreferences/FileIO": SDK + " Plugins/KernelPreferences/Framework",
    "Plugins/KernelPreferences": SDK + " Plugins/KernelPreferences/Framework Plugins/KernelPreferences/Viewer"
                                       " Plugins/KernelPreferences/FileIO",
    # the embedded host
    "Host": "Sdk/Utilities Sdk/State",
    "Host/Store": "Host Sdk/Utilities Sdk/State",
    "Host/Session": "Host Host/Store Sdk/Utilities Sdk/OpenSG Sdk/State Sdk/KernelServices",
    "Host/Editing": "Host Host/Session Sdk/Utilities Sdk/OpenSG Sdk/State Sdk/Widgets",
    "Host/Dialog": "Host Host/Editing Host/Session Sdk/Utilities Sdk/OpenSG Sdk/State Sdk/Widgets",
    "Host/WebServer": "Host Host/Store Sdk/Utilities Sdk/OpenSG Sdk/State",
    "Host/Devices": "Host Sdk/Utilities Sdk/State",
    # the scene
    "Scene/Model": "Sdk/Utilities Sdk/OpenSG Sdk/State",
    "Scene/Exchange": "Scene/Model Sdk/Utilities Sdk/State Sdk/Kernel",
    "Scene/View": "Scene/Model Sdk/Utilities Sdk/OpenSG Sdk/State Sdk/Kernel Sdk/Widgets",
    # the programs
    "Apps/orlo-prefs": "Host Host/Editing Host/Session Host/Store Sdk/Utilities Sdk/OpenSG Sdk/State Sdk/KernelServices"
                       " Sdk/Widgets",
    "Apps/orlo-reader": "Scene/Exchange",
    "Apps/orlo": "Host Host/Devices Host/Dialog Host/Editing Host/Session Host/Store Host/WebServer"
                 " Scene/Model Scene/Exchange Scene/View Sdk/Utilities Sdk/State Sdk/Kernel Sdk/Widgets",
}
# Where includes begin to be looked up, besides the folder of the file itself.
ROOTS = ["Sdk", "Sdk/OpenSG", "Host", "Scene", "Plugins/KernelPreferences"]
# Written with angle brackets as the real OpenSG's headers are.
INCLUDE = re.compile(r'^\s*#\s*include\s*(?:"([^"]+)"|<(OpenSG/[^>]+)>)', re.MULTILINE)


def room_of(path):
    """The innermost room that the file lies in; None where no room has it."""
    for folder in path.parents:
        if folder.as_posix() in ROOMS:
            return folder.as_posix()
    return None


def table_faults():
    seen = set()
    for room, allowed in ROOMS.items():
        for name in set(allowed.split()) - seen:
            yield f"the table lets {room} include {name}, which does not stand above it"
        seen.add(room)


def include_faults(root, path):
    room = room_of(path)
    if room is None:
        yield f"{path}: lies in no room of the table"
        return
    allowed = {room, *ROOMS[room].split()}
    for found in INCLUDE.findall((root / path).read_text()):
        name = found[0] or found[1]
        places = [Path(place) / name for place in [path.parent, *ROOTS] if (root / place / name).exists()]
        # What moc and uic make, and OpenSG's own headers.
        if places and room_of(places[0]) not in allowed:
            yield f"{path}: {room} includes {name} of {room_of(places[0])}, which its line of the table does not name"
        # What plug-ins include cannot need what is not installed.
        if places and path.suffix == ".h" and room in SDK.split() and room_of(places[0]) == "Sdk/State":
            yield f"{path}: a header of the SDK includes {name}, which stands behind it"


def main():
    root = Path(sys.argv[1])
    faults = list(table_faults())
    for top in ("Sdk", "Plugins", "Host", "Scene", "Apps"):
        for path in sorted((root / top).rglob("*")):
            if path.suffix in {".h", ".cpp"}:
                faults += include_faults(root, path.relative_to(root))
    print("\n".join(faults) or "no fault")
    sys.exit(1 if faults else 0)


main()

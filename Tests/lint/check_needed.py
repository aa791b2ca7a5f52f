"""What the libraries of a plug-in's author may need when they are loaded: each other, the toolkit, and the runtime of C
and C++."""

import re
import subprocess
import sys

RUNTIME = r"libc|libm|libdl|libpthread|librt|libstdc\+\+|libc\+\+|libc\+\+abi|libgcc_s|ld-linux[-\w]*"
TOOLKIT = r"libQt5Core|libQt5Gui|libQt5Widgets"
# In builds that are made with them.
SANITIZERS = r"lib(?:clang_rt\.)?[alu]b?san\w*"


def needed(library):
    listing = subprocess.run(["readelf", "-dW", library], check=True, capture_output=True, text=True).stdout
    return re.findall(r"\(NEEDED\).*\[(.+)\]", listing)


def main():
    sdk, plugin, opensg = sys.argv[1:]
    own = r"|libOSG\w+|libGLU?" if opensg == "SYSTEM" else ""
    faults = []
    for library, allowed in ((sdk, own), (plugin, own + "|libOrloSdk")):
        names = needed(library)
        if not any(re.match(TOOLKIT, name) for name in names):
            faults.append(f"{library}: does not even need the toolkit: {names}")
        pattern = re.compile(rf"(?:{RUNTIME}|{TOOLKIT}|{SANITIZERS}{allowed})\.so[.\d]*")
        faults += [f"{library}: needs {name}" for name in names if not pattern.fullmatch(name)]
    print("\n".join(faults) or "no fault")
    sys.exit(1 if faults else 0)


main()

#!/usr/bin/env python3
"""What a host owes the plug-in, and what the SDK owes plug-ins, read from the libraries as they were built.

    tools/sdk.py BUILD           says where docs/sdk.md or Tests/Sdk/exported.txt are no longer true, with status 1
    tools/sdk.py BUILD --write   makes both true; a line that goes from exported.txt breaks plug-ins that exist
"""

import argparse
import difflib
import re
import subprocess
import sys
from pathlib import Path

SOURCE = Path(__file__).resolve().parents[1]
DOCUMENT = SOURCE / "docs/sdk.md"
EXPORTED = SOURCE / "Tests/Sdk/exported.txt"
BEGIN, END = "<!-- made by tools/sdk.py -->\n", "<!-- as far as here -->\n"
# What a plug-in includes; the state behind it is no plug-in's business.
FOLDERS = ("Display", "Kernel", "KernelServices", "Utilities", "Widgets")

# What the contract describes without giving it a name.
NAMED_BY_US = """
    QOLCollapsibleFrame::setCaption QOLSlider::setDecimals QOLWheelPrec::setDecimals QOLWheelPrec::setMaximum
    QOLWheelPrec::setMinimum
    olController::isOrloEnterprise olController::isOrloProfessional
    olFileIO::setStlExportFormat olFileIO::setUseLegacyRhinoLoader
    olGeometryOptimizer::setCheckOrientation olGeometryOptimizer::setOffsetFactor
    olGeometryOptimizer::setTessellationQuality olGeometryOptimizer::setTopologyMethod
    olGeometryOptimizer::setTopologyTolerance
    olImmersiveInteractionService::setAutoCreateCollisionObjects
    olImmersiveInteractionService::setShowTooltipsOnStart olImmersiveInteractionService::setTeleportGroundMode
    olImmersiveInteractionService::setTeleportRange olImmersiveInteractionService::setVisualiseHands
    olImportOptions::setActiveLayerFilter olImportOptions::setCreateGroupsForLayers
    olImportOptions::setFlushTransformations olImportOptions::setImportCurves olImportOptions::setImportEmptyLayers
    olImportOptions::setImportInvisibleCurves olImportOptions::setImportInvisibleSurfaces
    olImportOptions::setImportMeshLODs olImportOptions::setImportNurbs olImportOptions::setImportSurfaces
    olImportOptions::setKeepSurfaceData olImportOptions::setLegacyLoader olImportOptions::setLoadBreps
    olImportOptions::setMergeGeometries olImportOptions::setRemoveEmptyGroups olImportOptions::setStitching
    olImportOptions::setTessellation olImportOptions::setUnifySurfaceNormals olImportOptions::setUnshareNodes
    olImportOptions::setUsePlugin
    olPlatform::getIcon
    olPreferencesService::getBool olPreferencesService::getFloat olPreferencesService::getInt
    olPreferencesService::setBool olPreferencesService::setFloat olPreferencesService::setInt
    olPreferencesService::setDefaultBool olPreferencesService::setDefaultFloat olPreferencesService::setDefaultInt
""".split()
# What it knows nothing of: the block of tessellation settings tells which control is whose, and takes the form's texts.
OUR_HEADER = "olWithoutMnemonic"
OURS = ["olTesselationSettings::control", "olTesselationSettings::setQualityEnds"]


def symbols(library, *which):
    """(kind, name) of each symbol, in the words of the source."""
    listed = subprocess.run(["nm", "-DC", *which, library], check=True, capture_output=True, text=True).stdout
    for line in listed.splitlines():
        kind, name = re.match(r"[0-9a-f ]*([A-Za-z]) (.*)", line).groups()
        name = name.split("@")[0].replace("[abi:cxx11]", "").replace("::standin::", "::")
        name = re.sub(r"std::(__cxx11::)?basic_string<char, std::char_traits<char>, std::allocator<char> >", "std::string",
                      name)
        yield kind, re.sub(r", std::allocator<[^<>]*(<[^<>]*>)?[^<>]*> >", ">", name)


def used(build):
    """The SDK's functions that the plug-in calls."""
    sdk = {name for _, name in symbols(build / "bin/libOrloSdk.so", "--defined-only")}
    plugin = {name for _, name in symbols(build / "bin/libKernelPreferences.so", "--undefined-only")}
    return sorted(name for name in sdk & plugin if "(" in name)


def section(functions):
    def plain(function):
        return re.sub(r"^.*? (?=ol|osg)|<.*?>(?=\()", "", function.split("(")[0])

    def listed(wanted):
        by_class = {}
        for function in functions:
            owner, name = plain(function).rsplit("::", 1)
            if wanted(plain(function)) and name.strip("~") != owner.split("::")[-1]:
                arguments = function[function.index("("):]
                by_class.setdefault(owner, []).append(f"`{name}{arguments}`")
        return "".join(f"- `{owner}`: {', '.join(sorted(set(names)))}\n" for owner, names in sorted(by_class.items()))

    unknown = (set(NAMED_BY_US) | set(OURS)) - {plain(function) for function in functions}
    if unknown:
        sys.exit(f"tools/sdk.py: the plug-in no longer calls {', '.join(sorted(unknown))}")
    types = sorted({Path(header).stem for file in sorted((SOURCE / "Plugins").rglob("*.[ch]*"))
                    for header in re.findall(r'#include ["<]((?:%s|OpenSG)/\w+\.h)[">]' % "|".join(FOLDERS),
                                             file.read_text())})
    types.remove(OUR_HEADER)
    return (f"Headers, each with the type that it is named for: {', '.join(f'`{name}`' for name in types)}; and "
            f"`{OUR_HEADER}`, a function of ours that stands in its header alone.\n\n"
            "### In the contract by name\n\n" + listed(lambda name: name not in NAMED_BY_US and name not in OURS) +
            "\n### In the contract without a name, which is ours\n\n" + listed(lambda name: name in NAMED_BY_US) +
            "\n### Ours alone\n\n" + listed(lambda name: name in OURS))


def exported(build):
    """What plug-ins that exist may be bound to. Templates and inline functions are in each plug-in itself."""
    owners = {name for folder in FOLDERS for file in (SOURCE / "Sdk" / folder).glob("*.h")
              for name in re.findall(r"ORLO_SDK_EXPORT (?:[\w:]+ )?\b(\w+)", file.read_text())}
    names = {name for kind, name in symbols(build / "bin/libOrloSdk.so", "--defined-only") if kind in "TDBR"}
    return sorted(name for name in names
                  if re.sub(r"^((non-)?virtual thunk to|vtable for|typeinfo( name)? for) ", "", name).split("::")[0].split(
                      "(")[0] in owners)


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("build", type=Path)
    parser.add_argument("--write", action="store_true")
    options = parser.parse_args()

    text = DOCUMENT.read_text()
    begin, end = text.index(BEGIN) + len(BEGIN), text.index(END)
    true = {DOCUMENT: text[:begin] + section(used(options.build)) + text[end:],
            EXPORTED: "".join(f"{name}\n" for name in exported(options.build))}
    stale = False
    for file, now in true.items():
        before = file.read_text() if file.exists() else ""
        if before == now:
            continue
        stale = True
        sys.stdout.writelines(difflib.unified_diff(before.splitlines(True), now.splitlines(True), f"{file.name} as it is",
                                                   "as it should be"))
        if options.write:
            file.write_text(now)
    sys.exit(1 if stale and not options.write else 0)


main()

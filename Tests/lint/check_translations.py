"""Whether the translations have every text of the sources, and each as the text wants it."""

import html
import pathlib
import re
import subprocess
import sys
import tempfile
import xml.etree.ElementTree as xml

# Command lines and what goes to the support are English; the others are keys, documents for programs, a line of a log and
# what a library says.
NOT_FOR_PEOPLE = {"Apps/orlo/main.cpp", "Apps/orlo/olSupport.cpp", "Apps/orlo/olTour.cpp",
                  "Apps/orlo-prefs/olSettingsCatalogue.cpp", "Apps/orlo-prefs/olSettingsSchema.cpp",
                  "Host/WebServer/olWebPages.cpp", "Host/WebServer/olWebServer.cpp",
                  "Scene/Exchange/Formats/olVrmlFormat.cpp"}
READABLE = re.compile(r'QStringLiteral\(\s*"[^"]*[a-zA-Z]{3,} [a-zA-Z]{2,}[^"]*"')


def mnemonics(text):
    return re.findall(r"&(?!&)(\w)", re.sub(r"&&|&\w+;", "", text))


def ends(text):
    return (len(text) - len(text.lstrip(" \n")), len(text) - len(text.rstrip(" \n")), text.count("\n"),
            re.search(r"(\.\.\.|…)?\s*$", text).group(1))


def faults_of(source, translation):
    """What a translation lost or doubled of its text."""
    for name, part in (("placeholders", r"%(?:\d+|n|L\d+)"), ("tags", r"</?[a-zA-Z]\w*[^>]*>")):
        if sorted(re.findall(part, source)) != sorted(re.findall(part, translation)):
            yield name
    wanted = [f"(&{letter.upper()})" for letter in mnemonics(source)]
    if len(mnemonics(translation)) != len(wanted) or not all(mark in translation for mark in wanted):
        yield f"mnemonic, expected {''.join(wanted) or 'none'}"
    if ends(source) != ends(translation):
        yield "blanks, line feeds or ellipsis"


def faults_in(file):
    for context in xml.parse(file).getroot().iter("context"):
        for message in context.iter("message"):
            source = message.findtext("source", "")
            element = message.find("translation")
            forms = [form.text or "" for form in element.iter("numerusform")] or [element.text or ""]
            where = f"{file.name}: {context.findtext('name')}: {source[:60]!r}"
            if element.get("type") or "" in forms:
                yield f"{where}: not translated"
                continue
            if len(forms) != 1:
                yield f"{where}: {len(forms)} plural forms"
            for fault in faults_of(source, forms[0]):
                yield f"{where}: {fault}"


def files_of(folder):
    return sorted([*folder.glob("Translations/*.ts"), *folder.glob("Plugins/*/Translations/*.ts")])


def main():
    root = pathlib.Path(sys.argv[1])
    found = []
    kept = files_of(root)
    if len(kept) != 6:
        found.append(f"there are {len(kept)} files of translations, not two for each of three languages")
    with tempfile.TemporaryDirectory() as scratch:
        scratch = pathlib.Path(scratch)
        for file in kept:
            copy = scratch / file.relative_to(root)
            copy.parent.mkdir(parents=True, exist_ok=True)
            copy.write_bytes(file.read_bytes())
        subprocess.run([root / "tools/translations.sh", scratch], check=True)
        for file in kept:
            if (scratch / file.relative_to(root)).read_bytes() != file.read_bytes():
                found.append(f"{file.name} is behind the sources: tools/translations.sh brings it up to them")
            found += faults_in(scratch / file.relative_to(root))
    for source in sorted(root.glob("[AHPS]*/**/*.cpp")):
        if str(source.relative_to(root)) not in NOT_FOR_PEOPLE:
            found += [f"{source.name}: nobody can translate {html.unescape(text)}"
                      for text in READABLE.findall(source.read_text(encoding="utf-8"))]
    print("\n".join(found))
    return 1 if found else 0


if __name__ == "__main__":
    sys.exit(main())

"""Whether the translations have every text of the sources, and each as the text wants it."""

import pathlib
import re
import subprocess
import sys
import tempfile
import xml.etree.ElementTree as xml

# What reads as prose or as a caption, and is neither: by file, or by folder; else by the call that takes it.
NOT_FOR_PEOPLE = {
    # what is said where no letters of the language are there to say it in, and by a program that nobody starts
    "Apps/orlo/main.cpp": ["No font on this system has the letters", "Noto Sans"],
    "Scene/Exchange/olReaderMain.cpp": ["orlo-reader is started by orlo"],
    # lines of the log that others look for, and the answers of the web server
    "Plugins/KernelPreferences/FileIO/olFileIOPreferencesGUII.cpp": ["FileIO preferences: tmp path"],
    "Plugins/KernelPreferences/Framework/olTypedAccess.cpp": ["getFromMessage : "],
    "Host/WebServer/": ["web server: %1 %2", "Allow", "<"],
    # grammar of the command line and of scripts, transcripts, a schema
    "Apps/orlo-prefs/main.cpp": ["does not support propagateSizeHints"],
    "Apps/orlo-prefs/olPrefsCommands.cpp": ["get KEY", "set KEY", "reset KEY", "profile list|", "check [", "script FILE"],
    "Apps/orlo-prefs/olHistoryCommands.cpp": ["yyyy-MM-dd"],
    "Apps/orlo-prefs/olScriptRunner.cpp": ["put TYPE", "put or get", "service put", "edit MODULE", "click MODULE",
                                           "select MODULE", "show MODULE", "answer ", "host FACT", "env NAME"],
    "Apps/orlo-prefs/olTranscript.cpp": ["log error "],
    "Apps/orlo-prefs/olSettingsSchema.cpp": ["Preferences of ORLO: a file"],
    # settings that are gone, parts of keys, names of formats, products and icons
    "Plugins/KernelPreferences/FileIO/": ["FileIO create uber materials", "Wire", "Collada", "Parasolid"],
    "Plugins/KernelPreferences/Viewer/olRenderOptionsPreferencesGUII.cpp": ["RenderOptions local lights",
                                                                           "RenderOptions use back buffer"],
    "Host/Session/olRecordedSettings.cpp": ["PLMXML load "],
    "Apps/orlo/olImportFineness.cpp": ["Options "],
    "Sdk/State/olPlatform.cpp": ["Reset"],
    # languages of others: of databases, graphics cards and models; what is in the sample; names inside OpenCASCADE
    "Host/Store/": ["PRAGMA ", "BEGIN ", "CREATE ", "SELECT ", "ALTER ", "INSERT ", "DELETE ", "UPDATE ", "SQLite format 3"],
    "Scene/View/olPictureMean.cpp": ["\nattribute ", "\nuniform "],
    "Scene/Exchange/": ["facet normal ", "\\nouter loop", "texture file", "Unknown field ", "appearance ", " texture ",
                        "geometry ", "coord ", "normal ", "texCoord ", "color ", "Kd", "Ks", "Ke", "Ns ", "Shape { ",
                        "Inline", "File", "Triangles", "Parts", "Import", "Group { }", "Type", "Target", "Object_"],
    "Scene/Model/olSampleAssembly.cpp": ["Sample assembly", "Inner race", "Outer race", "Scanned plate", "Lifting eye",
                                         "Bearing", "Ball", "Housing", "Shaft", "Seal", "Cover"],
}
FOR_DEVELOPERS = {"qFatal", "static_assert", "out_of_range", "length_error"}
SEEN_BY_LUPDATE = {"tr", "translate", "QT_TRANSLATE_NOOP", "QT_TR_NOOP"}
TOKEN = re.compile(r'//[^\n]*|/\*.*?\*/|#\s*include[^\n]*|R"\((?P<raw>.*?)\)"|"(?P<text>(?:\\.|[^"\\\n])*)"'
                   r"|'(?:\\.|[^'\\\n])*'|\w+|\S", re.DOTALL)
READABLE = re.compile(r"[A-Za-z]{2,} [A-Za-z]{2,}|^[A-Z][a-z]+[^A-Za-z]*$")


def literals_of(source):
    """Each text of a source with the names of the calls around it; those that stand side by side are one."""
    calls, before, text = [], "", None
    for token in TOKEN.finditer(source):
        word = token.group()
        if word[:2] in ("//", "/*") or word[0] == "#":
            continue
        part = token.group("raw") or token.group("text")
        if part is not None:
            text = (text or "") + part
            continue
        if text is not None:
            yield text, calls
            text = None
        if word in "([{":
            calls.append(before)
        elif word in ")]}" and calls:
            calls.pop()
        before = word


class Prose:
    """Looks for texts that people read and the translation tools do not see."""

    def __init__(self, root, messages):
        self.root, self.messages, self.used = root, messages, set()
        # Keys of settings, names of modules, and when a setting counts.
        catalogue = (root / "docs/settings.md").read_text(encoding="utf-8")
        self.keys = re.findall(r"(?m)^\| `([^`]+)`", catalogue)
        self.words = {*re.findall(r"(?m)^## (?:.* / )?(.*)$", catalogue), *re.findall(r"\| ([a-z ]+) \|", catalogue)}

    def is_known(self, text):
        name = text.split("=")[0]
        return text in self.words or any(key.endswith(name) or key.startswith(f"{name} ") for key in self.keys)

    def is_excepted(self, path, text):
        for place, beginnings in NOT_FOR_PEOPLE.items():
            for beginning in beginnings:
                if path.startswith(place) and text.startswith(beginning):
                    self.used.add((place, beginning))
                    return True
        return False

    def faults_in(self, file):
        path = file.relative_to(self.root).as_posix()
        for text, calls in literals_of(file.read_text(encoding="utf-8")):
            plain = text.replace("\\n", "\n").replace('\\"', '"')
            if SEEN_BY_LUPDATE & set(calls):
                if plain not in self.messages and "\\" not in plain:
                    yield f"{path}: lupdate does not find {text[:60]!r}"
            elif (READABLE.search(plain) and not FOR_DEVELOPERS & set(calls) and not self.is_known(plain)
                  and not self.is_excepted(path, text)):
                yield f"{path}: nobody can translate {text[:60]!r}"

    def unused(self):
        for place, beginnings in NOT_FOR_PEOPLE.items():
            for beginning in beginnings:
                if (place, beginning) not in self.used:
                    yield f"the list of what is not for people has {beginning!r} of {place}, which is not there"


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
    found, messages = [], set()
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
            tree = xml.parse(file).getroot()
            messages.update(element.text or "" for name in ("name", "source", "comment") for element in tree.iter(name))
    prose = Prose(root, messages)
    for source in sorted([*root.glob("[AHPS]*/**/*.cpp"), *root.glob("[AHPS]*/**/*.h")]):
        found += prose.faults_in(source)
    found += prose.unused()
    for form in sorted(root.glob("Plugins/**/*.ui")):
        found += [f"{form.name}: {text!r} is kept from translation"
                  for text in re.findall(r'<string notr="true">([^<]*)</string>', form.read_text(encoding="utf-8"))
                  if READABLE.search(text)]
    print("\n".join(found))
    return 1 if found else 0


if __name__ == "__main__":
    sys.exit(main())

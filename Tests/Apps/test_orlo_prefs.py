#!/usr/bin/env python3
"""The command line of orlo-prefs.

    test_orlo_prefs.py --tool build/bin/orlo-prefs --sample build/bin/libSamplePlugin.so --foreign ANY_OTHER_LIBRARY
"""

import json
import pathlib

from tool_test import ToolTest, main

CAMERA_KEYS = ["Camera fov", "Stereo eye separation", "Stereo zero plane parallaxe", "Powerwall width",
               "Powerwall height", "Powerwall distance"]


class List(ToolTest):
    def modules(self, *options, **keywords):
        result = self.tool("list", "--json", options=["--store", str(self.store), *options], **keywords)
        self.assertEqual((result.stderr, result.returncode), ("", 0))
        return {module["name"]: module for module in json.loads(result.stdout)}

    def test_json_names_modules_and_settings_in_order(self):
        camera = self.modules()["Camera"]
        self.assertEqual(list(camera), ["name", "category", "class", "page", "settings"])
        self.assertEqual((camera["category"], camera["class"], camera["page"]), ("", "olCameraPreferencesGUII", True))
        self.assertEqual([setting["key"] for setting in camera["settings"]], CAMERA_KEYS)
        self.assertEqual(camera["settings"][0], {"key": "Camera fov", "type": "float", "default": 45, "value": 45})

    def test_json_holds_what_is_stored_beside_the_default(self):
        self.stored("set", "Camera fov", "60.1")
        setting = self.modules()["Camera"]["settings"][0]
        self.assertEqual((setting["default"], setting["value"]), (45, 60.1))

    def test_json_of_every_type_is_readable(self):
        modules = self.modules(plugin=self.sample)
        values = {setting["type"]: setting["value"] for setting in modules["Sample"]["settings"]}
        self.assertEqual(values, {
            "bool": True, "int": -1, "uint": 4294967295, "float": 0.1, "double": 0.1, "qstring": 'a\n"b"',
            "string": "c:\\d", "strings": ["e", ""], "floats": [0.1, 1e20], "color": [0.25, 0.5, 1],
            "colors": [[0, 0, 0], [0, 0, 0]]})
        self.assertEqual(modules["Sample"]["category"], "Tests")
        self.assertFalse(modules["Sample Service"]["page"])

    def test_the_smallest_edition_has_the_module_but_not_the_page(self):
        self.assertFalse(self.modules("--edition", "essentials")["Camera"]["page"])
        self.assertTrue(self.modules("--edition=Design")["Camera"]["page"])

    def test_the_table_tells_what_differs_from_its_default(self):
        self.stored("set", "Camera fov", "60.1")
        table = self.stored("list").stdout
        self.assertIn("Camera\n  Camera fov ", table)
        self.assertRegex(table, r"(?m)^  Camera fov +float +60\.1  \(default 45\)$")
        self.assertRegex(table, r"(?m)^  Powerwall width +float +1600$")


class GetAndSet(ToolTest):
    def test_a_value_is_kept_between_runs(self):
        self.assert_printed(self.stored("get", "Camera fov"), "45\n")
        self.assert_printed(self.stored("set", "Camera fov", "60.1"), "")
        self.assert_printed(self.stored("get", "Camera fov"), "60.1\n")
        self.assert_printed(self.stored("set", "Camera fov", "45"), "")
        self.assert_printed(self.stored("get", "Camera fov"), "45\n")

    def test_the_users_store_is_below_home(self):
        self.assert_printed(self.tool("set", "Camera fov", "12"), "")
        self.assertTrue((self.folder / ".config/orlo/preferences.db").exists())
        self.assert_printed(self.tool("get", "Camera fov"), "12\n")

    def test_every_type_comes_back_as_it_went_in(self):
        for key, value in {"bool": "false", "int": "-7", "uint": "7", "float": "1e-05", "double": "0.30000000000000004",
                           "strings": '["a b", ""]', "floats": "[1, 2.5]", "color": "[0.1, 0, 1]",
                           "colors": "[[0.1, 0, 1]]"}.items():
            with self.subTest(key):
                self.assert_printed(self.stored("set", f"Sample {key}", value, plugin=self.sample), "")
                self.assert_printed(self.stored("get", f"Sample {key}", plugin=self.sample), value + "\n")

    def test_texts_need_no_quotes_but_may_have_them(self):
        for key in ("Sample qstring", "Sample string"):
            for given, text in {"plain text": "plain text", '"quoted"': "quoted", "12": "12", "true": "true",
                                '"half': '"half', "c:\\new": "c:\\new", "": "", "--help": "--help"}.items():
                with self.subTest((key, given)):
                    self.assert_printed(self.stored("set", key, given, plugin=self.sample), "")
                    printed = self.stored("get", key, plugin=self.sample).stdout
                    self.assertEqual(json.loads(printed), text)

    def test_a_category_keeps_its_values_too(self):
        self.assert_printed(self.stored("set", "Sample range", "3", plugin=self.sample), "")
        self.assert_printed(self.stored("get", "Sample range", plugin=self.sample), "3\n")

    def test_an_unknown_key_is_named_with_the_nearest(self):
        message = 'there is no setting "camera foz"; did you mean "Camera fov"?'
        self.assert_refused(self.stored("get", "camera foz"), message)
        self.assert_refused(self.stored("set", "camera foz", "1"), message)
        self.assert_refused(self.stored("get", "something else"), 'there is no setting "something else"')

    def test_a_value_of_the_wrong_type_is_not_stored(self):
        self.assert_refused(self.stored("set", "Camera fov", "wide"),
                            'wide is no value for "Camera fov": expected a number')
        self.assert_refused(self.stored("set", "Camera fov", "true"),
                            'true is no value for "Camera fov": expected a number')
        self.assertFalse(self.store.exists())

    def test_a_store_that_cannot_be_used_is_named(self):
        self.store.write_text("this is no database, and long enough not to be taken for an empty one" * 20)
        for arguments in (["list"], ["get", "Camera fov"], ["set", "Camera fov", "1"]):
            result = self.stored(*arguments)
            self.assertEqual((result.stdout, result.returncode), ("", 2))
            self.assertTrue(result.stderr.startswith(f"Cannot read the preferences {self.store}: "), result.stderr)


class Script(ToolTest):
    def test_a_script_begins_empty_or_as_the_store_holds_it_and_writes_nothing(self):
        self.stored("set", "Camera fov", "60.1")
        before = self.store.read_bytes()
        script = 'get "Camera fov"\nput float "Camera fov" 1\n'
        self.assert_printed(self.tool("script", "-", input=script), 'absent "Camera fov"\n')
        self.assert_printed(self.stored("script", "-", input=script), 'value "Camera fov" float 60.1\n')
        self.assertEqual(self.store.read_bytes(), before)
        self.assert_printed(self.stored("get", "Camera fov"), "60.1\n")

    def test_the_language_of_the_store_is_not_that_of_the_host(self):
        self.stored("set", "MainWindow user language", "2")
        self.assert_printed(self.stored("script", "-", input="host displayLanguage 2\ndefaults MainWindow keep\n"), "")
        printed = self.stored("script", "-", input="defaults MainWindow keep\n").stdout
        self.assertTrue(printed.startswith('message information "Language Preferences Change" '), printed)

    def test_a_file_may_end_without_a_line_end_and_have_those_of_windows(self):
        script = self.folder / "some.script"
        script.write_bytes(b'\r\n  # nothing\r\nput int "a" 1 # one\r\n\tget "a"')
        self.assert_printed(self.tool("script", script), 'value "a" int 1\n')

    def test_a_missing_file_is_named(self):
        self.assert_refused(self.tool("script", "no.script"),
                            "Cannot read the script no.script: No such file or directory.")


class CommandLine(ToolTest):
    def test_help_and_version(self):
        self.assertTrue(self.tool("--help").stdout.startswith("Usage: orlo-prefs [OPTIONS] COMMAND\n"))
        self.assertRegex(self.tool("--version").stdout, r"^orlo-prefs \d+\.\d+")

    def test_what_is_not_understood_is_named(self):
        commands = "only list, get, set and script; see --help"
        for arguments, message in {
                (): "a command is missing: list, get, set or script; see --help",
                ("lst",): f"there is no command lst, {commands}",
                ("--stroe", "x", "list"): 'there is no option --stroe; did you mean "--store"?',
                ("--edition", "gold", "list"):
                    "there is no edition gold, only essentials, design, professional or enterprise",
                ("--edition",): "--edition needs a value",
                ("--help=1",): "--help takes no value",
                ("list", "--xml"): "usage: orlo-prefs [OPTIONS] list [--json | --markdown]",
                ("get",): "usage: orlo-prefs [OPTIONS] get KEY",
                ("set", "Camera fov"): "usage: orlo-prefs [OPTIONS] set KEY VALUE",
                ("script",): "usage: orlo-prefs [OPTIONS] script FILE|-"}.items():
            with self.subTest(arguments):
                self.assert_refused(self.tool(*arguments), message)

    def test_a_library_that_is_no_plugin_is_named_with_the_reason(self):
        broken = self.folder / "broken.so"
        broken.write_text("no library")
        for library, reason in {str(self.folder / "missing.so"): "there is no such file",
                                str(self.folder): "it is not a file",
                                str(broken): "",
                                self.foreign: "it has no entry function initPreferencesPlugin"}.items():
            for arguments in (["list"], ["get", "Camera fov"], ["script", "-"]):
                with self.subTest((library, arguments)):
                    result = self.stored(*arguments, plugin=library, input="")
                    self.assertEqual((result.stdout, result.returncode, result.stderr.count("\n")), ("", 2, 1))
                    path = pathlib.Path(library).resolve()
                    self.assertIn(f"Cannot load the preferences plug-in {path}: {reason}", result.stderr)


if __name__ == "__main__":
    main()

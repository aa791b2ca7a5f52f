#!/usr/bin/env python3
"""The command line of orlo-prefs.

    test_orlo_prefs.py --tool build/bin/orlo-prefs --foreign ANY_OTHER_LIBRARY
"""

import json
import os
import pathlib
import re
import shutil
import sqlite3
import stat
import subprocess

import jsonschema

from tool_test import SECONDS, ToolTest, main

CAMERA_KEYS = ["Camera fov", "Stereo eye separation", "Stereo zero plane parallaxe", "Powerwall width",
               "Powerwall height", "Powerwall distance"]
PATHS = "texture search paths"


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
        self.assertEqual(camera["settings"][0], {
            "key": "Camera fov", "type": "float", "default": 45, "value": 45, "minimum": 1, "maximum": 100, "unit": "°",
            "effect": "now", "label": "Field of View", "tooltip": "Vertical opening angle of the camera, in degrees",
            "path": ["Base"], "recorded": False, "locked": False, "origin": "default"})

    def test_json_tells_all_that_a_setting_knows_of_itself(self):
        settings = {setting["key"]: setting for module in self.modules().values() for setting in module["settings"]}
        self.assertEqual(settings["Interaction mode"]["choices"],
                         [{"value": 0, "text": "ORLO"}, {"value": 1, "text": "Contura"}, {"value": 2, "text": "Mirra"}])
        self.assertEqual(settings["Navigator dolly speed"]["decimals"], 2)
        self.assertEqual(settings["MainWindow user language"]["effect"], "next start")
        self.assertEqual(settings["STEPOptions chord deviation"]["effect"], "next import")
        for key, recorded in {"Powerwall width": True, "STEPOptions max chord length": True, "JTOptions LOADBREPS": True,
                              "STEPOptions chord deviation": False, "BCADOptions max parallel tasks": False}.items():
            self.assertEqual(settings[key]["recorded"], recorded, key)
        # Without a default it stands last in its module.
        paths = self.modules()["FileIO"]["settings"][-1]
        self.assertEqual((paths["key"], paths["type"], paths["default"], paths["value"]), (PATHS, "strings", None, None))

    def test_json_tells_where_a_value_comes_from(self):
        self.site({"Powerwall width": {"value": 7},
                   "Camera fov": {"value": 60, "locked": True, "reason": "One camera."}})
        self.stored("set", "Powerwall height", "5")
        settings = {setting["key"]: setting for setting in self.modules()["Camera"]["settings"]}
        self.assertEqual([settings[key]["origin"] for key in ("Powerwall width", "Powerwall height", "Powerwall distance",
                                                              "Camera fov")], ["site", "stored", "default", "site"])
        self.assertEqual((settings["Camera fov"]["locked"], settings["Camera fov"]["reason"]), (True, "One camera."))

    def test_the_smallest_edition_has_the_module_but_not_the_page(self):
        self.assertFalse(self.modules("--edition", "essentials")["Camera"]["page"])
        self.assertTrue(self.modules("--edition=Design")["Camera"]["page"])

    def test_json_and_table_tell_what_differs_from_its_default(self):
        self.stored("set", "Camera fov", "60.1")
        setting = self.modules()["Camera"]["settings"][0]
        self.assertEqual((setting["default"], setting["value"]), (45, 60.1))
        table = self.stored("list").stdout
        self.assertIn("Camera\n  Camera fov ", table)
        self.assertRegex(table, r"(?m)^  Camera fov +float +60\.1  \(default 45\)$")
        self.assertRegex(table, r"(?m)^  Powerwall width +float +1600$")


class GetAndSet(ToolTest):
    def test_a_value_is_kept_between_runs(self):
        self.assert_printed(self.stored("get", "Camera fov"), "45\n")
        for value in ("60.1", "45"):
            self.assert_printed(self.stored("set", "Camera fov", value), "")
            self.assert_printed(self.stored("get", "Camera fov"), value + "\n")

    def test_the_users_store_is_below_home(self):
        self.assert_printed(self.tool("set", "Camera fov", "12"), "")
        self.assertTrue((self.folder / ".config/orlo/preferences.db").exists())
        self.assert_printed(self.tool("get", "Camera fov"), "12\n")

    def test_every_type_comes_back_as_it_went_in(self):
        for key, value in {
                "Navigator auto center": "false", "Devices joystick id": "7",
                "RenderOptions enable postprocess antialias": "1", "Powerwall width": "1e-05",
                "IGESOptions chord deviation": "0.30000000000000004", "Optimizer Teselation Quality": "[1, 2.5]",
                "Selection preselection color": "[0.1, 0, 1]", "RenderOptions background colors": "[[0.1, 0, 1]]",
                PATHS: '["a b", ""]', "VR Teleport Range": "3"}.items():
            with self.subTest(key):
                self.assert_printed(self.stored("set", key, value), "")
                self.assert_printed(self.stored("get", key), value + "\n")

    def test_texts_need_no_quotes_but_may_have_them(self):
        for key in ("MirraFileIO mirra location", "WebInterface white list"):
            for given, text in {"plain text": "plain text", '"quoted"': "quoted", "12": "12", "true": "true",
                                '"half': '"half', "c:\\new": "c:\\new", "": "", "--help": "--help"}.items():
                with self.subTest((key, given)):
                    self.assert_printed(self.stored("set", key, given), "")
                    self.assertEqual(json.loads(self.stored("get", key).stdout), text)

    def test_an_argument_is_taken_exactly_or_refused(self):
        key = "WebInterface white list"
        self.environment["LC_ALL"] = "C"
        self.assert_printed(self.stored("set", key, "M\u00fcller \u65e5"), "")
        self.assert_printed(self.stored("get", key), '"M\u00fcller \u65e5"\n')
        self.assert_refused(self.stored("set", key, b"M\xfcller"), '"M\ufffdller" is no UTF-8')
        self.assert_printed(self.stored("get", key), '"M\u00fcller \u65e5"\n')

    def test_an_unknown_key_is_named_with_the_nearest(self):
        message = 'there is no setting "camera foz"; did you mean "Camera fov"?'
        self.assert_refused(self.stored("get", "camera foz"), message)
        self.assert_refused(self.stored("set", "camera foz", "1"), message)
        self.assert_refused(self.stored("get", "something else"), 'there is no setting "something else"')

    def test_a_store_that_cannot_be_used_is_named(self):
        self.store.write_text("this is no database, and long enough not to be taken for an empty one" * 20)
        for arguments in (["list"], ["get", "Camera fov"], ["set", "Camera fov", "1"]):
            result = self.stored(*arguments)
            self.assertEqual((result.stdout, result.returncode), ("", 2))
            self.assertTrue(result.stderr.startswith(f"Cannot read the preferences {self.store}: "), result.stderr)


class Bounds(ToolTest):
    def test_people_are_answered_in_the_language_they_ask_for_and_programs_in_english(self):
        def answered(*options, arguments=("set", "Camera fov", "much")):
            return self.tool(*arguments, options=["--store", str(self.store), *options])

        english = answered()
        self.stored("set", "MainWindow user language", "2")
        japanese = answered("--language", "ja")
        self.assertEqual((english.returncode, japanese.returncode), (2, 2))
        self.assertNotEqual(english.stderr, japanese.stderr)
        self.assertIn("Camera fov", japanese.stderr)
        self.assertEqual(answered("--language=user").stderr, japanese.stderr)
        self.assertEqual(answered().stderr, english.stderr)
        for command in (["list", "--json"], ["schema"], ["export"]):
            self.assertEqual(answered("--language", "ko", arguments=command).stdout, answered(arguments=command).stdout)
        for asked in (["--help"], ["import", "--help"], ["list", "--markdown"]):
            with self.subTest(asked):
                texts = [answered("--language", language, arguments=asked).stdout for language in ("en", "ja", "user")]
                self.assertEqual(texts[1], texts[2])
                self.assertNotEqual(texts[0].split("\n")[-2], texts[1].split("\n")[-2])
                # What is typed is the same in every language, and stands where it stood.
                words = [re.findall(r"(?m)^(?:  (?:[a-z]+|--[a-z-]+)|\| `[^`]+`) ", text) for text in texts]
                self.assertEqual(words[0], words[1])
        self.assert_refused(answered("--language", "ja", "--nix"), "オプション--nixはありません")
        self.assert_refused(answered("--language", "fr"), "there is no language fr, only en, zh, ja, ko or user")

    def test_every_door_refuses_with_the_same_words(self):
        for kind, key, type, value, words in self.refusals():
            with self.subTest(kind, key=key):
                asks = f"is only set with --yes: {words}" if kind == "warning" else words
                typed = value if isinstance(value, str) else json.dumps(value)
                self.assert_refused(self.stored("set", key, typed), f'"{key}" {asks}')
                imported = self.stored("import", "-", input=json.dumps(
                    {"format": 1, "settings": {key: {"type": type, "value": value}}}))
                self.assertEqual(imported.stderr,
                                 f'"{key}" {asks}\n' if kind == "warning" else f'skipped: "{key}" {words}\n')
                if kind == "lock":
                    self.assert_refused(self.stored("reset", key), f'"{key}" {words}')
        self.assert_printed(self.stored("diff"), "")

        for kind, key, type, value, words in self.refusals():
            # Who may write the site's file locks and agrees.
            if kind not in ("lock", "warning"):
                with self.subTest(kind, key=key, door="site"):
                    self.site({key: {"value": value}})
                    self.assertIn(f'line 1: "{key}" {words}.', self.stored("list").stderr)

    def test_what_the_page_asks_about_takes_a_yes(self):
        server = "WebInterface enable web server2"
        refusal = (f'"{server}" is only set with --yes: Do you really want to enable the Web Server? '
                   'The Web Server allows the execution of Python commands from remote locations!')
        self.assert_refused(self.stored("set", server, "true"), refusal)
        file = self.folder / "open.json"
        file.write_text(json.dumps({"format": 1, "settings": {server: {"type": "bool", "value": True},
                                                              "Powerwall width": {"type": "float", "value": 7}}}))
        self.assert_refused(self.stored("import", file), refusal)
        self.assert_printed(self.stored("diff"), "")
        self.assert_printed(self.stored("import", "--dry-run", file),
                            f"Powerwall width                  1600 -> 7\n{server}  false -> true\n")
        agreed = ["--store", str(self.store), "--yes"]
        self.assert_printed(self.tool("import", file, options=agreed), "")
        self.assert_printed(self.stored("set", server, "true"), "")
        self.assert_printed(self.stored("set", server, "false"), "")
        for arguments in (["--dry-run"], []):
            self.assert_refused(self.stored("undo", *arguments), refusal)
        self.assert_printed(self.tool("set", server, "true", options=agreed), "")

        self.site({server: {"value": True}})
        self.assert_printed(self.stored("set", server, "false"), "")
        for which in (server, "--all"):
            self.assert_refused(self.stored("reset", which), refusal)
        self.assert_printed(self.tool("reset", server, options=agreed), "")
        self.assert_printed(self.stored("get", server), "true\n")


class Differences(ToolTest):
    def test_what_differs_is_listed_until_it_is_reset(self):
        self.stored("set", "Camera fov", "60.1")
        self.stored("set", "Powerwall width", "5")
        self.assert_printed(self.stored("diff"), "Camera fov       45 -> 60.1\nPowerwall width  1600 -> 5\n")
        self.assert_printed(self.stored("reset", "Camera fov"), "")
        self.assert_printed(self.stored("diff"), "Powerwall width  1600 -> 5\n")
        self.assert_printed(self.stored("reset", "--all"), "")
        self.assert_printed(self.stored("diff"), "")
        self.assert_refused(self.stored("reset", "Camera foz"),
                            'there is no setting "Camera foz"; did you mean "Camera fov"?')

    def test_a_list_that_no_module_has_a_default_for_is_a_setting_like_any(self):
        self.assert_printed(self.stored("get", PATHS), "[]\n")
        self.assert_refused(self.stored("set", PATHS, "[1]"),
                            f'"{PATHS}" cannot be [1]: expected a list of texts, as ["a", "b"]')
        self.assert_printed(self.stored("set", PATHS, '["/a", "b c"]'), "")
        self.assert_printed(self.stored("diff"), f'{PATHS}  [] -> ["/a", "b c"]\n')
        file = self.folder / "kept.json"
        self.assert_printed(self.stored("export", file), "")
        exported = file.read_text("utf-8")
        self.assertEqual(self.stored("export").stdout, exported)
        self.assert_printed(self.stored("set", PATHS, "[]"), "")
        self.assertNotIn(PATHS, self.stored("export").stdout)
        self.assert_printed(self.stored("import", "-", input=exported), "")
        self.assert_printed(self.stored("get", PATHS), '["/a", "b c"]\n')
        self.assert_printed(self.stored("reset", PATHS), "")
        self.assert_printed(self.stored("get", PATHS), "[]\n")

    def test_those_who_set_at_the_same_time_all_keep_theirs(self):
        self.stored("set", "Camera fov", "50")
        values = dict(zip(CAMERA_KEYS[1:], "23456"))
        running = [subprocess.Popen(self.command("set", key, value, options=["--store", str(self.store)]),
                                    env=self.environment) for key, value in values.items()]
        self.assertEqual([process.wait(SECONDS) for process in running], [0] * len(values))
        lines = self.stored("diff").stdout.splitlines()
        self.assertEqual(dict(re.fullmatch(r"(.+?)  +.* -> (.*)", line).groups() for line in lines),
                         {"Camera fov": "50", **values})


class Files(ToolTest):
    def imported(self, settings, *options):
        return self.stored("import", *options, "-", input=json.dumps({"format": 1, "settings": settings}))

    def test_a_dry_run_shows_the_changes_and_leaves_the_disk_alone(self):
        settings = {"Camera fov": {"type": "float", "value": 60}, "Powerwall width": {"type": "float", "value": 1600}}
        self.assert_printed(self.imported(settings, "--dry-run"), "Camera fov  45 -> 60\n")
        self.assertFalse(self.store.exists())
        self.assert_printed(self.imported(settings), "")
        self.assert_printed(self.stored("diff"), "Camera fov  45 -> 60\n")

    def test_files_that_cannot_be_read_or_written_are_named(self):
        missing = self.folder / "no" / "file.json"
        self.assert_refused(self.stored("import", missing),
                            f"Cannot read the preferences from {missing}: No such file or directory.")
        result = self.stored("export", missing)
        self.assertEqual((result.stdout, result.returncode), ("", 2))
        self.assertTrue(result.stderr.startswith(f"Cannot write the preferences to {missing}: "), result.stderr)
        result = self.stored("import", "-", input='{"format": 1,\n "settings": ')
        self.assertEqual(result.returncode, 2)
        self.assertTrue(result.stderr.startswith("Cannot import the standard input. Line 2: "), result.stderr)

    def test_a_new_file_is_private_and_an_old_one_keeps_its_mode(self):
        file = self.folder / "kept.json"
        for mode in (0o600, 0o640, 0o666):
            self.assert_printed(self.stored("export", file), "")
            self.assertEqual(stat.S_IMODE(file.stat().st_mode), mode)
            file.chmod({0o600: 0o640, 0o640: 0o666}.get(mode, mode))

    def test_a_pipe_is_written_into(self):
        pipe = self.folder / "pipe"
        os.mkfifo(pipe)
        with subprocess.Popen(["cat", pipe], stdout=subprocess.PIPE, encoding="utf-8") as reader:
            self.addCleanup(reader.kill)
            self.assert_printed(self.stored("export", pipe), "")
            self.assertTrue(stat.S_ISFIFO(pipe.stat().st_mode))
            self.assertEqual(reader.communicate(timeout=SECONDS)[0], self.stored("export").stdout)

    def test_names_that_begin_with_a_colon_are_names_of_files(self):
        self.environment["PWD"] = str(self.folder)
        for arguments in (["set", "Camera fov", "60"], ["export", ":kept"], ["import", ":kept"]):
            self.assert_printed(self.tool(*arguments, options=["--store", ":store"]), "")
        self.assertIn('"Camera fov": {"type": "float", "value": 60}', (self.folder / ":kept").read_text())
        self.assertTrue((self.folder / ":store").exists())

    def test_the_sign_of_a_zero_counts(self):
        self.assert_printed(self.stored("set", "Powerwall width", "0"), "")
        self.assert_printed(self.imported({"Powerwall width": {"type": "float", "value": -0.0}}), "")
        self.assert_printed(self.stored("get", "Powerwall width"), "-0\n")


class History(ToolTest):
    def test_saves_are_listed_and_taken_back(self):
        for value in ("50", "60"):
            self.stored("set", "Camera fov", value)
        self.stored("set", "WebInterface white list", "10.0.0.1")
        self.stored("reset", "Camera fov")
        log = self.stored("log").stdout
        self.assertRegex(log, r"^1  \d{4}-\d\d-\d\d \d\d:\d\d:\d\d  orlo-prefs\n    Camera fov  60 -> default\n2  ")
        self.assertNotIn("10.0.0.1", log)
        entries = json.loads(self.stored("log", "Camera fov", "--json").stdout)
        self.assertEqual([entry["changes"][0]["after"] for entry in entries],
                         [None, {"type": "float", "value": 60}, {"type": "float", "value": 50}])
        self.assert_printed(self.stored("log", "Powerwall width"), "")
        self.assert_refused(self.stored("log", "Camera foz"),
                            'there is no setting "Camera foz"; did you mean "Camera fov"?')

        before = self.store.read_bytes()
        self.assert_printed(self.stored("undo", "--dry-run"), "Camera fov  45 -> 60\n")
        self.assertEqual(self.store.read_bytes(), before)
        self.assert_printed(self.stored("undo"), "Camera fov  45 -> 60\n")
        self.assert_printed(self.stored("undo", "2"), "")
        self.assert_printed(self.stored("undo", "3"), "Camera fov  60 -> 50\n")
        self.assert_printed(self.stored("get", "Camera fov"), "50\n")
        self.assert_refused(self.stored("undo", "99"), "99 saves cannot be taken back: there are only 5")

    def test_what_was_changed_otherwise_is_left_and_named(self):
        self.stored("set", "Camera fov", "50")
        self.stored("set", "Camera fov", "60")
        with sqlite3.connect(self.store) as database:
            database.execute("DELETE FROM history WHERE save = 2")
        for arguments in (["--dry-run"], []):
            result = self.stored("undo", *arguments)
            self.assertEqual((result.stdout, result.returncode), ("", 1))
            self.assertEqual(result.stderr,
                             'left: "Camera fov" was changed since\nSome settings were left as they are.\n')


class Profiles(ToolTest):
    def test_a_profile_is_kept_listed_applied_and_deleted(self):
        self.stored("set", "Camera fov", "60")
        self.stored("set", "Powerwall width", "5")
        self.assert_printed(self.stored("profile", "save", "wide & far", "--changed"), "")
        self.assert_printed(self.stored("profile", "save", "camera", "--module", "Camera"), "")
        self.assert_printed(self.stored("profile", "list"), "camera\nwide & far\n")
        kept = self.folder / "profiles/wide & far.json"
        self.assertEqual(list(json.loads(kept.read_text())["settings"]), ["Camera fov", "Powerwall width"])
        self.assertEqual((kept.stat().st_mode & 0o777, kept.parent.stat().st_mode & 0o777), (0o600, 0o700))
        self.assertEqual(len(json.loads((self.folder / "profiles/camera.json").read_text())["settings"]), 6)
        self.stored("reset", "--all")
        self.assert_printed(self.stored("profile", "apply", "wide & far", "--dry-run"),
                            "Camera fov       45 -> 60\nPowerwall width  1600 -> 5\n")
        self.assert_printed(self.stored("diff"), "")
        self.assert_printed(self.stored("profile", "apply", "wide & far"), "")
        self.assert_printed(self.stored("get", "Camera fov"), "60\n")
        self.assert_printed(self.stored("profile", "delete", "camera"), "")
        self.assert_printed(self.stored("profile", "list"), "wide & far\n")

    def test_names_that_are_none_are_refused(self):
        for name in ("", ".hidden", "a/b", "../store"):
            for action in ("save", "apply", "delete"):
                self.assert_refused(self.stored("profile", action, name),
                                    f'"{name}" is no name for a profile: it must not be empty, have a slash in it or '
                                    "begin with a dot.")
        self.assert_refused(self.stored("profile", "apply", "none"), 'There is no profile "none".')
        self.assert_refused(self.stored("profile", "save", "x", "--module", "Camra"),
                            'there is no module "Camra"; did you mean "Camera"?')
        self.assertFalse((self.folder / "profiles").exists())


class Editions(ToolTest):
    def test_a_choice_stays_in_all_editions_although_it_is_a_default_in_some(self):
        editions = ("essentials", "design", "professional", "enterprise")
        lists = {edition: self.tool("list", "--json", options=["--store", str(self.store), "--edition", edition]).stdout
                 for edition in editions}
        defaults = {edition: {setting["key"]: setting["default"] for module in json.loads(text)
                              for setting in module["settings"]} for edition, text in lists.items()}
        key = next(key for key, value in defaults["essentials"].items()
                   if isinstance(value, bool) and value != defaults["professional"][key]
                   and not key.startswith("Devices"))
        for chooser in ("essentials", "professional"):
            for value in ("true", "false"):
                self.tool("set", key, value, options=["--store", str(self.store), "--edition", chooser])
                for edition in editions:
                    options = ["--store", str(self.store), "--edition", edition]
                    self.assert_printed(self.tool("set", "Powerwall width", "7", options=options), "")
                    self.assert_printed(self.tool("get", key, options=options), value + "\n")


class Site(ToolTest):
    def setUp(self):
        super().setUp()
        self.file = self.site({"Camera fov": {"value": 60, "locked": True, "reason": "One camera for all."},
                               "Powerwall width": {"value": 7}})

    def test_a_list_that_no_module_has_a_default_for_has_the_sites(self):
        self.site({PATHS: {"value": ["/site"]}})
        self.assert_printed(self.stored("get", PATHS), '["/site"]\n')
        self.assert_printed(self.stored("check"), "")
        self.assert_printed(self.stored("set", PATHS, "[]"), "")
        self.assert_printed(self.stored("get", PATHS), "[]\n")
        self.site({PATHS: {"value": ["/site"], "locked": True, "reason": "Ours."}})
        self.assert_refused(self.stored("set", PATHS, "[]"), f'"{PATHS}" is locked: Ours.')
        self.assert_printed(self.stored("get", PATHS), '["/site"]\n')

    def test_profiles_of_the_site_are_applied_but_not_changed(self):
        folder = self.file.parent / "profiles"
        folder.mkdir()
        settings = {"Powerwall height": {"type": "float", "value": 9}, "Camera fov": {"type": "float", "value": 70}}
        (folder / "hall.json").write_text(json.dumps({"format": 1, "settings": settings}))
        self.assert_printed(self.stored("profile", "list"), "hall  (site)\n")
        result = self.stored("profile", "apply", "hall")
        self.assertEqual((result.stderr, result.returncode),
                         ('skipped: "Camera fov" is locked: One camera for all.\n', 0))
        self.assert_printed(self.stored("get", "Powerwall height"), "9\n")
        self.assert_refused(self.stored("profile", "delete", "hall"),
                            'The profile "hall" is the site\'s and cannot be deleted.')
        self.assert_printed(self.stored("profile", "save", "hall", "--changed"), "")
        self.assert_printed(self.stored("profile", "list"), "hall\n")
        self.assertEqual(json.loads((folder / "hall.json").read_text())["settings"], settings)

    def test_check_tells_of_the_store_and_of_the_site(self):
        self.stored("set", "Powerwall height", "1")
        self.assert_printed(self.stored("check"), "")
        self.site({"Camera foz": {"value": 60}, "Optimizer Topology Method": {"value": 1}})
        result = self.tool("check", options=["--edition", "essentials", "--store", str(self.store)])
        self.assertEqual((result.stdout, result.stderr, result.returncode),
                         (f'{self.file}, line 1: no module has a setting "Camera foz".\n', "", 1))
        self.store.write_bytes(self.store.read_bytes()[:1000])
        damaged = self.store.read_bytes()
        result = self.stored("check")
        self.assertEqual((result.stderr, result.returncode), ("", 1))
        self.assertIn(str(self.store), result.stdout)
        self.assertIn("Camera foz", result.stdout)
        self.assertEqual(self.store.read_bytes(), damaged)
        self.store.unlink()
        self.file.unlink()
        self.file.symlink_to("missing")
        reason = f"The site's preferences {self.file} are ignored: it cannot be read: No such file or directory.\n"
        result = self.stored("check")
        self.assertEqual((result.stdout, result.stderr, result.returncode), (reason, "", 1))
        self.assertEqual(self.stored("get", "Camera fov").stderr, reason)

    def test_a_file_is_judged_before_it_is_installed(self):
        self.site({"Camera fob": {"value": 1}})
        draft = self.folder / "draft.json"
        draft.write_text('{"Camera fov": {"value": 60, "locked": true}}')
        self.assert_printed(self.stored("check", "--site", draft), "")
        draft.write_text('{"Camera fov": {"value": "wide"},\n "Camera foz": {"locked": true}}')
        result = self.stored("check", "--site", draft)
        self.assertEqual((result.stderr, result.returncode), ("", 1))
        self.assertRegex(result.stdout, r'^.*draft.json.*line 1.*"Camera fov".*\n.*line 2.*"Camera foz"\.\n$')
        missing = self.folder / "missing.json"
        self.assert_refused(self.stored("check", "--site", missing), f"Cannot check {missing}: there is no such file.")

    def test_the_examples_of_the_document_are_taken(self):
        text = (pathlib.Path(__file__).resolve().parents[2] / "docs/site-defaults.md").read_text()
        text = re.sub(r"(?s)```.*?```", "", text)
        examples = re.findall(r"(?m)(?:^    .*\n)+", text)
        self.assertTrue(examples)
        for example in examples:
            with self.subTest(example):
                self.file.write_text(example)
                self.assert_printed(self.stored("check"), "")
                for key, entry in json.loads(example).items():
                    if "value" in entry:
                        self.assertEqual(json.loads(self.stored("get", key).stdout), entry["value"])
                    result = self.stored("reset", key)
                    self.assertEqual(result.returncode, 2 if entry.get("locked") else 0, result.stderr)


class Schema(ToolTest):
    def test_it_tells_good_files_from_bad_ones(self):
        validator = jsonschema.Draft7Validator(json.loads(self.stored("schema").stdout))
        jsonschema.Draft7Validator.check_schema(validator.schema)
        self.stored("set", PATHS, '["/a"]')
        self.stored("set", "MainWindow user language", "2")
        exported = json.loads(self.stored("export").stdout)
        self.assertEqual(list(validator.iter_errors(exported)), [])

        def settings(key, **members):
            return {"format": 1, "settings": {key: members}}

        for good in ({}, {"Camera fov": {"value": 60, "locked": True, "reason": "Ours."}},
                     {"WebInterface enable web server2": {"locked": True}},
                     settings("MainWindow user language", type="int", value=-1),
                     settings("MirraFileIO units", type="string", value="furlong")):
            self.assertTrue(validator.is_valid(good), good)
        for bad in ({"Camera foz": {"value": 60}}, {"Camera fov": {"value": 500}}, {"Camera fov": {"locked": False}},
                    {"Camera fov": {"value": 60, "why": "x"}}, {"format": 2, "settings": {}}, {"format": 1},
                    settings("Camera fov", type="int", value=60), settings("Camera fov", type="float"),
                    settings("Camera fov", type="float", value="60"), settings("Camera foz", type="float", value=60),
                    settings("Interaction mode", type="int", value=9),
                    settings("MainWindow user language", type="int", value=9),
                    settings("Selection preselection color", type="color", value=[0, 0, 1.5]),
                    settings("BCADOptions max parallel tasks", type="int", value=1.5)):
            self.assertFalse(validator.is_valid(bad), bad)


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
        commands = ("only list, get, set, reset, diff, export, import, profile, log, undo, check, schema and script; "
                    "see --help")
        for arguments, message in {
                (): "a command is missing: list, get, set, reset, diff, export, import, profile, log, undo, check, schema "
                    "or script; see --help",
                ("lst",): f"there is no command lst, {commands}",
                ("--stroe", "x", "list"): 'there is no option --stroe; did you mean "--store"?',
                ("--edition", "gold", "list"):
                    "there is no edition gold, only essentials, design, professional or enterprise",
                ("--edition",): "--edition needs a value",
                ("--help=1",): "--help takes no value",
                ("list", "--xml"): "usage: orlo-prefs [OPTIONS] list [--json | --markdown]",
                ("get",): "usage: orlo-prefs [OPTIONS] get KEY",
                ("set", "Camera fov"): "usage: orlo-prefs [OPTIONS] set KEY VALUE",
                ("reset",): "usage: orlo-prefs [OPTIONS] reset KEY | --all",
                ("diff", "Camera fov"): "usage: orlo-prefs [OPTIONS] diff",
                ("export", "a", "b"): "usage: orlo-prefs [OPTIONS] export [FILE|-]",
                ("import", "--dry-run"): "usage: orlo-prefs [OPTIONS] import [--dry-run] FILE|-",
                ("profile",): "usage: orlo-prefs [OPTIONS] profile list|save|apply|delete",
                ("profile", "save", "--changed"): "usage: orlo-prefs [OPTIONS] profile list|save|apply|delete",
                ("undo", "0"): "usage: orlo-prefs [OPTIONS] undo [N] [--dry-run]",
                ("script",): "usage: orlo-prefs [OPTIONS] script FILE|-"}.items():
            with self.subTest(arguments):
                self.assert_refused(self.tool(*arguments), message)

    def test_each_command_has_a_help_of_its_own(self):
        listed = re.findall(r"(?m)^  ([a-z]+) ", self.tool("--help").stdout)
        self.assertEqual(listed, "list get set reset diff export import profile log undo check schema script".split())
        for command in listed:
            help_text = self.tool(command, "--help").stdout
            self.assertTrue(help_text.startswith(f"Usage: orlo-prefs [OPTIONS] {command}"), help_text)
            self.assertEqual(self.tool("--help", command).stdout, help_text)

    def test_an_output_that_takes_nothing_is_an_error(self):
        with open("/dev/full", "w") as full:
            result = subprocess.run(self.command("list"), stdout=full, stderr=subprocess.PIPE, env=self.environment,
                                    encoding="utf-8", timeout=SECONDS, check=False)
        self.assertEqual((result.stderr, result.returncode), ("Cannot write the output: No space left on device.\n", 2))

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

    def test_where_there_is_none_all_places_are_named(self):
        beside = self.folder / "bin"
        beside.mkdir()
        result = self.execute([shutil.copy(self.program, beside), "list"])
        self.assertEqual(result.returncode, 2)
        self.assertIn(f"Cannot load the preferences plug-in: there is neither {beside}/libKernelPreferences.so nor "
                      f"{self.folder}/lib", result.stderr)


if __name__ == "__main__":
    main()

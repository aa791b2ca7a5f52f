"""The viewer without its window: pictures of models, and settings that hold for one run."""

import json
import os
import pathlib
import sqlite3
import subprocess
import unittest

import tool_test

COARSE = ["--set", "STEPOptions chord deviation=2", "--set", "STEPOptions normal tolerance=60"]
FORMATS = ["step", "stp", "igs", "iges", "stl", "wrl", "vrml", "obj", "gltf", "glb"]


class Batch(tool_test.ToolTest):
    def setUp(self):
        super().setUp()
        self.environment["XDG_RUNTIME_DIR"] = str(self.folder)
        self.environment.update(DISPLAY=os.environ["DISPLAY"], XAUTHORITY=os.environ.get("XAUTHORITY", ""))
        self.environment["XDG_CONFIG_DIRS"] = str(self.folder / "site")

    def sample_as(self, suffix):
        file = self.folder / f"sample.{suffix}"
        result = self.stored("--sample", "--save", file)
        self.assertEqual((result.stdout, result.returncode), ("", 0), result.stderr)
        return file

    def triangles(self, model, *options):
        picture = self.folder / "picture.png"
        picture.unlink(missing_ok=True)
        result = self.stored("--render", model, "--output", picture, "--size", "160x120", *options)
        self.assertEqual(result.returncode, 0, result.stderr)
        self.assertTrue(picture.read_bytes().startswith(b"\x89PNG"))
        word, number = result.stdout.split()
        self.assertEqual(word, "triangles")
        return int(number)

    def test_every_format_is_written_read_and_drawn(self):
        counts = {suffix: self.triangles(self.sample_as(suffix)) for suffix in FORMATS}
        # Surfaces are resolved anew; those two formats hold no meshes.
        whole = counts["stl"]
        for suffix, count in counts.items():
            self.assertLess(abs(count - whole), 600, suffix)

    def test_a_model_becomes_one_of_another_format(self):
        step = self.sample_as("step")
        converted = self.folder / "converted.obj"
        written = self.stored(step, "--save", converted)
        self.assertEqual((written.stdout, written.stderr, written.returncode),
                         ("", "orlo: OBJ knows no exact surfaces; their triangles are written.\norlo: These are not in the "
                          "file, as OBJ does not know them: groups of parts.\n", 0))
        # Triangles without area, as they come about at the poles of a ball, are not kept.
        self.assertLess(abs(self.triangles(converted) - self.triangles(step)), 60)
        self.assert_refused(self.stored(self.folder / "none.step", "--save", converted),
                            f"orlo: Cannot read {self.folder}/none.step: there is no such file.")

    def test_what_the_renderer_says_of_an_old_driver_is_no_answer(self):
        self.environment["MESA_GL_VERSION_OVERRIDE"] = "2.1"
        self.assertGreater(self.triangles(self.sample_as("stl")), 0)

    def test_questions_are_answered_without_a_display(self):
        del self.environment["DISPLAY"]
        for question, answer in (("--help", "Import a model"), ("--version", "orlo ")):
            result = self.tool(question)
            self.assertEqual((result.stderr, result.returncode), ("", 0))
            self.assertIn(answer, result.stdout)

    def test_a_model_is_converted_without_a_display_and_the_rest_is_refused(self):
        del self.environment["DISPLAY"]
        self.environment.pop("QT_QPA_PLATFORM", None)
        model = self.sample_as("stl")
        self.assert_refused(self.stored(model), "orlo: there is no display to open a window on; --save needs none")
        result = self.stored("--render", model, "--output", "picture.png")
        self.assertEqual((result.stderr, result.returncode),
                         ("orlo: The 3D view needs an X display, or XWayland, with OpenGL.\n", 1))

    def test_help_and_refusals_are_in_the_language_that_is_stored(self):
        self.store_language("2")
        self.assertIn("モデルをインポートし", self.stored("--help").stdout)
        for misuse, refusal in ((["--aids"], "--aidsには--renderが必要です"), (["--edition", "no"], "エディションnoはありません")):
            self.assertIn(f"orlo: {refusal}", self.stored(*misuse).stderr)
        self.store.write_text("no store")
        self.assertIn("Import a model", self.stored("--help").stdout)

    def store_language(self, language):
        preferences = pathlib.Path(self.program).parent / "orlo-prefs"
        subprocess.run([preferences, "--store", self.store, "set", "MainWindow user language", language],
                       env=self.environment, timeout=tool_test.SECONDS, check=True)

    def test_what_was_remembered_under_the_former_name_is_taken_over_once(self):
        former, now = (self.folder / ".config" / name / "orlo.conf" for name in ("ORLO", "orlo"))
        for kept in (1, 2):
            former.parent.mkdir(parents=True)
            former.write_text(f"[General]\nkept={kept}\n")
            self.sample_as("stl")
            self.assertIn("kept=1\n", now.read_text())
            self.assertEqual(former.parent.exists(), kept == 2)

    def test_settings_hold_for_one_run(self):
        model = self.sample_as("step")
        fine = self.triangles(model)
        self.assertLess(self.triangles(model, *COARSE), fine / 3)
        self.assertEqual(self.triangles(model, "--set", 'texture search paths=["/a"]'), fine)

    def test_what_cannot_be_set_is_refused_with_the_words_of_every_door(self):
        for kind, key, _, value, words in self.refusals():
            with self.subTest(kind, key=key):
                asks = f"is only set where somebody can be asked: {words}" if kind == "warning" else words
                typed = value if isinstance(value, str) else json.dumps(value)
                self.assert_refused(self.stored("--sample", "--save", "m.stl", "--set", f"{key}={typed}"),
                                    f'orlo: "{key}" {asks}')
        self.assertFalse((self.folder / "m.stl").exists())

    def test_a_file_is_what_was_given_or_refused(self):
        self.environment["LC_ALL"] = "C"
        names = [":sample.stl", "M\u00fcller \u65e5.stl", os.fsdecode(b"M\xfcller.stl")]
        for name in names:
            for arguments in (["--sample", "--save", name], [name, "--save", name + ".obj"],
                              ["--render", name + ".obj", "--output", name + ".png", "--size", "9x9"]):
                result = self.stored(*arguments)
                self.assertEqual(result.returncode, 0, result.stderr)
            self.assertTrue((self.folder / (name + ".png")).exists())
        refused = self.stored("--sample", "--save", "m.stl", "--set", b"FileIO tmp path=\xfc")
        self.assertEqual(refused.returncode, 2)
        self.assertRegex(refused.stderr, '^orlo: ".*\ufffd.*" is no UTF-8\n$')

    def test_locks_hold_always(self):
        model = self.sample_as("step")
        fine = self.triangles(model)
        self.site({"STEPOptions chord deviation": {"value": 0.075, "locked": True, "reason": "One fineness for all."}})
        self.assert_refused(self.stored("--render", model, "--output", "p.png", *COARSE),
                            'orlo: "STEPOptions chord deviation" is locked: One fineness for all.')
        self.assertEqual(self.triangles(model), fine)

    def test_what_cannot_be_read_gives_one_message_and_status_2(self):
        model = self.folder / "m.jt"
        model.write_text("no model")
        self.assert_refused(self.stored("--render", model, "--output", "p.png"),
                            f"orlo: Cannot read {model}: there is no reader for .jt files. These can be read: "
                            "step, stp, iges, igs, stl, wrl, vrml, obj, gltf, glb, ply, 3mf, dae, off.")
        self.assertFalse((self.folder / "p.png").exists())
        self.assert_refused(self.stored("--render", self.folder, "--output", "p.png"),
                            f"orlo: Cannot read {self.folder}: this is a folder.")

    def test_what_would_be_ignored_is_refused(self):
        output = ["--output", "p.png"]
        for arguments, message in (
                (output, "--output needs --render"),
                (["--set", "Camera fov=60"], "--set needs --render or --save"),
                (["--render", "m.step", "--sample", *output], "--sample does not go with --render"),
                (["--render", "m.step", *output, "n.step"], "n.step does not go with --render"),
                (["--sample", "--save", "m.step", "--tour", "t"],
                 "--tour needs a window, which --render and --save do without"),
                (["--render", "m.step", *output, "--size", "8193x1"],
                 "8193x1 is no size: expected WIDTHxHEIGHT, each from 1 to 8192"),
                (["--save", "m.step"], "--save needs either a model or --sample"),
                (["--aids"], "--aids needs --render"),
                (["--nonsense"], "Unknown option 'nonsense'.")):
            with self.subTest(arguments=arguments):
                self.assert_refused(self.stored(*arguments), f"orlo: {message}")

    def test_a_start_that_fails_shows_a_window_where_there_is_somebody_to_ask(self):
        foreign = sqlite3.connect(self.folder / "foreign.db")
        foreign.execute("CREATE TABLE t (x)")
        foreign.commit()
        foreign.close()
        for arguments in (["--store", self.folder / "foreign.db"], ["--plugin", "/missing.so"]):
            with self.subTest(arguments=arguments):
                with subprocess.Popen(self.command(*arguments), env=self.environment, stderr=subprocess.PIPE) as viewer:
                    self.addCleanup(viewer.kill)
                    self.assertTrue(viewer.stderr.readline().startswith(b"orlo: "))
                    with self.assertRaises(subprocess.TimeoutExpired, msg="nobody was asked"):
                        viewer.wait(timeout=3)
                    viewer.kill()
                for unattended in (["--tour", self.folder / "tour"], ["--sample", "--save", self.folder / "m.step"]):
                    result = self.tool(*arguments, *unattended)
                    self.assertEqual((result.stdout, result.returncode), ("", 1))
                    self.assertIn("orlo: ", result.stderr)

    def test_the_tour_goes_through_in_every_language_and_without_its_letters(self):
        fonts = self.folder / "fonts.conf"
        fonts.write_text("<fontconfig><dir>/usr/share/fonts/truetype/dejavu</dir></fontconfig>")
        self.environment["FONTCONFIG_FILE"] = str(fonts)
        for language in ("0", "2"):
            with self.subTest(language=language):
                folder = self.folder / f"tour{language}"
                self.store = self.folder / f"store{language}.db"
                self.store_language(language)
                result = self.stored("--sample", "--tour", folder)
                self.assertEqual(result.returncode, 0, result.stderr)
                self.assertIn("olOSGWidget::setFov(-1, 25)", result.stdout)
                self.assertEqual(len(list(folder.glob("*.png"))), 17)
                self.assertEqual(result.stderr.count("fonts-noto-cjk"), 0 if language == "0" else 1)

    def test_a_setting_that_no_page_has_opens_nothing(self):
        self.assert_refused(self.stored("--setting", "Camera foz"), 'orlo: no page has the setting "Camera foz"')


if __name__ == "__main__":
    tool_test.main()

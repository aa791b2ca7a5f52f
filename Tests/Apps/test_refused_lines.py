#!/usr/bin/env python3
"""What a script line may not be, and what is said of it: every line here must end its script with that message.

    test_refused_lines.py --tool build/bin/orlo-prefs
"""

from tool_test import ToolTest, main

WORDS = {
    "shwo Camera x": "there is no command shwo; did you mean \"show\"?",
    '"gui': "a quote is not closed",
    'get a"b"': 'a quote stands within the word a"b"; usage: get "KEY"',
    "get a b": '"b" is too much; usage: get "KEY"',
    "defaults Camera now": "behind the module only keep may follow; usage: defaults [MODULE] [keep]",
    "apply Camra": 'there is no module "Camra"; there is: Catia V4, Catia V5, Contura, ',
    "put flt k 1": "there is no type flt, only bool int uint float double qstring string strings floats color colors; "
                   'usage: put TYPE "KEY" VALUE',
    "put float k": 'VALUE is missing; usage: put TYPE "KEY" VALUE',
    "put float k 1, 2": '1, 2 is no JSON value; usage: put TYPE "KEY" VALUE',
    "put int k 1.5": "1.5 is no value of type int: expected a whole number from -2147483648 to 2147483647",
    "put color k [1, 0]": "[1, 0] is no value of type color: expected three numbers, as [1, 0.5, 0]",
    "host vewer true": 'there is no fact vewer; did you mean "viewer"?',
    "env A=B": "no variable can be called A=B; usage: env NAME [VALUE]",
    "answer directory": 'PATH is missing; usage: answer "BUTTON", answer directory "PATH", answer color [r, g, b] or '
                        "answer cancel",
    'select FileIO "Texture Search Paths" none 1': "no column goes with none; usage: "
                                                    'select MODULE "CONTROL" ROW [COLUMN], or select MODULE "CONTROL" none',
}

CONTROLS = {
    'show Camera "Fov"': 'Camera: there is no control "Fov"; there is: "Base/Field of View", "Stereo/Eye Separation", ',
    'show "Render Options" "Multisampling"': 'Render Options: 4 controls answer to "Multisampling": ',
    'edit Navigator "Panning Speed" 2': 'Navigator "Panning Speed" is disabled',
    'edit Help "Help Path" "x"': 'Help "Help Path" is hidden',
    'click Tesselation "Remove"': 'Tesselation "Remove" is disabled',
    'click Camera "Field of View"': "it is no button",
    'edit FileIO "Add" true': "a button is not edited but pressed, by click",
    'edit KBX "Format" "one"':
        '"one" cannot be entered: expected an item by its number or its text: "Binary", "Text"',
    'edit KBX "Format" 3': "3 cannot be entered: expected a whole number from 0 to 1",
    'edit FileIO "Max Parallel Processes" 99999': "99999 cannot be entered: expected a whole number from -1 to 32768",
    'edit Camera "Field of View" 0.5': "0.5 cannot be entered: expected a number from 1 to 100",
    'edit Navigator "Dolly Speed" 0.001':
        "0.001 cannot be entered: expected a number from 0 to 1000 with at most 2 decimals",
    'edit Selection "Preselection Color" [0, 0, 1.5]':
        "[0, 0, 1.5] cannot be entered: expected three numbers from 0 to 1, as [1, 0.5, 0]",
    'edit Camera "Eye Separation" "1.000,5"': '"1.000,5" cannot be entered: expected what the field\'s validator lets through',
    'edit FileIO "Texture Search Paths" 0': "a table or tree is not edited; select in it and press its buttons",
    'select Camera "Field of View" 0': "it is neither a table nor a tree",
    'select FileIO "Texture Search Paths" 0': "there is no row 0: it has 0 rows",
}

# What was done before the line matters in these.
SEQUENCES = {
    'defaults\ngui\nselect Tesselation "Tesselation Quality" 0 1': "there is no column 1: it has 1 column",
    'defaults\ngui\nanswer "Do"\nedit WebInterface "Enable Web Server" true':
        'the box "Enable Web Server" has no button "Do"; it has "Enable", "Do Not Enable"',
    'answer "OK"\nclick FileIO "Add"': 'the directory chooser "Select Texture Search Directory" opened, '
                                       'but the answer queued for it is the button "OK"',
    "unload\napply": "the library is unloaded",
}


class RefusedLines(ToolTest):
    def check(self, cases):
        for script, why in cases.items():
            with self.subTest(script):
                result = self.tool("script", "-", input=script + '\nput int "late" 1\nget "late"\n')
                number = script.count("\n") + 1
                self.assertTrue(result.stderr.startswith(f"line {number}: {why}"), result.stderr)
                self.assertEqual(result.returncode, 2)
                self.assertNotIn("late", result.stdout)

    def test_words_and_values(self):
        self.check(WORDS)

    def test_controls_that_a_user_could_not_use_so(self):
        self.check(CONTROLS)

    def test_lines_that_something_before_rules_out(self):
        self.check(SEQUENCES)


if __name__ == "__main__":
    main()

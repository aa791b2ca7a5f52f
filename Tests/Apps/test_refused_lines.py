#!/usr/bin/env python3
"""What a script line may not be, and what is said of it: every line here must end its script with that message.

    test_refused_lines.py --tool build/bin/orlo-prefs --sample build/bin/libSamplePlugin.so
"""

from tool_test import ToolTest, main

WORDS = {
    "shwo Sample Tick": "there is no command shwo; did you mean \"show\"?",
    '"gui': "a quote is not closed",
    'get "a"b': 'a blank is missing behind "a"; usage: get "KEY"',
    'get a"b"': 'a quote stands within the word a"b"; usage: get "KEY"',
    "get a b": '"b" is too much; usage: get "KEY"',
    "defaults Sample now": "behind the module only keep may follow; usage: defaults [MODULE] [keep]",
    "apply Camra": 'there is no module "Camra"; there is: Sample, Sample Service',
    "put flt k 1": "there is no type flt, only bool int uint float double qstring string strings floats color colors; "
                   'usage: put TYPE "KEY" VALUE',
    "put float k": 'VALUE is missing; usage: put TYPE "KEY" VALUE',
    "put float k 1, 2": '1, 2 is no JSON value; usage: put TYPE "KEY" VALUE',
    "put float k true": "true is no value of type float: expected a number",
    "put int k 1.5": "1.5 is no value of type int: expected a whole number from -2147483648 to 2147483647",
    "put bool k 1": "1 is no value of type bool: expected true or false",
    "put color k [1, 0]": "[1, 0] is no value of type color: expected three numbers, as [1, 0.5, 0]",
    "service take k": 'take is neither put nor get; usage: service put TYPE "KEY" VALUE, or service get "KEY"',
    "host vewer true": 'there is no fact vewer; did you mean "viewer"?',
    "host viewer 1": "1 does not fit the fact viewer: expected true or false",
    "env A=B": "no variable can be called A=B; usage: env NAME [VALUE]",
    "answer directory": 'PATH is missing; usage: answer "BUTTON", answer directory "PATH", answer color [r, g, b] or '
                        "answer cancel",
    'select Sample "Paths" none 1': "no column goes with none; usage: "
                                    'select MODULE "CONTROL" ROW [COLUMN], or select MODULE "CONTROL" none',
}

CONTROLS = {
    'show Sample "Tik"': 'Sample: there is no control "Tik"; there is: "Values/Tick", "Values/Choice", ',
    'show "Sample Service" "Sample range"': "Sample Service has no page",
    'edit Sample "More" true': 'Sample "More" is disabled',
    'edit Sample "Gone" true': 'Sample "Gone" is hidden',
    'click Sample "Remove"': 'Sample "Remove" is disabled',
    'click Sample "Choice"': "it is no button",
    'edit Sample "Add" true': "a button is not edited but pressed, by click",
    'edit Sample "Tick" 1': "1 cannot be entered: expected true or false",
    'edit Sample "Choice" "one"':
        '"one" cannot be entered: expected an item by its number or its text: "One", "Two", "Three"',
    'edit Sample "Choice" 3': "3 cannot be entered: expected a whole number from 0 to 2",
    'edit Sample "Choice" "Three"': 'the item "Three" is disabled',
    'edit Sample "Count" 100': "100 cannot be entered: expected a whole number from 0 to 99",
    'edit Sample "Share" 0.125': "0.125 cannot be entered: expected a number from 0 to 1 with at most 2 decimals",
    'edit Sample "Opacity" 0.05': "0.05 cannot be entered: expected a number from 0.1 to 1",
    'edit Sample "Speed" 0.125': "0.125 cannot be entered: expected a number from 0 with at most 2 decimals",
    'edit Sample "Colour" [0, 0, 1.5]':
        "[0, 0, 1.5] cannot be entered: expected three numbers from 0 to 1, as [1, 0.5, 0]",
    'edit Sample "Number" "100"': '"100" cannot be entered: expected what the field\'s validator lets through',
    'edit Sample "Short" "1234"': '"1234" cannot be entered: expected at most 3 characters',
    'edit Sample "Fixed" "x"': "the field is only to be read",
    'edit Sample "Rows" 0': "a table or tree is not edited; select in it and press its buttons",
    'select Sample "Tick" 0': "it is neither a table nor a tree",
    'select Sample "Rows" 0': "there is no row 0: it has 0 rows",
    'select Sample "Paths" 0 1': "there is no column 1: it has 1 column",
}

# What was done before the line matters in these.
SEQUENCES = {
    'edit Sample "Left" true\nedit Sample "Left" false':
        "false cannot be entered: expected true, as another one must be chosen instead",
    'answer "Do"\nclick Sample "Ask"': 'the box "Sure?" has no button "Do"; it has "Do It", "Leave & Go"',
    'answer "OK"\nclick Sample "Browse"':
        'the directory chooser "Pick "it"" opened, but the answer queued for it is the button "OK"',
    'answer "OK"\nclick Sample "Open Colours"':
        'a colour dialog opened, but the answer queued for it is the button "OK"',
    "unload\napply": "the library is unloaded",
}


class RefusedLines(ToolTest):
    def check(self, cases):
        for script, why in cases.items():
            with self.subTest(script):
                result = self.tool("script", "-", plugin=self.sample, input=script + '\nput int "late" 1\nget "late"\n')
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

#!/usr/bin/env python3
"""What texts.py finds wrong with a translation."""

import unittest

from texts import problems

ENGLISH = {"1": r"\tMisc:\t\tStyle", "2": r"\n%d item(s)", "3": " X", "4": "&Help",
           "5": r"\tMisc:Name"}
GERMAN = {"1": r"\tSonstiges:\t\tStil", "2": r"\n%d Objekt(e)", "3": " X", "4": "&Hilfe",
          "5": r"\tSonstiges:Name"}


class Problems(unittest.TestCase):
    def found(self, **changes):
        texts = {**GERMAN, **{number[1:]: text for number, text in changes.items()}}
        return list(problems(ENGLISH, {n: t for n, t in texts.items() if t is not None}))

    def test_a_translation_that_keeps_the_form_has_none(self):
        self.assertEqual(self.found(), [])

    def test_missing_and_foreign_numbers_are_found(self):
        self.assertEqual(self.found(_3=None), ["3 is missing"])
        self.assertEqual(self.found(_9="x"), ["9 is not in English"])

    def test_a_change_of_form_is_found(self):
        for change, what in (({"_1": r"\tSonstiges:\tStil"}, "tabs"),
                             ({"_1": r"Sonstiges:\t\tStil"}, "tabs in front"),
                             ({"_1": r"\tSonstiges: \t\tStil: x"}, "colons"),
                             ({"_2": r"%d Objekt(e)"}, "line feeds"),
                             ({"_2": r"\n%s Objekt(e)"}, "formats"),
                             ({"_3": "X"}, "blanks at the ends"),
                             ({"_4": "Hilfe"}, "letter to press")):
            with self.subTest(what):
                self.assertTrue(any(f": {what}:" in problem for problem in self.found(**change)),
                                self.found(**change))

    def test_two_keys_that_become_one_are_found(self):
        self.assertTrue(any("stands for" in problem
                            for problem in self.found(_5=r"\tSonstiges:\t\tStil")))


if __name__ == "__main__":
    unittest.main()

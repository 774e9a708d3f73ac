#!/usr/bin/env python3
"""What the check of the catalogues finds, on made-up sources and catalogues."""

import contextlib
import io
import tempfile
import unittest
from pathlib import Path

import catalogues

HEAD = ('<?xml version="1.0" encoding="utf-8"?>\n<!DOCTYPE TS>\n'
        '<TS version="2.1" language="de" sourcelanguage="en">\n')


def message(source, translation, state=""):
    kind = f' type="{state}"' if state else ""
    return (f"<message><source>{source}</source>"
            f"<translation{kind}>{translation}</translation></message>\n")


def plural(source, *forms):
    texts = "".join(f"<numerusform>{form}</numerusform>" for form in forms)
    return (f'<message numerus="yes"><source>{source}</source>'
            f"<translation>{texts}</translation></message>\n")


class Catalogues(unittest.TestCase):
    def check(self, source, messages):
        """The exit status and what was printed, for one source file and one catalogue."""
        with tempfile.TemporaryDirectory() as folder:
            root = Path(folder)
            code = root / "programs" / "kwdraw" / "window.cpp"
            code.parent.mkdir(parents=True)
            code.write_text(source, encoding="utf-8")
            catalogue = root / "resources" / "de" / "kwdraw.ts"
            catalogue.parent.mkdir(parents=True)
            catalogue.write_text(f"{HEAD}<context><name>QDialog</name>\n{messages}</context></TS>\n",
                                 encoding="utf-8")
            with contextlib.redirect_stdout(io.StringIO()) as printed:
                status = catalogues.main(root)
            return status, printed.getvalue()

    def check_text(self, text, translation):
        return self.check(f'QString t() {{ return QDialog::tr("{text}"); }}\n',
                          message(text.replace("&", "&amp;"), translation.replace("&", "&amp;")))

    def test_accepts_what_is_whole(self):
        self.assertEqual(self.check_text("&Open %1...", "%1 ö&ffnen..."), (0, ""))

    def test_finds_a_text_that_is_missing(self):
        status, printed = self.check('QString t() { return QDialog::tr("New"); }\n', "")
        self.assertEqual(status, 1)
        self.assertIn('"New" is not translated', printed)

    def test_finds_a_text_that_is_unfinished(self):
        status, printed = self.check('QString t() { return QDialog::tr("New"); }\n',
                                     message("New", "Neu", "unfinished"))
        self.assertEqual(status, 1)
        self.assertIn('"New" is not translated', printed)

    def test_finds_a_text_that_is_stale(self):
        status, printed = self.check("int t();\n", message("Old", "Alt"))
        self.assertEqual(status, 1)
        self.assertIn('"Old" is no longer in the sources', printed)

    def test_finds_a_text_that_was_marked_as_stale(self):
        status, _ = self.check("int t();\n", message("Old", "Alt", "vanished"))
        self.assertEqual(status, 1)

    def test_finds_what_a_translation_changed(self):
        for text, translation in (("%1 of %2", "%1 von %3"), ("&Open", "Öffnen"),
                                  ("Open...", "Öffnen"), ("Value:", "Wert"), ("All.", "Alle"),
                                  ("Tables (*.csv)", "Tabellen (*.txt)"), ("A ", "B")):
            with self.subTest(text):
                self.assertEqual(self.check_text(text, translation)[0], 1)

    def test_takes_places_in_any_order(self):
        self.assertEqual(self.check_text("%1 of %2", "Von %2: %1")[0], 0)

    def test_wants_all_plural_forms_with_their_number(self):
        source = 'QString t(int n) { return QDialog::tr("%n objects", nullptr, n); }\n'
        self.assertEqual(self.check(source, plural("%n objects", "%n Objekt", "%n Objekte"))[0], 0)
        self.assertEqual(self.check(source, plural("%n objects", "Objekt", "%n Objekte"))[0], 1)
        self.assertEqual(self.check(source, plural("%n objects", "%n Objekt", ""))[0], 1)

    def test_finds_a_text_that_has_no_context(self):
        status, printed = self.check('QString t() { return tr("New"); }\n', "")
        self.assertEqual(status, 1)
        self.assertIn("without context", printed)

    def test_wants_a_catalogue(self):
        with tempfile.TemporaryDirectory() as folder:
            root = Path(folder)
            (root / "programs" / "kwdraw").mkdir(parents=True)
            (root / "resources" / "de").mkdir(parents=True)
            with contextlib.redirect_stdout(io.StringIO()):
                self.assertEqual(catalogues.main(root), 1)


if __name__ == "__main__":
    unittest.main()

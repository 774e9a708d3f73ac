#!/usr/bin/env python3
"""What the check of the sentences finds, on made-up sources."""

import contextlib
import io
import tempfile
import unittest
from pathlib import Path

import sentences


class Sentences(unittest.TestCase):
    def check(self, listed, source):
        with tempfile.TemporaryDirectory() as folder:
            root = Path(folder)
            for file, text in ((sentences.LIST, listed), (Path("host/exchange/a.cpp"), source)):
                (root / file).parent.mkdir(parents=True)
                (root / file).write_text(text, encoding="utf-8")
            with contextlib.redirect_stdout(io.StringIO()):
                return sentences.main(root)

    def test_accepts_what_is_said(self):
        self.assertEqual(self.check('QT_TRANSLATE_NOOP("Sentences", "The file is empty.")',
                                    'error = L"The file is empty.";'), 0)

    def test_joins_literals(self):
        self.assertEqual(self.check('QT_TRANSLATE_NOOP("Sentences", "The file "\n    "is empty.")',
                                    'error = L"The "\n    L"file is empty.";'), 0)

    def test_takes_any_words_where_a_number_stands(self):
        listed = r'QT_TRANSLATE_NOOP("Sentences", "no type \"%1\"; there are: %2")'
        self.assertEqual(self.check(listed, 's = "type" + name; s += "; there are: " + all;'), 0)

    def test_finds_what_nobody_says(self):
        self.assertEqual(self.check('QT_TRANSLATE_NOOP("Sentences", "The file is empty.")',
                                    'error = L"The file has no content.";'), 1)

    def test_wants_sentences(self):
        self.assertEqual(self.check("int a;", 's = "a";'), 1)


if __name__ == "__main__":
    unittest.main()

"""tarnwick-host in invented languages: nothing stays English, wide characters leave tables and help in order, JSON never changes.
Arguments: tarnwick-host, tarnwick-host's sources and those of the texts that it shows, each a folder."""

import json
import os
import re
import subprocess
import sys
import tempfile
import unicodedata
import unittest
import xml.etree.ElementTree as ElementTree
from pathlib import Path

PROGRAM, SOURCES = sys.argv[1], sys.argv[2:]
TOOLS = "/usr/lib/qt6/bin"
MARK = "測"
# What stays as it is: what is filled in later, options, and words in capitals.
KEPT = re.compile(r"(%L?[0-9n]|--[\w-]+|\b[A-Z]{2,}s?\b)")
COMMANDS = ("", "run", "check", "show", "history", "card", "facts", "volumes", "smart-report")


def columns(text):
    wide = {"W": 2, "F": 2}
    return sum(0 if unicodedata.combining(each) or unicodedata.category(each) == "Cf"
               else wide.get(unicodedata.east_asian_width(each), 1) for each in text)


def invented(text):
    """Wide, without blanks between words, and with a mark in front."""
    words = (part if index % 2 else re.sub(r"[A-Za-z']+", lambda word: "字" * (len(word[0]) // 2 + 1), part).replace(" ", "")
             for index, part in enumerate(KEPT.split(text)))
    return MARK + "".join(words)


def write_catalogue(folder, language):
    source = Path(folder, f"{language}.ts")
    subprocess.run([f"{TOOLS}/lupdate", "-silent", "-locations", "none", "-target-language", language, *SOURCES, "-ts", source],
                   check=True, capture_output=True)
    tree = ElementTree.parse(source)
    for message in tree.getroot().iter("message"):
        translation = message.find("translation")
        translation.attrib.pop("type", None)
        forms = list(translation.iter("numerusform")) or [translation]
        for form in forms:
            form.text = invented(message.findtext("source"))
    tree.write(source, encoding="utf-8", xml_declaration=True)
    subprocess.run([f"{TOOLS}/lrelease", "-silent", source, "-qm", source.with_suffix(".qm")], check=True)
    return source.with_suffix(".qm")


class Languages(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.folder = tempfile.TemporaryDirectory()
        cls.addClassCleanup(cls.folder.cleanup)
        cls.catalogues = {language: write_catalogue(cls.folder.name, language) for language in ("ja", "he")}

    def call(self, *arguments, language=None, locale="C.UTF-8"):
        environment = {**os.environ, "LC_ALL": locale, "XDG_DATA_HOME": self.folder.name}
        environment.pop("TARNWICK_CATALOGUE", None)
        if language:
            environment["TARNWICK_CATALOGUE"] = str(self.catalogues[language])
        return subprocess.run([PROGRAM, *arguments], env=environment, capture_output=True, text=True, check=False, timeout=600)

    def test_help_is_laid_out_in_wide_characters(self):
        for command in COMMANDS:
            told = self.call(*command.split(), "--help", language="ja").stdout
            for line in told.split("\n"):
                self.assertLessEqual(columns(line), 79, line)
            options = told.split("\n\n")[1].rstrip("\n").split("\n")
            self.assertTrue(any("字字" in line for line in options))
            for line in options:
                self.assertEqual(columns(re.match(r"(  (\S+ )*\s+)?", line)[0]), 28, line)
            for paragraph in told.split("\n\n"):
                self.assertIn(MARK, paragraph)
        self.assertIn("--leave-free", "".join(self.call("run", "--help", language="ja").stdout.split("\n")))

    def test_columns_of_tables_line_up(self):
        told = self.call("facts", "/", language="ja").stdout
        rows = [re.match(r"(  \S.*?  +)(\S)", line) for line in told.split("\n") if line.startswith("  ")]
        self.assertEqual({columns(row[1]) for row in rows}, {max(columns(row[1]) for row in rows)})
        self.assertTrue(all(MARK in row[1] for row in rows), told)
        with tempfile.TemporaryDirectory() as folder:
            told = self.call("run", "--size", "1M", "--random-ops", "9", "--file-ops", "9", folder, language="ja").stdout
        blocks = [block.split("\n") for block in told.split("\n\n") if block.startswith(" ")]
        self.assertEqual(len(blocks), 3, told)
        for title, *_ in blocks:
            self.assertGreaterEqual(title.count(MARK), 2, told)
        # Figures end where the titles of their columns end: in a row without a mark behind it, with the longest title.
        self.assertEqual(len({columns(line) for line in blocks[2][:2]}), 1, told)

    def test_errors_are_in_the_language_and_keep_paths_in_order(self):
        cases = {("bench",): "'bench'", (): "tarnwick-host --help", ("facts", "/no/such"): "'/no/such'",
                 ("run", "--size", "5GB", "/"): "'5GB'", ("run", "--siz"): "'--siz'", ("history", "forget"): "'forget'",
                 ("show", "/no/such"): "'/no/such'", ("run", "--output", "/", "/"): "'/'"}
        for arguments, name in cases.items():
            english, ja, he = (self.call(*arguments, language=language) for language in (None, "ja", "he"))
            self.assertEqual({english.returncode}, {ja.returncode, he.returncode})
            self.assertTrue(MARK in ja.stderr and name in ja.stderr and "\u2068" not in ja.stderr, ja.stderr)
            self.assertIn(f"\u2068{name}\u2069", he.stderr)
            self.assertIn(name, english.stderr)
        self.assertIn("\u2068/\u2069", self.call("volumes", language="he").stdout)

    def test_json_and_other_encodings_stay_english(self):
        for arguments in (("facts", "--json", "/"), ("volumes", "--json")):
            self.assertNotIn(MARK, self.call(*arguments, language="he").stdout)
        with tempfile.TemporaryDirectory() as folder:
            for command in ("run", "check"):
                told = self.call(command, "--json", "--size", "1M", folder, language="he")
                self.assertEqual(told.returncode, 0, told.stderr)
                self.assertTrue(json.loads(told.stdout))
                self.assertNotIn(MARK, told.stdout)
                self.assertNotIn("\u2068", told.stdout)
        for command in COMMANDS:
            plain = self.call(*command.split(), "--help", language="ja", locale="C")
            self.assertEqual((plain.stdout, plain.stderr), (self.call(*command.split(), "--help").stdout, ""))

    def test_locale_that_is_not_installed_has_its_language_and_encoding(self):
        shown = {}
        for locale in ("xx_YY.UTF-8", "de_LU.UTF-8", "de_LU.utf8@nonsense", "de_LU.ISO-8859-1", "de_LU"):
            environment = {"PATH": os.environ["PATH"], "HOME": self.folder.name, "LANG": locale}
            told = subprocess.run([PROGRAM, "facts", "/"], env=environment, capture_output=True, text=True, check=True, timeout=600)
            self.assertEqual(told.stderr, "")
            shown[locale] = "Blockgröße" in told.stdout
        self.assertEqual(list(shown.values()), [False, True, True, False, False])


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])

#!/usr/bin/env python3
"""Checks that the words in bold of the documents for users are texts that the board shows, and that the keys behind a command are its own."""

import os
import re
import sys
import unittest

ROOT = os.path.abspath(os.path.join(os.path.dirname(os.path.abspath(__file__)), "..", ".."))
sys.dont_write_bytecode = True
sys.path.insert(0, os.path.join(ROOT, "scripts"))
from check_rules import text_files  # noqa: E402

# Documents, and the section of each that names commands; none for the whole document.
DOCUMENTS = {"docs/board.md": "Usual functions, and where they are", "docs/teachers-guide.md": ""}

BOLD = re.compile(r"\*\*([^*]+)\*\*(?: \(([^)]+)\))?")
BOARD_TEXT = re.compile(r'\{"(\w+)",\s*QT_TRANSLATE_NOOP\("board",\s*((?:"[^"]*"\s*)+)\)')
GROUP_TITLE = re.compile(r'"IDS_SHAPEGROUP_\w+",\s*"([^"]*)"')
SHAPE_FILE_TEXT = re.compile(r'<shape:about name="([^"]*)"| title="([^"]*)"')
CODED_TEXT = re.compile(r'\w+(?:Text)?\("([A-Z][^"]*)", "[^"]*"\)|SHAPEKIT_PLUGIN\(\w+, "([^"]*)"')
COMMAND = re.compile(r'\{Command::\w+,\s*Group::\w+,\s*"\w+",\s*"(\w+)",\s*"([^"]*)"')


def read(path):
    with open(os.path.join(ROOT, path), encoding="utf-8") as file:
        return file.read()


def plain(text):
    """A text as documents name it: without the mark of its key and the dots that announce a dialog."""
    return text.replace("&", "").rstrip("…")


def board_texts():
    """English texts of the board by their keys."""
    texts = {}
    for path in text_files(ROOT):
        if path.startswith("board/core/") and path.endswith(".cpp"):
            for key, parts in BOARD_TEXT.findall(read(path)):
                texts[key] = plain("".join(re.findall(r'"([^"]*)"', parts)))
    return texts


def shape_texts():
    """Names, groups and properties of shapes."""
    texts = set()
    for path in text_files(ROOT):
        if path.startswith("shapes/declared/files/"):
            texts |= set(sum(SHAPE_FILE_TEXT.findall(read(path)), ()))
        elif path.startswith("shapes/") and path.endswith(".cpp"):
            texts |= set(sum(CODED_TEXT.findall(read(path)), ())) | set(GROUP_TITLE.findall(read(path)))
    return texts - {""}


def command_keys(texts):
    """The keys of commands by their English names; several commands may have one name."""
    keys = {}
    for key, sequences in COMMAND.findall(read("board/core/commandlist.cpp")):
        keys.setdefault(texts[key], set()).update(sequences.split())
    return keys


def section_of(text, title):
    if not title:
        return text
    return re.search(rf"^## {re.escape(title)}\n(.*?)(?=^## |\Z)", text, re.MULTILINE | re.DOTALL).group(1)


def named_in(text):
    """Pairs of a name in bold and what stands in parentheses behind it."""
    return BOLD.findall(text)


class TestNamedCommands(unittest.TestCase):
    def setUp(self):
        texts = board_texts()
        self.texts = set(texts.values()) | shape_texts()
        self.keys = command_keys(texts)

    def unknown(self, name):
        return plain(name) not in self.texts

    def wrong_keys(self, name, parentheses):
        """Whether the parentheses behind a command name a key that is not its own."""
        keys = self.keys.get(plain(name))
        return bool(keys and parentheses) and not keys & set(parentheses.split(", "))

    def test_texts_are_found(self):
        self.assertGreater(len(self.texts), 300)
        self.assertGreater(len(self.keys), 80)

    def test_names_in_bold_are_texts_of_the_board(self):
        for path, title in DOCUMENTS.items():
            named = named_in(section_of(read(path), title))
            self.assertGreater(len(named), 30, path)
            self.assertEqual([name for name, _ in named if self.unknown(name)], [], path)

    def test_keys_behind_commands_are_theirs(self):
        for path, title in DOCUMENTS.items():
            named = named_in(section_of(read(path), title))
            self.assertEqual([pair for pair in named if self.wrong_keys(*pair)], [], path)

    def test_unknown_names_and_keys_are_told(self):
        self.assertTrue(self.unknown("Explode"))
        self.assertFalse(self.unknown("Export…"))
        self.assertFalse(self.unknown("Venn diagram"))
        self.assertTrue(self.wrong_keys("Group", "Ctrl+H"))
        self.assertFalse(self.wrong_keys("Redo", "Ctrl+Y"))
        self.assertEqual(named_in("x **Pen** (P), **Grid** y"), [("Pen", "P"), ("Grid", "")])


if __name__ == "__main__":
    sys.exit(unittest.main())

#!/usr/bin/env python3
"""Checks that snippets of the documents for authors and integrators are excerpts of files that other tests build: the line before a block of code names the
file, "..." in the block stands for lines that are left out.
"""

import os
import re
import sys
import textwrap
import unittest

ROOT = os.path.abspath(os.path.join(os.path.dirname(os.path.abspath(__file__)), "..", ".."))
BLOCK = re.compile(r"^(?:<!-- (\S+) -->\n)?```(\w+)\n(.*?)^```$", re.MULTILINE | re.DOTALL)
LANGUAGES = {"cpp", "cmake", "xml"}
# The declared shape of the first section, which a test of the declared shapes reads from the document.
READ_ELSEWHERE = "<shape:about"


def snippets_of(document):
    """Triples of named file (or None), language and text."""
    return [match.groups() for match in BLOCK.finditer(document)]


def missing_parts(snippet, source):
    """The parts of a snippet that the source does not contain, whatever their indentation."""
    flat = [line.strip() for line in source.splitlines()]
    missing = []
    for part in re.split(r"^\.\.\.$", snippet, flags=re.MULTILINE):
        lines = [line.strip() for line in textwrap.dedent(part).strip().splitlines()]
        starts = range(len(flat) - len(lines) + 1)
        if not any(flat[start : start + len(lines)] == lines for start in starts):
            missing.append(part)
    return missing


class TestSnippets(unittest.TestCase):
    def setUp(self):
        self.author = self.snippets_in("shape-author.md")
        self.all = self.author + self.snippets_in("host-integration.md")

    def snippets_in(self, name):
        with open(os.path.join(ROOT, "docs", name), encoding="utf-8") as file:
            return snippets_of(file.read())

    def test_every_snippet_names_its_file(self):
        self.assertGreater(len(self.author), 8)
        for name, language, text in self.author:
            if language in LANGUAGES and READ_ELSEWHERE not in text:
                self.assertIsNotNone(name, text)

    def test_every_snippet_stands_in_its_file(self):
        for name, _, text in self.all:
            if name is None:
                continue
            with open(os.path.join(ROOT, name), encoding="utf-8") as file:
                self.assertEqual(missing_parts(text, file.read()), [], name)

    def test_changed_line_is_missed(self):
        source = "int a;\n    int b;\nint c;\n"
        self.assertEqual(missing_parts("int b;\nint c;\n", source), [])
        self.assertEqual(missing_parts("int a;\n...\nint c;\n", source), [])
        self.assertEqual(len(missing_parts("int a;\nint c;\n", source)), 1)
        self.assertEqual(len(missing_parts("int d;\n", source)), 1)


if __name__ == "__main__":
    sys.exit(unittest.main())

#!/usr/bin/env python3
"""Checks that each block of code in the documents is used by a test: by the language of its fence, or as an excerpt of a built file, which the line
before the block names; "..." in the block stands for lines that are left out there.
"""

import json
import re
import sys
import textwrap
import unittest

from blocks import blocks_of, commands_in_sentences, commands_of, documents, read, typed_commands, unfenced_blocks_of

# Blocks of these languages are excerpts of files.
EXCERPTS = {"cpp", "cmake", "xml"}
# tests/package/documents.py runs every command, and fails for one that it doesn't know.
RUN = {"sh"}
# Blocks that tests read from the documents, by a part of each, and the test that does.
READ_ELSEWHERE = {
    '<shape:about name="Price tag"': "tests/shapes/declared/test_reference.cpp",
    '"title": "Fractions"': "tests/framework/lessons/test_guide.cpp",
    '"format": "gliololok board"': "tests/framework/files/test_format.cpp",
    "set(GLIOLOLOK_HOST_INCLUDE_DIRS": "tests/package/documents.py",
}
# Blocks that nothing can run.
SCHEMES = {"{expression}   {for k in 0..5}text{end}": "forms that expressions may have, not one text"}


def reader_of(text):
    """The test that reads a block from its document; empty for other blocks."""
    return next((test for part, test in READ_ELSEWHERE.items() if part in text), "")


def is_used(name, language, text):
    if name:
        return language in EXCERPTS
    return language in RUN or bool(reader_of(text)) or any(part in text for part in SCHEMES)


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
        self.blocks = [(path, *block) for path in documents() for block in blocks_of(read(path))]

    def test_every_block_is_used(self):
        self.assertGreater(len(self.blocks), 25)
        self.assertEqual([block for block in self.blocks if not is_used(*block[1:])], [])

    def test_every_block_has_a_fence(self):
        self.assertEqual([(path, block) for path in documents() for block in unfenced_blocks_of(read(path))], [])

    def test_every_excerpt_stands_in_its_file(self):
        for path, name, _, text in self.blocks:
            if name:
                self.assertEqual(missing_parts(text, read(name)), [], f"{path}: {name}")

    def test_every_reader_names_its_document(self):
        for path, _, _, text in self.blocks:
            if reader_of(text):
                self.assertIn(path.split("/")[-1], read(reader_of(text)))

    def test_json_is_json(self):
        for _, _, language, text in self.blocks:
            if language == "json":
                self.assertIsInstance(json.loads(text), dict)

    def test_changed_line_is_missed(self):
        source = "int a;\n    int b;\nint c;\n"
        self.assertEqual(missing_parts("int b;\nint c;\n", source), [])
        self.assertEqual(missing_parts("int a;\n...\nint c;\n", source), [])
        self.assertEqual(len(missing_parts("int a;\nint c;\n", source)), 1)
        self.assertEqual(len(missing_parts("int d;\n", source)), 1)

    def test_unused_block_is_told(self):
        self.assertFalse(is_used("", "cpp", "int a;"))
        self.assertFalse(is_used("", "", "ls"))
        self.assertFalse(is_used("main.cpp", "sh", "ls"))
        self.assertTrue(is_used("main.cpp", "cpp", "int a;"))

    def test_blocks_and_commands_are_found(self):
        text = "a\n\n<!-- b.cpp -->\n```cpp\nint c;\n```\n1. d\n\n   ```sh\n   ls \\\n     e  # f\n   ```\n"
        self.assertEqual(blocks_of(text), [("b.cpp", "cpp", "int c;\n"), ("", "sh", "ls \\\n  e  # f\n")])
        self.assertEqual(commands_of("ls \\\n  e  # f\n\ncd g\n"), ["ls e", "cd g"])
        self.assertEqual(unfenced_blocks_of(text + "\n    int h;\n"), ["    int h;\n"])
        self.assertEqual(commands_in_sentences("Use `svgdraw a b`, `svgdraw` and `svgdraw c`."), ["svgdraw a b"])
        self.assertEqual(typed_commands("`svgdraw a b`\n" + text + "`svgdraw --help`"), ["svgdraw a b", "ls e", "svgdraw --help"])


if __name__ == "__main__":
    sys.exit(unittest.main())

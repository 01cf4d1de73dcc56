#!/usr/bin/env python3
"""The names of states in which sources are linted: a change that tools could see gives another one."""

import json
import os
import sys
import tempfile
import unittest

sys.dont_write_bytecode = True
sys.path.insert(0, os.path.join(os.path.dirname(os.path.abspath(__file__)), "..", "..", "scripts"))
import lint_key  # noqa: E402


class Checkout:
    """A source `a.cpp` that includes `a.h`, and how it is compiled."""

    def __init__(self):
        self.directory = tempfile.TemporaryDirectory()
        self.root = self.directory.name
        self.write(".clang-tidy", "Checks: bugprone-*\n")
        self.write("a.h", "int one();\n")
        self.write("a.cpp", '#include "a.h"\nint one() { return VALUE; } // NOLINT\n')
        self.compile("c++ -DVALUE=1 -MD -MT a.o -MF a.o.d -o a.o -c {root}/a.cpp")

    def write(self, path, text):
        with open(os.path.join(self.root, path), "w", encoding="utf-8") as file:
            file.write(text)

    def compile(self, command):
        entry = {
            "directory": self.root,
            "command": command.format(root=self.root),
            "file": os.path.join(self.root, "a.cpp"),
        }
        self.write("compile_commands.json", json.dumps([entry]))

    def key(self, tools="tidy 1", source="a.cpp"):
        return lint_key.key_of(self.root, self.root, tools, source)


class LintKey(unittest.TestCase):
    def setUp(self):
        self.checkout = Checkout()
        self.addCleanup(self.checkout.directory.cleanup)
        self.before = self.checkout.key()

    def test_same_state_has_the_same_name_in_every_checkout(self):
        self.assertRegex(self.before, "^[0-9a-f]{64}$")
        self.assertEqual(self.checkout.key(), self.before)
        other = Checkout()
        self.addCleanup(other.directory.cleanup)
        self.assertEqual(other.key(), self.before)

    def test_nothing_is_compiled(self):
        self.assertEqual(sorted(os.listdir(self.checkout.root)), [".clang-tidy", "a.cpp", "a.h", "compile_commands.json"])

    def test_changed_source_has_another_name(self):
        self.checkout.write("a.cpp", '#include "a.h"\nint one() { return 1 + VALUE; } // NOLINT\n')
        self.assertNotEqual(self.checkout.key(), self.before)

    def test_changed_header_has_another_name(self):
        self.checkout.write("a.h", "int one();\nint two();\n")
        self.assertNotEqual(self.checkout.key(), self.before)

    def test_changed_comment_has_another_name(self):
        self.checkout.write("a.cpp", '#include "a.h"\nint one() { return VALUE; }\n')
        self.assertNotEqual(self.checkout.key(), self.before)

    def test_changed_checks_have_another_name(self):
        self.checkout.write(".clang-tidy", "Checks: bugprone-*,performance-*\n")
        self.assertNotEqual(self.checkout.key(), self.before)

    def test_changed_tools_have_another_name(self):
        self.assertNotEqual(self.checkout.key("tidy 2"), self.before)

    def test_changed_options_have_another_name(self):
        self.checkout.compile("c++ -DVALUE=2 -c {root}/a.cpp")
        self.assertNotEqual(self.checkout.key(), self.before)

    def test_source_that_is_not_compiled_has_no_name(self):
        self.assertIsNone(self.checkout.key(source="b.cpp"))

    def test_source_that_cannot_be_preprocessed_has_no_name(self):
        self.checkout.write("a.cpp", '#include "missing.h"\n')
        self.assertIsNone(self.checkout.key())


if __name__ == "__main__":
    unittest.main()

#!/usr/bin/env python3
"""Checks that doxygen has no word to say about the installed headers: every public class, function and value has a docstring.

Usage: test_docstrings.py DOXYFILE
"""

import os
import subprocess
import sys
import tempfile
import unittest

DOXYFILE = os.path.abspath(sys.argv.pop()) if len(sys.argv) > 1 else None

DOCUMENTED = "/// A box.\nclass Box\n{\npublic:\n    /// Scene units.\n    double width() const;\n};\n"
UNDOCUMENTED = {
    "function": DOCUMENTED.replace("    /// Scene units.\n", ""),
    "class": DOCUMENTED.replace("/// A box.\n", ""),
    "member": "/// A box.\nstruct Box\n{\n    double width = 0;\n};\n",
    "enumeration": "/// A box.\nstruct Box\n{\n    enum Side { Left, Right };\n};\n",
}


def doxygen(settings):
    """Exit code and messages of a run with some settings changed; its pages are thrown away."""
    with open(DOXYFILE, encoding="utf-8") as file:
        text = file.read() + "\n" + settings
    with tempfile.TemporaryDirectory() as folder:
        run = subprocess.run(["doxygen", "-"], input=text + f"\nOUTPUT_DIRECTORY = {folder}\n", text=True,
                             capture_output=True, cwd=folder)
    return run.returncode, run.stderr


class TestDocstrings(unittest.TestCase):
    def of_header(self, text):
        with tempfile.TemporaryDirectory() as folder:
            header = os.path.join(folder, "box.h")
            with open(header, "w", encoding="utf-8") as file:
                file.write(text)
            return doxygen(f"INPUT = {header}\nUSE_MDFILE_AS_MAINPAGE =\n")

    def test_all_installed_headers_are_documented(self):
        self.assertEqual(doxygen(""), (0, ""))

    def test_documented_header_is_accepted(self):
        self.assertEqual(self.of_header(DOCUMENTED), (0, ""))

    def test_missing_docstring_is_told(self):
        for kind, text in UNDOCUMENTED.items():
            code, messages = self.of_header(text)
            self.assertNotEqual(code, 0, kind)
            self.assertIn("is not documented", messages, kind)


if __name__ == "__main__":
    sys.exit(unittest.main())

#!/usr/bin/env python3
"""Checks the Markdown files: relative links and anchors resolve, docs/README.md lists every document, every picture is shown somewhere, and
installed documents link to installed files alone.
"""

import fnmatch
import os
import re
import sys
import unittest

ROOT = os.path.abspath(os.path.join(os.path.dirname(os.path.abspath(__file__)), "..", ".."))
sys.dont_write_bytecode = True
sys.path.insert(0, os.path.join(ROOT, "scripts"))
from check_rules import text_files  # noqa: E402

INDEX = "docs/README.md"
PICTURES = "docs/images"
LARGEST_PICTURE = 150 * 1024  # of the teachers' guide, bytes
# The folders that are installed, and the files of them that are not.
INSTALLED = ("docs/", "examples/")
KEPT_BACK = {INDEX, "docs/abi.txt", "docs/images/refresh"}
PACKAGES = ("gliololok-board", "libgliololok-dev", "libgliololok1")

FENCE = re.compile(r"^( *)(```+).*?^\1\2`*$", re.MULTILINE | re.DOTALL)
CODE = re.compile(r"(`+)(?!`).+?(?<!`)\1(?!`)", re.DOTALL)
LINK = re.compile(r"\]\(([^()\s]+(?:\([^()\s]*\))?[^()\s]*)\)")
DEFINITION = re.compile(r"^\[[^\]]+\]: *(\S+)", re.MULTILINE)
HEADING = re.compile(r"^#+ +(.*?) *#*$", re.MULTILINE)


def prose(text):
    """The text without blocks and pieces of code."""
    return CODE.sub("", FENCE.sub("", text))


def links_of(text):
    """Targets of all links and pictures that are no addresses of the net."""
    found = LINK.findall(prose(text)) + DEFINITION.findall(prose(text))
    return [target for target in found if not re.match(r"[a-z]+:", target)]


def anchors_of(text):
    """The anchors that headings get where Markdown is shown: small letters, hyphens for blanks, no punctuation."""
    anchors = []
    for heading in HEADING.findall(FENCE.sub("", text)):
        words = re.sub(r"\[([^\]]*)\]\([^)]*\)", r"\1", heading)
        anchor = re.sub(r"[^\w\- ]", "", words.lower()).replace(" ", "-")
        count = sum(1 for known in anchors if re.fullmatch(re.escape(anchor) + r"(-\d+)?", known))
        anchors.append(f"{anchor}-{count}" if count else anchor)
    return anchors


def read(path):
    with open(os.path.join(ROOT, path), encoding="utf-8") as file:
        return file.read()


def target_of(path, link):
    """The file, relative to the root, and the anchor that a link of a document means."""
    name, _, anchor = link.partition("#")
    return (os.path.normpath(os.path.join(os.path.dirname(path), name)) if name else path), anchor


def problem_of(path, link):
    """Empty for a link that leads somewhere."""
    target, anchor = target_of(path, link)
    if not os.path.exists(os.path.join(ROOT, target)):
        return f"{path}: no file for {link}"
    if anchor and anchor not in anchors_of(read(target)):
        return f"{path}: no heading for {link}"
    return ""


class TestDocuments(unittest.TestCase):
    def setUp(self):
        self.documents = [path for path in text_files(ROOT) if path.endswith(".md")]
        self.links = [(path, link) for path in self.documents for link in links_of(read(path))]

    def targets_of(self, path):
        return {target_of(path, link)[0] for document, link in self.links if document == path}

    def test_links_and_anchors_resolve(self):
        self.assertGreater(len(self.links), 40)
        self.assertEqual([p for p in (problem_of(path, link) for path, link in self.links) if p], [])

    def test_index_lists_every_document(self):
        files = {os.path.join("docs", name) for name in os.listdir(os.path.join(ROOT, "docs"))}
        documents = files | set(self.documents) - {INDEX}
        self.assertEqual(documents - {PICTURES, INDEX} - self.targets_of(INDEX), set())

    def test_front_page_leads_to_the_index(self):
        self.assertIn(INDEX, self.targets_of("README.md"))

    def test_every_picture_is_shown(self):
        pictures = {os.path.join(PICTURES, name) for name in os.listdir(os.path.join(ROOT, PICTURES))}
        shown = {target_of(path, link)[0] for path, link in self.links}
        self.assertEqual(pictures - shown, set())

    def test_installed_documents_link_to_installed_files(self):
        left = [(path, link) for path, link in self.links if path.startswith(INSTALLED) and path != INDEX
                and not target_of(path, link)[0].startswith(INSTALLED)]
        self.assertEqual(left, [])

    def test_every_installed_file_is_in_one_package(self):
        patterns = [line[len("usr/share/doc/gliololok/") :] for package in PACKAGES
                    for line in read(f"debian/{package}.install").splitlines() if "/doc/" in line]
        for folder in INSTALLED:
            for directory, _, files in os.walk(os.path.join(ROOT, folder)):
                for path in (os.path.relpath(os.path.join(directory, name), ROOT) for name in files):
                    found = [p for p in patterns if fnmatch.fnmatch(path, p) or path.startswith(p + "/")]
                    self.assertEqual(len(found), 0 if path in KEPT_BACK and not found else 1, path)

    def test_pictures_of_the_guide_are_small(self):
        pictures = [name for name in os.listdir(os.path.join(ROOT, PICTURES)) if name.startswith("guide-")]
        self.assertGreater(len(pictures), 5)
        for name in pictures:
            self.assertLess(os.path.getsize(os.path.join(ROOT, PICTURES, name)), LARGEST_PICTURE, name)

    def test_links_in_code_are_none(self):
        self.assertEqual(links_of("`[a](b.md)`\n\n```\n[c](d.md)\n```\n"), [])
        self.assertEqual(links_of("[a](b.md#c) ![d](e.png) [f](https://g.example)\n"), ["b.md#c", "e.png"])

    def test_headings_give_anchors(self):
        self.assertEqual(anchors_of("# A `b`, c-d\n\n## Two\n\n## Two\n```\n# no\n```\n"), ["a-b-c-d", "two", "two-1"])

    def test_broken_links_are_told(self):
        self.assertEqual(problem_of("README.md", "docs/board.md#keys"), "")
        self.assertIn("no heading", problem_of("README.md", "docs/board.md#kees"))
        self.assertIn("no file", problem_of("README.md", "docs/bord.md"))


if __name__ == "__main__":
    sys.exit(unittest.main())

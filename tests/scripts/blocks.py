"""Blocks of code in the documents of the repository, and commands within sentences."""

import os
import re
import sys
import textwrap

ROOT = os.path.abspath(os.path.join(os.path.dirname(os.path.abspath(__file__)), "..", ".."))
sys.dont_write_bytecode = True
sys.path.insert(0, os.path.join(ROOT, "scripts"))
from check_rules import text_files  # noqa: E402

# A block, and the comment before it that names the file that the block stands in.
BLOCK = re.compile(r"^( *)(?:<!-- (\S+) -->\n\1)?```(\w*)\n(.*?)^\1```$", re.MULTILINE | re.DOTALL)
# Markdown has blocks that are only indented, too; lists continue with less than that.
INDENTED = re.compile(r"(?<=\n\n)(?:    .*\n)+")
PROGRAMS = ("gliololok-board", "gliololok-shape", "svgdraw")
COMMAND = re.compile(r"`((?:%s) [^`]+)`" % "|".join(PROGRAMS))


def read(path):
    with open(os.path.join(ROOT, path), encoding="utf-8") as file:
        return file.read()


def documents():
    """Paths, relative to the root, of the documents for people; those of test data are none."""
    return [path for path in text_files(ROOT) if path.endswith(".md") and not path.startswith("tests/")]


def blocks_of(text):
    """Triples of the named file (empty without one), the language and the text of each block."""
    return [(name or "", language, textwrap.dedent(code)) for _, name, language, code in BLOCK.findall(text)]


def unfenced_blocks_of(text):
    return INDENTED.findall(BLOCK.sub("", text))


def commands_of(block):
    """The commands of a block, without comments; a backslash at the end of a line continues it."""
    lines = [line.split("  #")[0].strip() for line in block.replace("\\\n", " ").splitlines()]
    return [re.sub(r" +", " ", line) for line in lines if line]


def commands_in_sentences(text):
    """Commands of our programs with options or with more than one argument; others are names of commands."""
    commands = [command.replace("\n", " ").split() for command in COMMAND.findall(BLOCK.sub("", text))]
    return [" ".join(words) for words in commands if len(words) > 2 or words[1].startswith("-") or "." in words[1]]


def typed_commands(text):
    """All commands of a document in their order: those of blocks for a shell, and those in sentences."""
    commands = []
    last = 0
    for match in BLOCK.finditer(text):
        commands += commands_in_sentences(text[last : match.start()])
        commands += commands_of(textwrap.dedent(match.group(4))) if match.group(3) == "sh" else []
        last = match.end()
    return commands + commands_in_sentences(text[last:])

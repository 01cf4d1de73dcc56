#!/usr/bin/env python3
"""Checks exported pages: every PNG in a folder decodes, is as large as a page, and shows a drawing rather than one colour.

Usage: look_at_pictures.py FOLDER

Prints a line for each picture. Exits with 1 when a picture is wrong or there are fewer than two.
"""

import collections
import os
import struct
import sys
import zlib

SIGNATURE = b"\x89PNG\r\n\x1a\n"
CHANNELS = {0: 1, 2: 3, 4: 2, 6: 4}  # by PNG colour type, ISO 15948, 11.2.2
SMALLEST_SIDE = 300  # pixels
FEWEST_PICTURES = 2
FEWEST_COLOURS = 16
SMALLEST_DRAWING = 0.005  # share of the pixels that differ from the most common colour


class BadPicture(Exception):
    pass


def chunks(data):
    """The chunks of a PNG as (type, content), with their checksums verified."""
    if not data.startswith(SIGNATURE):
        raise BadPicture("no PNG signature")
    at = len(SIGNATURE)
    while at + 12 <= len(data):
        length, kind = struct.unpack(">I4s", data[at : at + 8])
        content = data[at + 8 : at + 8 + length]
        checksum = data[at + 8 + length : at + 12 + length]
        if len(checksum) != 4 or struct.unpack(">I", checksum)[0] != zlib.crc32(kind + content):
            raise BadPicture("damaged chunk")
        yield kind, content
        at += 12 + length


def paeth(left, above, corner):
    """The predictor of filter type 4 (ISO 15948, 9.4)."""
    estimate = left + above - corner
    distances = abs(estimate - left), abs(estimate - above), abs(estimate - corner)
    if distances[0] <= distances[1] and distances[0] <= distances[2]:
        return left
    return above if distances[1] <= distances[2] else corner


def unfilter(kind, line, above, step):
    """A scan line with its filter undone (ISO 15948, 9.2)."""
    line = bytearray(line)
    for i, value in enumerate(line):
        left = line[i - step] if i >= step else 0
        corner = above[i - step] if i >= step else 0
        if kind == 1:
            value += left
        elif kind == 2:
            value += above[i]
        elif kind == 3:
            value += (left + above[i]) // 2
        elif kind == 4:
            value += paeth(left, above[i], corner)
        line[i] = value & 0xFF
    return line


def pixels(path):
    """Width, height and a count of the colours of a PNG with 8 bits a channel."""
    with open(path, "rb") as file:
        parts = list(chunks(file.read()))
    if not parts or parts[0][0] != b"IHDR" or parts[-1][0] != b"IEND":
        raise BadPicture("cut off")
    width, height, depth, colour, _, _, interlaced = struct.unpack(">IIBBBBB", parts[0][1])
    if depth != 8 or colour not in CHANNELS or interlaced:
        raise BadPicture("unexpected kind of PNG")
    step = CHANNELS[colour]
    raw = zlib.decompress(b"".join(content for kind, content in parts if kind == b"IDAT"))
    stride = width * step
    if len(raw) != height * (stride + 1):
        raise BadPicture("wrong amount of pixels")
    counts = collections.Counter()
    above = bytearray(stride)
    for y in range(height):
        start = y * (stride + 1)
        line = raw[start + 1 : start + 1 + stride]
        above = unfilter(raw[start], line, above, step) if raw[start] else bytearray(line)
        counts.update(bytes(above[x : x + step]) for x in range(0, stride, step))
    return width, height, counts


def look_at(path):
    """A description of a good picture; raises BadPicture for any other."""
    width, height, counts = pixels(path)
    if width < SMALLEST_SIDE or height < SMALLEST_SIDE:
        raise BadPicture(f"only {width} x {height} pixels")
    drawn = 1 - counts.most_common(1)[0][1] / (width * height)
    if len(counts) < FEWEST_COLOURS or drawn < SMALLEST_DRAWING:
        raise BadPicture(f"shows nothing: {len(counts)} colours, {drawn:.1%} drawn")
    return f"{width} x {height}, {len(counts)} colours, {drawn:.1%} drawn"


def main(folder):
    names = sorted(name for name in os.listdir(folder) if name.endswith(".png"))
    failed = len(names) < FEWEST_PICTURES
    if failed:
        print(f"{folder}: {len(names)} pictures, expected at least {FEWEST_PICTURES}")
    for name in names:
        try:
            print(f"{name}: {look_at(os.path.join(folder, name))}")
        except (BadPicture, zlib.error, struct.error) as problem:
            print(f"{name}: {problem}")
            failed = True
    return 1 if failed else 0


if __name__ == "__main__":
    if len(sys.argv) != 2:
        sys.exit(__doc__)
    sys.exit(main(sys.argv[1]))

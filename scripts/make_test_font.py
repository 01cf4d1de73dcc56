#!/usr/bin/env python3
"""Writes the font of the golden cases css-font-face-*: boxes for "A" and "B", 1000 units per em, ascent 800, descent 200.

Usage: make_test_font.py [woff] > font
"A" is the box from (100, 0) to (500, 700) in an advance of 600, "B" that from (0, -200) to (1000, 800) in one of 1000.
"""
import struct
import sys
import zlib

BOXES = [None, (100, 0, 500, 700), (0, -200, 1000, 800)]
ADVANCES = [500, 600, 1000]


def glyph(box):
    if box is None:
        return b""
    left, bottom, right, top = box
    xs, ys = [left, 0, right - left, 0], [bottom, top - bottom, 0, bottom - top]
    header = struct.pack(">hhhhh", 1, left, bottom, right, top)
    return header + struct.pack(">HH4B4h4h", 3, 0, 1, 1, 1, 1, *xs, *ys)


def tables():
    glyphs = [glyph(box) for box in BOXES]
    offsets = [0]
    for data in glyphs:
        offsets.append(offsets[-1] + len(data))
    sides = b"".join(struct.pack(">Hh", ADVANCES[i], BOXES[i][0] if BOXES[i] else 0) for i in range(3))
    segments = struct.pack(">HHHHHHHHHHHHHHHH", 4, 32, 0, 4, 4, 1, 0, 0x42, 0xFFFF, 0, 0x41, 0xFFFF, 0xFFC0, 1, 0, 0)
    head = struct.pack(">IIIIHHQQhhhhHHhhh", 0x10000, 0x10000, 0, 0x5F0F3CF5, 0, 1000, 0, 0, 0, -200, 1000, 800, 0, 8, 2, 1, 0)
    hhea = struct.pack(">IhhhHhhhhhhhhhhhH", 0x10000, 800, -200, 0, 1000, 0, 0, 1000, 1, 0, 0, 0, 0, 0, 0, 0, 3)
    maxp = struct.pack(">IHHHHHHHHHHHHHH", 0x10000, 3, 4, 1, 0, 0, 1, 0, 0, 0, 0, 0, 0, 0, 0)
    name = struct.pack(">HHH", 0, 0, 6)
    post = struct.pack(">IIhhIIIII", 0x30000, 0, -100, 50, 0, 0, 0, 0, 0)
    return {b"cmap": struct.pack(">HHHHI", 0, 1, 3, 1, 12) + segments, b"glyf": b"".join(glyphs), b"head": head,
            b"hhea": hhea, b"hmtx": sides, b"loca": struct.pack(">4I", *offsets), b"maxp": maxp, b"name": name,
            b"post": post}


def padded(data):
    return data + b"\0" * (-len(data) % 4)


def checksum(data):
    data = padded(data)
    return sum(struct.unpack(">%dI" % (len(data) // 4), data)) & 0xFFFFFFFF


def sfnt(parts):
    out = struct.pack(">IHHHH", 0x10000, len(parts), 128, 3, len(parts) * 16 - 128)
    at = len(out) + 16 * len(parts)
    body = b""
    for tag, data in sorted(parts.items()):
        out += tag + struct.pack(">III", checksum(data), at + len(body), len(data))
        body += padded(data)
    return out + body


def woff(parts):
    body = directory = b""
    at = 44 + 20 * len(parts)
    for tag, data in sorted(parts.items()):
        packed = min(zlib.compress(data, 9), data, key=len)
        directory += tag + struct.pack(">IIII", at + len(body), len(packed), len(data), checksum(data))
        body += padded(packed)
    header = struct.pack(">4sIIHHIHHIIIII", b"wOFF", 0x10000, at + len(body), len(parts), 0, len(sfnt(parts)), 1, 0,
                         0, 0, 0, 0, 0)
    return header + directory + body


sys.stdout.buffer.write(woff(tables()) if "woff" in sys.argv[1:] else sfnt(tables()))

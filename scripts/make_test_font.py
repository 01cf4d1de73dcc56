#!/usr/bin/env python3
"""Writes the fonts of the golden cases css-font-face-*: boxes for "A" and "B", 1000 units per em, ascent 800, descent 200.

Usage: make_test_font.py [woff] [colors [LIST IMAGE]] [alone] [cut] > font
"A" is the box from (100, 0) to (500, 700) in an advance of 600, "B" that from (0, -200) to (1000, 800) in one of 1000.
With "colors", the font is called "Test Colors" and "A" has a picture, too: of 6 by 10 pixels, 10 per em, from (0, -200) to
(600, 800), red on the left and blue on the right. LIST is how its place is listed (1 to 5), IMAGE how its sizes are (17 to
19). "alone" leaves out the outlines, "cut" the end of the picture.
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


def picture():
    row = b"\0" + 3 * b"\xff\0\0\xff" + 3 * b"\0\0\xff\xff"
    png = b"\x89PNG\r\n\x1a\n"
    for tag, data in ((b"IHDR", struct.pack(">IIBBBBB", 6, 10, 8, 6, 0, 0, 0)), (b"IDAT", zlib.compress(10 * row, 9)),
                      (b"IEND", b"")):
        png += struct.pack(">I", len(data)) + tag + data + struct.pack(">I", zlib.crc32(tag + data))
    return png


def color_tables(listed, image, cut):
    sizes = struct.pack(">BBbbBbbB", 10, 6, 0, 8, 6, 0, 0, 10)
    png = picture()
    data = {17: sizes[:5], 18: sizes, 19: b""}[image] + struct.pack(">I", len(png)) + png
    header = struct.pack(">HHI", listed, image, 4)
    shared = struct.pack(">I", len(data)) + sizes
    ranges = {1: struct.pack(">II", 0, len(data)), 2: shared, 3: struct.pack(">HH", 0, len(data)),
              4: struct.pack(">IHHHH", 1, 1, 0, 0, len(data)), 5: shared + struct.pack(">IHH", 1, 1, 0)}[listed]
    line = struct.pack(">bbBbbbbbbbbb", 8, -2, 10, 0, 0, 0, 0, 0, 0, 0, 0, 0)
    strike = struct.pack(">IIII", 56, 8 + 8 + len(ranges), 1, 0) + 2 * line + struct.pack(">HHBBBb", 1, 1, 10, 10, 32, 1)
    places = struct.pack(">II", 0x30000, 1) + strike + struct.pack(">HHI", 1, 1, 8) + header + ranges
    family = "Test Colors".encode("utf-16-be")
    name = struct.pack(">HHHHHHHHH", 0, 1, 18, 3, 1, 0x409, 1, len(family), 0) + family
    return {b"CBLC": places, b"CBDT": struct.pack(">I", 0x30000) + (data[:-20] if cut else data), b"name": name}


def font(words):
    parts = tables()
    if "colors" in words:
        numbers = [int(word) for word in words if word.isdigit()]
        parts.update(color_tables(*(numbers or (1, 17)), "cut" in words))
    if "alone" in words:
        del parts[b"glyf"], parts[b"loca"]
    return woff(parts) if "woff" in words else sfnt(parts)


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


sys.stdout.buffer.write(font(sys.argv[1:]))

"""Tools for hostile documents: a function makes each, registered under its name."""

import base64
import struct
import zlib

DRAWN, REFUSED = 0, 2

HEAD = ('<svg xmlns="http://www.w3.org/2000/svg" xmlns:xlink="http://www.w3.org/1999/xlink" '
        'viewBox="0 0 100 100">')

documents = {}
expected = {}


def document(function=None, *, refused=False):
    """Registers a function that makes the content of a document, its counts divided by its argument."""
    def register(made):
        documents[made.__name__.replace("_", "-")] = made
        expected[made.__name__.replace("_", "-")] = REFUSED if refused else DRAWN
        return made
    return register(function) if function else register


def svg(content):
    return HEAD + content + "</svg>"


def png(width, height):
    """A picture of one colour, its rows compressed."""
    def chunk(kind, data):
        return (struct.pack(">I", len(data)) + kind + data +
                struct.pack(">I", zlib.crc32(kind + data)))
    packer = zlib.compressobj(9)
    rows = b"".join(packer.compress(b"\0" * (1 + width)) for _ in range(height)) + packer.flush()
    return (b"\x89PNG\r\n\x1a\n" + chunk(b"IHDR", struct.pack(">IIBBBBB", width, height, 8, 0, 0, 0, 0)) +
            chunk(b"IDAT", rows) + chunk(b"IEND", b""))


def data_uri(kind, data):
    return f"data:{kind};base64," + base64.b64encode(data).decode()

"""Hostile texts."""

from hostile.document import document, svg


@document
def text_clip(n):
    return svg(f'<clipPath id="c"><text y="50">{"abcd" * (20000 // n)}</text></clipPath>'
               '<rect width="100" height="100" clip-path="url(#c)"/>')


@document
def text_long(n):
    return svg(f'<text y="50" fill="red" stroke="blue">{"abcd " * (20000 // n)}</text>')


@document
def text_elements(n):
    return svg('<text y="50">abcde</text>' * (20000 // n))


@document
def text_tspans(n):
    return svg('<text y="50">' + "<tspan>a</tspan>" * (90000 // n) + "</text>")


@document
def text_deep_tspans(n):
    return svg('<text y="50">' + "<tspan x='1' dx='1'>ab" * 500 + "</tspan>" * 500 + "</text>")


@document
def text_position_lists(n):
    numbers = "1 " * (100000 // n)
    return svg(f'<text x="{numbers}" y="{numbers}" dx="{numbers}" dy="{numbers}" rotate="{numbers}">' +
               "a" * (90000 // n) + "</text>")


@document
def text_nested_position_lists(n):
    numbers = "1 " * (1000 // n)
    return svg("<text>" + f'<tspan dx="{numbers}" rotate="{numbers}">' * 500 + "a" * (90000 // n) + "</tspan>" * 500 +
               "</text>")


@document
def text_on_path(n):
    path = "M0 50" + "l1 1 1-1" * (1500 // n)
    return svg(f'<path id="p" d="{path}" fill="none"/><text>' +
               f'<textPath href="#p">{"ab" * 90}</textPath>' * (500 // n or 1) + "</text>")


@document
def text_on_one_path(n):
    return svg('<path id="p" d="M0 50' + "q1 1 1-1t1 1" * (1000 // n) + '" fill="none"/>' +
               f'<text font-size="1"><textPath href="#p">{"ab" * (45000 // n)}</textPath></text>')


@document
def text_length_many(n):
    return svg(f'<text textLength="90">{"<tspan textLength=" + chr(34) + "9" + chr(34) + ">ab</tspan>"}'
               f'{"ab " * (30000 // n)}</text>')


@document
def text_used(n):
    return svg(f'<text id="t">{"abcd" * (2000 // n)}</text>' + '<use href="#t"/>' * (20000 // n))


@document
def text_bidi(n):
    return svg("<text>" + "a\u05d0\u202e1\u202c" * (20000 // n) + "</text>")


@document
def text_combining(n):
    return svg("<text>a" + "\u0301" * (90000 // n) + "</text>")


@document
def text_families(n):
    names = ",".join(f"f{i}" for i in range(100000 // n))
    return svg(f'<text font-family="{names}">a</text>' * 5)


@document
def text_many_families(n):
    return svg("".join(f'<text font-family="f{i}" font-size="{1 + i / 10000}">a</text>' for i in range(20000 // n)))


@document
def text_decorated(n):
    return svg('<text text-decoration="underline overline line-through" letter-spacing="1">' +
               "<tspan text-decoration='underline'>ab</tspan>" * (30000 // n) + "</text>")


@document
def text_vertical(n):
    return svg('<text style="writing-mode:vertical-rl">' + "ab\u4e00" * (30000 // n) + "</text>")


@document
def text_huge_glyphs(n):
    return svg(f'<text font-size="100000" stroke="red" stroke-dasharray=".01">{"@&amp;W" * (1000 // n)}</text>')


def font(glyphs, face=""):
    return f'<font horiz-adv-x="50"><font-face font-family="F" units-per-em="100" {face}/>{glyphs}</font>'


@document
def text_font_of_many_glyphs(n):
    glyphs = '<glyph unicode="aaaaaaab" d="M0 0H9V9"/>' * (60000 // n)
    return svg(font(glyphs) + f'<text y="50" font-family="F">{"a" * (90000 // n)}</text>')


@document
def text_font_of_long_outlines(n):
    glyph = f'<glyph unicode="a" d="M0 0{"l9 9-9 9" * (15000 // n)}"/>'
    return svg(font(glyph) + f'<text y="50" font-family="F">{"a" * (90000 // n)}</text>')


@document
def text_font_kerning(n):
    names = ",".join(f"n{i}" for i in range(3000 // n))
    glyphs = f'<glyph unicode="a" glyph-name="{names}" d="M0 0H9V9"/><hkern g1="{names}" g2="{names}" k="1"/>'
    return svg(font(glyphs) + f'<text y="50" font-family="F">{"a" * (90000 // n)}</text>')


@document
def text_fonts_many(n):
    weights = ",".join(["400"] * 1000)
    fonts = "".join(font('<glyph unicode="a" d="M0 0H9V9"/>', f'font-weight="{weights}"') for i in range(2000 // n))
    return svg(fonts + '<text y="50" font-family="F">' + "<tspan>a</tspan>" * (90000 // n) + "</text>")


@document
def text_families_long(n):
    families = ",".join(f"family{i}" for i in range(100000 // n))
    return svg(f'<g font-family="{families}">' + '<text y="50">abc</text>' * (20000 // n) + "</g>")


@document
def text_broken_into_lines(n):
    return svg(f'<text y="5" inline-size="20" font-size="9">{"ab cd " * (16000 // n)}</text>')


@document
def text_font_and_system_in_turns(n):
    return svg(font('<glyph unicode="a" d="M0 0H9V9"/>') +
               f'<text y="50" font-family="F, sans-serif">{"ab" * (45000 // n)}</text>')


@document
def text_font_of_many_languages(n):
    tags = ",".join(f"x{i}" for i in range(100))
    glyphs = f'<glyph unicode="a" lang="{tags}" d="M0 0H9V9"/>' * (1000 // n)
    return svg(font(glyphs) + f'<text y="50" font-family="F, sans-serif" xml:lang="y">{"a" * (90000 // n)}</text>')


@document
def text_lines_of_many_kinds(n):
    parts = '<tspan style="text-decoration:overline dashed .01px">some text </tspan>' * (5000 // n)
    return svg(f'<text font-size="20" y="50" style="text-decoration:underline dotted .001px red">{parts}</text>')


@document
def text_waves(n):
    words = "some text " * (5000 // n)
    return svg(f'<text font-size="20" y="50" style="text-decoration:underline wavy 1e-9px">{words}</text>'
               '<text font-size="20" y="90" style="text-decoration:underline wavy 1e30px">some text</text>')


@document
def text_capitals(n):
    return svg('<text y="50" style="text-transform:uppercase">' + "\u00df" * (90000 // n) + "</text>")


@document
def text_font_faces(n):
    face = "@font-face{font-family:a;src:url(data:font/ttf;base64,AAEAAAAAAAA=)}"
    return svg(f"<style>{face * (20000 // n)}</style>" + '<text font-family="a" y="50">abc</text>')


@document
def text_font_kerning_of_equal_names(n):
    """Pairs that exist already."""
    names = ",".join(["a"] * (7000 // n))
    return svg(font(f'<glyph unicode="a" glyph-name="a" d="M0 0H9V9"/><hkern g1="{names}" g2="{names}" k="1"/>') +
               '<text y="50" font-family="F">aaa</text>')


@document
def text_font_kerning_many(n):
    names = ",".join(f"n{i}" for i in range(200))
    kerning = f'<hkern g1="{names}" g2="{names}" k="1"/>' * (5000 // n)
    return svg(font(f'<glyph unicode="a" glyph-name="n1" d="M0 0H9V9"/>{kerning}') +
               '<text y="50" font-family="F">aaa</text>')


@document
def text_font_kerning_ranges(n):
    ranges = ",".join(["U+4e??"] * (4000 // n))
    return svg(font(f'<glyph unicode="a" d="M0 0H9V9"/><hkern u1="{ranges}" u2="{ranges}" k="1"/>') +
               '<text y="50" font-family="F">aaa</text>')


@document
def text_fonts_of_kerning(n):
    """The maximum of pairs in each of the maximum of fonts."""
    names = ",".join(f"n{i}" for i in range(223))
    one = f'<glyph unicode="a" d="M0 0H9V9"/><hkern g1="{names}" g2="{names}" k="1"/>' \
          f'<vkern g1="{names}" g2="{names}" k="1"/>'
    fonts = "".join(font(one).replace('"F"', f'"F{i}"') for i in range(100))
    return svg(fonts + "".join(f'<text y="50" font-family="F{i}">aa</text>' for i in range(100 // n)))


@document
def text_font_ligatures(n):
    """Glyphs with common beginnings, tried at every letter."""
    glyphs = "".join(f'<glyph unicode="{"a" * 63}{chr(0x4e00 + i)}" d="M0 0H9V9"/>' for i in range(128))
    return svg(font(glyphs) + f'<text y="50" font-family="F">{"a" * (90000 // n)}</text>')


@document
def text_font_ligatures_of_languages(n):
    tags = ",".join(f"{'x' * 50}{i}" for i in range(4))
    glyphs = f'<glyph unicode="a" lang="{tags}" d="M0 0H9V9"/>' * 128
    return svg(font(glyphs) + f'<text y="50" font-family="F, sans-serif" xml:lang="{"x" * 50}-y">'
                              f'{"a" * (90000 // n)}</text>')


@document
def text_font_ligatures_of_names(n):
    names = ",".join(f"name{i}" for i in range(20))
    glyphs = f'<glyph unicode="a" glyph-name="{names}" d="M0 0H9V9"/>' * (60000 // n)
    return svg(font(glyphs + f'<hkern g1="{names}" g2="{names}" k="1"/>') +
               f'<text y="50" font-family="F">{"a" * (90000 // n)}</text>')


@document
def text_font_glyphs_of_shapes(n):
    glyphs = "".join(f'<glyph unicode="{chr(0x4e00 + i)}">{"<circle r=" + chr(34) + "9" + chr(34) + "/>"}</glyph>' * 1
                     for i in range(15000 // n))
    return svg(font(glyphs) + f'<text y="50" font-family="F">{"".join(chr(0x4e00 + i) for i in range(15000 // n))}</text>')


@document
def text_alternate_glyphs(n):
    glyphs = "".join(f'<glyph id="g{i}" d="M0 0H9V9"/>' for i in range(50000 // n))
    return svg(font(glyphs) + '<text y="50">' + "".join(f'<altGlyph href="#g{49999 - i % 50000}">a</altGlyph>'
                                                        for i in range(40000 // n)) + "</text>")


@document
def text_fonts_asked_often(n):
    """The matching family comes last, for every part of the text."""
    fonts = "".join(font('<glyph unicode="a" d="M0 0H9V9"/>').replace('"F"', f'"G{i}"') for i in range(100))
    families = ",".join(f"H{i}" for i in range(30)) + ",G99"
    return svg(fonts + f'<text y="50" font-family="{families}">' + "<tspan>a</tspan>" * (60000 // n) + "</text>")


@document
def text_anchors(n):
    parts = "".join(f'<tspan x="{i % 90}" text-anchor="middle">ab</tspan>' for i in range(40000 // n))
    return svg(f'<text y="50">{parts}</text>')


@document
def text_anchored_chunk_long(n):
    part = '<tspan dx="1">ab</tspan>'
    return svg(f'<text y="50" text-anchor="end">{part * (40000 // n)}</text>')


@document
def text_lengths_nested(n):
    return svg("<text>" + '<tspan textLength="9">ab' * 400 + "c" * (50000 // n) + "</tspan>" * 400 + "</text>")


@document
def text_rotated(n):
    return svg(f'<text rotate="{"1 2 " * (40000 // n)}" textLength="90">{"fi " * (30000 // n)}</text>')


@document
def text_bidi_nested(n):
    return svg("<text>" + "\u202ea\u202bb" * (15000 // n) + "\u05d0 1" * (15000 // n) + "</text>")


@document
def text_bidi_tspans(n):
    return svg('<text direction="rtl">' + '<tspan direction="rtl" unicode-bidi="embed">a \u05d0' * 400 +
               "b" * (50000 // n) + "</tspan>" * 400 + "</text>")


@document
def text_spaces(n):
    return svg('<text y="50">' + " <tspan> </tspan> " * (40000 // n) + "</text>" +
               '<text xml:space="preserve" y="60">' + " " * (5000000 // n) + "</text>")


@document
def text_lines_of_nothing(n):
    return svg(f'<text y="5" inline-size="1e-9" font-size="9">{"a" * (90000 // n)}</text>')


@document
def text_paths_following(n):
    path = "M0 50" + "c9 9 9-9 1 0" * 1300
    return svg(f'<path id="p" d="{path}"/><text font-size=".1">' +
               f'<textPath href="#p" textLength="90">{"ab" * 50}</textPath>' * (500 // n or 1) + "</text>")


@document
def text_pictographs(n):
    """Of consequence where a font with colour bitmaps is installed."""
    return svg(f'<text y="50">{chr(0x1F600) * (50000 // n)}</text>')


@document
def text_measured_often(n):
    box = "transform-box:fill-box;transform-origin:center;transform:rotate(1deg)"
    return svg(f'<g style="{box}" filter="blur(1px)">' + f'<text y="50" style="{box}">abcd</text>' * (20000 // n) +
               "</g>")


@document
def text_in_patterns(n):
    return svg(f'<pattern id="p" width=".1" height=".1">{"<text>abcd</text>" * 100}</pattern>' + "".join(
        f'<text y="50" font-size="{20 + i / 100}" fill="url(#p)">abcd</text>' for i in range(2000 // n)))


@document
def text_font_shapes_deep(n):
    glyph = '<glyph unicode="a"><rect width="9" height="9"/></glyph>'
    deep = "<g>" * 200 + '<rect width="9" height="9"/>' * 900 + "</g>" * 200
    return svg("<g>" * 250 + font(glyph * (60000 // n) + f'<glyph unicode="b">{deep}</glyph>' * 60) + "</g>" * 250 +
               '<text y="50" font-family="F">ab</text>')

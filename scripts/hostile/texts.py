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

"""Documents with very many similar elements, or with one element of extreme size."""

import base64
import gzip

from hostile.document import document, svg

RECT = '<rect width="9" height="9"/>'


@document
def styles_each(n):
    """No two elements are styled alike."""
    return svg("".join(f'<rect width="9" height="9" style="fill:#{i:06x};stroke-width:{i}"/>'
                       for i in range(150000 // n)))


@document
def gradients_each(n):
    return svg("".join(f'<linearGradient id="g{i}"><stop/><stop offset="1" stop-color="red"/></linearGradient>'
                       f'<rect width="9" height="9" fill="url(#g{i})"/>' for i in range(49000 // n)))


@document
def patterns_each(n):
    return svg("".join(f'<pattern id="p{i}" width=".1" height=".1"><rect width="1" height="1"/></pattern>'
                       f'<rect width="9" height="9" fill="url(#p{i})"/>' for i in range(60000 // n)))


@document
def filters_each(n):
    return svg("".join(f'<rect width="9" height="9" filter="drop-shadow({i}px 1px red)"/>'
                       for i in range(100000 // n)))


@document
def masks_each(n):
    return svg("".join(f'<mask id="m{i}">{RECT}</mask><rect width="9" height="9" mask="url(#m{i})"/>'
                       for i in range(60000 // n)))


@document
def markers_each(n):
    return svg("".join(f'<marker id="m{i}" markerWidth="9" markerHeight="9"><path d="M0 0L3 3 0 3z"/></marker>'
                       f'<path d="M0 0h9v9" marker-mid="url(#m{i})"/>' for i in range(60000 // n)))


@document
def clip_paths_in_each_other(n):
    count = 60000 // n
    return svg('<clipPath id="c0"><rect width="90" height="90"/></clipPath>' + "".join(
        f'<clipPath id="c{i}" clip-path="url(#c{i - 1})"><rect width="90" height="90"/></clipPath>'
        f'<rect width="9" height="9" clip-path="url(#c{i})"/>' for i in range(1, count)))


@document
def classes_many(n):
    words = " ".join(f"w{i}" for i in range(100000 // n))
    rules = "".join(f".w{i}{{fill:red}}" for i in range(10000 // n))
    return svg(f"<style>{rules}</style>" + f'<rect width="9" height="9" class="{words}"/>' * 10 +
               '<rect width="9" height="9" class="w1 w2 w3"/>' * (50000 // n))


@document
def variables_inherited(n):
    """Every element adds one custom property to the many that it inherits."""
    many = ";".join(f"--a{i}:{i}" for i in range(9000))
    return svg(f'<g style="{many}">' + "".join(f'<rect width="9" height="9" style="--b:{i};fill:var(--b)"/>'
                                               for i in range(100000 // n)) + "</g>")


@document
def variables_of_variables(n):
    chain = "--a0:red;" + "".join(f"--a{i}:var(--a{i - 1});" for i in range(1, 100000 // n))
    wide = "--b0:1;" + "".join(f"--b{i}:{f'var(--b{i - 1})' * 16};" for i in range(1, 20))
    return svg(f'<g style="{chain}"><g style="{wide}">' + "".join(
        f'<rect width="9" height="9" style="--c{i}:1;fill:var(--a15);stroke:var(--b3)"/>'
        for i in range(50000 // n)) + "</g></g>")


@document
def variables_of_rules(n):
    rule = ";".join(f"--a{i}:{i}" for i in range(1000))
    return svg(f"<style>rect{{{rule}}}</style>" + "".join(
        f'<g style="--b:{i}"><rect width="9" height="9"/></g>' for i in range(50000 // n)))


@document
def animation_begins(n):
    begins = ";".join(f"{i / 1000}s" for i in range(1000))
    return svg(f'<rect width="9" height="9"><animate attributeName="x" to="9" dur="1ms" begin="{begins}"/></rect>' *
               (1000 // n))


@document
def text_combining(n):
    return svg('<text y="50">a' + "\u0301" * (99000 // n) + "</text>")


@document
def text_tref_of_all(n):
    return svg('<text id="t" y="50">' + "abcdefghij" * (9000 // n) + "</text>" +
               '<text y="60"><tref href="#t"/></text>' * (1000 // n))


@document
def text_broken_lines(n):
    return svg('<text y="9" inline-size="50" style="inline-size:50px">' + "ab cd ef " * (11000 // n) + "</text>")


@document
def text_used_deep(n):
    text = '<text id="u0" y="50" font-size="2">' + "abcdefghij" * 30 + "</text>"
    return svg("<defs>" + text + "".join(f'<g id="u{i}">' + f'<use href="#u{i - 1}"/>' * 3 + "</g>"
                                         for i in range(1, 30)) + '</defs><use href="#u29"/>')


@document
def font_of_large_glyphs(n):
    outline = "M0 0" + "l9 9-9 0" * (10000 // n)
    return svg('<defs><font horiz-adv-x="100"><font-face font-family="f" units-per-em="1000"/>' +
               "".join(f'<glyph unicode="{c}" d="{outline}"/>' for c in "abcdefghijklmnopqrst") + "</font></defs>" +
               '<text y="50" font-family="f">' + "abcdefghijklmnopqrst" * (4500 // n) + "</text>")


@document
def font_of_many_glyphs(n):
    return svg('<defs><font horiz-adv-x="100"><font-face font-family="f" units-per-em="1000"/>' + "".join(
        f'<glyph unicode="&#x{0x4e00 + i % 20000:x};" d="M0 0h9v9z"/>' for i in range(150000 // n)) +
        '</font></defs><text y="50" font-family="f">' + "".join(chr(0x4e00 + i % 20000) for i in range(90000 // n)) +
        "</text>")


@document
def view_boxes_out_of_proportion(n):
    boxes = ("0 0 1e-300 1e300", "-1e300 0 1 1e-300", "0 0 1e9 1e-9", "1e9 1e9 1e-9 1e-9", "0 0 1e-30 1e-30")
    return svg("".join(f'<svg viewBox="{boxes[i % 5]}" preserveAspectRatio="none"><path d="M0 0L1e-9 1e9 1 1" '
                       f'stroke="red" stroke-width="1e-3"/>{RECT}</svg>' for i in range(30000 // n)))


@document
def gzip_bombs_in_filters(n):
    bomb = base64.b64encode(gzip.compress(b"<svg>" + b" " * (150 * 1024 * 1024 // n))).decode()
    image = f'<feImage href="data:image/svg+xml;base64,{bomb}"/>'
    return svg(f'<filter id="f">{image * 5}</filter>' + '<rect width="9" height="9" filter="url(#f)"/>' * 3)


@document
def documents_differ(n):
    """Documents in images, all different."""
    def inner(i):
        text = svg(f"<style>rect{{fill:#{i:06x}}}</style>" + '<g stroke="red">' + RECT * 90 + "</g>")
        return base64.b64encode(text.encode()).decode()
    return svg("".join(f'<image width="9" height="9" href="data:image/svg+xml;base64,{inner(i)}"/>'
                       for i in range(2000 // n)))


@document
def dashes_inherited(n):
    dashes = " ".join(["1"] * 256)
    return svg(f'<g stroke="red" stroke-dasharray="{dashes}">' + "".join(
        f'<rect width="9" height="9" stroke-width="{1 + i / 1000}"/>' for i in range(100000 // n)) + "</g>")


@document
def switch_in_switch(n):
    return svg("<switch>" * 500 + "".join(f'<g systemLanguage="x{i}"/>' for i in range(150000 // n)) + RECT +
               "</switch>" * 500)

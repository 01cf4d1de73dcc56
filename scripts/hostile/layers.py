"""Hostile clip paths, masks, filters, patterns and texts that are expensive to paint, and repetitions of them."""

from hostile.document import data_uri, document, png, svg

RECT = '<rect width="90" height="90"/>'
WHOLE = 'x="0" y="0" width="1" height="1"'


def crossing(edges):
    return "M0 0" + "".join(f"L{100 * (i % 2)} {(i * 37) % 97}" for i in range(edges))


@document
def clip_of_crossing_edges(n):
    return svg(f'<clipPath id="c"><path d="{crossing(30000 // n)}"/></clipPath>' +
               '<rect width="100" height="100" clip-path="url(#c)"/>' * 60)


@document
def clip_of_crossing_edges_of_groups(n):
    return svg(f'<clipPath id="c"><path d="{crossing(30000 // n)}" clip-rule="evenodd"/></clipPath>' +
               '<g clip-path="url(#c)" opacity=".9"><rect width="100" height="100" fill="url(#g)"/></g>' * 60 +
               '<linearGradient id="g"><stop/><stop offset="1" stop-color="red"/></linearGradient>')


@document
def clip_of_steep_edges(n):
    data = "M0 0" + "".join(f"L{(i * 37) % 97} {100 * (i % 2)}" for i in range(30000 // n))
    return svg(f'<clipPath id="c"><path d="{data}"/></clipPath>' +
               '<rect width="100" height="100" clip-path="url(#c)"/>' * 60)


@document
def clip_of_small_edges(n):
    data = "M50 50" + "".join(f"l{(i * 37) % 5 - 2} {(i * 53) % 5 - 2}" for i in range(30000 // n))
    return svg(f'<clipPath id="c"><path d="{data}"/></clipPath>' +
               '<rect width="100" height="100" clip-path="url(#c)"/>' * 200)


@document
def shape_of_crossing_edges(n):
    return svg(f'<path id="p" d="{crossing(32000 // n)}"/>' + '<use href="#p"/>' * 30)


@document
def shape_of_crossing_edges_and_gradient(n):
    return svg('<linearGradient id="g"><stop/><stop offset="1" stop-color="red"/></linearGradient>'
               f'<path id="p" fill="url(#g)" d="{crossing(32000 // n)}"/>' + '<use href="#p"/>' * 30)


@document
def shape_of_crossing_edges_hard(n):
    return svg(f'<path id="p" shape-rendering="crispEdges" d="{crossing(32000 // n)}"/>' + '<use href="#p"/>' * 30)


@document
def shape_of_crossing_curves(n):
    data = "M0 0" + "".join(f"C{100 * (i % 2)} {(i * 37) % 97} {(i * 57) % 97} 200 {(i * 31) % 97} -99"
                            for i in range(20000 // n))
    return svg(f'<path id="p" d="{data}"/>' + '<use href="#p"/>' * 30)


@document
def shapes_of_crossing_edges_small(n):
    """Many outlines, each dense."""
    data = "M0 0" + "".join(f"L{10 * (i % 2)} {(i * 37) % 11}" for i in range(300 // n))
    return svg(f'<path id="p" d="{data}"/>' + '<use href="#p"/>' * 3000)


@document
def mask_of_crossing_edges(n):
    return svg(f'<mask id="c"><path d="{crossing(30000 // n)}" fill="white"/></mask>' +
               '<rect width="100" height="100" mask="url(#c)"/>' * 60)


@document
def letters_many(n):
    line = "abcdefghijklmnopqrs" * 50
    return svg("".join(f'<text y="{i}" font-size="5">{line}</text>' for i in range(95 // n)))


@document
def letters_large(n):
    """Most of each letter is visible."""
    return svg("".join(f'<text x="{i % 50}" y="90" font-size="100">@</text>' for i in range(95000 // n)))


@document
def letters_large_of_one_text(n):
    count = 95000 // n
    return svg(f'<text font-size="100" x="{"0 " * count}" y="{"90 " * count}">{"@" * count}</text>')


@document
def letters_in_gradients(n):
    return svg('<linearGradient id="g"><stop/><stop offset="1" stop-color="red"/></linearGradient>' +
               f'<text font-size="60" y="90" x="{"0 1 2 " * (30000 // n)}" fill="url(#g)">{"abc" * (30000 // n)}</text>')


@document
def letters_stroked(n):
    return svg(f'<text font-size="60" y="90" x="{"0 1 2 " * (30000 // n)}" stroke="red" stroke-dasharray="1">'
               f'{"abc" * (30000 // n)}</text>')


@document
def letters_faded(n):
    return svg('<g fill-opacity=".5">' + "".join(
        f'<text font-size="{50 + i / 1000}" y="90">abcdefgh</text>' for i in range(10000 // n)) + "</g>")


@document
def rects_whole(n):
    return svg('<rect width="100" height="100"/>' * (190000 // n))


@document
def rects_whole_faded(n):
    return svg('<rect width="100" height="100" fill-opacity=".5" rx="1"/>' * (190000 // n))


@document
def rects_whole_in_gradients(n):
    return svg('<radialGradient id="g"><stop/><stop offset="1" stop-color="red"/></radialGradient>' +
               '<rect width="100" height="100" fill="url(#g)"/>' * (100000 // n))


@document
def rects_whole_in_patterns(n):
    return svg('<pattern id="g" width="7" height="7" patternUnits="userSpaceOnUse" patternTransform="rotate(30)">'
               '<circle r="5"/></pattern>' + '<rect width="100" height="100" fill="url(#g)"/>' * (100000 // n))


@document
def circles_whole(n):
    return svg('<circle r="99" cx="50" cy="50" fill-opacity=".1"/>' * (100000 // n))


@document
def strokes_whole(n):
    return svg('<circle r="49" cx="50" cy="50" fill="none" stroke-width="60" stroke-dasharray="1" stroke="red" '
               'stroke-linecap="round"/>' * (20000 // n))


@document
def images_whole(n):
    return svg(f'<image id="i" width="100" height="100" href="{data_uri("image/png", png(20, 20))}"/>' +
               '<use href="#i" transform="rotate(1)"/>' * (90000 // n))


@document
def documents_whole(n):
    inner = svg('<rect width="100" height="100"/>' * 100)
    return svg(f'<image id="i" width="100" height="100" href="{data_uri("image/svg+xml", inner.encode())}"/>' +
               '<use href="#i" transform="rotate(1)"/>' * (900 // n))


@document
def filter_images_doubling(n):
    """Nested pictures, two of each."""
    levels = "".join(f'<filter id="f{i}" {WHOLE}><feImage href="#a{i - 1}" result="x"/><feImage href="#a{i - 1}"/>'
                     f'<feMerge><feMergeNode/><feMergeNode in="x"/></feMerge></filter>'
                     f'<rect id="a{i}" width="100" height="100" filter="url(#f{i})"/>' for i in range(1, 17))
    return svg(f'<rect id="a0" width="90" height="90"/>{levels}')


@document
def filter_images_deep(n):
    levels = "".join(f'<filter id="f{i}" {WHOLE}><feFlood result="x"/><feFlood result="y"/><feImage href="#a{i - 1}"/>'
                     f'<feMerge><feMergeNode/><feMergeNode in="x"/><feMergeNode in="y"/></feMerge></filter>'
                     f'<rect id="a{i}" width="100" height="100" filter="url(#f{i})"/>' for i in range(1, 16))
    return svg(f'<defs><rect id="a0" width="90" height="90"/>{levels}</defs><use href="#a15"/>')


@document
def filter_images_wide(n):
    levels = "".join(f'<filter id="f{i}" {WHOLE}>' + f'<feImage href="#a{i - 1}"/>' * 20 + "</filter>"
                     f'<rect id="a{i}" width="100" height="100" filter="url(#f{i})"/>' for i in range(1, 17))
    return svg(f'<rect id="a0" width="90" height="90"/>{levels}')


@document
def filter_images_of_groups(n):
    levels = "".join(f'<filter id="f{i}" {WHOLE}><feImage href="#a{i - 1}"/></filter>'
                     f'<g id="a{i}" filter="url(#f{i})">{RECT * 100}</g>' for i in range(1, 17))
    return svg(f'<rect id="a0" width="90" height="90"/>{levels}' + '<use href="#a9"/>' * (200 // n))


@document
def filter_results_waiting(n):
    results = "".join(f'<feFlood result="r{i}"/>' for i in range(49))
    merged = "".join(f'<feMergeNode in="r{i}"/>' for i in range(49))
    inner = f'<filter id="f" {WHOLE}>{results}<feMerge>{merged}</feMerge></filter>'
    return svg(inner + '<g filter="url(#f)">' * 30 + RECT + "</g>" * 30)


@document
def filters_in_each_other(n):
    return svg(f'<filter id="f" {WHOLE}><feFlood result="a"/><feFlood result="b"/><feGaussianBlur/>'
               '<feComposite in="a" in2="b"/></filter>' + '<g filter="url(#f)">' * 64 + RECT + "</g>" * 64)


@document
def filters_turned(n):
    return svg(f'<filter id="f" {WHOLE}><feMorphology radius="3" operator="dilate"/><feGaussianBlur stdDeviation="9 1"/>'
               '</filter><g transform="rotate(30)">' + '<rect width="90" height="90" filter="url(#f)"/>' * (500 // n) +
               "</g>")


@document
def filter_morphologies(n):
    return svg(f'<filter id="f" {WHOLE}>' + '<feMorphology radius="50 1e9"/><feMorphology radius="1e9 50" '
               'operator="dilate"/>' * 50 + "</filter>" + '<rect width="100" height="100" filter="url(#f)"/>' * 30)


@document
def filter_displacements(n):
    return svg(f'<filter id="f" {WHOLE}><feTurbulence numOctaves="9" baseFrequency=".01"/>' +
               '<feDisplacementMap in="SourceGraphic" scale="1e9" xChannelSelector="R" yChannelSelector="G"/>' * 98 +
               "</filter>" + '<rect width="100" height="100" filter="url(#f)"/>' * (30 // n or 1))


@document
def filter_turbulences_stitched(n):
    return svg(f'<filter id="f" {WHOLE}>' +
               '<feTurbulence numOctaves="20" baseFrequency="1e9 1e-9" stitchTiles="stitch" seed="1e9"/>' * 99 +
               "</filter>" + '<rect width="100" height="100" filter="url(#f)"/>' * 30)


@document
def filter_lights_far(n):
    return svg(f'<filter id="f" {WHOLE}>' +
               '<feDiffuseLighting surfaceScale="1e9"><feSpotLight x="1e9" z="1e9" limitingConeAngle="1e9" '
               'specularExponent="1e9"/></feDiffuseLighting>' * 99 + "</filter>" +
               '<rect width="100" height="100" filter="url(#f)"/>' * 30)


@document
def filter_matrices(n):
    primitives = ('<feColorMatrix type="hueRotate" values="1e9"/><feComponentTransfer><feFuncR type="gamma" '
                  'exponent="1e9"/></feComponentTransfer>') * 49
    return svg(f'<filter id="f" {WHOLE}>{primitives}</filter>' +
               '<rect width="100" height="100" filter="url(#f)"/>' * 60)


@document
def filter_blends(n):
    primitives = '<feBlend mode="luminosity" in2="SourceGraphic"/><feBlend mode="soft-light" in2="SourceGraphic"/>' * 49
    return svg(f'<filter id="f" {WHOLE}>{primitives}</filter>' +
               '<rect width="100" height="100" filter="url(#f)"/>' * 60)


@document
def filter_linear_light(n):
    primitives = ('<feOffset color-interpolation-filters="linearRGB"/>'
                  '<feOffset color-interpolation-filters="sRGB"/>') * 49
    return svg(f'<filter id="f" {WHOLE}>{primitives}</filter>' +
               '<rect width="100" height="100" filter="url(#f)" fill="url(#g)"/>' * 60 +
               '<linearGradient id="g"><stop/><stop offset="1" stop-color="red"/></linearGradient>')


@document
def filter_merges_of_all(n):
    nodes = '<feMergeNode in="SourceGraphic"/>' * (1000 // n)
    return svg(f'<filter id="f" {WHOLE}>' + f"<feMerge>{nodes}</feMerge>" * 30 + "</filter>" +
               '<rect width="100" height="100" filter="url(#f)"/>' * 30)


@document
def filter_paints(n):
    primitives = '<feMerge><feMergeNode in="FillPaint"/><feMergeNode in="StrokePaint"/></feMerge>' * 90
    return svg('<radialGradient id="g"><stop/><stop offset="1" stop-color="red"/></radialGradient>'
               f'<filter id="f" {WHOLE}>{primitives}</filter>' +
               '<rect width="100" height="100" filter="url(#f)" fill="url(#g)" stroke="url(#g)"/>' * 60)


@document
def filter_tiles_small(n):
    primitives = '<feFlood x="0" y="0" width=".3" height=".3"/><feTile/>' * 49
    return svg(f'<filter id="f" {WHOLE}>{primitives}</filter>' +
               '<rect width="100" height="100" filter="url(#f)"/>' * 60)


@document
def filters_of_long_lists(n):
    return svg("".join(f'<rect width="90" height="90" filter="{"url(#x) " * 5000}blur({i}px)"/>'
                       for i in range(100 // n)))


@document
def filters_of_nothing(n):
    """Each filter measures its group."""
    return svg('<filter id="f"/>' + '<g filter="url(#f)">' * 300 + RECT * (90000 // n) + "</g>" * 300)


@document
def masks_in_masks(n):
    levels = "".join(f'<mask id="m{i}" mask="url(#m{i - 1})"><rect width="100" height="100" fill="white" '
                     f'mask="url(#m{i - 1})"/></mask>' for i in range(1, 17))
    return svg(f'<mask id="m0">{RECT}</mask>{levels}' + '<rect width="100" height="100" mask="url(#m14)"/>' * 50)


@document
def clips_in_clips_of_texts(n):
    levels = "".join(f'<clipPath id="c{i}" clip-path="url(#c{i - 1})"><text y="50" font-size="30">'
                     f'{"abcd" * 100}</text></clipPath>' for i in range(1, 15))
    return svg(f'<clipPath id="c0">{RECT}</clipPath>{levels}' +
               '<rect width="100" height="100" clip-path="url(#c14)"/>' * (200 // n))


@document
def groups_faded_of_all(n):
    return svg('<g opacity=".9"><circle r="99"/><circle r="98"/></g>' * (50000 // n))


@document
def groups_faded_in_each_other(n):
    return svg(('<g opacity=".9"><circle r="99"/>' * 60 + "</g>" * 60) * (500 // n))


@document
def groups_blended_in_each_other(n):
    return svg(('<g style="mix-blend-mode:hue"><circle r="99"/>' * 60 + "</g>" * 60) * (100 // n))


@document
def patterns_of_patterns_doubling(n):
    levels = "".join(
        f'<pattern id="p{i}" width="{30 + i}" height="{30 + i}" patternUnits="userSpaceOnUse" '
        f'patternTransform="rotate({i})"><rect width="99" height="99" fill="url(#p{i - 1})"/>'
        f'<rect width="98" height="99" stroke="url(#p{i - 1})" fill="none"/></pattern>' for i in range(1, 20))
    return svg(f'<pattern id="p0" width="9" height="9" patternUnits="userSpaceOnUse">{RECT}</pattern>{levels}' +
               '<rect width="100" height="100" fill="url(#p15)"/>' * (1000 // n))


@document
def patterns_of_clips(n):
    return svg(f'<clipPath id="c"><path d="{crossing(3000)}"/></clipPath>' + "".join(
        f'<pattern id="p{i}" width="100" height="100" patternUnits="userSpaceOnUse">'
        f'<g clip-path="url(#c)">{RECT}</g></pattern><rect width="100" height="100" fill="url(#p{i})"/>'
        for i in range(1000 // n)))


@document
def patterns_of_filters(n):
    return svg('<filter id="f"><feTurbulence numOctaves="9" baseFrequency=".1"/></filter>' + "".join(
        f'<pattern id="p{i}" width="100" height="100" patternUnits="userSpaceOnUse">'
        f'<g filter="url(#f)">{RECT}</g></pattern><rect width="100" height="100" fill="url(#p{i})"/>'
        for i in range(1000 // n)))


@document
def markers_of_clips(n):
    return svg(f'<clipPath id="c">{RECT}</clipPath><marker id="m" markerWidth="90" markerHeight="90">'
               f'<g clip-path="url(#c)" opacity=".5">{RECT}</g></marker>'
               f'<path marker-mid="url(#m)" d="M0 0{"l1 1-1 1" * (16000 // n)}"/>')


@document
def markers_of_texts(n):
    return svg('<marker id="m" markerWidth="90" markerHeight="90"><text>abcdefgh</text></marker>'
               f'<path marker-mid="url(#m)" d="M0 0{"l1 1-1 1" * (16000 // n)}"/>')


@document
def markers_of_all_paths(n):
    return svg('<marker id="m"><path d="M0 0h1"/></marker><g marker-mid="url(#m)" marker-start="url(#m)">' +
               '<path d="M0 0h1v1h1v1h1"/>' * (90000 // n) + "</g>")


@document
def markers_at_bends(n):
    path = "M0 0" + "a1 1 0 0 0 1 1c0 0 0 0 0 0" * (8000 // n)
    return svg('<marker id="m" orient="auto"><path d="M0 0h1"/></marker>' + f'<path marker-mid="url(#m)" d="{path}"/>' * 9)


@document
def dashes_of_curves(n):
    line = "".join(f"C{i % 89} {i % 83} {i % 79} {i % 73} {i % 71} {i % 97}" for i in range(10000 // n))
    return svg(f'<path stroke="red" fill="none" stroke-width=".1" stroke-dasharray="100" d="M0 0{line}"/>' * 20)


@document
def dashes_of_texts(n):
    return svg(f'<text font-size="90" y="90" stroke="red" stroke-dasharray=".1" fill="none">'
               f'{"@" * (9000 // n)}</text>')


@document
def strokes_skewed_of_circles(n):
    return svg('<g transform="skewX(60)" stroke="red" stroke-width="30" fill="none" stroke-linejoin="round">' +
               '<circle r="50" stroke-dasharray=".1"/>' * (5000 // n) + "</g>")


@document
def strokes_inside(n):
    """Joins that are much wider than what they join."""
    line = "".join(f"l{(i * 7) % 3 - 1} {(i * 5) % 3 - 1}" for i in range(32000 // n))
    return svg(f'<path stroke="red" stroke-width="90" fill="none" stroke-linejoin="miter" d="M50 50{line}"/>' * 10)


@document
def strokes_of_arcs_joined(n):
    line = "".join(f"l{(i * 7) % 3 - 1} {(i * 5) % 3 - 1}" for i in range(32000 // n))
    return svg(f'<path stroke="red" stroke-width="9" fill="none" stroke-linejoin="arcs" stroke-miterlimit="1e9" '
               f'd="M50 50{line}"/>' * 10)


@document
def strokes_under_fills(n):
    line = "".join(f"L{100 * (i % 2)} {i % 97}" for i in range(1000))
    return svg(f'<path stroke="red" stroke-width="9" paint-order="stroke" d="M0 0{line}"/>' * (200 // n))


@document
def filters_of_many_primitives_each(n):
    primitives = '<feFlood in="a" result="b"/>' * 100
    return svg(f'<filter id="f" {WHOLE}>{primitives}</filter>' +
               '<rect x="500" width="9" height="9" filter="url(#f)"/>' * (180000 // n))


@document
def filter_results_in_each_other(n):
    results = "".join(f'<feFlood result="r{i}"/>' for i in range(45))
    merged = "".join(f'<feMergeNode in="r{i}"/>' for i in range(45))
    region = 'filterUnits="userSpaceOnUse" x="-250" y="-250" width="600" height="600"'
    levels = "".join(f'<filter id="f{i}" {region}>{results}<feImage href="#a{i - 1}" result="r0"/>'
                     f'<feOffset dx="200" in="SourceGraphic"/><feMerge>{merged}</feMerge></filter>'
                     f'<rect id="a{i}" width="100" height="100" filter="url(#f{i})"/>' for i in range(1, 16))
    return svg(f'<defs><rect id="a0" width="90" height="90"/>{levels}</defs><use href="#a15"/>')


@document
def polygon_clip_of_crossing_edges(n):
    points = ",".join(f"{100 * (i % 2)}% {(i * 37) % 97}%" for i in range(30000 // n))
    return svg(f'<g style="clip-path:polygon({points})"><rect width="100" height="100"/></g>' * 40)


@document
def images_shrunk(n):
    return svg("".join(f'<image width="{9 + i / 100}" height="9" href="{data_uri("image/png", png(4000, 4000))}"/>'
                       for i in range(16)))

"""Hostile images, animations and structures."""

import zlib

from hostile.document import data_uri, document, png, svg


@document
def images_nested(n):
    text = '<svg xmlns="http://www.w3.org/2000/svg" width="9" height="9"><rect width="9" height="9"/></svg>'
    for _ in range(20):
        text = svg(f'<image width="9" height="9" href="{data_uri("image/svg+xml", text.encode())}"/>')
    return text


@document
def images_nested_branching(n):
    text = '<svg xmlns="http://www.w3.org/2000/svg" width="9" height="9"><rect width="9" height="9"/></svg>'
    for _ in range(5):
        uri = data_uri("image/svg+xml", text.encode())
        text = svg("".join(f'<image x="{i}" width="9" height="9" href="{uri}"/>' for i in range(7)))
    return text


@document
def images_of_documents(n):
    inner = svg('<rect width="90" height="90"/>' * 1000)
    uri = data_uri("image/svg+xml", inner.encode())
    return svg(f'<image id="i" width="9" height="9" href="{uri}"/>' + '<use href="#i"/>' * (2000 // n))


@document
def images_documents_each(n):
    inner = svg("<style>" + "rect{fill:red}" * 100 + "</style>" + '<rect width="90" height="90"/>' * 100)
    uri = data_uri("image/svg+xml", inner.encode())
    return svg(f'<image width="9" height="9" href="{uri}"/>' * (2000 // n))


@document
def image_large(n):
    return svg(f'<image width="9" height="9" href="{data_uri("image/png", png(8000, 8000 // n))}"/>')


@document
def images_large_twice(n):
    side = 5700
    return svg(f'<image width="9" height="9" href="{data_uri("image/png", png(side, side // n))}"/>' +
               f'<image width="9" height="9" href="{data_uri("image/png", png(side + 1, side // n))}"/>')


@document
def image_shown_often(n):
    return svg(f'<image id="i" width="90" height="90" href="{data_uri("image/png", png(400, 400))}"/>' +
               '<use href="#i"/>' * (20000 // n))


@document
def images_gzip_bomb(n):
    packed = zlib.compressobj(9, zlib.DEFLATED, 31)
    data = packed.compress(b"<svg>" + b" " * (200 * 1024 * 1024 // n)) + packed.flush()
    return svg(f'<image width="9" height="9" href="{data_uri("image/svg+xml", data)}"/>' * 20)


@document
def animations_of_one(n):
    return svg('<rect width="9" height="9">' +
               '<animate attributeName="x" from="0" to="9" dur="9s" additive="sum"/>' * (100000 // n) + "</rect>")


@document
def animation_values(n):
    return svg(f'<rect width="9" height="9"><animate attributeName="x" dur="9s" values="{"1;" * (100000 // n)}2"/>'
               f'<animate attributeName="y" dur="9s" values="{"1;" * 9000}2"/></rect>' * 20)


@document
def animation_paths(n):
    path = "M0 0" + "l1 1-1 1" * (4000 // n)
    return svg(f'<path d="{path}"><animate attributeName="d" dur="9s" values="{";".join([path] * 10)}"/></path>' * 5)


@document
def animation_motions(n):
    path = "M0 0" + "c1 1 2 2-1 1" * (4000 // n)
    return svg(f'<rect width="9" height="9"><animateMotion dur="9s" path="{path}"/></rect>' * 100)


@document
def animation_syncbases(n):
    return svg("".join(f'<rect width="9" height="9"><animate id="a{i}" attributeName="x" to="9" dur=".001s" '
                       f'begin="0;a{i - 1}.end;a{i}.end"/></rect>' for i in range(5000 // n)))


@document
def animation_repeats(n):
    return svg('<rect width="9" height="9"><animate attributeName="x" to="9" dur="1e-9s" repeatCount="indefinite"/>'
               '</rect>' * (20000 // n))


@document
def animation_colors_of_groups(n):
    return svg("<g><animate attributeName='fill' values='red;blue' dur='9s'/>" * 250 +
               '<rect width="9" height="9"/>' * (20000 // n) + "</g>" * 250)


@document
def ids_equal(n):
    return svg('<rect id="a" width="9" height="9"/>' * (150000 // n) + '<use href="#a"/>' * (15000 // n))


@document
def ids_many(n):
    return svg("".join(f'<rect id="a{i}" width="9" height="9"/>' for i in range(100000 // n)) +
               "".join(f'<use href="#a{i}"/>' for i in range(100000 // n)))


@document
def attribute_huge(n):
    return svg(f'<rect width="9" height="9" data-x="{"x" * (16000000 // n)}"/>')


@document
def attributes_huge_known(n):
    big = "1" * (1600000 // n)
    return svg(f'<rect width="{big}" height="{big}" transform="{big}" fill="{big}" stroke-dasharray="{big}" '
               f'opacity="{big}" class="{big}" font-family="{big}" clip-path="{big}"/>')


@document
def attribute_transforms(n):
    return svg(f'<rect width="9" height="9" transform="{"rotate(9)" * (1600000 // n)}"/>')


@document
def attributes_many(n):
    many = " ".join(f'a{i}="1"' for i in range(250))
    return svg(f'<rect width="9" height="9" {many}/>' * (5000 // n))


@document
def tag_crowded(n):
    many = " ".join(f'a{i}="1"' for i in range(1000000 // n))
    return svg(f'<rect width="9" height="9" {many}/><rect width="5" height="5"/>')


@document
def nesting(n):
    return svg("<g>" * 511 + '<rect width="9" height="9"/>' + "</g>" * 511)


@document
def nesting_deeper(n):
    return svg("<g>" * (1000000 // n) + '<rect width="9" height="9"/>' + "</g>" * (1000000 // n))


@document
def nested_viewports(n):
    return svg('<svg viewBox="0 0 9 9" width="9" height="9" overflow="hidden" style="font-size:2em">' * 500 +
               '<rect width="9" height="9"/>' * (20000 // n) + "</svg>" * 500)


@document
def elements_many(n):
    return svg("<g/>" * (3000000 // n))


@document
def switches(n):
    return svg("<switch>" + '<g systemLanguage="xx"/>' * (100000 // n) + '<rect width="9" height="9"/></switch>')


@document
def switch_languages(n):
    return svg(f'<switch><g systemLanguage="{"xx," * (3000000 // n)}"/><rect width="9" height="9"/></switch>')


@document(refused=True)
def entities(n):
    text = "<!DOCTYPE svg [<!ENTITY a0 'aaaaaaaaaa'>"
    text += "".join(f"<!ENTITY a{i} '{f'&a{i - 1};' * 10}'>" for i in range(1, 12))
    return text + "]><svg><text>&a11;</text></svg>"


@document
def namespaces(n):
    return svg("".join(f'<g xmlns:a{i}="urn:a" xmlns:b{i}="urn:b">' for i in range(500)) + "</g>" * 500 +
               '<rect width="9" height="9"/>')


@document
def messages(n):
    return svg('<rect width="9" height="9" fill="nonsense" transform="nonsense"/>' * (100000 // n))


@document
def control_points(n):
    return svg("".join(f'<rect id="control_{i}" width="9" height="9"/>' for i in range(100000 // n)))


@document
def nested_use_bounds(n):
    return svg("<defs>" + "".join(f'<g id="a{i}" mask="url(#m)">' + f'<use href="#a{i - 1}"/>' * 3 + "</g>"
                                  for i in range(1, 12)) +
               '<g id="a0"><rect width="9" height="9"/></g><mask id="m"><rect width="9" height="9" fill="white"/></mask>'
               '</defs><use href="#a11"/>')


@document
def bounds_of_groups(n):
    return svg('<clipPath id="c" clipPathUnits="objectBoundingBox"><rect width="1" height="1"/></clipPath>' +
               '<g clip-path="url(#c)">' * 400 + '<rect width="9" height="9"/>' * (20000 // n) + "</g>" * 400)


TURNED = 'style="transform-box:fill-box;transform-origin:center;transform:rotate(1deg)"'


@document
def boxes_in_boxes(n):
    return svg(f"<g {TURNED}>" * 500 + '<rect width="9" height="9"/>' * (20000 // n) + "</g>" * 500)


@document
def boxes_many(n):
    return svg(f'<g {TURNED}><rect width="9" height="9"/></g>' * (20000 // n))


@document
def boxes_of_uses(n):
    groups = '<g id="a0"><rect width="9" height="9" fill="context-fill"/></g>'
    for i in range(1, 7):
        groups += f'<g id="a{i}">' + f'<use href="#a{i - 1}" fill="url(#g)" {TURNED}/>' * 10 + "</g>"
    return svg('<linearGradient id="g"><stop/><stop offset="1"/></linearGradient>' + groups)


@document
def blurs_beyond_edges(n):
    shapes = ""
    for i, size in enumerate(["1e9", "1e-9 1e300", ".5 1e5", "nan", "40"] * (50 // n)):
        edges = ["wrap", "duplicate"][i % 2]
        shapes += (f'<filter id="f{i}" x="0" y="0" width="1" height="1"><feGaussianBlur stdDeviation="{size}" '
                   f'edgeMode="{edges}"/></filter><rect width="100" height="100" filter="url(#f{i})"/>')
    return svg(shapes)


@document
def animations_of_values_used(n):
    values = ";".join(str(i) for i in range(9999))
    shape = f'<rect id="r" width="9" height="9"><animate attributeName="x" dur="9s" values="{values}"/></rect>'
    return svg(shape + '<use href="#r"/>' * (20000 // n))


@document
def animation_key_splines(n):
    count = 9000 // n
    times = ";".join(f"{i / count:.6f}" for i in range(count)) + ";1"
    splines = ";".join([".1 .9 .9 .1"] * count)
    values = ";".join(["1"] * (count + 1))
    return svg(f'<rect width="9" height="9"><animate attributeName="x" dur="9s" values="{values}" keyTimes="{times}" '
               f'keySplines="{splines}" calcMode="spline"/></rect>' * 40)


@document
def animation_key_points(n):
    count = 9000 // n
    times = ";".join(f"{i / count:.6f}" for i in range(count)) + ";1"
    points = ";".join(["1"] * (count + 1))
    return svg(f'<rect width="9" height="9"><animateMotion dur="9s" path="M0 0h9v9" keyPoints="{points}" '
               f'keyTimes="{times}" calcMode="linear"/></rect>' * 40)


@document
def animation_paced_paths(n):
    path = "M0 0" + "l1 1-1 1" * 500
    values = ";".join([path] * (100 // n or 1))
    return svg(f'<path d="{path}"><animate attributeName="d" dur="9s" calcMode="paced" values="{values}"/></path>' * 20)


@document
def animations_of_lists(n):
    numbers = " ".join(["1"] * 1000)
    return svg(f'<polyline points="{numbers}" stroke="red"><animate attributeName="points" dur="9s" additive="sum" '
               f'values="{numbers};{numbers}"/></polyline>' * (600 // n))


@document
def animations_of_transforms(n):
    return svg('<g><animateTransform attributeName="transform" type="rotate" from="0" to="9" dur="9s" additive="sum"/>' *
               400 + '<rect width="9" height="9"/>' * (20000 // n) + "</g>" * 400)


@document
def animations_of_styles(n):
    many = ";".join(f"--a{i}:{i}" for i in range(900))
    return svg(f'<g style="{many}"><animate attributeName="fill" values="red;blue" dur="9s"/>' +
               '<rect width="9" height="9"><set attributeName="stroke" to="red"/></rect>' * (40000 // n) + "</g>")


@document
def animations_of_classes(n):
    return svg("<style>.b rect{fill:red}.a ~ rect{fill:blue}</style>" +
               '<g class="a"><set attributeName="class" to="b"/>' * 200 + '<rect width="9" height="9"/>' * (40000 // n) +
               "</g>" * 200)


@document
def animation_chain(n):
    return svg("".join(f'<rect width="9" height="9"><animate id="a{i}" attributeName="x" to="9" dur=".001s" '
                       f'begin="{"a%d.end" % (i - 1) if i else "0s"}"/></rect>' for i in range(30000 // n)))


@document
def animation_targets_of_one(n):
    return svg('<rect id="r" width="9" height="9"/>' + "".join(
        f'<animate href="#r" attributeName="a{i}" to="9" dur="9s"/>' for i in range(60000 // n)))


@document
def animation_sandwiches(n):
    return svg('<rect id="r" width="9" height="9"/>' +
               '<animate href="#r" attributeName="fill" values="red;blue;color-mix(in oklch, red, blue)" dur="9s" '
               'additive="sum" accumulate="sum"/>' * (60000 // n))


@document
def animations_restarting(n):
    begins = ";".join(f"{i / 1000}s" for i in range(1000))
    return svg("".join(f'<rect width="9" height="9"><set id="a{i}" attributeName="x" to="9" dur="1ms" '
                       f'begin="{begins};a{(i + 1) % 50}.begin+.5ms"/></rect>' for i in range(50)))


@document
def nested_symbols(n):
    levels = "".join(f'<symbol id="s{i}" viewBox="0 0 9 9" overflow="hidden"><use href="#s{i - 1}"/><use href="#s{i - 1}" '
                     f'x="1"/></symbol>' for i in range(1, 30))
    return svg(f'<symbol id="s0" viewBox="0 0 9 9"><rect width="9" height="9"/></symbol>{levels}<use href="#s29"/>')


@document
def nested_viewports_cut(n):
    return svg('<svg viewBox="0 0 9 9" width="90" height="90" transform="rotate(1)" overflow="hidden">' * 300 +
               '<circle r="9"/>' * (5000 // n) + "</svg>" * 300)


@document
def viewports_many(n):
    return svg('<svg viewBox="0 0 9 9" width="90" height="90" transform="rotate(1)"><circle r="9"/></svg>' *
               (50000 // n))


@document
def uses_of_texts(n):
    return svg(f'<text id="t" y="50" class="a">{"ab" * 20}</text><style>.a{{fill:red}}</style>' +
               "".join(f'<use href="#t" fill="#{i:06x}" font-size="{1 + i / 1000}"/>' for i in range(40000 // n)))


@document
def uses_of_long_attributes(n):
    path = "M0 0" + "l1 1-1 1" * 10000
    return svg(f'<path id="p" data-x="{"x" * 100000}" d="{path}"/>' + '<use href="#p" fill="red"/>' * (20000 // n))


@document
def comments_and_instructions(n):
    return svg("<!--x-->" * (900000 // n) + "<?x y?>" * (900000 // n) + '<rect width="9" height="9"/>')


@document
def characters_in_runs(n):
    return svg("<text>" + "a<!--x-->" * (300000 // n) + "&amp;&#65;" * (90000 // n) + "</text>")


@document
def references_of_characters(n):
    return svg(f'<rect width="9" height="9" data-x="{"&amp;&#x41;" * (900000 // n)}"/><text>{"&lt;" * (1500000 // n)}'
               "</text>")


@document
def declarations_of_entities(n):
    names = "".join(f'<!ENTITY e{i} "a">' for i in range(300000 // n))
    return f"<!DOCTYPE svg [{names}]>" + svg("<text>&e1;&e2;</text>" + '<rect width="9" height="9"/>')


@document
def declarations_of_attributes(n):
    names = "".join(f'<!ATTLIST rect a{i} CDATA "1">' for i in range(200))
    return f"<!DOCTYPE svg [{names}]>" + svg('<rect width="9" height="9"/>' * (100000 // n))


@document
def names_of_elements(n):
    return svg("".join(f"<e{i}/>" for i in range(190000 // n)) + '<rect width="9" height="9"/>')


@document
def names_of_attributes(n):
    return svg("".join(f'<rect width="9" height="9" a{i}="1"/>' for i in range(190000 // n)))


@document
def names_long(n):
    name = "n" * (30000 // n)
    return svg(f"<{name}>" * 250 + '<rect width="9" height="9"/>' + f"</{name}>" * 250)


@document
def numbers_long(n):
    number = "1" + "0" * (100000 // n) + "." + "1" * (100000 // n) + "e-99999"
    return svg(f'<rect width="{number}" height="9" rx="{number}" transform="scale({number})" '
               f'stroke-dasharray="{number}" points="{number}"/>' * 16)


@document
def calculations_long(n):
    width = "calc(" + "1px + " * (200000 // n) + "1px)"
    return svg(f'<rect height="9" style="width:{width};x:{width}"/>' * 3)


@document
def calculations_deep(n):
    width = "calc(" * (200000 // n) + "1px" + ")" * (200000 // n)
    return svg(f'<rect height="9" style="width:{width};x:{width};fill:color-mix(in oklch, {"rgb(" * (99999 // n)}"/>' * 3)


@document
def colors_from_colors(n):
    color = "rgb(from " * 400 + "red" + " r g b)" * 400
    return svg(f'<rect width="9" height="9" style="fill:{color};stroke:{color}"/>' * (1100 // n))


@document
def shapes_of_css(n):
    points = ",".join(f"{i % 100}% {(i * 37) % 100}%" for i in range(30000 // n))
    return svg(f'<rect width="90" height="90" style="clip-path:polygon({points})"/>' * 20)


@document
def switches_of_languages(n):
    languages = ",".join(f"x{i}" for i in range(20000 // n))
    return svg("".join(f'<switch><g systemLanguage="{languages}"/><rect width="9" height="9"/></switch>' for _ in range(80)))


@document
def declarations_of_long_attributes(n):
    return (f"<!DOCTYPE svg [<!ATTLIST rect a CDATA '{'x' * (4000000 // n)}'>]>" +
            svg('<rect width="9" height="9"/>' * (100000 // n)))


@document
def entities_in_an_attribute(n):
    text = f"<!DOCTYPE svg [<!ENTITY e '{'x' * 4000}'>]>"
    return text + svg(f'<rect width="9" height="9" data-x="{"&e;" * (30000 // n)}"/>')

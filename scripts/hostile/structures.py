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


@document(refused=True)
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

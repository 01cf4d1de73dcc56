"""Hostile references: use, clip paths, masks, markers, filters."""

from hostile.document import document, svg


@document
def use_doubling(n):
    return svg("<defs><rect id='a0' width='9' height='9'/>" +
               "".join(f'<g id="a{i}"><use href="#a{i - 1}"/><use href="#a{i - 1}"/></g>' for i in range(1, 40)) +
               '</defs><use href="#a39"/>')


@document
def use_wide(n):
    return svg('<g id="a">' + '<rect width="9" height="9" fill="url(#g)"/>' * 1000 + "</g>" +
               '<linearGradient id="g"><stop/><stop offset="1" stop-color="red"/></linearGradient>' +
               '<use href="#a"/>' * (1000 // n))


@document
def use_chain(n):
    return svg('<rect id="a0" width="9" height="9"/>' + "".join(
        f'<use id="a{i}" href="#a{i - 1}"/>' for i in range(1, 100000 // n)))


@document
def use_deep_styles(n):
    return svg('<g id="a">' + "<g style='fill:red;stroke:blue'>" * 400 + '<rect width="9" height="9"/>' + "</g>" * 401 +
               '<use href="#a"/>' * (10000 // n))


@document
def use_circular(n):
    return svg("".join(f'<g id="a{i}"><use href="#a{(i + 1) % 30}"/><use href="#a{(i + 2) % 30}"/></g>'
                       for i in range(30)))


@document
def clips_nested(n):
    return svg("".join(f'<clipPath id="c{i}" clip-path="url(#c{i + 1})"><circle r="90"/></clipPath>'
                       for i in range(400)) + '<rect width="90" height="90" clip-path="url(#c0)"/>' * (1000 // n))


@document
def clips_branching(n):
    return svg("".join(f'<clipPath id="c{i}">' + f'<rect width="90" height="90" clip-path="url(#c{i + 1})"/>' * 4 +
                       "</clipPath>" for i in range(20)) +
               '<rect width="90" height="90" clip-path="url(#c0)"/>')


@document
def masks_nested(n):
    return svg("".join(f'<mask id="m{i}"><g mask="url(#m{i + 1})"><rect width="90" height="90" fill="white"/>'
                       f'</g><g mask="url(#m{i + 1})"><rect width="9" height="90" fill="white"/></g></mask>'
                       for i in range(30)) + '<rect width="90" height="90" mask="url(#m0)"/>' * (100 // n or 1))


@document
def masks_many(n):
    return svg('<mask id="m"><rect width="90" height="90" fill="white"/></mask>' +
               '<rect width="90" height="90" mask="url(#m)"/>' * (20000 // n))


@document
def markers_many(n):
    return svg('<marker id="m" markerWidth="3" markerHeight="3" orient="auto"><path d="M0 0L3 3 0 3z"/></marker>'
               f'<path marker-mid="url(#m)" fill="none" stroke="red" d="M0 0{"l1 1-1 1" * (16000 // n)}"/>')


@document
def markers_heavy(n):
    marked = f'<path marker-mid="url(#m)" stroke="red" d="M0 0{"l1 1-1 1" * (16000 // n)}"/>'
    return svg('<marker id="m" markerWidth="3" markerHeight="3" orient="auto">' + '<path d="M0 0L3 3 0 3z"/>' * 1000 +
               "</marker>" + marked * 10)


@document
def markers_nested(n):
    return svg("".join(f'<marker id="m{i}"><path marker-mid="url(#m{i + 1})" stroke="red" '
                       f'd="M0 0{"l1 1-1 1" * 20}"/></marker>' for i in range(16)) +
               '<path marker-mid="url(#m0)" stroke="red" d="M0 0l1 1 1 1 1 1 1 1"/>')


@document
def opacity_nested(n):
    return svg('<g opacity=".9"><rect width="100" height="100"/>' * 500 + "</g>" * 500)


@document
def opacity_many(n):
    return svg('<g opacity=".9"><rect width="100" height="100"/><rect width="9" height="9"/></g>' * (50000 // n))


@document
def blend_many(n):
    return svg('<rect width="100" height="100" fill="red" style="mix-blend-mode:luminosity"/>' * (20000 // n))


@document
def filter_blur(n):
    return svg('<filter id="f" x="-9" y="-9" width="20" height="20"><feGaussianBlur stdDeviation="1e8"/></filter>' +
               '<rect width="90" height="90" filter="url(#f)"/>' * (100 // n or 1))


@document
def filter_chain(n):
    return svg('<filter id="f" x="-9" y="-9" width="20" height="20">' +
               '<feGaussianBlur stdDeviation="9"/><feTurbulence baseFrequency=".1" numOctaves="99"/>' * 50 + '</filter>' +
               '<rect width="90" height="90" filter="url(#f)"/>' * (20 // n or 1))


@document
def filter_morphology(n):
    return svg('<filter id="f"><feMorphology operator="dilate" radius="1e5"/></filter>' +
               '<rect width="90" height="90" filter="url(#f)"/>' * (500 // n or 1))


@document
def filter_convolve(n):
    size = 99
    kernel = "1 " * (size * size)
    return svg(f'<filter id="f"><feConvolveMatrix order="{size}" kernelMatrix="{kernel}"/></filter>' +
               '<rect width="90" height="90" filter="url(#f)"/>' * (50 // n or 1))


@document
def filter_light(n):
    return svg('<filter id="f"><feSpecularLighting specularExponent="99"><fePointLight z="9"/></feSpecularLighting>'
               '</filter>' + '<rect width="90" height="90" filter="url(#f)"/>' * (500 // n or 1))


@document
def filter_turbulence(n):
    return svg('<filter id="f"><feTurbulence baseFrequency=".9" numOctaves="999"/></filter>' +
               '<rect width="90" height="90" filter="url(#f)"/>' * (200 // n or 1))


@document
def filter_merges(n):
    return svg('<filter id="f"><feMerge>' + "<feMergeNode/>" * (50000 // n) + "</feMerge></filter>" +
               '<rect width="90" height="90" filter="url(#f)"/>' * 10)


@document
def filter_tiles(n):
    return svg('<filter id="f"><feFlood x="0" y="0" width=".01" height=".01" flood-color="red"/><feTile/></filter>' +
               '<rect width="90" height="90" filter="url(#f)"/>' * (500 // n or 1))


@document
def filter_transfer(n):
    table = "0 1 " * (200000 // n)
    return svg(f'<filter id="f"><feComponentTransfer><feFuncR type="table" tableValues="{table}"/>'
               '</feComponentTransfer></filter>' + '<rect width="90" height="90" filter="url(#f)"/>' * 50)


@document
def filter_functions(n):
    return svg(f'<rect width="90" height="90" filter="{"blur(9px) " * 99}"/>' * (50 // n or 1))


@document
def filter_small_many(n):
    return svg('<filter id="f"><feGaussianBlur stdDeviation="1"/></filter>' +
               '<rect width="3" height="3" filter="url(#f)"/>' * (50000 // n))


@document
def filter_images(n):
    return svg('<filter id="f"><feImage href="#g"/></filter><g id="g">' + '<rect width="9" height="9"/>' * 1000 +
               "</g>" + '<rect width="90" height="90" filter="url(#f)"/>' * (1000 // n))


@document
def filter_nested_groups(n):
    return svg('<filter id="f"><feOffset dx="1e8"/></filter>' + '<g filter="url(#f)">' * 60 +
               '<rect width="90" height="90"/>' + "</g>" * 60)

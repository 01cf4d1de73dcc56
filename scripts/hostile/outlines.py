"""Hostile outlines and strokes."""

from hostile.document import document, svg


@document
def path_segments(n):
    return svg(f'<path fill="none" stroke="red" stroke-linejoin="round" d="M0 0{"l1 1-1 1" * (2000000 // n)}"/>')


@document
def path_zigzags(n):
    line = "".join(f"L{100 * (i % 2)} {i % 97}" for i in range(32000 // n))
    return svg(f'<path stroke="red" d="M0 0{line}"/>' * 20)


@document
def path_round_strokes(n):
    line = "".join(f"L{100 * (i % 2)} {i % 97}" for i in range(32000 // n))
    return svg(f'<path stroke="red" stroke-width="50" fill="none" stroke-linejoin="round" stroke-linecap="round" '
               f'd="M0 0{line}"/>' * 20)


@document
def path_curves(n):
    line = "".join(f"C{i % 89} {i % 83} {i % 79} {i % 73} {i % 71} {i % 97}" for i in range(32000 // n))
    return svg(f'<path stroke="red" stroke-width="9" d="M0 0{line}"/>' * 10)


@document
def path_arcs(n):
    line = "".join(f"A{i % 89} {i % 83} {i} 1 0 {i % 71} {i % 97}" for i in range(32000 // n))
    return svg(f'<path stroke="red" stroke-width="9" d="M0 0{line}"/>' * 10)


@document
def path_curves_shared(n):
    line = "".join(f"C{i % 89} {i % 83} {i % 79} {i % 73} {i % 71} {i % 97}" for i in range(32000 // n))
    return svg(f'<defs><path id="p" stroke="red" stroke-width="9" d="M0 0{line}"/></defs>' + '<use href="#p"/>' * 2000)


@document
def path_non_scaling(n):
    line = "".join(f"L{100 * (i % 2)} {i % 97}" for i in range(32000 // n))
    return svg(f'<path stroke="red" vector-effect="non-scaling-stroke" transform="skewX(30)" d="M0 0{line}"/>' * 20)


@document
def path_skewed(n):
    line = "".join(f"C{i % 89} {i % 83} {i % 79} {i % 73} {i % 71} {i % 97}" for i in range(32000 // n))
    return svg(f'<path stroke="red" stroke-width="9" transform="skewX(30) scale(1 2)" d="M0 0{line}"/>' * 20)


@document
def path_nan(n):
    return svg('<path stroke="red" d="M1e308 1e308L-1e308 1e308A1e308 1e308 0 0 1 5 5C1e308 1e308 -1e308 0 0 0z" '
               'transform="scale(1e308) rotate(1e308) skewX(90) translate(-1e308 1e308)"/>' * (20000 // n))


@document
def dashes_tiny(n):
    line = "".join(f"L{100 * (i % 2)} {i % 97}" for i in range(16000 // n))
    return svg(f'<path stroke="red" fill="none" stroke-dasharray=".08 .08" d="M0 0{line}"/>' * 20)


@document
def dashes_at_limit(n):
    return svg('<path stroke="red" fill="none" stroke-width="30" stroke-linecap="round" stroke-dasharray=".006 .006" '
               'd="M0 0H100"/>' * (2000 // n))


@document
def dashes_array(n):
    return svg(f'<path stroke="red" fill="none" stroke-dasharray="{"1 2 " * (500000 // n)}" d="M0 0H100"/>' * 2)


@document
def dashes_path_length(n):
    return svg('<path stroke="red" fill="none" stroke-dasharray="1" pathLength="1e9" d="M0 0H100"/>' * (20000 // n))


@document
def dashes_offset(n):
    return svg('<path stroke="red" fill="none" stroke-dasharray="1e-5 50" stroke-dashoffset="1e9" d="M0 0H100"/>' *
               (20000 // n))


@document
def circles_wide_strokes(n):
    return svg('<circle r="1e8" stroke="red" stroke-width="1e6" stroke-dasharray="1e5 1e5"/>' * (5000 // n))


@document
def points_many(n):
    return svg(f'<polyline fill="none" stroke="red" points="{"1 2,3 4 " * (1500000 // n)}"/>')


@document
def rects_many(n):
    return svg('<rect width="100" height="100" rx="9" stroke="red"/>' * (199000 // n))


@document
def rects_elsewhere(n):
    return svg('<rect x="500" width="100" height="100" rx="9" stroke="red" stroke-dasharray="1"/>' * (100000 // n))

"""Hostile selectors, custom properties and names."""

from hostile.document import document, svg

RECT = '<rect width="9" height="9"/>'


@document
def selectors_of_long_strings(n):
    """The searched word is nearly everywhere."""
    size = 400000 // n
    rule = "".join(f'[data-x*="b{"a" * (size // 2)}"{flag}]{{fill:red}}' for flag in ("", " i"))
    return svg(f'<style>{rule}</style><g data-x="{"a" * size}">{RECT * 50}</g>')


@document
def selectors_of_long_strings_above(n):
    rules = "".join(f'[data-x*="ab{i}"] rect{{fill:red}}' for i in range(100))
    return svg(f'<style>{rules}</style><g data-x="{"a" * (6000000 // n)}">{RECT * (20000 // n)}</g>')


@document
def selectors_of_words(n):
    """Words that share only the beginning of the searched one."""
    words = ("a" * 2000 + " ") * (1000 // n)
    rule = "".join(f'[data-x~="{"a" * 1999}{i}" i]{{fill:red}}' for i in range(200))
    return svg(f'<style>{rule}</style>' + f'<g data-x="{words}">{RECT * 50}</g>')


@document
def selectors_of_long_ids(n):
    name = "a" * (400000 // n)
    rules = f"#{name}{{" + "rect&amp;{fill:red}" * 10 + "}" + f"#{name} " * 20 + "rect{fill:red}"
    return svg(f'<style>{rules}</style><g id="{name}">{RECT * (20000 // n)}</g>')


@document
def selectors_of_many_attributes(n):
    many = " ".join(f'a{i}="1"' for i in range(250))
    rule = "".join(f'[b{i}][c]{{fill:red}}[*|d{i}]{{fill:blue}}' for i in range(5000 // n))
    return svg(f"<style>{rule}</style>" + f"<rect {many}/>" * (5000 // n))


@document
def selectors_of_languages(n):
    names = ",".join(f"en-{i}" for i in range(500000 // n))
    return svg(f'<style>:lang({names}){{fill:red}}</style>' + f'<g lang="en">{RECT * (20000 // n)}</g>')


@document
def selectors_of_long_languages(n):
    name = "en" + "-x" * (400000 // n)
    rules = f':lang("{name}-y"){{fill:red}}' * 4 + f'[lang|="{name}-y"]{{fill:red}}' * 4
    return svg(f'<style>{rules}</style><g lang="{name}-x">{RECT * (20000 // n)}</g>')


@document
def selectors_around_many(n):
    around = ",".join(["rect"] * (15000 // n))
    return svg(f"<style>{around}{{{'&amp;' * (300000 // n)}{{fill:red}}}}</style>{RECT * 100}")


@document
def selectors_around_each(n):
    around = ",".join(["rect"] * (10000 // n))
    return svg(f"<style>{around}{{{'&amp; &amp;{fill:red}' * (9000 // n)}}}</style>{RECT * 100}")


@document
def selectors_of_long_tags(n):
    name = "t" * (15000 // n)
    return svg(f"<style>g rect{{fill:red}}{name} {name} {name} rect.x{{fill:red}}</style>" +
               f"<{name}>" * 400 + RECT * (50000 // n) + f"</{name}>" * 400)


@document
def selectors_of_long_classes_above(n):
    names = " ".join(f"c{i}" for i in range(100000 // n))
    return svg("<style>.x .y rect{fill:red}.c1 rect{fill:blue}.x ~ rect{fill:red}</style>" +
               f'<g class="{names}">{RECT * (90000 // n)}</g>')


@document
def selectors_of_many_compounds(n):
    rules = "".join("rect" + f".a{i}" + ":not(.b)" * 200 + "{fill:red}" for i in range(5000 // n))
    return svg(f"<style>{rules}</style>" + f'<rect class="a1 a2 a3" width="9" height="9"/>' * (20000 // n))


@document
def selectors_has_in_groups(n):
    rules = "g:has(> rect > circle){fill:red}g:has(circle.x) rect{fill:red}"
    return svg(f"<style>{rules}</style>" + "<g>" * 400 + RECT * (50000 // n) + "</g>" * 400)


@document
def selectors_has_of_all(n):
    rules = ":has(x)" * 8 + "{fill:red}:not(:has(x)):not(:has(y)) rect{fill:blue}"
    return svg(f"<style>{rules}</style>" + f"<g>{RECT * 20}</g>" * (8000 // n))


@document
def selectors_counting_back(n):
    rules = "".join(f"rect:nth-last-child({i}n + 1):nth-child({i}){{fill:red}}" for i in range(1, 200))
    return svg(f"<style>{rules}</style>" + RECT * (100000 // n))


@document
def selectors_only_texts(n):
    """Text between all elements."""
    return svg("<style>rect + rect ~ circle{fill:red}</style>" + f"{RECT} x" * (90000 // n))


@document
def variables_in_a_circle(n):
    names = 9000 // n
    declared = ";".join(f"--a{i}:" + f"var(--a{(i + 1) % names})" * 8 for i in range(names))
    return svg(f'<svg style="{declared}"/>' + f'<g style="{declared}"><rect width="9" height="9" fill="var(--a1)"/></g>')


@document
def variables_in_circles_each(n):
    declared = ";".join(f"--a{i}:" + f"var(--a{(i * 7 + 1) % 20},var(--a{(i + 3) % 20}))" * 8 for i in range(20))
    return svg("".join(f'<rect width="9" height="9" style="{declared};--b:{i};fill:var(--a1)"/>'
                       for i in range(3000 // n)))


@document
def variables_in_circles_of_all(n):
    declared = ";".join(f"--a{i}:" + f"var(--a{(i + 1) % 19})" * 16 for i in range(19))
    return svg(f"<style>*{{{declared}}}</style>" + "".join(
        f'<rect width="9" height="9" style="--b:{i};fill:var(--a1)"/>' for i in range(50000 // n)))


@document
def variables_in_circles_of_the_root(n):
    names = 10000 // n
    declared = ";".join(f"--a{i}:var(--a{(i + 1) % names},var(--a{(i + 2) % names}))" for i in range(names))
    return svg(f"<style>:root{{{declared}}}</style>{RECT}")


@document
def variables_long(n):
    declared = ";".join(f"--a{i}:{'x' * 4000}" for i in range(100)) + ";" + ";".join(
        f"--b{i}:var(--a{i % 100}) " for i in range(9000 // n))
    return svg(f"<style>:root{{{declared}}}</style>" + '<rect width="9" height="9" style="fill:var(--b1)"/>' * 9000)


@document
def variables_open_brackets(n):
    value = "var(--a," * (150000 // n)
    return svg(f'<rect width="9" height="9" style="fill:{value};stroke:{value}"/>' * 5)


@document
def variables_fallbacks(n):
    value = "var(--a)" * 60 + "x" * 4000
    return svg("".join(f'<rect width="9" height="9" style="--b:{i};' +
                       ";".join(f"{name}:{value}" for name in ("fill", "stroke", "stroke-width", "color", "opacity")) +
                       '"/>' for i in range(700 // n)))


@document
def values_long_of_each(n):
    """A long value with an error in every declaration, for every matching element."""
    value = "min(" + "1px," * 1000 + "1px)"
    return svg(f"<style>rect{{stroke-width:{value};x:{value};y:{value};width:{value}}}</style>" +
               '<rect height="9"/>' * (50000 // n))


@document
def values_long_of_paths(n):
    data = "M0 0" + "l1 1-1 1" * (5000 // n)
    return svg(f"<style>path{{d:path('{data}')}}</style>" + "<path/>" * (20000 // n))


@document
def values_long_of_families(n):
    families = ",".join(f"family{i}" for i in range(150))
    return svg(f"<style>text{{font-family:{families}}}</style>" + '<text y="50">a</text>' * (50000 // n))


@document
def shorthands_long(n):
    return svg('<rect width="9" height="9" style="font:' + "italic " * (700000 // n) + '9px x;' +
               "text-decoration:" + "underline " * (700000 // n) + '"/>')


@document
def media_queries_long(n):
    return svg(f"<style>@media {'(' * (200000 // n)}screen{')' * (200000 // n)}{{rect{{fill:red}}}}"
               f"@supports {'not (' * (200000 // n)}fill:red{')' * (200000 // n)}{{rect{{fill:red}}}}</style>{RECT}")


@document
def media_queries_nested(n):
    return svg("<style>" + "@media screen{" * (200000 // n) + "rect{fill:red}" + "}" * (200000 // n) +
               "@supports (fill:red){" * (100000 // n) + f"</style>{RECT}")


@document
def media_queries_many(n):
    return svg("<style>" + "@media screen,print,(width>1px) and (height>1px){rect{fill:red}}" * (15000 // n) +
               f"</style>{RECT * 1000}")


@document
def sheets_many(n):
    return svg("<style>rect{fill:red}</style>" * (60000 // n) + RECT * 1000)


@document
def sheet_problems_many(n):
    return svg("<style>" + "rect{fill:nonsense}\n" * (300000 // n) + f"</style>{RECT}")


@document
def style_attributes_unknown(n):
    return svg("".join(f'<rect width="9" height="9" style="{"x-y:z;" * 100}fill:#{i:06x}"/>' for i in range(20000 // n)))


@document
def ids_long(n):
    name = "a" * (100000 // n)
    return svg("".join(f'<rect id="{name}{i}" width="9" height="9"/>' for i in range(40)) +
               "".join(f'<use href="#{name}{i}"/>' for i in range(40)) +
               "".join(f'<use href="#{name}"/>' for i in range(60)))


@document
def ids_that_collide(n):
    """Names that differ only at their ends."""
    name = "a" * 50
    return svg("".join(f'<rect id="{name}{i}" class="{name}{i}" width="9" height="9"/>' for i in range(50000 // n)) +
               "<style>" + "".join(f".{name}{i}{{fill:red}}" for i in range(20000 // n)) + "</style>")


@document
def sheet_escaped_quotes(n):
    """Unterminated strings, and closing quotes without a string."""
    return svg("<style>rect{fill:" + "\\'" * (700000 // n) + "}" + "g{x:'" + "\\'" * (700000 // n) + f"}}</style>{RECT}")


@document
def sheet_spaces(n):
    return svg("<style>rect{fill:a" + " " * (2000000 // n) + "b}" + "rect{fill:red!" + " " * (2000000 // n) +
               f"importan}}</style>{RECT}")


@document
def sheet_problems_late(n):
    return svg("<style>" + "/* x */ " * (1900000 // n) + "rect{fill:nonsense}" * 200 + f"</style>{RECT}")


@document
def selectors_of_long_attribute_names(n):
    name = "a" * (4000 // n)
    many = " ".join(f'{name}{i:03}="1"' for i in range(200))
    rules = "".join(f"[{name}{i}] rect{{fill:red}}" for i in range(500, 600))
    return svg(f"<style>{rules}</style><g {many}>{RECT * (20000 // n)}</g>")


@document
def selectors_of_many_tests(n):
    return svg("<style>rect" + ":not(x)" * (300000 // n) + "{fill:red}rect" + ":empty" * (300000 // n) +
               "{fill:red}rect" + ".a" * (300000 // n) + "{fill:red}</style>" +
               '<rect class="a" width="9" height="9"/>' * (50000 // n))


@document
def selectors_of_classes_sorted(n):
    rules = "".join(f".c{i % 256}{{fill:red}}" for i in range(20000 // n))
    names = " ".join(f"c{i}" for i in range(256))
    return svg(f"<style>{rules}</style>" + f'<rect class="{names}" width="9" height="9"/>' * (10000 // n))


@document
def selectors_universal_many(n):
    rules = "".join(f"[x='{i}']{{fill:red}}" for i in range(10000 // n))
    return svg(f"<style>{rules}</style>" + '<rect width="1" height="1"/>' * (190000 // n))


@document
def variables_copied(n):
    """Each element would contain the long value that it refers to many times."""
    declared = ";".join(f"--b{i}:var(--a)" for i in range(20))
    return svg(f'<g style="--a:{"x" * 4000}">' + "".join(f'<rect width="9" height="9" style="{declared};--c:{i}"/>'
                                                        for i in range(40000 // n)) + "</g>")


@document
def variables_in_rules(n):
    names = ("stroke-dasharray", "stroke-width", "x", "y", "width", "rx", "font-size", "letter-spacing")
    rule = ";".join(f"{name}:var(--a)" for name in names)
    return svg(f"<style>rect{{{rule}}}:root{{--a:calc({'1px + ' * 600}1px)}}</style>" + "".join(
        f'<rect height="9" style="--c:{i}"/>' for i in range(100000 // n)))


@document
def gradients_deep(n):
    return svg("<g>" * 480 + "".join(f'<linearGradient id="g{i}"><stop/><stop offset="1"/></linearGradient>'
                                     for i in range(40000 // n)) + "</g>" * 480 +
               "".join(f'<rect width="9" height="9" fill="url(#g{i})"/>' for i in range(40000 // n)))


@document
def motions_deep(n):
    return svg("<g>" * 480 + '<path id="p" d="M0 0h9"/>' + "</g>" * 480 +
               '<rect width="9" height="9"><animateMotion dur="9s"><mpath href="#p"/></animateMotion></rect>' * (40000 // n))

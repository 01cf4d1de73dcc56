"""Hostile style sheets, gradients and patterns."""

from hostile.document import document, svg


@document
def css_many_classes(n):
    rules = "".join(f".c{i}{{fill:red}}" for i in range(10000 // n))
    return svg(f"<style>{rules}</style>" + "".join(
        f'<rect class="c{i % 10000}" width="1" height="1"/>' for i in range(20000 // n)))


@document
def css_many_universal(n):
    rules = "".join(f"[x='{i}']{{fill:red}}" for i in range(10000 // n))
    return svg(f"<style>{rules}</style>" + '<rect width="1" height="1"/>' * (20000 // n))


@document
def css_many_tags(n):
    rules = "".join(f"g rect{{fill:rgb({i % 256},0,0)}}" for i in range(10000 // n))
    return svg(f"<style>{rules}</style>" + '<rect width="1" height="1"/>' * (20000 // n))


@document
def css_all_match(n):
    rules = "rect{fill:red;stroke:blue}" * (10000 // n)
    return svg(f"<style>{rules}</style>" + '<rect width="1" height="1"/>' * (20000 // n))


@document
def css_descendant_chains(n):
    chain = " ".join(["g"] * 60)
    rules = "".join(f".a {chain} .b{i} rect{{fill:red}}" for i in range(2000 // n))
    return svg(f"<style>{rules}</style>" + "<g>" * 500 + '<rect width="1" height="1"/>' * (20000 // n) +
               "</g>" * 500)


@document
def css_siblings(n):
    return svg("<style>rect~rect~rect~circle{fill:red}rect:nth-last-child(2n+1){fill:blue}"
               "rect:nth-of-type(3n){fill:lime}</style>" + '<rect width="1" height="1"/>' * (50000 // n))


@document
def css_not(n):
    return svg("<style>" + ":not(:not(g g g g)):not(.a,.b,.c){fill:red}" * (5000 // n) + "</style>" + "<g>" * 100 +
               '<rect width="1" height="1"/>' * (10000 // n) + "</g>" * 100)


@document
def css_many_classes_of_one(n):
    names = " ".join(f"c{i}" for i in range(100000 // n))
    rules = "".join(f".c{i}{{fill:red}}" for i in range(10000 // n))
    return svg(f'<style>{rules}</style><g class="{names}">' + f'<rect class="{names}" width="9" height="9"/>' * 3 +
               "</g>")


@document
def css_long_class_lists(n):
    names = "a " * (5000 // n)
    rules = "".join(f"rect.b{i}{{fill:red}}.x .c{i}{{fill:red}}" for i in range(5000 // n))
    return svg(f"<style>{rules}</style>" + f'<rect class="{names}" width="9" height="9"/>' * (1000 // n))


@document
def css_selector_lists(n):
    return svg("<style>" + ",".join(["rect.a"] * (1000000 // n)) + "{fill:red}</style>" +
               '<rect class="a" width="9" height="9"/>' * 1000)


@document
def css_broken(n):
    return svg("<style>" + "{{}}@@;" * (1000000 // n) + "</style><rect width='9' height='9'/>")


@document
def css_open_strings(n):
    return svg("<style>" + "a'b" * (1000000 // n) + "</style><rect width='9' height='9'/>")


@document
def css_comments(n):
    return svg("<style>" + "/**/" * (2000000 // n) + "rect{fill:red}</style><rect width='9' height='9'/>")


@document
def css_declarations(n):
    return svg("<style>rect{" + "fill:red;" * (500000 // n) + "}</style>" + '<rect width="9" height="9"/>' * (500 // n))


@document
def style_attribute_huge(n):
    return svg(f'<rect width="9" height="9" style="{"fill:red;" * (1500000 // n)}"/>')


@document
def style_attributes_important(n):
    return svg(f'<rect width="9" height="9" style="{"fill:red!important;" * (700000 // n)}"/>')


@document
def gradient_stops(n):
    stops = "".join(f'<stop offset="{i / 100000:.5f}" stop-color="red"/>' for i in range(100000 // n))
    return svg(f'<linearGradient id="a">{stops}</linearGradient>' +
               '<rect width="9" height="9" fill="url(#a)"/>' * (50 // n or 1))


@document
def gradient_shapes(n):
    stops = "".join(f'<stop offset="{i / 1000}" stop-color="red"/>' for i in range(1000))
    return svg(f'<linearGradient id="a">{stops}</linearGradient>' +
               '<rect width="9" height="9" fill="url(#a)" stroke="url(#a)"/>' * (50000 // n))


@document
def gradient_chain(n):
    return svg("".join(f'<linearGradient id="a{i}" href="#a{i + 1}"/>' for i in range(1000)) +
               '<linearGradient id="a31"><stop/><stop offset="1" stop-color="red"/></linearGradient>' +
               '<rect width="9" height="9" fill="url(#a0)"/>' * (100000 // n))


@document
def gradient_in_deep_groups(n):
    return svg("<g>" * 500 + '<linearGradient id="a"><stop/><stop offset="1" stop-color="red"/></linearGradient>' +
               "</g>" * 500 + '<rect width="9" height="9" fill="url(#a)"/>' * (50000 // n))


@document
def patterns_many(n):
    return svg("".join(f'<pattern id="p{i}" width=".1" height=".1"><rect width="9" height="9"/></pattern>'
                       for i in range(3000 // n)) +
               "".join(f'<rect width="100" height="100" fill="url(#p{i})"/>' for i in range(3000 // n)))


@document
def patterns_bounds(n):
    return svg('<pattern id="p" width=".1" height=".1"><rect width="9" height="9"/></pattern>' +
               "".join(f'<rect width="{100 + i / 1000}" height="100" fill="url(#p)"/>' for i in range(50000 // n)))


@document
def patterns_nested(n):
    levels = 16
    return svg("".join(f'<pattern id="p{i}" width="90" height="90" patternUnits="userSpaceOnUse">' +
                       f'<rect width="90" height="90" fill="url(#p{i + 1})"/>' * (20 // n or 2) + "</pattern>"
                       for i in range(levels)) +
               '<rect width="100" height="100" fill="url(#p0)"/>')


@document
def patterns_nested_sizes(n):
    return svg("".join(f'<pattern id="p{i}" width=".9" height=".9">' +
                       "".join(f'<rect width="{90 + k}" height="90" fill="url(#p{i + 1})"/>' for k in range(6)) +
                       "</pattern>" for i in range(15)) +
               '<rect width="100" height="100" fill="url(#p0)"/>')


@document
def pattern_huge(n):
    return svg('<pattern id="p" width="1e8" height="1e8" patternUnits="userSpaceOnUse">'
               '<circle r="1e8" stroke="red" stroke-width="1e5"/></pattern>'
               '<g transform="scale(1e6)"><rect width="1e8" height="1e8" fill="url(#p)"/></g>' * (20 // n or 1))


@document
def pattern_tiny(n):
    return svg('<pattern id="p" width="1e-7" height="1e-7" patternUnits="userSpaceOnUse">'
               '<circle r="1"/></pattern><rect width="1e8" height="1e8" fill="url(#p)"/>' * (200 // n or 1))


@document
def pattern_large_tiles(n):
    return svg("".join(f'<pattern id="p{i}" width="100" height="100" patternUnits="userSpaceOnUse" '
                       'patternTransform="scale(.05)">'
                       '<circle r="1"/></pattern><rect width="100" height="100" fill="url(#p%d)" '
                       'transform="scale(400)"/>' % i for i in range(2000 // n)))


@document
def css_rules_inside_rules(n):
    lists = ",".join(["rect"] * 8) + "{"
    return svg(f"<style>{lists * 14}fill:red</style>" + '<rect width="9" height="9"/>' * (2000 // n))


@document
def css_outer_selectors_multiplied(n):
    rules = ":is(&amp;,&amp; &amp;,&amp; > &amp;){" * 15
    return svg(f"<style>{rules}fill:red</style>" + "<g>" * 100 + '<rect width="9" height="9"/>' * (500 // n) +
               "</g>" * 100)


@document
def css_all_unset(n):
    return svg("<style>" + "rect{all:unset}" * (20000 // n) + "</style>" + '<rect width="1" height="1"/>' * (5000 // n))


@document
def css_has(n):
    rules = "".join("g:has(rect ~ rect:has(x)) rect:has(~ *:nth-child(2n of rect))"
                    f",g:has(rect + rect) rect:has(~ rect.c{i}){{fill:red}}" for i in range(300))
    return svg(f"<style>{rules}</style><g>" + '<rect width="1" height="1"/>' * (5000 // n) + "</g>")


@document
def css_nth_of(n):
    rules = ":nth-child(2n of :nth-child(2n of :nth-child(2n of *))){fill:red}" * 50
    return svg(f"<style>{rules}</style>" + '<rect width="1" height="1"/>' * (20000 // n))


@document
def css_layers(n):
    rules = "".join(f"@layer l{i}{{rect{{fill:red}}}}" for i in range(100000 // n))
    return svg(f"<style>{rules}</style>" + '<rect width="1" height="1"/>' * 1000)


@document
def css_nested_functions(n):
    width = "min(1%," * 15 + "1px" + ")" * 15
    mixed = "color-mix(in oklch, " * 15 + "red" + ", blue)" * 15
    return svg(f'<rect height="9" style="width:{width};fill:{mixed}"/>' * (5000 // n))

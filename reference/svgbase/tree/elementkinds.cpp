#include "tree/elementkinds.h"

namespace Svg {

namespace {

struct KindName
{
    QLatin1String name;
    ElementKind kind;
};

// Ordered by frequency in templates: the table is searched from the front.
const KindName kindNames[] = {
    {QLatin1String("path"), ElementKind::Path},
    {QLatin1String("rect"), ElementKind::Rect},
    {QLatin1String("g"), ElementKind::Group},
    {QLatin1String("ellipse"), ElementKind::Ellipse},
    {QLatin1String("circle"), ElementKind::Circle},
    {QLatin1String("line"), ElementKind::Line},
    {QLatin1String("polygon"), ElementKind::Polygon},
    {QLatin1String("polyline"), ElementKind::Polyline},
    {QLatin1String("title"), ElementKind::Description},
    {QLatin1String("stop"), ElementKind::Stop},
    {QLatin1String("text"), ElementKind::Text},
    {QLatin1String("tspan"), ElementKind::Tspan},
    {QLatin1String("textPath"), ElementKind::TextPath},
    {QLatin1String("tref"), ElementKind::Tref},
    // A deprecated way to select glyphs; its own characters are set.
    {QLatin1String("altGlyph"), ElementKind::Tspan},
    {QLatin1String("use"), ElementKind::Use},
    {QLatin1String("defs"), ElementKind::Defs},
    {QLatin1String("linearGradient"), ElementKind::LinearGradient},
    {QLatin1String("radialGradient"), ElementKind::RadialGradient},
    {QLatin1String("image"), ElementKind::Image},
    {QLatin1String("svg"), ElementKind::NestedSvg},
    {QLatin1String("symbol"), ElementKind::Symbol},
    {QLatin1String("switch"), ElementKind::Switch},
    {QLatin1String("a"), ElementKind::Group},
    {QLatin1String("desc"), ElementKind::Description},
    {QLatin1String("style"), ElementKind::Style},
    {QLatin1String("pattern"), ElementKind::Pattern},
    {QLatin1String("animate"), ElementKind::Animate},
    {QLatin1String("animateTransform"), ElementKind::AnimateTransform},
    {QLatin1String("animateMotion"), ElementKind::AnimateMotion},
    {QLatin1String("animateColor"), ElementKind::AnimateColor},
    {QLatin1String("set"), ElementKind::SetValue},
    {QLatin1String("mpath"), ElementKind::MotionPath},
    {QLatin1String("clipPath"), ElementKind::ClipPath},
    {QLatin1String("mask"), ElementKind::Mask},
    {QLatin1String("marker"), ElementKind::Marker},
    {QLatin1String("filter"), ElementKind::Filter},
    {QLatin1String("feBlend"), ElementKind::FeBlend},
    {QLatin1String("feColorMatrix"), ElementKind::FeColorMatrix},
    {QLatin1String("feComponentTransfer"), ElementKind::FeComponentTransfer},
    {QLatin1String("feComposite"), ElementKind::FeComposite},
    {QLatin1String("feDropShadow"), ElementKind::FeDropShadow},
    {QLatin1String("feFlood"), ElementKind::FeFlood},
    {QLatin1String("feGaussianBlur"), ElementKind::FeGaussianBlur},
    {QLatin1String("feImage"), ElementKind::FeImage},
    {QLatin1String("feMerge"), ElementKind::FeMerge},
    {QLatin1String("feMergeNode"), ElementKind::FeMergeNode},
    {QLatin1String("feMorphology"), ElementKind::FeMorphology},
    {QLatin1String("feOffset"), ElementKind::FeOffset},
    {QLatin1String("feTile"), ElementKind::FeTile},
    {QLatin1String("feFuncR"), ElementKind::FeFuncR},
    {QLatin1String("feFuncG"), ElementKind::FeFuncG},
    {QLatin1String("feFuncB"), ElementKind::FeFuncB},
    {QLatin1String("feFuncA"), ElementKind::FeFuncA},
    {QLatin1String("feConvolveMatrix"), ElementKind::FeConvolveMatrix},
    {QLatin1String("feDiffuseLighting"), ElementKind::FeDiffuseLighting},
    {QLatin1String("feDisplacementMap"), ElementKind::FeDisplacementMap},
    {QLatin1String("feSpecularLighting"), ElementKind::FeSpecularLighting},
    {QLatin1String("feTurbulence"), ElementKind::FeTurbulence},
    {QLatin1String("feDistantLight"), ElementKind::FeDistantLight},
    {QLatin1String("fePointLight"), ElementKind::FePointLight},
    {QLatin1String("feSpotLight"), ElementKind::FeSpotLight},
    {QLatin1String("glyph"), ElementKind::Glyph},
    {QLatin1String("hkern"), ElementKind::HorizontalKerning},
    {QLatin1String("vkern"), ElementKind::VerticalKerning},
    {QLatin1String("missing-glyph"), ElementKind::MissingGlyph},
    {QLatin1String("font-face"), ElementKind::FontFace},
    {QLatin1String("font"), ElementKind::Font},
};

} // namespace

ElementKind elementKind(QStringView localName)
{
    for (const KindName &known : kindNames)
        if (localName == known.name)
            return known.kind;
    return ElementKind::Other;
}

QLatin1String elementName(ElementKind kind)
{
    const ElementKind named = kind == ElementKind::Document ? ElementKind::NestedSvg : kind;
    for (const KindName &known : kindNames)
        if (named == known.kind)
            return known.name;
    return QLatin1String();
}

bool isStructure(ElementKind kind)
{
    switch (kind) {
    case ElementKind::Document:
    case ElementKind::Group:
    case ElementKind::Switch:
    case ElementKind::NestedSvg:
    case ElementKind::Symbol:
    case ElementKind::Defs:
        return true;
    default:
        return false;
    }
}

bool hasGeometry(ElementKind kind)
{
    return kind >= ElementKind::Rect && kind <= ElementKind::Text;
}

bool isDrawable(ElementKind kind)
{
    switch (kind) {
    case ElementKind::Group:
    case ElementKind::Switch:
    case ElementKind::NestedSvg:
    case ElementKind::Use:
    case ElementKind::Image:
        return true;
    default:
        return hasGeometry(kind);
    }
}

bool isTextPart(ElementKind kind)
{
    return kind >= ElementKind::Tspan && kind <= ElementKind::Tref;
}

bool isAnimation(ElementKind kind)
{
    return kind >= ElementKind::Animate && kind <= ElementKind::SetValue;
}

bool isPaintServerPart(ElementKind kind)
{
    return kind == ElementKind::LinearGradient || kind == ElementKind::RadialGradient ||
           kind == ElementKind::Stop || kind == ElementKind::Pattern;
}

bool isFontPart(ElementKind kind)
{
    return kind >= ElementKind::Font && kind <= ElementKind::VerticalKerning;
}

bool isEffectPart(ElementKind kind)
{
    return kind >= ElementKind::ClipPath && kind <= ElementKind::Pattern;
}

} // namespace Svg

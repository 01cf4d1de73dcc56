#include "tree/attributes.h"

namespace Svg {

namespace {

struct AttributeName
{
    QLatin1String name;
    AttributeId id;
};

const AttributeName attributeNames[] = {
    {QLatin1String("alignment-baseline"), AttributeId::AlignmentBaseline},
    {QLatin1String("baseline-shift"), AttributeId::BaselineShift},
    {QLatin1String("class"), AttributeId::Class},
    {QLatin1String("clip"), AttributeId::Clip},
    {QLatin1String("clip-path"), AttributeId::ClipPath},
    {QLatin1String("clip-rule"), AttributeId::ClipRule},
    {QLatin1String("color"), AttributeId::Color},
    {QLatin1String("color-interpolation"), AttributeId::ColorInterpolation},
    {QLatin1String("color-interpolation-filters"), AttributeId::ColorInterpolationFilters},
    {QLatin1String("cx"), AttributeId::Cx},
    {QLatin1String("cy"), AttributeId::Cy},
    {QLatin1String("d"), AttributeId::D},
    {QLatin1String("direction"), AttributeId::Direction},
    {QLatin1String("display"), AttributeId::Display},
    {QLatin1String("dominant-baseline"), AttributeId::DominantBaseline},
    {QLatin1String("dx"), AttributeId::Dx},
    {QLatin1String("dy"), AttributeId::Dy},
    {QLatin1String("fill"), AttributeId::Fill},
    {QLatin1String("fill-opacity"), AttributeId::FillOpacity},
    {QLatin1String("fill-rule"), AttributeId::FillRule},
    {QLatin1String("filter"), AttributeId::Filter},
    {QLatin1String("flood-color"), AttributeId::FloodColor},
    {QLatin1String("flood-opacity"), AttributeId::FloodOpacity},
    {QLatin1String("font-family"), AttributeId::FontFamily},
    {QLatin1String("font-kerning"), AttributeId::FontKerning},
    {QLatin1String("font-size"), AttributeId::FontSize},
    {QLatin1String("font-size-adjust"), AttributeId::FontSizeAdjust},
    {QLatin1String("font-stretch"), AttributeId::FontStretch},
    {QLatin1String("font-style"), AttributeId::FontStyle},
    {QLatin1String("font-variant"), AttributeId::FontVariant},
    {QLatin1String("font-variant-ligatures"), AttributeId::FontVariantLigatures},
    {QLatin1String("font-weight"), AttributeId::FontWeight},
    {QLatin1String("fr"), AttributeId::Fr},
    {QLatin1String("fx"), AttributeId::Fx},
    {QLatin1String("fy"), AttributeId::Fy},
    {QLatin1String("glyph-orientation-vertical"), AttributeId::GlyphOrientationVertical},
    {QLatin1String("gradientTransform"), AttributeId::GradientTransform},
    {QLatin1String("gradientUnits"), AttributeId::GradientUnits},
    {QLatin1String("height"), AttributeId::Height},
    {QLatin1String("href"), AttributeId::Href},
    {QLatin1String("id"), AttributeId::Id},
    {QLatin1String("image-rendering"), AttributeId::ImageRendering},
    {QLatin1String("inline-size"), AttributeId::InlineSize},
    {QLatin1String("isolation"), AttributeId::Isolation},
    {QLatin1String("kerning"), AttributeId::Kerning},
    {QLatin1String("letter-spacing"), AttributeId::LetterSpacing},
    {QLatin1String("line-height"), AttributeId::LineHeight},
    {QLatin1String("lighting-color"), AttributeId::LightingColor},
    {QLatin1String("marker"), AttributeId::Marker},
    {QLatin1String("marker-end"), AttributeId::MarkerEnd},
    {QLatin1String("marker-mid"), AttributeId::MarkerMid},
    {QLatin1String("marker-start"), AttributeId::MarkerStart},
    {QLatin1String("mask"), AttributeId::Mask},
    {QLatin1String("mask-type"), AttributeId::MaskType},
    {QLatin1String("mix-blend-mode"), AttributeId::MixBlendMode},
    {QLatin1String("offset"), AttributeId::Offset},
    {QLatin1String("opacity"), AttributeId::Opacity},
    {QLatin1String("paint-order"), AttributeId::PaintOrder},
    {QLatin1String("overflow"), AttributeId::Overflow},
    {QLatin1String("pathLength"), AttributeId::PathLength},
    {QLatin1String("points"), AttributeId::Points},
    {QLatin1String("preserveAspectRatio"), AttributeId::PreserveAspectRatio},
    {QLatin1String("r"), AttributeId::R},
    {QLatin1String("refX"), AttributeId::RefX},
    {QLatin1String("refY"), AttributeId::RefY},
    {QLatin1String("requiredExtensions"), AttributeId::RequiredExtensions},
    {QLatin1String("requiredFeatures"), AttributeId::RequiredFeatures},
    {QLatin1String("systemLanguage"), AttributeId::SystemLanguage},
    {QLatin1String("rotate"), AttributeId::Rotate},
    {QLatin1String("scale"), AttributeId::Scale},
    {QLatin1String("translate"), AttributeId::Translate},
    {QLatin1String("rx"), AttributeId::Rx},
    {QLatin1String("ry"), AttributeId::Ry},
    {QLatin1String("shape-rendering"), AttributeId::ShapeRendering},
    {QLatin1String("spreadMethod"), AttributeId::SpreadMethod},
    {QLatin1String("stop-color"), AttributeId::StopColor},
    {QLatin1String("stop-opacity"), AttributeId::StopOpacity},
    {QLatin1String("stroke"), AttributeId::Stroke},
    {QLatin1String("stroke-dasharray"), AttributeId::StrokeDasharray},
    {QLatin1String("stroke-dashoffset"), AttributeId::StrokeDashoffset},
    {QLatin1String("stroke-linecap"), AttributeId::StrokeLinecap},
    {QLatin1String("stroke-linejoin"), AttributeId::StrokeLinejoin},
    {QLatin1String("stroke-miterlimit"), AttributeId::StrokeMiterlimit},
    {QLatin1String("stroke-opacity"), AttributeId::StrokeOpacity},
    {QLatin1String("stroke-width"), AttributeId::StrokeWidth},
    {QLatin1String("style"), AttributeId::Style},
    {QLatin1String("text-anchor"), AttributeId::TextAnchor},
    {QLatin1String("text-rendering"), AttributeId::TextRendering},
    {QLatin1String("text-decoration"), AttributeId::TextDecoration},
    {QLatin1String("text-decoration-color"), AttributeId::TextDecorationColor},
    {QLatin1String("text-decoration-line"), AttributeId::TextDecorationLine},
    {QLatin1String("text-decoration-style"), AttributeId::TextDecorationStyle},
    {QLatin1String("text-decoration-thickness"), AttributeId::TextDecorationThickness},
    {QLatin1String("text-orientation"), AttributeId::TextOrientation},
    {QLatin1String("text-transform"), AttributeId::TextTransform},
    {QLatin1String("text-underline-offset"), AttributeId::TextUnderlineOffset},
    {QLatin1String("text-underline-position"), AttributeId::TextUnderlinePosition},
    {QLatin1String("transform"), AttributeId::Transform},
    {QLatin1String("vector-effect"), AttributeId::VectorEffect},
    {QLatin1String("transform-box"), AttributeId::TransformBox},
    {QLatin1String("transform-origin"), AttributeId::TransformOrigin},
    {QLatin1String("unicode-bidi"), AttributeId::UnicodeBidi},
    {QLatin1String("viewBox"), AttributeId::ViewBox},
    {QLatin1String("visibility"), AttributeId::Visibility},
    {QLatin1String("white-space"), AttributeId::WhiteSpace},
    {QLatin1String("width"), AttributeId::Width},
    {QLatin1String("word-spacing"), AttributeId::WordSpacing},
    {QLatin1String("writing-mode"), AttributeId::WritingMode},
    {QLatin1String("x"), AttributeId::X},
    {QLatin1String("x1"), AttributeId::X1},
    {QLatin1String("x2"), AttributeId::X2},
    {QLatin1String("x_move"), AttributeId::XMove},
    {QLatin1String("xlink:href"), AttributeId::XlinkHref},
    {QLatin1String("xml:space"), AttributeId::XmlSpace},
    {QLatin1String("y"), AttributeId::Y},
    {QLatin1String("y1"), AttributeId::Y1},
    {QLatin1String("y2"), AttributeId::Y2},
    {QLatin1String("y_move"), AttributeId::YMove},
};

/// The names by a hash of their length and their ends; a few collide and are chained.
class NameTable
{
public:
    NameTable()
    {
        for (const AttributeName &known : attributeNames) {
            size_t place = placeOf(known.name);
            while (m_places[place])
                place = (place + 1) % placeCount;
            m_places[place] = &known;
        }
    }

    AttributeId find(QStringView name) const
    {
        if (name.isEmpty())
            return AttributeId::Unknown;
        for (size_t place = placeOf(name); m_places[place]; place = (place + 1) % placeCount) {
            const QLatin1String known = m_places[place]->name;
            if (known.size() == name.size() && name == known)
                return m_places[place]->id;
        }
        return AttributeId::Unknown;
    }

private:
    static constexpr size_t placeCount = 256;

    template<typename Text> static size_t placeOf(const Text &text)
    {
        const auto code = [](auto c) { return size_t(QChar(c).unicode()); };
        return (size_t(text.size()) * 31 + code(text.front()) * 7 + code(text.back()) * 13) % placeCount;
    }

    const AttributeName *m_places[placeCount] = {};
};

const AttributeValue &noValue()
{
    static const AttributeValue none;
    return none;
}

} // namespace

AttributeId attributeId(QStringView name)
{
    static const NameTable table;
    return table.find(name);
}

QLatin1String attributeName(AttributeId id)
{
    for (const AttributeName &known : attributeNames)
        if (known.id == id)
            return known.name;
    return QLatin1String();
}

const Attribute *Attributes::find(AttributeId id) const
{
    for (const Attribute &attribute : m_list)
        if (attribute.id == id)
            return &attribute;
    return nullptr;
}

const Attribute *Attributes::find(AttributeId id, const QString &name) const
{
    if (id != AttributeId::Unknown)
        return find(id);
    for (const Attribute &attribute : m_list)
        if (attribute.id == AttributeId::Unknown && attribute.name == name)
            return &attribute;
    return nullptr;
}

QString Attributes::value(AttributeId id) const
{
    return held(id).text();
}

QString Attributes::value(const QString &name) const
{
    return held(name).text();
}

const AttributeValue &Attributes::held(AttributeId id) const
{
    const Attribute *attribute = find(id);
    return attribute ? attribute->value : noValue();
}

const AttributeValue &Attributes::held(const QString &name) const
{
    const Attribute *attribute = find(attributeId(name), name);
    return attribute ? attribute->value : noValue();
}

void Attributes::change(const Attribute *known, const Attribute &wanted)
{
    const int place = known ? int(known - m_list.constData()) : -1;
    if (known && wanted.value.isNull())
        m_list.remove(place);
    else if (known)
        m_list[place].value = wanted.value;
    else if (!wanted.value.isNull())
        m_list.append(wanted);
}

void Attributes::set(const QString &name, const AttributeValue &value)
{
    const AttributeId id = attributeId(name);
    change(find(id, name), {id, id == AttributeId::Unknown ? name : QString(), value});
}

void Attributes::set(AttributeId id, const AttributeValue &value)
{
    change(find(id), {id, QString(), value});
}

} // namespace Svg

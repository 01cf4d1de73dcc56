#include "properties/effectproperties.h"

#include "grammar/basicshapes.h"
#include "grammar/cliprects.h"
#include "grammar/colors.h"
#include "grammar/numbers.h"
#include "grammar/paints.h"
#include "properties/propertyrows.h"

namespace Svg {

namespace {

const Keyword<Qt::FillRule> clipRules[] = {
    {QLatin1String("nonzero"), Qt::WindingFill},
    {QLatin1String("evenodd"), Qt::OddEvenFill},
};

const Keyword<BlendMode> blendModes[] = {
    {QLatin1String("normal"), BlendMode::Normal},
    {QLatin1String("multiply"), BlendMode::Multiply},
    {QLatin1String("screen"), BlendMode::Screen},
    {QLatin1String("overlay"), BlendMode::Overlay},
    {QLatin1String("darken"), BlendMode::Darken},
    {QLatin1String("lighten"), BlendMode::Lighten},
    {QLatin1String("color-dodge"), BlendMode::ColorDodge},
    {QLatin1String("color-burn"), BlendMode::ColorBurn},
    {QLatin1String("hard-light"), BlendMode::HardLight},
    {QLatin1String("soft-light"), BlendMode::SoftLight},
    {QLatin1String("difference"), BlendMode::Difference},
    {QLatin1String("exclusion"), BlendMode::Exclusion},
    {QLatin1String("hue"), BlendMode::Hue},
    {QLatin1String("saturation"), BlendMode::Saturation},
    {QLatin1String("color"), BlendMode::Color},
    {QLatin1String("luminosity"), BlendMode::Luminosity},
    {QLatin1String("plus-lighter"), BlendMode::PlusLighter},
};

const Keyword<bool> isolations[] = {
    {QLatin1String("auto"), false},
    {QLatin1String("isolate"), true},
};

const Keyword<MaskMode> maskModes[] = {
    {QLatin1String("match-source"), MaskMode::MatchSource},
    {QLatin1String("alpha"), MaskMode::Alpha},
    {QLatin1String("luminance"), MaskMode::Luminance},
};

const Keyword<bool> maskTypes[] = {
    {QLatin1String("luminance"), false},
    {QLatin1String("alpha"), true},
};

const Keyword<Overflow> overflows[] = {
    {QLatin1String("visible"), Overflow::Visible},
    {QLatin1String("auto"), Overflow::Visible},
    {QLatin1String("hidden"), Overflow::Hidden},
    {QLatin1String("scroll"), Overflow::Hidden},
};

// "auto" leaves the choice to the implementation: the default of the properties.
const Keyword<bool> colorInterpolations[] = {
    {QLatin1String("sRGB"), false},
    {QLatin1String("linearRGB"), true},
    {QLatin1String("auto"), false},
};

const Keyword<bool> imageRenderings[] = {
    {QLatin1String("auto"), true},           {QLatin1String("smooth"), true},
    {QLatin1String("high-quality"), true},   {QLatin1String("optimizeQuality"), true},
    {QLatin1String("pixelated"), false},     {QLatin1String("crisp-edges"), false},
    {QLatin1String("optimizeSpeed"), false},
};

const Keyword<bool> shapeRenderings[] = {
    {QLatin1String("auto"), true},
    {QLatin1String("geometricPrecision"), true},
    {QLatin1String("optimizeSpeed"), false},
    {QLatin1String("crispEdges"), false},
};

const Keyword<bool> textRenderings[] = {
    {QLatin1String("auto"), true},
    {QLatin1String("geometricPrecision"), true},
    {QLatin1String("optimizeLegibility"), true},
    {QLatin1String("optimizeSpeed"), false},
};

struct ReferenceCodec
{
    static std::optional<QString> read(QStringView text, const ComputedStyle &, const PropertyContext &)
    {
        QString id;
        return readReference(text, &id) ? std::optional<QString>(id) : std::nullopt;
    }
    static QString print(const QString &id) { return referenceText(id); }
};

// The shorthand also sets the mode; its other parts have no effect on the masks of SVG elements.
bool applyMask(ComputedStyle &style, QStringView text, const PropertyContext &)
{
    QString id;
    if (!readReference(text, &id))
        return false;
    const QStringView behind = text.mid(text.indexOf(QLatin1Char(')')) + 1).trimmed();
    setIn(style, &EffectStyle::mask, id);
    setIn(style, &EffectStyle::maskMode, keywordValue(behind, maskModes).value_or(MaskMode::MatchSource));
    return true;
}

QString printMask(const ComputedStyle &style)
{
    const EffectStyle &effects = effectStyleOf(style);
    const QString mask = referenceText(effects.mask);
    return effects.maskMode == MaskMode::MatchSource
               ? mask
               : mask + QLatin1Char(' ') + keywordName(effects.maskMode, maskModes);
}

struct ClipRectCodec
{
    static std::optional<QString> read(QStringView text, const ComputedStyle &, const PropertyContext &)
    {
        if (!parseClipRect(text))
            return std::nullopt;
        return text.endsWith(QLatin1Char(')')) ? text.toString() : QString();
    }
    static QString print(const QString &rect) { return rect.isEmpty() ? QStringLiteral("auto") : rect; }
};

bool applyClipPath(ComputedStyle &style, QStringView text, const PropertyContext &)
{
    QString id;
    const bool isReference = readReference(text, &id);
    if (!isReference && !parseClipShape(text))
        return false;
    setIn(style, &EffectStyle::clipPath, id);
    setIn(style, &EffectStyle::clipShape, isReference ? QString() : text.toString());
    return true;
}

QString printClipPath(const ComputedStyle &style)
{
    const EffectStyle &effects = effectStyleOf(style);
    return effects.clipShape.isEmpty() ? referenceText(effects.clipPath) : effects.clipShape;
}

bool applyFilter(ComputedStyle &style, QStringView text, const PropertyContext &context)
{
    if (text.isEmpty())
        return false;
    const QString list = text == QLatin1String("none") ? QString() : text.toString();
    setIn(style, &EffectStyle::filter, list);
    if (!list.isEmpty())
        setIn(style, &EffectStyle::filterUnits,
              context.isAttribute ? FilterUnits::Optional : FilterUnits::Required);
    return true;
}

QString printFilter(const ComputedStyle &style)
{
    const QString &list = effectStyleOf(style).filter;
    return list.isEmpty() ? QStringLiteral("none") : list;
}

bool applyMarkers(ComputedStyle &style, QStringView text, const PropertyContext &)
{
    QString id;
    if (!readReference(text, &id))
        return false;
    for (QString MarkerStyle::*member : {&MarkerStyle::start, &MarkerStyle::mid, &MarkerStyle::end})
        setIn(style, member, id);
    return true;
}

// A shorthand has no text for differing values.
QString printMarkers(const ComputedStyle &style)
{
    const MarkerStyle &markers = markerStyleOf(style);
    const bool alike = markers.start == markers.mid && markers.mid == markers.end;
    return alike ? referenceText(markers.start) : QString();
}

constexpr Property rows[] = {
    valueRow<&EffectStyle::clipRect, ClipRectCodec>(AttributeId::Clip),
    propertyRow<&EffectStyle::clipPath, &EffectStyle::clipShape>(AttributeId::ClipPath, applyClipPath,
                                                                 printClipPath, discrete),
    keywordRow<&ComputedStyle::clipRule, clipRules>(AttributeId::ClipRule),
    keywordRow<&ComputedStyle::mixesLinear, colorInterpolations>(AttributeId::ColorInterpolation),
    keywordRow<&ComputedStyle::filtersLinear, colorInterpolations>(AttributeId::ColorInterpolationFilters),
    propertyRow<&EffectStyle::filter, &EffectStyle::filterUnits>(AttributeId::Filter, applyFilter, printFilter,
                                                                 discrete),
    colorRow<&EffectStyle::floodColor, ColorCodec>(AttributeId::FloodColor),
    numberRow<&EffectStyle::floodOpacity, OpacityCodec>(AttributeId::FloodOpacity),
    keywordRow<&ComputedStyle::smoothImages, imageRenderings>(AttributeId::ImageRendering),
    forStyleOnly(keywordRow<&EffectStyle::isolated, isolations>(AttributeId::Isolation)),
    colorRow<&EffectStyle::lightingColor, ColorCodec>(AttributeId::LightingColor),
    forStyleOnly(propertyRow<&MarkerStyle::start, &MarkerStyle::mid, &MarkerStyle::end>(
        AttributeId::Marker, applyMarkers, printMarkers, discrete)),
    valueRow<&MarkerStyle::end, ReferenceCodec>(AttributeId::MarkerEnd),
    valueRow<&MarkerStyle::mid, ReferenceCodec>(AttributeId::MarkerMid),
    valueRow<&MarkerStyle::start, ReferenceCodec>(AttributeId::MarkerStart),
    propertyRow<&EffectStyle::mask, &EffectStyle::maskMode>(AttributeId::Mask, applyMask, printMask, discrete),
    keywordRow<&EffectStyle::alphaMask, maskTypes>(AttributeId::MaskType),
    forStyleOnly(keywordRow<&EffectStyle::blendMode, blendModes>(AttributeId::MixBlendMode)),
    keywordRow<&EffectStyle::overflow, overflows>(AttributeId::Overflow),
    keywordRow<&ComputedStyle::smoothShapes, shapeRenderings>(AttributeId::ShapeRendering),
    keywordRow<&ComputedStyle::smoothText, textRenderings>(AttributeId::TextRendering),
};
static_assert(isComplete(rows, AttributeId::Clip, AttributeId::TextRendering));

} // namespace

const Property *effectProperties()
{
    return rows;
}

// Filters lack the operators that are not blend modes.
BlendMode blendModeOf(QStringView name)
{
    const BlendMode mode = keywordValue(name, blendModes).value_or(BlendMode::Normal);
    return mode == BlendMode::PlusLighter ? BlendMode::Normal : mode;
}

} // namespace Svg

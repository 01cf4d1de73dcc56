#include "properties/effectproperties.h"

#include "grammar/basicshapes.h"
#include "grammar/cliprects.h"
#include "grammar/colors.h"
#include "grammar/numbers.h"
#include "grammar/paints.h"
#include "properties/keywords.h"

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

// "auto" leaves the choice, which is the one that the properties are specified with.
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

EffectStyle &effectsOf(ComputedStyle &style)
{
    if (!style.effects)
        style.effects = new EffectStyle;
    return *style.effects;
}

MarkerStyle &markersOf(ComputedStyle &style)
{
    if (!style.markers)
        style.markers = new MarkerStyle;
    return *style.markers;
}

// What is left out makes no record for values that say nothing.
const EffectStyle &knownEffects(const ComputedStyle &style)
{
    static const QSharedDataPointer<EffectStyle> none(new EffectStyle);
    return style.effects ? *style.effects : *none;
}

bool readReference(QStringView text, QString *id)
{
    if (text == QLatin1String("none")) {
        id->clear();
        return true;
    }
    QStringView rest;
    *id = functionReference(text, &rest);
    return !id->isEmpty() || text.startsWith(QLatin1String("url("), Qt::CaseInsensitive);
}

bool applyReference(ComputedStyle &style, QString EffectStyle::*member, QStringView text)
{
    QString id;
    if (!readReference(text, &id))
        return false;
    if (knownEffects(style).*member != id)
        effectsOf(style).*member = id;
    return true;
}

// The shorthand also sets the mode; its other parts make no difference to the mask of an element of SVG.
bool applyMask(ComputedStyle &style, QStringView text)
{
    if (!applyReference(style, &EffectStyle::mask, text))
        return false;
    MaskMode mode = MaskMode::MatchSource;
    const QStringView behind = text.mid(text.indexOf(QLatin1Char(')')) + 1).trimmed();
    applyKeyword(mode, behind, maskModes);
    if (knownEffects(style).maskMode != mode)
        effectsOf(style).maskMode = mode;
    return true;
}

bool applyClipRect(ComputedStyle &style, QStringView text)
{
    if (!parseClipRect(text))
        return false;
    const QString rect = text.endsWith(QLatin1Char(')')) ? text.toString() : QString();
    if (knownEffects(style).clipRect != rect)
        effectsOf(style).clipRect = rect;
    return true;
}

bool applyClip(ComputedStyle &style, QStringView text)
{
    if (applyReference(style, &EffectStyle::clipPath, text)) {
        if (!knownEffects(style).clipShape.isEmpty())
            effectsOf(style).clipShape.clear();
        return true;
    }
    if (!parseClipShape(text))
        return false;
    effectsOf(style).clipShape = text.toString();
    effectsOf(style).clipPath.clear();
    return true;
}

bool applyFilter(ComputedStyle &style, QStringView text, const PropertyContext &context)
{
    const QString list = text == QLatin1String("none") ? QString() : text.toString();
    if (knownEffects(style).filter != list)
        effectsOf(style).filter = list;
    const FilterUnits units = context.isAttribute ? FilterUnits::Optional : FilterUnits::Required;
    if (!list.isEmpty() && knownEffects(style).filterUnits != units)
        effectsOf(style).filterUnits = units;
    return !text.isEmpty();
}

template<typename Value, size_t count>
bool applyEffectKeyword(ComputedStyle &style, Value EffectStyle::*member, QStringView text,
                        const Keyword<Value> (&keywords)[count])
{
    Value value = knownEffects(style).*member;
    if (!applyKeyword(value, text, keywords))
        return false;
    if (knownEffects(style).*member != value)
        effectsOf(style).*member = value;
    return true;
}

// Filters do not know the one that is no mode of blending.
bool applyBlendMode(ComputedStyle &style, QStringView text)
{
    if (text.compare(QLatin1String("plus-lighter"), Qt::CaseInsensitive) != 0)
        return applyEffectKeyword(style, &EffectStyle::blendMode, text, blendModes);
    effectsOf(style).blendMode = BlendMode::PlusLighter;
    return true;
}

bool applyMarker(ComputedStyle &style, QStringView text, std::initializer_list<QString MarkerStyle::*> members)
{
    QString id;
    if (!readReference(text, &id))
        return false;
    if (id.isEmpty() && !style.markers)
        return true;
    for (QString MarkerStyle::*member : members)
        markersOf(style).*member = id;
    return true;
}

bool applyEffectColor(ComputedStyle &style, QColor EffectStyle::*member, QStringView text)
{
    if (text.compare(QLatin1String("currentColor"), Qt::CaseInsensitive) == 0) {
        effectsOf(style).*member = style.color;
        return true;
    }
    const std::optional<QColor> color = parseColor(text, {style.color});
    if (color)
        effectsOf(style).*member = *color;
    return color.has_value();
}

bool applyFloodOpacity(ComputedStyle &style, QStringView text)
{
    const std::optional<double> opacity = parseOpacity(text);
    if (opacity)
        effectsOf(style).floodOpacity = *opacity;
    return opacity.has_value();
}

template<typename Value>
void inheritMember(ComputedStyle &style, Value EffectStyle::*member, const ComputedStyle &parent)
{
    if (knownEffects(style).*member != knownEffects(parent).*member)
        effectsOf(style).*member = knownEffects(parent).*member;
}

void inheritMarker(ComputedStyle &style, QString MarkerStyle::*member, const ComputedStyle &parent)
{
    const QString above = parent.markers ? (*parent.markers).*member : QString();
    if (style.markers || !above.isEmpty())
        markersOf(style).*member = above;
}

} // namespace

BlendMode blendModeOf(QStringView name)
{
    BlendMode mode = BlendMode::Normal;
    applyKeyword(mode, name, blendModes);
    return mode;
}

bool applyEffectProperty(ComputedStyle &style, AttributeId property, QStringView value,
                         const PropertyContext &context)
{
    switch (property) {
    case AttributeId::Clip:
        return applyClipRect(style, value);
    case AttributeId::ClipPath:
        return applyClip(style, value);
    case AttributeId::ClipRule:
        return applyKeyword(style.clipRule, value, clipRules);
    case AttributeId::ColorInterpolation:
        return applyKeyword(style.mixesLinear, value, colorInterpolations);
    case AttributeId::ColorInterpolationFilters:
        return applyKeyword(style.filtersLinear, value, colorInterpolations);
    case AttributeId::Filter:
        return applyFilter(style, value, context);
    case AttributeId::FloodColor:
        return applyEffectColor(style, &EffectStyle::floodColor, value);
    case AttributeId::FloodOpacity:
        return applyFloodOpacity(style, value);
    case AttributeId::ImageRendering:
        return applyKeyword(style.smoothImages, value, imageRenderings);
    case AttributeId::Isolation:
        return applyEffectKeyword(style, &EffectStyle::isolated, value, isolations);
    case AttributeId::LightingColor:
        return applyEffectColor(style, &EffectStyle::lightingColor, value);
    case AttributeId::Marker:
        return applyMarker(style, value, {&MarkerStyle::start, &MarkerStyle::mid, &MarkerStyle::end});
    case AttributeId::MarkerEnd:
        return applyMarker(style, value, {&MarkerStyle::end});
    case AttributeId::MarkerMid:
        return applyMarker(style, value, {&MarkerStyle::mid});
    case AttributeId::MarkerStart:
        return applyMarker(style, value, {&MarkerStyle::start});
    case AttributeId::Mask:
        return applyMask(style, value);
    case AttributeId::MaskType:
        return applyEffectKeyword(style, &EffectStyle::alphaMask, value, maskTypes);
    case AttributeId::MixBlendMode:
        return applyBlendMode(style, value);
    case AttributeId::Overflow:
        return applyEffectKeyword(style, &EffectStyle::overflow, value, overflows);
    case AttributeId::ShapeRendering:
        return applyKeyword(style.smoothShapes, value, shapeRenderings);
    case AttributeId::TextRendering:
        return applyKeyword(style.smoothText, value, textRenderings);
    default:
        return false;
    }
}

void inheritEffectProperty(ComputedStyle &style, AttributeId property, const ComputedStyle &parent)
{
    switch (property) {
    case AttributeId::Clip:
        inheritMember(style, &EffectStyle::clipRect, parent);
        break;
    case AttributeId::ClipPath:
        inheritMember(style, &EffectStyle::clipPath, parent);
        inheritMember(style, &EffectStyle::clipShape, parent);
        break;
    case AttributeId::ClipRule:
        style.clipRule = parent.clipRule;
        break;
    case AttributeId::ColorInterpolation:
        style.mixesLinear = parent.mixesLinear;
        break;
    case AttributeId::ColorInterpolationFilters:
        style.filtersLinear = parent.filtersLinear;
        break;
    case AttributeId::Filter:
        inheritMember(style, &EffectStyle::filter, parent);
        inheritMember(style, &EffectStyle::filterUnits, parent);
        break;
    case AttributeId::FloodColor:
        inheritMember(style, &EffectStyle::floodColor, parent);
        break;
    case AttributeId::FloodOpacity:
        inheritMember(style, &EffectStyle::floodOpacity, parent);
        break;
    case AttributeId::ImageRendering:
        style.smoothImages = parent.smoothImages;
        break;
    case AttributeId::Isolation:
        inheritMember(style, &EffectStyle::isolated, parent);
        break;
    case AttributeId::LightingColor:
        inheritMember(style, &EffectStyle::lightingColor, parent);
        break;
    case AttributeId::Marker:
        style.markers = parent.markers;
        break;
    case AttributeId::MarkerEnd:
        inheritMarker(style, &MarkerStyle::end, parent);
        break;
    case AttributeId::MarkerMid:
        inheritMarker(style, &MarkerStyle::mid, parent);
        break;
    case AttributeId::MarkerStart:
        inheritMarker(style, &MarkerStyle::start, parent);
        break;
    case AttributeId::Mask:
        inheritMember(style, &EffectStyle::mask, parent);
        inheritMember(style, &EffectStyle::maskMode, parent);
        break;
    case AttributeId::MaskType:
        inheritMember(style, &EffectStyle::alphaMask, parent);
        break;
    case AttributeId::MixBlendMode:
        inheritMember(style, &EffectStyle::blendMode, parent);
        break;
    case AttributeId::Overflow:
        inheritMember(style, &EffectStyle::overflow, parent);
        break;
    case AttributeId::ShapeRendering:
        style.smoothShapes = parent.smoothShapes;
        break;
    case AttributeId::TextRendering:
        style.smoothText = parent.smoothText;
        break;
    default:
        break;
    }
}

} // namespace Svg

#include "animation/basevalue.h"

#include "grammar/numbers.h"

namespace Svg {

namespace {

QString colorText(const QColor &color)
{
    if (!color.isValid())
        return QString();
    const QString name = color.name(QColor::HexArgb);
    return color.alpha() == 255 ? color.name() : QLatin1Char('#') + name.mid(3) + name.mid(1, 2);
}

QString paintText(const Paint &paint)
{
    if (paint.kind == Paint::Color)
        return colorText(paint.color);
    if (paint.kind == Paint::Server)
        return QStringLiteral("url(#%1) %2").arg(paint.server, colorText(paint.color));
    return QStringLiteral("none");
}

QString dashText(const QVector<double> &dashes)
{
    QStringList numbers;
    for (const double dash : dashes)
        numbers.append(numberText(dash));
    return numbers.isEmpty() ? QStringLiteral("none") : numbers.join(QLatin1Char(' '));
}

} // namespace

QString propertyText(const ComputedStyle &style, AttributeId property)
{
    switch (property) {
    case AttributeId::Color:
        return colorText(style.color);
    case AttributeId::Fill:
        return paintText(style.fill);
    case AttributeId::FillOpacity:
        return numberText(style.fillOpacity);
    case AttributeId::FontSize:
        return numberText(style.font.size);
    case AttributeId::FontWeight:
        return numberText(style.font.weight);
    case AttributeId::Opacity:
        return numberText(style.opacity);
    case AttributeId::StopColor:
        return colorText(style.stopColor);
    case AttributeId::StopOpacity:
        return numberText(style.stopOpacity);
    case AttributeId::Stroke:
        return paintText(style.stroke);
    case AttributeId::StrokeDasharray:
        return dashText(style.strokeDasharray);
    case AttributeId::StrokeDashoffset:
        return numberText(style.strokeDashoffset);
    case AttributeId::StrokeMiterlimit:
        return numberText(style.strokeMiterlimit);
    case AttributeId::StrokeOpacity:
        return numberText(style.strokeOpacity);
    case AttributeId::StrokeWidth:
        return numberText(style.strokeWidth);
    case AttributeId::Visibility:
        return style.visible ? QStringLiteral("visible") : QStringLiteral("hidden");
    default:
        return QString();
    }
}

QString defaultAttributeText(ElementKind kind, AttributeId attribute)
{
    if (kind == ElementKind::LinearGradient && attribute == AttributeId::X2)
        return QStringLiteral("100%");
    const bool circle = attribute == AttributeId::Cx || attribute == AttributeId::Cy || attribute == AttributeId::R;
    return kind == ElementKind::RadialGradient && circle ? QStringLiteral("50%") : QString();
}

} // namespace Svg

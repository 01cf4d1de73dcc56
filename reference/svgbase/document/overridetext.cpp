#include "document/overridetext.h"

#include "document/xmltext.h"
#include "grammar/numbers.h"

#include <QtGui/QPen>

namespace Svg {

namespace {

QString declaration(const char *property, const QString &value)
{
    return QLatin1String(property) + QLatin1Char(':') + value + QLatin1String(" !important;");
}

QString opacityText(const QColor &color)
{
    return numberText(color.isValid() ? color.alphaF() : 1);
}

QString opaqueText(const QColor &color)
{
    return color.isValid() ? color.name() : QStringLiteral("#000000");
}

QString matrixText(const QTransform &t)
{
    const QStringList entries{numberText(t.m11()), numberText(t.m12()), numberText(t.m21()),
                              numberText(t.m22()), numberText(t.dx()),  numberText(t.dy())};
    return QLatin1String("matrix(") + entries.join(QLatin1Char(' ')) + QLatin1Char(')');
}

// Painters count dashes in widths of the pen.
QString dashText(Qt::PenStyle penStyle, double width)
{
    if (penStyle == Qt::SolidLine)
        return QStringLiteral("none");
    QStringList dashes;
    const QVector<qreal> pattern = QPen(penStyle).dashPattern();
    for (const qreal dash : pattern)
        dashes.append(numberText(dash * width));
    return dashes.join(QLatin1Char(' '));
}

QString lineStyleText(Qt::PenStyle penStyle, double width)
{
    if (penStyle == Qt::NoPen)
        return declaration("stroke", QStringLiteral("none"));
    if (penStyle == Qt::CustomDashLine)
        return QString();
    // The offset of the node's own dashes has no effect on a painter's line style.
    return declaration("stroke-dasharray", dashText(penStyle, width)) +
           declaration("stroke-dashoffset", QStringLiteral("0"));
}

bool isWritableGradient(const QBrush &brush)
{
    const QGradient *gradient = brush.gradient();
    return gradient &&
           (gradient->type() == QGradient::LinearGradient || gradient->type() == QGradient::RadialGradient);
}

// Replaces a brush without an equivalent SVG paint.
QColor substitute(const QBrush &brush)
{
    const QGradient *gradient = brush.gradient();
    return gradient && !gradient->stops().isEmpty() ? gradient->stops().constFirst().second : brush.color();
}

QString unitsText(const QGradient &gradient)
{
    const bool ofBounds = gradient.coordinateMode() == QGradient::ObjectMode ||
                          gradient.coordinateMode() == QGradient::ObjectBoundingMode;
    return ofBounds ? QStringLiteral("objectBoundingBox") : QStringLiteral("userSpaceOnUse");
}

QString spreadText(QGradient::Spread spread)
{
    switch (spread) {
    case QGradient::ReflectSpread:
        return QStringLiteral("reflect");
    case QGradient::RepeatSpread:
        return QStringLiteral("repeat");
    case QGradient::PadSpread:
        break;
    }
    return QStringLiteral("pad");
}

void writeLine(XmlText *xml, const QLinearGradient &gradient)
{
    xml->attribute(QStringLiteral("x1"), numberText(gradient.start().x()));
    xml->attribute(QStringLiteral("y1"), numberText(gradient.start().y()));
    xml->attribute(QStringLiteral("x2"), numberText(gradient.finalStop().x()));
    xml->attribute(QStringLiteral("y2"), numberText(gradient.finalStop().y()));
}

void writeCircles(XmlText *xml, const QRadialGradient &gradient)
{
    xml->attribute(QStringLiteral("cx"), numberText(gradient.center().x()));
    xml->attribute(QStringLiteral("cy"), numberText(gradient.center().y()));
    xml->attribute(QStringLiteral("r"), numberText(gradient.centerRadius()));
    xml->attribute(QStringLiteral("fx"), numberText(gradient.focalPoint().x()));
    xml->attribute(QStringLiteral("fy"), numberText(gradient.focalPoint().y()));
    xml->attribute(QStringLiteral("fr"), numberText(gradient.focalRadius()));
}

double mixed(double from, double to, double share)
{
    return from + (to - from) * share;
}

QColor mixedColor(const QColor &from, const QColor &to, double share, double alpha)
{
    return QColor::fromRgbF(mixed(from.redF(), to.redF(), share), mixed(from.greenF(), to.greenF(), share),
                            mixed(from.blueF(), to.blueF(), share), alpha);
}

// Equal steps of the colour, which a painter weights by the alpha; the alpha itself changes evenly. The colour of a
// transparent end doesn't count.
void appendWeighted(const QGradientStop &from, const QGradientStop &to, QGradientStops *stops)
{
    const double alpha = from.second.alphaF();
    const double alphaAtEnd = to.second.alphaF();
    if (alpha <= 0 || alphaAtEnd <= 0) {
        const QColor seen = alpha > 0 ? from.second : to.second;
        stops->append({from.first, mixedColor(seen, seen, 0, alpha)});
        stops->append({to.first, mixedColor(seen, seen, 0, alphaAtEnd)});
        return;
    }
    constexpr int parts = 32;
    for (int part = 0; part <= parts; ++part) {
        const double share = part / double(parts);
        const double place = share * alpha / mixed(alphaAtEnd, alpha, share);
        stops->append({mixed(from.first, to.first, place),
                       mixedColor(from.second, to.second, share, mixed(alpha, alphaAtEnd, place))});
    }
}

// Painters may multiply colours by their alpha before interpolating, SVG never does (SVG 1.1 §13.2.4): stops in
// between preserve the look.
QGradientStops stopsOfChannels(const QGradient &gradient)
{
    const QGradientStops stops = gradient.stops();
    if (gradient.interpolationMode() == QGradient::ComponentInterpolation)
        return stops;
    QGradientStops result;
    for (int i = 0; i < stops.size(); ++i) {
        const bool fades = i > 0 && stops.at(i - 1).second.alpha() != stops.at(i).second.alpha();
        if (fades)
            appendWeighted(stops.at(i - 1), stops.at(i), &result);
        else
            result.append(stops.at(i));
    }
    return result;
}

void writeStops(XmlText *xml, const QGradientStops &stops)
{
    for (const QGradientStop &stop : stops) {
        xml->openTag(QStringLiteral("stop"));
        xml->attribute(QStringLiteral("offset"), numberText(stop.first));
        xml->attribute(QStringLiteral("stop-color"), opaqueText(stop.second));
        xml->attribute(QStringLiteral("stop-opacity"), opacityText(stop.second));
        xml->closeEmptyTag();
    }
}

void writeGradient(XmlText *xml, const QString &id, const QBrush &brush)
{
    const QGradient &gradient = *brush.gradient();
    const bool linear = gradient.type() == QGradient::LinearGradient;
    const QString name = linear ? QStringLiteral("linearGradient") : QStringLiteral("radialGradient");
    xml->openTag(name);
    xml->attribute(QStringLiteral("id"), id);
    xml->attribute(QStringLiteral("gradientUnits"), unitsText(gradient));
    xml->attribute(QStringLiteral("spreadMethod"), spreadText(gradient.spread()));
    if (!brush.transform().isIdentity())
        xml->attribute(QStringLiteral("gradientTransform"), matrixText(brush.transform()));
    if (linear)
        writeLine(xml, static_cast<const QLinearGradient &>(gradient));
    else
        writeCircles(xml, static_cast<const QRadialGradient &>(gradient));
    xml->closeTag();
    writeStops(xml, stopsOfChannels(gradient));
    xml->endTag(name);
    xml->newLine();
}

QString fillText(const QBrush &brush, PaintDefinitions *paints)
{
    const double opacity = isWritableGradient(brush) ? 1 : substitute(brush).alphaF();
    return declaration("fill", paints->paintText(brush)) + declaration("fill-opacity", numberText(opacity));
}

} // namespace

QString PaintDefinitions::freshId()
{
    for (;;) {
        QString id = QStringLiteral("paint_%1").arg(++m_lastNumber);
        if (m_tree.findId(id) == noNode)
            return id;
    }
}

QString PaintDefinitions::referenceTo(const QBrush &brush)
{
    for (const Definition &known : qAsConst(m_definitions))
        if (known.brush == brush)
            return known.id;
    m_definitions.append({freshId(), brush});
    return m_definitions.constLast().id;
}

QString PaintDefinitions::paintText(const QBrush &brush)
{
    if (brush.style() == Qt::NoBrush)
        return QStringLiteral("none");
    if (!isWritableGradient(brush))
        return opaqueText(substitute(brush));
    return QLatin1String("url(#") + referenceTo(brush) + QLatin1Char(')');
}

void PaintDefinitions::write(XmlText *xml) const
{
    if (m_definitions.isEmpty())
        return;
    xml->openTag(QStringLiteral("defs"));
    xml->closeTag();
    xml->newLine();
    for (const Definition &definition : m_definitions)
        writeGradient(xml, definition.id, definition.brush);
    xml->endTag(QStringLiteral("defs"));
    xml->newLine();
}

QString overrideText(const StyleOverride &override, const ComputedStyle &style, PaintDefinitions *paints)
{
    QString text;
    if (override.fill)
        text += fillText(*override.fill, paints);
    if (override.strokeColor) {
        text += declaration("stroke", opaqueText(*override.strokeColor));
        text += declaration("stroke-opacity", opacityText(*override.strokeColor));
    }
    const double width = override.strokeWidth.value_or(style.strokeWidth);
    // Written so that NaN draws nothing.
    const double drawnWidth = width > 0 ? width : 0;
    if (override.strokeWidth)
        text += declaration("stroke-width", numberText(drawnWidth));
    if (override.strokeStyle)
        text += lineStyleText(*override.strokeStyle, drawnWidth);
    return text;
}

} // namespace Svg

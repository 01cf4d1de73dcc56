#include "resolve/contextpaint.h"

namespace Svg {

namespace {

QColor faded(QColor color, double opacity)
{
    color.setAlphaF(qMin(color.alphaF() * opacity, 1.0));
    return color;
}

QBrush fadedBrush(const QBrush &brush, double opacity)
{
    if (opacity == 1)
        return brush;
    if (!brush.gradient())
        return brush.style() == Qt::SolidPattern ? QBrush(faded(brush.color(), opacity)) : brush;
    QGradient gradient = *brush.gradient();
    QGradientStops stops = gradient.stops();
    for (QGradientStop &stop : stops)
        stop.second = faded(stop.second, opacity);
    gradient.setStops(stops);
    QBrush result(gradient);
    result.setTransform(brush.transform());
    return result;
}

ContextPaint plainPaint(const Facts &facts, const Paint &paint)
{
    if (const ContextPaint *above = contextPaint(facts, paint.kind))
        return *above;
    const bool hasColor = paint.kind == Paint::Color || paint.kind == Paint::Server;
    ContextPaint plain;
    if (hasColor && paint.color.isValid())
        plain.brush = paint.color;
    return plain;
}

} // namespace

const ContextPaint *contextPaint(const Facts &facts, Paint::Kind kind)
{
    if (!facts.context || (kind != Paint::ContextFill && kind != Paint::ContextStroke))
        return nullptr;
    return kind == Paint::ContextFill ? &facts.context->fill : &facts.context->stroke;
}

QTransform fromContext(const ContextPaint &paint, const Facts &facts)
{
    return paint.toDocument * facts.toDocument.inverted();
}

QBrush contextBrush(const Facts &facts, Paint::Kind kind, double opacity)
{
    const ContextPaint *paint = contextPaint(facts, kind);
    if (!paint)
        return Qt::NoBrush;
    QBrush brush = fadedBrush(paint->brush, opacity);
    if (brush.style() > Qt::SolidPattern)
        brush.setTransform(brush.transform() * fromContext(*paint, facts));
    return brush;
}

QBrush unfadedBrush(const QBrush &brush, double opacity)
{
    return opacity > 0 ? fadedBrush(brush, 1 / opacity) : brush;
}

ContextPaint handedDown(const Facts &facts, Paint::Kind kind, const QBrush &brush, int pattern)
{
    const ContextPaint *above = pattern == -1 ? nullptr : contextPaint(facts, kind);
    return above ? *above : ContextPaint{brush, pattern, facts.localBounds, facts.viewport, facts.toDocument};
}

std::shared_ptr<const PaintContext> useContext(const Facts &use)
{
    const auto context = std::make_shared<PaintContext>();
    context->fill = plainPaint(use, use.style->fill);
    context->stroke = plainPaint(use, use.style->stroke);
    return context;
}

} // namespace Svg

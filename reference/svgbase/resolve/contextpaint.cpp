#include "resolve/contextpaint.h"

namespace Svg {

namespace {

QColor faded(QColor color, double opacity)
{
    color.setAlphaF(color.alphaF() * opacity);
    return color;
}

QBrush fadedBrush(const QBrush &brush, double opacity)
{
    if (opacity >= 1)
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

QBrush plainBrush(const Facts &facts, const Paint &paint, double opacity)
{
    if (paint.kind == Paint::ContextFill || paint.kind == Paint::ContextStroke)
        return contextBrush(facts, paint.kind, opacity);
    if (paint.kind != Paint::Color && paint.kind != Paint::Server)
        return Qt::NoBrush;
    return paint.color.isValid() ? QBrush(faded(paint.color, opacity)) : QBrush(Qt::NoBrush);
}

} // namespace

QBrush contextBrush(const Facts &facts, Paint::Kind kind, double opacity)
{
    const PaintContext *context = facts.context.get();
    if (!context)
        return Qt::NoBrush;
    QBrush brush = fadedBrush(kind == Paint::ContextFill ? context->fill : context->stroke, opacity);
    if (brush.style() > Qt::SolidPattern)
        brush.setTransform(brush.transform() * context->toDocument * facts.toDocument.inverted());
    return brush;
}

std::shared_ptr<const PaintContext> useContext(const Facts &use)
{
    const auto context = std::make_shared<PaintContext>();
    context->fill = plainBrush(use, use.style->fill, use.style->fillOpacity);
    context->stroke = plainBrush(use, use.style->stroke, use.style->strokeOpacity);
    context->toDocument = use.toDocument;
    return context;
}

} // namespace Svg

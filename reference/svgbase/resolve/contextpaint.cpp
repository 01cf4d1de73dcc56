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

QBrush plainBrush(const Facts &facts, const Paint &paint)
{
    if (paint.kind == Paint::ContextFill || paint.kind == Paint::ContextStroke)
        return contextBrush(facts, paint.kind, 1);
    if (paint.kind != Paint::Color && paint.kind != Paint::Server)
        return Qt::NoBrush;
    return paint.color.isValid() ? QBrush(paint.color) : QBrush(Qt::NoBrush);
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

QBrush unfadedBrush(const QBrush &brush, double opacity)
{
    return opacity > 0 ? fadedBrush(brush, 1 / opacity) : brush;
}

std::shared_ptr<const PaintContext> useContext(const Facts &use)
{
    const auto context = std::make_shared<PaintContext>();
    context->fill = plainBrush(use, use.style->fill);
    context->stroke = plainBrush(use, use.style->stroke);
    context->toDocument = use.toDocument;
    return context;
}

} // namespace Svg

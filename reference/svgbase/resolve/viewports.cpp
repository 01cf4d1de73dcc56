#include "resolve/viewports.h"

#include "geometry/shapegeometry.h"
#include "grammar/cliprects.h"
#include "grammar/viewboxes.h"

namespace Svg {

namespace {

// "left", "center" and the like are shares of the view box.
double referenceLength(const AttributeValue &value, Axis axis, const LengthContext &context)
{
    const QString *held = value.asText();
    const QString text = held ? held->trimmed() : QString();
    Length length{0, Unit::Percent};
    if (text == QLatin1String("center"))
        length.value = 50;
    else if (text == QLatin1String("right") || text == QLatin1String("bottom"))
        length.value = 100;
    else
        length = lengthOf(value).value_or(Length());
    return toUserUnits(length, axis, context);
}

// A symbol is placed by its reference point; without one, by its corner.
QPointF alignment(const Node &node, const Fit &fit, double fontSize)
{
    const Attributes &attributes = node.attributes;
    if (node.kind != ElementKind::Symbol)
        return QPointF();
    const QPointF point = fit.transform.map(referencePoint(attributes, {fit.viewport, fontSize}));
    return QPointF(attributes.contains(AttributeId::RefX) ? fit.place.x() - point.x() : 0,
                   attributes.contains(AttributeId::RefY) ? fit.place.y() - point.y() : 0);
}

Fit moved(const Fit &fit, const QPointF &way)
{
    return {fit.transform * QTransform::fromTranslate(way.x(), way.y()), fit.viewport, fit.place.translated(way)};
}

} // namespace

QPointF referencePoint(const Attributes &attributes, const LengthContext &context)
{
    return QPointF(referenceLength(attributes.held(AttributeId::RefX), Axis::Horizontal, context),
                   referenceLength(attributes.held(AttributeId::RefY), Axis::Vertical, context));
}

QSizeF rootSize(const Node &root, const QSizeF &window)
{
    static const ComputedStyle initial;
    const LengthReader lengths(root, initial, window);
    return QSizeF(lengths.size(AttributeId::Width, Axis::Horizontal, window.width()),
                  lengths.size(AttributeId::Height, Axis::Vertical, window.height()));
}

QTransform rootTransform(const Node &root, const QTransform &own, const QSizeF &window)
{
    const QRectF box = rootViewBox(root);
    const AspectRatio ratio = parseAspectRatio(root.attributes.value(AttributeId::PreserveAspectRatio));
    const std::optional<QTransform> fitted =
        viewBoxTransform(box, QRectF(QPointF(), rootSize(root, window)), ratio);
    return fitted && !own.isIdentity() ? *fitted * own * fitted->inverted() : own;
}

QRectF rootViewBox(const Node &root)
{
    return viewBoxOf(root.attributes.held(AttributeId::ViewBox)).value_or(QRectF());
}

QSizeF rootViewport(const Node &root, const QSizeF &window)
{
    const QRectF box = rootViewBox(root);
    return box.isEmpty() ? rootSize(root, window) : box.size();
}

QRectF shownArea(const Node &root, const QSizeF &window)
{
    const QSizeF size = rootSize(root, window);
    if (size.isEmpty())
        return QRectF();
    const std::optional<QRectF> box = viewBoxOf(root.attributes.held(AttributeId::ViewBox));
    return box.value_or(QRectF(QPointF(), size));
}

std::optional<QRectF> viewportCut(const ComputedStyle &style, const QRectF &box, const QSizeF &viewport)
{
    if (!style.effects)
        return std::nullopt;
    if (const std::optional<ClipRect> clip = parseClipRect(style.effects->clipRect))
        return clipRectIn(box, *clip, {viewport, style.font.size});
    return style.effects->overflow == Overflow::Visible ? std::nullopt : std::optional<QRectF>(box);
}

Fit nestedFit(const Node &node, const ComputedStyle &style, const QSizeF &viewport, const UsedSize &used)
{
    const LengthReader lengths(node, style, viewport);
    const double width = lengths.size(AttributeId::Width, Axis::Horizontal, viewport.width());
    const double height = lengths.size(AttributeId::Height, Axis::Vertical, viewport.height());
    const QRectF place(lengths.value(AttributeId::X, Axis::Horizontal),
                       lengths.value(AttributeId::Y, Axis::Vertical), used.width.value_or(width),
                       used.height.value_or(height));
    const std::optional<QRectF> box = viewBoxOf(node.attributes.held(AttributeId::ViewBox));
    if (!box || place.isEmpty()) {
        const Fit fit{QTransform::fromTranslate(place.x(), place.y()), place.size(), place};
        return moved(fit, alignment(node, fit, style.font.size));
    }
    const AspectRatio ratio = parseAspectRatio(node.attributes.value(AttributeId::PreserveAspectRatio));
    const std::optional<QTransform> fitted = viewBoxTransform(*box, place, ratio);
    if (!fitted)
        return Fit();
    const Fit fit{*fitted, box->size(), place};
    return moved(fit, alignment(node, fit, style.font.size));
}

} // namespace Svg

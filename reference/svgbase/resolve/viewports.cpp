#include "resolve/viewports.h"

#include "grammar/viewboxes.h"
#include "resolve/geometry.h"

namespace Svg {

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
    return parseViewBox(root.attributes.value(AttributeId::ViewBox)).value_or(QRectF());
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
    const std::optional<QRectF> box = parseViewBox(root.attributes.value(AttributeId::ViewBox));
    return box.value_or(QRectF(QPointF(), size));
}

Fit nestedFit(const Node &node, const ComputedStyle &style, const QSizeF &viewport, const UsedSize &used)
{
    const LengthReader lengths(node, style, viewport);
    const double width = lengths.size(AttributeId::Width, Axis::Horizontal, viewport.width());
    const double height = lengths.size(AttributeId::Height, Axis::Vertical, viewport.height());
    const QRectF place(lengths.value(AttributeId::X, Axis::Horizontal),
                       lengths.value(AttributeId::Y, Axis::Vertical), used.width.value_or(width),
                       used.height.value_or(height));
    const std::optional<QRectF> box = parseViewBox(node.attributes.value(AttributeId::ViewBox));
    if (!box || place.isEmpty())
        return {QTransform::fromTranslate(place.x(), place.y()), place.size(), place};
    const AspectRatio ratio = parseAspectRatio(node.attributes.value(AttributeId::PreserveAspectRatio));
    const std::optional<QTransform> fitted = viewBoxTransform(*box, place, ratio);
    return fitted ? Fit{*fitted, box->size(), place} : Fit();
}

} // namespace Svg

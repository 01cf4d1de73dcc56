#include "resolve/imageplacement.h"

namespace Svg {

QTransform contentFit(const ImageContent &content, const QRectF &box, const AspectRatio &ratio)
{
    if (content.takesSize)
        return QTransform::fromTranslate(box.x(), box.y());
    return viewBoxTransform(content.box, box, ratio).value_or(QTransform(0, 0, 0, 0, 0, 0));
}

ImagePlacement imagePlacement(const Node &node, const LengthReader &lengths, const ImageContent *content)
{
    const bool hasWidth = lengths.has(AttributeId::Width);
    const bool hasHeight = lengths.has(AttributeId::Height);
    QSizeF size(lengths.size(AttributeId::Width, Axis::Horizontal),
                lengths.size(AttributeId::Height, Axis::Vertical));
    const QSizeF own = content ? content->size : QSizeF();
    if (!hasWidth && !hasHeight)
        size = own;
    else if (!hasWidth && !own.isEmpty())
        size.setWidth(size.height() * own.width() / own.height());
    else if (!hasHeight && !own.isEmpty())
        size.setHeight(size.width() * own.height() / own.width());
    ImagePlacement result;
    result.box = QRectF(
        QPointF(lengths.value(AttributeId::X, Axis::Horizontal), lengths.value(AttributeId::Y, Axis::Vertical)),
        size);
    const AspectRatio ratio = parseAspectRatio(node.attributes.value(AttributeId::PreserveAspectRatio));
    if (content)
        result.fit = contentFit(*content, result.box, ratio);
    return result;
}

} // namespace Svg

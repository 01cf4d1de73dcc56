#include "geometry/pathslack.h"

namespace Svg {

namespace {

/// Unused room that may stay, elements.
constexpr int smallSlack = 2;
/// Longer paths are rare, and their unused room is at most the size of the path.
constexpr int longestCopied = 1000;

// Elements of the right types at different points, since a path drops segments without length.
QPainterPath typesOf(const QPainterPath &path)
{
    QPainterPath copy{QPointF()};
    copy.reserve(path.elementCount());
    for (int i = 1; i < path.elementCount(); ++i) {
        const QPointF place(i, 0);
        switch (path.elementAt(i).type) {
        case QPainterPath::MoveToElement:
            copy.moveTo(place);
            break;
        case QPainterPath::LineToElement:
            copy.lineTo(place);
            break;
        case QPainterPath::CurveToElement:
            copy.cubicTo(place, place, place);
            break;
        case QPainterPath::CurveToDataElement:
            break;
        }
    }
    return copy;
}

} // namespace

QPainterPath withoutSlack(const QPainterPath &path)
{
    const int count = path.elementCount();
    if (count == 0 || count > longestCopied || path.capacity() - count <= smallSlack)
        return path;
    QPainterPath copy = typesOf(path);
    if (copy.elementCount() != count)
        return path;
    for (int i = 0; i < count; ++i)
        copy.setElementPositionAt(i, path.elementAt(i).x, path.elementAt(i).y);
    copy.setFillRule(path.fillRule());
    return copy;
}

} // namespace Svg

#include "grammar/cliprects.h"

namespace Svg {

namespace {

bool isWord(QLatin1String word, const char *expected)
{
    return word.compare(QLatin1String(expected), Qt::CaseInsensitive) == 0;
}

bool readSide(Cursor &cursor, std::optional<Length> *side)
{
    if (isLetter(cursor.peek()))
        return isWord(cursor.takeWord(), "auto");
    Length length;
    if (!readLength(cursor, &length) || length.unit == Unit::Percent)
        return false;
    *side = length;
    return true;
}

} // namespace

std::optional<ClipRect> parseClipRect(QStringView text)
{
    const Latin1Text bytes(text);
    Cursor cursor = bytes.cursor();
    cursor.skipSpace();
    const QLatin1String word = cursor.takeWord();
    ClipRect clip;
    if (isWord(word, "auto") && cursor.atEnd())
        return clip;
    if (!isWord(word, "rect") || !cursor.take('('))
        return std::nullopt;
    cursor.skipSpace();
    bool commas = false;
    for (std::optional<Length> *side : {&clip.top, &clip.right, &clip.bottom, &clip.left}) {
        const bool comma = side != &clip.top && cursor.skipCommaSpace();
        if (side == &clip.right)
            commas = comma;
        else if (side != &clip.top && comma != commas)
            return std::nullopt;
        if (!readSide(cursor, side))
            return std::nullopt;
        cursor.skipSpace();
    }
    if (!cursor.take(')'))
        return std::nullopt;
    cursor.skipSpace();
    return cursor.atEnd() ? std::optional<ClipRect>(clip) : std::nullopt;
}

QRectF clipRectIn(const QRectF &box, const ClipRect &clip, const LengthContext &context)
{
    const auto side = [&](const std::optional<Length> &length, Axis axis, double start, double usual) {
        return length ? start + toUserUnits(*length, axis, context) : usual;
    };
    const QPointF topLeft(side(clip.left, Axis::Horizontal, box.left(), box.left()),
                          side(clip.top, Axis::Vertical, box.top(), box.top()));
    const QPointF bottomRight(side(clip.right, Axis::Horizontal, box.left(), box.right()),
                              side(clip.bottom, Axis::Vertical, box.top(), box.bottom()));
    if (bottomRight.x() <= topLeft.x() || bottomRight.y() <= topLeft.y())
        return QRectF(topLeft, QSizeF(0, 0));
    return QRectF(topLeft, bottomRight);
}

} // namespace Svg

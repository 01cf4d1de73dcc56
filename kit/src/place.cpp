#include <shapekit/place.h>

#include <algorithm>

namespace shapekit {

namespace {

double scaled(double length, double to, double from)
{
    return from > 0 ? length * to / from : length;
}

double shorterOf(const QSizeF &size)
{
    return std::min(size.width(), size.height());
}

} // namespace

const QStringList &Following::ruleNames()
{
    static const QStringList names{QStringLiteral("side"),   QStringLiteral("start"),   QStringLiteral("end"),
                                   QStringLiteral("middle"), QStringLiteral("shorter"), QStringLiteral("-shorter")};
    return names;
}

Following::Rule Following::ruleNamed(const QString &name)
{
    return Rule(std::max(0, ruleNames().indexOf(name)));
}

double Following::moved(double at, double side, double shorter, double newSide, double newShorter) const
{
    switch (rule) {
    case Start:
        return at;
    case End:
        return newSide - (side - at);
    case Middle:
        return newSide / 2 + (at - side / 2);
    case Shorter:
        return offset + scaled(at - offset, newShorter, shorter);
    case ShorterFromEnd:
        return newSide - offset - scaled(side - offset - at, newShorter, shorter);
    case Side:
        break;
    }
    return offset + scaled(at - offset, newSide - offset - endOffset, side - offset - endOffset);
}

QPointF Place::at(const QSizeF &newSize, const Following &x, const Following &y) const
{
    if (newSize == size)
        return centre;
    return {x.moved(centre.x(), size.width(), shorterOf(size), newSize.width(), shorterOf(newSize)),
            y.moved(centre.y(), size.height(), shorterOf(size), newSize.height(), shorterOf(newSize))};
}

} // namespace shapekit

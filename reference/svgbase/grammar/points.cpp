#include "grammar/points.h"

#include "grammar/inputlimits.h"
#include "grammar/numbers.h"

namespace Svg {

namespace {

bool readCoordinate(Cursor &cursor, double *value)
{
    return readNextNumber(cursor, value) && qAbs(*value) <= Limits::coordinate;
}

} // namespace

Points parsePoints(QStringView text)
{
    const Latin1Text bytes(text);
    Cursor cursor = bytes.cursor();
    Points result;
    for (;;) {
        cursor.skipSpace();
        if (cursor.atEnd())
            return result;
        double x = 0;
        double y = 0;
        result.tooLong = result.points.size() > Limits::pathSegments;
        if (result.tooLong || !readCoordinate(cursor, &x) || !readCoordinate(cursor, &y)) {
            result.complete = false;
            return result;
        }
        result.points.append(QPointF(x, y));
    }
}

Points pointsOf(const QVector<double> &coordinates)
{
    Points result;
    for (int i = 0; i + 1 < coordinates.size(); i += 2) {
        const QPointF point(coordinates.at(i), coordinates.at(i + 1));
        const bool isDrawable = qAbs(point.x()) <= Limits::coordinate && qAbs(point.y()) <= Limits::coordinate;
        result.tooLong = result.points.size() > Limits::pathSegments;
        result.complete = isDrawable && !result.tooLong;
        if (!result.complete)
            return result;
        result.points.append(point);
    }
    result.complete = coordinates.size() % 2 == 0;
    return result;
}

} // namespace Svg

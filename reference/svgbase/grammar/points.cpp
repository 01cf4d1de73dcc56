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

} // namespace Svg

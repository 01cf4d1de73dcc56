// Edits of path data, for concrete shapes that keep parts of their outline at a fixed size.

#include <svgobj/csvgbase.h>

#include "shape/pathtext.h"

QString CSVGBase::changePathBeginPoint(QString path, double dx, double dy)
{
    return PathText::movedStart(path, dx, dy);
}

QString CSVGBase::changePathWidth(QString path, double delta)
{
    return PathText::grown(path, PathText::Axis::Width, delta, 0, false);
}

QString CSVGBase::changePathWidth(QString path, double delta, int from)
{
    return PathText::grown(path, PathText::Axis::Width, delta, from, true);
}

QString CSVGBase::changePathHeight(QString path, double delta)
{
    return PathText::grown(path, PathText::Axis::Height, delta, 0, false);
}

QString CSVGBase::changePathHeight(QString path, double delta, int from)
{
    return PathText::grown(path, PathText::Axis::Height, delta, from, true);
}

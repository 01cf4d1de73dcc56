// The style of a shape as a map from names to values.

#include <svgobj/csvgbase.h>

#include "properties/penstyle.h"

namespace {

const QString penWidthKey = QStringLiteral("pen_width");
const QString penColorKey = QStringLiteral("pen_color");
const QString penStyleKey = QStringLiteral("pen_style");
const QString fillColorKey = QStringLiteral("fill_color");

} // namespace

bool CSVGBase::getAllAttributes(QMap<QString, QVariant> &map)
{
    map[penWidthKey] = getPenWidth();
    map[penColorKey] = getPenColor();
    map[penStyleKey] = int(getPenStyle());
    map[fillColorKey] = getFillBrush();
    return true;
}

bool CSVGBase::setAllAttributes(const QMap<QString, QVariant> &map, bool)
{
    bool changed = false;
    if (map.contains(penWidthKey)) {
        const int width = map.value(penWidthKey).toInt();
        if (width != getPenWidth()) {
            setPenWidth(width, false);
            changed = true;
        }
    }
    if (map.contains(penColorKey)) {
        const QColor color = map.value(penColorKey).value<QColor>();
        if (color != getPenColor()) {
            setPenColor(color, false);
            changed = true;
        }
    }
    if (map.contains(penStyleKey)) {
        const int style = map.value(penStyleKey).toInt();
        if (style != getPenStyle()) {
            setPenStyle(penStyleFromInt(style), false);
            changed = true;
        }
    }
    if (map.contains(fillColorKey)) {
        // Deliberate asymmetry: the map hands out a brush but takes a colour.
        const QBrush brush(map.value(fillColorKey).value<QColor>());
        if (brush != getFillBrush()) {
            setFillBrush(brush, false, true);
            changed = true;
        }
    }
    if (changed)
        invalidate();
    return changed;
}

#pragma once

#include <QtGui/QColor>

/// The colour of that name ("#AARRGGBB", "#RRGGBB", an SVG name), as for QColor::setNamedColor; an invalid colour,
/// without Qt's warning, for any other text.
inline QColor namedColor(const QString &name)
{
    return QColor::isValidColor(name) ? QColor(name) : QColor();
}

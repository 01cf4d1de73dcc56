#pragma once

#include <QtGui/QColor>

/// The colour with that name ("#AARRGGBB", "#RRGGBB", an SVG name), as QColor::setNamedColor has it; an invalid
/// colour, without Qt's warning, for any other text.
inline QColor namedColor(const QString &name)
{
    return QColor::isValidColor(name) ? QColor(name) : QColor();
}

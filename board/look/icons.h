#pragma once

#include "look/iconnames.h"

#include <QtGui/QIcon>
#include <QtGui/QPalette>

namespace board {

/// A pictogram that is drawn when it is shown: sharp at every size and pixel ratio, in the palette's text colour of
/// that moment, paler while disabled, and in the colour of letters on the accent in selected rows of lists.
QIcon icon(Icon which, QPalette::ColorRole role = QPalette::ButtonText);
/// Paints the same pictogram in a colour; those of before and after point against right-to-left text.
void paintIcon(QPainter *painter, const QRect &rect, Icon which, const QColor &color);

} // namespace board

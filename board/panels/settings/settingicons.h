#pragma once

#include <QtCore/QSize>
#include <QtGui/QColor>
#include <QtGui/QIcon>

namespace board {

/// How large pictures in lists of choices are, logical pixels.
constexpr QSize choiceIconSize(64, 16);

/// The picture that an object names by a path of the host's resources ("items/mathobject/LineStyle0.svg" to
/// "LineStyle4.svg": a line in pen style 1 to 5), drawn in `color`. Null for a path that the board has no picture
/// for.
QIcon settingIcon(const QString &path, const QColor &color);
/// A picture of a list entry as it is to be seen on a background of another tone: one that is all black gets
/// `color`.
QIcon adaptedIcon(const QPixmap &picture, const QColor &color);

} // namespace board

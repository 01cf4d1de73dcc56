#pragma once

#include <QtCore/QMargins>
#include <QtCore/Qt>

namespace board {

/// The side where lines begin in the user's language, also of a text that runs the other way: for captions that
/// stand in a column, such as names given by users.
Qt::Alignment lineStart();

/// Margins where lines begin, above, where they end, and below. Those of layouts aren't mirrored.
QMargins alongLines(int start, int top, int end, int bottom);

} // namespace board

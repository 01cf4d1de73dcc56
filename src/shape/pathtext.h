#pragma once

#include <QtCore/QString>

/// Edits of path data text. Text that does not have the expected form comes back unchanged.
namespace PathText {

/// Which of a path's relative pieces an edit lengthens.
enum class Axis { Width, Height };

/// Lengthens the first piece along the axis ("h" or "v", else an "l") that starts at or after `from`; with `all`
/// also every later one, in time that grows with the length of the path. A piece grows by `delta` in the direction
/// that it points; one of length 0 grows forward.
QString grown(const QString &path, Axis axis, double delta, int from, bool all);

/// Moves the start point, which must be an absolute "M", by (dx, dy).
QString movedStart(const QString &path, double dx, double dy);

} // namespace PathText

#pragma once

#include <QtCore/QString>

/// Edits of path data text. Text without the expected form is returned unchanged.
namespace PathText {

/// Selects the relative pieces of a path that an edit lengthens.
enum class Axis { Width, Height };

/// Lengthens the first piece along the axis ("h" or "v", else an "l") that starts at or after `from`; with `all`
/// also every later one, in linear time. A piece grows by `delta` in its own direction; one of length 0 grows
/// forward.
QString grown(const QString &path, Axis axis, double delta, int from, bool all);

/// Moves the start point, which must be an absolute "M", by (dx, dy).
QString movedStart(const QString &path, double dx, double dy);

} // namespace PathText

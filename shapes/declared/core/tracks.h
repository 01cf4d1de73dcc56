#pragma once

#include <declared/reader/declaration.h>

namespace declared {

/// The place of a track that is nearest to `at`: by angle where the track bends, clockwise from the right, and 0°
/// in the centre. A step, in degrees or in units along a line, is counted from the track's start; 0 or less is
/// none. `at` itself where a value is not finite.
QPointF nearestOnTrack(TrackDeclaration::Kind kind, const QVector<Value> &arguments, double step, QPointF at);

} // namespace declared

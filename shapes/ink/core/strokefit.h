#pragma once

#include "ink/core/strokeform.h"

namespace ink {

/// The form that a stroke drawn by hand through these places was meant to be: an arc of a circle, a whole circle, a
/// whole ellipse with axes along x and y, or else the straight line from its first to its last place.
///
/// The circle is the one of least squares of the algebraic distance, each place weighted by the length of the
/// stroke around it (I. Kåsa, "A circle fitting procedure and its error analysis", IEEE Transactions on
/// Instrumentation and Measurement 25, 1976). The ellipse is such a circle after stretching the box of the stroke
/// to a square. Either is taken when the stroke goes around its centre steadily and close enough to it. The time is
/// linear in the number of places. Places that aren't measurable are passed over.
StrokeForm formOf(const QVector<QPointF> &places);

/// Whether a stroke goes from its beginning to its end near enough to the line between them, and without detours,
/// to be meant as that line. Letters, words and a drawn square don't.
bool runsStraight(const QVector<QPointF> &places);

} // namespace ink

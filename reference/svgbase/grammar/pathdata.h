#pragma once

#include <QtCore/QStringView>
#include <QtCore/QVector>
#include <QtGui/QPainterPath>

namespace Svg {

/// Length of the line that stands for a subpath that is drawn but has none, user units: enough for a painter to
/// see.
constexpr double dotLength = 1e-4;

/// What path data amounts to.
struct PathData
{
    /// Everything before the first error, user units.
    QPainterPath path;
    /// Elements of the path that end an open subpath where it began, which a painter takes for a closed one.
    QVector<int> openEnds;
    /// Offset of the first letter, coordinate or pair that could not be used; -1 when all of the text was.
    qsizetype errorAt = -1;
    /// Whether reading stopped at the limit of segments.
    bool tooLong = false;
};

/// A segment as path data has it: an arc is one segment, and one without length counts too.
struct PathSegment
{
    enum Kind { Move, Line, Curve, Close };
    Kind kind = Move;
    QPointF from;
    /// Of a curve: where it heads at its start, where it comes from at its end.
    QPointF firstControl;
    QPointF lastControl;
    QPointF to;
};

/// Whether a line from one point to the other is too short for a painter to see.
bool isAtSamePlace(const QPointF &a, const QPointF &b);

/// Reads path data (SVG 1.1 §8.3). A path is drawn up to its first error. `segments`, when given, gets the segments
/// one by one.
PathData parsePathData(QStringView text, QVector<PathSegment> *segments = nullptr);

} // namespace Svg

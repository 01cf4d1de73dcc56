#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QStringView>
#include <QtCore/QVector>
#include <QtGui/QPainterPath>

namespace Svg {

/// Length of the line that represents a drawn subpath without length, user units: enough for a painter to draw
/// caps.
constexpr double dotLength = 1e-4;

/// Result of reading path data.
struct PathData
{
    /// Everything before the first error, user units.
    QPainterPath path;
    /// Elements that end an open subpath at its start, which a painter would treat as closed.
    QVector<int> openEnds;
    /// Offset of the first invalid letter, coordinate or pair; -1 if the whole text is valid.
    qsizetype errorAt = -1;
    /// Whether reading stopped at the limit of segments.
    bool tooLong = false;
};

/// A segment of path data: an arc is one segment, and so is one without length.
struct PathSegment
{
    enum Kind { Move, Line, Curve, Close };
    Kind kind = Move;
    QPointF from;
    /// Control points of a curve at its start and its end.
    QPointF firstControl;
    QPointF lastControl;
    QPointF to;
};

/// Whether a line between the points is too short for a painter.
bool isAtSamePlace(const QPointF &a, const QPointF &b);

/// Reads path data (SVG 1.1 §8.3). A path is drawn up to its first error. `segments`, if given, receives the single
/// segments.
PathData parsePathData(QStringView text, QVector<PathSegment> *segments = nullptr);

/// Path data without a text, all coordinates absolute.
struct PathValue
{
    /// Letters of "MLCQAZ", "M" first.
    QByteArray commands;
    /// Coordinates of all commands in their order; flags of arcs are 0 or 1.
    QVector<double> coordinates;

    bool operator==(const PathValue &other) const
    {
        return commands == other.commands && coordinates == other.coordinates;
    }
};

/// How many coordinates follow a letter of a `PathValue`.
int coordinateCount(char command);
/// The same as parsePathData() makes of the text.
PathData pathDataOf(const PathValue &value, QVector<PathSegment> *segments = nullptr);
QString pathText(const PathValue &value);

} // namespace Svg

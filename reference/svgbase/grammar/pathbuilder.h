#pragma once

#include "grammar/arcs.h"
#include "grammar/pathdata.h"

namespace Svg {

/// Makes the path of path data, segment by segment; all points are absolute.
class PathBuilder
{
public:
    /// `segments`, when given, gets the segments one by one.
    explicit PathBuilder(QVector<PathSegment> *segments)
        : m_segmentList(segments)
    {
    }

    /// Where the next segment starts.
    const QPointF &current() const { return m_current; }
    bool isFull() const;
    /// Takes note of a segment of which the points follow; `letter` is that of its command in lower case.
    void begin(char letter);
    void moveTo(const QPointF &point);
    void lineTo(const QPointF &point);
    void cubicTo(const QPointF &first, const QPointF &second, const QPointF &point);
    void quadTo(const QPointF &control, const QPointF &point);
    void arcTo(const Arc &arc);
    void end();
    void close();
    /// The path; the builder is done.
    PathData finish();

    static bool isInRange(const QPointF &point);

private:
    bool finishSubpath();
    void endOpenSubpath();
    void beginSubpath(const QPointF &start);
    void record();

    QVector<PathSegment> *m_segmentList;
    PathData m_result;
    QPointF m_current;
    QPointF m_start;
    /// Of the segment that is being added.
    char m_letter = 0;
    QPointF m_from;
    int m_elementsBefore = 0;
    int m_segments = 0;
    bool m_closed = false;
    /// The element that the subpath begins with.
    int m_firstElement = 0;
    /// Whether the subpath has a segment, if only one without length.
    bool m_drawn = false;
};

} // namespace Svg

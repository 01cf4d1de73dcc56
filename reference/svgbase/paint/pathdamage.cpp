#include "paint/pathdamage.h"

namespace Svg {

namespace {

/// Segments along a line are cut into pieces of about this length, pixels, to keep the rectangles around them
/// small.
constexpr double pieceLength = 48;
constexpr int mostPieces = 8;

bool hasSameElements(const QPainterPath &a, const QPainterPath &b)
{
    if (a.elementCount() != b.elementCount() || a.fillRule() != b.fillRule())
        return false;
    for (int i = 0; i < a.elementCount(); ++i)
        if (a.elementAt(i).type != b.elementAt(i).type)
            return false;
    return true;
}

bool isUndashed(const QPen &pen)
{
    return pen.style() == Qt::NoPen || pen.style() == Qt::SolidLine;
}

// A stroke with an outline of its own follows the units of its element.
bool hasSameStroke(const MappedShape &a, const MappedShape &b, const Facts &factsOfA, const Facts &factsOfB)
{
    if (a.pen != b.pen || a.strokedWith != b.strokedWith || !isUndashed(a.strokedWith))
        return false;
    const bool isOutlined = !a.strokePath.isEmpty() || !b.strokePath.isEmpty();
    return !isOutlined || (factsOfA.toDocument == factsOfB.toDocument && a.strokeReach == b.strokeReach &&
                           factsOfA.style->strokeScales == factsOfB.style->strokeScales);
}

// Whether only the outline can make the difference. Dashes after a segment would move with its length.
bool differsInOutlineAlone(const MappedItem &before, const MappedItem &after)
{
    const auto *a = std::get_if<MappedShape>(&before.content);
    const auto *b = std::get_if<MappedShape>(&after.content);
    if (!a || !b || a->mapping || b->mapping || a->isIndivisible || b->isIndivisible)
        return false;
    return a->fill == b->fill && before.item.opacity == after.item.opacity &&
           hasSameStroke(*a, *b, *before.item.facts, *after.item.facts) && hasSameElements(a->path, b->path);
}

/// Areas between a segment before and after, in pieces: a point of each for every cut.
class SegmentPair
{
public:
    SegmentPair(const MappedShape &before, const MappedShape &after, Damage *damage)
        : m_before(before.path)
        , m_after(after.path)
        , m_reach(after.strokeReach)
        , m_damage(damage)
    {
    }

    void compare();

private:
    bool moved(int index) const { return pointOf(m_before, index) != pointOf(m_after, index); }
    static QPointF pointOf(const QPainterPath &path, int index) { return path.elementAt(index); }
    void addLine(int from, int to);
    void addCurve(int first);
    void add(const QRectF &bounds)
    {
        m_damage->add(bounds.adjusted(-m_reach.width(), -m_reach.height(), m_reach.width(), m_reach.height()));
    }

    const QPainterPath &m_before;
    const QPainterPath &m_after;
    QSizeF m_reach;
    Damage *m_damage;
};

QRectF around(std::initializer_list<QPointF> points)
{
    QPointF least = *points.begin();
    QPointF most = least;
    for (const QPointF &point : points) {
        least = QPointF(qMin(least.x(), point.x()), qMin(least.y(), point.y()));
        most = QPointF(qMax(most.x(), point.x()), qMax(most.y(), point.y()));
    }
    return QRectF(least, most);
}

void SegmentPair::addLine(int from, int to)
{
    if (!moved(from) && !moved(to))
        return;
    const QLineF before(pointOf(m_before, from), pointOf(m_before, to));
    const QLineF after(pointOf(m_after, from), pointOf(m_after, to));
    const double length = qMax(before.length(), after.length());
    const int pieces = length > pieceLength ? int(qMin(length / pieceLength, double(mostPieces))) + 1 : 1;
    for (int i = 0; i < pieces; ++i) {
        const double start = double(i) / pieces;
        const double end = double(i + 1) / pieces;
        add(around({before.pointAt(start), before.pointAt(end), after.pointAt(start), after.pointAt(end)}));
    }
}

void SegmentPair::addCurve(int first)
{
    if (!moved(first - 1) && !moved(first) && !moved(first + 1) && !moved(first + 2))
        return;
    add(around({pointOf(m_before, first - 1), pointOf(m_before, first), pointOf(m_before, first + 1),
                pointOf(m_before, first + 2), pointOf(m_after, first - 1), pointOf(m_after, first),
                pointOf(m_after, first + 1), pointOf(m_after, first + 2)}));
}

void SegmentPair::compare()
{
    int start = 0;
    for (int i = 0; i < m_after.elementCount(); ++i) {
        switch (m_after.elementAt(i).type) {
        case QPainterPath::MoveToElement:
            // A filled subpath is closed where it ends.
            if (i > 0)
                addLine(i - 1, start);
            start = i;
            break;
        case QPainterPath::LineToElement:
            addLine(i - 1, i);
            break;
        case QPainterPath::CurveToElement:
            addCurve(i);
            break;
        case QPainterPath::CurveToDataElement:
            break;
        }
    }
    if (m_after.elementCount() > 0)
        addLine(m_after.elementCount() - 1, start);
}

} // namespace

void addDifference(const MappedItem &before, const MappedItem &after, Damage *damage)
{
    if (!differsInOutlineAlone(before, after)) {
        damage->add(before.bounds);
        damage->add(after.bounds);
        return;
    }
    SegmentPair(std::get<MappedShape>(before.content), std::get<MappedShape>(after.content), damage).compare();
}

} // namespace Svg

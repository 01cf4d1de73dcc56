#include <pages/snapping.h>

#include <algorithm>
#include <array>
#include <cmath>

namespace pagehost {

namespace {

/// Rounding errors of coordinates stay below this.
constexpr double samePlace = 1e-6;
constexpr SnapPart allParts[] = {NearPart, MiddlePart, FarPart};

bool isSamePlace(double one, double other)
{
    return std::abs(one - other) < samePlace;
}

double placeOf(const QRectF &box, SnapPart part)
{
    switch (part) {
    case NearPart:
        return box.left();
    case FarPart:
        return box.right();
    default:
        return box.center().x();
    }
}

QPointF transposed(const QPointF &point)
{
    return {point.y(), point.x()};
}

QRectF transposed(const QRectF &rect)
{
    return {rect.y(), rect.x(), rect.height(), rect.width()};
}

QLineF transposed(const QLineF &line)
{
    return {transposed(line.p1()), transposed(line.p2())};
}

SnapGround transposed(const SnapGround &ground)
{
    SnapGround turned{{}, transposed(ground.page), ground.grid};
    turned.partners.reserve(ground.partners.size());
    for (const SnapPartner &partner : ground.partners) {
        SnapPartner other{transposed(partner.box), {}};
        for (const QPointF &point : partner.points)
            other.points.append(transposed(point));
        turned.partners.append(other);
    }
    return turned;
}

SnapSubject transposed(const SnapSubject &subject)
{
    return {transposed(subject.box), subject.down, subject.across};
}

/// A place where a part makes gaps or sizes equal.
struct Spacing
{
    SnapPart part;
    double position;
    QVector<QLineF> spans;
};

QLineF level(double from, double to, double y)
{
    return {from, y, to, y};
}

/// The boxes beside the subject, from left to right.
QVector<QRectF> rowOf(const QRectF &subject, const SnapGround &ground)
{
    QVector<QRectF> row;
    for (const SnapPartner &partner : ground.partners)
        if (partner.box.top() < subject.bottom() && partner.box.bottom() > subject.top())
            row.append(partner.box);
    std::sort(row.begin(), row.end(),
              [](const QRectF &one, const QRectF &other) { return one.left() < other.left(); });
    return row;
}

/// Places of a moved box beside and between two neighbours of its row, so that gaps become equal.
QVector<Spacing> equalGaps(const QRectF &box, const SnapGround &ground)
{
    QVector<Spacing> spacings;
    const QVector<QRectF> row = rowOf(box, ground);
    const double width = box.width();
    const double y = box.center().y();
    for (int i = 1; i < row.size(); ++i) {
        const double from = row[i - 1].right();
        const double to = row[i].left();
        const double gap = to - from;
        if (gap <= 0)
            continue;
        const double after = row[i].right() + gap;
        const double before = row[i - 1].left() - gap;
        spacings.append({NearPart, after, {level(from, to, y), level(row[i].right(), after, y)}});
        spacings.append({FarPart, before, {level(before, row[i - 1].left(), y), level(from, to, y)}});
        if (width >= gap)
            continue;
        const double between = from + (gap - width) / 2;
        spacings.append({NearPart, between, {level(from, between, y), level(between + width, to, y)}});
    }
    return spacings;
}

/// Places of one side of a resized box, so that it gets the width of a partner.
QVector<Spacing> equalSizes(const QRectF &box, SnapPart part, const SnapGround &ground)
{
    QVector<Spacing> spacings;
    const double y = box.center().y();
    for (const SnapPartner &partner : ground.partners) {
        const double width = partner.box.width();
        if (width <= 0)
            continue;
        const QLineF model = level(partner.box.left(), partner.box.right(), partner.box.center().y());
        if (part == FarPart)
            spacings.append({part, box.left() + width, {model, level(box.left(), box.left() + width, y)}});
        else
            spacings.append({part, box.right() - width, {model, level(box.right() - width, box.right(), y)}});
    }
    return spacings;
}

QVector<Spacing> spacingsOf(const SnapSubject &subject, const SnapGround &ground)
{
    if (subject.box.width() <= 0)
        return {};
    if (subject.across == AllParts)
        return equalGaps(subject.box, ground);
    if (subject.across == NearPart || subject.across == FarPart)
        return equalSizes(subject.box, SnapPart(subject.across), ground);
    return {};
}

/// Chooses among the catches of one axis.
class Choice
{
public:
    Choice(const SnapSubject &subject, const SnapReach &reach, const std::optional<SnapCatch> &held)
        : m_subject(subject)
        , m_reach(reach)
        , m_held(held)
    {
    }

    void offer(SnapRank rank, SnapPart part, double position)
    {
        if (!(m_subject.across & part))
            return;
        const SnapCatch offered{rank, part, position};
        const double distance = std::abs(position - placeOf(m_subject.box, part));
        const bool isInReach =
            distance <= m_reach.catches || (m_held && *m_held == offered && distance < m_reach.letsGo);
        std::optional<Found> &best = m_best[size_t(rank)];
        if (isInReach && (!best || distance < best->distance))
            best = Found{offered, distance};
    }
    void offerToAllParts(SnapRank rank, double position)
    {
        for (const SnapPart part : allParts)
            offer(rank, part, position);
    }
    std::optional<SnapCatch> best() const
    {
        std::optional<Found> chosen;
        for (const std::optional<Found> &found : m_best)
            if (found && (!chosen || found->distance <= chosen->distance - m_reach.advantage))
                chosen = found;
        return chosen ? std::optional<SnapCatch>(chosen->place) : std::nullopt;
    }

private:
    struct Found
    {
        SnapCatch place;
        double distance;
    };

    const SnapSubject &m_subject;
    const SnapReach &m_reach;
    const std::optional<SnapCatch> &m_held;
    std::array<std::optional<Found>, snapRankCount> m_best;
};

std::optional<SnapCatch> catchAcross(const SnapSubject &subject, const SnapGround &ground, const SnapReach &reach,
                                     const std::optional<SnapCatch> &held)
{
    if (subject.across == 0)
        return std::nullopt;
    Choice choice(subject, reach, held);
    for (const SnapPartner &partner : ground.partners) {
        for (const QPointF &point : partner.points)
            choice.offerToAllParts(SnapRank::Point, point.x());
        for (const SnapPart part : allParts)
            choice.offerToAllParts(SnapRank::Edge, placeOf(partner.box, part));
    }
    const QVector<Spacing> spacings = spacingsOf(subject, ground);
    for (const Spacing &spacing : spacings)
        choice.offer(SnapRank::Spacing, spacing.part, spacing.position);
    for (const SnapPart part : allParts)
        choice.offerToAllParts(SnapRank::Page, placeOf(ground.page, part));
    if (ground.grid > 0) {
        const SnapPart part = subject.across & NearPart ? NearPart : FarPart;
        const double place = placeOf(subject.box, part);
        choice.offer(SnapRank::Grid, part, std::round(place / ground.grid) * ground.grid);
    }
    return choice.best();
}

double offsetAcross(const std::optional<SnapCatch> &caught, const QRectF &box)
{
    return caught ? caught->position - placeOf(box, caught->part) : 0;
}

/// The vertical extent of all that touches a vertical line.
class Extent
{
public:
    void add(double from, double to)
    {
        m_from = m_isEmpty ? from : std::min(m_from, from);
        m_to = m_isEmpty ? to : std::max(m_to, to);
        m_isEmpty = false;
    }
    bool isEmpty() const { return m_isEmpty; }
    QLineF lineAt(double x) const { return {x, m_from, x, m_to}; }

private:
    double m_from = 0;
    double m_to = 0;
    bool m_isEmpty = true;
};

void addPartner(Extent &extent, const SnapPartner &partner, double x)
{
    for (const QPointF &point : partner.points)
        if (isSamePlace(point.x(), x))
            extent.add(point.y(), point.y());
    for (const SnapPart part : allParts)
        if (isSamePlace(placeOf(partner.box, part), x))
            extent.add(partner.box.top(), partner.box.bottom());
}

/// The line through the partners at `x` and the subject; nothing without a partner.
std::optional<QLineF> lineThrough(double x, const QRectF &subject, const SnapGround &ground)
{
    Extent extent;
    for (const SnapPartner &partner : ground.partners)
        addPartner(extent, partner, x);
    for (const SnapPart part : allParts)
        if (isSamePlace(placeOf(ground.page, part), x))
            extent.add(ground.page.top(), ground.page.bottom());
    if (extent.isEmpty())
        return std::nullopt;
    extent.add(subject.top(), subject.bottom());
    return extent.lineAt(x);
}

SnapGuides guidesAcross(const SnapSubject &subject, const SnapGround &ground,
                        const std::optional<SnapCatch> &caught)
{
    SnapGuides guides;
    if (!caught || caught->rank == SnapRank::Grid)
        return guides;
    for (const SnapPart part : allParts) {
        if (!(subject.across & part))
            continue;
        if (const auto line = lineThrough(placeOf(subject.box, part), subject.box, ground))
            guides.lines.append(*line);
    }
    const QVector<Spacing> spacings = spacingsOf(subject, ground);
    for (const Spacing &spacing : spacings)
        if (isSamePlace(spacing.position, placeOf(subject.box, spacing.part)))
            for (const QLineF &span : spacing.spans)
                if (!guides.spans.contains(span))
                    guides.spans.append(span);
    return guides;
}

std::optional<SnapCatch> fulfilledAcross(const std::optional<SnapCatch> &caught, const QRectF &box)
{
    return caught && isSamePlace(caught->position, placeOf(box, caught->part)) ? caught : std::nullopt;
}

} // namespace

SnapCatches findCatches(const SnapSubject &subject, const SnapGround &ground, const SnapReach &reach,
                        const SnapCatches &held)
{
    return {catchAcross(subject, ground, reach, held.across),
            catchAcross(transposed(subject), transposed(ground), reach, held.down)};
}

QPointF offsetTo(const SnapCatches &catches, const SnapSubject &subject)
{
    return {offsetAcross(catches.across, subject.box), offsetAcross(catches.down, transposed(subject.box))};
}

SnapCatches fulfilled(const SnapCatches &catches, const SnapSubject &subject)
{
    return {fulfilledAcross(catches.across, subject.box), fulfilledAcross(catches.down, transposed(subject.box))};
}

SnapGuides guidesOf(const SnapSubject &subject, const SnapGround &ground, const SnapCatches &catches)
{
    SnapGuides guides = guidesAcross(subject, ground, catches.across);
    const SnapGuides down = guidesAcross(transposed(subject), transposed(ground), catches.down);
    for (const QLineF &line : down.lines)
        guides.lines.append(transposed(line));
    for (const QLineF &span : down.spans)
        guides.spans.append(transposed(span));
    return guides;
}

} // namespace pagehost

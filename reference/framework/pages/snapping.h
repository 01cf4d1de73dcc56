#pragma once

#include <QtCore/QLineF>
#include <QtCore/QPointF>
#include <QtCore/QRectF>
#include <QtCore/QVector>

#include <optional>

// Snapping of dragged boxes and points to what lies around them. All lengths are scene units.

namespace pagehost {

/// An object that others catch at.
struct SnapPartner
{
    QRectF box;
    QVector<QPointF> points; ///< its control points and places for connectors
};

/// All that a drag can catch at.
struct SnapGround
{
    QVector<SnapPartner> partners;
    QRectF page;
    double grid = 0; ///< distance of the lines; 0 without grid
};

/// The parts of a box along one axis.
enum SnapPart {
    NearPart = 1, ///< left or top
    MiddlePart = 2,
    FarPart = 4, ///< right or bottom
    AllParts = NearPart | MiddlePart | FarPart
};

/// A dragged box where it would be without snapping, and those of its parts that follow the pointer. A point is an
/// empty box with one part.
struct SnapSubject
{
    QRectF box;
    int across = AllParts; ///< SnapPart along x, 0 for a drag that leaves x alone
    int down = AllParts;   ///< SnapPart along y
};

/// In the order of preference.
enum class SnapRank { Point, Edge, Spacing, Page, Grid };
constexpr int snapRankCount = int(SnapRank::Grid) + 1;

/// A part that has been caught.
struct SnapCatch
{
    SnapRank rank = SnapRank::Edge;
    SnapPart part = NearPart;
    double position = 0; ///< of the part, along the axis

    friend bool operator==(const SnapCatch &one, const SnapCatch &other)
    {
        return one.rank == other.rank && one.part == other.part && one.position == other.position;
    }
};

/// Catches of both axes, which are independent of each other.
struct SnapCatches
{
    std::optional<SnapCatch> across;
    std::optional<SnapCatch> down;
};

struct SnapReach
{
    double catches = 0;   ///< a part within this distance is caught
    double letsGo = 0;    ///< a caught part is free at this distance
    double advantage = 0; ///< by which a lower rank must be nearer to be preferred
};

/// `held` are the catches of the drag's move before.
SnapCatches findCatches(const SnapSubject &subject, const SnapGround &ground, const SnapReach &reach,
                        const SnapCatches &held);
/// From the subject to its caught place.
QPointF offsetTo(const SnapCatches &catches, const SnapSubject &subject);
/// Those catches whose parts lie where they were caught.
SnapCatches fulfilled(const SnapCatches &catches, const SnapSubject &subject);

struct SnapGuides
{
    QVector<QLineF> lines; ///< through the parts and all their partners
    QVector<QLineF> spans; ///< equal gaps or sizes
};

/// The guides of a subject that lies where it was caught.
SnapGuides guidesOf(const SnapSubject &subject, const SnapGround &ground, const SnapCatches &catches);

} // namespace pagehost

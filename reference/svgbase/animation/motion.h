#pragma once

#include "animation/effect.h"
#include "geometry/pathmeasure.h"
#include "resolve/facts.h"
#include "tree/tree.h"

namespace Svg {

/// An `animateMotion`: moves its target along a path (SVG 1.1 §19.2.15).
class Motion
{
public:
    /// Empty when the element gives no usable path, or one longer than the room left. `room` counts down the
    /// elements of paths.
    static std::optional<Motion> read(const Tree &tree, NodeIndex animation, const LengthContext &lengths,
                                      const FactsOfNode &factsOf, int *room);

    /// The transform functions of a position on the path.
    TransformList transforms(const RoundPosition &position) const;
    /// Whether it is added to motions below it.
    bool isAdditive() const { return m_additive; }

private:
    enum Rotation { Fixed, Auto, AutoReverse };

    explicit Motion(const QPainterPath &path);
    bool readKeys(const Attributes &attributes);
    void readRotation(const Attributes &attributes);

    PathMeasure m_way;
    /// Distances along the path at the key times.
    QVector<double> m_stops;
    Keyframes m_frames;
    Rotation m_rotation = Fixed;
    double m_angle = 0;
    bool m_additive = false;
    bool m_accumulates = false;
};

} // namespace Svg

#pragma once

#include "geometry/polyline.h"

#include <QtGui/QPen>

namespace Svg {

/// Cuts lines into the dashes of a pen.
class Dashes
{
public:
    explicit Dashes(const QPen &pen);

    /// Whether there is anything to cut with.
    bool isEmpty() const { return !(m_period > 0); }
    /// Calls `visit` with each dash, until it returns false. A closed line that no gap cuts stays closed.
    bool visit(const Polyline &line, const std::function<bool(const Polyline &)> &visit) const;

private:
    std::vector<double> m_lengths;
    double m_period = 0;
    double m_offset = 0;
};

} // namespace Svg

#pragma once

/// One axis of a control point that follows a size change.
struct AxisTravel
{
    double boxStart;   ///< view box, document units
    double boxSide;    ///< view box, document units
    double pointStart; ///< the point's bounding rectangle, document units
    double pointSide;  ///< the point's bounding rectangle, document units
    double oldSide;    ///< the object, item units
    double newSide;    ///< the object, item units

    /// Start of the point's bounding rectangle after the change: its centre moves in proportion to the growth of
    /// the free travel. A point without free travel is centred on 0. Results are compared exactly: the order of
    /// evaluation is fixed.
    double newStart() const;
};

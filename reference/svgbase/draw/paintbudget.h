#pragma once

#include "inputlimits.h"

namespace Svg {

/// What a drawing may still do: pixels painted aside, in all and at a time, and work on outlines.
struct PaintBudget
{
    PaintBudget() = default;
    /// More for a target of more pixels.
    explicit PaintBudget(double targetPixels)
        : work(Limits::paintedWork + Limits::paintedWorkPerPixel * targetPixels)
        , wholeWork(work)
    {
    }

    double left = Limits::layerPixels;
    double open = 0;
    int depth = 0;
    double work = Limits::paintedWork;
    double wholeWork = work;
    /// How many outlines were drawn that may keep what painters make of them.
    int outlines = 0;
    /// Whether a picture was refused.
    bool lacksPixels = false;

    bool lacksWork() const { return work < 0; }
    /// How much of it was taken; 1 or more where something was left out or simplified.
    double taken() const
    {
        const double share = qMax(1 - left / Limits::layerPixels, 1 - work / wholeWork);
        return lacksPixels ? qMax(1.0, share) : share;
    }
};

} // namespace Svg

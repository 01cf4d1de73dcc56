#pragma once

#include "grammar/inputlimits.h"

namespace Svg {

/// Remaining work of a drawing: pixels of layers, in total and at a time, and work on outlines and pixels.
struct PaintBudget
{
    PaintBudget() = default;
    /// Grows with the pixels of the target.
    explicit PaintBudget(double targetPixels)
        : mostOpen(Limits::openLayerPixels + Limits::openLayerTargets * targetPixels)
        , work(Limits::paintedWork + Limits::paintedWorkPerPixel * targetPixels)
        , wholeWork(work)
    {
    }

    /// For the tiles of a drawing's patterns, painted in addition to it.
    static PaintBudget ofTiles()
    {
        PaintBudget budget;
        budget.left *= Limits::shareOfTiles;
        budget.work *= Limits::shareOfTiles;
        budget.outlineWork *= Limits::shareOfTiles;
        return budget;
    }

    double left = Limits::layerPixels;
    double open = 0;
    double mostOpen = Limits::openLayerPixels;
    int depth = 0;
    double work = Limits::paintedWork;
    double wholeWork = work;
    /// The part of the work that does not grow with the target.
    double outlineWork = Limits::paintedWork;
    /// How many outlines were drawn that may keep data of the painters.
    int outlines = 0;
    /// Whether a picture was refused.
    bool lacksPixels = false;

    bool lacksWork() const { return work < 0 || outlineWork < 0; }
    /// Used share of the budget; 1 or more when something was left out or simplified.
    double taken() const
    {
        const double share =
            qMax(qMax(1 - left / Limits::layerPixels, 1 - work / wholeWork), 1 - outlineWork / Limits::paintedWork);
        return lacksPixels ? qMax(1.0, share) : share;
    }
};

} // namespace Svg

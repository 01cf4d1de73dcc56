#pragma once

#include "grammar/inputlimits.h"

#include <QtGui/QTransform>

#include <memory>

namespace Svg {

/// How items come to the painter: the document to its target, the target to the painter's coordinates.
struct Mapping
{
    QTransform stretch;
    QTransform world;
};
using MappingPointer = std::shared_ptr<const Mapping>;

/// Remaining budget for mapping the items of one drawing.
struct MappingBudget
{
    /// Elements of the outlines of strokes that the drawing makes itself, because no pen can draw them.
    double strokeElements = Limits::strokeElements;
    /// Elements of mapped outlines that are kept; others are mapped at each painting.
    int keptElements = Limits::keptElements;
    /// Whether strokes with too many dashes became solid ones.
    bool solidStrokes = false;
    /// Shared by all items with the same mapping that do not keep their outlines.
    MappingPointer mapping;

    bool isUsedUp() const { return strokeElements <= 0; }
    MappingPointer sharedMapping(const Mapping &used)
    {
        if (!mapping || mapping->stretch != used.stretch || mapping->world != used.world)
            mapping = std::make_shared<const Mapping>(used);
        return mapping;
    }
};

} // namespace Svg

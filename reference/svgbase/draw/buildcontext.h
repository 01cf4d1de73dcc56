#pragma once

#include "document/document.h"
#include "document/drawingwalk.h"

namespace Svg {

/// What all parts of a list share while it is built.
struct BuildContext
{
    Document &document;
    /// What was taken by references; bounding boxes count apart.
    WalkBudget budget;
    WalkBudget boundsBudget;
    int boundsVisits = 0;
    /// Clip paths, masks and markers whose content is being built; one of them in its own content is an error.
    QVector<NodeIndex> open;
    /// Whether anything blends with what lies below it.
    bool blends = false;
    /// The control point that is being visited, and its centre in document units.
    NodeIndex control = noNode;
    QPointF controlCentre;
};

} // namespace Svg

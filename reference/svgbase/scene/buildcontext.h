#pragma once

#include "paint/patternpaint.h"
#include "resolve/drawingwalk.h"
#include "resolve/settledtree.h"
#include "scene/drawreport.h"

#include <QtCore/QHash>
#include <QtCore/QSet>

namespace Svg {

/// What all parts of a list share while it is built.
struct BuildContext
{
    explicit BuildContext(SettledTree &built)
        : document(built)
    {
    }

    SettledTree &document;
    /// What was taken by references; bounding boxes count apart.
    WalkBudget budget;
    WalkBudget boundsBudget;
    int boundsVisits = 0;
    /// Primitives of all filters so far.
    int appliedPrimitives = 0;
    /// Clip paths, masks and markers whose content is being built; one of them in its own content is an error.
    QVector<NodeIndex> open;
    /// What "feImage" elements show, so that every use of a filter need not read it again.
    QHash<NodeIndex, std::shared_ptr<const ImageContent>> filterImages;
    /// Patterns that were built, for all that are painted with the same, by what they were built from.
    QMultiHash<uint, PatternPointer> patterns;
    std::shared_ptr<PatternTiles> tiles = std::make_shared<PatternTiles>();
    /// What was left out.
    DrawReport report;
    /// Images that are shown, their pixels, and the same counted for every time that they are.
    QSet<const ImageContent *> images;
    qint64 imagePixels = 0;
    qint64 shownPixels = 0;
    /// How many images this document stands in.
    int imageDepth = 0;
    /// Whether anything blends with what lies below it.
    bool blends = false;
    /// The control point that is being visited, and its centre in document units.
    NodeIndex control = noNode;
    QPointF controlCentre;
};

} // namespace Svg

#pragma once

#include "resolve/drawingwalk.h"
#include "resolve/settledtree.h"
#include "scene/displayitem.h"
#include "scene/drawreport.h"

#include <QtCore/QHash>
#include <QtCore/QSet>

namespace Svg {

struct BuildContext;

/// Purpose of built content.
enum class ContentUse {
    Drawing,
    /// Only silhouettes are used, of shapes, texts and direct references to them (CSS Masking 1 §6.3.1).
    Clipping
};

/// Builds the content of elements that others refer to.
class ContentBuilder
{
public:
    virtual ~ContentBuilder() = default;
    /// The items of an element's children as drawn under the given facts.
    virtual DisplayItems children(BuildContext &context, NodeIndex holder, const FactsPointer &facts,
                                  ContentUse use) const = 0;
    /// The items of an element, the root for a whole document, under the given facts.
    virtual DisplayItems element(BuildContext &context, NodeIndex node, const FactsPointer &facts) const = 0;
};

/// State shared by all parts of a list while it is built.
struct BuildContext
{
    BuildContext(SettledTree &built, const ContentBuilder &builder)
        : document(built)
        , content(builder)
    {
    }

    SettledTree &document;
    const ContentBuilder &content;
    /// Used by references; bounding boxes are counted separately.
    WalkBudget budget;
    WalkBudget boundsBudget;
    int boundsVisits = 0;
    /// Primitives of all filters so far.
    int appliedPrimitives = 0;
    /// Clip paths, masks and markers whose content is being built; one of them in its own content is an error.
    QVector<NodeIndex> open;
    /// Images of "feImage" elements, read once for all uses of a filter.
    QHash<NodeIndex, std::shared_ptr<const ImageContent>> filterImages;
    /// Patterns built so far, by their inputs, shared by everything painted with the same.
    QMultiHash<uint, PatternPointer> patterns;
    DrawReport report;
    /// Distinct images shown, their pixels, and the pixels counted at every use.
    QSet<const ImageContent *> images;
    qint64 imagePixels = 0;
    qint64 shownPixels = 0;
    /// How many images this document is nested in.
    int imageDepth = 0;
    /// Whether anything blends with its backdrop.
    bool blends = false;
    /// The control point that is being visited, and its centre in document units.
    NodeIndex control = noNode;
    std::optional<QPointF> controlCentre;
};

} // namespace Svg

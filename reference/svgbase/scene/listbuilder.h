#pragma once

#include "paint/displaylist.h"
#include "scene/buildcontext.h"

namespace Svg {

/// The items of a document in drawing order, not mapped yet. Control points are apart, since they go on top.
struct BuiltList
{
    QVector<DisplayItem> items;
    QVector<DisplayItem> controlPoints;
    std::shared_ptr<PatternTiles> tiles;
    /// What was left out.
    DrawReport report;
};

BuiltList buildList(SettledTree &document);

/// What content is built for.
enum class ContentUse {
    Drawing,
    /// Only silhouettes count, of shapes, texts and direct references to them (CSS Masking 1 §6.3.1).
    Clipping
};

/// The items of an element's children as they are drawn under the given facts where another element refers to it.
QVector<DisplayItem> buildContent(BuildContext &context, NodeIndex holder, const FactsPointer &facts,
                                  ContentUse use);

/// The items of an element, the root for all of a document, under the given facts.
QVector<DisplayItem> buildElement(BuildContext &context, NodeIndex node, const FactsPointer &facts);

} // namespace Svg

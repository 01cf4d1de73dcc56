#pragma once

#include "draw/displaylist.h"

namespace Svg {

/// The items of a document in drawing order, not mapped yet. Control points are apart, since they go on top.
struct BuiltList
{
    QVector<DisplayItem> items;
    QVector<DisplayItem> controlPoints;
};

BuiltList buildList(Document &document);

} // namespace Svg

#pragma once

#include "resolve/settledtree.h"
#include "scene/displayitem.h"
#include "scene/drawreport.h"

namespace Svg {

/// The items of a document in drawing order, not mapped yet. Control points are separate, since they are painted on
/// top.
struct BuiltList
{
    DisplayItems items;
    DisplayItems controlPoints;
    DrawReport report;
};

BuiltList buildList(SettledTree &document);

} // namespace Svg

#include "scene/displayitem.h"

#include "geometry/openends.h"

namespace Svg {

namespace {

using PicturePointer = std::shared_ptr<const PictureItem>;

bool isSame(const ShapeItem &a, const ShapeItem &b)
{
    return a.override == b.override && a.outline == b.outline && a.silhouette == b.silhouette &&
           a.paintsFill == b.paintsFill && a.paintsStroke == b.paintsStroke && a.fillPattern == b.fillPattern &&
           a.strokePattern == b.strokePattern;
}

bool isSame(const PicturePointer &a, const PicturePointer &b)
{
    return a->content == b->content && a->fit == b->fit && a->toElement == b->toElement && a->target == b->target;
}

bool isSame(const GroupItem &a, const GroupItem &b)
{
    return a.effects == b.effects && a.count == b.count;
}

Outline silhouette(const Outline &outline, const ComputedStyle &style)
{
    Outline result;
    result.path = outline.path;
    result.path.setFillRule(style.clipRule);
    result.fill = QBrush(Qt::black);
    return result;
}

} // namespace

bool hasSameOrigin(const DisplayItem &a, const DisplayItem &b)
{
    if (a.node != b.node || a.facts != b.facts || a.opacity != b.opacity || a.controlCentre != b.controlCentre ||
        a.content.index() != b.content.index())
        return false;
    return std::visit(
        [&b](const auto &content) { return isSame(content, std::get<std::decay_t<decltype(content)>>(b.content)); },
        a.content);
}

Outline shownOutline(const DisplayItem &item, const ShapeItem &shape)
{
    const Outline &own = item.facts->outlines.at(shape.outline);
    if (shape.silhouette)
        return silhouette(own, *item.facts->style);
    Outline outline = shape.override ? overridden(own, *item.facts->style, *shape.override) : own;
    if (!shape.paintsFill || (outline.fillPattern != noNode && !shape.fillPattern))
        outline.fill = Qt::NoBrush;
    if (!shape.paintsStroke || (outline.strokePattern != noNode && !shape.strokePattern))
        outline.pen = QPen(Qt::NoPen);
    if (outline.pen.style() != Qt::NoPen)
        outline.path = withOpenEnds(outline.path, outline.openEnds);
    return outline;
}

} // namespace Svg

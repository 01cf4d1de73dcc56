#include "scene/layerwrapping.h"

namespace Svg {

namespace {

// Layers know the place of their end.
void shiftEnds(QVector<DisplayItem> *items, int from, int distance)
{
    for (int i = from; i < items->size(); ++i) {
        if (items->at(i).kind == DisplayItem::BeginLayer)
            (*items)[i].end += distance;
    }
}

} // namespace

void wrapInLayer(const BuildContext &context, NodeIndex node, const std::shared_ptr<LayerEffects> &effects,
                 QVector<DisplayItem> *items)
{
    shiftEnds(items, 0, 1);
    DisplayItem begin;
    begin.kind = DisplayItem::BeginLayer;
    begin.node = node;
    begin.effects = effects;
    begin.control = context.control != noNode;
    begin.controlCentre = context.controlCentre;
    begin.end = items->size() + 1;
    DisplayItem end;
    end.kind = DisplayItem::EndLayer;
    end.node = node;
    items->prepend(begin);
    items->append(end);
}

void appendItems(const QVector<DisplayItem> &added, QVector<DisplayItem> *items)
{
    const int from = items->size();
    *items += added;
    shiftEnds(items, from, from);
}

} // namespace Svg

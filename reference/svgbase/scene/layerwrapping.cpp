#include "scene/layerwrapping.h"

namespace Svg {

void wrapInLayer(const BuildContext &context, NodeIndex node, const std::shared_ptr<const LayerEffects> &effects,
                 DisplayItems *items)
{
    DisplayItem group;
    group.node = node;
    group.controlCentre = context.controlCentre;
    group.content = GroupItem{effects, items->size()};
    items->prepend(group);
}

} // namespace Svg

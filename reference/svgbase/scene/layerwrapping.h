#pragma once

#include "scene/buildcontext.h"
#include "scene/layereffects.h"

namespace Svg {

/// Puts a complete list into a group.
void wrapInLayer(const BuildContext &context, NodeIndex node, const std::shared_ptr<const LayerEffects> &effects,
                 DisplayItems *items);

} // namespace Svg

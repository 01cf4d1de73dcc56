#pragma once

#include "scene/buildcontext.h"
#include "scene/layereffects.h"

namespace Svg {

/// Puts a list that is complete in itself into a layer.
void wrapInLayer(const BuildContext &context, NodeIndex node, const std::shared_ptr<LayerEffects> &effects,
                 QVector<DisplayItem> *items);
/// Appends a list that is complete in itself.
void appendItems(const QVector<DisplayItem> &added, QVector<DisplayItem> *items);

} // namespace Svg

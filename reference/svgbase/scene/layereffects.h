#pragma once

#include "scene/displayitem.h"
#include "scene/filter.h"

namespace Svg {

/// Effects on a group's finished picture before it is painted on its backdrop: filter, region, clip path and mask,
/// in this order, then the group's opacity and the blend mode.
struct LayerEffects
{
    /// Null for none.
    std::shared_ptr<const Filter> filter;

    /// Clips the picture to this outline.
    bool hasRegion = false;
    QPainterPath region;
    QTransform regionToDocument;

    /// Silhouettes; the picture is visible where they cover.
    bool clips = false;
    DisplayItems clip;

    /// The picture is visible as far as this drawing is opaque, and, unless only alpha is used, bright.
    bool masks = false;
    bool alphaMask = false;
    bool linearMask = false;
    DisplayItems mask;

    BlendMode blendMode = BlendMode::Normal;
    bool isolated = false;
};

} // namespace Svg

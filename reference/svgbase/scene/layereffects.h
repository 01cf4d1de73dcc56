#pragma once

#include "scene/displayitem.h"
#include "scene/filter.h"

namespace Svg {

/// What a group's finished picture goes through before it is painted on what lies below: filter, region, clip path
/// and mask, in this order, then the group's opacity and the blend mode.
struct LayerEffects
{
    /// Null for none.
    std::shared_ptr<const Filter> filter;

    /// Nothing shows outside this outline.
    bool hasRegion = false;
    QPainterPath region;
    QTransform regionToDocument;

    /// Silhouettes; the picture shows as far as they cover.
    bool clips = false;
    DisplayItems clip;

    /// The picture shows as far as this drawing is opaque, and bright unless only its alpha counts.
    bool masks = false;
    bool alphaMask = false;
    bool linearMask = false;
    DisplayItems mask;

    BlendMode blendMode = BlendMode::Normal;
    bool isolated = false;
};

} // namespace Svg

#pragma once

#include "scene/filter.h"

namespace Svg {

/// What a layer's finished picture goes through before it is painted on what lies below: region, clip path and
/// mask, in this order, then the layer's opacity and the blend mode.
struct LayerEffects
{
    /// Null for none; comes before everything else.
    std::shared_ptr<Filter> filter;

    /// Nothing shows outside this outline.
    bool hasRegion = false;
    QPainterPath region;
    QTransform regionToDocument;
    /// The region in the painter's coordinates.
    QPainterPath regionPath;
    /// Whether that is a rectangle along the axes, and whether all of the content lies within.
    bool regionIsRect = false;
    bool holdsContent = false;

    /// Silhouettes; the picture shows as far as they cover.
    bool clips = false;
    QVector<DisplayItem> clip;

    /// The picture shows as far as this drawing is opaque, and bright unless only its alpha counts.
    bool masks = false;
    bool alphaMask = false;
    bool linearMask = false;
    QVector<DisplayItem> mask;

    BlendMode blendMode = BlendMode::Normal;
    bool isolated = false;
};

} // namespace Svg

#pragma once

#include "scene/buildcontext.h"
#include "scene/layereffects.h"

namespace Svg {

/// Effects of an element, such as a clip path or a mask.
struct BuiltEffects
{
    /// False when nothing of the element is visible.
    bool drawn = true;
    /// Null when the element is drawn without effects.
    std::shared_ptr<LayerEffects> layer;
};

/// Builds the effects in the style of an element. References to nothing, or to elements of another kind, count as
/// none (CSS Masking 1 §5.1 and §7.1); an element whose reference leads back to itself is not drawn.
BuiltEffects buildEffects(BuildContext &context, NodeIndex node, const FactsPointer &facts);
/// The same for an element inside a clip path, of whose effects only its own clip path applies.
BuiltEffects buildClipOnly(BuildContext &context, NodeIndex node, const FactsPointer &facts);

} // namespace Svg

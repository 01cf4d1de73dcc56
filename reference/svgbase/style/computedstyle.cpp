#include "style/computedstyle.h"

namespace Svg {

ComputedStyle inheritedStyle(const ComputedStyle &parent)
{
    ComputedStyle style = parent;
    style.opacity = 1;
    style.displayed = true;
    style.strokeScales = true;
    style.attributes.clear();
    style.stopColor = Qt::black;
    style.stopOpacity = 1;
    style.effects = nullptr;
    style.inlineText = nullptr;
    return style;
}

} // namespace Svg

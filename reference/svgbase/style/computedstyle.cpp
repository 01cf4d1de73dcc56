#include "style/computedstyle.h"

namespace Svg {

bool isLaidOutAlike(const ComputedStyle &a, const ComputedStyle &b)
{
    return a.font == b.font && a.text.constData() == b.text.constData() &&
           a.inlineText.constData() == b.inlineText.constData() && a.textAnchor == b.textAnchor &&
           a.visible == b.visible && a.attributes.isEmpty() && b.attributes.isEmpty();
}

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

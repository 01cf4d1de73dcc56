#include "properties/computedstyle.h"

namespace Svg {

const StylePointer &initialStyle()
{
    static const StylePointer initial(new SharedStyle);
    return initial;
}

bool isLaidOutAlike(const ComputedStyle &a, const ComputedStyle &b)
{
    if (&a == &b)
        return true;
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

bool isInheritedWhole(const ComputedStyle &parent)
{
    return parent.opacity >= 1 && parent.displayed && parent.strokeScales && parent.attributes.isEmpty() &&
           parent.stopColor == Qt::black && parent.stopOpacity >= 1 && !parent.effects && !parent.inlineText;
}

} // namespace Svg

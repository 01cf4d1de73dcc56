#include "properties/computedstyle.h"

#include "grammar/inputlimits.h"

namespace Svg {

namespace {

template<typename Record> const Record &recordOr(const QSharedDataPointer<Record> &record)
{
    static const QSharedDataPointer<Record> initial(new Record);
    return record ? *record : *initial;
}

} // namespace

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
    static_cast<OwnStyle &>(style) = OwnStyle();
    return style;
}

const EffectStyle &effectStyleOf(const ComputedStyle &style)
{
    return recordOr(style.effects);
}

const InlineStyle &inlineStyleOf(const ComputedStyle &style)
{
    return recordOr(style.inlineText);
}

const MarkerStyle &markerStyleOf(const ComputedStyle &style)
{
    return recordOr(style.markers);
}

const TextStyle &textStyleOf(const ComputedStyle &style)
{
    return recordOr(style.text);
}

bool asksForLines(const ComputedStyle &style)
{
    const InlineStyle &own = inlineStyleOf(style);
    return own.underline || own.overline || own.lineThrough;
}

bool decorateTextBelow(ComputedStyle &group)
{
    QSharedDataPointer<TextStyle> changed(new TextStyle(textStyleOf(group)));
    if (changed->decorations.size() >= Limits::decoratingGroups)
        return false;
    changed->decorations.append(std::make_shared<const ComputedStyle>(group));
    group.text = changed;
    return true;
}

} // namespace Svg

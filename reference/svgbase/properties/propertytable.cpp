#include "properties/propertytable.h"

#include "properties/effectproperties.h"
#include "properties/paintproperties.h"
#include "properties/textproperties.h"

namespace Svg {

const Property &propertyOf(AttributeId id)
{
    if (isTextProperty(id))
        return textProperties()[int(id) - int(AttributeId::AlignmentBaseline)];
    if (id >= AttributeId::Clip)
        return effectProperties()[int(id) - int(AttributeId::Clip)];
    return paintProperties()[int(id) - int(firstProperty)];
}

bool applyProperty(ComputedStyle &style, AttributeId property, QStringView text, const PropertyContext &context)
{
    const Property &row = propertyOf(property);
    const QStringView trimmed = text.trimmed();
    const auto is = [trimmed](const char *word) {
        return trimmed.compare(QLatin1String(word), Qt::CaseInsensitive) == 0;
    };
    const bool unset = is("unset") || is("revert");
    if (is("inherit") || (unset && row.inherited))
        row.copy(style, context.parent);
    else if (is("initial") || unset)
        row.copy(style, *initialStyle());
    else
        return row.apply(style, trimmed, context);
    return true;
}

bool assignProperty(ComputedStyle &style, AttributeId property, const AttributeValue &value,
                    const PropertyContext &context)
{
    const PropertyAnimation &animation = propertyOf(property).animation;
    const std::optional<TypedValue> typed = typedValueOf(value);
    return typed && animation.assign ? animation.assign(style, *typed, context)
                                     : applyProperty(style, property, QStringView(value.text()), context);
}

} // namespace Svg

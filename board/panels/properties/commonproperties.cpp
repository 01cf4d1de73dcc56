#include "panels/properties/commonproperties.h"

#include <algorithm>

using pagehost::AttributeDescription;

namespace board {

namespace {

const AttributeDescription *find(const QVector<AttributeDescription> &properties, int id)
{
    const auto found = std::find_if(properties.begin(), properties.end(),
                                    [&](const AttributeDescription &property) { return property.id == id; });
    return found == properties.end() ? nullptr : &*found;
}

bool isAlike(const AttributeDescription &one, const AttributeDescription &other)
{
    const auto sameText = [](const AttributeDescription::Entry &entry, const AttributeDescription::Entry &second) {
        return entry.text == second.text;
    };
    return one.kind == other.kind && one.entries.size() == other.entries.size() &&
           std::equal(one.entries.begin(), one.entries.end(), other.entries.begin(), sameText);
}

/// False when one of the objects has no such property.
bool merge(CommonProperty &common, const QVector<QVector<AttributeDescription>> &objects)
{
    for (const QVector<AttributeDescription> &properties : objects) {
        const AttributeDescription *other = find(properties, common.property.id);
        if (!other || !isAlike(common.property, *other))
            return false;
        common.range = common.range.common(numbersOf(*other));
        common.property.isEnabled &= other->isEnabled;
        common.isMixed |= other->value != common.property.value;
    }
    return common.range.minimum < common.range.maximum;
}

} // namespace

NumberRange numbersOf(const AttributeDescription &property)
{
    const AttributeDescription::Range &range = property.range;
    NumberRange numbers;
    switch (property.kind) {
    case AttributeDescription::Real:
        numbers.decimals = NumberRange::usualDecimals;
        return numbers;
    case AttributeDescription::WholeRange:
        return {range.minimum, range.maximum, range.step, 0};
    case AttributeDescription::RealRange:
        numbers = {range.minimum, range.maximum, range.step, NumberRange::usualDecimals};
        numbers.decimals = range.step > 0 ? NumberRange::decimalsOf(range.step) : numbers.decimals;
        return numbers;
    default:
        return numbers;
    }
}

QVector<CommonProperty> commonProperties(const QVector<QVector<AttributeDescription>> &objects)
{
    QVector<CommonProperty> result;
    if (objects.isEmpty())
        return result;
    for (const AttributeDescription &property : objects.first()) {
        CommonProperty common{property, numbersOf(property), false};
        if (merge(common, objects))
            result.append(common);
    }
    return result;
}

} // namespace board

#include "panels/properties/commonproperties.h"

#include <algorithm>

namespace board {

namespace {

const PropertyDescription *find(const QVector<PropertyDescription> &properties, int id)
{
    const auto found = std::find_if(properties.begin(), properties.end(),
                                    [&](const PropertyDescription &property) { return property.id == id; });
    return found == properties.end() ? nullptr : &*found;
}

bool isAlike(const PropertyDescription &one, const PropertyDescription &other)
{
    const auto sameText = [](const PropertyDescription::Entry &entry, const PropertyDescription::Entry &second) {
        return entry.text == second.text;
    };
    return one.kind == other.kind && one.entries.size() == other.entries.size() &&
           std::equal(one.entries.begin(), one.entries.end(), other.entries.begin(), sameText);
}

/// False when one of the objects has no such property.
bool merge(CommonProperty &common, const QVector<QVector<PropertyDescription>> &objects)
{
    for (const QVector<PropertyDescription> &properties : objects) {
        const PropertyDescription *other = find(properties, common.property.id);
        if (!other || !isAlike(common.property, *other))
            return false;
        common.property.range = common.property.range.common(other->range);
        common.property.isEnabled &= other->isEnabled;
        common.isMixed |= other->value != common.property.value;
    }
    return common.property.range.minimum < common.property.range.maximum;
}

} // namespace

QVector<CommonProperty> commonProperties(const QVector<QVector<PropertyDescription>> &objects)
{
    QVector<CommonProperty> result;
    if (objects.isEmpty())
        return result;
    for (const PropertyDescription &property : objects.first()) {
        CommonProperty common{property, false};
        if (merge(common, objects))
            result.append(common);
    }
    return result;
}

} // namespace board

#include "paint/mappeditem.h"

namespace Svg {

MappedItems unmapped(const DisplayItems &items)
{
    MappedItems result(size_t(items.size()));
    for (int i = 0; i < items.size(); ++i)
        result[size_t(i)].item = items.at(i);
    return result;
}

int membersOf(const MappedItem &item)
{
    const auto *group = std::get_if<GroupItem>(&item.item.content);
    return group ? group->count : 0;
}

} // namespace Svg

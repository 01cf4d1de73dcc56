#include "style/stylecache.h"

#include <QtCore/QHash>

namespace Svg {

size_t StyleCache::placeOf(const StyleOrigin &origin)
{
    return (qHash(origin.declarations) ^ qHash(origin.parent.data())) % entryCount;
}

StylePointer StyleCache::find(const StyleOrigin &origin) const
{
    const Entry &entry = m_entries[placeOf(origin)];
    return entry.origin == origin ? entry.style : StylePointer();
}

void StyleCache::insert(const StyleOrigin &origin, const StylePointer &style)
{
    if (origin.declarations.size() <= longestOrigin)
        m_entries[placeOf(origin)] = {origin, style};
}

} // namespace Svg

#pragma once

#include "properties/computedstyle.h"

#include <QtCore/QSizeF>

#include <array>

namespace Svg {

/// Everything that determines the style of an element.
struct StyleOrigin
{
    StylePointer parent;
    /// Reference of percentages, user units.
    QSizeF viewport;
    /// Decoration lines lie below the elements of a text that declares them.
    bool isText = false;
    /// All declarations for the element, in order.
    QString declarations;

    bool operator==(const StyleOrigin &other) const
    {
        return parent == other.parent && viewport == other.viewport && isText == other.isText &&
               declarations == other.declarations;
    }
};

/// Recently computed styles: elements with the same declarations under the same parent share one.
class StyleCache
{
public:
    /// Null when it is unknown.
    StylePointer find(const StyleOrigin &origin) const;
    void insert(const StyleOrigin &origin, const StylePointer &style);

private:
    struct Entry
    {
        StyleOrigin origin;
        StylePointer style;
    };
    static constexpr size_t entryCount = 64;
    /// Longer ones are rare and not worth their memory.
    static constexpr int longestOrigin = 2000;
    static size_t placeOf(const StyleOrigin &origin);

    std::array<Entry, entryCount> m_entries;
};

} // namespace Svg

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
    /// Lines that decorate text are for what is below anything else.
    bool isText = false;
    /// Everything that is said of the element, in its order.
    QString declarations;

    bool operator==(const StyleOrigin &other) const
    {
        return parent == other.parent && viewport == other.viewport && isText == other.isText &&
               declarations == other.declarations;
    }
};

/// Styles that were worked out lately: elements of which the same is said under the same parent share one.
class StyleCache
{
public:
    /// Null when it is not known.
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

#pragma once

#include <pagehost/style.h>

#include <framework/cpagebgprop.h>

#include <optional>

namespace board {

/// A look that was copied from one object to be given to others: the attribute map, and a fill that is no plain
/// colour, which the map can't tell.
class LookClipboard
{
public:
    bool isSet() const { return !m_map.isEmpty(); }
    void take(CBaseObject *object);
    /// One undo step for all objects. False when nothing changed.
    bool give(const QVector<CBaseObject *> &objects) const;

private:
    pagehost::StyleMap m_map;
    std::optional<CPageBgProp> m_fill;
};

} // namespace board

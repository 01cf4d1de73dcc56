#include "core/newlook.h"

#include <framework/cbaseobject.h>

namespace board {

void NewLook::choose(CBaseObject *object)
{
    m_style = pagehost::styleMapOf(object);
    Q_EMIT changed();
}

void NewLook::giveUp()
{
    m_style.reset();
    Q_EMIT changed();
}

bool NewLook::isLookOf(CBaseObject *object) const
{
    if (!m_style)
        return false;
    const pagehost::StyleMap style = pagehost::styleMapOf(object);
    for (auto value = style.cbegin(); value != style.cend(); ++value)
        if (m_style->contains(value.key()) && m_style->value(value.key()) != value.value())
            return false;
    return true;
}

void NewLook::giveTo(CBaseObject *object) const
{
    if (m_style)
        object->setAllAttributes(*m_style, false);
}

} // namespace board

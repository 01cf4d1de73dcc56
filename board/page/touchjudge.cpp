#include "page/touchjudge.h"

#include <algorithm>

namespace board {

namespace {

/// Contacts that are larger are palms.
constexpr double largestFinger = 30; ///< millimetres
/// A hand that writes leaves the glass after its pen.
constexpr qint64 penAfterglow = 300;
/// Somebody who has used a pen goes on with it.
constexpr qint64 penMemory = 10 * 60 * 1000;

bool isPalm(const Contact &contact)
{
    return std::max(contact.millimetres.width(), contact.millimetres.height()) > largestFinger;
}

bool isAmong(const QVector<Contact> &contacts, int id)
{
    return std::any_of(contacts.begin(), contacts.end(), [id](const Contact &contact) { return contact.id == id; });
}

} // namespace

void TouchJudge::seePen(qint64 now)
{
    m_hasSeenPen = true;
    m_penSeen = now;
}

void TouchJudge::setPenNear(bool isNear, qint64 now)
{
    m_penIsNear = isNear;
    seePen(now);
}

bool TouchJudge::isPenNear(qint64 now) const
{
    return m_penIsNear || (m_hasSeenPen && now - m_penSeen < penAfterglow);
}

bool TouchJudge::isFingerForTool(qint64 now) const
{
    return m_fingersDraw || !m_hasSeenPen || now - m_penSeen >= penMemory;
}

TouchJudge::Use TouchJudge::judge(const QVector<Contact> &down, qint64 now)
{
    sortOut(down);
    m_isDropped = !down.isEmpty() && (m_isDropped || isPenNear(now));
    const bool hasToolFinger = m_use == Use::Tool && isAmong(m_fingers, m_toolFinger);
    if (m_isDropped || m_fingers.isEmpty() || (m_use == Use::Tool && !hasToolFinger))
        m_use = Use::Nothing;
    if (m_isDropped || m_fingers.isEmpty())
        return m_use;
    if (m_fingers.size() > 1) {
        m_use = Use::View;
    } else if (m_use == Use::Nothing) {
        m_use = isFingerForTool(now) ? Use::Tool : Use::View;
        m_toolFinger = m_fingers.first().id;
    }
    return m_use;
}

void TouchJudge::drop()
{
    m_isDropped = true;
    m_use = Use::Nothing;
}

/// A palm stays one until it has left, however small it seems while it is lifted.
void TouchJudge::sortOut(const QVector<Contact> &down)
{
    const auto hasLeft = [&down](int id) { return !isAmong(down, id); };
    m_palms.erase(std::remove_if(m_palms.begin(), m_palms.end(), hasLeft), m_palms.end());
    m_fingers.clear();
    for (const Contact &contact : down) {
        if (isPalm(contact) && !m_palms.contains(contact.id))
            m_palms.append(contact.id);
        if (!m_palms.contains(contact.id))
            m_fingers.append(contact);
    }
}

} // namespace board

#include <pages/followers.h>

#include <framework/cbaseobject.h>

#include <pagehost/objectid.h>
#include <pagehost/page.h>

#include <host/followedobjects.h>

#include <QtCore/QScopedValueRollback>

#include <algorithm>

namespace pagehost {

Followers::Followers(Page *page)
    : m_page(page)
{
    connect(page, &Page::objectAdded, this, &Followers::take);
    connect(page, &Page::objectRemoved, this, &Followers::drop);
    connect(page, &Page::objectChanged, this, &Followers::noteChange);
}

void Followers::take(CBaseObject *object)
{
    noteChange(object);
}

void Followers::drop(CBaseObject *object)
{
    setFollowed(object, {});
    tellFollowersOf(object);
}

void Followers::noteChange(CBaseObject *object)
{
    if (m_isTelling || !m_page->contains(object))
        return;
    const auto numbers = followedObjects(*object);
    if (!numbers) {
        tellFollowersOf(object);
        return;
    }
    setFollowed(object, *numbers);
    tell(object);
}

void Followers::setFollowed(CBaseObject *follower, const QVector<quint32> &numbers)
{
    const QVector<quint32> before = m_followed.take(follower);
    for (const quint32 number : before)
        m_followers.remove(number, follower);
    const bool followsNone =
        std::all_of(numbers.begin(), numbers.end(), [](quint32 number) { return number == 0; });
    if (followsNone)
        return;
    m_followed.insert(follower, numbers);
    for (const quint32 number : numbers)
        if (number != 0 && !m_followers.contains(number, follower))
            m_followers.insert(number, follower);
}

void Followers::tellFollowersOf(CBaseObject *object)
{
    const quint32 number = m_followers.isEmpty() ? 0 : objectId(object);
    if (number == 0)
        return;
    const QList<CBaseObject *> followers = m_followers.values(number);
    for (CBaseObject *follower : followers)
        tell(follower);
}

void Followers::tell(CBaseObject *follower)
{
    const auto numbers = m_followed.constFind(follower);
    if (m_isTelling || numbers == m_followed.constEnd())
        return;
    const QScopedValueRollback<bool> telling(m_isTelling, true);
    QVector<CBaseObject *> followed;
    for (const quint32 number : *numbers)
        followed.append(objectWith(number));
    tellFollower(*follower, followed);
}

CBaseObject *Followers::objectWith(quint32 number)
{
    if (number == 0)
        return nullptr;
    CBaseObject *known = m_found.value(number);
    if (m_page->contains(known) && objectId(known) == number)
        return known;
    const QVector<CBaseObject *> objects = m_page->objects();
    const auto found = std::find_if(objects.begin(), objects.end(), [number](CBaseObject *object) {
        return objectId(object) == number && !followedObjects(*object);
    });
    if (found == objects.end())
        return nullptr;
    m_found.insert(number, *found);
    return *found;
}

} // namespace pagehost

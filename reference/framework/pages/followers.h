#pragma once

#include <QtCore/QHash>
#include <QtCore/QObject>
#include <QtCore/QVector>

class CBaseObject;

namespace pagehost {

class Page;

/// The objects of a page that follow others. It tells each at once where those are, whenever one of them or itself
/// has changed, so that what follows is the same after edits, undo, replay and reading, without steps of its own.
/// Objects that can follow are not followed themselves, which rules out circles.
class Followers : public QObject
{
    Q_OBJECT

public:
    /// The page outlives it.
    explicit Followers(Page *page);

private:
    void take(CBaseObject *object);
    void drop(CBaseObject *object);
    void noteChange(CBaseObject *object);
    void setFollowed(CBaseObject *follower, const QVector<quint32> &numbers);
    void tellFollowersOf(CBaseObject *object);
    void tell(CBaseObject *follower);
    CBaseObject *objectWith(quint32 number);

    Page *m_page;
    QHash<CBaseObject *, QVector<quint32>> m_followed; ///< numbers of the objects that each follower follows
    QMultiHash<quint32, CBaseObject *> m_followers;    ///< by these numbers
    QHash<quint32, CBaseObject *> m_found;             ///< by number; may be out of date
    bool m_isTelling = false;
};

} // namespace pagehost

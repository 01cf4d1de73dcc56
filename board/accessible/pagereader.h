#pragma once

#include "accessible/readpage.h"
#include "core/onceperturn.h"

#include <QtCore/QHash>
#include <QtCore/QPointer>
#include <QtCore/QSet>
#include <QtCore/QVector>

namespace pagehost {
class Page;
} // namespace pagehost

namespace board {

/// Shows screen readers the objects on the page of a view, and tells them what happens to these. An object and each
/// of its grips have the same interface for as long as they live; it is invalid while its object is not on the
/// page.
class PageReader : public ReadPage
{
    Q_OBJECT

public:
    PageReader(const Workspace *workspace, PageView *view);
    ~PageReader() override;

    QAccessibleInterface *interfaceOf(CBaseObject *object) override;
    /// That of the object or grip that keys change; null while that is none.
    QAccessibleInterface *focused();
    /// In stacking order, which Tab follows.
    QVector<CBaseObject *> objects() const;

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void followPage();
    void tellAdded(CBaseObject *object);
    void tellRemoved(CBaseObject *object);
    QString pageName() const;
    void tellPage();
    void tellSelection();
    void tellFocus();
    void refocus();
    void tellChanges();
    void tellChange(QAccessibleInterface *interface);
    void dropDead();

    QPointer<pagehost::Page> m_page;
    QHash<CBaseObject *, QAccessible::Id> m_ids;
    QAccessible::Id m_focused = 0;
    QSet<QAccessible::Id> m_selected;
    QHash<QAccessible::Id, QString> m_told; ///< values and descriptions of what has the focus
    QString m_toldPage;
    OncePerTurn m_tellPage;
    OncePerTurn m_refocus;
};

} // namespace board

#pragma once

#include <pagehost/pagetool.h>

#include <QtCore/QPointF>
#include <QtCore/QPointer>
#include <QtCore/QVector>

#include <memory>

class CBaseObject;

namespace pagehost {

class Page;

/// One drag of an end that follows objects, as those of connectors do: off the object that it follows, and onto the
/// one that it is dropped on (DraggedEnd). The object gets no mouse events.
class EndDrag
{
public:
    /// Of the control point that is nearest to the press (scene coordinates); null when that is no such end.
    static std::unique_ptr<EndDrag> begin(Page *page, CBaseObject *object, const QPointF &press);

    /// `led`: where the pointer is led to; an end on an object follows the pointer itself.
    void moveTo(const QPointF &pointer, const QPointF &led, double pixel);
    /// Has the object make one undo step.
    void finish();
    void cancel();

private:
    EndDrag(Page *page, CBaseObject *object, int number, const QPointF &centre, const QPointF &press);

    ToolPage::Connection connectionAt(const QPointF &pointer, double pixel) const;
    quint32 numberOf(CBaseObject *object);
    bool send(int phase, const QPointF &place, quint32 followed, const QString &name);
    void forgetNumbers(quint32 kept);

    Page *m_page;
    QPointer<CBaseObject> m_object;
    int m_number; ///< of the control point
    QPointF m_press;
    QPointF m_offset; ///< from the press to the centre of the control point
    bool m_hasMoved = false;
    quint32 m_followed = 0;
    QVector<QPointer<CBaseObject>> m_numbered; ///< objects that had no number before
};

} // namespace pagehost

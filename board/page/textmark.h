#pragma once

#include <QtCore/QPointer>
#include <QtCore/QRectF>

class CBaseObject;
class QGraphicsView;
class QPainter;

namespace board {

/// Marks a text of an object in a view.
class TextMark
{
public:
    explicit TextMark(QGraphicsView *view);

    /// Null for no mark.
    void set(CBaseObject *object, qint32 propertyId);
    /// Scene coordinates; null where the view shows no marked text.
    QRectF box() const;
    void paint(QPainter *painter) const;

private:
    QGraphicsView *m_view;
    QPointer<CBaseObject> m_object;
    qint32 m_propertyId = 0;
};

} // namespace board

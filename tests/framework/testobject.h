#pragma once

#include <framework/cbaseobject.h>
#include <framework/cundoredo.h>
#include <framework/cwbundocmd.h>

#include <QtCore/QDataStream>
#include <QtCore/QStringList>
#include <QtGui/QPainter>
#include <QtWidgets/QGraphicsSceneMouseEvent>
#include <QtWidgets/QUndoStack>

/// A page object of the plainest kind, finished from the start, that notes what its host asks of it.
class TestObject : public CBaseObject
{
public:
    explicit TestObject(const QSizeF &size = QSizeF(100, 60), const QPointF &pos = QPointF(0, 0))
        : CBaseObject(1, true, nullptr, nullptr)
    {
        CBaseObject::setSize(size, false, false);
        CPSRootObject::setPos(pos, false);
    }

    QString kindName() const override { return QStringLiteral("IDS_TEST_OBJECT"); }
    void OnQPainterDraw(QPainter *painter) override
    {
        ++(painter ? paints : renderings);
        CBaseObject::OnQPainterDraw(painter);
    }
    void RecordAction(int actionId, QByteArray *data) override
    {
        records.append({actionId, data ? *data : QByteArray()});
        CBaseObject::RecordAction(actionId, data);
    }
    void notifyObjPropertyChanged(int id, const QString &value) override
    {
        notifications.append(id);
        CBaseObject::notifyObjPropertyChanged(id, value);
    }
    void fillWith(const QColor &color)
    {
        CPageBgProp fill(nullptr);
        fill.setFillEnable(true);
        fill.setFillColor(color);
        setFillProp(&fill, false);
    }

    using CPSRootObject::dragEnd;
    using CPSRootObject::dragStart;
    using CPSRootObject::fillBrush;
    using CPSRootObject::regionPath;

    int paints = 0;
    int renderings = 0;
    QList<QPair<int, QByteArray>> records;
    QList<int> notifications;
};

/// Keeps the aspect ratio of its last size as shapes do, and has content that every resize rewrites, so that a size
/// asked for again gives neither the same size nor the same content.
class StubbornObject : public TestObject
{
public:
    using TestObject::TestObject;

    void setSize(QSizeF size, bool flag, bool redraw) override
    {
        const QSizeF ratio = clientRect.size();
        if (ratio.height() * size.width() > ratio.width() * size.height())
            size.setWidth(ratio.width() * size.height() / ratio.height());
        else
            size.setHeight(ratio.height() * size.width() / ratio.width());
        if (qAbs(size.width() - ratio.width()) >= 1e-7)
            content *= size.width() / ratio.width() * 1.0000001;
        CBaseObject::setSize(size, flag, redraw);
        OnQPainterDraw(nullptr);
        notifyObjPropertyChanged(SizeChanged, QString());
    }
    bool SavePropertyForPlayback(QDataStream &out) override
    {
        CBaseObject::SavePropertyForPlayback(out);
        out << content;
        return true;
    }
    bool LoadPropertyForPlayback(QDataStream &in) override
    {
        CBaseObject::LoadPropertyForPlayback(in);
        in >> content;
        return true;
    }

    double content = 1.0 / 3;
};

/// Is drawn with the mouse: takes its rectangle from the creating drag, at least 30 × 30, 80 × 50 for a click.
class CreatedObject : public TestObject
{
public:
    CreatedObject()
        : TestObject(QSizeF(0, 0))
    {
        createFinished = false;
    }

    void mousePressEvent(QGraphicsSceneMouseEvent *event) override
    {
        if (createFinished) {
            TestObject::mousePressEvent(event);
            return;
        }
        presses.append(event->pos());
        dragStart = dragEnd = event->pos();
    }
    void mouseMoveEvent(QGraphicsSceneMouseEvent *event) override
    {
        if (createFinished) {
            TestObject::mouseMoveEvent(event);
            return;
        }
        moves.append(event->scenePos() - getPos());
        dragEnd = event->scenePos() - getPos();
        take(dragEnd);
    }
    void mouseReleaseEvent(QGraphicsSceneMouseEvent *event) override
    {
        if (createFinished) {
            TestObject::mouseReleaseEvent(event);
            return;
        }
        releases.append(event->scenePos() - getPos());
        if (dragStart == dragEnd) {
            take(QPointF(80, 50));
        } else {
            const QPointF end = event->scenePos() - getPos();
            take(QPointF(qMax(30.0, end.x()), qMax(30.0, end.y())));
        }
        createFinished = true;
    }

    QList<QPointF> presses;
    QList<QPointF> moves;
    QList<QPointF> releases;

private:
    void take(const QPointF &corner)
    {
        clientRect = QRectF(QPointF(0, 0), corner);
        if (keepsSquare) {
            const double side = qMin(corner.x(), corner.y());
            clientRect.setSize(QSizeF(side, side));
        }
        updateAfterObjRectChanged(nullptr, true);
    }

public:
    bool keepsSquare = false;
};

/// Has one control point of its own that it drags and for which it makes its own undo step, as shapes do.
class ControlPointObject : public TestObject
{
public:
    using TestObject::TestObject;

    class Step : public CWbUndoCmd
    {
    public:
        Step(ControlPointObject *object, const QPointF &from)
            : m_object(object)
            , m_from(from)
            , m_to(object->controlPoint)
        {
        }
        void undo() override { m_object->controlPoint = m_from; }
        void redo() override { m_object->controlPoint = m_to; }

    private:
        ControlPointObject *m_object;
        QPointF m_from;
        QPointF m_to;
    };

    bool CheckHitTestHandlers(const QPointF &scenePos, CObjAction::ACT_Def &action) override
    {
        return isHit(mapFromScene(scenePos)) || TestObject::CheckHitTestHandlers(scenePos, action);
    }
    void mousePressEvent(QGraphicsSceneMouseEvent *event) override
    {
        isDragged = isSelected() && clientRect.contains(event->pos()) && isHit(event->pos());
        if (!isDragged) {
            TestObject::mousePressEvent(event);
            return;
        }
        press = event->pos();
        start = controlPoint;
    }
    void mouseMoveEvent(QGraphicsSceneMouseEvent *event) override
    {
        if (!isDragged) {
            TestObject::mouseMoveEvent(event);
            return;
        }
        const QPointF way = event->pos() - press;
        // As in shapes, no way at all moves nothing.
        controlPoint = way.isNull() ? controlPoint : start + way;
    }
    void mouseReleaseEvent(QGraphicsSceneMouseEvent *event) override
    {
        if (!isDragged) {
            TestObject::mouseReleaseEvent(event);
            return;
        }
        isDragged = false;
        CUndoRedo::GetInstance()->push(new Step(this, start));
    }

    bool isHit(const QPointF &pos) const
    {
        return QRectF(controlPoint - QPointF(6, 6), QSizeF(12, 12)).contains(pos);
    }

    QPointF controlPoint{50, 30}; ///< item coordinates
    QPointF press;
    QPointF start;
    bool isDragged = false;
};

inline QUndoStack *undoStack()
{
    return CUndoRedo::GetInstance()->stack();
}

inline QStringList stepTexts()
{
    QStringList texts;
    for (int i = 0; i < undoStack()->count(); ++i)
        texts.append(undoStack()->text(i));
    return texts;
}

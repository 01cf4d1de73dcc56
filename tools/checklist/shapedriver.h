#pragma once

#include <pagehost/objectplugin.h>

#include <QtCore/QEvent>
#include <QtCore/QRectF>
#include <QtGui/QImage>
#include <QtWidgets/QGraphicsScene>

#include <memory>

class CSVGBase;
class CSVGObj;
class QUndoStack;
class QZeSvgTinyDocument;

namespace checklist {

/// One shape of a plug-in on a scene of its own, and the user's hands. Points of gestures are item coordinates.
class ShapeDriver
{
public:
    /// A new, unfinished object of a kind. There is none, and only hasCore() may be called, when the plug-in makes
    /// none.
    ShapeDriver(pagehost::ObjectPlugin *plugin, const QString &kindId);
    ~ShapeDriver();
    ShapeDriver(const ShapeDriver &) = delete;
    ShapeDriver &operator=(const ShapeDriver &) = delete;

    /// Goes on with another new object of the plug-in.
    void takeObject(CBaseObject *object);

    QString kindId() const { return m_kindId; }
    pagehost::ObjectPlugin *plugin() const { return m_plugin; }
    CSVGObj &object() const { return *m_object; }
    bool hasCore() const;
    CSVGBase &core() const;
    QZeSvgTinyDocument &document() const;
    QUndoStack &undoStack() const;
    QGraphicsScene &scene() { return m_scene; }

    void press(QPointF pos) { send(QEvent::GraphicsSceneMousePress, pos); }
    void moveTo(QPointF pos) { send(QEvent::GraphicsSceneMouseMove, pos); }
    void release(QPointF pos) { send(QEvent::GraphicsSceneMouseRelease, pos); }

    /// Draws the object by a drag from its origin, moving in two steps.
    void createByDrag(QSizeF size);
    /// Makes an object of the default size.
    void createByClick();
    void select();
    /// Drags control point `number` (from 1) by `delta` of item units and lets go.
    void dragControlPoint(int number, QPointF delta);
    /// The same without letting go.
    void holdControlPoint(int number, QPointF delta);

    /// Drags the control point to a place of item coordinates, as it is seen: mirrored with the object.
    void dragTo(int number, QPointF seen);
    /// @name The same in scene coordinates, for shapes whose box follows their points
    /// @{
    void dragInScene(int number, QPointF place);
    QPointF scenePoint(int number) const;
    /// @}
    /// Where the centre of a control point is seen, item coordinates.
    QPointF seenControlPoint(int number) const;
    /// Whether the limits that the shape gives let the point be dragged by `way` (item units, as it is seen)
    /// from where it stands.
    bool hasRoom(int number, QPointF way) const;

    /// Of control point `number` (from 1), document units.
    QRectF controlPoint(int number) const;
    int controlPointCount() const;
    /// The attributes of all visible nodes of the figure, as one text to compare.
    QString geometry() const;

    /// The object as it paints itself here, on white.
    QImage painted() const;
    /// The object's off-screen picture, as another thread gets it, on white.
    QImage paintedElsewhere() const;
    /// The colour of a pixel of painted().
    QColor colorAt(QPoint pos) const;

private:
    void send(QEvent::Type type, QPointF pos);
    QPointF itemPoint(QPointF documentPoint) const;

    QGraphicsScene m_scene;
    pagehost::ObjectPlugin *m_plugin;
    QString m_kindId;
    std::unique_ptr<CSVGObj> m_object;
};

} // namespace checklist

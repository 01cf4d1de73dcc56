#include <checklist/shapedriver.h>

#include <svgobj/csvgbase.h>
#include <svgobj/csvgobj.h>

#include <framework/cundoredo.h>

#include <svgbase/qzesvgtinydocument.h>

#include <QtGui/QPainter>
#include <QtWidgets/QGraphicsSceneMouseEvent>
#include <QtWidgets/QUndoStack>

#include <thread>

namespace checklist {

namespace {

/// Protected members that tests have to see.
struct ObjectAccess : CSVGObj
{
    static CSVGBase *coreOf(CSVGObj &object) { return object.*(&ObjectAccess::svgBase); }
};

struct CoreAccess : CSVGBase
{
    static QZeSvgTinyDocument *documentOf(CSVGBase &core) { return core.*(&CoreAccess::document); }
    static quint32 controlPointCountOf(CSVGBase &core) { return core.*(&CoreAccess::controlPointCount); }
};

QImage whitePicture(const CSVGObj &object)
{
    QImage picture(object.getClientRect().size().toSize(), QImage::Format_ARGB32);
    picture.fill(Qt::white);
    return picture;
}

} // namespace

ShapeDriver::ShapeDriver(pagehost::ObjectPlugin *plugin, const QString &kindId)
    : m_plugin(plugin)
    , m_kindId(kindId)
{
    undoStack().clear();
    takeObject(plugin->createObject(kindId));
}

ShapeDriver::~ShapeDriver()
{
    undoStack().clear();
    if (m_object)
        m_scene.removeItem(m_object.get());
}

void ShapeDriver::takeObject(CBaseObject *object)
{
    if (m_object)
        m_scene.removeItem(m_object.get());
    m_object.reset(dynamic_cast<CSVGObj *>(object));
    if (m_object)
        m_scene.addItem(m_object.get());
}

bool ShapeDriver::hasCore() const
{
    return m_object && ObjectAccess::coreOf(*m_object);
}

CSVGBase &ShapeDriver::core() const
{
    return *ObjectAccess::coreOf(*m_object);
}

QZeSvgTinyDocument &ShapeDriver::document() const
{
    return *CoreAccess::documentOf(core());
}

QUndoStack &ShapeDriver::undoStack() const
{
    return *CUndoRedo::GetInstance()->stack();
}

void ShapeDriver::createByDrag(QSizeF size)
{
    press(QPointF(0, 0));
    moveTo(QPointF(size.width() / 2, size.height() / 2));
    release(QPointF(size.width(), size.height()));
}

void ShapeDriver::createByClick()
{
    press(QPointF(0, 0));
    release(QPointF(0, 0));
}

void ShapeDriver::select()
{
    m_object->setSelected(true);
}

void ShapeDriver::dragControlPoint(int number, QPointF delta)
{
    const QPointF from = itemPoint(controlPoint(number).center());
    holdControlPoint(number, delta);
    release(from + delta);
}

void ShapeDriver::holdControlPoint(int number, QPointF delta)
{
    const QPointF from = itemPoint(controlPoint(number).center());
    press(from);
    moveTo(from + delta / 2);
    moveTo(from + delta);
}

void ShapeDriver::dragTo(int number, QPointF seen)
{
    dragInScene(number, m_object->mapToScene(seen));
}

void ShapeDriver::dragInScene(int number, QPointF place)
{
    const QPointF from = scenePoint(number);
    press(m_object->mapFromScene(from));
    moveTo(m_object->mapFromScene((from + place) / 2));
    moveTo(m_object->mapFromScene(place));
    release(m_object->mapFromScene(place));
}

QPointF ShapeDriver::scenePoint(int number) const
{
    return m_object->mapToScene(seenControlPoint(number));
}

QPointF ShapeDriver::seenControlPoint(int number) const
{
    const QSizeF size = m_object->getClientRect().size();
    const QPointF place = itemPoint(controlPoint(number).center());
    return {m_object->isMirrored() ? size.width() - place.x() : place.x(),
            m_object->isFlipped() ? size.height() - place.y() : place.y()};
}

bool ShapeDriver::hasRoom(int number, QPointF way) const
{
    QZeSvgNode *node = document().namedNode(QStringLiteral("control_%1").arg(number));
    const QPointF corner =
        node->boundingRect().topLeft() + QPointF(core().mapXToSVG(way.x()), core().mapYToSVG(way.y()));
    return node->canMoveHorizontally() && node->canMoveVertically() && corner.x() >= core().getXMin(node) &&
           corner.x() <= core().getXMax(node) && corner.y() >= core().getYMin(node) &&
           corner.y() <= core().getYMax(node);
}

QRectF ShapeDriver::controlPoint(int number) const
{
    const QZeSvgNode *node = document().namedNode(QStringLiteral("control_%1").arg(number));
    return node ? node->boundingRect() : QRectF();
}

int ShapeDriver::controlPointCount() const
{
    return int(CoreAccess::controlPointCountOf(core()));
}

QString ShapeDriver::geometry() const
{
    QString text;
    const auto children = document().children();
    for (const QZeSvgNode *node : children) {
        // A hidden figure is drawn when it is shown again.
        if (!node->isVisible())
            continue;
        for (const char *name : {"d", "points", "x", "y", "width", "height"})
            text += node->attribute(QLatin1String(name)) + QLatin1Char(' ');
        text += QLatin1Char('\n');
    }
    return text;
}

QImage ShapeDriver::painted() const
{
    QImage picture = whitePicture(*m_object);
    QPainter painter(&picture);
    m_object->OnQPainterDraw(&painter);
    return picture;
}

QImage ShapeDriver::paintedElsewhere() const
{
    QImage picture = whitePicture(*m_object);
    std::thread worker([&] {
        QPainter painter(&picture);
        m_object->OnQPainterDraw(&painter);
    });
    worker.join();
    return picture;
}

QColor ShapeDriver::colorAt(QPoint pos) const
{
    return painted().pixelColor(pos);
}

void ShapeDriver::send(QEvent::Type type, QPointF pos)
{
    QGraphicsSceneMouseEvent event(type);
    event.setPos(pos);
    event.setScenePos(m_object->mapToScene(pos));
    event.setButton(type == QEvent::GraphicsSceneMouseMove ? Qt::NoButton : Qt::LeftButton);
    event.setButtons(type == QEvent::GraphicsSceneMouseRelease ? Qt::NoButton : Qt::LeftButton);
    if (type == QEvent::GraphicsSceneMousePress)
        m_object->mousePressEvent(&event);
    else if (type == QEvent::GraphicsSceneMouseMove)
        m_object->mouseMoveEvent(&event);
    else
        m_object->mouseReleaseEvent(&event);
}

QPointF ShapeDriver::itemPoint(QPointF documentPoint) const
{
    const QRectF box = document().viewBox();
    const QSizeF size = m_object->getClientRect().size();
    return {(documentPoint.x() - box.x()) * size.width() / box.width(),
            (documentPoint.y() - box.y()) * size.height() / box.height()};
}

} // namespace checklist

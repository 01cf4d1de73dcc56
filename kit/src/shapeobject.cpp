#include <shapekit/shapeobject.h>

#include <svgobj/csvgbase.h>

#include <QtCore/QThread>
#include <QtWidgets/QGraphicsSceneMouseEvent>

namespace shapekit {

namespace {

/// The host's number for page objects that are shapes.
constexpr int shapeKind = 1001;
/// Shapes with a drawing scale have a sub type of their own, which the library assigns to opened ones.
constexpr int scaledType = 26;
constexpr int scaledSubType = 13001;

} // namespace

ShapeObject::ShapeObject(const Kind &kind)
    : CSVGObj(shapeKind, true, nullptr)
    , m_kind(kind)
{
    makeCore();
    svgBase->loadSVG(true);
    if (svgBase->getSVGType() == scaledType)
        setSubType(scaledSubType);
}

bool ShapeObject::createSVGBase(int type, bool initGlobals)
{
    if (svgBase && svgBase->getSVGType() == type)
        return true;
    delete svgBase;
    makeCore();
    if (svgBase->getSVGType() != type) {
        delete svgBase;
        svgBase = nullptr;
        return false;
    }
    return svgBase->loadSVG(initGlobals);
}

void ShapeObject::makeCore()
{
    StyledShape *made = m_kind.makeCore(this);
    made->setKind(m_kind);
    svgBase = made;
}

void ShapeObject::OnQPainterDraw(QPainter *painter)
{
    // A shape being read renders its picture when everything is read, not from its previous state.
    if (!painter && core() && core()->isReadingData())
        return;
    // Other threads copy a finished picture and don't touch the core.
    if (core() && createThreadId == QThread::currentThreadId())
        core()->settleDrawing();
    CSVGObj::OnQPainterDraw(painter);
}

bool ShapeObject::canDo(OperationType operation)
{
    return CSVGObj::canDo(operation) && (!core() || core()->permits(operation));
}

void finishCreation(CSVGObj &object)
{
    QGraphicsSceneMouseEvent press(QEvent::GraphicsSceneMousePress);
    press.setButton(Qt::LeftButton);
    press.setScenePos(object.getPos());
    object.mousePressEvent(&press);
    QGraphicsSceneMouseEvent release(QEvent::GraphicsSceneMouseRelease);
    release.setButton(Qt::LeftButton);
    release.setScenePos(object.getPos());
    object.mouseReleaseEvent(&release);
}

} // namespace shapekit

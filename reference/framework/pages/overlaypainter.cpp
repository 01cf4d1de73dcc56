#include <pages/overlaypainter.h>

#include <framework/cbaseobject.h>

#include <pagehost/page.h>
#include <pagehost/selection.h>

#include <host/handlelayout.h>
#include <pages/framedrag.h>

#include <QtGui/QPainter>
#include <QtGui/QPalette>

namespace pagehost {

namespace {

constexpr double framePenPixels = 1.5;
/// Objects may paint beyond their boxes.
constexpr double oldPlaceReach = 16; ///< pixels
constexpr double buttonPixels = 16;  ///< diameter of the rotation and mirror handles

double sideOf(CObjAction::ACT_Def handle)
{
    return HandleLayout::isResize(handle) ? HandleLayout::handlePixels : buttonPixels;
}

QRectF squareAround(const QPointF &center, double side)
{
    return {center - QPointF(side, side) / 2, QSizeF(side, side)};
}

/// Draws in item coordinates; lengths are screen pixels converted to item units.
class HandlePainter
{
public:
    HandlePainter(QPainter &painter, const HandleLayout &layout, const QColor &accent)
        : m_painter(painter)
        , m_layout(layout)
        , m_accent(accent)
    {
        m_pen = QPen(accent, framePenPixels);
        m_pen.setCosmetic(true);
    }

    void drawFrame()
    {
        m_painter.setPen(m_pen);
        m_painter.setBrush(Qt::NoBrush);
        m_painter.drawRect(m_layout.frame());
    }

    void drawHandle(CObjAction::ACT_Def handle, bool hovered)
    {
        m_painter.setPen(m_pen);
        m_painter.setBrush(hovered ? m_accent : QColor(Qt::white));
        const QPointF center = m_layout.position(handle);
        const QRectF place = squareAround(center, m_layout.fromPixels(sideOf(handle)));
        if (HandleLayout::isResize(handle)) {
            m_painter.drawRect(place);
            return;
        }
        if (handle == CObjAction::ACT_Rotate)
            m_painter.drawLine(QPointF(center.x(), m_layout.frame().top()), center);
        m_painter.drawEllipse(place);
        drawGlyph(handle, center, hovered ? QColor(Qt::white) : m_accent);
    }

private:
    void drawGlyph(CObjAction::ACT_Def handle, const QPointF &center, const QColor &color)
    {
        m_painter.save();
        m_painter.translate(center);
        const double unit = m_layout.fromPixels(1);
        m_painter.scale(unit, unit);
        if (handle == CObjAction::ACT_Rotate)
            drawTurnGlyph(color);
        else
            drawMirrorGlyph(handle == CObjAction::ACT_MirrorVertical, color);
        m_painter.restore();
    }

    void drawTurnGlyph(const QColor &color)
    {
        m_painter.setPen(QPen(color, 1.5));
        m_painter.setBrush(Qt::NoBrush);
        m_painter.drawArc(QRectF(-4, -4, 8, 8), 30 * 16, 270 * 16);
        m_painter.setPen(Qt::NoPen);
        m_painter.setBrush(color);
        m_painter.drawPolygon(QPolygonF({{1, -1}, {6, -1}, {4, -5}}));
    }

    void drawMirrorGlyph(bool upright, const QColor &color)
    {
        m_painter.rotate(upright ? 90 : 0);
        m_painter.setPen(Qt::NoPen);
        m_painter.setBrush(color);
        m_painter.drawPolygon(QPolygonF({{-1.5, -4}, {-1.5, 4}, {-6, 4}}));
        m_painter.drawPolygon(QPolygonF({{1.5, -4}, {1.5, 4}, {6, 4}}));
    }

    QPainter &m_painter;
    const HandleLayout &m_layout;
    QColor m_accent;
    QPen m_pen;
};

HandleLayout layoutOf(const CBaseObject &object)
{
    return {object.getClientRect(), object.getCurZoomRate()};
}

void paintObjectOverlay(CBaseObject &object, QPainter &painter, const QColor &accent, const Grip &hovered,
                        bool withHandles)
{
    painter.save();
    painter.setTransform(object.sceneTransform(), true);
    const HandleLayout layout = layoutOf(object);
    HandlePainter aids(painter, layout, accent);
    aids.drawFrame();
    if (withHandles) {
        const QVector<CObjAction::ACT_Def> handles = offeredHandles(object);
        for (const CObjAction::ACT_Def handle : handles)
            aids.drawHandle(handle, hovered.object == &object && hovered.action == handle);
    }
    painter.restore();
}

/// Of the frame around several objects, in scene coordinates.
HandleLayout layoutOfFrame(const QVector<CBaseObject *> &objects)
{
    return {boundsOf(objects), objects.first()->getCurZoomRate()};
}

void paintCommonFrame(const QVector<CBaseObject *> &objects, QPainter &painter, const QColor &accent,
                      const Grip &hovered)
{
    const HandleLayout layout = layoutOfFrame(objects);
    HandlePainter aids(painter, layout, accent);
    aids.drawFrame();
    const QVector<CObjAction::ACT_Def> handles = frameHandles();
    for (const CObjAction::ACT_Def handle : handles)
        aids.drawHandle(handle, hovered.kind == Grip::FrameHandle && hovered.action == handle);
}

/// Of a frame with its handles, in the coordinates of the layout.
QRectF handleBounds(const HandleLayout &layout, const QVector<CObjAction::ACT_Def> &handles)
{
    QRectF bounds = layout.frame();
    for (const CObjAction::ACT_Def handle : handles)
        bounds |= squareAround(layout.position(handle), layout.fromPixels(sideOf(handle)));
    return bounds;
}

/// From the coordinates of an object to the scene's, as it was.
QTransform placeOf(const GeometrySnapshot &snapshot)
{
    return QTransform::fromTranslate(snapshot.pos().x(), snapshot.pos().y()).rotate(snapshot.rotation());
}

QRectF frameBoundsOf(CBaseObject &object, bool withHandles)
{
    const HandleLayout layout = layoutOf(object);
    QRectF bounds = object.mapRectToScene(layout.frame());
    if (!withHandles)
        return bounds;
    const QVector<CObjAction::ACT_Def> handles = offeredHandles(object);
    for (const CObjAction::ACT_Def handle : handles)
        bounds |= object.mapRectToScene(squareAround(layout.position(handle), layout.fromPixels(sideOf(handle))));
    return bounds;
}

} // namespace

void paintOverlay(const Page &page, QPainter &painter, const Grip &hovered, bool framesOnly)
{
    const QVector<CBaseObject *> selected = page.selectedObjects();
    if (selected.isEmpty())
        return;
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    const QColor accent = page.scene()->palette().color(QPalette::Highlight);
    const bool single = selected.size() == 1;
    for (CBaseObject *object : selected)
        paintObjectOverlay(*object, painter, accent, hovered, single && !framesOnly && !object->isLocked());
    const QVector<CBaseObject *> framed = framedObjects(page);
    if (!framed.isEmpty() && !framesOnly)
        paintCommonFrame(framed, painter, accent, hovered);
    painter.restore();
}

void paintOldPlace(const QVector<GeometrySnapshot> &start, QPainter &painter, bool withObjects)
{
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    for (const GeometrySnapshot &snapshot : start) {
        painter.save();
        painter.setTransform(placeOf(snapshot), true);
        if (withObjects)
            snapshot.object()->OnQPainterDraw(&painter);
        QPen pen(snapshot.object()->scene()->palette().color(QPalette::Highlight), 1, Qt::DashLine);
        pen.setCosmetic(true);
        painter.setPen(pen);
        painter.setBrush(Qt::NoBrush);
        painter.drawRect(QRectF({0, 0}, snapshot.size()));
        painter.restore();
    }
    painter.restore();
}

QRectF oldPlaceBounds(const QVector<GeometrySnapshot> &start, double pixel)
{
    const double reach = oldPlaceReach * pixel;
    QRectF bounds;
    for (const GeometrySnapshot &snapshot : start)
        bounds |= placeOf(snapshot).mapRect(QRectF({0, 0}, snapshot.size())).adjusted(-reach, -reach, reach, reach);
    return bounds;
}

QRectF overlayBounds(const Page &page)
{
    QRectF bounds;
    const QVector<CBaseObject *> selected = page.selectedObjects();
    for (const CBaseObject *object : selected)
        bounds |= object->mapRectToScene(layoutOf(*object).bounds());
    const QVector<CBaseObject *> framed = framedObjects(page);
    return framed.isEmpty() ? bounds : bounds.united(layoutOfFrame(framed).bounds());
}

QRectF frameBounds(const Page &page)
{
    QRectF bounds;
    const QVector<CBaseObject *> selected = page.selectedObjects();
    for (CBaseObject *object : selected)
        bounds |= frameBoundsOf(*object, selected.size() == 1 && !object->isLocked());
    const QVector<CBaseObject *> framed = framedObjects(page);
    return framed.isEmpty() ? bounds : bounds.united(handleBounds(layoutOfFrame(framed), frameHandles()));
}

} // namespace pagehost

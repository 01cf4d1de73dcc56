#include <pages/overlaypainter.h>

#include <framework/cbaseobject.h>

#include <pagehost/page.h>
#include <pagehost/selection.h>
#include <pagehost/writing.h>

#include <host/controlpointplaces.h>
#include <host/shownhandles.h>
#include <pages/framedrag.h>

#include <QtGui/QPainter>
#include <QtGui/QPalette>

namespace pagehost {

namespace {

constexpr double framePenPixels = 1.5;
/// Objects may paint beyond their boxes.
constexpr double oldPlaceReach = 16; ///< pixels
constexpr double cornerRadius = 2;
/// Around a control point under the pointer, pixels.
constexpr double haloPixels = 5;
constexpr double pointPenPixels = 2;
constexpr int haloAlpha = 80;
const QColor pointColor(0xb4, 0x50, 0x0b);

QRectF around(const QPointF &center, const QSizeF &size)
{
    return {center - QPointF(size.width(), size.height()) / 2, size};
}

QRectF grown(const QRectF &rect, double aside)
{
    return rect.adjusted(-aside, -aside, aside, aside);
}

/// Size of a handle, item units.
QSizeF sizeOf(CObjAction::ACT_Def handle, const HandleLayout &layout)
{
    const HandleSizes &sizes = layout.sizes();
    QSizeF pixels(sizes.corner, sizes.corner);
    if (!HandleLayout::isResize(handle))
        pixels = {sizes.round, sizes.round};
    else if (HandleLayout::isSide(handle))
        pixels = HandleLayout::side(handle).x() == 0 ? sizes.side : sizes.side.transposed();
    return pixels * layout.fromPixels(1);
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
        const QRectF place = around(center, sizeOf(handle, m_layout));
        if (HandleLayout::isResize(handle)) {
            const double radius = HandleLayout::isSide(handle) ? qMin(place.width(), place.height()) / 2
                                                               : m_layout.fromPixels(cornerRadius);
            m_painter.drawRoundedRect(place, radius, radius);
            return;
        }
        if (handle == CObjAction::ACT_Rotate)
            m_painter.drawLine(QPointF(center.x(), m_layout.frame().top()), center);
        m_painter.drawEllipse(place);
        drawGlyph(handle, center, hovered ? QColor(Qt::white) : m_accent);
    }

    /// `center` in item coordinates.
    void drawPoint(const QPointF &center, bool hovered)
    {
        const double side = m_layout.fromPixels(m_layout.sizes().point - pointPenPixels);
        if (hovered) {
            QColor halo = pointColor;
            halo.setAlpha(haloAlpha);
            m_painter.setPen(Qt::NoPen);
            m_painter.setBrush(halo);
            const double halfHalo = side / 2 + m_layout.fromPixels(haloPixels);
            m_painter.drawEllipse(center, halfHalo, halfHalo);
        }
        QPen pen(pointColor, pointPenPixels);
        pen.setCosmetic(true);
        m_painter.setPen(pen);
        m_painter.setBrush(hovered ? pointColor : QColor(Qt::white));
        m_painter.drawEllipse(center, side / 2, side / 2);
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

/// Over those that the object draws, whose size follows its lines.
void paintPoints(CBaseObject &object, HandlePainter &aids, const Grip &hovered)
{
    const QVector<ControlPointPlace> places = controlPointPlaces(object);
    for (int i = 0; i < places.size(); ++i) {
        const bool isHovered =
            hovered.kind == Grip::ControlPoint && hovered.object == &object && hovered.point == i;
        aids.drawPoint(object.mapFromScene(places.at(i).centre), isHovered);
    }
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
        const QVector<CObjAction::ACT_Def> handles = shownHandles(object);
        for (const CObjAction::ACT_Def handle : handles)
            aids.drawHandle(handle, hovered.object == &object && hovered.action == handle);
        paintPoints(object, aids, hovered);
    }
    painter.restore();
}

void paintCommonFrame(const QVector<CBaseObject *> &objects, QPainter &painter, const QColor &accent,
                      const Grip &hovered)
{
    const HandleLayout layout = layoutOfFrame(objects);
    HandlePainter aids(painter, layout, accent);
    aids.drawFrame();
    const QVector<CObjAction::ACT_Def> handles = frameHandles(layout);
    for (const CObjAction::ACT_Def handle : handles)
        aids.drawHandle(handle, hovered.kind == Grip::FrameHandle && hovered.action == handle);
}

/// Of a frame with its handles, in the coordinates of the layout.
QRectF handleBounds(const HandleLayout &layout, const QVector<CObjAction::ACT_Def> &handles)
{
    QRectF bounds = layout.frame();
    for (const CObjAction::ACT_Def handle : handles)
        bounds |= around(layout.position(handle), sizeOf(handle, layout));
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
    const QVector<CObjAction::ACT_Def> handles = shownHandles(object);
    for (const CObjAction::ACT_Def handle : handles)
        bounds |= object.mapRectToScene(around(layout.position(handle), sizeOf(handle, layout)));
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
    for (CBaseObject *object : selected) {
        const bool hasHandles = single && !framesOnly && !object->isLocked() && !isBeingWritten(*object);
        paintObjectOverlay(*object, painter, accent, hovered, hasHandles);
    }
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

bool isInFrame(const Page &page, const QPointF &scenePos, double reach)
{
    const QVector<CBaseObject *> selected = page.selectedObjects();
    for (const CBaseObject *object : selected) {
        const HandleLayout layout = layoutOf(*object);
        if (grown(layout.frame(), layout.fromPixels(reach)).contains(object->mapFromScene(scenePos)))
            return true;
    }
    const QVector<CBaseObject *> framed = framedObjects(page);
    if (framed.isEmpty())
        return false;
    // Between the objects there is empty page.
    const HandleLayout layout = layoutOfFrame(framed);
    const double aside = layout.fromPixels(reach);
    return grown(layout.frame(), aside).contains(scenePos) && !grown(layout.frame(), -aside).contains(scenePos);
}

QRectF frameBounds(const Page &page)
{
    QRectF bounds;
    const QVector<CBaseObject *> selected = page.selectedObjects();
    for (CBaseObject *object : selected)
        bounds |= frameBoundsOf(*object, selected.size() == 1 && !object->isLocked());
    const QVector<CBaseObject *> framed = framedObjects(page);
    if (framed.isEmpty())
        return bounds;
    const HandleLayout layout = layoutOfFrame(framed);
    return bounds.united(handleBounds(layout, frameHandles(layout)));
}

} // namespace pagehost

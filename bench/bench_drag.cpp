// One step of a drag: mouse event in, 256 × 256 picture of the object out. The peer does the work of an application
// without control points: loads the changed text and renders it.

#include "pageobjects.h"

#include <pagehost/objectregistry.h>

#include <QtCore/QEvent>
#include <QtGui/QPainter>
#include <QtSvg/QSvgRenderer>

#include <benchmark/benchmark.h>

namespace {

constexpr int side = 256;

/// A point on one of the object's control points; a null point when it has none.
QPointF findControlPoint(CBaseObject *object)
{
    const QRectF rect = object->getClientRect();
    for (double y = 0; y < rect.height(); y += 2) {
        for (double x = 0; x < rect.width(); x += 2) {
            CObjAction::ACT_Def action = CObjAction::ACT_Move;
            const QPointF pos(x, y);
            if (object->CheckHitTestHandlers(object->mapToScene(pos), action) && action == CObjAction::ACT_Move)
                return pos;
        }
    }
    return {};
}

/// An object during a drag of a control point; `grip` is where it was pressed.
struct Dragged
{
    std::unique_ptr<CBaseObject> object;
    QPointF grip;

    void moveBy(double distance) const
    {
        sendMouse(object.get(), QEvent::GraphicsSceneMouseMove, grip + QPointF(distance, distance));
    }
    QByteArray look() const { return shapeRegistry().dataOf(object.get(), QStringLiteral("image/svg+xml")); }
};

Dragged beginDrag(const QString &kindId)
{
    Dragged dragged{makeShape(kindId, QSizeF(side, side)), {}};
    dragged.object->setAllAttributes({{QStringLiteral("doc_state_edit"), true}}, false);
    dragged.grip = findControlPoint(dragged.object.get());
    sendMouse(dragged.object.get(), QEvent::GraphicsSceneMousePress, dragged.grip);
    return dragged;
}

void dragStep(benchmark::State &state, const QString &kindId)
{
    const Dragged dragged = beginDrag(kindId);
    double step = 1;
    for (auto _ : state) {
        step = step == 1 ? 2 : 1;
        dragged.moveBy(step);
    }
    sendMouse(dragged.object.get(), QEvent::GraphicsSceneMouseRelease, dragged.grip);
}

void dragStepPeer(benchmark::State &state, const QString &kindId)
{
    const Dragged dragged = beginDrag(kindId);
    QByteArray looks[2];
    for (int i = 0; i < 2; ++i) {
        dragged.moveBy(i + 1);
        looks[i] = dragged.look();
    }
    QImage image(side, side, QImage::Format_ARGB32);
    int step = 0;
    for (auto _ : state) {
        step = 1 - step;
        QSvgRenderer renderer(looks[step]);
        image.fill(Qt::transparent);
        QPainter painter(&image);
        renderer.render(&painter, QRectF(0, 0, side, side));
    }
}

} // namespace

void registerDragBenchmarks()
{
    const QStringList kinds = shapeKinds();
    for (const QString &kind : kinds) {
        if (beginDrag(kind).grip.isNull())
            continue;
        const std::string name = templateName(kind).toStdString();
        benchmark::RegisterBenchmark(("drag-step/peer/" + name).c_str(), dragStepPeer, kind);
        benchmark::RegisterBenchmark(("drag-step/gliololok/" + name).c_str(), dragStep, kind);
    }
}

// One step of a drag: mouse event in, 256 × 256 picture of the object out. The peer does the work of an application
// without control points: loads the changed text and renders it.

#include "dragging.h"
#include "pageobjects.h"

#include <QtCore/QEvent>
#include <QtGui/QPainter>
#include <QtSvg/QSvgRenderer>

#include <benchmark/benchmark.h>

namespace {

constexpr int side = 256;

void dragStep(benchmark::State &state, const QString &kindId)
{
    const Dragged dragged = beginDrag(kindId, side);
    double step = 1;
    for (auto _ : state) {
        step = step == 1 ? 2 : 1;
        dragged.moveBy(step);
    }
    sendMouse(dragged.object.get(), QEvent::GraphicsSceneMouseRelease, dragged.grip);
}

void dragStepPeer(benchmark::State &state, const QString &kindId)
{
    const Dragged dragged = beginDrag(kindId, side);
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
        if (beginDrag(kind, side).grip.isNull())
            continue;
        const std::string name = templateName(kind).toStdString();
        benchmark::RegisterBenchmark(("drag-step/peer/" + name).c_str(), dragStepPeer, kind);
        benchmark::RegisterBenchmark(("drag-step/gliololok/" + name).c_str(), dragStep, kind);
    }
}

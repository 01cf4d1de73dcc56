// Shapes that are declared in files beside the same shapes in C++, the peers: one step of a drag, and another size,
// which evaluates every expression. Picture of the object included.

#include "dragging.h"

#include <pagehost/objectregistry.h>

#include <QtCore/QEvent>

#include <benchmark/benchmark.h>

#include <functional>

namespace {

constexpr int side = 256;

void dragTwin(benchmark::State &state, const QString &kindId, const pagehost::ObjectRegistry &registry)
{
    const Dragged dragged = beginDrag(kindId, side, registry);
    double step = 1;
    for (auto _ : state) {
        step = 3 - step;
        dragged.moveBy(step);
    }
    sendMouse(dragged.object.get(), QEvent::GraphicsSceneMouseRelease, dragged.grip);
}

void resizeTwin(benchmark::State &state, const QString &kindId, const pagehost::ObjectRegistry &registry)
{
    const std::unique_ptr<CBaseObject> object = makeShape(kindId, QSizeF(side, side), registry);
    int step = 1;
    for (auto _ : state) {
        step = 3 - step;
        object->setSize(QSizeF(side + step, side), false, true);
    }
}

} // namespace

void registerTwinBenchmarks()
{
    const QStringList kinds = twinKinds();
    for (const QString &kind : kinds) {
        const std::string name = templateName(kind).toStdString();
        benchmark::RegisterBenchmark(("twin-resize/peer/" + name).c_str(), resizeTwin, kind,
                                     std::cref(codedTwins()));
        benchmark::RegisterBenchmark(("twin-resize/gliololok/" + name).c_str(), resizeTwin, kind,
                                     std::cref(shapeRegistry()));
        if (beginDrag(kind, side, codedTwins()).grip.isNull())
            continue;
        benchmark::RegisterBenchmark(("twin-drag/peer/" + name).c_str(), dragTwin, kind, std::cref(codedTwins()));
        benchmark::RegisterBenchmark(("twin-drag/gliololok/" + name).c_str(), dragTwin, kind,
                                     std::cref(shapeRegistry()));
    }
}

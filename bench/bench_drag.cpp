// One step of a drag: mouse event in, 256 × 256 picture of the object out. The peer does what an application
// without control points would: change the text, load it, render it.

#include "pageobjects.h"
#include "templates.h"

#include <QtCore/QEvent>
#include <QtGui/QPainter>
#include <QtSvg/QSvgRenderer>

#include <benchmark/benchmark.h>

#include <algorithm>

namespace {

constexpr int side = 256;

/// A point of the object on one of its control points; a null point when it has none.
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

void dragStep(benchmark::State &state, const QString &kindId)
{
    const std::unique_ptr<CBaseObject> object = makeShape(kindId, QSizeF(side, side));
    object->setAllAttributes({{QStringLiteral("doc_state_edit"), true}}, false);
    const QPointF grip = findControlPoint(object.get());
    if (grip.isNull()) {
        state.SkipWithError("no control point found");
        return;
    }
    sendMouse(object.get(), QEvent::GraphicsSceneMousePress, grip);
    double step = 1;
    for (auto _ : state) {
        step = step == 1 ? 2 : 1;
        sendMouse(object.get(), QEvent::GraphicsSceneMouseMove, grip + QPointF(step, step));
    }
    sendMouse(object.get(), QEvent::GraphicsSceneMouseRelease, grip);
}

void dragStepPeer(benchmark::State &state, const BenchTemplate &source)
{
    QImage image(side, side, QImage::Format_ARGB32);
    double step = 1;
    for (auto _ : state) {
        step = step == 1 ? 2 : 1;
        QSvgRenderer renderer(withMovedNode(source, 20 + step));
        image.fill(Qt::transparent);
        QPainter painter(&image);
        renderer.render(&painter, QRectF(0, 0, side, side));
    }
}

} // namespace

void registerDragBenchmarks()
{
    for (const QString &kind : shapeKinds()) {
        const QVector<BenchTemplate> &all = benchTemplates();
        const auto source = std::find_if(all.cbegin(), all.cend(), [&kind](const BenchTemplate &candidate) {
            return candidate.name == templateName(kind);
        });
        if (source == all.cend())
            continue;
        const std::string name = source->name.toStdString();
        benchmark::RegisterBenchmark(("drag-step/peer/" + name).c_str(), dragStepPeer, *source);
        benchmark::RegisterBenchmark(("drag-step/gliololok/" + name).c_str(), dragStep, kind);
    }
}

// Creating a page of 10,000 shapes, and repainting a window of it. The peer is an item of Qt's own SVG module with
// a renderer of its own.

#include "pageobjects.h"
#include "templates.h"

#include <QtGui/QImage>
#include <QtGui/QPainter>
#include <QtSvg/QGraphicsSvgItem>
#include <QtSvg/QSvgRenderer>
#include <QtWidgets/QGraphicsScene>
#include <QtWidgets/QGraphicsView>

#include <benchmark/benchmark.h>

#include <malloc.h>
#include <vector>

namespace {

constexpr int objectCount = 10000;
constexpr int columns = 100;
constexpr double spacing = 60;
const QSizeF objectSize(48, 48);
const QSize window(1920, 1080);

QPointF place(int index)
{
    return {(index % columns) * spacing, (index / columns) * spacing};
}

/// Size of the picture caches of that many objects of objectSize, bytes.
double pictureBytes(int count)
{
    return count * objectSize.width() * objectSize.height() * 4;
}

std::unique_ptr<QGraphicsScene> sceneOfShapes()
{
    auto scene = std::make_unique<QGraphicsScene>();
    const QStringList kinds = shapeKinds();
    for (int i = 0; i < objectCount; ++i) {
        CBaseObject *object = makeShape(kinds[i % kinds.size()], objectSize).release();
        scene->addItem(object);
        object->setPos(place(i), false);
    }
    return scene;
}

std::unique_ptr<QGraphicsScene> sceneOfPeers(std::vector<std::unique_ptr<QSvgRenderer>> &renderers)
{
    auto scene = std::make_unique<QGraphicsScene>();
    const QVector<BenchTemplate> &templates = benchTemplates();
    renderers.reserve(objectCount);
    for (int i = 0; i < objectCount; ++i) {
        renderers.push_back(std::make_unique<QSvgRenderer>(templates[i % templates.size()].text));
        auto *item = new QGraphicsSvgItem;
        item->setSharedRenderer(renderers.back().get());
        item->setScale(objectSize.width() / item->boundingRect().width());
        item->setPos(place(i));
        scene->addItem(item);
    }
    return scene;
}

void createPage(benchmark::State &state)
{
    for (auto _ : state) {
        const auto before = mallinfo2();
        const std::unique_ptr<QGraphicsScene> scene = sceneOfShapes();
        const auto after = mallinfo2();
        const double bytes = double(after.uordblks + after.hblkhd) - double(before.uordblks + before.hblkhd);
        state.counters["KB each"] = (bytes - pictureBytes(objectCount)) / objectCount / 1024;
    }
}

void createPagePeer(benchmark::State &state)
{
    for (auto _ : state) {
        const auto before = mallinfo2();
        std::vector<std::unique_ptr<QSvgRenderer>> renderers;
        const std::unique_ptr<QGraphicsScene> scene = sceneOfPeers(renderers);
        const auto after = mallinfo2();
        const double bytes = double(after.uordblks + after.hblkhd) - double(before.uordblks + before.hblkhd);
        state.counters["KB each"] = bytes / objectCount / 1024;
    }
}

/// Paints the window once before measuring, so that all caches are filled as in a running application.
void repaint(benchmark::State &state, QGraphicsScene *scene)
{
    QGraphicsView view(scene);
    view.setFrameShape(QFrame::NoFrame);
    view.resize(window);
    QImage image(window, QImage::Format_ARGB32_Premultiplied);
    const auto paint = [&] {
        image.fill(Qt::white);
        QPainter painter(&image);
        view.render(&painter, QRectF(QPointF(0, 0), window), QRect(QPoint(0, 0), window));
    };
    paint();
    for (auto _ : state)
        paint();
}

void repaintWindow(benchmark::State &state)
{
    const std::unique_ptr<QGraphicsScene> scene = sceneOfShapes();
    repaint(state, scene.get());
}

/// With the item's picture cache, the default of Qt's SVG items.
void repaintWindowPeer(benchmark::State &state)
{
    std::vector<std::unique_ptr<QSvgRenderer>> renderers;
    const std::unique_ptr<QGraphicsScene> scene = sceneOfPeers(renderers);
    repaint(state, scene.get());
}

} // namespace

void registerPageBenchmarks()
{
    benchmark::RegisterBenchmark("create-10000/peer/page", createPagePeer)
        ->Iterations(1)
        ->Unit(benchmark::kMillisecond);
    benchmark::RegisterBenchmark("create-10000/gliololok/page", createPage)
        ->Iterations(1)
        ->Unit(benchmark::kMillisecond);
    benchmark::RegisterBenchmark("repaint-window/peer/page", repaintWindowPeer)->Unit(benchmark::kMillisecond);
    benchmark::RegisterBenchmark("repaint-window/gliololok/page", repaintWindow)->Unit(benchmark::kMillisecond);
}

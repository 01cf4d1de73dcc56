// Drawing a document into a picture: all of it changed since the last drawing, one node of it, and nothing.

#include "templates.h"

#include <svgbase/qzesvgtinydocument.h>

#include <QtGui/QPainter>
#include <QtSvg/QSvgRenderer>

#include <benchmark/benchmark.h>

#include <memory>

namespace {

constexpr int side = 256;
constexpr int largeSide = 1024;

QImage canvas(int size)
{
    return QImage(size, size, QImage::Format_ARGB32_Premultiplied);
}

void draw(QZeSvgTinyDocument *document, QImage *image)
{
    image->fill(Qt::transparent);
    QPainter painter(image);
    document->draw(&painter, QRectF(image->rect()), 1, true);
}

void draw(QSvgRenderer *renderer, QImage *image)
{
    image->fill(Qt::transparent);
    QPainter painter(image);
    renderer->render(&painter, QRectF(image->rect()));
}

template<int size> void drawChanged(benchmark::State &state, const BenchTemplate &source)
{
    const std::unique_ptr<QZeSvgTinyDocument> document(QZeSvgTinyDocument::load(source.text));
    QImage image = canvas(size);
    double width = 1;
    for (auto _ : state) {
        width = width == 1 ? 2 : 1;
        document->setAllStrokeWidth(width); // every stroked node changes
        draw(document.get(), &image);
    }
}

/// The peer can't change a document: it redraws the same one completely.
template<int size> void drawPeer(benchmark::State &state, const BenchTemplate &source)
{
    QSvgRenderer renderer(source.text);
    QImage image = canvas(size);
    for (auto _ : state)
        draw(&renderer, &image);
}

void drawMovedNode(benchmark::State &state, const BenchTemplate &source)
{
    const std::unique_ptr<QZeSvgTinyDocument> document(QZeSvgTinyDocument::load(source.text));
    const QList<QZeSvgNode *> children = document->children();
    if (children.isEmpty()) {
        state.SkipWithError("no node");
        return;
    }
    QImage image = canvas(side);
    bool moved = false;
    for (auto _ : state) {
        moved = !moved;
        children.first()->setAttribute("transform", moved ? "translate(1)" : "translate(0)");
        draw(document.get(), &image);
    }
}

/// The peer loads the changed text.
void drawMovedNodePeer(benchmark::State &state, const BenchTemplate &source)
{
    QImage image = canvas(side);
    for (auto _ : state) {
        QSvgRenderer renderer(neverSeen(source));
        draw(&renderer, &image);
    }
}

void drawAgain(benchmark::State &state, const BenchTemplate &source)
{
    const std::unique_ptr<QZeSvgTinyDocument> document(QZeSvgTinyDocument::load(source.text));
    QImage image = canvas(side);
    for (auto _ : state)
        draw(document.get(), &image);
}

} // namespace

void registerDrawBenchmarks()
{
    using Function = void (*)(benchmark::State &, const BenchTemplate &);
    const auto add = [](const char *name, const BenchTemplate &source, Function function) {
        const std::string full = std::string(name) + "/" + source.name.toStdString();
        benchmark::RegisterBenchmark(full.c_str(), function, source);
    };
    for (const BenchTemplate &source : benchTemplates()) {
        add("draw-changed/peer", source, drawPeer<side>);
        add("draw-changed/gliololok", source, drawChanged<side>);
        add("draw-changed-1024/peer", source, drawPeer<largeSide>);
        add("draw-changed-1024/gliololok", source, drawChanged<largeSide>);
        add("moved-node/peer", source, drawMovedNodePeer);
        add("moved-node/gliololok", source, drawMovedNode);
        add("draw-again/peer", source, drawPeer<side>);
        add("draw-again/gliololok", source, drawAgain);
    }
}

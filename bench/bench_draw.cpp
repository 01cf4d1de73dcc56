// Drawing a document into a 256 × 256 picture, changed since the last drawing and unchanged.

#include "templates.h"

#include <svgbase/qzesvgtinydocument.h>

#include <QtGui/QPainter>
#include <QtSvg/QSvgRenderer>

#include <benchmark/benchmark.h>

#include <memory>

namespace {

constexpr int side = 256;
const QRectF target(0, 0, side, side);

void drawChanged(benchmark::State &state, const BenchTemplate &source)
{
    const std::unique_ptr<QZeSvgTinyDocument> document(QZeSvgTinyDocument::load(source.text));
    QImage image(side, side, QImage::Format_ARGB32_Premultiplied);
    double width = 1;
    for (auto _ : state) {
        image.fill(Qt::transparent);
        width = width == 1 ? 2 : 1;
        document->setAllStrokeWidth(width); // every stroked node changes
        QPainter painter(&image);
        document->draw(&painter, target, 1, true);
    }
}

/// The peer can't change a document: it redraws the same one completely.
void drawPeer(benchmark::State &state, const BenchTemplate &source)
{
    QSvgRenderer renderer(source.text);
    QImage image(side, side, QImage::Format_ARGB32_Premultiplied);
    for (auto _ : state) {
        image.fill(Qt::transparent);
        QPainter painter(&image);
        renderer.render(&painter, target);
    }
}

void drawAgain(benchmark::State &state, const BenchTemplate &source)
{
    const std::unique_ptr<QZeSvgTinyDocument> document(QZeSvgTinyDocument::load(source.text));
    QImage image(side, side, QImage::Format_ARGB32_Premultiplied);
    for (auto _ : state) {
        image.fill(Qt::transparent);
        QPainter painter(&image);
        document->draw(&painter, target, 1, true);
    }
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
        add("draw-changed/peer", source, drawPeer);
        add("draw-changed/gliololok", source, drawChanged);
        add("draw-again/peer", source, drawPeer);
        add("draw-again/gliololok", source, drawAgain);
    }
}

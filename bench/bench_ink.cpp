// Drawing one more stroke of 200 points on a page that is full of them, each move with the repaint of the view that
// it causes, and saving such a page. The peers are an empty page, and a page with a tenth of the strokes, written
// ten times. Beside the ratios, the 99th percentile of CPU milliseconds of an event with its repaint ("p99"); also
// for a page with shapes and texts, on which a stroke is drawn, a shape is dragged, and the view is moved.

#include "pageobjects.h"

#include <pagehost/application.h>
#include <pagehost/documentfile.h>
#include <pagehost/objectregistry.h>
#include <pagehost/page.h>
#include <pagehost/pagescene.h>
#include <pagehost/pagetool.h>
#include <pagehost/selection.h>
#include <pagehost/toolsession.h>

#include <QtCore/QCoreApplication>
#include <QtCore/QDataStream>
#include <QtWidgets/QGraphicsView>
#include <QtWidgets/QScrollBar>

#include <benchmark/benchmark.h>

#include <algorithm>
#include <cmath>
#include <ctime>
#include <vector>

using namespace pagehost;

namespace {

constexpr int strokeCount = 10000;
constexpr int pointCount = 200;
constexpr int columns = 100;
constexpr int shapeCount = 1000;
constexpr int textCount = 200;
constexpr int shapeColumns = 40;
const QSizeF shapeSize(40, 30);
/// The letters of a text, its first property.
constexpr int textProperty = 5101;
/// Of each kind of movement.
constexpr int frameCount = 100;
/// Smaller than the page, so that it can be scrolled.
const QSize window(1000, 600);
const ToolStyle pen{Qt::black, 2, 0};
/// Of the strokes on the page, scene units.
const QSizeF spacing(12.2, 6.8);

/// A word of handwriting, 62 long and 12 high.
QPointF placeOf(int index)
{
    const double turn = index * 0.4;
    return {400 + index * 0.25 + 6 * std::cos(turn), 300 + 6 * std::sin(turn)};
}

/// Collects the CPU time that the process takes for single frames.
class FrameTimes
{
public:
    template<typename Frame> void measure(const Frame &frame)
    {
        const std::clock_t start = std::clock();
        frame();
        QCoreApplication::processEvents();
        m_milliseconds.push_back(double(std::clock() - start) * 1000 / CLOCKS_PER_SEC);
    }
    double percentile99()
    {
        const auto place = m_milliseconds.begin() + std::ptrdiff_t(m_milliseconds.size() * 99 / 100);
        std::nth_element(m_milliseconds.begin(), place, m_milliseconds.end());
        return *place;
    }

private:
    std::vector<double> m_milliseconds;
};

/// A document with one page in a view, and the pen.
struct WritingPage
{
    explicit WritingPage(int strokes)
        : page(document.appendPage())
        , session(page, &shapeRegistry())
        , tool(shapeRegistry().createTool(ToolRole::Pen, &session))
    {
        setCurrentDocument(&document);
        tool->setStyle(pen);
        fill(strokes);
        view.setScene(page->scene());
        view.setFrameShape(QFrame::NoFrame);
        view.resize(window);
        view.show();
        page->scene()->setTool(tool.get());
        QCoreApplication::processEvents();
    }
    ~WritingPage()
    {
        page->scene()->setTool(nullptr);
        setCurrentDocument(nullptr);
    }

    void fill(int strokes)
    {
        if (strokes == 0)
            return;
        drawStroke([](const auto &perform) { perform(); });
        CBaseObject *first = page->objects().value(0);
        QVector<CBaseObject *> copies;
        for (int i = 1; i < strokes; ++i) {
            CBaseObject *copy = cloneObject(first, &shapeRegistry());
            const QPointF place(i % columns * spacing.width(), i / columns * spacing.height());
            copy->CPSRootObject::setPos(place, false);
            copies.append(copy);
        }
        page->appendObjects(copies);
    }
    /// `event` performs each press, move and release that it is given.
    template<typename Event> void drawStroke(const Event &event)
    {
        ToolPointer pointer;
        pointer.pos = placeOf(0);
        event([&] { tool->press(pointer); });
        for (int i = 1; i < pointCount; ++i) {
            pointer.pos = placeOf(i);
            event([&] { tool->move(pointer); });
        }
        event([&] { tool->release(pointer); });
    }
    void addShapesAndTexts()
    {
        QVector<CBaseObject *> objects;
        for (int i = 0; i < shapeCount; ++i)
            objects.append(makeShape(QStringLiteral("shapes.star"), shapeSize).release());
        const QString words = QStringLiteral("Light is refracted at each surface of the prism.");
        for (int i = 0; i < textCount; ++i) {
            objects.append(makeShape(QStringLiteral("shapes.text"), shapeSize).release());
            write(*objects.last(), words);
        }
        for (int i = 0; i < objects.size(); ++i)
            objects[i]->CPSRootObject::setPos({i % shapeColumns * 30.0, i / shapeColumns * 20.0}, false);
        page->appendObjects(objects);
        QCoreApplication::processEvents();
    }
    static void write(CBaseObject &text, const QString &words)
    {
        QByteArray bytes;
        QDataStream out(&bytes, QIODevice::WriteOnly);
        out << words;
        QDataStream in(&bytes, QIODevice::ReadWrite);
        text.SetAttribute(textProperty, in, false);
    }

    Document document;
    Page *page;
    ToolSession session;
    std::unique_ptr<PageTool> tool;
    QGraphicsView view;
};

void strokeEvents(benchmark::State &state, int strokes)
{
    WritingPage paper(strokes);
    FrameTimes times;
    for (auto _ : state)
        paper.drawStroke([&times](const auto &perform) { times.measure(perform); });
    state.counters["p99"] = times.percentile99();
}

/// Frames of a full page: a stroke, a dragged shape, and a view that is moved across.
void fullPage(benchmark::State &state, int strokes)
{
    WritingPage paper(strokes);
    if (strokes > 0)
        paper.addShapesAndTexts();
    FrameTimes times;
    const auto frame = [&times](const auto &perform) { times.measure(perform); };
    for (auto _ : state) {
        paper.drawStroke(frame);
        const QVector<CBaseObject *> objects = paper.page->objects();
        CBaseObject *dragged = objects.last();
        for (int i = 0; i < frameCount; ++i)
            frame([&] { dragged->CPSRootObject::setPos({100.0 + i * 4, 100.0 + i}, false); });
        for (int i = 0; i < frameCount; ++i)
            frame([&] { paper.view.horizontalScrollBar()->setValue(i * 2); });
    }
    state.counters["p99"] = times.percentile99();
}

void saveStrokes(benchmark::State &state, int strokes, int times)
{
    WritingPage paper(strokes);
    for (auto _ : state)
        for (int i = 0; i < times; ++i)
            benchmark::DoNotOptimize(encodeDocument(paper.document, DocumentFormat::Binary).size());
}

} // namespace

void registerInkBenchmarks()
{
    const auto add = [](const char *name, const auto &run) {
        benchmark::RegisterBenchmark(name, run)->Iterations(3)->Unit(benchmark::kMillisecond);
    };
    add("full-page/peer/strokes", [](benchmark::State &state) { fullPage(state, 0); });
    add("full-page/gliololok/strokes", [](benchmark::State &state) { fullPage(state, strokeCount); });
    add("stroke-events/peer/strokes", [](benchmark::State &state) { strokeEvents(state, 0); });
    add("stroke-events/gliololok/strokes", [](benchmark::State &state) { strokeEvents(state, strokeCount); });
    add("save-10000-strokes/peer/strokes",
        [](benchmark::State &state) { saveStrokes(state, strokeCount / 10, 10); });
    add("save-10000-strokes/gliololok/strokes",
        [](benchmark::State &state) { saveStrokes(state, strokeCount, 1); });
}

// Animation: a tick of one shape, and a page on which a hundred of a thousand shapes are animated. The peer of a
// tick draws the same template once with Qt's own SVG module.

#include "pageobjects.h"
#include "templates.h"

#include <pagehost/animationplayer.h>
#include <pagehost/document.h>
#include <pagehost/objectplugin.h>
#include <pagehost/page.h>
#include <pagehost/pagescene.h>

#include <QtCore/QDataStream>
#include <QtCore/QElapsedTimer>
#include <QtCore/QEvent>
#include <QtCore/QEventLoop>
#include <QtGui/QPainter>
#include <QtSvg/QSvgRenderer>
#include <QtWidgets/QGraphicsView>

#include <benchmark/benchmark.h>

#include <algorithm>
#include <ctime>
#include <vector>

namespace {

constexpr int side = 256;
constexpr int objectCount = 1000;
constexpr int columns = 44;
constexpr double spacing = 42;
const QSizeF objectSize(36, 36);
const QSize window(1920, 1080);
/// Duration of warm-up and measurement, milliseconds.
constexpr int warmUp = 1000;
constexpr int measured = 5000;

bool plays(CBaseObject &object)
{
    QByteArray bytes;
    QDataStream out(&bytes, QIODevice::WriteOnly);
    return object.GetSpecialProperty(pagehost::AnimationRuns, out);
}

QStringList movingKinds()
{
    QStringList moving;
    const QStringList kinds = shapeKinds();
    for (const QString &kind : kinds)
        if (plays(*makeShape(kind, objectSize)))
            moving.append(kind);
    return moving;
}

/// The work of a shape's timer for one picture, at a different time in each iteration.
void tick(benchmark::State &state, const QString &kindId)
{
    const std::unique_ptr<CBaseObject> object = makeShape(kindId, QSizeF(side, side));
    const QByteArray on(1, 1);
    QDataStream in(on);
    object->SetSpecialProperty(pagehost::AnimationRuns, in, false);
    for (auto _ : state) {
        object->OnQPainterDraw(nullptr);
        object->notifyObjPropertyChanged(CPSRootObject::AppearanceChanged, QString());
    }
}

void tickPeer(benchmark::State &state, const BenchTemplate &source)
{
    QImage image(side, side, QImage::Format_ARGB32);
    QSvgRenderer renderer(source.text);
    for (auto _ : state) {
        image.fill(Qt::transparent);
        QPainter painter(&image);
        renderer.render(&painter, QRectF(0, 0, side, side));
    }
}

/// Records the times of a widget's paint events, in milliseconds.
class FrameWatch : public QObject
{
public:
    explicit FrameWatch(QWidget *watched)
    {
        m_timer.start();
        watched->installEventFilter(this);
    }
    bool eventFilter(QObject *, QEvent *event) override
    {
        if (event->type() == QEvent::Paint)
            m_moments.push_back(double(m_timer.nsecsElapsed()) / 1e6);
        return false;
    }
    void forget() { m_moments.clear(); }
    /// Intervals between frames, the shortest first.
    std::vector<double> intervals() const
    {
        std::vector<double> between;
        for (std::size_t i = 1; i < m_moments.size(); ++i)
            between.push_back(m_moments[i] - m_moments[i - 1]);
        std::sort(between.begin(), between.end());
        return between;
    }

private:
    QElapsedTimer m_timer;
    std::vector<double> m_moments;
};

double percentile(const std::vector<double> &sorted, double share)
{
    return sorted.empty() ? 0 : sorted[std::min(sorted.size() - 1, std::size_t(share * double(sorted.size())))];
}

void runFor(int milliseconds)
{
    QEventLoop loop;
    QTimer::singleShot(milliseconds, &loop, &QEventLoop::quit);
    loop.exec();
}

void fillPage(pagehost::Page &page, int movingCount)
{
    const QStringList moving = movingKinds();
    QStringList resting = shapeKinds();
    for (const QString &kind : moving)
        resting.removeAll(kind);
    const int every = movingCount > 0 ? objectCount / movingCount : objectCount + 1;
    for (int i = 0; i < objectCount; ++i) {
        const QStringList &kinds = i % every == every - 1 ? moving : resting;
        CBaseObject *object = makeShape(kinds[i / every % kinds.size()], objectSize).release();
        object->setPos(QPointF(i % columns, i / columns) * spacing, false);
        page.addObject(object);
    }
}

/// Runs in real time, like an application.
void movingPage(benchmark::State &state, int movingCount)
{
    pagehost::Document document;
    pagehost::Page *page = document.appendPage();
    page->setSize(window);
    fillPage(*page, movingCount);
    QGraphicsView view(page->scene());
    view.setFrameShape(QFrame::NoFrame);
    view.resize(window);
    view.show();
    pagehost::AnimationPlayer player(&view);
    player.setPage(page);
    FrameWatch watch(view.viewport());
    for (auto _ : state) {
        runFor(warmUp);
        watch.forget();
        const std::clock_t before = std::clock();
        runFor(measured);
        state.counters["busy %"] = 100.0 * double(std::clock() - before) / CLOCKS_PER_SEC / (measured / 1000.0);
    }
    const std::vector<double> between = watch.intervals();
    state.counters["frames"] = double(between.size());
    state.counters["p50 ms"] = percentile(between, 0.5);
    state.counters["p95 ms"] = percentile(between, 0.95);
    state.counters["p99 ms"] = percentile(between, 0.99);
    state.counters["max ms"] = between.empty() ? 0 : between.back();
}

} // namespace

void registerAnimationBenchmarks()
{
    const QStringList kinds = movingKinds();
    for (const QString &kind : kinds) {
        const BenchTemplate *source = findTemplate(templateName(kind));
        if (!source)
            continue;
        const std::string name = source->name.toStdString();
        benchmark::RegisterBenchmark(("animation-tick/peer/" + name).c_str(), tickPeer, *source);
        benchmark::RegisterBenchmark(("animation-tick/gliololok/" + name).c_str(), tick, kind);
    }
    for (const int moving : {0, 1, 10, 100})
        benchmark::RegisterBenchmark(("moving-page/gliololok/" + std::to_string(moving)).c_str(), movingPage,
                                     moving)
            ->Iterations(1)
            ->Unit(benchmark::kMillisecond);
}

// Selecting everything on a page in the board's window, with the update of panels and the repaint. There is no
// peer; the time per shape must not grow with their number.

#include "pageobjects.h"

#include <core/workspace.h>
#include <page/pageview.h>
#include <window/mainwindow.h>

#include <pagehost/animationplayer.h>
#include <pagehost/page.h>
#include <pagehost/pagescene.h>
#include <pagehost/selection.h>

#include <framework/cundoredo.h>

#include <QtGui/QMouseEvent>
#include <QtWidgets/QApplication>
#include <QtWidgets/QUndoStack>

#include <benchmark/benchmark.h>

namespace {

const QSizeF shapeSize(24, 20);
constexpr int columns = 42;
constexpr double spacing = 30;
constexpr int bandSteps = 20;

void settle()
{
    // Turns of the event loop may postpone work to the next ones.
    for (int turn = 0; turn < 4; ++turn)
        QCoreApplication::processEvents();
}

/// The board's window with a page full of shapes, nothing selected.
class Board
{
public:
    explicit Board(int shapeCount)
        : m_workspace(QStringLiteral("en"))
    {
        m_workspace.loadPlugins({QStringLiteral(GLIOLOLOK_SHAPES)});
        m_window = std::make_unique<board::MainWindow>(&m_workspace);
        m_window->resize(1600, 1100);
        m_window->show();
        // Ticks of animated shapes take time, selected or not.
        m_window->animation()->setPlaying(false);
        const QStringList kinds = shapeKinds();
        for (int i = 0; i < shapeCount; ++i) {
            CBaseObject *object = makeShape(kinds[i % kinds.size()], shapeSize).release();
            object->CPSRootObject::setPos({spacing * (i % columns) + 8, spacing * (i / columns) + 8}, false);
            page()->addObject(object);
        }
        deselect();
    }
    ~Board() { CUndoRedo::GetInstance()->stack()->clear(); }

    pagehost::Page *page() const { return m_window->view()->page(); }
    const pagehost::ObjectRegistry *registry() { return &m_workspace.registry(); }
    void deselect() const
    {
        page()->select({});
        settle();
    }
    void mouse(QEvent::Type type, const QPointF &scenePos) const
    {
        const Qt::MouseButton button = type == QEvent::MouseMove ? Qt::NoButton : Qt::LeftButton;
        QMouseEvent event(type, m_window->view()->mapFromScene(scenePos), button, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(m_window->view()->viewport(), &event);
    }

private:
    board::Workspace m_workspace;
    std::unique_ptr<board::MainWindow> m_window;
};

void report(benchmark::State &state)
{
    state.SetComplexityN(state.range(0));
    state.counters["s per shape"] = benchmark::Counter(
        double(state.range(0)), benchmark::Counter::kIsIterationInvariantRate | benchmark::Counter::kInvert);
}

void selectAll(benchmark::State &state)
{
    const Board board(int(state.range(0)));
    for (auto _ : state) {
        pagehost::selectAll(board.page());
        settle();
        state.PauseTiming();
        board.deselect();
        state.ResumeTiming();
    }
    report(state);
}

/// Without the repaint: the selection and the front panel only.
void selectAllUnpainted(benchmark::State &state)
{
    const Board board(int(state.range(0)));
    board.page()->scene()->views().first()->viewport()->setUpdatesEnabled(false);
    for (auto _ : state) {
        pagehost::selectAll(board.page());
        settle();
        state.PauseTiming();
        board.deselect();
        state.ResumeTiming();
    }
    report(state);
}

void rubberBand(benchmark::State &state)
{
    const Board board(int(state.range(0)));
    const QPointF start(2, 2);
    const QPointF end(1278, 718);
    for (auto _ : state) {
        board.mouse(QEvent::MouseButtonPress, start);
        for (int step = 1; step <= bandSteps; ++step) {
            board.mouse(QEvent::MouseMove, start + (end - start) * step / bandSteps);
            settle();
        }
        board.mouse(QEvent::MouseButtonRelease, end);
        state.PauseTiming();
        board.deselect();
        state.ResumeTiming();
    }
    report(state);
}

void duplicateAll(benchmark::State &state)
{
    Board board(int(state.range(0)));
    for (auto _ : state) {
        state.PauseTiming();
        pagehost::selectAll(board.page());
        settle();
        state.ResumeTiming();
        pagehost::duplicateSelection(board.page(), board.registry());
        settle();
        state.PauseTiming();
        CUndoRedo::GetInstance()->stack()->undo();
        CUndoRedo::GetInstance()->stack()->clear();
        board.deselect();
        state.ResumeTiming();
    }
    report(state);
}

void sizes(benchmark::internal::Benchmark *figure)
{
    for (const int count : {23, 46, 92, 184, 368, 1000})
        figure->Arg(count);
    figure->Unit(benchmark::kMillisecond)->MeasureProcessCPUTime()->Complexity();
}

BENCHMARK(selectAll)->Name("select all")->Apply(sizes);
BENCHMARK(selectAllUnpainted)->Name("select all, unpainted")->Apply(sizes);
BENCHMARK(rubberBand)->Name("rubber band")->Apply(sizes);
BENCHMARK(duplicateAll)->Name("duplicate all")->Apply(sizes);

} // namespace

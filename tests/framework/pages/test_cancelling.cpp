// Esc in the middle of a drag: everything is as if the button had never been pressed.

#include "shapes/writingdesk.h"

#include <pagehost/objectid.h>

#include <QtWidgets/QUndoStack>

namespace {

constexpr int gripReach = 60;

struct Teacher;
using Gesture = std::function<void(Teacher &)>;

/// A page with an arrow, a star above it and a stroke; a step that was undone; and a running recording.
struct Teacher : WritingDesk
{
    Teacher()
        : WritingDesk(pagehost::ToolRole::Pen)
    {
        drawAlong({{50, 400}, {150, 420}, {250, 400}});
        page->scene()->setTool(nullptr);
        arrow = drawArrow();
        star = draw(QStringLiteral("shapes.polygon"), {400, 100}, {500, 200});
        page->select({star});
        pagehost::nudgeSelection(page, {7, 0});
        undoStack()->undo();
        page->select({arrow});
        view.viewport()->grab();
        document.markSaved();
        recorder.start(&document);
    }

    void hold(const QPointF &from, const QPointF &way)
    {
        press(from);
        for (int step = 1; step <= 4; ++step) {
            moveTo(from + way * step / 4);
            letTimersRun();
        }
    }
    void holdWith(pagehost::ToolRole role, const QPointF &from, const QPointF &way)
    {
        take(role, {Qt::red, 5, 0});
        hold(from, way);
    }
    /// Where a press takes this grip of the arrow.
    QPointF grip(pagehost::Grip::Kind kind, CObjAction::ACT_Def action) const
    {
        const QRectF around = QRectF(arrow->getPos(), arrow->getClientRect().size())
                                  .adjusted(-gripReach, -gripReach, gripReach, gripReach);
        for (double y = around.top(); y < around.bottom(); y += 2) {
            for (double x = around.left(); x < around.right(); x += 2) {
                const pagehost::Grip found = page->scene()->gripAt({x, y});
                if (found.kind == kind && found.action == action && found.object == arrow)
                    return {x, y};
            }
        }
        return {};
    }
    /// All that a cancelled gesture could leave behind, readable in a failing comparison.
    QStringList traces() const
    {
        QStringList lines = savedState(document);
        const QVector<CBaseObject *> objects = page->objects();
        for (CBaseObject *object : objects)
            lines.append(QStringLiteral("number %1, %2")
                             .arg(pagehost::objectId(object))
                             .arg(object->isSelected() ? "selected" : "not selected"));
        const QUndoStack &steps = *undoStack();
        lines.append(QStringLiteral("step %1 of %2, next \"%3\", %4")
                         .arg(steps.index())
                         .arg(steps.count())
                         .arg(steps.redoText(), document.isModified() ? "modified" : "saved"));
        return lines;
    }

    CBaseObject *arrow;
    CBaseObject *star;
};

} // namespace

Q_DECLARE_METATYPE(Gesture)

class TestCancelling : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void escapeLeavesNoTrace_data();
    void escapeLeavesNoTrace();
    void zoomingDuringACancelledDragIsRecorded();
};

void TestCancelling::initTestCase()
{
    QVERIFY(!shapes().kinds().isEmpty());
}

void TestCancelling::escapeLeavesNoTrace_data()
{
    using pagehost::Grip;
    using pagehost::ToolRole;
    QTest::addColumn<Gesture>("gesture");
    const auto row = [](const char *name, const Gesture &gesture) { QTest::newRow(name) << gesture; };
    const auto dragGrip = [](Grip::Kind kind, CObjAction::ACT_Def action) {
        return [=](Teacher &t) {
            const QPointF from = t.grip(kind, action);
            QVERIFY(!from.isNull());
            t.hold(from, {23, -11});
        };
    };
    row("move", [](Teacher &t) { t.hold({200, 160}, {40, 31}); });
    row("move what was not selected", [](Teacher &t) { t.hold({450, 150}, {40, 31}); });
    row("resize", dragGrip(Grip::Handle, CObjAction::ACT_ResizeBottomRight));
    row("turn", dragGrip(Grip::Handle, CObjAction::ACT_Rotate));
    row("control point", dragGrip(Grip::ControlPoint, CObjAction::ACT_None));
    row("new shape", [](Teacher &t) {
        t.tool.begin(t.page->scene(), QStringLiteral("shapes.polygon"));
        t.hold({300, 300}, {80, 60});
    });
    row("pen", [](Teacher &t) { t.holdWith(ToolRole::Pen, {300, 300}, {80, 60}); });
    row("eraser", [](Teacher &t) { t.holdWith(ToolRole::Eraser, {150, 380}, {0, 60}); });
    row("line", [](Teacher &t) { t.holdWith(ToolRole::Line, {300, 300}, {80, 60}); });
    row("connector", [](Teacher &t) { t.holdWith(ToolRole::Connector, {200, 160}, {250, -10}); });
}

void TestCancelling::escapeLeavesNoTrace()
{
    QFETCH(Gesture, gesture);
    Teacher t;
    const QStringList before = t.traces();
    gesture(t);
    QVERIFY(t.page->scene()->isBusy());
    QVERIFY(!t.recorder.soFar().events.isEmpty() || t.tool.isActive());
    t.pressKey(Qt::Key_Escape);
    QCOMPARE(t.traces(), before);
    Classroom::letTimersRun();
    t.release({300, 300});
    QCOMPARE(t.traces(), before);
    QVERIFY(t.recorder.soFar().events.isEmpty());

    // Neither does the next drag show in the lesson that something went before.
    t.page->scene()->setTool(nullptr);
    t.drag({200, 160}, {220, 190});
    const pagehost::Lesson lesson = t.recorder.stop();
    QVERIFY(Classroom::count<pagehost::ObjectActed>(lesson) > 0);
    QCOMPARE(Classroom::count<pagehost::ObjectActed>(lesson), lesson.events.size());
    QCOMPARE(t.played(lesson), savedState(t.document));
}

void TestCancelling::zoomingDuringACancelledDragIsRecorded()
{
    Teacher t;
    t.hold({200, 160}, {40, 31});
    t.setZoom(1.5);
    t.moveTo({260, 200});
    t.pressKey(Qt::Key_Escape);
    const pagehost::Lesson lesson = t.recorder.stop();
    QCOMPARE(lesson.events.size(), 1);
    QCOMPARE(Classroom::count<pagehost::ZoomChanged>(lesson), 1);
    QCOMPARE(t.played(lesson), savedState(t.document));
}

QTEST_MAIN(TestCancelling)
#include "test_cancelling.moc"

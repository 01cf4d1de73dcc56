// Esc in the middle of a drag in the board's window: everything is as if the button had never been pressed.

#include <board/boarddriver.h>

#include <core/toolchoice.h>
#include <page/pageview.h>
#include <window/mainwindow.h>

#include <pagehost/documentfile.h>
#include <pagehost/lesson.h>
#include <pagehost/page.h>
#include <pagehost/pagescene.h>

#include <framework/cbaseobject.h>

#include <support/listed.h>

#include <QtTest/QtTest>
#include <QtWidgets/QUndoStack>

using namespace boardtest;
using board::Tool;

Q_DECLARE_METATYPE(board::Tool)

namespace {

const QString cross = QStringLiteral("declared.cross");

/// A stroke, an arrow and a selected cross; a step that was undone; and a running recording.
struct Teacher : BoardDriver
{
    Teacher()
    {
        tools().choose(Tool::Pen);
        drag({200, 500}, {400, 520});
        tools().choose(Tool::Select);
        draw(arrow, {800, 200}, {900, 280});
        draw(cross, {500, 200}, {700, 400});
        key(Qt::Key_Right);
        key(Qt::Key_Z, Qt::ControlModifier);
        key(Qt::Key_F9);
    }
    board::ToolChoice &tools() const { return *window().tools(); }
    /// All that a cancelled gesture could leave behind, readable in a failing comparison.
    QStringList traces()
    {
        const QByteArray saved = pagehost::encodeDocument(*workspace().document(), pagehost::DocumentFormat::Json);
        QStringList lines = QString::fromUtf8(saved).split('\n');
        for (CBaseObject *object : support::listed(selection()))
            lines.append(QStringLiteral("%1 is selected").arg(page().objects().indexOf(object)));
        lines.append(QStringLiteral("step %1 of %2, next \"%3\"")
                         .arg(history().index())
                         .arg(history().count())
                         .arg(history().redoText()));
        return lines;
    }
    /// Events of the lesson, which ends here.
    int recordedEvents()
    {
        key(Qt::Key_F9);
        pagehost::Lesson lesson;
        const QVector<pagehost::LessonData> lessons = workspace().document()->lessons();
        return lessons.size() == 1 && lesson.fromData(lessons.first().data) ? lesson.events.size() : -1;
    }
};

} // namespace

class TestCancelling : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void escapeLeavesNoTrace_data();
    void escapeLeavesNoTrace();
    void undoneStepIsRepeatedAfterACancelledDrag();
    void dragThatIsNotCancelledIsRecorded();
};

void TestCancelling::escapeLeavesNoTrace_data()
{
    QTest::addColumn<Tool>("tool");
    QTest::addColumn<QString>("kind");
    QTest::addColumn<int>("handle");
    QTest::addColumn<QPointF>("from");
    const auto row = [](const char *name, const QPointF &from, Tool tool = Tool::Select, const QString &kind = {}) {
        QTest::newRow(name) << tool << kind << int(CObjAction::ACT_None) << from;
    };
    const auto handleRow = [](const char *name, CObjAction::ACT_Def handle) {
        QTest::newRow(name) << Tool::Select << QString() << int(handle) << QPointF();
    };
    row("move", {600, 330});
    row("move what was not selected", {830, 240});
    handleRow("resize", CObjAction::ACT_ResizeBottomRight);
    handleRow("turn", CObjAction::ACT_Rotate);
    // At 33 of 100 along both sides.
    row("control point", {566, 266});
    row("new shape", {300, 300}, Tool::Select, rectangle);
    row("pen", {300, 300}, Tool::Pen);
    row("eraser", {300, 480}, Tool::Eraser);
    row("line", {300, 300}, Tool::Line);
    row("connector", {600, 330}, Tool::Connector);
}

void TestCancelling::escapeLeavesNoTrace()
{
    QFETCH(Tool, tool);
    QFETCH(QString, kind);
    QFETCH(int, handle);
    QFETCH(QPointF, from);
    Teacher t;
    const auto action = static_cast<CObjAction::ACT_Def>(handle);
    const QPointF start = action == CObjAction::ACT_None ? from : t.handle(action);
    if (tool != Tool::Select)
        t.tools().choose(tool);
    if (!kind.isEmpty())
        t.pick(kind);
    const QStringList before = t.traces();
    t.hold(start, start + QPointF(23, 60));
    QVERIFY(t.scene().isBusy());
    t.key(Qt::Key_Escape);
    QCOMPARE(t.traces(), before);
    t.release(start + QPointF(23, 60));
    QCOMPARE(t.traces(), before);
    QCOMPARE(t.recordedEvents(), 0);
}

void TestCancelling::undoneStepIsRepeatedAfterACancelledDrag()
{
    Teacher t;
    t.hold({600, 330}, {640, 350});
    t.key(Qt::Key_Escape);
    t.release({640, 350});
    const CBaseObject *shape = t.page().objects().last();
    QCOMPARE(t.placeOf(shape), QRectF(500, 200, 200, 200));
    t.key(Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
    QCOMPARE(t.placeOf(shape), QRectF(508, 200, 200, 200));
}

/// Else no events would tell nothing.
void TestCancelling::dragThatIsNotCancelledIsRecorded()
{
    Teacher t;
    t.drag({600, 330}, {640, 350});
    QVERIFY(t.recordedEvents() > 0);
}

QTEST_MAIN(TestCancelling)
#include "test_cancelling.moc"

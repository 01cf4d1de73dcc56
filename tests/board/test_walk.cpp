// A lesson from the first label to the opened file, by the keys and the mouse of one who gives it.

#include <board/boarddriver.h>
#include <board/desk.h>

#include <lessons/lessonbar.h>
#include <lessons/lessoncontroller.h>
#include <lessons/timeline.h>
#include <page/labeleditor.h>
#include <page/pageview.h>
#include <panels/palettepanel.h>
#include <presenting/presentation.h>
#include <presenting/stage.h>
#include <window/mainwindow.h>

#include <pagehost/page.h>

#include <framework/cbaseobject.h>

#include <support/patience.h>

#include <QtCore/QMimeData>
#include <QtCore/QUrl>
#include <QtGui/QDropEvent>
#include <QtGui/QPainter>
#include <QtGui/QPdfWriter>
#include <QtTest/QtTest>

using namespace boardtest;

namespace {

/// The person at the board.
struct Teacher : Desk
{
    pagehost::Document &document() { return *board.workspace().document(); }
    /// Of the page in the window, which a lesson may show.
    QVector<CBaseObject *> shownObjects() { return board.view().page()->objects(); }

    void findShape(const QString &word)
    {
        board.key(Qt::Key_S);
        auto *search = board.window().palettePanel()->findChild<QLineEdit *>();
        QVERIFY(search->hasFocus());
        board.type(search, word);
        board.keyIn(search, Qt::Key_Return);
    }
    void write(const QPointF &pos, const QString &text)
    {
        board.key(Qt::Key_T);
        board.click(pos);
        auto *editor = board.view().findChild<board::LabelEditor *>();
        QVERIFY(editor);
        board.type(editor, text);
        board.keyIn(editor, Qt::Key_Escape);
        // The editor goes in the next turn of the event loop.
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
    /// Of the second object.
    QString writtenText()
    {
        const QVector<board::EditableLabel> labels = board::labelsOf(*board.page().objects().at(1));
        return labels.value(0).text;
    }
    void dropWorksheet()
    {
        const QString file = path("worksheet.pdf");
        {
            QPdfWriter writer(file);
            QPainter(&writer).fillRect(0, 0, 1000, 1000, Qt::black);
        }
        QMimeData data;
        data.setUrls({QUrl::fromLocalFile(file)});
        QWidget *viewport = board.view().viewport();
        const QPoint pos = viewport->rect().center();
        QDragEnterEvent enter(pos, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(viewport, &enter);
        QDropEvent drop(pos, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(viewport, &drop);
        QTRY_COMPARE_WITH_TIMEOUT(document().pageCount(), 2, support::patience);
    }
    void clickTimeLine(double part)
    {
        board::TimeLine *line = board.window().lessonBar()->timeLine();
        board.clickOn(line, QPoint(qRound((line->width() - 1) * part), line->height() / 2));
    }
    void pressWhilePresenting(Qt::Key key)
    {
        board::PageView *view = board.window().presentation()->stage()->view();
        QApplication::setActiveWindow(view->window());
        view->setFocus();
        board.keyIn(view, key);
    }
    void open(const QString &name)
    {
        board.key(Qt::Key_O, Qt::ControlModifier);
        answerFile(path(name));
    }
};

} // namespace

class TestWalk : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { useOwnFolders(); }
    void aLessonIsGivenFromTheFirstLabelToTheOpenedFile();
};

void TestWalk::aLessonIsGivenFromTheFirstLabelToTheOpenedFile()
{
    Teacher teacher;
    BoardDriver &board = teacher.board;

    // Label a diagram.
    teacher.findShape("flask");
    board.drag({200, 100}, {320, 280});
    QCOMPARE(board.page().objectCount(), 1);
    teacher.write({360, 180}, "H_2O");
    QCOMPARE(board.page().objectCount(), 2);
    QCOMPARE(teacher.writtenText(), QString("H₂O"));

    // Write on a worksheet.
    teacher.dropWorksheet();
    QCOMPARE(teacher.document().currentIndex(), 1);
    board.key(Qt::Key_P);
    board.drag({300, 300}, {500, 340});
    QCOMPARE(board.page().objectCount(), 2);
    QVERIFY(board.pen(QEvent::TabletPress, {300, 400}, 0.5));
    QVERIFY(board.pen(QEvent::TabletMove, {500, 440}, 0.8));
    QVERIFY(board.pen(QEvent::TabletRelease, {500, 440}, 0));
    QCOMPARE(board.page().objectCount(), 3);

    // Connect two boxes.
    board.key(Qt::Key_V);
    board.key(Qt::Key_PageUp);
    QCOMPARE(teacher.document().currentIndex(), 0);
    for (const QPointF &corner : {QPointF(500, 400), QPointF(800, 400)}) {
        board.key(Qt::Key_R);
        board.drag(corner, corner + QPointF(120, 80));
    }
    board.key(Qt::Key_C);
    board.drag({560, 440}, {860, 440});
    QCOMPARE(board.page().objectCount(), 5);
    CBaseObject *box = board.page().objects().at(3);
    CBaseObject *line = board.page().objects().at(4);
    QCOMPARE(board.placeOf(box), QRectF(800, 400, 120, 80));
    const QRectF straight = board.placeOf(line);

    // Record: the connected box goes down, some time after the beginning.
    board.key(Qt::Key_F9);
    QTRY_VERIFY_WITH_TIMEOUT(board.window().lessons()->position() >= 50, support::patience);
    board.drag({860, 440}, {860, 560});
    board.key(Qt::Key_F9);
    QCOMPARE(board.placeOf(box), QRectF(800, 520, 120, 80));
    const QRectF slanted = board.placeOf(line);
    // The way between the middles goes 2 down on 5 across; the outlines, 1 inside of the boxes, leave 182 across.
    QVERIFY(qAbs(slanted.height() - straight.height() - 72.8) < 0.01);

    // Rewind: it stands where it was, and the line with it.
    teacher.clickTimeLine(0);
    QCOMPARE(teacher.shownObjects().size(), 5);
    QCOMPARE(board.placeOf(teacher.shownObjects().at(3)), QRectF(800, 400, 120, 80));
    QCOMPARE(board.placeOf(teacher.shownObjects().at(4)), straight);
    teacher.clickTimeLine(1);
    QCOMPARE(board.placeOf(teacher.shownObjects().at(3)), QRectF(800, 520, 120, 80));
    QCOMPARE(board.placeOf(teacher.shownObjects().at(4)), slanted);
    board.key(Qt::Key_F8, Qt::ShiftModifier);
    QCOMPARE(teacher.shownObjects().at(3), box);

    // Present.
    board.key(Qt::Key_F5);
    QVERIFY(board.window().presentation()->isRunning());
    teacher.pressWhilePresenting(Qt::Key_PageDown);
    QCOMPARE(teacher.document().currentIndex(), 1);
    teacher.pressWhilePresenting(Qt::Key_Home);
    QCOMPARE(teacher.document().currentIndex(), 0);
    teacher.pressWhilePresenting(Qt::Key_F5);
    QVERIFY(!board.window().presentation()->isRunning());

    // Save, begin anew, open.
    teacher.saveAs("lesson.board");
    QVERIFY(!board.window().isWindowModified());
    board.key(Qt::Key_N, Qt::ControlModifier);
    QCOMPARE(board.page().objectCount(), 0);
    teacher.open("lesson.board");
    QTRY_COMPARE_WITH_TIMEOUT(board.page().objectCount(), 5, support::patience);
    QCOMPARE(teacher.document().pageCount(), 2);
    QCOMPARE(teacher.document().lessons().size(), 1);
    QCOMPARE(teacher.writtenText(), QString("H₂O"));
    QCOMPARE(board.placeOf(board.page().objects().at(4)), slanted);
    QCOMPARE(teacher.notices(), QString());
}

QTEST_MAIN(TestWalk)
#include "test_walk.moc"

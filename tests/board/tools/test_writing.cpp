// Pen and eraser in the board's window: chosen by key, used with mouse and pen.

#include "board/boarddriver.h"

#include <core/toolchoice.h>
#include <page/pageview.h>
#include <tools/toolsettings.h>
#include <window/mainwindow.h>

#include <pagehost/page.h>
#include <pagehost/pagescene.h>

#include <framework/cbaseobject.h>

#include <QtCore/QSettings>
#include <QtGui/QTabletEvent>
#include <QtTest/QtTest>
#include <QtWidgets/QApplication>
#include <QtWidgets/QUndoStack>

using board::Tool;
using boardtest::BoardDriver;

namespace {

/// A pen 5 wide, so that 4 units of room are around the points of a stroke.
struct Desk : BoardDriver
{
    Desk()
    {
        tools().choose(Tool::Pen);
        window().toolSettings()->setWidth(Tool::Pen, 5);
    }
    board::ToolChoice &tools() const { return *window().tools(); }

    bool pen(QEvent::Type type, const QPointF &pos, double pressure)
    {
        const QPointF local = view().viewportTransform().map(pos);
        const bool isMove = type == QEvent::TabletMove;
        QTabletEvent event(type, local, view().viewport()->mapToGlobal(local.toPoint()), QTabletEvent::Stylus,
                           QTabletEvent::Pen, pressure, 0, 0, 0, 0, 0, Qt::NoModifier, 1,
                           isMove ? Qt::NoButton : Qt::LeftButton, Qt::LeftButton);
        QApplication::sendEvent(view().viewport(), &event);
        return event.isAccepted();
    }
    CBaseObject *stroke() { return page().objects().value(0); }
};

} // namespace

class TestWriting : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { boardtest::useOwnFolders(); }
    void init() { QSettings().clear(); }
    void toolsOfPluginsCanBeChosen();
    void thePenStaysAfterAStroke();
    void choosingThePenDeselects();
    void escapeEndsTheStrokeThenTheTool();
    void aPenWritesBetweenPixels();
    void aPenIsAMouseWhereNoToolIsChosen();
    void theWidthOfTheSettingsIsThatOfTheNextStroke();
    void anotherPageIsWrittenOnToo();
    void anotherToolDuringAStrokeTakesItBack();
    void aDoubleClickMakesTwoDots();
};

void TestWriting::toolsOfPluginsCanBeChosen()
{
    Desk desk;
    for (const Tool tool : {Tool::Pen, Tool::Highlighter, Tool::Eraser})
        QVERIFY(desk.tools().isOffered(tool));
}

void TestWriting::thePenStaysAfterAStroke()
{
    Desk desk;
    desk.drag({500, 300}, {600, 300});
    desk.drag({500, 400}, {600, 400});
    QCOMPARE(desk.page().objectCount(), 2);
    QCOMPARE(desk.placeOf(desk.stroke()), QRectF(496, 296, 108, 8));
    QCOMPARE(desk.history().count(), 2);
    QCOMPARE(desk.tools().tool(), Tool::Pen);
    QVERIFY(desk.selection().isEmpty());
    desk.history().undo();
    QCOMPARE(desk.page().objectCount(), 1);
}

void TestWriting::choosingThePenDeselects()
{
    Desk desk;
    desk.draw(boardtest::rectangle, {500, 300}, {600, 400});
    QCOMPARE(desk.selection().size(), 1);
    desk.tools().choose(Tool::Pen);
    QVERIFY(desk.selection().isEmpty());
}

void TestWriting::escapeEndsTheStrokeThenTheTool()
{
    Desk desk;
    desk.hold({500, 300}, {600, 300});
    QCOMPARE(desk.page().objectCount(), 1);
    desk.key(Qt::Key_Escape);
    desk.release({600, 300});
    QCOMPARE(desk.page().objectCount(), 0);
    QCOMPARE(desk.history().count(), 0);
    QCOMPARE(desk.tools().tool(), Tool::Pen);
    desk.key(Qt::Key_Escape);
    QCOMPARE(desk.tools().tool(), Tool::Select);
    QCOMPARE(desk.scene().tool(), nullptr);
}

void TestWriting::aPenWritesBetweenPixels()
{
    Desk desk;
    QVERIFY(desk.pen(QEvent::TabletPress, {500.25, 300.5}, 0.5));
    QVERIFY(desk.pen(QEvent::TabletMove, {600.75, 300.5}, 0.5));
    QVERIFY(desk.pen(QEvent::TabletRelease, {600.75, 300.5}, 0));
    QCOMPARE(desk.page().objectCount(), 1);
    QCOMPARE(desk.placeOf(desk.stroke()), QRectF(496.25, 296.5, 108.5, 8));
}

void TestWriting::aPenIsAMouseWhereNoToolIsChosen()
{
    Desk desk;
    desk.tools().choose(Tool::Select);
    QVERIFY(!desk.pen(QEvent::TabletPress, {500, 300}, 0.5));
    QCOMPARE(desk.page().objectCount(), 0);
}

void TestWriting::theWidthOfTheSettingsIsThatOfTheNextStroke()
{
    Desk desk;
    desk.window().toolSettings()->setWidth(Tool::Pen, 10);
    desk.drag({500, 300}, {600, 300});
    QCOMPARE(desk.placeOf(desk.stroke()), QRectF(492, 292, 116, 16));
}

void TestWriting::anotherPageIsWrittenOnToo()
{
    Desk desk;
    const pagehost::Page *first = &desk.page();
    desk.workspace().document()->appendPage();
    desk.workspace().document()->setCurrentIndex(1);
    QVERIFY(&desk.page() != first);
    desk.drag({500, 300}, {600, 300});
    QCOMPARE(desk.page().objectCount(), 1);
    QCOMPARE(first->objectCount(), 0);
    QCOMPARE(first->scene()->tool(), nullptr);
}

void TestWriting::anotherToolDuringAStrokeTakesItBack()
{
    Desk desk;
    desk.hold({500, 300}, {600, 300});
    desk.tools().choose(Tool::Eraser);
    QCOMPARE(desk.page().objectCount(), 0);
    desk.release({600, 300});
    QCOMPARE(desk.history().count(), 0);
}

void TestWriting::aDoubleClickMakesTwoDots()
{
    Desk desk;
    desk.doubleClick({500, 300});
    desk.release({500, 300});
    QCOMPARE(desk.page().objectCount(), 2);
}

QTEST_MAIN(TestWriting)
#include "test_writing.moc"

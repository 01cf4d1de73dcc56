// Pen, eraser and connector in the board's window: chosen by key, used with mouse and pen.

#include "board/boarddriver.h"
#include "support/virtualtime.h"

#include <core/toolchoice.h>
#include <page/pageview.h>
#include <tools/toolsettings.h>
#include <window/mainwindow.h>

#include <pagehost/commands.h>
#include <pagehost/page.h>
#include <pagehost/pagescene.h>
#include <pagehost/pagetool.h>

#include <framework/cbaseobject.h>

#include <QtCore/QSettings>
#include <QtTest/QtTest>
#include <QtWidgets/QApplication>
#include <QtWidgets/QUndoStack>

#include <cmath>

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

    CBaseObject *stroke() { return page().objects().value(0); }
    /// Pixels across a stroke under a pressure, which is taken back; those at its edges are less dark.
    int darkAcrossAStroke(double pressure)
    {
        pen(QEvent::TabletPress, {500, 300}, pressure);
        pen(QEvent::TabletMove, {600, 300}, pressure);
        pen(QEvent::TabletRelease, {600, 300}, 0);
        const QImage seen = view().viewport()->grab().toImage();
        int dark = 0;
        for (int y = -10; y <= 10; ++y)
            dark += QColor(seen.pixel(view().mapFromScene(QPointF(550, 300)) + QPoint(0, y))).lightness() < 128;
        history().undo();
        return dark;
    }
    /// Whether the points of the stroke fill the box, but for the rounding of their coordinates and what chords are
    /// off.
    bool strokeFills(const QRectF &box)
    {
        const QRectF place = placeOf(stroke()).adjusted(4, 4, -4, -4);
        const auto isNear = [](double one, double other) { return std::abs(one - other) <= 0.12; };
        return isNear(place.left(), box.left()) && isNear(place.top(), box.top()) &&
               isNear(place.right(), box.right()) && isNear(place.bottom(), box.bottom());
    }
    /// Leaves the button down.
    void drawAlong(const QVector<QPointF> &places)
    {
        press(places.first());
        for (const QPointF &place : places)
            moveTo(place);
    }
};

/// Whole pixels that are exactly 65 from (600, 400), once around.
QVector<QPointF> ring()
{
    const QVector<QPointF> quarter{{65, 0},  {63, 16}, {60, 25}, {56, 33}, {52, 39},
                                   {39, 52}, {33, 56}, {25, 60}, {16, 63}};
    QVector<QPointF> places;
    for (const QTransform &turn : {QTransform(), QTransform(0, 1, -1, 0, 0, 0), QTransform(-1, 0, 0, -1, 0, 0),
                                   QTransform(0, -1, 1, 0, 0, 0)})
        for (const QPointF &place : quarter)
            places.append(turn.map(place) + QPointF(600, 400));
    places.append(places.constFirst());
    return places;
}

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
    void aPenThatIsPressedWritesWider();
    void pressureChangesNothingWhereItIsOff();
    void aPenHeldStillMakesItsStrokeStraight();
    void aPenHeldStillLeavesItsStrokeWhereThatIsOff();
    void aRingHeldStillBecomesACircle();
    void aBowHeldStillBecomesAnArc();
    void aZigZagHeldStillStaysAsItWasDrawn();
    void aSquareHeldStillStaysAsItWasDrawn();
    void aHeldCircleIsPulledLarger();
    void aRingThatIsReleasedAtOnceStaysAsItWasDrawn();
    void theEraserTakesWholeStrokesOrParts();
    void aConnectorFollowsItsShapes();
    void pastedConnectorsFollowPastedShapes();
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
    QCOMPARE(desk.page().objectCount(), 2);
}

void TestWriting::aPenThatIsPressedWritesWider()
{
    Desk desk;
    const int light = desk.darkAcrossAStroke(0.1);
    const int full = desk.darkAcrossAStroke(1);
    QVERIFY2(light >= 1 && full >= light + 3, qPrintable(QStringLiteral("%1 %2").arg(light).arg(full)));
}

void TestWriting::pressureChangesNothingWhereItIsOff()
{
    Desk desk;
    desk.window().toolSettings()->setUsesPressure(Tool::Pen, false);
    const int light = desk.darkAcrossAStroke(0.1);
    QVERIFY(light >= 4);
    QCOMPARE(desk.darkAcrossAStroke(1), light);
}

void TestWriting::aPenHeldStillMakesItsStrokeStraight()
{
    Desk desk;
    desk.press({500, 300});
    desk.moveTo({550, 340});
    desk.moveTo({600, 300});
    support::pass(400);
    QCOMPARE(desk.placeOf(desk.stroke()).bottom(), 344.0);
    support::pass(200);
    QCOMPARE(desk.placeOf(desk.stroke()), QRectF(496, 296, 108, 8));
    desk.release({600, 300});
    QCOMPARE(desk.history().count(), 1);
}

void TestWriting::aPenHeldStillLeavesItsStrokeWhereThatIsOff()
{
    Desk desk;
    desk.window().toolSettings()->setStraightens(Tool::Pen, false);
    desk.press({500, 300});
    desk.moveTo({550, 340});
    desk.moveTo({600, 300});
    support::pass(5000);
    QCOMPARE(desk.placeOf(desk.stroke()).bottom(), 344.0);
    desk.release({600, 300});
}

void TestWriting::aRingHeldStillBecomesACircle()
{
    Desk desk;
    desk.drawAlong(ring());
    support::pass(600);
    QVERIFY(desk.strokeFills({535, 335, 130, 130}));
    desk.release(ring().constLast());
    QVERIFY(desk.strokeFills({535, 335, 130, 130}));
    QCOMPARE(desk.history().count(), 1);
    desk.history().undo();
    QCOMPARE(desk.page().objectCount(), 0);
}

void TestWriting::aBowHeldStillBecomesAnArc()
{
    Desk desk;
    desk.drawAlong(ring().mid(0, ring().size() / 2 + 1));
    support::pass(600);
    QVERIFY(desk.strokeFills({535, 400, 130, 65}));
    // The bow is pulled along.
    desk.moveTo({405, 400});
    QVERIFY(desk.strokeFills({405, 400, 260, 130}));
    desk.release({405, 400});
    QCOMPARE(desk.history().count(), 1);
}

void TestWriting::aZigZagHeldStillStaysAsItWasDrawn()
{
    Desk desk;
    desk.drawAlong({{500, 300}, {520, 340}, {540, 300}, {560, 340}, {580, 300}});
    support::pass(600);
    QCOMPARE(desk.placeOf(desk.stroke()), QRectF(496, 296, 88, 48));
    desk.release({580, 300});
}

void TestWriting::aSquareHeldStillStaysAsItWasDrawn()
{
    Desk desk;
    const QVector<QPointF> corners{{500, 300}, {600, 300}, {600, 400}, {500, 400}, {500, 310}};
    desk.drawAlong(corners);
    const QRectF drawn = desk.placeOf(desk.stroke());
    support::pass(600);
    QCOMPARE(desk.placeOf(desk.stroke()), drawn);
    desk.release(corners.constLast());
    QCOMPARE(desk.placeOf(desk.stroke()), drawn);
}

void TestWriting::aHeldCircleIsPulledLarger()
{
    Desk desk;
    desk.drawAlong(ring());
    support::pass(600);
    desk.moveTo({730, 400});
    QVERIFY(desk.strokeFills({470, 270, 260, 260}));
    // With Shift it is a line all the same.
    desk.moveTo({765, 400}, Qt::ShiftModifier);
    QCOMPARE(desk.placeOf(desk.stroke()), QRectF(661, 396, 108, 8));
    desk.release({730, 400});
    QVERIFY(desk.strokeFills({470, 270, 260, 260}));
}

void TestWriting::aRingThatIsReleasedAtOnceStaysAsItWasDrawn()
{
    Desk desk;
    desk.drawAlong(ring());
    support::pass(400);
    desk.release(ring().constLast());
    support::pass(600);
    QCOMPARE(desk.placeOf(desk.stroke()), QRectF(531, 331, 138, 138));
}

void TestWriting::theEraserTakesWholeStrokesOrParts()
{
    Desk desk;
    desk.drag({500, 300}, {700, 300});
    const QRectF whole = desk.placeOf(desk.stroke());
    desk.key(Qt::Key_E);
    QCOMPARE(desk.tools().tool(), Tool::Eraser);
    desk.window().toolSettings()->setVariant(Tool::Eraser, pagehost::StrokeParts);
    desk.drag({600, 260}, {600, 340});
    QCOMPARE(desk.page().objectCount(), 2);
    const QRectF right = desk.placeOf(desk.page().objects().at(0));
    const QRectF left = desk.placeOf(desk.page().objects().at(1));
    QVERIFY(left.right() < 600 && right.left() > 600);
    QCOMPARE(left.united(right), whole);
    desk.history().undo();
    QCOMPARE(desk.placeOf(desk.stroke()), whole);
    desk.window().toolSettings()->setVariant(Tool::Eraser, pagehost::WholeStrokes);
    desk.drag({600, 260}, {600, 340});
    QCOMPARE(desk.page().objectCount(), 0);
    desk.history().undo();
    QCOMPARE(desk.placeOf(desk.stroke()), whole);
}

/// The line is 2 wide and has 8 of room; the outlines are 1 inside of their frames.
void TestWriting::aConnectorFollowsItsShapes()
{
    Desk desk;
    desk.draw(boardtest::rectangle, {500, 300}, {600, 360});
    desk.draw(boardtest::rectangle, {800, 300}, {900, 360});
    desk.key(Qt::Key_C);
    QCOMPARE(desk.tools().tool(), Tool::Connector);
    desk.drag({550, 330}, {850, 330});
    QCOMPARE(desk.tools().tool(), Tool::Select);
    CBaseObject *connector = desk.page().objects().last();
    QCOMPARE(desk.selection(), QVector<CBaseObject *>{connector});
    QCOMPARE(desk.placeOf(connector), QRectF(591, 322, 218, 16));
    desk.key(Qt::Key_Escape);
    desk.hold({820, 340}, {520, 540});
    QCOMPARE(desk.placeOf(connector), QRectF(542, 351, 16, 158));
    desk.release({520, 540});
    QCOMPARE(desk.history().count(), 4);
    desk.history().undo();
    QCOMPARE(desk.placeOf(connector), QRectF(591, 322, 218, 16));
}

void TestWriting::pastedConnectorsFollowPastedShapes()
{
    Desk desk;
    desk.draw(boardtest::rectangle, {500, 300}, {600, 360});
    desk.draw(boardtest::rectangle, {800, 300}, {900, 360});
    desk.key(Qt::Key_C);
    desk.drag({550, 330}, {850, 330});
    desk.key(Qt::Key_A, Qt::ControlModifier);
    desk.key(Qt::Key_C, Qt::ControlModifier);
    desk.key(Qt::Key_V, Qt::ControlModifier);
    const QVector<CBaseObject *> objects = desk.page().objects();
    QCOMPARE(objects.size(), 6);
    const QPointF offset = objects.at(3)->getPos() - objects.at(0)->getPos();
    const QRectF pasted = QRectF(591, 322, 218, 16).translated(offset);
    QCOMPARE(desk.placeOf(objects.at(5)), pasted);
    // The pasted shape 100 to the right: so much shorter is the pasted connector.
    QVERIFY(pagehost::moveObjects({objects.at(3)}, {100, 0}));
    QCOMPARE(desk.placeOf(objects.at(5)), pasted.adjusted(100, 0, 0, 0));
    QCOMPARE(desk.placeOf(objects.at(2)), QRectF(591, 322, 218, 16));
}

QTEST_MAIN(TestWriting)
#include "test_writing.moc"

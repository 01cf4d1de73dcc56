// Selecting: with clicks, with Shift, with a rubber band, and what keeps a selection.

#include <board/boarddriver.h>

#include <support/virtualtime.h>

#include <page/pageview.h>

#include <pagehost/page.h>
#include <pagehost/pagescene.h>

#include <framework/cbaseobject.h>

#include <QtTest/QtTest>

using namespace boardtest;

using Objects = QVector<CBaseObject *>;

/// Two rectangles beside each other, nothing selected.
struct TwoShapes
{
    BoardDriver board;
    CBaseObject *left = board.draw(rectangle, {400, 300}, {500, 400});
    CBaseObject *right = board.draw(rectangle, {700, 300}, {800, 400});

    TwoShapes() { board.page().select({}); }
};

class TestSelecting : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void clickSelectsOneShape();
    void clickOnAnotherShapeSelectsThatOne();
    void shiftClickAddsAndTakesAway();
    void bandSelectsWhatItTouches();
    void bandDraggedUpwardsSelectsToo();
    void bandWithShiftKeepsTheSelection();
    void bandSelectsWhileItIsDragged();
    void escapeDuringTheBandBringsTheOldSelectionBack();
    void clickOnTheEmptyPageDeselects();
    void nearMissKeepsTheSelection_data();
    void nearMissKeepsTheSelection();
    void nearMissOfAHandleKeepsTheSelection();
    void selectAllAndNothing();
    void escapeDeselects();
    void topmostShapeIsSelected();
    void controlPointsShowOnlyWhileSelected();
};

void TestSelecting::clickSelectsOneShape()
{
    TwoShapes t;
    t.board.click({450, 350});
    QCOMPARE(t.board.selection(), Objects{t.left});
}

void TestSelecting::clickOnAnotherShapeSelectsThatOne()
{
    TwoShapes t;
    t.board.click({450, 350});
    t.board.click({750, 350});
    QCOMPARE(t.board.selection(), Objects{t.right});
}

void TestSelecting::shiftClickAddsAndTakesAway()
{
    TwoShapes t;
    t.board.click({450, 350});
    t.board.click({750, 350}, Qt::ShiftModifier);
    QCOMPARE(t.board.selection(), (Objects{t.left, t.right}));
    t.board.click({450, 350}, Qt::ShiftModifier);
    QCOMPARE(t.board.selection(), Objects{t.right});
}

void TestSelecting::bandSelectsWhatItTouches()
{
    TwoShapes t;
    t.board.drag({360, 260}, {450, 350});
    QCOMPARE(t.board.selection(), Objects{t.left});
    t.board.drag({360, 260}, {720, 320});
    QCOMPARE(t.board.selection(), (Objects{t.left, t.right}));
    t.board.drag({360, 420}, {900, 460});
    QCOMPARE(t.board.selection(), Objects{});
}

void TestSelecting::bandDraggedUpwardsSelectsToo()
{
    TwoShapes t;
    t.board.drag({850, 450}, {760, 380});
    QCOMPARE(t.board.selection(), Objects{t.right});
}

void TestSelecting::bandWithShiftKeepsTheSelection()
{
    TwoShapes t;
    t.board.click({450, 350});
    t.board.drag({680, 470}, {760, 380}, Qt::ShiftModifier);
    QCOMPARE(t.board.selection(), (Objects{t.left, t.right}));
}

void TestSelecting::bandSelectsWhileItIsDragged()
{
    TwoShapes t;
    t.board.hold({360, 260}, {450, 350});
    QCOMPARE(t.board.selection(), Objects{t.left});
    t.board.moveTo({370, 270});
    QCOMPARE(t.board.selection(), Objects{});
    t.board.release({370, 270});
}

void TestSelecting::escapeDuringTheBandBringsTheOldSelectionBack()
{
    TwoShapes t;
    t.board.click({750, 350});
    t.board.hold({360, 260}, {450, 350});
    t.board.key(Qt::Key_Escape);
    QCOMPARE(t.board.selection(), Objects{t.right});
    t.board.release({450, 350});
    QCOMPARE(t.board.selection(), Objects{t.right});
}

void TestSelecting::clickOnTheEmptyPageDeselects()
{
    TwoShapes t;
    t.board.click({450, 350});
    t.board.click({600, 550});
    QCOMPARE(t.board.selection(), Objects{});
}

void TestSelecting::nearMissKeepsTheSelection_data()
{
    QTest::addColumn<QPointF>("pos");
    QTest::newRow("left of the edge") << QPointF(396, 350);
    QTest::newRow("below the edge") << QPointF(450, 404);
    QTest::newRow("beside the corner") << QPointF(505, 405);
}

void TestSelecting::nearMissKeepsTheSelection()
{
    QFETCH(QPointF, pos);
    TwoShapes t;
    t.board.click({450, 350});
    t.board.click(pos);
    QCOMPARE(t.board.selection(), Objects{t.left});
}

void TestSelecting::nearMissOfAHandleKeepsTheSelection()
{
    TwoShapes t;
    t.board.click({450, 350});
    const QPointF handle = t.board.handle(CObjAction::ACT_Rotate);
    QVERIFY(!handle.isNull());
    t.board.click(handle + QPointF(9, -6));
    QCOMPARE(t.board.selection(), Objects{t.left});
    QCOMPARE(t.left->rotation(), 0.0);
}

void TestSelecting::selectAllAndNothing()
{
    TwoShapes t;
    t.board.key(Qt::Key_A, Qt::ControlModifier);
    QCOMPARE(t.board.selection(), (Objects{t.left, t.right}));
    t.board.key(Qt::Key_A, Qt::ControlModifier | Qt::ShiftModifier);
    QCOMPARE(t.board.selection(), Objects{});
}

void TestSelecting::escapeDeselects()
{
    TwoShapes t;
    t.board.click({450, 350});
    t.board.key(Qt::Key_Escape);
    QCOMPARE(t.board.selection(), Objects{});
}

void TestSelecting::topmostShapeIsSelected()
{
    TwoShapes t;
    CBaseObject *over = t.board.draw(rectangle, {440, 340}, {560, 440});
    t.board.page().select({});
    t.board.click({470, 370});
    QCOMPARE(t.board.selection(), Objects{over});
}

void TestSelecting::controlPointsShowOnlyWhileSelected()
{
    // The outline of control points has this colour, and nothing else on the page.
    const auto countControlPixels = [](BoardDriver &board) {
        const QImage picture = board.view().viewport()->grab().toImage();
        int count = 0;
        for (int y = 0; y < picture.height(); ++y) {
            for (int x = 0; x < picture.width(); ++x) {
                const QColor color = picture.pixelColor(x, y);
                count += qAbs(color.red() - 0xb4) < 12 && qAbs(color.green() - 0x50) < 24 && color.blue() < 60;
            }
        }
        return count;
    };
    TwoShapes t;
    support::deliverEvents();
    QCOMPARE(countControlPixels(t.board), 0);
    t.board.click({450, 350});
    support::deliverEvents();
    QVERIFY(countControlPixels(t.board) > 4);
}

QTEST_MAIN(TestSelecting)
#include "test_selecting.moc"

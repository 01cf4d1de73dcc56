// Shapes without a fill, and lines, are taken at their lines.

#include <board/boarddriver.h>

#include <page/pageview.h>

#include <pagehost/page.h>
#include <pagehost/pagescene.h>
#include <pagehost/style.h>

#include <framework/cbaseobject.h>

#include <QtTest/QtTest>
#include <QtWidgets/QUndoStack>

using namespace boardtest;
using pagehost::Pointer;

using Objects = QVector<CBaseObject *>;

Q_DECLARE_METATYPE(pagehost::Pointer)

namespace {

constexpr QPointF middle(600, 360);
/// Of the upper and lower line, away from corners.
constexpr double between = 560;

void setFilled(CBaseObject *object, bool filled)
{
    pagehost::setFill({object}, filled ? Qt::yellow : Qt::transparent);
}

/// A box from (500, 300) to (700, 420) without a fill, not selected.
struct Desk : BoardDriver
{
    CBaseObject *below = nullptr;
    CBaseObject *box = nullptr;

    explicit Desk(bool withBelow = false)
    {
        if (withBelow)
            below = draw(rectangle, {400, 200}, {800, 520});
        box = draw(rectangle, {500, 300}, {700, 420});
        setFilled(box, false);
        page().select({});
    }
    CBaseObject *takenAt(const QPointF &pos, Pointer pointer) const { return scene().gripAt(pos, pointer).object; }
};

} // namespace

class TestOutlineHits : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { useOwnFolders(); }
    void aClickInsideTakesNothing();
    void aClickAtTheLineTakesTheShape_data();
    void aClickAtTheLineTakesTheShape();
    void theDeviceDecidesHowNear_data();
    void theDeviceDecidesHowNear();
    void nearTheLineTheUpperShapeIsTaken();
    void aClickInsideTakesWhatLiesBelow();
    void aLineIsTakenInPixelsOfTheScreen();
    void aFillMakesTheInsideHitAgain();
    void theSelectedShapeIsMovedFromInside();
};

void TestOutlineHits::aClickInsideTakesNothing()
{
    Desk desk;
    desk.click(middle);
    QVERIFY(desk.selection().isEmpty());
    setFilled(desk.box, true);
    desk.click(middle);
    QCOMPARE(desk.selection(), Objects{desk.box});
}

void TestOutlineHits::aClickAtTheLineTakesTheShape_data()
{
    QTest::addColumn<QPointF>("pos");
    QTest::newRow("on it") << QPointF(between, 300);
    QTest::newRow("inside of it") << QPointF(between, 305);
    QTest::newRow("outside of it") << QPointF(between, 295);
    QTest::newRow("at another side") << QPointF(700, 360);
}

void TestOutlineHits::aClickAtTheLineTakesTheShape()
{
    QFETCH(QPointF, pos);
    Desk desk;
    desk.click(pos);
    QCOMPARE(desk.selection(), Objects{desk.box});
}

void TestOutlineHits::theDeviceDecidesHowNear_data()
{
    QTest::addColumn<Pointer>("pointer");
    QTest::addColumn<double>("reached");
    QTest::addColumn<double>("missed");
    // The line itself is hit, too, a little wider than it is.
    QTest::newRow("mouse") << Pointer::Mouse << 12.0 << 16.0;
    QTest::newRow("pen") << Pointer::Pen << 14.0 << 18.0;
    QTest::newRow("finger") << Pointer::Finger << 22.0 << 26.0;
}

void TestOutlineHits::theDeviceDecidesHowNear()
{
    QFETCH(Pointer, pointer);
    QFETCH(double, reached);
    QFETCH(double, missed);
    const Desk desk;
    for (const double side : {-1.0, 1.0}) {
        QCOMPARE(desk.takenAt({between, 300 + side * reached}, pointer), desk.box);
        QCOMPARE(desk.takenAt({between, 300 + side * missed}, pointer), nullptr);
    }
}

/// Half as far as on an empty page, so that what lies below can be taken, too.
void TestOutlineHits::nearTheLineTheUpperShapeIsTaken()
{
    const Desk desk(true);
    QCOMPARE(desk.takenAt({between, 306}, Pointer::Mouse), desk.box);
    QCOMPARE(desk.takenAt({between, 310}, Pointer::Mouse), desk.below);
    QCOMPARE(desk.takenAt({between, 312}, Pointer::Finger), desk.box);
    QCOMPARE(desk.takenAt({between, 316}, Pointer::Finger), desk.below);
}

void TestOutlineHits::aClickInsideTakesWhatLiesBelow()
{
    Desk desk(true);
    desk.click(middle);
    QCOMPARE(desk.selection(), Objects{desk.below});
}

void TestOutlineHits::aLineIsTakenInPixelsOfTheScreen()
{
    const Desk desk;
    desk.view().setZoom(2);
    QCOMPARE(desk.takenAt({between, 306}, Pointer::Mouse), desk.box);
    QCOMPARE(desk.takenAt({between, 310}, Pointer::Mouse), nullptr);
}

void TestOutlineHits::aFillMakesTheInsideHitAgain()
{
    const Desk desk;
    QCOMPARE(desk.takenAt(middle, Pointer::Mouse), nullptr);
    desk.history().undo();
    QCOMPARE(desk.takenAt(middle, Pointer::Mouse), desk.box);
    desk.history().redo();
    QCOMPARE(desk.takenAt(middle, Pointer::Mouse), nullptr);
}

void TestOutlineHits::theSelectedShapeIsMovedFromInside()
{
    Desk desk;
    desk.click({between, 300});
    desk.drag(middle, middle + QPointF(40, 30));
    QCOMPARE(desk.placeOf(desk.box), QRectF(540, 330, 200, 120));
}

QTEST_MAIN(TestOutlineHits)
#include "test_outlinehits.moc"

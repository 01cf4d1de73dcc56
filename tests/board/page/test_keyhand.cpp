// The page without a mouse: keys walk its objects and their grips, and change what has the focus.

#include <board/boarddriver.h>

#include <page/controlpoints.h>
#include <page/keyhand.h>
#include <page/pageview.h>
#include <window/mainwindow.h>

#include <pagehost/page.h>
#include <pagehost/pagescene.h>

#include <framework/cbaseobject.h>

#include <QtTest/QtTest>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QUndoStack>

using namespace boardtest;

namespace {

/// A rectangle of 200 × 120 with one control point, which stands at (32, 12) and moves from 8 to 68, and an arrow
/// with two. Nothing is selected.
struct TwoShapes
{
    TwoShapes()
    {
        box = board.draw(rectangle, {500, 300}, {700, 420});
        pointer = board.draw(arrow, {800, 300}, {1000, 420});
        board.page().select({});
        board.history().clear();
    }

    void tab(int times = 1)
    {
        for (int i = 0; i < times; ++i)
            board.key(Qt::Key_Tab);
    }
    /// To the control point of the rectangle.
    void takePoint() { tab(2); }
    board::ControlPoint corner() const { return board::controlPointOf(*box, 1); }
    QString focus() const
    {
        const board::KeyHand &keys = *board.view().keys();
        if (!keys.object())
            return QStringLiteral("nothing");
        QString object = keys.object() == box ? QStringLiteral("box") : QStringLiteral("arrow");
        switch (keys.part()) {
        case board::KeyHand::Point:
            return object + QStringLiteral(" point %1").arg(keys.point());
        case board::KeyHand::Size:
            return object + QStringLiteral(" size");
        case board::KeyHand::Turn:
            return object + QStringLiteral(" turn");
        default:
            return object;
        }
    }
    QLineEdit *field() const { return board.view().findChild<QLineEdit *>(QStringLiteral("pointValue")); }
    void type(const QString &text)
    {
        board.key(static_cast<Qt::Key>(Qt::Key_0 + text.at(0).digitValue()));
        QVERIFY(field());
        QTest::keyClicks(field(), text.mid(1));
        QTest::keyClick(field(), Qt::Key_Return);
    }

    BoardDriver board;
    CBaseObject *box;
    CBaseObject *pointer;
};

} // namespace

class TestKeyHand : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void tabWalksObjectsThenTheirGrips();
    void shiftTabWalksBack();
    void controlTabWalksObjectsOnly();
    void tabLeavesAnEmptyPage();
    void lockedShapesOfferNoGrips();
    void arrowsMoveAPoint_data();
    void arrowsMoveAPoint();
    void heldArrowMovesAPointInOneStep();
    void arrowAtTheLimitTurnsAtOnce();
    void arrowsMoveAPointThatSnapsToItsNextPlace();
    void homeAndEndGoToTheLimits();
    void digitsTypeWhatAPointSets();
    void digitsTypeThePlaceOfAPointThatSaysNothing();
    void escapeWhileTypingLeavesThePoint();
    void escapeWhileAnArrowIsHeldPutsThePointBack();
    void escapeGoesBackToTheObjectThenLeavesIt();
    void arrowsChangeTheSize();
    void arrowsTurn();
    void pointsUnderOthersAreReached();
    void theRingIsSeenAroundThePoint();
};

void TestKeyHand::tabWalksObjectsThenTheirGrips()
{
    TwoShapes t;
    const QStringList expected{"box",           "box point 1",   "box size",   "box turn",  "arrow",
                               "arrow point 1", "arrow point 2", "arrow size", "arrow turn"};
    QStringList walked;
    for (int i = 0; i < expected.size(); ++i) {
        t.tab();
        walked.append(t.focus());
    }
    QCOMPARE(walked, expected);
    t.tab();
    QCOMPARE(t.focus(), QString("box"));
    QCOMPARE(t.board.history().count(), 0);
}

void TestKeyHand::shiftTabWalksBack()
{
    TwoShapes t;
    t.tab(2);
    QStringList walked;
    for (int i = 0; i < 4; ++i) {
        t.board.key(Qt::Key_Backtab, Qt::ShiftModifier);
        walked.append(t.focus());
    }
    QCOMPARE(walked, (QStringList{"box", "arrow turn", "arrow size", "arrow point 2"}));
}

void TestKeyHand::controlTabWalksObjectsOnly()
{
    TwoShapes t;
    t.tab(2);
    t.board.key(Qt::Key_Tab, Qt::ControlModifier);
    QCOMPARE(t.focus(), QString("arrow"));
    t.board.key(Qt::Key_Tab, Qt::ControlModifier);
    QCOMPARE(t.focus(), QString("box"));
    t.board.key(Qt::Key_Backtab, Qt::ControlModifier | Qt::ShiftModifier);
    QCOMPARE(t.focus(), QString("arrow"));
}

void TestKeyHand::tabLeavesAnEmptyPage()
{
    BoardDriver board;
    board.key(Qt::Key_Tab);
    QVERIFY(QApplication::focusWidget());
    QVERIFY(!board.view().hasFocus());
}

void TestKeyHand::lockedShapesOfferNoGrips()
{
    TwoShapes t;
    t.box->setLocked(true);
    t.tab(2);
    QCOMPARE(t.focus(), QString("arrow"));
}

void TestKeyHand::arrowsMoveAPoint_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<int>("modifiers");
    QTest::addColumn<double>("x");
    QTest::addColumn<QString>("hint");
    const auto row = [](const char *name, int key, int modifiers, double x, const char *hint) {
        QTest::newRow(name) << key << modifiers << x << hint;
    };
    row("right", Qt::Key_Right, Qt::NoModifier, 40, "Corner radius 32");
    row("left", Qt::Key_Left, Qt::NoModifier, 24, "Corner radius 16");
    row("left by ten steps", Qt::Key_Left, Qt::ShiftModifier, 8, "Corner radius 0");
    row("right by a pixel", Qt::Key_Right, Qt::AltModifier, 33, "Corner radius 25");
    row("down, where it does not go", Qt::Key_Down, Qt::NoModifier, 32, "Corner radius 24");
}

void TestKeyHand::arrowsMoveAPoint()
{
    QFETCH(int, key);
    QFETCH(int, modifiers);
    QFETCH(double, x);
    QFETCH(QString, hint);
    TwoShapes t;
    t.takePoint();
    t.board.key(static_cast<Qt::Key>(key), Qt::KeyboardModifiers(modifiers));
    QCOMPARE(t.corner().place, QPointF(x, 12));
    QCOMPARE(t.corner().hint, hint);
    QCOMPARE(t.board.history().count(), 1);
    QCOMPARE(t.board.placeOf(t.box), QRectF(500, 300, 200, 120));
    QCOMPARE(t.focus(), QString("box point 1"));
    t.board.key(Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(t.corner().place, QPointF(32, 12));
}

void TestKeyHand::heldArrowMovesAPointInOneStep()
{
    TwoShapes t;
    t.takePoint();
    for (int i = 0; i < 3; ++i) {
        QKeyEvent repeat(QEvent::KeyPress, Qt::Key_Right, Qt::NoModifier, QString(), i > 0);
        QApplication::sendEvent(&t.board.view(), &repeat);
    }
    QCOMPARE(t.board.history().count(), 0);
    QKeyEvent release(QEvent::KeyRelease, Qt::Key_Right, Qt::NoModifier);
    QApplication::sendEvent(&t.board.view(), &release);
    QCOMPARE(t.corner().place, QPointF(56, 12));
    QCOMPARE(t.board.history().count(), 1);
    t.board.history().undo();
    QCOMPARE(t.corner().place, QPointF(32, 12));
}

void TestKeyHand::arrowAtTheLimitTurnsAtOnce()
{
    TwoShapes t;
    t.takePoint();
    for (const Qt::Key key :
         {Qt::Key_Right, Qt::Key_Right, Qt::Key_Right, Qt::Key_Right, Qt::Key_Right, Qt::Key_Right, Qt::Key_Left}) {
        QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier);
        QApplication::sendEvent(&t.board.view(), &press);
    }
    QCOMPARE(t.corner().place, QPointF(60, 12));
}

/// The number line has ten gaps of 26.4; a new one's marker stands at 3.
void TestKeyHand::arrowsMoveAPointThatSnapsToItsNextPlace()
{
    BoardDriver board;
    CBaseObject *line = board.draw(QStringLiteral("shapes.numberline"), {100, 300}, {400, 352});
    board.page().select({});
    const auto marker = [line] { return board::controlPointOf(*line, 1).hint; };
    board.key(Qt::Key_Tab);
    board.key(Qt::Key_Tab);
    QCOMPARE(board.view().keys()->part(), board::KeyHand::Point);
    QCOMPARE(marker(), QStringLiteral("3"));
    board.key(Qt::Key_Right);
    QCOMPARE(marker(), QStringLiteral("4"));
    board.key(Qt::Key_Left, Qt::AltModifier);
    QCOMPARE(marker(), QStringLiteral("3"));
    for (int number = 2; number >= 0; --number) {
        board.key(Qt::Key_Left);
        QCOMPARE(marker(), QString::number(number));
    }
    board.key(Qt::Key_Left);
    QCOMPARE(marker(), QStringLiteral("0"));
    board.key(Qt::Key_End);
    QCOMPARE(marker(), QStringLiteral("10"));
}

void TestKeyHand::homeAndEndGoToTheLimits()
{
    TwoShapes t;
    t.takePoint();
    t.board.key(Qt::Key_End);
    QCOMPARE(t.corner().place, QPointF(68, 12));
    t.board.key(Qt::Key_Home);
    QCOMPARE(t.corner().place, QPointF(8, 12));
    QCOMPARE(t.board.history().count(), 2);
}

void TestKeyHand::digitsTypeWhatAPointSets()
{
    TwoShapes t;
    t.takePoint();
    t.type(QStringLiteral("45"));
    QCOMPARE(t.corner().hint, QString("Corner radius 45"));
    QCOMPARE(t.board.history().count(), 1);
    QVERIFY(t.board.view().hasFocus());
    t.type(QStringLiteral("900"));
    QCOMPARE(t.corner().hint, QString("Corner radius 60"));
}

void TestKeyHand::digitsTypeThePlaceOfAPointThatSaysNothing()
{
    TwoShapes t;
    t.board.page().select({t.pointer});
    t.tab();
    t.type(QStringLiteral("120; 30"));
    QCOMPARE(board::controlPointOf(*t.pointer, 1).place, QPointF(120, 30));
    QCOMPARE(t.board.history().count(), 1);
}

void TestKeyHand::escapeWhileTypingLeavesThePoint()
{
    TwoShapes t;
    t.takePoint();
    t.board.key(Qt::Key_9);
    QVERIFY(t.field());
    QTest::keyClick(t.field(), Qt::Key_Escape);
    QVERIFY(t.board.view().hasFocus());
    QCOMPARE(t.corner().place, QPointF(32, 12));
    QCOMPARE(t.board.history().count(), 0);
    QCOMPARE(t.focus(), QString("box point 1"));
}

void TestKeyHand::escapeWhileAnArrowIsHeldPutsThePointBack()
{
    TwoShapes t;
    t.takePoint();
    QKeyEvent press(QEvent::KeyPress, Qt::Key_Right, Qt::NoModifier);
    QApplication::sendEvent(&t.board.view(), &press);
    QCOMPARE(t.corner().place, QPointF(40, 12));
    t.board.key(Qt::Key_Escape);
    QCOMPARE(t.corner().place, QPointF(32, 12));
    QCOMPARE(t.board.history().count(), 0);
    QCOMPARE(t.focus(), QString("box point 1"));
}

void TestKeyHand::escapeGoesBackToTheObjectThenLeavesIt()
{
    TwoShapes t;
    t.takePoint();
    t.board.key(Qt::Key_Escape);
    QCOMPARE(t.focus(), QString("box"));
    t.board.key(Qt::Key_Escape);
    QCOMPARE(t.focus(), QString("nothing"));
}

void TestKeyHand::arrowsChangeTheSize()
{
    TwoShapes t;
    t.tab(3);
    t.board.key(Qt::Key_Right);
    QCOMPARE(t.board.placeOf(t.box), QRectF(500, 300, 208, 120));
    t.board.key(Qt::Key_Up, Qt::AltModifier);
    QCOMPARE(t.board.placeOf(t.box), QRectF(500, 300, 208, 119));
    QCOMPARE(t.board.history().count(), 2);
    t.board.key(Qt::Key_Z, Qt::ControlModifier);
    t.board.key(Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(t.board.placeOf(t.box), QRectF(500, 300, 200, 120));
}

void TestKeyHand::arrowsTurn()
{
    TwoShapes t;
    t.tab(4);
    t.board.key(Qt::Key_Right);
    QCOMPARE(t.box->rotation(), 15.0);
    t.board.key(Qt::Key_Left, Qt::ShiftModifier);
    QCOMPARE(t.box->rotation(), 285.0);
    const QPointF middle = t.box->mapToScene(t.box->getClientRect().center());
    QVERIFY(QLineF(middle, {600, 360}).length() < 1e-6);
    t.board.key(Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(t.box->rotation(), 15.0);
}

/// In a small arrow the hit areas of both points overlap, and the mouse takes the second.
void TestKeyHand::pointsUnderOthersAreReached()
{
    BoardDriver board;
    CBaseObject *small = board.draw(arrow, {500, 300}, {540, 330});
    board.page().select({small});
    board.key(Qt::Key_Tab);
    const board::ControlPoint before = board::controlPointOf(*small, 2);
    const double x = board::controlPointOf(*small, 1).place.x();
    board.key(Qt::Key_Right, Qt::AltModifier);
    QCOMPARE(board::controlPointOf(*small, 1).place.x(), x + 1);
    QCOMPARE(board::controlPointOf(*small, 2).place, before.place);
}

void TestKeyHand::theRingIsSeenAroundThePoint()
{
    TwoShapes t;
    t.tab();
    const QImage without = t.board.view().viewport()->grab().toImage();
    t.tab();
    const QImage with = t.board.view().viewport()->grab().toImage();
    const QPoint middle = t.board.view().mapFromScene(t.box->mapToScene(t.corner().place));
    const QPoint onRing = middle - QPoint(9, 0);
    QVERIFY(without.pixelColor(onRing) != QColor(0xff2563cf));
    QCOMPARE(with.pixelColor(onRing), QColor(0xff2563cf));
    // The gap.
    QCOMPARE(with.pixelColor(middle - QPoint(7, 0)), without.pixelColor(middle - QPoint(7, 0)));
}

QTEST_MAIN(TestKeyHand)
#include "test_keyhand.moc"

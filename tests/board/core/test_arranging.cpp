// Align, distribute, same size, lock, zoom to the selection; pages that are duplicated and moved.

#include <board/boarddriver.h>

#include <core/commands.h>
#include <page/pageview.h>
#include <window/mainwindow.h>

#include <pagehost/commands.h>
#include <pagehost/page.h>

#include <framework/cbaseobject.h>

#include <support/listed.h>

#include <QtTest/QtTest>
#include <QtWidgets/QAction>
#include <QtWidgets/QUndoStack>

using namespace boardtest;
using board::Command;

using Rects = QVector<QRectF>;

Q_DECLARE_METATYPE(board::Command)

/// Three rectangles, all selected.
struct Three
{
    BoardDriver board;
    QVector<CBaseObject *> shapes{board.draw(rectangle, {100, 100}, {200, 160}),
                                  board.draw(rectangle, {250, 300}, {450, 420}),
                                  board.draw(rectangle, {700, 200}, {760, 240})};
    Rects before = places();

    Three()
    {
        board.page().select(shapes);
        board.history().clear();
    }
    Rects places() const
    {
        Rects rects;
        for (const CBaseObject *shape : shapes)
            rects.append(board.placeOf(shape));
        return rects;
    }
    QAction *action(Command command) const { return board.window().commands()->action(command); }
    void run(Command command) const { action(command)->trigger(); }
};

class TestArranging : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shapesAreArranged_data();
    void shapesAreArranged();
    void turnedShapeIsAlignedByTheBoxAroundIt();
    void lockedShapeStaysAndTheOthersComeToIt();
    void alignedShapesMakeNoStep();
    void arrangingNeedsEnoughShapes();
    void lockKeyLocksAndUnlocks();
    void quarterTurnKeys();
    void selectionIsZoomedTo();
    void duplicatedPageIsACopyInOneStep();
    void pageIsMoved();
    void firstAndLastPage();
};

void TestArranging::shapesAreArranged_data()
{
    QTest::addColumn<Command>("command");
    QTest::addColumn<Rects>("places");
    // The box around all is (100, 100) to (760, 420), its middle (430, 260).
    QTest::newRow("left edges") << Command::AlignLeft
                                << Rects{{100, 100, 100, 60}, {100, 300, 200, 120}, {100, 200, 60, 40}};
    QTest::newRow("centres across") << Command::AlignCenter
                                    << Rects{{380, 100, 100, 60}, {330, 300, 200, 120}, {400, 200, 60, 40}};
    QTest::newRow("right edges") << Command::AlignRight
                                 << Rects{{660, 100, 100, 60}, {560, 300, 200, 120}, {700, 200, 60, 40}};
    QTest::newRow("top edges") << Command::AlignTop
                               << Rects{{100, 100, 100, 60}, {250, 100, 200, 120}, {700, 100, 60, 40}};
    QTest::newRow("centres down") << Command::AlignMiddle
                                  << Rects{{100, 230, 100, 60}, {250, 200, 200, 120}, {700, 240, 60, 40}};
    QTest::newRow("bottom edges") << Command::AlignBottom
                                  << Rects{{100, 360, 100, 60}, {250, 300, 200, 120}, {700, 380, 60, 40}};
    // 660 across less 360 of shapes: two gaps of 150.
    QTest::newRow("gaps across") << Command::DistributeAcross
                                 << Rects{{100, 100, 100, 60}, {350, 300, 200, 120}, {700, 200, 60, 40}};
    // 320 down less 220 of shapes: two gaps of 50; the third shape is the one in the middle.
    QTest::newRow("gaps down") << Command::DistributeDown
                               << Rects{{100, 100, 100, 60}, {250, 300, 200, 120}, {700, 210, 60, 40}};
    QTest::newRow("same size") << Command::SameSize
                               << Rects{{100, 100, 200, 120}, {250, 300, 200, 120}, {700, 200, 200, 120}};
}

void TestArranging::shapesAreArranged()
{
    QFETCH(Command, command);
    QFETCH(Rects, places);
    Three t;
    t.run(command);
    QCOMPARE(t.places(), places);
    QCOMPARE(t.board.history().count(), 1);
    t.board.key(Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(t.places(), t.before);
    t.board.key(Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
    QCOMPARE(t.places(), places);
}

void TestArranging::turnedShapeIsAlignedByTheBoxAroundIt()
{
    Three t;
    // Turned about its middle (150, 130), 100 × 60 covers (120, 80) to (180, 180).
    pagehost::rotateObjects({t.shapes[0]}, 90);
    t.board.page().select({t.shapes[0], t.shapes[1]});
    t.run(Command::AlignLeft);
    QCOMPARE(t.board.placeOf(t.shapes[1]).left(), 120.0);
    t.run(Command::AlignTop);
    QCOMPARE(t.board.placeOf(t.shapes[1]).top(), 80.0);
}

void TestArranging::lockedShapeStaysAndTheOthersComeToIt()
{
    Three t;
    pagehost::setObjectsLocked({t.shapes[2]}, true);
    t.run(Command::AlignRight);
    QCOMPARE(t.places(), (Rects{{660, 100, 100, 60}, {560, 300, 200, 120}, {700, 200, 60, 40}}));
    t.run(Command::AlignLeft);
    QCOMPARE(t.places().at(2), QRectF(700, 200, 60, 40));
    t.run(Command::SameSize);
    QCOMPARE(t.places().at(2), QRectF(700, 200, 60, 40));
}

void TestArranging::alignedShapesMakeNoStep()
{
    Three t;
    t.run(Command::AlignLeft);
    t.run(Command::AlignLeft);
    QCOMPARE(t.board.history().count(), 1);
}

void TestArranging::arrangingNeedsEnoughShapes()
{
    Three t;
    const auto enabled = [&] {
        return QVector<bool>{t.action(Command::Lock)->isEnabled(), t.action(Command::AlignTop)->isEnabled(),
                             t.action(Command::DistributeDown)->isEnabled()};
    };
    QCOMPARE(enabled(), (QVector<bool>{true, true, true}));
    t.board.page().select({t.shapes[0], t.shapes[1]});
    QCOMPARE(enabled(), (QVector<bool>{true, true, false}));
    t.board.page().select({t.shapes[0]});
    QCOMPARE(enabled(), (QVector<bool>{true, false, false}));
    t.board.page().select({});
    QCOMPARE(enabled(), (QVector<bool>{false, false, false}));
}

void TestArranging::lockKeyLocksAndUnlocks()
{
    Three t;
    pagehost::setObjectsLocked({t.shapes[0]}, true);
    t.board.key(Qt::Key_L, Qt::ControlModifier);
    for (const CBaseObject *shape : support::listed(t.shapes))
        QVERIFY(shape->isLocked());
    QCOMPARE(t.action(Command::Lock)->text(), QString("Unlock"));
    t.board.key(Qt::Key_L, Qt::ControlModifier);
    for (const CBaseObject *shape : support::listed(t.shapes))
        QVERIFY(!shape->isLocked());
    QCOMPARE(t.action(Command::Lock)->text(), QString("Lock"));
    t.board.key(Qt::Key_Z, Qt::ControlModifier);
    QVERIFY(t.shapes[1]->isLocked());
}

void TestArranging::quarterTurnKeys()
{
    Three t;
    t.board.page().select({t.shapes[0]});
    t.board.key(Qt::Key_R, Qt::ControlModifier);
    QCOMPARE(t.shapes[0]->rotation(), 90.0);
    t.board.key(Qt::Key_R, Qt::ControlModifier | Qt::ShiftModifier);
    t.board.key(Qt::Key_R, Qt::ControlModifier | Qt::ShiftModifier);
    QCOMPARE(t.shapes[0]->rotation(), 270.0);
}

void TestArranging::selectionIsZoomedTo()
{
    Three t;
    t.board.page().select({t.shapes[1]});
    t.board.key(Qt::Key_8, Qt::ControlModifier);
    board::PageView &view = t.board.view();
    const QSizeF room = view.viewport()->size();
    QCOMPARE(view.zoom(), qMin(room.width() * 0.9 / 200, room.height() * 0.9 / 120));
    const QPoint middle = view.mapFromScene(QPointF(350, 360));
    // Views scroll by whole pixels.
    const QPointF offCentre = QPointF(middle) - QPointF(room.width() / 2, room.height() / 2);
    QVERIFY(qAbs(offCentre.x()) <= 1 && qAbs(offCentre.y()) <= 1);
}

void TestArranging::duplicatedPageIsACopyInOneStep()
{
    Three t;
    pagehost::Document &document = *t.board.workspace().document();
    CPageBgProp yellow = document.page(0)->background();
    yellow.setFillColor(Qt::yellow);
    document.page(0)->setBackground(yellow);
    t.board.key(Qt::Key_D, Qt::ControlModifier | Qt::ShiftModifier);
    QCOMPARE(document.pageCount(), 2);
    QCOMPARE(document.currentIndex(), 1);
    QCOMPARE(t.board.history().count(), 1);
    Rects copies;
    for (const CBaseObject *shape : support::listed(t.board.page().objects()))
        copies.append(t.board.placeOf(shape));
    QCOMPARE(copies, t.before);
    QCOMPARE(t.board.page().background().fillColor(), QColor(Qt::yellow));
    QVERIFY(t.board.selection().isEmpty());
    t.board.key(Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(document.pageCount(), 1);
    QCOMPARE(t.places(), t.before);
}

void TestArranging::pageIsMoved()
{
    Three t;
    pagehost::Document &document = *t.board.workspace().document();
    const pagehost::Page *drawn = document.page(0);
    t.run(Command::AddPage);
    QVERIFY(!t.action(Command::MovePageOn)->isEnabled());
    t.run(Command::MovePageBack);
    QCOMPARE(document.indexOf(drawn), 1);
    QCOMPARE(document.currentIndex(), 0);
    QVERIFY(!t.action(Command::MovePageBack)->isEnabled());
    t.run(Command::MovePageOn);
    QCOMPARE(document.indexOf(drawn), 0);
    QCOMPARE(document.currentIndex(), 1);
}

void TestArranging::firstAndLastPage()
{
    Three t;
    const pagehost::Document &document = *t.board.workspace().document();
    t.run(Command::AddPage);
    t.run(Command::AddPage);
    t.board.key(Qt::Key_Home, Qt::ControlModifier);
    QCOMPARE(document.currentIndex(), 0);
    QVERIFY(!t.action(Command::FirstPage)->isEnabled());
    t.board.key(Qt::Key_End, Qt::ControlModifier);
    QCOMPARE(document.currentIndex(), 2);
    QVERIFY(!t.action(Command::LastPage)->isEnabled());
}

QTEST_MAIN(TestArranging)
#include "test_arranging.moc"

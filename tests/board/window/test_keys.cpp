// Effects of keys on the selection: nudging, deleting, duplicating, order, mirroring, and the history.

#include <board/boarddriver.h>

#include <core/actions.h>
#include <page/pageview.h>
#include <panels/historylist.h>
#include <panels/historypanel.h>
#include <window/mainwindow.h>

#include <pagehost/page.h>

#include <framework/cbaseobject.h>

#include <support/listed.h>

#include <QtTest/QtTest>
#include <QtWidgets/QAction>
#include <QtWidgets/QDoubleSpinBox>
#include <QtWidgets/QUndoStack>

using namespace boardtest;

using Objects = QVector<CBaseObject *>;

/// One selected rectangle, 200 × 120 at (500, 300).
struct OneShape
{
    BoardDriver board;
    CBaseObject *shape = board.draw(rectangle, {500, 300}, {700, 420});

    QRectF place() const { return board.placeOf(shape); }
    void undo() { board.key(Qt::Key_Z, Qt::ControlModifier); }
    void redo() { board.key(Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier); }
};

class TestKeys : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void arrowKeysNudge_data();
    void arrowKeysNudge();
    void arrowKeysMoveByTheGrid();
    void heldArrowKeyIsOneStep();
    void arrowKeysLeaveLockedShapesAlone();
    void deleteRemovesTheSelection();
    void duplicateMakesASelectedCopy();
    void orderKeys();
    void mirrorKeys();
    void lettersChangeNoShape();
    void keysWorkWithoutADesktopTheme_data();
    void keysWorkWithoutADesktopTheme();
    void actionsAreDisabledWithoutASelection();
    void historyShowsWordsInTheUsersLanguage_data();
    void historyShowsWordsInTheUsersLanguage();
    void clickInTheHistoryGoesBack();
    void arrowsInTheHistoryGoBackAndForth();
    void undoRightAfterTypingAWidthTakesItBack();
    void undoWhileTypingTakesTheTypingBack();
};

void TestKeys::arrowKeysNudge_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<int>("modifiers");
    QTest::addColumn<QPointF>("pos");
    QTest::newRow("left") << int(Qt::Key_Left) << int(Qt::NoModifier) << QPointF(492, 300);
    QTest::newRow("right") << int(Qt::Key_Right) << int(Qt::NoModifier) << QPointF(508, 300);
    QTest::newRow("up") << int(Qt::Key_Up) << int(Qt::NoModifier) << QPointF(500, 292);
    QTest::newRow("down") << int(Qt::Key_Down) << int(Qt::NoModifier) << QPointF(500, 308);
    QTest::newRow("left by ten steps") << int(Qt::Key_Left) << int(Qt::ShiftModifier) << QPointF(420, 300);
    QTest::newRow("down by ten steps") << int(Qt::Key_Down) << int(Qt::ShiftModifier) << QPointF(500, 380);
    QTest::newRow("right by a pixel") << int(Qt::Key_Right) << int(Qt::AltModifier) << QPointF(501, 300);
}

void TestKeys::arrowKeysNudge()
{
    QFETCH(int, key);
    QFETCH(int, modifiers);
    QFETCH(QPointF, pos);
    OneShape t;
    t.board.key(static_cast<Qt::Key>(key), Qt::KeyboardModifiers(modifiers));
    QCOMPARE(t.place(), QRectF(pos, QSizeF(200, 120)));
    QCOMPARE(t.board.history().count(), 2);
    t.undo();
    QCOMPARE(t.place(), QRectF(500, 300, 200, 120));
    t.redo();
    QCOMPARE(t.place(), QRectF(pos, QSizeF(200, 120)));
}

void TestKeys::arrowKeysMoveByTheGrid()
{
    OneShape t;
    t.board.key(Qt::Key_G);
    t.board.key(Qt::Key_Right);
    QCOMPARE(t.place().topLeft(), QPointF(532, 300));
    t.board.key(Qt::Key_Down, Qt::ShiftModifier);
    QCOMPARE(t.place().topLeft(), QPointF(532, 620));
    t.board.key(Qt::Key_Up, Qt::AltModifier);
    QCOMPARE(t.place().topLeft(), QPointF(532, 619));
}

void TestKeys::heldArrowKeyIsOneStep()
{
    OneShape t;
    for (int i = 0; i < 5; ++i) {
        QKeyEvent repeat(QEvent::KeyPress, Qt::Key_Right, Qt::NoModifier, QString(), i > 0);
        QApplication::sendEvent(&t.board.view(), &repeat);
    }
    QKeyEvent release(QEvent::KeyRelease, Qt::Key_Right, Qt::NoModifier);
    QApplication::sendEvent(&t.board.view(), &release);
    QCOMPARE(t.place().topLeft(), QPointF(540, 300));
    QCOMPARE(t.board.history().count(), 2);
    t.undo();
    QCOMPARE(t.place().topLeft(), QPointF(500, 300));
}

void TestKeys::arrowKeysLeaveLockedShapesAlone()
{
    OneShape t;
    t.shape->setLocked(true);
    t.board.key(Qt::Key_Right);
    QCOMPARE(t.place().topLeft(), QPointF(500, 300));
    QCOMPARE(t.board.history().count(), 1);
}

void TestKeys::deleteRemovesTheSelection()
{
    OneShape t;
    CBaseObject *other = t.board.draw(arrow, {800, 300}, {900, 400});
    t.board.click({600, 360});
    t.board.key(Qt::Key_Delete);
    QCOMPARE(t.board.page().objects(), Objects{other});
    t.undo();
    QCOMPARE(t.board.page().objects(), (Objects{t.shape, other}));
    t.redo();
    QCOMPARE(t.board.page().objects(), Objects{other});
}

void TestKeys::duplicateMakesASelectedCopy()
{
    OneShape t;
    t.board.key(Qt::Key_D, Qt::ControlModifier);
    QCOMPARE(t.board.page().objectCount(), 2);
    CBaseObject *copy = t.board.page().objects().last();
    QCOMPARE(t.board.selection(), Objects{copy});
    QCOMPARE(t.board.placeOf(copy), QRectF(520, 320, 200, 120));
    QCOMPARE(copy->getHostFillBrush(), t.shape->getHostFillBrush());
    QCOMPARE(t.board.history().count(), 2);
    QVERIFY(t.board.window().actions()->undo->text().endsWith("Duplicate"));
    t.undo();
    QCOMPARE(t.board.page().objects(), Objects{t.shape});
    t.redo();
    QCOMPARE(t.board.page().objectCount(), 2);
}

void TestKeys::orderKeys()
{
    OneShape t;
    CBaseObject *middle = t.board.draw(arrow, {800, 300}, {900, 400});
    CBaseObject *top = t.board.draw(polygon, {300, 300}, {400, 400});
    t.board.page().select({t.shape});
    const auto order = [&] { return t.board.page().objects(); };
    t.board.key(Qt::Key_BracketRight, Qt::ControlModifier);
    QCOMPARE(order(), (Objects{middle, t.shape, top}));
    t.board.key(Qt::Key_BracketRight, Qt::ControlModifier | Qt::ShiftModifier);
    QCOMPARE(order(), (Objects{middle, top, t.shape}));
    t.board.key(Qt::Key_BracketLeft, Qt::ControlModifier);
    QCOMPARE(order(), (Objects{middle, t.shape, top}));
    t.board.key(Qt::Key_BracketLeft, Qt::ControlModifier | Qt::ShiftModifier);
    QCOMPARE(order(), (Objects{t.shape, middle, top}));
    t.undo();
    QCOMPARE(order(), (Objects{middle, t.shape, top}));
    t.redo();
    QCOMPARE(order(), (Objects{t.shape, middle, top}));
}

void TestKeys::mirrorKeys()
{
    OneShape t;
    t.board.key(Qt::Key_M, Qt::ControlModifier);
    QVERIFY(t.shape->isMirrored() && !t.shape->isFlipped());
    t.board.key(Qt::Key_M, Qt::ControlModifier | Qt::ShiftModifier);
    QVERIFY(t.shape->isMirrored() && t.shape->isFlipped());
    t.undo();
    QVERIFY(t.shape->isMirrored() && !t.shape->isFlipped());
}

void TestKeys::lettersChangeNoShape()
{
    OneShape t;
    for (int key = Qt::Key_A; key <= Qt::Key_Z; ++key) {
        t.board.page().select({t.shape});
        t.board.key(static_cast<Qt::Key>(key));
        t.board.key(Qt::Key_Escape);
        t.board.key(static_cast<Qt::Key>(key), Qt::ShiftModifier);
        t.board.key(Qt::Key_Escape);
    }
    QCOMPARE(t.board.history().count(), 1);
    QVERIFY(!t.shape->isMirrored() && !t.shape->isFlipped());
    QCOMPARE(t.place(), QRectF(500, 300, 200, 120));
}

void TestKeys::keysWorkWithoutADesktopTheme_data()
{
    QTest::addColumn<QString>("action");
    QTest::addColumn<QString>("keys");
    QTest::newRow("undo") << "undo"
                          << "Ctrl+Z";
    QTest::newRow("redo") << "redo"
                          << "Ctrl+Shift+Z";
    QTest::newRow("quit") << "quit"
                          << "Ctrl+Q";
    QTest::newRow("select all") << "selectAll"
                                << "Ctrl+A";
    QTest::newRow("deselect") << "deselect"
                              << "Ctrl+Shift+A";
    QTest::newRow("delete") << "remove"
                            << "Del";
    QTest::newRow("duplicate") << "duplicate"
                               << "Ctrl+D";
    QTest::newRow("zoom in") << "zoomIn"
                             << "Ctrl++";
    QTest::newRow("zoom out") << "zoomOut"
                              << "Ctrl+-";
}

void TestKeys::keysWorkWithoutADesktopTheme()
{
    QFETCH(QString, action);
    QFETCH(QString, keys);
    BoardDriver board;
    const board::Actions *actions = board.window().actions();
    const QHash<QString, QAction *> byName{
        {"undo", actions->undo},           {"redo", actions->redo},         {"quit", actions->quit},
        {"selectAll", actions->selectAll}, {"deselect", actions->deselect}, {"remove", actions->remove},
        {"duplicate", actions->duplicate}, {"zoomIn", actions->zoomIn},     {"zoomOut", actions->zoomOut}};
    QVERIFY(byName.value(action)->shortcuts().contains(QKeySequence(keys)));
}

void TestKeys::actionsAreDisabledWithoutASelection()
{
    OneShape t;
    const board::Actions *actions = t.board.window().actions();
    QVERIFY(actions->remove->isEnabled() && actions->toFront->isEnabled());
    t.board.click({300, 600});
    QVERIFY(!actions->remove->isEnabled() && !actions->toFront->isEnabled());
    QVERIFY(!actions->redo->isEnabled() && actions->undo->isEnabled());
}

void TestKeys::historyShowsWordsInTheUsersLanguage_data()
{
    QTest::addColumn<QString>("language");
    QTest::addColumn<QStringList>("words");
    QTest::newRow("English") << "en" << QStringList{"Start", "Add", "Move with keys", "Mirror", "Delete"};
    QTest::newRow("German") << "de"
                            << QStringList{"Anfang", "Hinzufügen", "Mit Tasten verschieben", "Spiegeln", "Löschen"};
}

void TestKeys::historyShowsWordsInTheUsersLanguage()
{
    QFETCH(QString, language);
    QFETCH(QStringList, words);
    BoardDriver board(language);
    board.draw(rectangle, {500, 300}, {700, 420});
    board.key(Qt::Key_Right);
    board.key(Qt::Key_M, Qt::ControlModifier);
    board.key(Qt::Key_Delete);
    const QAbstractItemModel &rows = *board.window().findChild<board::HistoryPanel *>()->list()->model();
    QStringList shown;
    for (int row = 0; row < rows.rowCount(); ++row)
        shown.append(rows.index(row, 0).data().toString());
    QCOMPARE(shown, words);
    QVERIFY(board.window().actions()->undo->text().endsWith(words.last()));
}

void TestKeys::clickInTheHistoryGoesBack()
{
    OneShape t;
    t.board.key(Qt::Key_Right);
    t.board.key(Qt::Key_Right);
    auto *panel = t.board.window().findChild<board::HistoryPanel *>();
    t.board.window().raisePanel(panel);
    QCoreApplication::processEvents();
    board::HistoryList &list = *panel->list();
    QCOMPARE(list.currentIndex().row(), 3);
    const QModelIndex drawn = list.model()->index(1, 0);
    t.board.clickOn(list.viewport(), list.visualRect(drawn).center());
    QCOMPARE(t.place().topLeft(), QPointF(500, 300));
    QCOMPARE(t.board.history().index(), 1);
    // A step that was taken back can still be chosen.
    QCOMPARE(list.model()->rowCount(), 4);
    t.redo();
    QCOMPARE(list.currentIndex().row(), 2);
    QVERIFY(list.selectionModel()->isRowSelected(2, QModelIndex()));
}

void TestKeys::arrowsInTheHistoryGoBackAndForth()
{
    OneShape t;
    t.board.key(Qt::Key_Right);
    auto *panel = t.board.window().findChild<board::HistoryPanel *>();
    t.board.window().raisePanel(panel);
    panel->list()->setFocus();
    t.board.keyIn(panel->list(), Qt::Key_Up);
    QCOMPARE(t.place().topLeft(), QPointF(500, 300));
    t.board.keyIn(panel->list(), Qt::Key_Up);
    QCOMPARE(t.board.page().objectCount(), 0);
    t.board.keyIn(panel->list(), Qt::Key_End);
    QCOMPARE(t.place().topLeft(), QPointF(508, 300));
}

/// The field for the width in the panel that is in front, its text selected.
QDoubleSpinBox *widthField(const BoardDriver &board)
{
    QCoreApplication::processEvents();
    for (QDoubleSpinBox *box : support::listed(board.window().findChildren<QDoubleSpinBox *>())) {
        if (box->accessibleName() == "Width" && box->isVisible()) {
            board.window().activateWindow();
            box->setFocus();
            box->selectAll();
            return box;
        }
    }
    return nullptr;
}

/// The cursor is still in the field, which has nothing to take back itself.
void TestKeys::undoRightAfterTypingAWidthTakesItBack()
{
    OneShape t;
    QDoubleSpinBox *field = widthField(t.board);
    QTest::keyClicks(field, "300");
    QTest::keyClick(field, Qt::Key_Return);
    QCOMPARE(t.place(), QRectF(500, 300, 300, 120));
    QTest::keyClick(field, Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(t.place(), QRectF(500, 300, 200, 120));
    QTest::keyClick(field, Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
    QCOMPARE(t.place(), QRectF(500, 300, 300, 120));
}

void TestKeys::undoWhileTypingTakesTheTypingBack()
{
    OneShape t;
    const int steps = t.board.history().index();
    QDoubleSpinBox *field = widthField(t.board);
    const QString before = field->text();
    QTest::keyClicks(field, "3");
    QCOMPARE(field->text(), QString("3 px"));
    QTest::keyClick(field, Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(field->text(), before);
    QCOMPARE(t.board.history().index(), steps);
    QCOMPARE(t.place(), QRectF(500, 300, 200, 120));
}

QTEST_MAIN(TestKeys)
#include "test_keys.moc"

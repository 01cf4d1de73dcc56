// The bar at the selection: where it stands, when it is out of the way, and what it changes.

#include <board/boarddriver.h>

#include <support/listed.h>
#include <support/virtualtime.h>

#include <core/commands.h>
#include <core/toolchoice.h>
#include <page/pageview.h>
#include <panels/colorbutton.h>
#include <panels/settings/settingspanel.h>
#include <panels/widthbutton.h>
#include <window/drawer.h>
#include <window/mainwindow.h>
#include <window/stylebar.h>
#include <window/stylebarplace.h>

#include <pagehost/commands.h>
#include <pagehost/page.h>
#include <pagehost/style.h>

#include <framework/cbaseobject.h>

#include <QtCore/QSettings>
#include <QtTest/QtTest>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QDoubleSpinBox>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QMenu>
#include <QtWidgets/QStyleOptionComboBox>
#include <QtWidgets/QUndoStack>

using namespace boardtest;

/// The frame lies between pixels.
constexpr double roundingPixels = 2;

QString nameOf(const QWidget &widget)
{
    const auto *button = qobject_cast<const QAbstractButton *>(&widget);
    return button && widget.accessibleName().isEmpty() ? button->text() : widget.accessibleName();
}

/// A board whose panel is closed, with one selected shape, 200 × 120 at (500, 300).
struct StyledShape
{
    explicit StyledShape(const QString &kind = rectangle)
    {
        board.window().panel()->setOpen(false);
        shape = board.draw(kind, {500, 300}, {700, 420});
        support::deliverEvents();
        steps = board.history().count();
    }

    bool isShown()
    {
        support::deliverEvents();
        return bar->isVisible();
    }
    /// Of the bar, in scene units; at 100 % they are pixels.
    QRectF place() const
    {
        const QPointF corner = board.view().mapToScene(bar->pos() - board.view().viewport()->pos());
        return {corner, QSizeF(bar->size())};
    }
    template<typename Control = QToolButton> Control *control(const QString &name)
    {
        support::deliverEvents();
        for (Control *candidate : bar->findChildren<Control *>())
            if ((nameOf(*candidate) == name) && candidate->isVisible())
                return candidate;
        return nullptr;
    }
    pagehost::ObjectStyle style() const { return pagehost::styleOf(shape); }
    int newSteps() const { return board.history().count() - steps; }

    BoardDriver board;
    CBaseObject *shape = nullptr;
    int steps = 0;
    board::StyleBar *bar = board.window().findChild<board::StyleBar *>();
};

class TestStyleBar : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void place_data();
    void place();
    void barStandsAboveTheSelectedShape();
    void barGoesBelowAShapeWhoseNeighbourIsAbove();
    void barOfAShapeAtTheTopOfAZoomedPageStaysInTheView();
    void nothingSelectedNeedsNoBar();
    void barIsHiddenWhileAShapeIsDragged();
    void barIsHiddenWhileAnArrowKeyMoves();
    void barIsHiddenWhileThePanelIsOpen();
    void barIsHiddenWhileATextIsWritten();
    void barIsHiddenWhileAnotherToolIsInUse();
    void fillIsChosenInTheBar();
    void fillOfATransparentShapeBecomesPlain();
    void outlineAndWidthAreChosenInTheBar();
    void firstSettingIsTypedInTheBar();
    void orderIsChosenInTheBar();
    void duplicateAndLockAreInTheBar();
    void restOfTheMenuIsInTheBar();
    void coloursThatDifferAreShownAsADash();
    void aChoiceShowsItsLongestText();
};

void TestStyleBar::init()
{
    useOwnFolders();
    QSettings().clear();
}

void TestStyleBar::place_data()
{
    QTest::addColumn<QRect>("frame");
    QTest::addColumn<QRect>("other");
    QTest::addColumn<QRect>("wanted");
    // A bar of 200 × 40 in a room of 1000 × 600, 12 from the frame.
    QTest::newRow("above") << QRect(400, 300, 100, 80) << QRect() << QRect(350, 248, 200, 40);
    QTest::newRow("a neighbour above") << QRect(400, 300, 100, 80) << QRect(360, 200, 50, 60)
                                       << QRect(350, 392, 200, 40);
    QTest::newRow("neighbours above and below")
        << QRect(400, 300, 100, 80) << QRect(390, 0, 20, 600) << QRect(350, 248, 200, 40);
    QTest::newRow("at the top") << QRect(400, 10, 100, 80) << QRect() << QRect(350, 102, 200, 40);
    QTest::newRow("at the top with a neighbour below")
        << QRect(400, 10, 100, 80) << QRect(400, 110, 100, 80) << QRect(350, 102, 200, 40);
    QTest::newRow("as high as the room") << QRect(400, 0, 100, 600) << QRect() << QRect(350, 0, 200, 40);
    QTest::newRow("at the left") << QRect(10, 300, 40, 80) << QRect() << QRect(0, 248, 200, 40);
    QTest::newRow("at the right") << QRect(950, 300, 40, 80) << QRect() << QRect(800, 248, 200, 40);
    QTest::newRow("at the bottom") << QRect(400, 560, 100, 80) << QRect() << QRect(350, 508, 200, 40);
}

void TestStyleBar::place()
{
    QFETCH(QRect, frame);
    QFETCH(QRect, other);
    board::StyleBarSurroundings around;
    around.room = QRect(0, 0, 1000, 600);
    around.frame = frame;
    around.selection = {frame};
    if (!other.isNull())
        around.others = {other};
    QTEST(board::styleBarPlace({200, 40}, around), "wanted");
}

/// The turn grip stands 26 above the frame, which is 6 around the shape; its upper edge is 8 higher.
void TestStyleBar::barStandsAboveTheSelectedShape()
{
    StyledShape t;
    QVERIFY(t.isShown());
    QCOMPARE(t.place().bottom(), 300.0 - 6 - 28 - 10 - 12);
    QCOMPARE(t.place().height(), 40.0);
    QVERIFY(qAbs(t.place().center().x() - 600) <= roundingPixels);
}

void TestStyleBar::barGoesBelowAShapeWhoseNeighbourIsAbove()
{
    StyledShape t;
    t.board.draw(rectangle, {500, 180}, {700, 250});
    t.board.click({600, 360});
    QVERIFY(t.isShown());
    // The frame is 6 around the shape, the grips at its corners are 9 large.
    QVERIFY(qAbs(t.place().top() - (420 + 6 + 4.5 + 12)) <= roundingPixels);
}

void TestStyleBar::barOfAShapeAtTheTopOfAZoomedPageStaysInTheView()
{
    StyledShape t;
    t.board.view().setZoom(4);
    t.board.view().centerOn(t.shape->sceneBoundingRect().center());
    QVERIFY(t.isShown());
    const QRect room = t.board.view().viewport()->geometry();
    QVERIFY(room.contains(t.bar->geometry()));
}

void TestStyleBar::nothingSelectedNeedsNoBar()
{
    StyledShape t;
    t.board.key(Qt::Key_Escape);
    QVERIFY(!t.isShown());
    t.board.click({600, 360});
    QVERIFY(t.isShown());
}

void TestStyleBar::barIsHiddenWhileAShapeIsDragged()
{
    StyledShape t;
    QVERIFY(t.isShown());
    t.board.press({600, 360});
    QVERIFY(t.isShown());
    t.board.moveTo({650, 400});
    QVERIFY(!t.isShown());
    t.board.release({650, 400});
    QVERIFY(t.isShown());
    QVERIFY(qAbs(t.place().center().x() - 650) <= roundingPixels);
}

void TestStyleBar::barIsHiddenWhileAnArrowKeyMoves()
{
    StyledShape t;
    QTest::keyPress(&t.board.view(), Qt::Key_Right);
    QVERIFY(!t.isShown());
    QTest::keyRelease(&t.board.view(), Qt::Key_Right);
    QVERIFY(t.isShown());
}

void TestStyleBar::barIsHiddenWhileThePanelIsOpen()
{
    StyledShape t;
    t.board.key(Qt::Key_F4);
    QVERIFY(!t.isShown());
    t.board.key(Qt::Key_F4);
    QVERIFY(t.isShown());
}

void TestStyleBar::barIsHiddenWhileATextIsWritten()
{
    StyledShape t;
    t.board.key(Qt::Key_T);
    t.board.click({200, 200});
    QVERIFY(t.board.view().isWriting());
    t.board.window().tools()->choose(board::Tool::Select);
    QVERIFY(!t.isShown());
    t.board.view().settle();
    t.board.click({600, 360});
    QVERIFY(t.isShown());
}

void TestStyleBar::barIsHiddenWhileAnotherToolIsInUse()
{
    StyledShape t;
    t.board.key(Qt::Key_P);
    QVERIFY(!t.isShown());
    t.board.key(Qt::Key_V);
    t.board.click({600, 360});
    QVERIFY(t.isShown());
}

void TestStyleBar::fillIsChosenInTheBar()
{
    StyledShape t;
    Q_EMIT t.control<board::ColorButton>("Fill colour")->colorPicked(QColor(10, 200, 30, 128));
    QCOMPARE(t.style().fill.color(), QColor(10, 200, 30, 128));
    QCOMPARE(t.newSteps(), 1);
    QCOMPARE(t.control<board::ColorButton>("Fill colour")->color(), QColor(10, 200, 30, 128));
    t.board.key(Qt::Key_Z, Qt::ControlModifier);
    QVERIFY(t.style().fill.color() != QColor(10, 200, 30, 128));
}

void TestStyleBar::fillOfATransparentShapeBecomesPlain()
{
    StyledShape t;
    CPageBgProp none = *t.shape->getFillProp();
    none.setFillEnable(false);
    pagehost::setObjectsFill({t.shape}, none);
    Q_EMIT t.control<board::ColorButton>("Fill colour")->colorPicked(QColor(10, 200, 30));
    QCOMPARE(t.style().fill.color(), QColor(10, 200, 30));
    QVERIFY(t.shape->getFillProp()->isFillEnable());
}

void TestStyleBar::outlineAndWidthAreChosenInTheBar()
{
    StyledShape t;
    Q_EMIT t.control<board::ColorButton>("Outline colour")->colorPicked(QColor(200, 10, 20));
    QCOMPARE(t.style().penColor, QColor(200, 10, 20));
    const auto *width = t.control<board::WidthButton>("Outline width");
    for (QAction *action : support::listed(width->menu()->actions()))
        if (action->text() == "6 px")
            action->trigger();
    QCOMPARE(t.style().penWidth, 6);
    QCOMPARE(t.newSteps(), 2);
}

void TestStyleBar::firstSettingIsTypedInTheBar()
{
    StyledShape t(QStringLiteral("shapes.star"));
    QVERIFY(t.isShown());
    auto *field = t.control<QDoubleSpinBox>("Corners");
    QVERIFY(field);
    field->setFocus();
    field->selectAll();
    QTest::keyClicks(field, "7");
    QTest::keyClick(field, Qt::Key_Return);
    QCOMPARE(t.newSteps(), 1);
    support::deliverEvents();
    QCOMPARE(field->value(), 7.0);
    t.board.window().commands()->action(board::Command::Undo)->trigger();
    support::deliverEvents();
    QVERIFY(field->value() != 7.0);
}

void TestStyleBar::orderIsChosenInTheBar()
{
    StyledShape t;
    t.board.draw(rectangle, {900, 300}, {1000, 420});
    t.board.click({600, 360});
    QCOMPARE(t.board.page().indexOf(t.shape), 0);
    for (QAction *action : support::listed(t.control("Order")->menu()->actions()))
        if (action->text() == "Bring to front")
            action->trigger();
    QCOMPARE(t.board.page().indexOf(t.shape), 1);
}

void TestStyleBar::duplicateAndLockAreInTheBar()
{
    StyledShape t;
    QTest::mouseClick(t.control("Lock"), Qt::LeftButton);
    QVERIFY(t.shape->isLocked());
    QTest::mouseClick(t.control("Unlock"), Qt::LeftButton);
    QVERIFY(!t.shape->isLocked());
    QTest::mouseClick(t.control("Duplicate"), Qt::LeftButton);
    QCOMPARE(t.board.page().objectCount(), 2);
}

void TestStyleBar::restOfTheMenuIsInTheBar()
{
    StyledShape t;
    QStringList texts;
    for (const QAction *action : support::listed(t.control("More")->menu()->actions()))
        texts.append(action->text());
    QVERIFY(texts.contains("Copy look"));
    QVERIFY(texts.contains("Delete"));
}

void TestStyleBar::coloursThatDifferAreShownAsADash()
{
    StyledShape t;
    Q_EMIT t.control<board::ColorButton>("Outline colour")->colorPicked(QColor(200, 10, 20));
    t.board.draw(rectangle, {900, 300}, {1000, 420});
    t.board.click({600, 360}, Qt::ShiftModifier);
    QVERIFY(t.isShown());
    QCOMPARE(t.board.selection().size(), 2);
    QVERIFY(t.control<board::ColorButton>("Outline colour")->isMixed());
    QVERIFY(!t.control<board::ColorButton>("Fill colour")->isMixed());
}

void TestStyleBar::aChoiceShowsItsLongestText()
{
    StyledShape t;
    t.board.key(Qt::Key_L);
    t.board.drag({300, 600}, {700, 600});
    QVERIFY(t.isShown());
    const auto *box = t.bar->findChild<QComboBox *>();
    QVERIFY(box && box->isVisible());
    QStyleOptionComboBox option;
    option.initFrom(box);
    option.iconSize = box->iconSize();
    const int room =
        box->style()->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxEditField, box).width();
    int widest = 0;
    for (int entry = 0; entry < box->count(); ++entry)
        widest = qMax(widest, box->fontMetrics().horizontalAdvance(box->itemText(entry)));
    QVERIFY(box->count() > 1);
    QVERIFY2(room >= widest, qPrintable(QStringLiteral("%1 of %2 pixels").arg(room).arg(widest)));
}

QTEST_MAIN(TestStyleBar)
#include "test_stylebar.moc"

// The outline in the panel: rows, eyes, locks, names, order and groups.

#include <board/boarddriver.h>

#include <core/selecting.h>
#include <look/contrast.h>
#include <look/theme.h>
#include <panels/outlinepanel.h>
#include <panels/outlinetree.h>
#include <panels/settings/settingspanel.h>
#include <window/mainwindow.h>

#include <pagehost/page.h>

#include <framework/cbaseobject.h>

#include <QtGui/QPainter>
#include <QtTest/QtTest>
#include <QtWidgets/QLabel>
#include <QtWidgets/QScrollBar>
#include <QtWidgets/QUndoStack>

#include <algorithm>

using namespace boardtest;
using board::OutlineTree;

using Objects = QVector<CBaseObject *>;

namespace {

/// A rectangle, a group of a rectangle and an arrow, and a rectangle on top; nothing is selected.
struct Outline
{
    BoardDriver board;
    Objects shapes{board.draw(rectangle, {100, 100}, {200, 160}), board.draw(rectangle, {250, 300}, {450, 420}),
                   board.draw(arrow, {500, 300}, {600, 360}), board.draw(rectangle, {700, 200}, {760, 240})};
    OutlineTree *tree = nullptr;

    Outline()
    {
        auto *panel = board.window().findChild<board::OutlinePanel *>();
        board.window().raisePanel(panel);
        tree = panel->tree();
        board.page().select(shapes.mid(1, 2));
        board.key(Qt::Key_G, Qt::ControlModifier);
        board.page().select({});
        board.history().clear();
        settle();
    }
    /// The panel follows in the next turn of the event loop.
    void settle() const
    {
        QCoreApplication::processEvents();
        QCoreApplication::processEvents();
    }
    QStringList rows(const QTreeWidgetItem *parent = nullptr) const
    {
        QStringList texts;
        const QTreeWidgetItem *above = parent ? parent : tree->invisibleRootItem();
        for (int i = 0; i < above->childCount(); ++i)
            texts.append(above->child(i)->text(OutlineTree::NameColumn));
        return texts;
    }
    QPoint place(QTreeWidgetItem *item, OutlineTree::Column column) const
    {
        const QRect row = tree->visualItemRect(item);
        const int x =
            column == OutlineTree::NameColumn ? row.left() + 20 : tree->columnViewportPosition(column) + 10;
        return {x, row.center().y()};
    }
    void click(QTreeWidgetItem *item, OutlineTree::Column column = OutlineTree::NameColumn) const
    {
        const QPoint pos = place(item, column);
        board.user().press(tree->viewport(), pos, Qt::NoModifier);
        board.user().release(tree->viewport(), pos, Qt::NoModifier);
        settle();
    }
    QTreeWidgetItem *row(int index) const { return tree->topLevelItem(index); }
    void rename(QTreeWidgetItem *item, const QString &name) const
    {
        tree->setCurrentItem(item);
        tree->setFocus();
        QTest::keyClick(tree, Qt::Key_F2);
        QWidget *editor = QApplication::focusWidget();
        QTest::keyClick(editor, Qt::Key_A, Qt::ControlModifier);
        QTest::keyClick(editor, Qt::Key_Delete);
        QTest::keyClicks(editor, name);
        QTest::keyClick(editor, Qt::Key_Return);
        settle();
    }
};

/// With more rows than fit.
struct LongOutline : Outline
{
    LongOutline()
    {
        for (int copies = 0; copies < 5; ++copies) {
            board.key(Qt::Key_A, Qt::ControlModifier);
            board.key(Qt::Key_D, Qt::ControlModifier);
        }
        board.page().select({});
        settle();
    }
    int last() const { return tree->topLevelItemCount() - 1; }
    QRect area() const { return tree->viewport()->rect(); }
    int scrolled() const { return tree->verticalScrollBar()->value(); }
};

} // namespace

class TestOutline : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { board::applyTheme(board::Theme::Light); }
    void topmostObjectComesFirstAndGroupsHoldTheirMembers();
    void rowOfAGroupSelectsItsObjects();
    void rowOfAMemberSelectsItAloneAndEntersItsGroup();
    void selectionOfThePageIsShown();
    void eyeHidesWithoutSelecting();
    void lockLocksTheGroup();
    void keyRenamesAnObject();
    void namesOfGroupsAndTheirKind();
    void nameStandsInThePanelsHead();
    void droppedRowChangesOrderAndGroup();
    void draggedRowGoesWhereItIsDropped();
    void spaceBarPressesTheEye();
    void pressedRowStaysWhileThePanelFollows();
    void rowOfTheSelectedObjectIsScrolledTo();
    void topmostOfSeveralSelectedRowsIsScrolledTo();
    void rowsStayWhereTheyAreWhenNothingElseIsSelected();
    void foldedGroupOpensForItsSelectedMember();
    void eyeAndLockStandOutFromTheirRow_data();
    void eyeAndLockStandOutFromTheirRow();
};

void TestOutline::topmostObjectComesFirstAndGroupsHoldTheirMembers()
{
    const Outline t;
    QCOMPARE(t.rows(), (QStringList{"Rounded rectangle", "Group (2)", "Rounded rectangle"}));
    QCOMPARE(t.rows(t.row(1)), (QStringList{"Block arrow", "Rounded rectangle"}));
    QVERIFY(t.row(1)->isExpanded());
    QCOMPARE(t.row(1)->child(1)->toolTip(OutlineTree::NameColumn), QString("Rounded rectangle"));
}

void TestOutline::rowOfAGroupSelectsItsObjects()
{
    const Outline t;
    t.click(t.row(1));
    QCOMPARE(t.board.selection(), t.shapes.mid(1, 2));
}

void TestOutline::rowOfAMemberSelectsItAloneAndEntersItsGroup()
{
    Outline t;
    t.click(t.row(1)->child(0));
    QCOMPARE(t.board.selection(), Objects{t.shapes[2]});
    t.board.click({350, 360});
    QCOMPARE(t.board.selection(), Objects{t.shapes[1]});
}

void TestOutline::selectionOfThePageIsShown()
{
    Outline t;
    t.board.click({550, 330});
    t.settle();
    QCOMPARE(t.tree->selectedItems(), QList<QTreeWidgetItem *>{t.row(1)});
    t.board.click({150, 130});
    t.settle();
    QCOMPARE(t.tree->selectedItems(), QList<QTreeWidgetItem *>{t.row(2)});
}

void TestOutline::eyeHidesWithoutSelecting()
{
    Outline t;
    t.click(t.row(2), OutlineTree::EyeColumn);
    QVERIFY(!t.shapes[0]->QGraphicsItem::isVisible());
    QCOMPARE(t.board.selection(), Objects{});
    t.click(t.row(2), OutlineTree::EyeColumn);
    QVERIFY(t.shapes[0]->QGraphicsItem::isVisible());
    QCOMPARE(t.board.history().count(), 2);
}

void TestOutline::lockLocksTheGroup()
{
    const Outline t;
    t.click(t.row(1), OutlineTree::LockColumn);
    QVERIFY(t.shapes[1]->isLocked() && t.shapes[2]->isLocked());
    QVERIFY(!t.shapes[0]->isLocked() && !t.shapes[3]->isLocked());
}

void TestOutline::keyRenamesAnObject()
{
    Outline t;
    t.rename(t.row(0), QStringLiteral("Moon"));
    QCOMPARE(t.shapes[3]->getObjName(), QStringLiteral("Moon"));
    QCOMPARE(t.rows().at(0), QStringLiteral("Moon"));
    QCOMPARE(t.board.history().count(), 1);
    t.board.history().undo();
    t.settle();
    QCOMPARE(t.rows().at(0), QStringLiteral("Rounded rectangle"));
}

void TestOutline::namesOfGroupsAndTheirKind()
{
    Outline t;
    t.rename(t.row(1), QStringLiteral("Car"));
    QCOMPARE(t.rows().at(1), QStringLiteral("Car"));
    // The kind is no name.
    t.rename(t.row(1), QStringLiteral("Group (2)"));
    QCOMPARE(t.board.page().grouping().groups().constFirst().name, QString());
    t.rename(t.row(1), QString());
    QCOMPARE(t.rows().at(1), QStringLiteral("Group (2)"));
}

void TestOutline::nameStandsInThePanelsHead()
{
    Outline t;
    t.rename(t.row(0), QStringLiteral("Moon"));
    t.board.window().raisePanel(t.board.window().settings());
    t.board.click({730, 220});
    t.settle();
    const QList<QLabel *> labels = t.board.window().findChildren<QLabel *>();
    QVERIFY(std::any_of(labels.begin(), labels.end(),
                        [](const QLabel *label) { return label->isVisible() && label->text() == "Moon"; }));
}

void TestOutline::droppedRowChangesOrderAndGroup()
{
    Outline t;
    t.click(t.row(0));
    // Between the arrow and the rectangle of the group.
    Q_EMIT t.tree->rowsDropped(t.row(1), t.row(1)->child(1));
    t.settle();
    QCOMPARE(t.board.page().objects(), (Objects{t.shapes[0], t.shapes[1], t.shapes[3], t.shapes[2]}));
    QCOMPARE(t.rows(), (QStringList{"Group (3)", "Rounded rectangle"}));
    QCOMPARE(t.board.history().count(), 1);
}

/// Offscreen there is no drag and drop: there the tree tells of a drop as it does after one.
void TestOutline::draggedRowGoesWhereItIsDropped()
{
    Outline t;
    t.click(t.row(2));
    const QPoint from = t.place(t.row(2), OutlineTree::NameColumn);
    const QPoint aboveAll(from.x(), t.tree->visualItemRect(t.row(0)).top() + 1);
    if (!t.board.user().dragAndDrop(t.tree->viewport(), from, aboveAll))
        Q_EMIT t.tree->rowsDropped(nullptr, t.row(0));
    t.settle();
    QCOMPARE(t.board.page().objects(), (Objects{t.shapes[1], t.shapes[2], t.shapes[3], t.shapes[0]}));
    QCOMPARE(t.rows(), (QStringList{"Rounded rectangle", "Rounded rectangle", "Group (2)"}));
    QCOMPARE(t.board.history().count(), 1);
    t.board.key(Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(t.board.page().objects(), t.shapes);
}

void TestOutline::spaceBarPressesTheEye()
{
    Outline t;
    t.tree->setCurrentItem(t.row(2));
    t.settle();
    t.tree->setCurrentItem(t.row(2));
    QTest::keyClick(t.tree, Qt::Key_Space);
    QVERIFY(!t.shapes[0]->QGraphicsItem::isVisible());
}

/// Otherwise it could not be dragged.
void TestOutline::pressedRowStaysWhileThePanelFollows()
{
    Outline t;
    const QTreeWidgetItem *row = t.row(0);
    t.click(t.row(0));
    t.click(t.row(2));
    QVERIFY(t.row(0) == row);
    QCOMPARE(t.board.selection(), Objects{t.shapes[0]});
}

void TestOutline::rowOfTheSelectedObjectIsScrolledTo()
{
    LongOutline t;
    const auto isSeen = [&](int row) { return t.area().contains(t.tree->visualItemRect(t.row(row))); };
    QVERIFY(isSeen(0) && !isSeen(t.last()));
    t.board.page().select({t.shapes[0]});
    t.settle();
    QVERIFY(isSeen(t.last()));
    t.board.page().select({t.board.page().objects().last()});
    t.settle();
    QVERIFY(isSeen(0));
}

void TestOutline::topmostOfSeveralSelectedRowsIsScrolledTo()
{
    LongOutline t;
    t.board.page().select({t.shapes[0]});
    t.settle();
    QVERIFY(t.scrolled() > 0);
    t.board.page().select(t.board.page().objects());
    t.settle();
    QCOMPARE(t.scrolled(), 0);
}

void TestOutline::rowsStayWhereTheyAreWhenNothingElseIsSelected()
{
    LongOutline t;
    t.board.page().select({t.shapes[0]});
    t.settle();
    const int bottom = t.scrolled();
    QVERIFY(bottom > 0);
    // An eye makes the rows anew.
    t.click(t.row(t.last()), OutlineTree::EyeColumn);
    QCOMPARE(t.scrolled(), bottom);
    t.tree->verticalScrollBar()->setValue(0);
    t.board.page().noteChange();
    t.settle();
    QCOMPARE(t.scrolled(), 0);
}

void TestOutline::foldedGroupOpensForItsSelectedMember()
{
    Outline t;
    t.row(1)->setExpanded(false);
    board::selectMembers(t.board.page(), {t.shapes[1]});
    t.settle();
    QVERIFY(t.row(1)->isExpanded());
    QVERIFY(t.row(1)->child(1)->isSelected());
    // It stays open when the rows are made anew.
    t.click(t.row(0), OutlineTree::EyeColumn);
    QVERIFY(t.row(1)->isExpanded());
}

void TestOutline::eyeAndLockStandOutFromTheirRow_data()
{
    QTest::addColumn<int>("theme");
    QTest::newRow("light") << int(board::Theme::Light);
    QTest::newRow("dark") << int(board::Theme::Dark);
    QTest::newRow("high contrast") << int(board::Theme::HighContrast);
}

void TestOutline::eyeAndLockStandOutFromTheirRow()
{
    QFETCH(int, theme);
    const Outline t;
    board::applyTheme(board::Theme(theme));
    // Of pixels in the picture of a row's button, so large that lines cover some of them wholly.
    const auto countOf = [&](QTreeWidgetItem *row, OutlineTree::Column column, const QColor &color) {
        const QRect line = t.tree->visualItemRect(row);
        const QRect cell(t.tree->columnViewportPosition(column), line.top(), t.tree->columnWidth(column),
                         line.height());
        constexpr int magnified = 4;
        QImage picture(cell.size() * magnified, QImage::Format_RGB32);
        QPainter painter(&picture);
        painter.scale(magnified, magnified);
        t.tree->viewport()->render(&painter, QPoint(), cell);
        int count = 0;
        for (int y = 0; y < picture.height(); ++y)
            for (int x = 0; x < picture.width(); ++x)
                count += picture.pixelColor(x, y) == color ? 1 : 0;
        return count;
    };
    t.click(t.row(0));
    const board::ThemeColors colors = board::themeColors();
    for (const OutlineTree::Column column : {OutlineTree::EyeColumn, OutlineTree::LockColumn}) {
        QVERIFY(countOf(t.row(0), column, colors.accent) > 1000);
        QVERIFY(countOf(t.row(0), column, colors.onAccent) > 100);
        QVERIFY(countOf(t.row(2), column, colors.bar) > 1000);
        QVERIFY(countOf(t.row(2), column, colors.text) > 100);
    }
    QVERIFY(board::contrastOf(colors.onAccent, colors.accent) >= 3);
    QVERIFY(board::contrastOf(colors.text, colors.bar) >= 3);
}

QTEST_MAIN(TestOutline)
#include "test_outline.moc"

// The panel beside the page: its rows, its sections, and what it says while there is nothing.

#include <board/boarddriver.h>

#include <support/virtualtime.h>

#include <core/mnemonics.h>
#include <core/toolchoice.h>
#include <objects/objectpictures.h>
#include <page/pageview.h>
#include <panels/fields/captionedrow.h>
#include <panels/fields/numberfield.h>
#include <panels/historypanel.h>
#include <panels/objecthead.h>
#include <panels/outlinepanel.h>
#include <panels/properties/propertypanel.h>
#include <panels/settings/settingspanel.h>
#include <window/drawer.h>
#include <window/mainwindow.h>
#include <window/objectpanel.h>

#include <pagehost/outline.h>
#include <pagehost/page.h>

#include <QtCore/QSettings>
#include <QtTest/QtTest>
#include <QtWidgets/QtWidgets>

using namespace boardtest;

namespace {

const QString star = QStringLiteral("shapes.star");

QLabel *label(const QWidget &part, const QString &text)
{
    const QList<QLabel *> labels = part.findChildren<QLabel *>();
    for (QLabel *candidate : labels)
        if (candidate->isVisible() && candidate->text() == text)
            return candidate;
    return nullptr;
}

QRect placeIn(const QWidget &window, const QWidget *widget)
{
    return {widget->mapTo(&window, QPoint()), widget->size()};
}

/// Of everything in the panel that can be seen.
QVector<QRect> placesIn(const QWidget &panel)
{
    QVector<QRect> places;
    const QList<QWidget *> widgets = panel.findChildren<QWidget *>();
    for (const QWidget *widget : widgets)
        if (widget->isVisible())
            places.append(placeIn(panel, widget));
    return places;
}

} // namespace

class TestSidePanel : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void headTellsTheShapeWithAPictureOfItsKind();
    void headTellsTheNameAndTheKindOfANamedShape();
    void headTellsHowManyObjectsThereAre();
    void headTellsTextsWithoutAPicture();
    void headHasTheMenuOfTheObject();
    void captionsStandBesideTheirFields();
    void aLongCaptionStandsAboveItsField();
    void aCaptionGoesAboveWhenItsFontGrows();
    void severalObjectsAreAlignedByButtons();
    void squeezedPanelComesBackWhole();
    void rowsEndBeforeTheScrollBar_data();
    void rowsEndBeforeTheScrollBar();
    void newBoardSaysHowToBeginAndAFullOneDoesnt();
    void outlineAndHistorySayWhatWillBeThere();
    void lessonMenuSaysHowToRecordUntilThereIsALesson();
};

void TestSidePanel::init()
{
    useOwnFolders();
    QSettings().clear();
}

void TestSidePanel::headTellsTheShapeWithAPictureOfItsKind()
{
    BoardDriver board;
    const board::ObjectHead &head = *board.window().findChild<board::ObjectPanel *>()->head();
    QCOMPARE(head.title()->text(), QString("Page"));
    QVERIFY(!head.picture()->isVisible());
    board.draw(star, {500, 300}, {700, 500});
    support::deliverEvents();
    QCOMPARE(head.title()->text(), QString("Star"));
    QCOMPARE(head.title()->font().pixelSize(), 15);
    QVERIFY(!head.kind()->isVisible());
    QVERIFY(head.picture()->isVisible());
    QCOMPARE(head.picture()->size(), QSize(28, 28));
    QCOMPARE(head.picture()->pixmap(Qt::ReturnByValue).toImage(),
             board::pictureOfKind(board.workspace().registry(), star, {28, 28}, 1).toImage());
    QVERIFY(placeIn(head, head.picture()).right() < placeIn(head, head.title()).left());
    board.page().select({});
    support::deliverEvents();
    QCOMPARE(head.title()->text(), QString("Page"));
    QVERIFY(!head.picture()->isVisible());
}

void TestSidePanel::headTellsTheNameAndTheKindOfANamedShape()
{
    BoardDriver board;
    CBaseObject *shape = board.draw(star, {500, 300}, {700, 500});
    pagehost::renameObject(&board.page(), shape, "Sun");
    support::deliverEvents();
    const board::ObjectHead &head = *board.window().findChild<board::ObjectPanel *>()->head();
    QCOMPARE(head.title()->text(), QString("Sun"));
    QVERIFY(head.kind()->isVisible());
    QCOMPARE(head.kind()->text(), QString("Star"));
    QVERIFY(placeIn(head, head.kind()).top() > placeIn(head, head.title()).bottom());
    board.key(Qt::Key_Z, Qt::ControlModifier);
    support::deliverEvents();
    QCOMPARE(head.title()->text(), QString("Star"));
    QVERIFY(!head.kind()->isVisible());
}

void TestSidePanel::headTellsHowManyObjectsThereAre()
{
    BoardDriver board;
    board.draw(star, {300, 200}, {400, 260});
    board.draw(rectangle, {600, 400}, {720, 480});
    board.key(Qt::Key_A, Qt::ControlModifier);
    support::deliverEvents();
    const board::ObjectHead &head = *board.window().findChild<board::ObjectPanel *>()->head();
    QCOMPARE(head.title()->text(), QString("2 objects"));
    QVERIFY(!head.picture()->isVisible() && !head.kind()->isVisible());
}

/// Before it is written, it looks like nothing.
void TestSidePanel::headTellsTextsWithoutAPicture()
{
    BoardDriver board;
    board.window().tools()->choose(board::Tool::Text);
    board.click({500, 300});
    board.type(board.window().focusWidget(), "Sun");
    board.keyIn(board.window().focusWidget(), Qt::Key_Escape);
    QCOMPARE(board.selection().size(), 1);
    support::deliverEvents();
    const board::ObjectHead &head = *board.window().findChild<board::ObjectPanel *>()->head();
    QCOMPARE(head.title()->text(), QString("Text"));
    QVERIFY(!head.picture()->isVisible());
}

void TestSidePanel::headHasTheMenuOfTheObject()
{
    BoardDriver board;
    board.draw(star, {500, 300}, {700, 500});
    support::deliverEvents();
    const board::ObjectPanel &panel = *board.window().findChild<board::ObjectPanel *>();
    QToolButton *more = nullptr;
    const QList<QToolButton *> buttons = panel.findChildren<QToolButton *>();
    for (auto *button : buttons)
        if (button->toolTip() == "More" && button->menu())
            more = button;
    QVERIFY(more && more->isVisible());
    QCOMPARE(placeIn(panel, more).top(), placeIn(panel, panel.head()).top());
    QStringList entries;
    const QList<QAction *> actions = more->menu()->actions();
    for (const QAction *action : actions)
        entries.append(board::withoutMnemonic(action->text()));
    QVERIFY(entries.contains("Duplicate") && entries.contains("Delete"));
    board.page().select({});
    support::deliverEvents();
    QVERIFY(!more->isVisible());
}

void TestSidePanel::captionsStandBesideTheirFields()
{
    BoardDriver board;
    board.draw(star, {500, 300}, {700, 500});
    support::deliverEvents();
    const QWidget &panel = *board.window().panel();
    const QRect caption = placeIn(panel, label(panel, "Corners"));
    const QRect field = placeIn(panel, board.window().settings()->findChild<QSlider *>());
    QCOMPARE(caption.width(), 72);
    QCOMPARE(field.left(), caption.right() + 1 + 8);
    QVERIFY(qAbs(field.center().y() - caption.center().y()) <= 1);
    // All share the column.
    for (const char *other : {"Fill", "Outline", "Width", "Opacity"}) {
        const QRect place = placeIn(panel, label(panel, other));
        QCOMPARE(place.left(), caption.left());
        QCOMPARE(place.width(), 72);
    }
}

void TestSidePanel::aLongCaptionStandsAboveItsField()
{
    auto *field = new QSpinBox;
    board::CaptionedRow row("A caption that is longer than its column", field);
    row.resize(260, row.sizeHint().height());
    row.show();
    const auto *caption = row.findChild<QLabel *>();
    QVERIFY(caption->geometry().bottom() < field->geometry().top());
    QCOMPARE(field->geometry().left(), 0);
    QCOMPARE(field->width(), 260);
}

void TestSidePanel::aCaptionGoesAboveWhenItsFontGrows()
{
    auto *field = new QSpinBox;
    board::CaptionedRow row("Width", field);
    row.resize(260, 100);
    row.show();
    QVERIFY(field->geometry().left() > 0);
    QFont font = row.font();
    font.setPixelSize(48);
    row.setFont(font);
    support::deliverEvents();
    QCOMPARE(field->geometry().left(), 0);
}

void TestSidePanel::severalObjectsAreAlignedByButtons()
{
    BoardDriver board;
    CBaseObject *one = board.draw(rectangle, {300, 200}, {400, 260});
    CBaseObject *other = board.draw(rectangle, {600, 400}, {720, 480});
    support::deliverEvents();
    const auto button = [&] {
        const QList<QToolButton *> buttons = board.window().panel()->findChildren<QToolButton *>();
        for (auto *candidate : buttons)
            if (candidate->defaultAction() && candidate->defaultAction()->text() == "Align left edges")
                return candidate;
        return static_cast<QToolButton *>(nullptr);
    };
    QVERIFY(button() && !button()->isVisible());
    board.key(Qt::Key_A, Qt::ControlModifier);
    support::deliverEvents();
    QVERIFY(button()->isVisible());
    QTest::mouseClick(button(), Qt::LeftButton);
    QCOMPARE(board.placeOf(one), QRectF(300, 200, 100, 60));
    QCOMPARE(board.placeOf(other), QRectF(300, 400, 120, 80));
}

void TestSidePanel::rowsEndBeforeTheScrollBar_data()
{
    QTest::addColumn<QString>("language");
    QTest::newRow("English") << "en";
    QTest::newRow("German") << "de";
}

void TestSidePanel::rowsEndBeforeTheScrollBar()
{
    QFETCH(QString, language);
    BoardDriver board(language);
    board.draw(star, {500, 300}, {700, 500});
    const auto *panel = board.window().findChild<board::ObjectPanel *>();
    support::deliverEvents();
    QVERIFY(!panel->verticalScrollBar()->isVisible());
    const int width = board.window().settings()->width();
    board.window().raisePanel(board.window().properties());
    board.window().resize(1024, 600);
    support::deliverEvents();
    QVERIFY(panel->verticalScrollBar()->isVisible());
    const QVector<QRect> places = placesIn(*panel->widget());
    QVERIFY(places.size() > 40);
    for (const QRect &place : places)
        QVERIFY(place.right() < panel->viewport()->width());
    QCOMPARE(board.window().settings()->width(), width);
}

void TestSidePanel::squeezedPanelComesBackWhole()
{
    BoardDriver board;
    board.draw(star, {500, 300}, {700, 500});
    support::deliverEvents();
    const QWidget &panel = *board.window().panel();
    const QVector<QRect> before = placesIn(panel);
    QVERIFY(before.size() > 40);
    for (const QSize &small : {QSize(960, 540), QSize(700, 400), QSize(1000, 300)}) {
        board.window().resize(small);
        support::deliverEvents();
        const QList<board::NumberField *> fields = board.window().settings()->findChildren<board::NumberField *>();
        for (const auto *field : fields)
            QVERIFY(panel.rect().right() >= placeIn(panel, field).right());
    }
    board.window().resize(1700, 1100);
    support::deliverEvents();
    QCOMPARE(placesIn(panel), before);
}

/// Left and right of the middle of the page, where the sentence is.
void TestSidePanel::newBoardSaysHowToBeginAndAFullOneDoesnt()
{
    BoardDriver board;
    const auto isPlain = [&] {
        support::deliverEvents();
        const QImage picture = board.view().viewport()->grab().toImage();
        const QPoint middle = board.view().mapFromScene(board.page().rect().center());
        for (int x = -150; x <= 150; ++x)
            for (int y = -100; y <= 100; ++y)
                if (picture.pixelColor(middle + QPoint(x, y)) != QColor(Qt::white))
                    return false;
        return true;
    };
    QVERIFY(!isPlain());
    board.key(Qt::Key_N, Qt::ControlModifier | Qt::ShiftModifier);
    QCOMPARE(board.workspace().document()->pageCount(), 2);
    QVERIFY(isPlain());
    board.key(Qt::Key_PageUp);
    QVERIFY(isPlain());
}

void TestSidePanel::outlineAndHistorySayWhatWillBeThere()
{
    BoardDriver board;
    board.window().raisePanel(board.window().findChild<board::OutlinePanel *>());
    support::deliverEvents();
    QVERIFY(label(*board.window().panel(), "Nothing on this page yet."));
    board.window().raisePanel(board.window().findChild<board::HistoryPanel *>());
    support::deliverEvents();
    QVERIFY(label(*board.window().panel(), "Changes will be listed here."));
    board.draw(star, {500, 300}, {700, 500});
    support::deliverEvents();
    QVERIFY(!label(*board.window().panel(), "Changes will be listed here."));
    board.window().raisePanel(board.window().findChild<board::OutlinePanel *>());
    support::deliverEvents();
    QVERIFY(!label(*board.window().panel(), "Nothing on this page yet."));
}

void TestSidePanel::lessonMenuSaysHowToRecordUntilThereIsALesson()
{
    BoardDriver board;
    QMenu *menu = nullptr;
    const QList<QAction *> titles = board.window().menus()->actions();
    for (QAction *title : titles)
        if (title->text() == "&Lesson")
            menu = title->menu();
    QVERIFY(menu);
    const QString sentence = "Press F9 and teach: all you do is recorded.";
    const auto isSaid = [&] {
        Q_EMIT menu->aboutToShow();
        const QList<QAction *> entries = menu->actions();
        for (const QAction *entry : entries)
            if (entry->isVisible() && entry->text() == sentence)
                return true;
        return false;
    };
    QVERIFY(isSaid());
    board.key(Qt::Key_F9);
    support::pass(200);
    board.key(Qt::Key_F9);
    QVERIFY(!isSaid());
}

QTEST_MAIN(TestSidePanel)
#include "test_sidepanel.moc"

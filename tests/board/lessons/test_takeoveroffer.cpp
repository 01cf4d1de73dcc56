// Tools while a lesson is shown: they are grey, and a press on one offers to take the page over.

#include <board/boarddriver.h>
#include <board/readerdriver.h>

#include <core/notices.h>
#include <core/toolchoice.h>
#include <lessons/lessoncontroller.h>
#include <look/dockbutton.h>
#include <look/theme.h>
#include <page/pageview.h>
#include <window/dock.h>
#include <window/drawer.h>
#include <window/mainwindow.h>
#include <window/pencolors.h>
#include <window/shelf.h>

#include <pagehost/page.h>

#include <support/listed.h>
#include <support/virtualtime.h>

#include <QtTest/QtTest>
#include <QtWidgets/QFileDialog>
#include <QtWidgets/QLabel>
#include <QtWidgets/QMenu>
#include <QtWidgets/QPushButton>

using namespace boardtest;
using board::LessonController;
using board::Tool;

namespace {

constexpr int halfSecond = 500;
const QString question = QStringLiteral("A lesson stays as it is. Take the page over to use “%1” on it.");

/// A lesson of a rectangle that is drawn after half a second, shown at its end.
struct Classroom
{
    explicit Classroom(const QString &language = QStringLiteral("en"))
        : driver(language)
    {
        lessons().recordOrStop();
        support::pass(halfSecond);
        driver.draw(rectangle, {300, 200}, {420, 280});
        lessons().recordOrStop();
        tools().choose(Tool::Select);
        lessons().seek(lessons().duration());
        support::deliverEvents();
    }
    LessonController &lessons() const { return *driver.window().lessons(); }
    board::ToolChoice &tools() const { return *driver.window().tools(); }
    board::Dock &dock() const { return *driver.window().dock(); }
    pagehost::Document &document() { return *driver.workspace().document(); }
    void press(board::DockButton *button)
    {
        driver.clickOn(button);
        support::deliverEvents();
    }
    void press(Tool tool) { press(dock().buttonOf(tool)); }
    /// Of all notices, a line each.
    QStringList questions() const
    {
        QStringList texts;
        for (const QLabel *label : support::listed(driver.window().notices()->findChildren<QLabel *>()))
            if (label->isVisible() && !label->text().isEmpty())
                texts.append(label->text());
        return texts;
    }
    QPushButton *answer(const QString &text = QStringLiteral("Take over")) const
    {
        for (QPushButton *button : support::listed(driver.window().notices()->findChildren<QPushButton *>()))
            if (button->isVisible() && button->text() == text)
                return button;
        return nullptr;
    }
    void takeOver()
    {
        QVERIFY(answer());
        driver.clickOn(answer());
        support::deliverEvents();
    }
    QColor middleOf(Tool tool) const
    {
        const QImage picture = dock().buttonOf(tool)->grab().toImage();
        return picture.pixelColor(4, picture.height() / 2);
    }

    BoardDriver driver;
};

} // namespace

class TestTakeOverOffer : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { useOwnFolders(); }
    void pressOnAGreyToolOffersTheShownPage();
    void pageIsTakenOverAndThePressedToolChosen();
    void strokeGoesOnThePageThatWasTakenOver();
    void pressOnTheChosenToolDoesNotKeepIt();
    void shapesOpenOnceThePageIsTakenOver();
    void fileIsAskedForOnceThePageIsTakenOver();
    void fingerOnAGreyTool();
    void keysOnAGreyTool_data();
    void keysOnAGreyTool();
    void anotherToolTakesThePlaceOfTheFirst();
    void playingPausesUntilItIsAnswered();
    void refusedOfferLeavesTheLesson();
    void offerGoesWithTheLesson();
    void toolsLookGreyOnlyWhileALessonIsShown();
    void coloursOfTheToolAreAwayWhileALessonIsShown();
    void foldedToolOffersToo();
    void coloursInTheBarWait();
    void offerIsSaidToReaders();
    void offerSpeaksGerman();
};

void TestTakeOverOffer::pressOnAGreyToolOffersTheShownPage()
{
    Classroom room;
    QVERIFY(room.questions().isEmpty());
    room.press(Tool::Pen);
    QCOMPARE(room.questions(), QStringList(question.arg("Pen")));
    QVERIFY(room.answer());
    QVERIFY(room.lessons().isShowing());
    QCOMPARE(room.tools().tool(), Tool::Select);
    QVERIFY(!room.dock().buttonOf(Tool::Pen)->isChecked());
    QCOMPARE(room.document().pageCount(), 1);
}

void TestTakeOverOffer::pageIsTakenOverAndThePressedToolChosen()
{
    Classroom room;
    room.press(Tool::Pen);
    room.takeOver();
    QVERIFY(!room.lessons().isShowing());
    QCOMPARE(room.document().pageCount(), 2);
    QCOMPARE(room.document().currentIndex(), 1);
    QCOMPARE(room.driver.page().objectCount(), 1);
    QCOMPARE(room.tools().tool(), Tool::Pen);
    QVERIFY(!room.tools().isKept());
    QVERIFY(room.dock().buttonOf(Tool::Pen)->isChecked());
    QVERIFY(room.questions().isEmpty());
    QVERIFY(room.driver.view().hasFocus());
}

void TestTakeOverOffer::strokeGoesOnThePageThatWasTakenOver()
{
    Classroom room;
    room.press(Tool::Pen);
    room.takeOver();
    room.driver.drag({600, 400}, {800, 500});
    QCOMPARE(room.document().page(1)->objectCount(), 2);
    QCOMPARE(room.document().page(0)->objectCount(), 1);
}

void TestTakeOverOffer::pressOnTheChosenToolDoesNotKeepIt()
{
    Classroom room;
    room.lessons().close();
    room.tools().choose(Tool::Text);
    room.lessons().seek(0);
    room.press(Tool::Text);
    QVERIFY(!room.tools().isKept());
    room.takeOver();
    QCOMPARE(room.tools().tool(), Tool::Text);
    QVERIFY(!room.tools().isKept());
    room.press(Tool::Text);
    QVERIFY(room.tools().isKept());
}

void TestTakeOverOffer::shapesOpenOnceThePageIsTakenOver()
{
    Classroom room;
    room.press(Tool::Shape);
    QCOMPARE(room.questions(), QStringList(question.arg("Shapes")));
    QVERIFY(!room.driver.window().palette()->isOpen());
    room.takeOver();
    QVERIFY(room.driver.window().palette()->isOpen());
    room.driver.draw(arrow, {600, 400}, {760, 500});
    QCOMPARE(room.document().page(1)->objectCount(), 2);
}

void TestTakeOverOffer::fileIsAskedForOnceThePageIsTakenOver()
{
    Classroom room;
    room.press(room.dock().insertButton());
    QCOMPARE(room.questions(), QStringList(question.arg("Insert")));
    QVERIFY(!room.driver.window().findChild<QFileDialog *>());
    room.takeOver();
    QVERIFY(room.driver.window().findChild<QFileDialog *>());
}

void TestTakeOverOffer::fingerOnAGreyTool()
{
    Classroom room;
    QTouchDevice *screen = QTest::createTouchDevice();
    board::DockButton *button = room.dock().buttonOf(Tool::Eraser);
    QTest::touchEvent(button, screen).press(0, button->rect().center(), button);
    QTest::touchEvent(button, screen).release(0, button->rect().center(), button);
    support::deliverEvents();
    QVERIFY(room.questions().contains(question.arg("Eraser")));
    room.takeOver();
    QCOMPARE(room.tools().tool(), Tool::Eraser);
}

void TestTakeOverOffer::keysOnAGreyTool_data()
{
    QTest::addColumn<int>("key");
    QTest::newRow("space") << int(Qt::Key_Space);
    QTest::newRow("return") << int(Qt::Key_Return);
    QTest::newRow("enter") << int(Qt::Key_Enter);
}

/// The answer has the focus then, so that the keys go on.
void TestTakeOverOffer::keysOnAGreyTool()
{
    QFETCH(int, key);
    Classroom room;
    board::DockButton *button = room.dock().buttonOf(Tool::Highlighter);
    QVERIFY(activate(room.driver.window()));
    button->setFocus(Qt::TabFocusReason);
    QVERIFY(button->hasFocus());
    QTest::keyClick(button, static_cast<Qt::Key>(key));
    support::deliverEvents();
    QCOMPARE(room.questions(), QStringList(question.arg("Highlighter")));
    QVERIFY(room.answer()->hasFocus());
    QTest::keyClick(room.answer(), Qt::Key_Space);
    support::deliverEvents();
    QCOMPARE(room.tools().tool(), Tool::Highlighter);
    QVERIFY(room.driver.view().hasFocus());
}

void TestTakeOverOffer::anotherToolTakesThePlaceOfTheFirst()
{
    Classroom room;
    room.press(Tool::Pen);
    room.press(Tool::Line);
    QCOMPARE(room.questions(), QStringList(question.arg("Line")));
    room.takeOver();
    QCOMPARE(room.tools().tool(), Tool::Line);
    QCOMPARE(room.document().pageCount(), 2);
}

/// The page is taken over as it was when the tool was pressed.
void TestTakeOverOffer::playingPausesUntilItIsAnswered()
{
    Classroom room;
    room.lessons().seek(0);
    room.lessons().playOrPause();
    QVERIFY(room.lessons().isPlaying());
    room.press(Tool::Pen);
    QVERIFY(!room.lessons().isPlaying());
    support::pass(2 * halfSecond);
    room.takeOver();
    QCOMPARE(room.document().page(1)->objectCount(), 0);
}

void TestTakeOverOffer::refusedOfferLeavesTheLesson()
{
    Classroom room;
    room.press(Tool::Pen);
    room.driver.clickOn(room.answer("Close"));
    QVERIFY(room.questions().isEmpty());
    QVERIFY(room.lessons().isShowing());
    QCOMPARE(room.tools().tool(), Tool::Select);
    room.press(Tool::Pen);
    QCOMPARE(room.questions().size(), 1);
}

void TestTakeOverOffer::offerGoesWithTheLesson()
{
    Classroom room;
    room.press(Tool::Pen);
    room.driver.key(Qt::Key_F8, Qt::ShiftModifier);
    QVERIFY(!room.lessons().isShowing());
    QVERIFY(room.questions().isEmpty());
    room.press(Tool::Pen);
    QVERIFY(room.questions().isEmpty());
    QCOMPARE(room.tools().tool(), Tool::Pen);
}

void TestTakeOverOffer::toolsLookGreyOnlyWhileALessonIsShown()
{
    Classroom room;
    const QColor accent = board::themeColors().accent;
    QVERIFY(room.dock().buttonOf(Tool::Select)->isGrey());
    QVERIFY(room.dock().insertButton()->isGrey());
    QVERIFY(room.middleOf(Tool::Select) != accent);
    room.lessons().close();
    QVERIFY(!room.dock().buttonOf(Tool::Select)->isGrey());
    QVERIFY(!room.dock().insertButton()->isGrey());
    QCOMPARE(room.middleOf(Tool::Select), accent);
}

void TestTakeOverOffer::coloursOfTheToolAreAwayWhileALessonIsShown()
{
    Classroom room;
    const auto *shelf = room.driver.window().findChild<board::Shelf *>();
    room.lessons().close();
    room.tools().choose(Tool::Pen);
    QVERIFY(shelf->isVisible());
    room.lessons().seek(0);
    QVERIFY(room.lessons().isShowing());
    QVERIFY(!shelf->isVisible());
    room.lessons().close();
    QVERIFY(shelf->isVisible());
}

void TestTakeOverOffer::foldedToolOffersToo()
{
    Classroom room;
    room.dock().setFixedHeight(room.dock().minimumSizeHint().height());
    support::deliverEvents();
    QVERIFY(room.dock().moreButton()->isVisible());
    QVERIFY(room.dock().moreButton()->isGrey());
    for (QAction *action : support::listed(room.dock().moreButton()->menu()->actions()))
        if (action->text() == "Connector")
            action->trigger();
    QCOMPARE(room.questions(), QStringList(question.arg("Connector")));
    room.takeOver();
    QCOMPARE(room.tools().tool(), Tool::Connector);
}

void TestTakeOverOffer::coloursInTheBarWait()
{
    Classroom room;
    const auto *colours = room.dock().findChild<board::PenColors *>();
    QVERIFY(colours && !colours->isEnabled());
    room.lessons().close();
    QVERIFY(colours->isEnabled());
}

void TestTakeOverOffer::offerIsSaidToReaders()
{
    Classroom room;
    ReaderDriver reader;
    room.press(Tool::Pen);
    QVERIFY(reader.said().contains("alert: " + question.arg("Pen")));
}

void TestTakeOverOffer::offerSpeaksGerman()
{
    Classroom room(QStringLiteral("de"));
    room.press(Tool::Pen);
    QCOMPARE(room.questions(),
             QStringList(QStringLiteral("Eine Lektion bleibt, wie sie ist. Übernehmen Sie die Seite, um „Stift“ zu "
                                        "benutzen.")));
    QVERIFY(room.answer(QStringLiteral("Übernehmen")));
}

QTEST_MAIN(TestTakeOverOffer)
#include "test_takeoveroffer.moc"

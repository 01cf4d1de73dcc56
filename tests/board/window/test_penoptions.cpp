// The options of pen and highlighter, beside their shelf.

#include <board/boarddriver.h>

#include <core/commands.h>
#include <core/toolchoice.h>
#include <look/dockbutton.h>
#include <page/pageview.h>
#include <panels/colorbutton.h>
#include <tools/toolsettings.h>
#include <window/besideplace.h>
#include <window/dock.h>
#include <window/mainwindow.h>
#include <window/penoptions.h>
#include <window/shelf.h>
#include <window/shelfbutton.h>

#include <support/listed.h>

#include <pagehost/page.h>

#include <framework/cbaseobject.h>

#include <QtCore/QSettings>
#include <QtTest/QtTest>
#include <QtWidgets/QAction>
#include <QtWidgets/QCheckBox>
#include <QtWidgets/QLabel>
#include <QtWidgets/QSlider>

using namespace boardtest;
using board::Tool;

namespace {

struct Options : BoardDriver
{
    board::PenOptions &options() const { return *window().findChild<board::PenOptions *>(); }
    board::Shelf &shelf() const { return *window().findChild<board::Shelf *>(); }
    board::ToolSettings &settings() const { return *window().toolSettings(); }
    board::ToolChoice &tools() const { return *window().tools(); }
    board::DockButton *dockButton(Tool tool) const { return window().findChild<board::Dock *>()->buttonOf(tool); }
    template<typename Control> Control *named(const QString &name) const
    {
        for (Control *control : support::listed(options().findChildren<Control *>()))
            if (control->accessibleName() == name || control->property("text") == name)
                return control;
        return nullptr;
    }
};

} // namespace

class TestPenOptions : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void aSecondPressOnThePenOpensAndClosesThem();
    void theEndOfTheShelfOpensThem();
    void keyOpensThemForThePen();
    void highlighterHasItsOwn();
    void theyStandBesideTheShelf();
    void placesBesideAnyEdge_data();
    void placesBesideAnyEdge();
    void escapeClosesThem();
    void writingClosesThemAndWrites();
    void aPenThatWritesClosesThem();
    void theShelfGoesOnWhileTheyAreOpen();
    void anotherToolClosesThem();
    void aPenOfOnesOwnIsTaken();
    void changesBelongToThePenInHand();
    void moreColoursThanTheShelf();
    void anyColour();
    void anyWidthByTheSlider();
    void switchesAreThoseOfTheSettings();
    void fingersDrawIsTheCommand();
};

void TestPenOptions::init()
{
    useOwnFolders();
    QSettings().clear();
}

void TestPenOptions::aSecondPressOnThePenOpensAndClosesThem()
{
    Options t;
    t.tools().choose(Tool::Select);
    t.clickOn(t.dockButton(Tool::Pen));
    QCOMPARE(t.tools().tool(), Tool::Pen);
    QVERIFY(!t.options().isOpen());
    t.clickOn(t.dockButton(Tool::Pen));
    QVERIFY(t.options().isVisible());
    QVERIFY2(!t.tools().isKept(), "it stays anyway");
    t.clickOn(t.dockButton(Tool::Pen));
    QVERIFY(!t.options().isVisible());
    QCOMPARE(t.tools().tool(), Tool::Pen);
}

void TestPenOptions::theEndOfTheShelfOpensThem()
{
    Options t;
    t.key(Qt::Key_P);
    for (QToolButton *button : support::listed(t.shelf().findChildren<QToolButton *>()))
        if (button->isVisible() && button->accessibleName() == "Pen options") {
            t.clickOn(button);
            QVERIFY(t.options().isOpen());
            return;
        }
    QFAIL("There is no such button.");
}

void TestPenOptions::keyOpensThemForThePen()
{
    Options t;
    t.tools().choose(Tool::Eraser);
    t.key(Qt::Key_P, Qt::ShiftModifier);
    QVERIFY(t.options().isOpen());
    QCOMPARE(t.tools().tool(), Tool::Pen);
    QVERIFY(t.options().isAncestorOf(QApplication::focusWidget()));
}

void TestPenOptions::highlighterHasItsOwn()
{
    Options t;
    t.key(Qt::Key_H);
    t.key(Qt::Key_P, Qt::ShiftModifier);
    QCOMPARE(t.tools().tool(), Tool::Highlighter);
    QVERIFY(t.named<QLabel>("Highlighter"));
    t.clickOn(t.named<board::ShelfButton>("Pink"));
    QCOMPARE(t.settings().color(Tool::Highlighter), QColor(0xfa, 0xa2, 0xc1));
    QCOMPARE(t.settings().color(Tool::Pen), QColor(0x1f, 0x26, 0x30));
}

void TestPenOptions::theyStandBesideTheShelf()
{
    Options t;
    t.key(Qt::Key_P, Qt::ShiftModifier);
    QCOMPARE(t.options().geometry().left(), t.shelf().geometry().right() + 1 + 8);
    QCOMPARE(t.options().geometry().top(), t.shelf().geometry().top());
    QVERIFY(t.options().width() >= 264);
}

void TestPenOptions::placesBesideAnyEdge_data()
{
    QTest::addColumn<int>("edge");
    QTest::addColumn<QRect>("shelf");
    QTest::addColumn<QRect>("place");
    QTest::newRow("left") << int(Qt::LeftEdge) << QRect(4, 60, 40, 300) << QRect(52, 60, 200, 100);
    QTest::newRow("right") << int(Qt::RightEdge) << QRect(756, 60, 40, 300) << QRect(548, 60, 200, 100);
    QTest::newRow("top") << int(Qt::TopEdge) << QRect(60, 4, 300, 40) << QRect(60, 52, 200, 100);
    QTest::newRow("bottom") << int(Qt::BottomEdge) << QRect(60, 556, 300, 40) << QRect(60, 448, 200, 100);
    QTest::newRow("no room below") << int(Qt::LeftEdge) << QRect(4, 560, 40, 30) << QRect(52, 500, 200, 100);
    QTest::newRow("no room beside") << int(Qt::TopEdge) << QRect(700, 4, 90, 40) << QRect(600, 52, 200, 100);
}

void TestPenOptions::placesBesideAnyEdge()
{
    QFETCH(int, edge);
    QFETCH(QRect, shelf);
    QFETCH(QRect, place);
    const QRect room(0, 0, 800, 600);
    QCOMPARE(board::placeBeside(shelf, Qt::Edge(edge), {200, 100}, room), place);
    QCOMPARE(board::placeBeside(shelf, Qt::Edge(edge), {900, 700}, room), room);
}

void TestPenOptions::escapeClosesThem()
{
    Options t;
    t.key(Qt::Key_P, Qt::ShiftModifier);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape);
    QVERIFY(!t.options().isOpen());
    QCOMPARE(t.tools().tool(), Tool::Pen);
    QVERIFY(t.view().hasFocus());
}

void TestPenOptions::writingClosesThemAndWrites()
{
    Options t;
    t.key(Qt::Key_P, Qt::ShiftModifier);
    t.drag({700, 300}, {800, 300});
    QVERIFY(!t.options().isOpen());
    QCOMPARE(t.page().objectCount(), 1);
}

void TestPenOptions::aPenThatWritesClosesThem()
{
    Options t;
    t.key(Qt::Key_P, Qt::ShiftModifier);
    t.pen(QEvent::TabletPress, {700, 300}, 0.5);
    QVERIFY(!t.options().isOpen());
    t.pen(QEvent::TabletMove, {800, 300}, 0.5);
    t.pen(QEvent::TabletRelease, {800, 300}, 0);
    QCOMPARE(t.page().objectCount(), 1);
}

void TestPenOptions::theShelfGoesOnWhileTheyAreOpen()
{
    Options t;
    t.key(Qt::Key_P, Qt::ShiftModifier);
    for (board::ShelfButton *button : support::listed(t.shelf().findChildren<board::ShelfButton *>()))
        if (button->isVisible() && button->accessibleName() == "Red") {
            t.clickOn(button);
            break;
        }
    QVERIFY(t.options().isOpen());
    QVERIFY(t.named<board::ShelfButton>("Red")->isChecked());
    QVERIFY(!t.named<board::ShelfButton>("Black")->isChecked());
}

void TestPenOptions::anotherToolClosesThem()
{
    Options t;
    t.key(Qt::Key_P, Qt::ShiftModifier);
    t.tools().choose(Tool::Highlighter);
    QVERIFY(!t.options().isOpen());
}

void TestPenOptions::aPenOfOnesOwnIsTaken()
{
    Options t;
    t.key(Qt::Key_P, Qt::ShiftModifier);
    t.clickOn(t.named<board::ShelfButton>("Pen 3"));
    QCOMPARE(t.settings().color(Tool::Pen), QColor(0xc9, 0x25, 0x2d));
    QCOMPARE(t.settings().width(Tool::Pen), 8.0);
    QVERIFY(t.named<board::ShelfButton>("Pen 3")->isChecked());
    QVERIFY(!t.named<board::ShelfButton>("Pen 1")->isChecked());
    QCOMPARE(t.named<QSlider>("Width")->value(), 8);
}

void TestPenOptions::changesBelongToThePenInHand()
{
    Options t;
    t.key(Qt::Key_P, Qt::ShiftModifier);
    t.clickOn(t.named<board::ShelfButton>("Pen 2"));
    t.clickOn(t.named<board::ShelfButton>("Green"));
    t.clickOn(t.named<board::ShelfButton>("Pen 1"));
    QCOMPARE(t.settings().color(Tool::Pen), QColor(0x1f, 0x26, 0x30));
    t.clickOn(t.named<board::ShelfButton>("Pen 2"));
    QCOMPARE(t.settings().color(Tool::Pen), QColor(0x1c, 0x7a, 0x43));
}

void TestPenOptions::moreColoursThanTheShelf()
{
    Options t;
    t.key(Qt::Key_P, Qt::ShiftModifier);
    QCOMPARE(t.settings().moreColors(Tool::Pen).size(), 12);
    t.clickOn(t.named<board::ShelfButton>("White"));
    QCOMPARE(t.settings().color(Tool::Pen), QColor(Qt::white));
    t.clickOn(t.named<board::ShelfButton>("Black"));
    t.user().move(&t.options(), {2, 2}, Qt::NoButton, Qt::NoModifier);
    // It has an edge, since the ground is white, too.
    board::ShelfButton *white = t.named<board::ShelfButton>("White");
    QImage picture(white->size(), QImage::Format_RGB32);
    picture.fill(Qt::white);
    white->render(&picture, QPoint(), QRegion(), QWidget::RenderFlags());
    int darkest = 255;
    for (int x = 0; x < picture.width(); ++x)
        darkest = qMin(darkest, picture.pixelColor(x, picture.height() / 2).lightness());
    QVERIFY2(darkest < 200, qPrintable(QString::number(darkest)));
    QCOMPARE(picture.pixelColor(picture.width() / 2, picture.height() / 2), QColor(Qt::white));
}

void TestPenOptions::anyColour()
{
    Options t;
    t.key(Qt::Key_P, Qt::ShiftModifier);
    auto *button = t.named<board::ColorButton>("Any colour");
    QCOMPARE(button->color(), QColor(0x1f, 0x26, 0x30));
    Q_EMIT button->colorPicked(QColor(1, 2, 3, 100));
    QCOMPARE(t.settings().color(Tool::Pen), QColor(1, 2, 3));
    QCOMPARE(button->color(), QColor(1, 2, 3));
}

void TestPenOptions::anyWidthByTheSlider()
{
    Options t;
    t.key(Qt::Key_P, Qt::ShiftModifier);
    auto *slider = t.named<QSlider>("Width");
    QCOMPARE(slider->minimum(), 2);
    QCOMPARE(slider->maximum(), 14);
    slider->setValue(11);
    QCOMPARE(t.settings().width(Tool::Pen), 11.0);
    QVERIFY(t.named<QLabel>("11 px"));
    // A width between two whole ones stays when it is shown.
    t.settings().setWidth(Tool::Pen, 5.5);
    QCOMPARE(t.settings().width(Tool::Pen), 5.5);
    QVERIFY(t.named<QLabel>("5.5 px"));
}

void TestPenOptions::switchesAreThoseOfTheSettings()
{
    Options t;
    t.key(Qt::Key_P, Qt::ShiftModifier);
    auto *pressure = t.named<QCheckBox>("Pressure changes width");
    auto *straight = t.named<QCheckBox>("Straighten when held still");
    QVERIFY(pressure->isChecked() && straight->isChecked());
    pressure->click();
    QVERIFY(!t.settings().usesPressure(Tool::Pen));
    QVERIFY(t.settings().straightens(Tool::Pen));
    straight->click();
    QVERIFY(!t.settings().straightens(Tool::Pen));
    QVERIFY(t.settings().usesPressure(Tool::Highlighter));
}

void TestPenOptions::fingersDrawIsTheCommand()
{
    Options t;
    t.key(Qt::Key_P, Qt::ShiftModifier);
    QAction *command = t.window().commands()->action(board::Command::FingersDraw);
    auto *box = t.named<QCheckBox>("Fingers draw, too");
    QCOMPARE(box->isChecked(), command->isChecked());
    box->click();
    QVERIFY(command->isChecked());
    command->trigger();
    QVERIFY(!box->isChecked());
}

QTEST_MAIN(TestPenOptions)
#include "test_penoptions.moc"

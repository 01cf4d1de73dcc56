// Paper: lines printed on pages, chosen in menus, kept with the page.

#include <board/boarddriver.h>
#include <board/desk.h>

#include <core/commands.h>
#include <lessons/lessoncontroller.h>
#include <output/svgdrawing.h>
#include <page/pageview.h>
#include <panels/stylepanel.h>
#include <window/drawer.h>
#include <window/mainwindow.h>

#include <support/patience.h>

#include <pagehost/commands.h>
#include <pagehost/page.h>
#include <pagehost/pagepainter.h>
#include <pagehost/paper.h>

#include <QtGui/QPaintEvent>
#include <QtTest/QtTest>
#include <QtWidgets/QAction>
#include <QtWidgets/QToolButton>
#include <QtWidgets/QUndoStack>

using namespace boardtest;
using board::Command;
using pagehost::Paper;

class TestPaper : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void eachPaperHasItsLines_data();
    void eachPaperHasItsLines();
    void chosenPaperIsOneStepToTakeBack();
    void menuShowsThePaperOfThePage();
    void paperKeepsTheColourOfThePage();
    void linesOnDarkPaperAreLight();
    void paperIsSavedAndOpened_data();
    void paperIsSavedAndOpened();
    void paperIsDrawnAsLinesInExportedDrawings();
    void lessonShowsThePaperChosenInIt();
    void wholePageIsRepaintedWithItsNewPaper();
};

namespace {

void choose(BoardDriver &board, Command command)
{
    board.window().commands()->action(command)->trigger();
}

QColor pixel(BoardDriver &board, int x, int y)
{
    return pagehost::pageImage(&board.page(), 1).pixelColor(x, y);
}

/// The area that is repainted from now on.
class PaintedArea : public QObject
{
public:
    explicit PaintedArea(QWidget *widget) { widget->installEventFilter(this); }
    QRegion area;

protected:
    bool eventFilter(QObject *, QEvent *event) override
    {
        if (event->type() == QEvent::Paint)
            area += static_cast<QPaintEvent *>(event)->region();
        return false;
    }
};

/// Less light than the paper, of whatever strength.
bool isLine(const QColor &color, const QColor &paper = Qt::white)
{
    return color != paper;
}

} // namespace

void TestPaper::eachPaperHasItsLines_data()
{
    QTest::addColumn<int>("command");
    QTest::addColumn<QPoint>("on");
    QTest::addColumn<QPoint>("off");
    // Rules are 40 apart, the first at 80; squares and dots 32; staves begin at 60, their lines are 12 apart; a
    // millimetre is 3.78, so that the tenth one is at 37.8.
    QTest::newRow("ruled") << int(Command::RuledPaper) << QPoint(300, 120) << QPoint(300, 140);
    QTest::newRow("squared") << int(Command::SquaredPaper) << QPoint(64, 50) << QPoint(50, 50);
    QTest::newRow("dotted") << int(Command::DottedPaper) << QPoint(64, 96) << QPoint(64, 80);
    QTest::newRow("music") << int(Command::MusicPaper) << QPoint(300, 72) << QPoint(300, 66);
    QTest::newRow("millimetre") << int(Command::MillimetrePaper) << QPoint(37, 2) << QPoint(39, 2);
    QTest::newRow("margin of music") << int(Command::MusicPaper) << QPoint(60, 72) << QPoint(20, 72);
}

void TestPaper::eachPaperHasItsLines()
{
    QFETCH(int, command);
    QFETCH(QPoint, on);
    QFETCH(QPoint, off);
    BoardDriver board;
    QVERIFY(!isLine(pixel(board, on.x(), on.y())));
    choose(board, Command(command));
    QVERIFY(isLine(pixel(board, on.x(), on.y())));
    QVERIFY(!isLine(pixel(board, off.x(), off.y())));
    choose(board, Command::BlankPaper);
    QVERIFY(!isLine(pixel(board, on.x(), on.y())));
}

void TestPaper::chosenPaperIsOneStepToTakeBack()
{
    BoardDriver board;
    choose(board, Command::RuledPaper);
    QCOMPARE(board.history().count(), 1);
    board.key(Qt::Key_Z, Qt::ControlModifier);
    QVERIFY(pagehost::paperOf(board.page().background()) == Paper::Blank);
    board.key(Qt::Key_Y, Qt::ControlModifier);
    QVERIFY(pagehost::paperOf(board.page().background()) == Paper::Ruled);
}

void TestPaper::menuShowsThePaperOfThePage()
{
    BoardDriver board;
    const auto isChecked = [&](Command command) { return board.window().commands()->action(command)->isChecked(); };
    QVERIFY(isChecked(Command::BlankPaper));
    choose(board, Command::MusicPaper);
    QVERIFY(isChecked(Command::MusicPaper) && !isChecked(Command::BlankPaper));
    choose(board, Command::AddPage);
    QVERIFY(isChecked(Command::BlankPaper) && !isChecked(Command::MusicPaper));
    choose(board, Command::PreviousPage);
    QVERIFY(isChecked(Command::MusicPaper));
}

void TestPaper::paperKeepsTheColourOfThePage()
{
    BoardDriver board;
    CPageBgProp yellow = board.page().background();
    yellow.setFillColor(QColor(255, 250, 200));
    pagehost::setPageBackground(&board.page(), yellow);
    choose(board, Command::RuledPaper);
    QCOMPARE(pixel(board, 300, 140), QColor(255, 250, 200));
    QVERIFY(isLine(pixel(board, 300, 120), QColor(255, 250, 200)));
}

void TestPaper::linesOnDarkPaperAreLight()
{
    BoardDriver board;
    CPageBgProp green = board.page().background();
    green.setFillColor(QColor(20, 60, 40));
    pagehost::setPageBackground(&board.page(), green);
    choose(board, Command::SquaredPaper);
    QVERIFY(pixel(board, 64, 50).lightness() > QColor(20, 60, 40).lightness());
}

void TestPaper::paperIsSavedAndOpened_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("binary") << "paper.board";
    QTest::newRow("JSON") << "paper.board.json";
}

void TestPaper::paperIsSavedAndOpened()
{
    QFETCH(QString, name);
    Desk desk;
    choose(desk.board, Command::MillimetrePaper);
    desk.saveAs(name);
    choose(desk.board, Command::BlankPaper);
    QVERIFY(desk.documents().openNow(desk.path(name)));
    QVERIFY(pagehost::paperOf(desk.board.page().background()) == Paper::Millimetre);
}

void TestPaper::paperIsDrawnAsLinesInExportedDrawings()
{
    BoardDriver board;
    choose(board, Command::RuledPaper);
    const QByteArray svg = board::svgOfPage(&board.page(), board.workspace().registry());
    QVERIFY(svg.contains("M0 80L1280 80M0 120L1280 120"));
    QVERIFY(!svg.contains("<image"));
}

void TestPaper::lessonShowsThePaperChosenInIt()
{
    BoardDriver board;
    board::LessonController &lessons = *board.window().lessons();
    lessons.recordOrStop();
    choose(board, Command::DottedPaper);
    lessons.recordOrStop();
    choose(board, Command::BlankPaper);
    lessons.choose(0);
    lessons.seek(lessons.duration());
    QVERIFY(pagehost::paperOf(lessons.shownDocument()->currentPage()->background()) == Paper::Dotted);
}

void TestPaper::wholePageIsRepaintedWithItsNewPaper()
{
    BoardDriver board;
    board.window().panel()->setPinned(false);
    board.view().fitPage();
    QCoreApplication::processEvents();
    board.view().repaint();
    QCoreApplication::processEvents();
    PaintedArea painted(board.view().viewport());
    QToolButton *chosen = nullptr;
    const auto buttons = board.window().findChild<board::StylePanel *>()->findChildren<QToolButton *>();
    for (auto *button : buttons)
        if (button->defaultAction() == board.window().commands()->action(Command::RuledPaper))
            chosen = button;
    QTest::mouseClick(chosen, Qt::LeftButton);
    const QRect page = board.view().mapFromScene(board.page().rect()).boundingRect();
    QTRY_VERIFY_WITH_TIMEOUT(
        QRegion(page.left(), page.top(), page.width() / 3, page.height()).subtracted(painted.area).isEmpty(),
        support::patience);
}

QTEST_MAIN(TestPaper)
#include "test_paper.moc"

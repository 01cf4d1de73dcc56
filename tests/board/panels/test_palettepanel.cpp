// The palette while files of shapes change.

#include <board/boarddriver.h>

#include <core/commands.h>
#include <core/texts.h>
#include <look/theme.h>
#include <panels/palettebutton.h>
#include <panels/palettepanel.h>
#include <window/mainwindow.h>

#include <pagehost/page.h>

#include <support/listed.h>

#include <QtCore/QPointer>
#include <QtGui/QDrag>
#include <QtGui/QFontMetrics>
#include <QtGui/QTextLayout>
#include <QtTest/QtTest>
#include <QtWidgets/QAction>

#include <algorithm>

using namespace boardtest;

class TestPalettePanel : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanupTestCase() { board::applyLargeSizes(false); }
    void namesHaveTwoLinesAtMost_data();
    void namesHaveTwoLinesAtMost();
    void shapeIsDrawnFromAPaletteThatWasBuiltAnew();
    void buttonMayGoWhileItsShapeIsDraggedOut();
};

/// Without a desktop, letters are larger than any desktop's.
constexpr double fontPoints = 9.5;

static int linesOf(const board::PaletteButton &button)
{
    QTextLayout layout(button.text(), button.nameFont());
    QTextOption option;
    option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    layout.setTextOption(option);
    layout.beginLayout();
    for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine())
        line.setLineWidth(button.nameRoom().width());
    layout.endLayout();
    return layout.lineCount();
}

static bool cutsAWord(const board::PaletteButton &button)
{
    const QFontMetrics metrics(button.nameFont());
    const QStringList words = button.text().split(' ');
    return std::any_of(words.begin(), words.end(), [&](const QString &word) {
        return metrics.horizontalAdvance(word) > button.nameRoom().width();
    });
}

void TestPalettePanel::init()
{
    QFont font = QApplication::font();
    font.setPointSizeF(fontPoints);
    QApplication::setFont(font);
    board::applyLargeSizes(false);
}

void TestPalettePanel::namesHaveTwoLinesAtMost_data()
{
    QTest::addColumn<QString>("language");
    QTest::addColumn<bool>("large");
    for (const QString &code : support::listed(board::boardLanguages())) {
        QTest::newRow(qPrintable(code)) << code << false;
        QTest::newRow(qPrintable(code + " for fingers")) << code << true;
    }
}

void TestPalettePanel::namesHaveTwoLinesAtMost()
{
    QFETCH(QString, language);
    QFETCH(bool, large);
    BoardDriver board(language);
    board.window().setLargeTools(large);
    board.window().commands()->action(board::Command::Shapes)->trigger();
    QCoreApplication::processEvents();
    const QList<board::PaletteButton *> buttons =
        board.window().palettePanel()->findChildren<board::PaletteButton *>();
    QVERIFY(buttons.size() >= board.drawableKinds().size());
    QStringList faults;
    for (const board::PaletteButton *button : buttons) {
        const int height = linesOf(*button) * QFontMetrics(button->nameFont()).height();
        if (linesOf(*button) > 2 || height > button->nameRoom().height() || (large && cutsAWord(*button)))
            faults.append(button->text());
    }
    QCOMPARE(faults.join(", "), QString());
}

void TestPalettePanel::shapeIsDrawnFromAPaletteThatWasBuiltAnew()
{
    BoardDriver board;
    board.window().commands()->action(board::Command::Shapes)->trigger();
    const QPointer<board::PaletteButton> former = board.paletteButton(rectangle);
    QVERIFY(former);
    QMetaObject::invokeMethod(board.window().palettePanel(), &board::PalettePanel::showKinds, Qt::QueuedConnection);
    board.draw(rectangle, {500, 300}, {700, 420});
    QVERIFY(!former);
    QCOMPARE(board.page().objectCount(), 1);
}

/// A drag has an event loop of its own in a real window; offscreen it ends at once, and the button goes later.
void TestPalettePanel::buttonMayGoWhileItsShapeIsDraggedOut()
{
    BoardDriver board;
    board.window().commands()->action(board::Command::Shapes)->trigger();
    const QPointer<board::PaletteButton> dragged = board.paletteButton(rectangle);
    QVERIFY(dragged);
    const QPoint start = dragged->rect().center();
    QTest::mousePress(dragged, Qt::LeftButton, {}, start);
    const auto changeFiles = [&] {
        board.window().palettePanel()->showKinds();
        QVERIFY(!dragged);
        QVERIFY(board.window().findChild<QDrag *>());
        QTest::keyClick(&board.window(), Qt::Key_Escape);
    };
    QMetaObject::invokeMethod(&board.window(), changeFiles, Qt::QueuedConnection);
    const QPoint far = start + QPoint(2 * QApplication::startDragDistance(), 0);
    QMouseEvent move(QEvent::MouseMove, far, dragged->mapToGlobal(far), Qt::NoButton, Qt::LeftButton, {});
    QApplication::sendEvent(dragged, &move);
    QCoreApplication::processEvents();
    QVERIFY(!dragged);
    QCOMPARE(board.page().objectCount(), 0);
    board.draw(rectangle, {500, 300}, {700, 420});
    QCOMPARE(board.page().objectCount(), 1);
}

QTEST_MAIN(TestPalettePanel)
#include "test_palettepanel.moc"

// The palette while files of shapes change.

#include <board/boarddriver.h>

#include <support/listed.h>

#include <core/commands.h>
#include <core/texts.h>
#include <look/theme.h>
#include <panels/palettebutton.h>
#include <panels/palettepanel.h>
#include <window/mainwindow.h>

#include <pagehost/page.h>

#include <QtCore/QPointer>
#include <QtGui/QDrag>
#include <QtGui/QFontMetrics>
#include <QtGui/QTextLayout>
#include <QtTest/QtTest>
#include <QtWidgets/QAction>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QScrollArea>

#include <algorithm>

using namespace boardtest;

namespace {

/// The shown shapes, line by line.
QStringList shownNames(const board::PalettePanel &palette)
{
    QCoreApplication::processEvents();
    QVector<const board::PaletteButton *> shown;
    for (const board::PaletteButton *button : support::listed(palette.buttons()))
        if (button->isVisible())
            shown.append(button);
    const auto placeOf = [&](const board::PaletteButton *button) { return button->mapTo(&palette, QPoint()); };
    std::sort(shown.begin(), shown.end(), [&](const board::PaletteButton *one, const board::PaletteButton *other) {
        const QPoint a = placeOf(one);
        const QPoint b = placeOf(other);
        return a.y() != b.y() ? a.y() < b.y() : a.x() < b.x();
    });
    QStringList names;
    for (const board::PaletteButton *button : qAsConst(shown))
        names.append(button->text());
    return names;
}

/// The open palette with a text in its search.
struct Searching
{
    explicit Searching(const QString &text)
    {
        board.window().commands()->action(board::Command::Shapes)->trigger();
        type(text);
    }
    QLineEdit *field() const { return palette->findChild<QLineEdit *>(); }
    void type(const QString &text) const { QTest::keyClicks(field(), text); }
    QStringList names() const { return shownNames(*palette); }

    BoardDriver board;
    board::PalettePanel *palette = board.window().findChild<board::PalettePanel *>();
};

} // namespace

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
    void bestHitStandsFirstAndIsDrawn();
    void groupOfTheBestHitStandsFirst();
    void wordsOfAnyLanguageFindAShape();
    void everyWordMustBeFound();
    void shapesStandInTheirOrderAfterASearch();
    void aNotchOfTheWheelGoesByARow_data();
    void aNotchOfTheWheelGoesByARow();
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

/// A battery is found by the word, too.
void TestPalettePanel::bestHitStandsFirstAndIsDrawn()
{
    Searching t("cell");
    QCOMPARE(t.names(), (QStringList{"Cell", "Battery"}));
    QSignalSpy picked(t.palette, &board::PalettePanel::kindPicked);
    QTest::keyClick(t.field(), Qt::Key_Return);
    QCOMPARE(picked.size(), 1);
    const QString kindId = picked.first().first().toString();
    QCOMPARE(t.board.workspace().text(t.board.workspace().registry().kind(kindId).nameKey), QString("Cell"));
}

/// Rectangles and triangles have it in their names.
void TestPalettePanel::groupOfTheBestHitStandsFirst()
{
    const Searching t("angle");
    const QStringList names = t.names();
    QCOMPARE(names.first(), QString("Angle"));
    QVERIFY(names.contains("Triangle"));
}

void TestPalettePanel::wordsOfAnyLanguageFindAShape()
{
    const Searching t("Dreieck");
    QVERIFY(t.names().contains("Triangle"));
}

void TestPalettePanel::everyWordMustBeFound()
{
    const Searching t("arrow block");
    QCOMPARE(t.names(), QStringList("Block arrow"));
}

void TestPalettePanel::shapesStandInTheirOrderAfterASearch()
{
    const Searching t("");
    const QStringList all = t.names();
    t.type("cell");
    QVERIFY(t.names() != all);
    t.field()->clear();
    QCOMPARE(t.names(), all);
}

void TestPalettePanel::aNotchOfTheWheelGoesByARow_data()
{
    QTest::addColumn<bool>("large");
    QTest::newRow("usual buttons") << false;
    QTest::newRow("large buttons") << true;
}

void TestPalettePanel::aNotchOfTheWheelGoesByARow()
{
    QFETCH(bool, large);
    board::applyLargeSizes(large);
    const Searching palette({});
    QCoreApplication::processEvents();
    const QVector<board::PaletteButton *> buttons = palette.palette->buttons();
    const auto heightOf = [&](int index) { return buttons.at(index)->mapTo(palette.palette, QPoint()).y(); };
    int below = 0;
    while (heightOf(below) == heightOf(0))
        ++below;
    const int second = heightOf(below);
    const int row = second - heightOf(0);
    const QPointF pos(10, 10);
    QWidget *viewport = palette.palette->findChild<QScrollArea *>()->viewport();
    QWheelEvent wheel(pos, viewport->mapToGlobal(pos.toPoint()), {}, {0, -120}, Qt::NoButton, Qt::NoModifier,
                      Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(viewport, &wheel);
    // A notch is three steps of whole pixels.
    QVERIFY(second - heightOf(below) <= row);
    QVERIFY(second - heightOf(below) > row - 3);
}

QTEST_MAIN(TestPalettePanel)
#include "test_palettepanel.moc"

// Texts written on the page in the board's window, with mouse and keys.

#include "board/textdesk.h"

#include <page/labeleditor.h>
#include <panels/settings/settingspanel.h>
#include <tools/toolsettings.h>
#include <window/mainwindow.h>
#include <window/typingbar.h>

#include <pagehost/commands.h>
#include <pagehost/page.h>
#include <pagehost/pagescene.h>

#include <framework/cbaseobject.h>
#include <framework/cpagebgprop.h>

#include <support/listed.h>

#include <QtCore/QMimeData>
#include <QtCore/QSettings>
#include <QtGui/QClipboard>
#include <QtGui/QGuiApplication>
#include <QtTest/QtTest>
#include <QtWidgets/QAction>
#include <QtWidgets/QUndoStack>

using board::Tool;
using Desk = boardtest::TextDesk;

class TestTextWriting : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { boardtest::useOwnFolders(); }
    void init() { QSettings().clear(); }
    void aClickAndKeysMakeAText();
    void lettersAreSetInASectionOfThePanel();
    void lettersOfAllFiguresAreSetInTheSameSection();
    void theTextAndItsObjectAreOneStep();
    void aTextThatStaysEmptyVanishesWithoutATrace();
    void aTextThatIsEmptiedVanishesInOneStep();
    void aChangedTextIsAStep();
    void aClickElsewhereEndsTheText();
    void theEditorGrowsWithTheText();
    void aTextThatIsWrittenHasNoGrips();
    void theEditorStaysWithinItsText();
    void theFrameOfATextIsSeenFromTheBeginning();
    void lettersOfTheObjectAreNotSeenBesideThoseThatAreTyped();
    void lettersAreWholeAndInTheirPlace_data();
    void lettersAreWholeAndInTheirPlace();
    void theBarOfLettersMovesToTheNextText();
    void aHyphenAndASpaceBeginAList();
    void theReturnKeyContinuesAList();
    void itemsAreNumberedAnew();
    void aKeyChangesTheKindOfList();
    void pastedListsKeepTheirMarks();
    void pastedTextLosesItsFormats();
    void plainPasteLeavesMarksOfListsOut();
    void exponentsAndIndicesAreRaisedAndLowered_data();
    void exponentsAndIndicesAreRaisedAndLowered();
    void oneStepBringsTheTypedCharactersBack();
};

void TestTextWriting::aClickAndKeysMakeAText()
{
    Desk desk;
    desk.click({500, 300});
    QVERIFY(desk.editor());
    QCOMPARE(desk.tools().tool(), Tool::Select);
    desk.type("Light");
    desk.end();
    QVERIFY(!desk.editor());
    QCOMPARE(desk.page().objectCount(), 1);
    QCOMPARE(desk.written(0), QString("Light"));
    QCOMPARE(desk.selection(), desk.page().objects());
}

void TestTextWriting::lettersAreSetInASectionOfThePanel()
{
    Desk desk;
    desk.write({200, 200}, "wonderful");
    board::SettingsPanel *settings = desk.window().settings();
    desk.window().raisePanel(settings);
    QCoreApplication::processEvents();
    const auto letters = [&desk]() -> board::SettingsPanel * {
        for (auto *panel : support::listed(desk.window().findChildren<board::SettingsPanel *>()))
            if (panel->isVisible() && panel->form()->editors().size() == 10)
                return panel;
        return nullptr;
    };
    QVERIFY(letters());
    QVERIFY(letters() != settings);
    QVERIFY(settings->isEmpty());
    // Shapes without letters have no such section.
    CBaseObject *box = desk.draw(boardtest::rectangle, {500, 300}, {700, 420});
    desk.page().select({box});
    QCoreApplication::processEvents();
    QVERIFY(!letters());
}

void TestTextWriting::lettersOfAllFiguresAreSetInTheSameSection()
{
    Desk desk;
    desk.window().raisePanel(desk.window().settings());
    const auto letters = [&desk] {
        QStringList names;
        for (const auto *panel : support::listed(desk.window().findChildren<board::SettingsPanel *>()))
            if (panel->isVisible() && panel != desk.window().settings())
                for (const QWidget *editor : support::listed(panel->findChildren<QWidget *>()))
                    if (!editor->accessibleName().isEmpty() && editor->isVisible())
                        names.append(editor->accessibleName());
        return names;
    };
    for (const char *kind : {"shapes.table", "shapes.numberline", "shapes.clock"}) {
        desk.page().select({desk.draw(QLatin1String(kind), {300, 200}, {600, 400})});
        QCoreApplication::processEvents();
        QCoreApplication::processEvents();
        for (const char *name : {"Font size", "Bold", "Italic", "Underlined", "Text colour"})
            QVERIFY2(letters().contains(QLatin1String(name)),
                     qPrintable(QLatin1String(kind) + letters().join(';')));
    }
}

void TestTextWriting::theTextAndItsObjectAreOneStep()
{
    Desk desk;
    desk.write({500, 300}, "Light");
    QCOMPARE(desk.history().count(), 1);
    desk.history().undo();
    QCOMPARE(desk.page().objectCount(), 0);
    desk.history().redo();
    QCOMPARE(desk.written(0), QString("Light"));
}

void TestTextWriting::aTextThatStaysEmptyVanishesWithoutATrace()
{
    Desk desk;
    desk.click({500, 300});
    desk.end();
    QCOMPARE(desk.page().objectCount(), 0);
    QCOMPARE(desk.history().count(), 0);
}

void TestTextWriting::aTextThatIsEmptiedVanishesInOneStep()
{
    Desk desk;
    desk.write({500, 300}, "Light");
    desk.view().writeFirstLabel();
    desk.strike(Qt::Key_Delete);
    desk.end();
    QCOMPARE(desk.page().objectCount(), 0);
    desk.history().undo();
    QCOMPARE(desk.page().objectCount(), 1);
    QCOMPARE(desk.written(0), QString("Light"));
}

void TestTextWriting::aChangedTextIsAStep()
{
    Desk desk;
    desk.write({500, 300}, "Light");
    desk.doubleClick({505, 300});
    QVERIFY(desk.editor());
    desk.type("Shadow");
    desk.end();
    QCOMPARE(desk.written(0), QString("Shadow"));
    desk.history().undo();
    QCOMPARE(desk.written(0), QString("Light"));
}

void TestTextWriting::aClickElsewhereEndsTheText()
{
    Desk desk;
    desk.click({500, 300});
    desk.type("Light");
    desk.click({900, 600});
    QVERIFY(!desk.editor());
    QCOMPARE(desk.written(0), QString("Light"));
}

void TestTextWriting::theEditorGrowsWithTheText()
{
    Desk desk;
    desk.click({500, 300});
    const int before = desk.editor()->width();
    desk.type("A long line of words");
    QVERIFY(desk.editor()->width() > before);
    QVERIFY(desk.editor()->width() > desk.placeOf(desk.page().objects().first()).width());
    desk.end();
}

void TestTextWriting::aTextThatIsWrittenHasNoGrips()
{
    Desk desk;
    desk.click({500, 300});
    desk.type("Light");
    CBaseObject *text = desk.page().objects().constFirst();
    QVERIFY(text->isSelected());
    const QPointF corner = desk.placeOf(text).bottomRight();
    QVERIFY(desk.scene().gripAt(corner).kind != pagehost::Grip::Handle);
    desk.end();
    QCOMPARE(desk.scene().gripAt(corner).kind, pagehost::Grip::Handle);
}

/// Room for the next letter covers nothing.
void TestTextWriting::theEditorStaysWithinItsText()
{
    Desk desk;
    desk.click({500, 300});
    desk.type("Light");
    const CBaseObject *text = desk.page().objects().constFirst();
    const int end = desk.view().mapFromScene(desk.placeOf(text).bottomRight()).x();
    const QRegion covered = desk.editor()->mask().translated(desk.editor()->pos());
    QVERIFY(!covered.isEmpty());
    const board::LabelEditor &editor = *desk.editor();
    // Beside the letters there is the cursor.
    const int letters = QFontMetrics(editor.font()).horizontalAdvance("Light") + editor.cursorWidth();
    const int start = editor.x() + editor.viewport()->x();
    QVERIFY(covered.boundingRect().right() <= qMax(end, start + letters));
    QVERIFY(editor.geometry().right() > end + editor.fontMetrics().averageCharWidth());
}

/// Also after a line has been begun, which leaves the width as it is.
void TestTextWriting::theFrameOfATextIsSeenFromTheBeginning()
{
    Desk desk;
    desk.click({500, 300});
    const auto isWithinItsText = [&desk] {
        constexpr int inside = 3;
        const QRectF place = desk.placeOf(desk.page().objects().constFirst());
        const QRect box = desk.view().mapFromScene(place).boundingRect().adjusted(-inside, -inside, inside, inside);
        const QRegion covered = desk.editor()->mask().translated(desk.editor()->pos());
        return !covered.isEmpty() && box.contains(covered.boundingRect());
    };
    QVERIFY(isWithinItsText());
    desk.type("Light");
    QVERIFY(isWithinItsText());
    desk.strike(Qt::Key_Return);
    QVERIFY(isWithinItsText());
}

void TestTextWriting::lettersOfTheObjectAreNotSeenBesideThoseThatAreTyped()
{
    Desk desk;
    const QColor darkPaper(0, 60, 0);
    CPageBgProp background = desk.page().background();
    background.setFillColor(darkPaper);
    pagehost::setPageBackground(&desk.page(), background);
    desk.window().toolSettings()->setColor(Tool::Text, Qt::white);
    desk.click({500, 300});
    desk.type("Light");
    const QImage drawn = desk.view().viewport()->grab().toImage();
    // The paper of the page is behind them, also left of them and above.
    const QPoint letters = desk.editor()->viewport()->mapTo(desk.view().viewport(), QPoint());
    const QColor paper = drawn.pixelColor(letters + QPoint(1, 1));
    QCOMPARE(paper, darkPaper);
    QCOMPARE(drawn.pixelColor(letters.x() - 1, letters.y() + 5), paper);
    QCOMPARE(drawn.pixelColor(letters.x() + 5, letters.y() - 1), paper);
}

void TestTextWriting::lettersAreWholeAndInTheirPlace_data()
{
    QTest::addColumn<double>("zoom");
    QTest::newRow("93 %") << 0.93;
    QTest::newRow("57 %, where they are larger than their box") << 0.57;
}

void TestTextWriting::lettersAreWholeAndInTheirPlace()
{
    QFETCH(double, zoom);
    Desk desk;
    desk.view().setZoom(zoom);
    const auto start = [&desk] {
        QTextCursor cursor(desk.editor()->document());
        return desk.editor()->viewport()->mapToParent(desk.editor()->cursorRect(cursor).topLeft()) +
               desk.editor()->pos();
    };
    const auto corner = [&desk] {
        return desk.view().mapFromScene(desk.placeOf(desk.page().objects().constFirst()).topLeft());
    };
    desk.click({500, 300});
    QVERIFY((start() - corner()).manhattanLength() <= 2);
    desk.type("Light");
    QVERIFY((start() - corner()).manhattanLength() <= 2);
    const QRegion covered = desk.editor()->mask().translated(desk.editor()->pos());
    QVERIFY(covered.boundingRect().left() <= start().x() + 1);
    const QFontMetrics letters(desk.editor()->font());
    QVERIFY(covered.contains(
        QRect(start() + QPoint(1, 1), QSize(letters.horizontalAdvance("Light"), letters.height() - 1))));
}

void TestTextWriting::theBarOfLettersMovesToTheNextText()
{
    Desk desk;
    const auto *bar = desk.window().findChild<board::TypingBar *>();
    desk.write({500, 300}, "Light");
    const QRect before = bar->geometry();
    desk.tools().choose(Tool::Text);
    desk.click({900, 600});
    QCoreApplication::processEvents();
    QVERIFY(bar->isVisible());
    const QRect frame = desk.editor()->geometry().translated(desk.view().viewport()->pos());
    QCOMPARE(frame.top() - bar->geometry().bottom() - 1, 12);
    QVERIFY(bar->geometry().left() > before.left());
    QCOMPARE(bar->geometry().size(), before.size());
}

void TestTextWriting::aHyphenAndASpaceBeginAList()
{
    Desk desk;
    desk.click({500, 300});
    desk.type("- Light");
    desk.strike(Qt::Key_Return);
    desk.type("a - b");
    desk.end();
    QCOMPARE(desk.written(0), QString::fromUtf8("• Light\n• a - b"));
}

void TestTextWriting::theReturnKeyContinuesAList()
{
    Desk desk;
    desk.click({500, 300});
    desk.type("9. Light");
    desk.strike(Qt::Key_Return);
    desk.type("Shadow");
    desk.strike(Qt::Key_Return);
    QCOMPARE(desk.written(0), QString("9. Light\n10. Shadow\n11. "));
    // An item without text ends the list.
    desk.strike(Qt::Key_Return);
    desk.type("End");
    desk.strike(Qt::Key_Return);
    desk.type("of it");
    desk.end();
    QCOMPARE(desk.written(0), QString("9. Light\n10. Shadow\nEnd\nof it"));
    QCOMPARE(desk.history().count(), 1);
}

void TestTextWriting::itemsAreNumberedAnew()
{
    Desk desk;
    desk.click({500, 300});
    desk.type("1. one");
    desk.strike(Qt::Key_Return);
    desk.type("three");
    desk.strike(Qt::Key_Up);
    desk.strike(Qt::Key_End);
    desk.strike(Qt::Key_Return);
    desk.type("two");
    desk.end();
    QCOMPARE(desk.written(0), QString("1. one\n2. two\n3. three"));
}

void TestTextWriting::aKeyChangesTheKindOfList()
{
    Desk desk;
    desk.click({500, 300});
    desk.type("one");
    desk.strike(Qt::Key_Return);
    desk.type("two");
    desk.strike(Qt::Key_A, Qt::ControlModifier);
    const auto change = [&desk] {
        desk.strike(Qt::Key_L, Qt::ControlModifier | Qt::ShiftModifier);
        return desk.written(0);
    };
    QCOMPARE(change(), QString::fromUtf8("• one\n• two"));
    QCOMPARE(change(), QString("1. one\n2. two"));
    QCOMPARE(change(), QString("one\ntwo"));
    desk.end();
}

void TestTextWriting::pastedListsKeepTheirMarks()
{
    Desk desk;
    desk.click({500, 300});
    auto *copied = new QMimeData;
    copied->setHtml(
        "<p>Needed:</p><ul><li>a <b>lamp</b></li><li>a lens</li></ul><ol><li>dim</li><li>look</li></ol>");
    QGuiApplication::clipboard()->setMimeData(copied);
    desk.strike(Qt::Key_V, Qt::ControlModifier);
    desk.end();
    QCOMPARE(desk.written(0), QString::fromUtf8("Needed:\n• a lamp\n• a lens\n1. dim\n2. look"));
}

void TestTextWriting::pastedTextLosesItsFormats()
{
    Desk desk;
    desk.click({500, 300});
    auto *copied = new QMimeData;
    copied->setHtml("<h1>Light</h1>is<br><i>fast</i>&nbsp;<img src=\"x.png\">");
    copied->setText("unused");
    QGuiApplication::clipboard()->setMimeData(copied);
    desk.strike(Qt::Key_V, Qt::ControlModifier);
    QCOMPARE(desk.written(0), QString("Light\nis\nfast "));
    desk.strike(Qt::Key_A, Qt::ControlModifier);
    QGuiApplication::clipboard()->setText("<b>plain</b>");
    desk.strike(Qt::Key_V, Qt::ControlModifier);
    desk.end();
    QCOMPARE(desk.written(0), QString("<b>plain</b>"));
}

void TestTextWriting::plainPasteLeavesMarksOfListsOut()
{
    Desk desk;
    auto *data = new QMimeData;
    data->setHtml("<ul><li>one</li><li>two</li></ul>");
    data->setText("one, two");
    QGuiApplication::clipboard()->setMimeData(data);
    desk.click({500, 300});
    desk.strike(Qt::Key_V, Qt::ControlModifier | Qt::ShiftModifier);
    QCOMPARE(desk.written(0), QString("one, two"));
}

void TestTextWriting::exponentsAndIndicesAreRaisedAndLowered_data()
{
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("written");
    QTest::newRow("square") << "x^2+1"
                            << "x²+1";
    QTest::newRow("unit") << "10 cm^3"
                          << "10 cm³";
    QTest::newRow("bracket") << "(a+b)^n"
                             << "(a+b)ⁿ";
    QTest::newRow("two digits") << "10^1^2"
                                << "10¹²";
    QTest::newRow("negative") << "s^-^1"
                              << "s⁻¹";
    QTest::newRow("water") << "H_2O"
                           << "H₂O";
    QTest::newRow("symbol of two letters") << "Cl_2"
                                           << "Cl₂";
    QTest::newRow("variable") << "a_n+a_1_0"
                              << "aₙ+a₁₀";
    QTest::newRow("charge") << "Ca^2^+"
                            << "Ca²⁺";
    QTest::newRow("without a counterpart") << "x_q x^Q"
                                           << "x_q x^Q";
    QTest::newRow("name of a file") << "file_1"
                                    << "file_1";
    QTest::newRow("two short words") << "is_a"
                                     << "is_a";
    QTest::newRow("several words") << "to_be_1"
                                   << "to_be_1";
    QTest::newRow("nothing to raise") << "^2 _2 ^ 2"
                                      << "^2 _2 ^ 2";
}

void TestTextWriting::exponentsAndIndicesAreRaisedAndLowered()
{
    QFETCH(QString, typed);
    QFETCH(QString, written);
    Desk desk;
    desk.click({500, 300});
    desk.type(typed);
    QCOMPARE(desk.written(0), written);
}

void TestTextWriting::oneStepBringsTheTypedCharactersBack()
{
    Desk desk;
    desk.click({500, 300});
    desk.type("x^2");
    QCOMPARE(desk.written(0), QString("x²"));
    desk.strike(Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(desk.written(0), QString("x^2"));
    desk.type("y");
    QCOMPARE(desk.written(0), QString("x^2y"));
}

QTEST_MAIN(TestTextWriting)
#include "test_textwriting.moc"

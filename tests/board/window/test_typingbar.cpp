// The bar beside a text that is being written: what it shows, what it changes, and that the text keeps the keys.

#include <board/boarddriver.h>
#include <board/panelobject.h>

#include <core/toolchoice.h>
#include <look/theme.h>
#include <page/labeleditor.h>
#include <page/labelwriting.h>
#include <page/pageview.h>
#include <panels/colorbutton.h>
#include <panels/findbar.h>
#include <panels/foldingsection.h>
#include <panels/settings/settingspanel.h>
#include <window/drawer.h>
#include <window/mainwindow.h>
#include <window/typingbar.h>

#include <pagehost/page.h>
#include <pagehost/style.h>

#include <framework/cbaseobject.h>

#include <support/listed.h>
#include <support/virtualtime.h>

#include <QtCore/QSettings>
#include <QtGui/QClipboard>
#include <QtTest/QtTest>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QMenu>
#include <QtWidgets/QToolButton>
#include <QtWidgets/QUndoStack>

using namespace boardtest;
using board::Tool;

namespace {

/// A board on which a new text is being written at (500, 300).
struct Writing
{
    Writing()
    {
        board.window().tools()->choose(Tool::Text);
        board.click({500, 300});
        support::deliverEvents();
    }
    board::LabelEditor *editor() const { return board.view().writing()->editor(); }
    CBaseObject *text() const { return board.page().objects().value(0); }
    void type(const QString &letters) { board.type(editor(), letters); }
    void end() { board.keyIn(editor(), Qt::Key_Escape); }
    void writeAgain()
    {
        QVERIFY(board.view().writeFirstLabel());
        support::deliverEvents();
    }
    template<typename Control = QToolButton> Control *control(const QString &name) const
    {
        for (Control *candidate : support::listed(bar->findChildren<Control *>()))
            if (candidate->accessibleName() == name && candidate->isVisible())
                return candidate;
        return nullptr;
    }
    QStringList names() const
    {
        QStringList names;
        for (const QToolButton *button : support::listed(bar->findChildren<QToolButton *>()))
            if (button->isVisible())
                names.append(button->accessibleName());
        return names;
    }
    void press(const QString &name)
    {
        QVERIFY2(control(name), qPrintable(name));
        board.clickOn(control(name));
        support::deliverEvents();
    }
    void choose(const QString &name, const QString &entry)
    {
        QVERIFY2(control(name), qPrintable(name));
        for (QAction *action : support::listed(control(name)->menu()->actions()))
            if (action->text() == entry)
                action->trigger();
        support::deliverEvents();
    }
    /// The entries as they are shown, without the letters for Alt.
    QMenu *open(const QString &name) const
    {
        QMenu *menu = control(name) ? control(name)->menu() : nullptr;
        if (menu)
            Q_EMIT menu->aboutToShow();
        return menu;
    }
    QAction *family(const QString &name) const
    {
        for (QAction *action : support::listed(open("Font")->actions()))
            if (!action->isSeparator() && action->data().toString() == name)
                return action;
        return nullptr;
    }
    void chooseFamily(const QString &name)
    {
        QVERIFY2(family(name), qPrintable(name));
        family(name)->trigger();
        support::deliverEvents();
    }
    QString chosenFamily() const
    {
        QString json;
        text()->GetSettingJson(json);
        for (const board::SettingControl &setting : support::listed(board::parseSettings(json)))
            if (setting.id == "idFont")
                return setting.value.toString();
        return QStringLiteral("no such setting");
    }
    QAction *entry(const QString &text) const
    {
        for (QAction *action : support::listed(open("More")->actions()))
            if (action->text().section('\t', 0, 0) == text)
                return action;
        return nullptr;
    }
    board::EditableLabel label() const { return board::labelsOf(*text()).constFirst(); }
    bool isSet(const QString &id) const
    {
        QString json;
        text()->GetSettingJson(json);
        for (const board::SettingControl &setting : support::listed(board::parseSettings(json)))
            if (setting.id == id)
                return setting.value.toBool();
        return false;
    }

    BoardDriver board;
    board::TypingBar *bar = board.window().findChild<board::TypingBar *>();
};

/// With a text, and with settings that have nothing to do with it.
class LabelledObject : public PanelObject
{
public:
    bool GetSpecialProperty(int id, QDataStream &out) override
    {
        if (id != pagehost::LabelPlaces)
            return PanelObject::GetSpecialProperty(id, out);
        out << qint32(1) << qint32(textId) << text << QRectF(0, 0, 80, 60) << 12.0 << false << true
            << QColor(Qt::black) << qint32(Qt::AlignCenter);
        return true;
    }
};

} // namespace

class TestTypingBar : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { useOwnFolders(); }
    void init()
    {
        QSettings().clear();
        board::applyLargeSizes(false);
    }
    void cleanup() { QApplication::setLayoutDirection(Qt::LeftToRight); }
    void barShowsWhileATextIsWritten();
    void barHasTheLettersOfTheText();
    void barStandsBesideTheTextAndStaysWhileItGrows();
    void pressedButtonLeavesTheKeysInTheText();
    void sizeIsChosenWhileTheTextIsWritten();
    void fontsAreThoseOfTheMachine();
    void fontsAreShownInThemselves();
    void presentFontIsChecked();
    void fontThatIsElsewhereStaysInTheMenu();
    void fontIsChosenWhileTheTextIsWritten();
    void fontOfATextIsThatOfItsEditorAgain();
    void fontOfAnOlderTextIsAStepOfItsOwn();
    void presentFontAgainIsNoStep();
    void longNameOfAFontIsCut();
    void fontIsChosenInThePanel();
    void plainLettersArePastedFromTheMenu();
    void nothingIsPastedFromAnEmptyClipboard();
    void findingBeginsFromTheMenu();
    void panelOpensAtTheSettingsOfTheText();
    void barFitsSmallWindows_data();
    void barFitsSmallWindows();
    void barBeginsAtTheRight();
    void italicAndUnderlineShowInTheEditor();
    void colourIsChosenWhileTheTextIsWritten();
    void alignmentIsChosenWhileTheTextIsWritten();
    void listIsMadeOfTheLines();
    void linkIsAskedFor();
    void keysOfTextPrograms_data();
    void keysOfTextPrograms();
    void newTextAndItsLookAreOneStep();
    void emptyTextWithALookVanishesWithoutATrace();
    void lookOfAnOlderTextIsAStepOfItsOwn();
    void labelWithoutSettingsHasNoBar();
    void lettersOfOneCellAreThoseOfAllCells();
};

void TestTypingBar::barShowsWhileATextIsWritten()
{
    Writing t;
    QVERIFY(t.bar->isVisible());
    t.type("Light");
    QVERIFY(t.bar->isVisible());
    t.end();
    QVERIFY(!t.bar->isVisible());
    t.writeAgain();
    QVERIFY(t.bar->isVisible());
    t.board.click({100, 600});
    QVERIFY(!t.bar->isVisible());
}

void TestTypingBar::barHasTheLettersOfTheText()
{
    const Writing t;
    QCOMPARE(t.names(), (QStringList{"Font", "Font size", "Bold", "Italic", "Underlined", "List", "Link",
                                     "Alignment", "Text colour", "More"}));
    QCOMPARE(t.control("Font")->text(), QString("Standard"));
    QCOMPARE(t.control("Font size")->text(), QString("24"));
    QCOMPARE(t.control("Bold")->text(), QString("B"));
    QVERIFY(!t.control("Bold")->isChecked());
}

void TestTypingBar::barStandsBesideTheTextAndStaysWhileItGrows()
{
    Writing t;
    const QRect before = t.bar->geometry();
    const auto frame = [&] { return t.editor()->geometry().translated(t.board.view().viewport()->pos()); };
    QCOMPARE(before.height(), 40);
    QCOMPARE(frame().top() - before.bottom() - 1, 12);
    t.type("wonderful");
    support::deliverEvents();
    QCOMPARE(t.bar->geometry(), before);
    t.choose("Font size", "96");
    QVERIFY(!t.bar->geometry().intersects(frame()));
    QVERIFY(t.board.view().rect().contains(t.bar->geometry()));
}

void TestTypingBar::pressedButtonLeavesTheKeysInTheText()
{
    Writing t;
    t.type("Light");
    t.press("Bold");
    QVERIFY(t.editor());
    QVERIFY(t.editor()->hasFocus());
    QVERIFY(t.label().isBold);
    QVERIFY(t.control("Bold")->isChecked());
    QVERIFY(t.editor()->font().bold());
    t.type(" rays");
    QCOMPARE(t.label().text, QString("Light rays"));
    t.press("Bold");
    QVERIFY(!t.label().isBold && !t.editor()->font().bold());
    QCOMPARE(t.editor()->toPlainText(), QString("Light rays"));
}

void TestTypingBar::sizeIsChosenWhileTheTextIsWritten()
{
    Writing t;
    t.type("Light");
    const int before = t.editor()->font().pixelSize();
    t.choose("Font size", "48");
    QCOMPARE(t.label().fontSize, 48.0);
    QCOMPARE(t.control("Font size")->text(), QString("48"));
    QCOMPARE(t.editor()->font().pixelSize(), qRound(48 * t.board.view().zoom()));
    QVERIFY(t.editor()->font().pixelSize() > before);
    QVERIFY(t.editor()->height() > t.editor()->font().pixelSize());
    QVERIFY(t.editor()->hasFocus());
}

void TestTypingBar::fontsAreThoseOfTheMachine()
{
    const Writing t;
    QStringList families;
    QStringList shown;
    for (const QAction *action : support::listed(t.open("Font")->actions())) {
        families.append(action->isSeparator() ? QString("-") : action->data().toString());
        shown.append(action->text());
    }
    QCOMPARE(families.mid(0, 2), (QStringList{"", "-"}));
    QCOMPARE(shown.first(), QString("Standard"));
    for (const char *family : {"DejaVu Sans", "DejaVu Sans Mono", "DejaVu Serif"})
        QCOMPARE(families.count(family), 1);
    QStringList once = families;
    once.removeDuplicates();
    QCOMPARE(families, once);
    for (const char *alias : {"Serif", "Sans Serif", "Monospace"})
        QVERIFY2(!families.contains(alias), alias);
    QVERIFY(!families.join('|').contains('['));
}

void TestTypingBar::fontsAreShownInThemselves()
{
    const Writing t;
    QCOMPARE(t.family("DejaVu Serif")->font().family(), QString("DejaVu Serif"));
    QCOMPARE(t.family("DejaVu Sans Mono")->font().family(), QString("DejaVu Sans Mono"));
    QCOMPARE(t.family("")->font().family(), t.control("Font")->menu()->font().family());
}

void TestTypingBar::presentFontIsChecked()
{
    Writing t;
    QVERIFY(t.family("")->isChecked());
    t.chooseFamily("DejaVu Serif");
    QVERIFY(t.family("DejaVu Serif")->isChecked());
    QVERIFY(!t.family("")->isChecked() && !t.family("DejaVu Sans")->isChecked());
}

void TestTypingBar::fontThatIsElsewhereStaysInTheMenu()
{
    Writing t;
    t.type("Light");
    t.end();
    t.text()->SetSettingJson("{\"idFont\": \"Letters of Elsewhere\"}", true, true);
    t.writeAgain();
    QVERIFY(t.family("Letters of Elsewhere") && t.family("Letters of Elsewhere")->isChecked());
    t.chooseFamily("");
    QCOMPARE(t.chosenFamily(), QString());
    QVERIFY(!t.family("Letters of Elsewhere"));
}

void TestTypingBar::fontIsChosenWhileTheTextIsWritten()
{
    Writing t;
    t.type("illi");
    const double before = t.text()->getClientRect().width();
    t.chooseFamily("DejaVu Sans Mono");
    QCOMPARE(t.chosenFamily(), QString("DejaVu Sans Mono"));
    QCOMPARE(t.control("Font")->accessibleDescription(), QString("DejaVu Sans Mono"));
    QVERIFY(t.editor()->hasFocus());
    QCOMPARE(QFontInfo(t.editor()->font()).family(), QString("DejaVu Sans Mono"));
    QVERIFY(t.text()->getClientRect().width() > 1.5 * before);
    t.type("x");
    QCOMPARE(t.label().text, QString("illix"));
    t.chooseFamily("");
    QCOMPARE(t.control("Font")->text(), QString("Standard"));
    QCOMPARE(QFontInfo(t.editor()->font()).family(), QFontInfo(QFont("sans-serif")).family());
    t.end();
    QCOMPARE(t.board.history().count(), 1);
}

void TestTypingBar::fontOfATextIsThatOfItsEditorAgain()
{
    Writing t;
    t.type("Light");
    t.chooseFamily("DejaVu Serif");
    t.end();
    t.writeAgain();
    QCOMPARE(t.control("Font")->accessibleDescription(), QString("DejaVu Serif"));
    QCOMPARE(QFontInfo(t.editor()->font()).family(), QString("DejaVu Serif"));
}

void TestTypingBar::fontOfAnOlderTextIsAStepOfItsOwn()
{
    Writing t;
    t.type("Light");
    t.end();
    t.writeAgain();
    t.chooseFamily("DejaVu Serif");
    t.end();
    QCOMPARE(t.board.history().count(), 2);
    t.board.history().undo();
    QCOMPARE(t.chosenFamily(), QString());
    t.board.history().redo();
    QCOMPARE(t.chosenFamily(), QString("DejaVu Serif"));
}

void TestTypingBar::presentFontAgainIsNoStep()
{
    Writing t;
    t.type("Light");
    t.end();
    t.writeAgain();
    t.chooseFamily("");
    QCOMPARE(t.board.history().count(), 1);
}

void TestTypingBar::longNameOfAFontIsCut()
{
    Writing t;
    const int width = t.control("Font")->width();
    t.type("Light");
    t.end();
    t.text()->SetSettingJson("{\"idFont\": \"Letters of Elsewhere With a Long Name\"}", true, true);
    t.writeAgain();
    QCOMPARE(t.control("Font")->width(), width);
    QVERIFY(t.control("Font")->text().endsWith(QChar(0x2026)));
    QVERIFY(t.control("Font")->fontMetrics().horizontalAdvance(t.control("Font")->text()) < width);
    QCOMPARE(t.control("Font")->accessibleDescription(), QString("Letters of Elsewhere With a Long Name"));
}

void TestTypingBar::fontIsChosenInThePanel()
{
    Writing t;
    t.type("Light");
    t.end();
    QComboBox *box = nullptr;
    for (QComboBox *candidate : support::listed(t.board.window().panel()->findChildren<QComboBox *>()))
        if (candidate->accessibleName() == "Font")
            box = candidate;
    QVERIFY(box);
    QCOMPARE(box->currentText(), QString("Standard"));
    const int index = box->findText("DejaVu Serif");
    QVERIFY(index > 0);
    Q_EMIT box->activated(index);
    support::deliverEvents();
    QCOMPARE(t.chosenFamily(), QString("DejaVu Serif"));
    QCOMPARE(box->currentText(), QString("DejaVu Serif"));
    t.text()->SetSettingJson("{\"idFont\": \"Letters of Elsewhere\"}", true, true);
    support::deliverEvents();
    QCOMPARE(box->currentText(), QString("Letters of Elsewhere"));
}

void TestTypingBar::plainLettersArePastedFromTheMenu()
{
    Writing t;
    QGuiApplication::clipboard()->setText(QString(u8"• Light"));
    QVERIFY(t.entry("Paste letters alone") && t.entry("Paste letters alone")->isEnabled());
    t.entry("Paste letters alone")->trigger();
    QCOMPARE(t.label().text, QString(u8"• Light"));
    QVERIFY(t.editor()->hasFocus());
}

void TestTypingBar::nothingIsPastedFromAnEmptyClipboard()
{
    const Writing t;
    QGuiApplication::clipboard()->clear();
    QVERIFY(!t.entry("Paste letters alone")->isEnabled());
}

void TestTypingBar::findingBeginsFromTheMenu()
{
    Writing t;
    t.type("Light");
    QVERIFY(t.entry(QString(u8"Replace…")));
    t.entry(QString(u8"Find…"))->trigger();
    support::deliverEvents();
    QVERIFY(t.board.window().findBar()->isVisible());
    QCOMPARE(t.label().text, QString("Light"));
}

void TestTypingBar::panelOpensAtTheSettingsOfTheText()
{
    Writing t;
    t.type("Light");
    board::Drawer *panel = t.board.window().panel();
    panel->setPinned(false);
    panel->setOpen(false);
    board::FoldingSection *section = nullptr;
    for (board::FoldingSection *candidate : support::listed(panel->findChildren<board::FoldingSection *>()))
        if (qobject_cast<board::SettingsPanel *>(candidate->content()))
            section = candidate;
    QVERIFY(section);
    section->setOpen(false);
    t.writeAgain();
    t.board.keyIn(t.editor(), Qt::Key_End);
    t.entry("All settings of the text")->trigger();
    support::deliverEvents();
    QVERIFY(panel->isOpen());
    QVERIFY(section->isVisible() && section->isOpen());
    QVERIFY(!section->visibleRegion().isEmpty());
    QVERIFY(t.editor() && t.editor()->hasFocus());
    t.type(" rays");
    QCOMPARE(t.label().text, QString("Light rays"));
}

void TestTypingBar::barFitsSmallWindows_data()
{
    QTest::addColumn<bool>("large");
    QTest::newRow("mouse") << false;
    QTest::newRow("fingers") << true;
}

void TestTypingBar::barFitsSmallWindows()
{
    QFETCH(bool, large);
    Writing t;
    t.end();
    t.board.window().setLargeTools(large);
    t.board.window().panel()->setPinned(false);
    t.board.window().panel()->setOpen(false);
    t.board.window().resize(960, 540);
    support::deliverEvents();
    t.board.view().fitPage();
    for (const QPointF &place : {QPointF(60, 60), QPointF(1100, 60), QPointF(60, 650), QPointF(1100, 650)}) {
        t.board.window().tools()->choose(Tool::Text);
        t.board.click(place);
        support::deliverEvents();
        const QRect room = t.board.view().viewport()->geometry();
        QVERIFY2(t.bar->isVisible() && room.contains(t.bar->geometry()),
                 qPrintable(QTest::toString(t.bar->geometry())));
        for (const QToolButton *button : support::listed(t.bar->findChildren<QToolButton *>()))
            QVERIFY2(!button->isVisible() ||
                         t.bar->rect().contains(QRect(button->mapTo(t.bar, QPoint()), button->size())),
                     qPrintable(button->accessibleName()));
        t.end();
    }
}

void TestTypingBar::barBeginsAtTheRight()
{
    QApplication::setLayoutDirection(Qt::RightToLeft);
    const Writing t;
    int end = t.bar->width();
    for (const QString &name : support::listed(t.names())) {
        const QWidget *button = t.control(name);
        const int left = button->mapTo(t.bar, QPoint()).x();
        QVERIFY2(left + button->width() <= end, qPrintable(name));
        end = left;
    }
}

void TestTypingBar::italicAndUnderlineShowInTheEditor()
{
    Writing t;
    t.type("Light");
    t.press("Italic");
    t.press("Underlined");
    QVERIFY(t.isSet("idItalic") && t.isSet("idUnderlined"));
    QVERIFY(t.editor()->font().italic() && t.editor()->font().underline());
    t.end();
    t.writeAgain();
    QVERIFY(t.control("Italic")->isChecked());
    QVERIFY(t.editor()->font().italic() && t.editor()->font().underline());
}

void TestTypingBar::colourIsChosenWhileTheTextIsWritten()
{
    Writing t;
    t.type("Light");
    auto *button = t.control<board::ColorButton>("Text colour");
    QVERIFY(button);
    Q_EMIT button->colorPicked(QColor(200, 0, 0));
    QCOMPARE(pagehost::styleOf(t.text()).penColor, QColor(200, 0, 0));
    QCOMPARE(t.label().color, QColor(200, 0, 0));
    QVERIFY(t.editor()->hasFocus());
    QVERIFY(t.editor()->styleSheet().contains("#c80000"));
}

void TestTypingBar::alignmentIsChosenWhileTheTextIsWritten()
{
    Writing t;
    t.type("Light");
    t.choose("Alignment", "Right");
    QVERIFY(t.label().alignment & Qt::AlignRight);
    QVERIFY(t.editor()->document()->defaultTextOption().alignment() & Qt::AlignRight);
}

void TestTypingBar::listIsMadeOfTheLines()
{
    Writing t;
    t.type("Light");
    t.press("List");
    QCOMPARE(t.label().text, QString(u8"• Light"));
    t.press("List");
    QCOMPARE(t.label().text, QString("1. Light"));
    t.press("List");
    QCOMPARE(t.label().text, QString("Light"));
    QVERIFY(t.editor()->hasFocus());
}

void TestTypingBar::linkIsAskedFor()
{
    Writing t;
    t.type("Light");
    t.press("Link");
    auto *field = t.board.view().findChild<QLineEdit *>("linkAddress");
    QVERIFY(field && field->isVisible() && field->hasFocus());
    t.press("Link");
    QCOMPARE(t.board.view().findChildren<QLineEdit *>("linkAddress").size(), 1);
    QVERIFY(t.editor());
}

void TestTypingBar::keysOfTextPrograms_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<QString>("id");
    QTest::newRow("bold") << int(Qt::Key_B) << "idBold";
    QTest::newRow("italic") << int(Qt::Key_I) << "idItalic";
    QTest::newRow("underlined") << int(Qt::Key_U) << "idUnderlined";
}

void TestTypingBar::keysOfTextPrograms()
{
    QFETCH(int, key);
    QFETCH(QString, id);
    Writing t;
    t.type("Light");
    t.board.keyIn(t.editor(), static_cast<Qt::Key>(key), Qt::ControlModifier);
    QVERIFY(t.isSet(id));
    t.board.keyIn(t.editor(), static_cast<Qt::Key>(key), Qt::ControlModifier);
    QVERIFY(!t.isSet(id));
    QCOMPARE(t.label().text, QString("Light"));
}

void TestTypingBar::newTextAndItsLookAreOneStep()
{
    Writing t;
    t.type("Light");
    t.press("Bold");
    t.end();
    QCOMPARE(t.board.history().count(), 1);
    t.board.history().undo();
    QCOMPARE(t.board.page().objectCount(), 0);
    t.board.history().redo();
    QCOMPARE(t.label().text, QString("Light"));
    QVERIFY(t.label().isBold);
}

void TestTypingBar::emptyTextWithALookVanishesWithoutATrace()
{
    Writing t;
    t.press("Bold");
    t.end();
    QCOMPARE(t.board.page().objectCount(), 0);
    QCOMPARE(t.board.history().count(), 0);
}

void TestTypingBar::lookOfAnOlderTextIsAStepOfItsOwn()
{
    Writing t;
    t.type("Light");
    t.end();
    t.writeAgain();
    t.type("Shadow");
    t.press("Bold");
    t.end();
    QCOMPARE(t.board.history().count(), 3);
    QVERIFY(t.label().isBold);
    t.board.history().undo();
    QCOMPARE(t.label().text, QString("Light"));
    QVERIFY(t.label().isBold);
    t.board.history().undo();
    QVERIFY(!t.label().isBold);
    t.board.history().redo();
    t.board.history().redo();
    QCOMPARE(t.label().text, QString("Shadow"));
    QVERIFY(t.label().isBold);
}

void TestTypingBar::labelWithoutSettingsHasNoBar()
{
    Writing t;
    t.end();
    auto *object = new LabelledObject;
    t.board.page().addObject(object);
    t.board.page().select({object});
    QVERIFY(t.board.view().writeFirstLabel());
    support::deliverEvents();
    QVERIFY(t.editor());
    QVERIFY(!t.bar->isVisible());
    t.end();
}

void TestTypingBar::lettersOfOneCellAreThoseOfAllCells()
{
    Writing t;
    t.end();
    CBaseObject *table = t.board.draw("shapes.table", {300, 200}, {480, 320});
    t.board.history().clear();
    const auto cell = [&](int index) { return board::labelsOf(*table).at(index); };
    t.board.doubleClick(table->mapToScene(cell(4).box.center()));
    support::deliverEvents();
    t.type("Sum");
    QVERIFY(t.bar->isVisible());
    QCOMPARE(t.control("Font size")->text(), QString("12"));
    t.board.keyIn(t.editor(), Qt::Key_B, Qt::ControlModifier);
    t.press("Italic");
    t.choose("Font size", "16");
    QVERIFY(t.editor()->font().bold() && t.editor()->font().italic());
    t.end();
    for (int index = 0; index < 12; ++index) {
        QVERIFY(cell(index).isBold);
        QCOMPARE(cell(index).fontSize, 16.0);
    }
    QCOMPARE(cell(4).text, QString("Sum"));
    // Bold, italic, size and the text.
    QCOMPARE(t.board.history().count(), 4);
    for (int step = 0; step < 4; ++step)
        t.board.key(Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(cell(4).text, QString());
    QVERIFY(!cell(4).isBold);
    QCOMPARE(cell(4).fontSize, 12.0);
}

QTEST_MAIN(TestTypingBar)
#include "test_typingbar.moc"

// The bar beside a text that is being written: what it shows, what it changes, and that the text keeps the keys.

#include <board/boarddriver.h>
#include <board/panelobject.h>

#include <core/toolchoice.h>
#include <page/labeleditor.h>
#include <page/labelwriting.h>
#include <page/pageview.h>
#include <panels/colorbutton.h>
#include <window/mainwindow.h>
#include <window/typingbar.h>

#include <pagehost/page.h>
#include <pagehost/style.h>

#include <framework/cbaseobject.h>

#include <support/listed.h>
#include <support/virtualtime.h>

#include <QtCore/QSettings>
#include <QtTest/QtTest>
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
    void init() { QSettings().clear(); }
    void barShowsWhileATextIsWritten();
    void barHasTheLettersOfTheText();
    void barStandsBesideTheTextAndStaysWhileItGrows();
    void pressedButtonLeavesTheKeysInTheText();
    void sizeIsChosenWhileTheTextIsWritten();
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
    QCOMPARE(t.names(), (QStringList{"Font size", "Bold", "Italic", "Underlined", "List", "Link", "Alignment",
                                     "Text colour"}));
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

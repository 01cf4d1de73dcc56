// F1: all keys, and the user's changes to them.

#include <board/boarddriver.h>

#include <commands/keysdialog.h>
#include <core/commands.h>
#include <core/mnemonics.h>
#include <window/mainwindow.h>

#include <pagehost/page.h>

#include <support/listed.h>

#include <QtCore/QSettings>
#include <QtTest/QtTest>
#include <QtWidgets/QAction>
#include <QtWidgets/QCheckBox>
#include <QtWidgets/QKeySequenceEdit>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QTreeWidget>

using namespace boardtest;
using board::Command;
using Keys = QList<QKeySequence>;

namespace {

/// The dialog, opened by its key.
struct Changing
{
    BoardDriver board;
    board::Commands &commands = *board.window().commands();

    Changing()
    {
        board.draw(rectangle, {500, 300}, {700, 420});
        board.key(Qt::Key_F1);
    }
    board::KeysDialog &dialog() const { return *board.window().findChild<board::KeysDialog *>(); }
    void typeKey(Qt::Key key, Qt::KeyboardModifiers modifiers) const
    {
        QTest::keyClick(dialog().newKey(), key, modifiers);
    }
    void push(const QString &text) const
    {
        for (QPushButton *button : support::listed(dialog().findChildren<QPushButton *>()))
            if (board::withoutMnemonic(button->text()) == text)
                QTest::mouseClick(button, Qt::LeftButton);
    }
    QVector<QTreeWidgetItem *> rows() const
    {
        QVector<QTreeWidgetItem *> rows;
        for (QTreeWidgetItemIterator it(dialog().list()); *it; ++it)
            if ((*it)->parent() && !(*it)->isHidden())
                rows.append(*it);
        return rows;
    }
    QString keysOf(const QString &name) const
    {
        for (const QTreeWidgetItem *row : support::listed(rows()))
            if (row->text(0) == name)
                return row->text(1);
        return "no such row";
    }
};

} // namespace

class TestKeysDialog : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void everyCommandIsListedWithItsKeys();
    void searchFindsByNameAndByKey();
    void newKeyActsAtOnce();
    void keyIsAddedToThoseThatAreThere();
    void commandThatHasTheKeyIsNamed();
    void keysAreRemovedAndReset();
    void everythingIsReset();
    void lettersAreSwitchedOff();
    void buttonsNeedACommand();
    void secondPressShowsTheSameDialog();
};

void TestKeysDialog::init()
{
    useOwnFolders();
    QSettings().clear();
}

void TestKeysDialog::everyCommandIsListedWithItsKeys()
{
    const Changing t;
    QCOMPARE(t.rows().size(), t.commands.performed().size());
    QCOMPARE(t.keysOf("Duplicate"), QString("Ctrl+D"));
    QCOMPARE(t.keysOf("Delete"), QString("Del, Backspace"));
    QCOMPARE(t.keysOf("Align left edges"), QString());
}

void TestKeysDialog::searchFindsByNameAndByKey()
{
    const Changing t;
    t.dialog().search()->setText("duplicate");
    QCOMPARE(t.rows().size(), 2);
    t.dialog().search()->setText("ctrl+shift+d");
    QCOMPARE(t.rows().size(), 1);
    QCOMPARE(t.rows().constFirst()->text(0), QString("Duplicate page"));
    QCOMPARE(t.rows().constFirst()->parent()->isHidden(), false);
    int titles = 0;
    for (int i = 0; i < t.dialog().list()->topLevelItemCount(); ++i)
        titles += t.dialog().list()->topLevelItem(i)->isHidden() ? 0 : 1;
    QCOMPARE(titles, 1);
}

void TestKeysDialog::newKeyActsAtOnce()
{
    Changing t;
    t.dialog().choose(Command::Duplicate);
    t.typeKey(Qt::Key_J, Qt::ControlModifier);
    QVERIFY(t.dialog().conflict()->text().isEmpty());
    t.push("Use it");
    QCOMPARE(t.keysOf("Duplicate"), QString("Ctrl+J"));
    QVERIFY(t.dialog().newKey()->keySequence().isEmpty());
    t.dialog().close();
    t.board.key(Qt::Key_J, Qt::ControlModifier);
    QCOMPARE(t.board.page().objectCount(), 2);
    t.board.key(Qt::Key_D, Qt::ControlModifier);
    QCOMPARE(t.board.page().objectCount(), 2);
}

void TestKeysDialog::keyIsAddedToThoseThatAreThere()
{
    const Changing t;
    t.dialog().choose(Command::Duplicate);
    t.typeKey(Qt::Key_J, Qt::ControlModifier);
    t.push("Add it");
    QCOMPARE(t.keysOf("Duplicate"), QString("Ctrl+D, Ctrl+J"));
}

void TestKeysDialog::commandThatHasTheKeyIsNamed()
{
    const Changing t;
    t.dialog().choose(Command::Duplicate);
    t.typeKey(Qt::Key_M, Qt::ControlModifier);
    QCOMPARE(t.dialog().conflict()->text(),
             QString("Ctrl+M belongs to “Mirror left to right”, which will lose it."));
    QCOMPARE(t.keysOf("Mirror left to right"), QString("Ctrl+M"));
    t.push("Use it");
    QCOMPARE(t.keysOf("Mirror left to right"), QString());
    QCOMPARE(t.keysOf("Duplicate"), QString("Ctrl+M"));
    QVERIFY(t.dialog().conflict()->text().isEmpty());
}

void TestKeysDialog::keysAreRemovedAndReset()
{
    const Changing t;
    t.dialog().choose(Command::Redo);
    t.push("No keys");
    QCOMPARE(t.keysOf("Redo"), QString());
    t.push("Reset");
    QCOMPARE(t.commands.keys(Command::Redo), board::defaultKeys(Command::Redo));
}

void TestKeysDialog::everythingIsReset()
{
    const Changing t;
    t.commands.setKeys(Command::Redo, {});
    t.commands.setKeys(Command::Undo, {QKeySequence("Ctrl+D")});
    t.commands.setLettersAct(false);
    t.push("Reset all");
    QCOMPARE(t.commands.keys(Command::Redo), board::defaultKeys(Command::Redo));
    QCOMPARE(t.keysOf("Duplicate"), QString("Ctrl+D"));
    QVERIFY(t.commands.lettersAct() && t.dialog().letters()->isChecked());
}

void TestKeysDialog::lettersAreSwitchedOff()
{
    const Changing t;
    QVERIFY(t.dialog().letters()->isChecked());
    t.dialog().letters()->click();
    QVERIFY(!t.commands.lettersAct());
    QVERIFY(!t.commands.action(Command::LetterKeys)->isChecked());
    t.commands.action(Command::LetterKeys)->trigger();
    QVERIFY(t.commands.lettersAct());
    QVERIFY(t.dialog().letters()->isChecked());
}

void TestKeysDialog::buttonsNeedACommand()
{
    const Changing t;
    const auto isOn = [&](const QString &text) {
        for (const QPushButton *button : support::listed(t.dialog().findChildren<QPushButton *>()))
            if (board::withoutMnemonic(button->text()) == text)
                return button->isEnabled();
        return false;
    };
    t.dialog().list()->setCurrentItem(t.dialog().list()->topLevelItem(0));
    QVERIFY(!isOn("Use it") && !isOn("Add it") && !isOn("No keys") && !isOn("Reset") && isOn("Reset all"));
    t.dialog().choose(Command::Redo);
    QVERIFY(isOn("Use it") && isOn("Add it") && isOn("No keys") && isOn("Reset"));
}

void TestKeysDialog::secondPressShowsTheSameDialog()
{
    Changing t;
    const board::KeysDialog *first = &t.dialog();
    t.board.key(Qt::Key_F1);
    QCOMPARE(t.board.window().findChildren<board::KeysDialog *>().size(), 1);
    QCOMPARE(&t.dialog(), first);
}

QTEST_MAIN(TestKeysDialog)
#include "test_keysdialog.moc"

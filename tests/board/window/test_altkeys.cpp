// Every entry of a menu and every control of a dialog has a letter of its own, in every language.

#include <board/boarddriver.h>

#include <core/commands.h>
#include <core/mnemonics.h>
#include <core/texts.h>
#include <window/mainwindow.h>

#include <pagehost/page.h>

#include <support/listed.h>

#include <QtCore/QSettings>
#include <QtCore/QTimer>
#include <QtTest/QtTest>
#include <QtWidgets/QAbstractButton>
#include <QtWidgets/QAction>
#include <QtWidgets/QDialog>
#include <QtWidgets/QLabel>
#include <QtWidgets/QMenu>
#include <QtWidgets/QMenuBar>

using namespace boardtest;
using board::Command;

namespace {

/// Texts that have no letter, or the letter of another one.
QStringList faultsOf(const QStringList &texts)
{
    QStringList faults;
    QHash<QChar, QString> owners;
    for (const QString &text : texts) {
        const QChar character = board::mnemonicOf(text);
        if (character.isNull())
            faults.append(QStringLiteral("“%1” has no letter").arg(text));
        else if (owners.contains(character))
            faults.append(QStringLiteral("“%1” and “%2” have the same").arg(owners.value(character), text));
        owners.insert(character, text);
    }
    return faults;
}

QStringList textsOf(const QList<QAction *> &actions)
{
    QStringList texts;
    for (const QAction *action : actions)
        if (action->isVisible() && !action->isSeparator() && !action->text().isEmpty())
            texts.append(action->text());
    return texts;
}

/// Of its buttons and of the labels beside its fields.
QStringList textsOf(const QWidget &dialog)
{
    QStringList texts;
    for (const auto *button : support::listed(dialog.findChildren<QAbstractButton *>()))
        if (!button->isHidden() && !button->text().isEmpty())
            texts.append(button->text());
    for (const auto *label : support::listed(dialog.findChildren<QLabel *>()))
        if (!label->isHidden() && label->buddy())
            texts.append(label->text());
    return texts;
}

QDialog *openDialog(const QWidget &window)
{
    for (auto *dialog : support::listed(window.findChildren<QDialog *>()))
        if (dialog->isVisible())
            return dialog;
    return nullptr;
}

} // namespace

class TestAltKeys : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { useOwnFolders(); }
    void init() { QSettings().clear(); }
    void everyMenuHasItsLetters_data() { languages(); }
    void everyMenuHasItsLetters();
    void everyDialogHasItsLetters_data() { languages(); }
    void everyDialogHasItsLetters();
    void letterChoosesTheEntry();
    void closedMenuLeavesNamesAsTheyWere();

private:
    static void languages()
    {
        QTest::addColumn<QString>("language");
        for (const QString &code : support::listed(board::boardLanguages()))
            QTest::newRow(qPrintable(code)) << code;
    }
};

void TestAltKeys::everyMenuHasItsLetters()
{
    QFETCH(QString, language);
    BoardDriver board(language);
    // With all that menus can have.
    board.draw(rectangle, {500, 300}, {700, 420});
    QStringList faults = faultsOf(textsOf(board.window().menus()->actions()));
    int menus = 0;
    for (QMenu *menu : support::listed(board.window().findChildren<QMenu *>())) {
        menu->popup({0, 0});
        const QStringList found = faultsOf(textsOf(menu->actions()));
        for (const QString &fault : found)
            faults.append(menu->title() + menu->objectName() + QStringLiteral(": ") + fault);
        menu->hide();
        ++menus;
    }
    QVERIFY(menus > 15);
    QVERIFY2(faults.isEmpty(), qPrintable(faults.join('\n')));
}

void TestAltKeys::everyDialogHasItsLetters()
{
    QFETCH(QString, language);
    BoardDriver board(language);
    board.draw(rectangle, {500, 300}, {700, 420});
    QStringList faults;
    int dialogs = 0;
    const auto inspect = [&] {
        QDialog *dialog = openDialog(board.window());
        QVERIFY(dialog);
        const QStringList found = faultsOf(textsOf(*dialog));
        for (const QString &fault : found)
            faults.append(dialog->windowTitle() + QStringLiteral(": ") + fault);
        dialogs += textsOf(*dialog).isEmpty() ? 0 : 1;
        dialog->close();
    };
    // A new board asks whether the present one is saved.
    const QVector<Command> opening{Command::ShowKeys, Command::Export, Command::NewBoard, Command::About};
    for (const Command command : opening) {
        // Some wait for their answer.
        QTimer::singleShot(0, &board.window(), inspect);
        board.window().commands()->action(command)->trigger();
        QCoreApplication::processEvents();
    }
    QCOMPARE(dialogs, opening.size());
    QVERIFY2(faults.isEmpty(), qPrintable(faults.join('\n')));
}

void TestAltKeys::letterChoosesTheEntry()
{
    BoardDriver board;
    board.draw(rectangle, {500, 300}, {700, 420});
    QMenu *menu = board.window().menus()->actions().at(1)->menu();
    menu->popup({0, 0});
    const QAction *copy = board.window().commands()->action(Command::Duplicate);
    const QChar letter = board::mnemonicOf(copy->text());
    QVERIFY(!letter.isNull());
    QTest::keyClick(menu, letter.toLatin1());
    QCOMPARE(board.page().objectCount(), 2);
    QVERIFY(menu->isHidden());
}

void TestAltKeys::closedMenuLeavesNamesAsTheyWere()
{
    BoardDriver board;
    const QAction *copy = board.window().commands()->action(Command::Duplicate);
    QMenu *menu = board.window().menus()->actions().at(1)->menu();
    menu->popup({0, 0});
    QVERIFY(copy->text() != QString("Duplicate"));
    menu->hide();
    QCOMPARE(copy->text(), QString("Duplicate"));
}

QTEST_MAIN(TestAltKeys)
#include "test_altkeys.moc"

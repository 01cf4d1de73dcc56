// Ctrl+K: any command and any shape by its words.

#include <board/boarddriver.h>

#include <commands/finderpopup.h>
#include <core/commands.h>
#include <window/mainwindow.h>

#include <pagehost/objectregistry.h>
#include <pagehost/page.h>

#include <framework/cbaseobject.h>

#include <support/listed.h>

#include <QtTest/QtTest>
#include <QtWidgets/QAction>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QTreeWidget>

using namespace boardtest;
using board::Command;
using board::Findable;

namespace {

/// One selected rectangle, and the finder open.
struct Finding
{
    explicit Finding(const QString &language = "en")
        : board(language)
    {
        board.draw(rectangle, {500, 300}, {700, 420});
        board.key(Qt::Key_K, Qt::ControlModifier);
    }
    board::FinderPopup &popup() const { return *board.window().findChild<board::FinderPopup *>(); }
    void type(const QString &text) const { QTest::keyClicks(popup().field(), text); }
    void press(Qt::Key key) const { QTest::keyClick(popup().field(), key); }
    QString chosen() const
    {
        const QTreeWidgetItem *row = popup().list()->currentItem();
        return row ? row->text(0) : QString();
    }

    BoardDriver board;
};

} // namespace

class TestFinder : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { useOwnFolders(); }
    void bestMatchesComeFirst();
    void everyWordMustBeFound();
    void commandIsFoundAndRun();
    void wordsOfAnyLanguageFind_data();
    void wordsOfAnyLanguageFind();
    void wordsThatStandForACommandFindIt();
    void rowShowsTheKeys();
    void foundShapeWaitsToBeDrawn();
    void arrowKeysChooseAnother();
    void commandThatIsOffIsNotRun();
    void escapeClosesTheFinder();
    void nothingFoundIsSaid();
    void finderOpensEmptyAgain();
};

void TestFinder::bestMatchesComeFirst()
{
    const QVector<Findable> all{{"Protect", {}, "Protect lock", Command::Lock, {}},
                                {"Unlock", {}, "Unlock", Command::Lock, {}},
                                {"Key lock", {}, "Key lock", Command::ShowKeys, {}},
                                {"Lock", {}, "Lock", Command::Lock, {}},
                                {"Page", {}, "Page", Command::AddPage, {}}};
    QStringList found;
    for (const Findable &findable : support::listed(board::findMatches(all, " lOCk ")))
        found.append(findable.name);
    QCOMPARE(found, (QStringList{"Lock", "Key lock", "Unlock", "Protect"}));
    QCOMPARE(board::findMatches(all, QString()).size(), 5);
}

void TestFinder::everyWordMustBeFound()
{
    const QVector<Findable> all{{"Send to back", {}, "Send to back", Command::SendToBack, {}},
                                {"Move page back", {}, "Move page back", Command::MovePageBack, {}}};
    const QVector<Findable> found = board::findMatches(all, "back page");
    QCOMPARE(found.size(), 1);
    QCOMPARE(found.first().name, QString("Move page back"));
}

void TestFinder::commandIsFoundAndRun()
{
    const Finding t;
    t.type("dupl");
    QCOMPARE(t.chosen(), QString("Duplicate"));
    t.press(Qt::Key_Return);
    QCOMPARE(t.board.page().objectCount(), 2);
    QVERIFY(!t.popup().isVisible());
}

void TestFinder::wordsOfAnyLanguageFind_data()
{
    QTest::addColumn<QString>("language");
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("chosen");
    QTest::newRow("German words, English board") << "en"
                                                 << "Duplizieren"
                                                 << "Duplicate";
    QTest::newRow("English words, German board") << "de"
                                                 << "Duplicate"
                                                 << "Duplizieren";
    QTest::newRow("a shape") << "en"
                             << "blockpfeil"
                             << "Block arrow";
}

void TestFinder::wordsOfAnyLanguageFind()
{
    QFETCH(QString, language);
    QFETCH(QString, typed);
    QFETCH(QString, chosen);
    const Finding t(language);
    t.type(typed);
    QCOMPARE(t.chosen(), chosen);
}

void TestFinder::wordsThatStandForACommandFindIt()
{
    const Finding t;
    t.type("flip across");
    QCOMPARE(t.chosen(), QString("Mirror left to right"));
}

void TestFinder::rowShowsTheKeys()
{
    const Finding t;
    t.type("mirror left");
    QCOMPARE(t.popup().list()->currentItem()->text(2), QString("Ctrl+M"));
}

void TestFinder::foundShapeWaitsToBeDrawn()
{
    Finding t;
    t.type("block arrow");
    t.press(Qt::Key_Return);
    t.board.drag({100, 100}, {200, 180});
    QCOMPARE(t.board.page().objectCount(), 2);
    QCOMPARE(pagehost::kindIdOf(t.board.page().objects().last()), arrow);
}

void TestFinder::arrowKeysChooseAnother()
{
    const Finding t;
    t.type("send");
    QCOMPARE(t.chosen(), QString("Send backward"));
    t.press(Qt::Key_Down);
    QCOMPARE(t.chosen(), QString("Send to back"));
    t.press(Qt::Key_Up);
    QCOMPARE(t.chosen(), QString("Send backward"));
}

void TestFinder::commandThatIsOffIsNotRun()
{
    const Finding t;
    t.type("equal gaps across");
    QVERIFY(t.popup().list()->topLevelItem(0)->isDisabled());
    t.press(Qt::Key_Return);
    QVERIFY(t.popup().isVisible());
}

void TestFinder::escapeClosesTheFinder()
{
    const Finding t;
    t.press(Qt::Key_Escape);
    QVERIFY(!t.popup().isVisible());
    QCOMPARE(t.board.selection().size(), 1);
}

void TestFinder::nothingFoundIsSaid()
{
    const Finding t;
    t.type("qwxz");
    QCOMPARE(t.chosen(), QString());
    QVERIFY(t.popup().findChild<QLabel *>()->isVisible());
    QCOMPARE(t.popup().findChild<QLabel *>()->text(), QString("Nothing called “qwxz”."));
    t.press(Qt::Key_Return);
    QVERIFY(t.popup().isVisible());
}

void TestFinder::finderOpensEmptyAgain()
{
    Finding t;
    t.type("dupl");
    t.press(Qt::Key_Return);
    t.board.key(Qt::Key_K, Qt::ControlModifier);
    QVERIFY(t.popup().isVisible());
    QCOMPARE(t.popup().field()->text(), QString());
    QVERIFY(t.popup().list()->topLevelItemCount() > 50);
}

QTEST_MAIN(TestFinder)
#include "test_finder.moc"

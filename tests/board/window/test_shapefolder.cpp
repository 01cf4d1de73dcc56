// The user's own shapes: making one from the palette, opening their folder.

#include <board/boarddriver.h>

#include <core/commands.h>
#include <panels/palettebutton.h>
#include <panels/palettepanel.h>
#include <window/mainwindow.h>
#include <window/shapefolder.h>

#include <support/listed.h>
#include <support/patience.h>

#include <pagehost/page.h>

#include <QtCore/QDir>
#include <QtCore/QUrl>
#include <QtGui/QDesktopServices>
#include <QtTest/QtTest>
#include <QtWidgets/QAction>
#include <QtWidgets/QInputDialog>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QMenu>
#include <QtWidgets/QPushButton>

using namespace boardtest;

class TestShapeFolder : public QObject
{
    Q_OBJECT

public Q_SLOTS:
    void takeUrl(const QUrl &url) { m_opened.append(url.toLocalFile()); }

private Q_SLOTS:
    void init();
    void cleanup();
    void newShapeIsWrittenAndItsFolderOpened();
    void newShapeIsInThePalette();
    void ownShapesStandLastInAGroupOfTheirOwn();
    void searchWithoutAHitSaysSoAndLeadsBack();
    void secondShapeOfANameLeavesTheFirst();
    void folderThatCannotBeWrittenIsTold();

private:
    QStringList m_opened;
};

void TestShapeFolder::init()
{
    useOwnFolders();
    // The folder itself stays, since it is watched.
    QDir folder(board::userShapeFolder());
    folder.mkpath(".");
    for (const QString &file : support::listed(folder.entryList(QDir::Files)))
        folder.remove(file);
    m_opened.clear();
    QDesktopServices::setUrlHandler(QStringLiteral("file"), this, "takeUrl");
}

void TestShapeFolder::cleanup()
{
    QDesktopServices::unsetUrlHandler(QStringLiteral("file"));
}

void TestShapeFolder::newShapeIsWrittenAndItsFolderOpened()
{
    BoardDriver board;
    board.window().palettePanel()->menu()->actions().first()->trigger();
    auto *dialog = board.window().findChild<QInputDialog *>();
    QVERIFY(dialog);
    QTest::keyClicks(dialog->findChild<QLineEdit *>(), "Small kite");
    dialog->accept();
    QVERIFY(QFile::exists(board::userShapeFolder() + "/smallkite.shape.svg"));
    QCOMPARE(m_opened, QStringList{board::userShapeFolder()});
}

void TestShapeFolder::newShapeIsInThePalette()
{
    BoardDriver board;
    const auto isThere = [&board] {
        for (const board::PaletteButton *button : support::listed(board.window().palettePanel()->buttons()))
            if (button->text() == "Small <kite>")
                return true;
        return false;
    };
    QVERIFY(!isThere());
    QString problem;
    QVERIFY2(!board::writeNewShape("Small <kite>", &problem).isEmpty(), qPrintable(problem));
    QTRY_VERIFY_WITH_TIMEOUT(isThere(), support::patience);
}

/// Those that come with the board stay in their groups.
void TestShapeFolder::ownShapesStandLastInAGroupOfTheirOwn()
{
    QString problem;
    BoardDriver board;
    QVERIFY2(!board::writeNewShape("Kite", &problem).isEmpty(), qPrintable(problem));
    const auto groups = [&board] {
        QStringList titles;
        const QVector<board::PaletteButton *> buttons = board.window().palettePanel()->buttons();
        for (const board::PaletteButton *button : buttons) {
            const auto *title = button->parentWidget()->findChild<QLabel *>(QString(), Qt::FindDirectChildrenOnly);
            titles.append(title->text() + (button->text() == "Kite" ? ": Kite" : ""));
        }
        return titles;
    };
    QTRY_VERIFY_WITH_TIMEOUT(groups().contains("My shapes: Kite"), support::patience);
    QVERIFY(groups().constLast().startsWith("My shapes"));
    QCOMPARE(groups().constFirst(), QString("Basic shapes"));
}

void TestShapeFolder::searchWithoutAHitSaysSoAndLeadsBack()
{
    BoardDriver board;
    board.window().commands()->action(board::Command::Shapes)->trigger();
    QCoreApplication::processEvents();
    const board::PalettePanel &palette = *board.window().palettePanel();
    auto *search = palette.findChild<QLineEdit *>();
    QVERIFY(search->hasFocus());
    QTest::keyClicks(search, "qqq");
    const auto isSaid = [&] {
        for (const QLabel *label : support::listed(palette.findChildren<QLabel *>()))
            if (label->isVisible() && label->text() == "No shape called “qqq”.")
                return true;
        return false;
    };
    QVERIFY(isSaid());
    QTest::keyClick(search, Qt::Key_Return);
    QCOMPARE(board.page().objectCount(), 0);
    QTest::mouseClick(board.button("All shapes"), Qt::LeftButton);
    QCoreApplication::processEvents();
    QVERIFY(!isSaid());
    QCOMPARE(search->text(), QString());
    QVERIFY(palette.buttons().constFirst()->isVisible());
}

void TestShapeFolder::secondShapeOfANameLeavesTheFirst()
{
    QString problem;
    QCOMPARE(board::writeNewShape("Kite", &problem), board::userShapeFolder() + "/kite.shape.svg");
    QCOMPARE(board::writeNewShape("KITE!", &problem), board::userShapeFolder() + "/kite2.shape.svg");
    QCOMPARE(problem, QString());
}

void TestShapeFolder::folderThatCannotBeWrittenIsTold()
{
    QDir(board::userShapeFolder()).removeRecursively();
    QFile inTheWay(board::userShapeFolder());
    QVERIFY(inTheWay.open(QIODevice::WriteOnly));
    inTheWay.close();
    QString problem;
    QCOMPARE(board::writeNewShape("Kite", &problem), QString());
    QVERIFY(problem.contains("kite.shape.svg"));
    QVERIFY(inTheWay.remove());
}

QTEST_MAIN(TestShapeFolder)
#include "test_shapefolder.moc"

// A board's file that others write, too: nobody's work is overwritten unasked.

#include <board/desk.h>

#include <documents/filewatch.h>

#include <pagehost/documentfile.h>

#include <support/patience.h>

#include <QtCore/QDir>
#include <QtWidgets/QAction>

#include <sys/stat.h>
#include <unistd.h>

using namespace boardtest;

namespace {

void write(const QString &path, const QByteArray &bytes)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
        qFatal("%s cannot be written", qPrintable(path));
}

/// A board of one rectangle is open as lesson.board, and others work on the file, too.
struct SharedDesk : Desk
{
    SharedDesk()
    {
        drawOne();
        saveAs(name);
    }

    pagehost::OpenResult file(const QString &of)
    {
        return pagehost::openDocument(path(of), board.workspace().registry());
    }
    int pagesIn(const QString &of) { return file(of).document->pageCount(); }
    int objectsIn(const QString &of) { return file(of).document->page(0)->objectCount(); }
    /// They add a page.
    void theySave()
    {
        const pagehost::OpenResult theirs = file(name);
        theirs.document->appendPage();
        if (!pagehost::saveDocument(*theirs.document, path(name)).saved)
            qFatal("they could not save");
    }
    /// I add an arrow.
    void iSave()
    {
        board.draw(arrow, {100, 500}, {200, 600});
        documents().save();
    }

    const QString name = QStringLiteral("lesson.board");
};

} // namespace

class TestSharedFiles : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void twoWindowsDoNotOverwriteEachOther();
    void keepMineOverwrites();
    void takeTheirsOpensWhatIsThere();
    void saveBothGivesMineAnotherName();
    void cancelSavesNothing();
    void changeByAnotherProgramIsToldWhileTheBoardIsOpen();
    void changeThatIsToldCanBeTakenAtOnce();
    void replacedFileIsToldOf();
    void fileThatIsGoneIsToldOfAndWrittenAgain();
    void ownSavesAreNoChanges();
    void aCopyWithTheSameContentsIsNoChange();
    void closingWithAConflictLosesNothing();
    void aNameThatSomebodyTookMeanwhileIsNotOverwritten();
    void hardLinkIsNotCutUnasked();
    void otherNamesKeepTheBoardAsItWas();
};

void TestSharedFiles::twoWindowsDoNotOverwriteEachOther()
{
    SharedDesk desk;
    desk.theySave();
    const QByteArray theirs = desk.contents(desk.name);
    desk.iSave();
    QVERIFY(desk.isAsked());
    QCOMPARE(desk.contents(desk.name), theirs);
    QVERIFY(desk.board.window().isWindowModified());
}

void TestSharedFiles::keepMineOverwrites()
{
    SharedDesk desk;
    desk.theySave();
    desk.iSave();
    desk.press("Keep mine");
    QCOMPARE(desk.objectsIn(desk.name), 2);
    QCOMPARE(desk.pagesIn(desk.name), 1);
    QVERIFY(!desk.board.window().isWindowModified());
    // The board knows what is there now.
    QTRY_VERIFY_WITH_TIMEOUT(!desk.isAsked(), support::patience);
    desk.iSave();
    QVERIFY(!desk.isAsked());
    QCOMPARE(desk.objectsIn(desk.name), 3);
}

void TestSharedFiles::takeTheirsOpensWhatIsThere()
{
    SharedDesk desk;
    desk.theySave();
    const QByteArray theirs = desk.contents(desk.name);
    desk.iSave();
    desk.press("Take theirs");
    QCOMPARE(desk.board.workspace().document()->pageCount(), 2);
    QCOMPARE(desk.objectCount(), 1);
    QVERIFY(!desk.board.window().isWindowModified());
    QCOMPARE(desk.contents(desk.name), theirs);
}

void TestSharedFiles::saveBothGivesMineAnotherName()
{
    SharedDesk desk;
    desk.theySave();
    const QByteArray theirs = desk.contents(desk.name);
    desk.iSave();
    desk.press("Save both");
    QCOMPARE(desk.contents(desk.name), theirs);
    QCOMPARE(desk.documents().name(), QString("lesson 2.board"));
    QCOMPARE(desk.objectsIn("lesson 2.board"), 2);
    QCOMPARE(desk.pagesIn("lesson 2.board"), 1);
}

void TestSharedFiles::cancelSavesNothing()
{
    SharedDesk desk;
    desk.theySave();
    const QByteArray theirs = desk.contents(desk.name);
    desk.iSave();
    desk.press("Cancel");
    QCOMPARE(desk.contents(desk.name), theirs);
    QCOMPARE(desk.objectCount(), 2);
    QVERIFY(desk.board.window().isWindowModified());
    QCOMPARE(QDir(desk.folder.path()).entryList(QDir::Files | QDir::Hidden), QStringList{desk.name});
}

void TestSharedFiles::changeByAnotherProgramIsToldWhileTheBoardIsOpen()
{
    SharedDesk desk;
    desk.theySave();
    // The system tells the board; nobody has to do anything.
    QTRY_VERIFY_WITH_TIMEOUT(desk.notices().contains("“lesson.board” was changed by somebody else."),
                             support::patience);
    QCOMPARE(desk.objectCount(), 1);
}

void TestSharedFiles::changeThatIsToldCanBeTakenAtOnce()
{
    SharedDesk desk;
    desk.theySave();
    desk.documents().fileWatch().look();
    desk.press("Decide…");
    desk.press("Take theirs");
    QCOMPARE(desk.board.workspace().document()->pageCount(), 2);
    QTRY_COMPARE_WITH_TIMEOUT(desk.notices(), QString(), support::patience);
}

/// As most programs save, and as this one does.
void TestSharedFiles::replacedFileIsToldOf()
{
    Desk desk;
    desk.drawOne();
    desk.saveAs("lesson.board");
    for (const char *contents : {"one", "two"}) {
        write(desk.path("new"), contents);
        QCOMPARE(::rename(qPrintable(desk.path("new")), qPrintable(desk.path("lesson.board"))), 0);
        QSignalSpy told(&desk.documents().fileWatch(), &board::FileWatch::stateChanged);
        desk.documents().fileWatch().look();
        QCOMPARE(told.count(), 1);
        QCOMPARE(desk.documents().fileWatch().state(), board::FileWatch::Changed);
    }
}

void TestSharedFiles::fileThatIsGoneIsToldOfAndWrittenAgain()
{
    Desk desk;
    desk.drawOne();
    desk.saveAs("lesson.board");
    const QByteArray bytes = desk.contents("lesson.board");
    QVERIFY(QFile::remove(desk.path("lesson.board")));
    desk.documents().fileWatch().look();
    QVERIFY2(desk.notices().contains("“lesson.board” is no longer there"), qPrintable(desk.notices()));
    desk.documents().save();
    QVERIFY(!desk.isAsked());
    QCOMPARE(desk.contents("lesson.board"), bytes);
    QTRY_COMPARE_WITH_TIMEOUT(desk.notices(), QString(), support::patience);
}

void TestSharedFiles::ownSavesAreNoChanges()
{
    Desk desk;
    desk.drawOne();
    desk.saveAs("lesson.board");
    QSignalSpy told(&desk.documents().fileWatch(), &board::FileWatch::stateChanged);
    desk.board.draw(arrow, {100, 100}, {200, 200});
    desk.board.key(Qt::Key_S, Qt::ControlModifier);
    desk.documents().fileWatch().look();
    QCOMPARE(told.count(), 0);
    QVERIFY(!desk.isAsked());
}

void TestSharedFiles::aCopyWithTheSameContentsIsNoChange()
{
    Desk desk;
    desk.drawOne();
    desk.saveAs("lesson.board");
    const QByteArray bytes = desk.contents("lesson.board");
    QVERIFY(QFile::remove(desk.path("lesson.board")));
    write(desk.path("lesson.board"), bytes);
    desk.documents().fileWatch().look();
    QCOMPARE(desk.documents().fileWatch().state(), board::FileWatch::Same);
    QCOMPARE(desk.notices(), QString());
    desk.board.draw(arrow, {100, 100}, {200, 200});
    desk.documents().save();
    QVERIFY(!desk.isAsked());
    QVERIFY(desk.contents("lesson.board") != bytes);
}

void TestSharedFiles::closingWithAConflictLosesNothing()
{
    SharedDesk desk;
    desk.theySave();
    const QByteArray theirs = desk.contents(desk.name);
    desk.board.draw(arrow, {100, 500}, {200, 600});
    QVERIFY(!desk.board.window().close());
    desk.press("Save");
    QVERIFY(desk.board.window().isVisible());
    desk.press("Save both");
    QVERIFY(!desk.board.window().isVisible());
    QCOMPARE(desk.contents(desk.name), theirs);
    QVERIFY(QFile::exists(desk.path("lesson 2.board")));
}

void TestSharedFiles::aNameThatSomebodyTookMeanwhileIsNotOverwritten()
{
    Desk desk;
    desk.drawOne();
    desk.saveAs("lesson.board");
    desk.board.draw(arrow, {100, 100}, {200, 200});
    write(desk.path("lesson.board"), "theirs");
    desk.documents().save();
    // Whoever takes the first free name after the question has come.
    write(desk.path("lesson 2.board"), "precious");
    desk.press("Save both");
    QCOMPARE(desk.contents("lesson 2.board"), QByteArray("precious"));
    QCOMPARE(desk.documents().name(), QString("lesson 3.board"));
}

void TestSharedFiles::hardLinkIsNotCutUnasked()
{
    Desk desk;
    desk.drawOne();
    desk.saveAs("lesson.board");
    QCOMPARE(::link(qPrintable(desk.path("lesson.board")), qPrintable(desk.path("second.board"))), 0);
    const QByteArray before = desk.contents("lesson.board");
    desk.board.draw(arrow, {100, 100}, {200, 200});
    desk.documents().save();
    QVERIFY(desk.isAsked());
    QVERIFY(desk.board.window().findChild<QMessageBox *>()->informativeText().contains("1 hard links"));
    desk.press("Cancel");
    QCOMPARE(desk.contents("lesson.board"), before);
    struct stat facts = {};
    QCOMPARE(::stat(qPrintable(desk.path("lesson.board")), &facts), 0);
    QCOMPARE(int(facts.st_nlink), 2);
    QVERIFY(desk.board.window().isWindowModified());
}

void TestSharedFiles::otherNamesKeepTheBoardAsItWas()
{
    Desk desk;
    desk.drawOne();
    desk.saveAs("lesson.board");
    QCOMPARE(::link(qPrintable(desk.path("lesson.board")), qPrintable(desk.path("second.board"))), 0);
    const QByteArray before = desk.contents("lesson.board");
    desk.board.draw(arrow, {100, 100}, {200, 200});
    desk.documents().save();
    desk.press("Save here");
    QVERIFY(!desk.board.window().isWindowModified());
    QVERIFY(desk.contents("lesson.board") != before);
    QCOMPARE(desk.contents("second.board"), before);
    desk.board.draw(arrow, {300, 100}, {400, 200});
    desk.documents().save();
    QVERIFY(!desk.board.window().isWindowModified()); // once is enough
}

QTEST_MAIN(TestSharedFiles)
#include "test_sharedfiles.moc"

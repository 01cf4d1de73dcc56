// The document's file: new, open, save, what is asked before changes are lost, recent files.

#include <board/desk.h>

#include <application/demopages.h>
#include <core/notices.h>
#include <documents/documentcontroller.h>
#include <documents/documentmenu.h>
#include <page/pageview.h>
#include <window/mainwindow.h>

#include <pagehost/documentfile.h>
#include <pagehost/page.h>

#include <framework/cbaseobject.h>

#include <support/patience.h>

#include <QtCore/QJsonDocument>
#include <QtCore/QJsonObject>
#include <QtCore/QMimeData>
#include <QtCore/QSettings>
#include <QtCore/QTemporaryDir>
#include <QtGui/QDropEvent>
#include <QtTest/QtTest>
#include <QtWidgets/QAction>
#include <QtWidgets/QDialogButtonBox>
#include <QtWidgets/QFileDialog>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QMenu>
#include <QtWidgets/QMessageBox>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QUndoStack>

#include <csignal>
#include <sys/resource.h>

using namespace boardtest;

/// While it lives, no file of this process can grow beyond a few bytes.
class FullDisk
{
public:
    FullDisk()
    {
        constexpr rlim_t room = 60;
        getrlimit(RLIMIT_FSIZE, &m_before);
        rlimit full = m_before;
        full.rlim_cur = room;
        setrlimit(RLIMIT_FSIZE, &full);
    }
    ~FullDisk()
    {
        setrlimit(RLIMIT_FSIZE, &m_before);
        std::signal(SIGXFSZ, m_handler);
    }

private:
    rlimit m_before;
    void (*m_handler)(int) = std::signal(SIGXFSZ, SIG_IGN);
};

class TestDocuments : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aNewBoardHasNoNameAndNoChanges();
    void changesAreMarkedInTheTitleUntilUndone();
    void demoPagesAreNoWorkToBeSaved();
    void demoPagesShowEveryKindOfThePalette();
    void savingAsksForANameOnce();
    void bothFormatsAreWritten_data();
    void bothFormatsAreWritten();
    void savedBoardOpensAgain();
    void theFileThatIsChosenOpens();
    void openedBoardReplacesTheHistory();
    void changesAreAskedForBeforeAnotherBoardOpens_data();
    void changesAreAskedForBeforeAnotherBoardOpens();
    void closingWithChangesAsksFirst();
    void savingWhileClosingClosesAfterwards();
    void cancelledSavingWhileClosingKeepsTheWindow();
    void aFailedSaveSaysWhyAndLosesNothing();
    void aFullDiskIsToldAndLosesNothing_data();
    void aFullDiskIsToldAndLosesNothing();
    void aFileThatIsNoBoardIsRefusedWithAReason();
    void aDamagedBoardTellsWhatIsMissingAndIsNotOverwrittenUnasked();
    void aDamagedBoardGetsANewName();
    void aDamagedBoardIsKeptBesideTheOneThatTakesItsName();
    void recentFilesAreOffered();
    void recentFilesThatAreGoneAreNotOffered();
    void newBoardIsEmpty();
    void droppedBoardOpens();
    void theNameOfADottedFileGetsTheFormat();
    void anExistingFileIsNotReplacedBehindASuffix();
    void keysHaveFallbacks_data();
    void keysHaveFallbacks();
};

void TestDocuments::aNewBoardHasNoNameAndNoChanges()
{
    Desk desk;
    QCOMPARE(desk.board.window().windowTitle(), QString("Untitled[*] – Board"));
    QVERIFY(!desk.board.window().isWindowModified());
    QCOMPARE(desk.documents().file(), QString());
    QVERIFY(desk.board.window().close());
}

void TestDocuments::changesAreMarkedInTheTitleUntilUndone()
{
    Desk desk;
    desk.drawOne();
    QVERIFY(desk.board.window().isWindowModified());
    desk.board.key(Qt::Key_Z, Qt::ControlModifier);
    QVERIFY(!desk.board.window().isWindowModified());
}

void TestDocuments::demoPagesAreNoWorkToBeSaved()
{
    Desk desk;
    board::fillWithDemo(desk.board.workspace());
    QVERIFY(desk.objectCount() > 10);
    QVERIFY(!desk.board.window().isWindowModified());
}

void TestDocuments::demoPagesShowEveryKindOfThePalette()
{
    Desk desk;
    board::fillWithDemo(desk.board.workspace());
    const QVector<pagehost::ObjectKind> kinds = desk.board.workspace().registry().kinds();
    // Plain on the first page, varied on the second.
    for (int page = 0; page < 2; ++page) {
        QStringList shown;
        const QVector<CBaseObject *> objects = desk.board.workspace().document()->page(page)->objects();
        for (const CBaseObject *object : objects)
            shown.append(object->kindName());
        QStringList expected;
        for (const pagehost::ObjectKind &kind : kinds)
            if (!kind.group.isEmpty())
                expected.append(kind.nameKey);
        QVERIFY(expected.size() < kinds.size()); // texts are made by a tool alone
        QCOMPARE(shown, expected);
    }
}

void TestDocuments::savingAsksForANameOnce()
{
    Desk desk;
    desk.drawOne();
    desk.board.key(Qt::Key_S, Qt::ControlModifier);
    desk.answerFile(desk.path("lesson.board"));
    QCOMPARE(desk.board.window().windowTitle(), QString("lesson.board[*] – Board"));
    QVERIFY(!desk.board.window().isWindowModified());
    desk.board.draw(arrow, {100, 100}, {200, 200});
    desk.board.key(Qt::Key_S, Qt::ControlModifier);
    QVERIFY(!desk.board.window().findChild<QFileDialog *>());
    QVERIFY(!desk.board.window().isWindowModified());
    const pagehost::OpenResult saved =
        pagehost::openDocument(desk.path("lesson.board"), desk.board.workspace().registry());
    QVERIFY(saved.document && saved.messages.isEmpty());
    QCOMPARE(saved.document->page(0)->objectCount(), 2);
}

void TestDocuments::bothFormatsAreWritten_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<bool>("isJson");
    QTest::newRow("binary") << "lesson.board" << false;
    QTest::newRow("readable") << "lesson.board.json" << true;
}

void TestDocuments::bothFormatsAreWritten()
{
    QFETCH(QString, name);
    QFETCH(bool, isJson);
    Desk desk;
    desk.drawOne();
    desk.saveAs(name);
    QFile file(desk.path(name));
    QVERIFY(file.open(QIODevice::ReadOnly));
    QCOMPARE(QJsonDocument::fromJson(file.readAll()).isObject(), isJson);
    QVERIFY(desk.documents().openNow(desk.path(name)));
    QCOMPARE(desk.objectCount(), 1);
}

void TestDocuments::savedBoardOpensAgain()
{
    Desk desk;
    desk.drawOne();
    desk.saveAs("lesson.board");
    BoardDriver other;
    QVERIFY(other.window().documents()->openNow(desk.path("lesson.board")));
    QCOMPARE(other.page().objectCount(), 1);
    QCOMPARE(other.placeOf(other.page().objects().first()), QRectF(500, 300, 200, 120));
    QVERIFY(!other.window().isWindowModified());
    QCOMPARE(other.view().zoom(), 1.0);
    QCOMPARE(other.workspace().document()->zoomRate(), 1.0);
}

void TestDocuments::theFileThatIsChosenOpens()
{
    Desk desk;
    desk.drawOne();
    desk.saveAs("lesson.board.json");
    desk.board.key(Qt::Key_N, Qt::ControlModifier);
    QCOMPARE(desk.objectCount(), 0);
    desk.board.key(Qt::Key_O, Qt::ControlModifier);
    desk.answerFile(desk.path("lesson.board.json"));
    QCOMPARE(desk.documents().name(), QString("lesson.board.json"));
    QCOMPARE(desk.objectCount(), 1);
    QVERIFY(!desk.board.window().isWindowModified());
}

void TestDocuments::openedBoardReplacesTheHistory()
{
    Desk desk;
    desk.drawOne();
    desk.saveAs("lesson.board");
    desk.board.draw(arrow, {100, 100}, {200, 200});
    QVERIFY(desk.documents().openNow(desk.path("lesson.board")));
    QCOMPARE(desk.board.history().count(), 0);
    QCOMPARE(desk.objectCount(), 1);
    // The page that is shown is the one that is edited.
    desk.board.draw(arrow, {100, 100}, {200, 200});
    QCOMPARE(desk.objectCount(), 2);
    QVERIFY(desk.board.window().isWindowModified());
}

void TestDocuments::changesAreAskedForBeforeAnotherBoardOpens_data()
{
    QTest::addColumn<QString>("answer");
    QTest::addColumn<int>("objects");
    QTest::newRow("save") << "Save" << 0;
    QTest::newRow("give up") << "Don't save" << 0;
    QTest::newRow("stay") << "Cancel" << 2;
}

void TestDocuments::changesAreAskedForBeforeAnotherBoardOpens()
{
    QFETCH(QString, answer);
    QFETCH(int, objects);
    Desk desk;
    desk.drawOne();
    desk.saveAs("lesson.board");
    desk.board.draw(arrow, {100, 100}, {200, 200});
    desk.board.key(Qt::Key_N, Qt::ControlModifier);
    QVERIFY(desk.isAsked());
    QCOMPARE(desk.objectCount(), 2);
    desk.press(answer);
    QCOMPARE(desk.objectCount(), objects);
    const pagehost::OpenResult saved =
        pagehost::openDocument(desk.path("lesson.board"), desk.board.workspace().registry());
    QCOMPARE(saved.document->page(0)->objectCount(), answer == "Save" ? 2 : 1);
}

void TestDocuments::closingWithChangesAsksFirst()
{
    Desk desk;
    desk.drawOne();
    QVERIFY(!desk.board.window().close());
    QVERIFY(desk.isAsked());
    desk.press("Cancel");
    QVERIFY(desk.board.window().isVisible());
    QVERIFY(!desk.board.window().close());
    desk.press("Don't save");
    QVERIFY(!desk.board.window().isVisible());
}

void TestDocuments::savingWhileClosingClosesAfterwards()
{
    Desk desk;
    desk.drawOne();
    desk.board.window().close();
    desk.press("Save");
    desk.answerFile(desk.path("last.board"));
    QVERIFY(!desk.board.window().isVisible());
    QVERIFY(QFile::exists(desk.path("last.board")));
}

void TestDocuments::cancelledSavingWhileClosingKeepsTheWindow()
{
    Desk desk;
    desk.drawOne();
    desk.board.window().close();
    desk.press("Save");
    auto *dialog = desk.board.window().findChild<QFileDialog *>();
    QVERIFY(dialog);
    dialog->reject();
    QVERIFY(desk.board.window().isVisible());
    QVERIFY(desk.board.window().isWindowModified());
    QCOMPARE(desk.objectCount(), 1);
}

void TestDocuments::aFailedSaveSaysWhyAndLosesNothing()
{
    Desk desk;
    desk.drawOne();
    desk.saveAs("lesson.board");
    desk.board.draw(arrow, {100, 100}, {200, 200});
    // A folder that is gone can't be written to, whoever runs the test.
    const QString lost = desk.path("gone/lesson.board");
    QVERIFY(QDir(desk.folder.path()).mkdir("gone"));
    QVERIFY(QFile::copy(desk.path("lesson.board"), lost));
    QVERIFY(desk.documents().openNow(lost));
    desk.board.draw(arrow, {100, 100}, {200, 200});
    QVERIFY(QDir(desk.path("gone")).removeRecursively());
    desk.board.key(Qt::Key_S, Qt::ControlModifier);
    QVERIFY2(desk.notices().contains("was not saved"), qPrintable(desk.notices()));
    QVERIFY(desk.notices().contains(lost));
    QVERIFY(desk.board.window().isWindowModified());
    QCOMPARE(desk.objectCount(), 2);
    desk.saveAs("elsewhere.board");
    QVERIFY(!desk.board.window().isWindowModified());
    QVERIFY(!desk.notices().contains("was not saved"));
}

void TestDocuments::aFullDiskIsToldAndLosesNothing_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("binary") << "lesson.board";
    QTest::newRow("json") << "lesson.board.json";
}

void TestDocuments::aFullDiskIsToldAndLosesNothing()
{
    QFETCH(QString, name);
    Desk desk;
    desk.drawOne();
    desk.saveAs(name);
    QFile file(desk.path(name));
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QByteArray before = file.readAll();
    desk.board.draw(arrow, {100, 100}, {200, 200});
    {
        const FullDisk disk;
        desk.board.key(Qt::Key_S, Qt::ControlModifier);
    }
    QVERIFY2(desk.notices().contains("was not saved"), qPrintable(desk.notices()));
    QVERIFY(desk.board.window().isWindowModified());
    QCOMPARE(desk.objectCount(), 2);
    file.seek(0);
    QCOMPARE(file.readAll(), before);
    QCOMPARE(QDir(desk.folder.path()).entryList(QDir::Files | QDir::Hidden), QStringList{name});
    desk.board.key(Qt::Key_S, Qt::ControlModifier);
    QVERIFY(!desk.board.window().isWindowModified());
    QTRY_VERIFY_WITH_TIMEOUT(!desk.notices().contains("was not saved"), support::patience);
}

void TestDocuments::aFileThatIsNoBoardIsRefusedWithAReason()
{
    Desk desk;
    desk.drawOne();
    QFile file(desk.path("letter.board"));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("Dear Sir or Madam,");
    file.close();
    QVERIFY(!desk.documents().openNow(file.fileName()));
    QVERIFY2(desk.notices().contains("could not be opened"), qPrintable(desk.notices()));
    QVERIFY(desk.notices().contains("letter.board"));
    QCOMPARE(desk.objectCount(), 1);
    QVERIFY(desk.board.window().isWindowModified());
}

void TestDocuments::aDamagedBoardTellsWhatIsMissingAndIsNotOverwrittenUnasked()
{
    Desk desk;
    desk.drawOne();
    desk.board.draw(arrow, {100, 100}, {200, 200});
    desk.saveAs("whole.board");
    QFile whole(desk.path("whole.board"));
    QVERIFY(whole.open(QIODevice::ReadOnly));
    const QByteArray bytes = whole.readAll();
    QFile half(desk.path("half.board"));
    QVERIFY(half.open(QIODevice::WriteOnly));
    half.write(bytes.left(bytes.size() * 3 / 4));
    half.close();
    QVERIFY(desk.documents().openNow(half.fileName()));
    QVERIFY2(desk.notices().contains("could not be read completely"), qPrintable(desk.notices()));
    QCOMPARE(desk.board.window().windowTitle(), QString("half.board[*] – Board"));
    QCOMPARE(desk.documents().file(), QString());
    desk.board.key(Qt::Key_S, Qt::ControlModifier);
    QVERIFY(desk.board.window().findChild<QFileDialog *>());
}

void TestDocuments::aDamagedBoardGetsANewName()
{
    Desk desk;
    desk.openDamaged();
    const QByteArray damaged = desk.contents("half.board");
    desk.board.key(Qt::Key_S, Qt::ControlModifier);
    auto *dialog = desk.board.window().findChild<QFileDialog *>();
    QVERIFY(dialog);
    QCOMPARE(dialog->findChild<QLineEdit *>()->text(), QString("half (repaired).board"));
    desk.answerFile(desk.path("half (repaired).board"));
    QCOMPARE(desk.contents("half.board"), damaged);
    QCOMPARE(desk.documents().name(), QString("half (repaired).board"));
    QVERIFY(QFile::exists(desk.path("half (repaired).board")));
}

void TestDocuments::aDamagedBoardIsKeptBesideTheOneThatTakesItsName()
{
    Desk desk;
    desk.openDamaged();
    const QByteArray damaged = desk.contents("half.board");
    desk.saveAs("half.board");
    desk.press("Replace");
    QVERIFY(desk.contents("half.board") != damaged);
    QCOMPARE(desk.contents("half (damaged).board"), damaged);
    const pagehost::OpenResult saved =
        pagehost::openDocument(desk.path("half.board"), desk.board.workspace().registry());
    QCOMPARE(saved.document->page(0)->objectCount(), desk.objectCount());
    // Now it is whole: the next save is a plain one.
    QTRY_VERIFY_WITH_TIMEOUT(!desk.isAsked(), support::patience);
    desk.board.draw(arrow, {100, 100}, {200, 200});
    desk.board.key(Qt::Key_S, Qt::ControlModifier);
    QVERIFY(!desk.board.window().isWindowModified());
    QCOMPARE(QDir(desk.folder.path()).entryList(QDir::Files).size(), 2);
}

void TestDocuments::recentFilesAreOffered()
{
    Desk desk;
    desk.drawOne();
    desk.saveAs("one.board");
    desk.saveAs("two.board");
    const auto *menu = desk.board.window().findChild<board::DocumentMenu *>()->recentMenu();
    Q_EMIT const_cast<QMenu *>(menu)->aboutToShow();
    QCOMPARE(menu->actions().at(0)->text(), QString("two.board"));
    QCOMPARE(menu->actions().at(1)->text(), QString("one.board"));
    menu->actions().at(1)->trigger();
    QCOMPARE(desk.documents().name(), QString("one.board"));
}

void TestDocuments::recentFilesThatAreGoneAreNotOffered()
{
    Desk desk;
    desk.drawOne();
    desk.saveAs("one.board");
    QVERIFY(QFile::remove(desk.path("one.board")));
    QCOMPARE(desk.documents().recentFiles().files(), QStringList());
    for (int i = 0; i < 12; ++i) {
        QFile file(desk.path(QString("%1.board").arg(i)));
        QVERIFY(file.open(QIODevice::WriteOnly));
        desk.documents().recentFiles().add(file.fileName());
    }
    QCOMPARE(desk.documents().recentFiles().files().size(), 10);
    QCOMPARE(desk.documents().recentFiles().files().first(), desk.path("11.board"));
}

void TestDocuments::newBoardIsEmpty()
{
    Desk desk;
    desk.drawOne();
    desk.saveAs("lesson.board");
    desk.board.key(Qt::Key_N, Qt::ControlModifier);
    QCOMPARE(desk.objectCount(), 0);
    QCOMPARE(desk.board.workspace().document()->pageCount(), 1);
    QVERIFY(!desk.board.window().isWindowModified());
    QCOMPARE(desk.documents().file(), QString());
}

void TestDocuments::droppedBoardOpens()
{
    Desk desk;
    desk.drawOne();
    desk.saveAs("lesson.board");
    desk.board.key(Qt::Key_N, Qt::ControlModifier);
    QMimeData data;
    data.setUrls({QUrl::fromLocalFile(desk.path("lesson.board"))});
    QDragEnterEvent enter(QPoint(200, 200), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(desk.board.view().viewport(), &enter);
    QVERIFY(enter.isAccepted());
    QDropEvent drop(QPointF(200, 200), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(desk.board.view().viewport(), &drop);
    QCOMPARE(desk.documents().name(), QString("lesson.board"));
    QCOMPARE(desk.objectCount(), 1);
}

void TestDocuments::theNameOfADottedFileGetsTheFormat()
{
    Desk desk;
    desk.drawOne();
    desk.saveAs("lesson.v2");
    QCOMPARE(desk.documents().name(), QString("lesson.v2.board"));
    QVERIFY(QFile::exists(desk.path("lesson.v2.board")));
    QVERIFY(!QFile::exists(desk.path("lesson.v2")));
}

void TestDocuments::anExistingFileIsNotReplacedBehindASuffix()
{
    Desk desk;
    QFile other(desk.path("lesson.v2.board"));
    QVERIFY(other.open(QIODevice::WriteOnly));
    other.write("precious");
    other.close();
    desk.drawOne();
    desk.saveAs("lesson.v2");
    QVERIFY(desk.isAsked());
    desk.press("Cancel");
    QCOMPARE(QFileInfo(other).size(), qint64(8));
    QVERIFY(desk.board.window().isWindowModified());
    QTRY_VERIFY_WITH_TIMEOUT(!desk.isAsked(), support::patience);
    desk.saveAs("lesson.v2");
    desk.press("Replace");
    QVERIFY(QFileInfo(other).size() > 8);
    QVERIFY(!desk.board.window().isWindowModified());
}

void TestDocuments::keysHaveFallbacks_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("keys");
    QTest::newRow("new") << "New board"
                         << "Ctrl+N";
    QTest::newRow("open") << "Open…"
                          << "Ctrl+O";
    QTest::newRow("save") << "Save"
                          << "Ctrl+S";
    QTest::newRow("save as") << "Save as…"
                             << "Ctrl+Shift+S";
    QTest::newRow("quit") << "Quit"
                          << "Ctrl+Q";
    QTest::newRow("copy") << "Copy"
                          << "Ctrl+C";
    QTest::newRow("cut") << "Cut"
                         << "Ctrl+X";
    QTest::newRow("paste") << "Paste"
                           << "Ctrl+V";
}

void TestDocuments::keysHaveFallbacks()
{
    QFETCH(QString, text);
    QFETCH(QString, keys);
    BoardDriver board;
    const QAction *action = board.action(text);
    QVERIFY(action);
    QCOMPARE(action->shortcuts().constFirst(), QKeySequence(keys));
}

QTEST_MAIN(TestDocuments)
#include "test_documents.moc"

#include "framework/files/filetest.h"

#include <pagehost/application.h>

#include <support/virtualtime.h>

#include <QtCore/QDir>
#include <QtCore/QSysInfo>
#include <QtCore/QTemporaryDir>
#include <QtTest/QSignalSpy>

#include <csignal>
#include <sys/wait.h>
#include <unistd.h>

using namespace pagehost;

class TestAutosave : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void changedDocumentIsCopiedAfterTheInterval();
    void unchangedDocumentIsNotCopied();
    void sameChangesAreCopiedOnce();
    void savedDocumentNeedsNoCopy();
    void closedDocumentLeavesNothing();
    void copyOfALivingProcessIsNotRecoverable();
    void crashedProcessLeavesItsDocument();
    void recoveredDocumentIsModified();
    void discardedCopyIsGone();
    void untitledDocumentHasNoOriginal();
    void failureIsTold();
    void failureOfALaterCopyIsToldAndItIsTriedAgain();
    void copyThatWasClearedAwayIsMadeAgain();
    void unsavedWorkIsCopiedAgainUnderItsNewName();
    void ownCopyIsNotOffered();
    void newestCopyComesFirst();
    void lockThatNamesNobodyHereHidesACopyForAWhileOnly_data();
    void lockThatNamesNobodyHereHidesACopyForAWhileOnly();
    void lockOfALivingProcessHidesItsCopyHoweverOldItIs();
    void everyLookTouchesTheLock();
    void lastChangesAreAskedForBeforeALook();
    void copyKnowsWhatItsOriginalWas();
    void remainsOfAFirstCopyAreClearedAway();

private:
    QVector<RecoverableDocument> crash(const QString &originalFile);

    FileTestRegistry m_registry;
    std::unique_ptr<QTemporaryDir> m_parent;
    QString m_folder;
    std::unique_ptr<Document> m_document;
    Page *m_page = nullptr;
};

void TestAutosave::init()
{
    undoStack()->clear();
    m_parent = std::make_unique<QTemporaryDir>();
    m_folder = m_parent->filePath(QStringLiteral("recovery"));
    m_document = std::make_unique<Document>();
    setCurrentDocument(m_document.get());
    m_page = m_document->appendPage();
}

void TestAutosave::cleanup()
{
    m_document.reset();
}

/// The copies left by a process that autosaves the document with one object at (7, 8) and dies.
QVector<RecoverableDocument> TestAutosave::crash(const QString &originalFile)
{
    const pid_t child = fork();
    if (child == 0) {
        Autosave autosave(m_folder);
        autosave.setDocument(m_document.get(), originalFile);
        addPlain(m_page, QPointF(7, 8));
        m_document->noteChange();
        autosave.saveNow();
        ::raise(SIGKILL);
    }
    waitpid(child, nullptr, 0);
    return Autosave(m_folder).recoverable();
}

void TestAutosave::changedDocumentIsCopiedAfterTheInterval()
{
    Autosave autosave(m_folder);
    QCOMPARE(autosave.interval(), 60000);
    QSignalSpy saved(&autosave, &Autosave::saved);
    autosave.setDocument(m_document.get(), QString());
    addObjects(m_page, {new TestObject});
    // Timers of a minute fire at whole seconds.
    support::pass(59000);
    QCOMPARE(saved.size(), 0);
    support::pass(2000);
    QCOMPARE(saved.size(), 1);
    QCOMPARE(contentsOf(autosave.recoveryFile()), encodeDocument(*m_document, DocumentFormat::Binary));
}

void TestAutosave::unchangedDocumentIsNotCopied()
{
    Autosave autosave(m_folder);
    autosave.setDocument(m_document.get(), QString());
    QVERIFY(autosave.saveNow());
    addObjects(m_page, {new TestObject});
    undoStack()->undo();
    QVERIFY(autosave.saveNow());
    QVERIFY(!QDir(m_folder).exists());
}

void TestAutosave::sameChangesAreCopiedOnce()
{
    Autosave autosave(m_folder);
    QSignalSpy saved(&autosave, &Autosave::saved);
    autosave.setDocument(m_document.get(), QString());
    addObjects(m_page, {new TestObject});
    autosave.saveNow();
    autosave.saveNow();
    QCOMPARE(saved.count(), 1);
    addObjects(m_page, {new TestObject});
    autosave.saveNow();
    QCOMPARE(saved.count(), 2);
}

void TestAutosave::savedDocumentNeedsNoCopy()
{
    Autosave autosave(m_folder);
    autosave.setDocument(m_document.get(), QString());
    addObjects(m_page, {new TestObject});
    autosave.saveNow();
    QVERIFY(QFile::exists(autosave.recoveryFile()));
    m_document->markSaved();
    autosave.setOriginalFile(QStringLiteral("/lessons/one.board"));
    QVERIFY(!QFile::exists(autosave.recoveryFile()));
    autosave.saveNow();
    QVERIFY(!QFile::exists(autosave.recoveryFile()));
}

void TestAutosave::closedDocumentLeavesNothing()
{
    {
        Autosave autosave(m_folder);
        autosave.setDocument(m_document.get(), QString());
        addObjects(m_page, {new TestObject});
        autosave.saveNow();
        QCOMPARE(QDir(m_folder).entryList(QDir::Files).size(), 3);
    }
    QCOMPARE(QDir(m_folder).entryList(QDir::Files), QStringList());
}

void TestAutosave::copyOfALivingProcessIsNotRecoverable()
{
    Autosave autosave(m_folder);
    autosave.setDocument(m_document.get(), QString());
    addObjects(m_page, {new TestObject});
    autosave.saveNow();
    QCOMPARE(autosave.recoverable().size(), 0);
    QCOMPARE(Autosave(m_folder).recoverable().size(), 0);
    QVERIFY(QFile::exists(autosave.recoveryFile()));
}

void TestAutosave::crashedProcessLeavesItsDocument()
{
    const QDateTime before = QDateTime::currentDateTime().addSecs(-1);
    const QVector<RecoverableDocument> copies = crash(QStringLiteral("/lessons/one.board"));
    QCOMPARE(copies.size(), 1);
    QCOMPARE(copies[0].originalFile, QStringLiteral("/lessons/one.board"));
    QVERIFY(copies[0].time >= before && copies[0].time <= QDateTime::currentDateTime());
}

void TestAutosave::recoveredDocumentIsModified()
{
    const QVector<RecoverableDocument> copies = crash(QStringLiteral("/lessons/one.board"));
    const Autosave autosave(m_folder);
    const OpenResult opened = autosave.recover(copies.value(0), m_registry);
    QVERIFY(opened.document);
    QVERIFY(opened.document->isModified());
    QVERIFY(!m_document->isModified());
    QCOMPARE(opened.document->page(0)->objects().last()->getPos(), QPointF(7, 8));
    QVERIFY(QFile::exists(copies[0].recoveryFile));
}

void TestAutosave::discardedCopyIsGone()
{
    const QVector<RecoverableDocument> copies = crash(QString());
    writeContents(m_folder + QStringLiteral("/") + QFileInfo(copies.value(0).recoveryFile).baseName() +
                      QStringLiteral(".lock"),
                  "");
    Autosave::discard(copies.value(0));
    QCOMPARE(QDir(m_folder).entryList(QDir::Files), QStringList());
    QCOMPARE(Autosave(m_folder).recoverable().size(), 0);
}

void TestAutosave::untitledDocumentHasNoOriginal()
{
    QCOMPARE(crash(QString()).value(0).originalFile, QString());
}

void TestAutosave::failureIsTold()
{
    writeContents(m_folder, "a file where the folder should be");
    Autosave autosave(m_folder);
    QSignalSpy failed(&autosave, &Autosave::failed);
    autosave.setDocument(m_document.get(), QString());
    addObjects(m_page, {new TestObject});
    QVERIFY(!autosave.saveNow());
    QCOMPARE(failed.count(), 1);
}

void TestAutosave::failureOfALaterCopyIsToldAndItIsTriedAgain()
{
    Autosave autosave(m_folder);
    autosave.setDocument(m_document.get(), QString());
    addObjects(m_page, {new TestObject});
    QVERIFY(autosave.saveNow());
    addObjects(m_page, {new TestObject});
    QVERIFY(QFile::remove(autosave.recoveryFile()));
    QVERIFY(QDir().mkpath(autosave.recoveryFile())); // a folder in its way
    QStringList problems;
    connect(&autosave, &Autosave::failed, this,
            [&](const FileMessage &problem) { problems.append(problem.textKey); });
    QVERIFY(!autosave.saveNow());
    QCOMPARE(problems, QStringList{QStringLiteral("IDS_FILE_CANNOT_WRITE")});
    QVERIFY(QDir().rmdir(autosave.recoveryFile()));
    QVERIFY(autosave.saveNow());
    QCOMPARE(problems.size(), 1);
    QCOMPARE(contentsOf(autosave.recoveryFile()), encodeDocument(*m_document, DocumentFormat::Binary));
}

/// With its lock, without which another program would offer it.
void TestAutosave::copyThatWasClearedAwayIsMadeAgain()
{
    Autosave autosave(m_folder);
    autosave.setDocument(m_document.get(), QString());
    addObjects(m_page, {new TestObject});
    QVERIFY(autosave.saveNow());
    const QStringList files = QDir(m_folder).entryList(QDir::Files);
    QVERIFY(QDir(m_folder).removeRecursively());
    QVERIFY(autosave.saveNow());
    QCOMPARE(QDir(m_folder).entryList(QDir::Files), files);
    QCOMPARE(Autosave(m_folder).recoverable().size(), 0);
}

/// As when the file was saved and more was drawn before that was told.
void TestAutosave::unsavedWorkIsCopiedAgainUnderItsNewName()
{
    Autosave autosave(m_folder);
    autosave.setDocument(m_document.get(), QString());
    addObjects(m_page, {new TestObject});
    QVERIFY(autosave.saveNow());
    autosave.setOriginalFile(QStringLiteral("/lessons/two.board"));
    QVERIFY(autosave.saveNow());
    QVERIFY(QFile::exists(autosave.recoveryFile()));
}

/// Not even when somebody has cleared the locks away.
void TestAutosave::ownCopyIsNotOffered()
{
    Autosave autosave(m_folder);
    autosave.setDocument(m_document.get(), QString());
    addObjects(m_page, {new TestObject});
    QVERIFY(autosave.saveNow());
    const QStringList locks = QDir(m_folder).entryList({QStringLiteral("*.lock")}, QDir::Files);
    QCOMPARE(locks.size(), 1);
    QVERIFY(QFile::remove(QDir(m_folder).filePath(locks[0])));
    QCOMPARE(autosave.recoverable().size(), 0);
}

void TestAutosave::newestCopyComesFirst()
{
    QVERIFY(QDir().mkpath(m_folder));
    const QDateTime noon(QDate(2024, 5, 6), QTime(12, 0));
    for (const int hour : {1, 3, 2}) {
        const QString copy = QDir(m_folder).filePath(QStringLiteral("copy%1.board").arg(hour));
        writeContents(copy, "bytes");
        QFile file(copy);
        QVERIFY(file.open(QIODevice::ReadWrite));
        QVERIFY(file.setFileTime(noon.addSecs(3600 * hour), QFileDevice::FileModificationTime));
    }
    QStringList names;
    const QVector<RecoverableDocument> copies = Autosave(m_folder).recoverable();
    for (const RecoverableDocument &copy : copies)
        names.append(QFileInfo(copy.recoveryFile).baseName());
    QCOMPARE(names, QStringList({QStringLiteral("copy3"), QStringLiteral("copy2"), QStringLiteral("copy1")}));
    QCOMPARE(copies[0].time, noon.addSecs(3600 * 3));
}

static void setAge(const QString &file, int seconds)
{
    QFile aged(file);
    QVERIFY(aged.open(QIODevice::ReadWrite));
    QVERIFY(aged.setFileTime(QDateTime::currentDateTime().addSecs(-seconds), QFileDevice::FileModificationTime));
}

static pid_t processThatIsGone()
{
    const pid_t child = fork();
    if (child == 0)
        _exit(0);
    waitpid(child, nullptr, 0);
    return child;
}

void TestAutosave::lockThatNamesNobodyHereHidesACopyForAWhileOnly_data()
{
    QTest::addColumn<QByteArray>("lock");
    QTest::addColumn<int>("age");
    QTest::addColumn<bool>("isOffered");
    // In the format of QLockFile: process, program, machine.
    const QByteArray foreign("1\nboard\nanother-machine\n");
    constexpr int justNow = 60;
    constexpr int longAgo = 601;
    QTest::newRow("of another machine, touched a minute ago") << foreign << justNow << false;
    QTest::newRow("of another machine, left alone for ten minutes") << foreign << longAgo << true;
    QTest::newRow("empty, made a minute ago") << QByteArray() << justNow << false;
    QTest::newRow("empty, left alone for ten minutes") << QByteArray() << longAgo << true;
    QTest::newRow("of this machine, whose process has gone")
        << QByteArray(QByteArray::number(processThatIsGone()) + "\nboard\n" +
                      QSysInfo::machineHostName().toLocal8Bit() + "\n")
        << justNow << true;
}

void TestAutosave::lockThatNamesNobodyHereHidesACopyForAWhileOnly()
{
    QFETCH(QByteArray, lock);
    QFETCH(int, age);
    QFETCH(bool, isOffered);
    QVERIFY(QDir().mkpath(m_folder));
    const QString lockFile = QDir(m_folder).filePath(QStringLiteral("other.lock"));
    writeContents(QDir(m_folder).filePath(QStringLiteral("other.board")), "bytes");
    writeContents(lockFile, lock);
    setAge(lockFile, age);
    QCOMPARE(Autosave(m_folder).recoverable().size(), isOffered ? 1 : 0);
    QVERIFY(QFile::exists(QDir(m_folder).filePath(QStringLiteral("other.board"))));
}

/// It may have been standing still, as a computer does that was put to sleep.
void TestAutosave::lockOfALivingProcessHidesItsCopyHoweverOldItIs()
{
    Autosave autosave(m_folder);
    autosave.setDocument(m_document.get(), QString());
    addObjects(m_page, {new TestObject});
    QVERIFY(autosave.saveNow());
    const QStringList locks = QDir(m_folder).entryList({QStringLiteral("*.lock")}, QDir::Files);
    QCOMPARE(locks.size(), 1);
    constexpr int day = 24 * 3600;
    setAge(QDir(m_folder).filePath(locks[0]), day);
    QCOMPARE(Autosave(m_folder).recoverable().size(), 0);
}

void TestAutosave::everyLookTouchesTheLock()
{
    Autosave autosave(m_folder);
    autosave.setDocument(m_document.get(), QString());
    addObjects(m_page, {new TestObject});
    QVERIFY(autosave.saveNow());
    const QString lock =
        QDir(m_folder).filePath(QDir(m_folder).entryList({QStringLiteral("*.lock")}, QDir::Files).value(0));
    constexpr int hour = 3600;
    setAge(lock, hour);
    QVERIFY(autosave.saveNow()); // though nothing has changed
    QVERIFY(QFileInfo(lock).lastModified().secsTo(QDateTime::currentDateTime()) < hour / 2);
}

void TestAutosave::lastChangesAreAskedForBeforeALook()
{
    Autosave autosave(m_folder);
    autosave.setDocument(m_document.get(), QString());
    connect(&autosave, &Autosave::aboutToLook, m_document.get(), [this] {
        m_document->setUnfinishedLesson({QStringLiteral("Halves"), QByteArray("so far")});
    });
    QVERIFY(autosave.saveNow());
    const OpenResult copy = openDocument(autosave.recoveryFile(), m_registry);
    QVERIFY(copy.document);
    QCOMPARE(copy.document->lessons().size(), 1);
    QCOMPARE(copy.document->lessons().first().data, QByteArray("so far"));
    QCOMPARE(m_document->lessons().size(), 0);
}

/// An old copy must not take the place of a newer original unasked.
void TestAutosave::copyKnowsWhatItsOriginalWas()
{
    const QString original = m_parent->filePath(QStringLiteral("one.board"));
    writeContents(original, "as it was");
    const FileStamp stamp = FileStamp::of(original);
    QDir(m_parent->path()).mkdir(QStringLiteral("recovery"));
    {
        const pid_t child = fork();
        if (child == 0) {
            Autosave autosave(m_folder);
            autosave.setDocument(m_document.get(), original, stamp);
            m_document->noteChange();
            autosave.saveNow();
            ::raise(SIGKILL);
        }
        waitpid(child, nullptr, 0);
    }
    const Autosave autosave(m_folder);
    const RecoverableDocument copy = autosave.recoverable().value(0);
    QVERIFY(copy.originalStamp.isSameFile(stamp));
    QVERIFY(copy.originalStamp.hasSameContents(stamp));
    QVERIFY(autosave.recover(copy, m_registry).stamp.hasSameContents(stamp));
}

void TestAutosave::remainsOfAFirstCopyAreClearedAway()
{
    QVERIFY(QDir().mkpath(m_folder));
    const QDir folder(m_folder);
    writeContents(folder.filePath(QStringLiteral("died.json")), "{}");
    writeContents(folder.filePath(QStringLiteral("whole.json")), "{}");
    writeContents(folder.filePath(QStringLiteral("whole.board")), "bytes");
    writeContents(folder.filePath(QStringLiteral(".00000000-0000-4000-8000-000000000000.unfinished-board")), "by");
    Autosave(m_folder).tidy();
    const QStringList kept{QStringLiteral("whole.board"), QStringLiteral("whole.json")};
    QCOMPARE(folder.entryList(QDir::Files | QDir::Hidden), kept);
}

QTEST_MAIN(TestAutosave)
#include "test_autosave.moc"

#include "framework/files/filetest.h"

#include <support/systemcalls.h>

#include <pagehost/filestamp.h>

#include <QtCore/QDir>
#include <QtCore/QTemporaryDir>

#include <csignal>
#include <fcntl.h>
#include <random>
#include <sys/file.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

// Saving while the process dies or the disk is full: the old or the new file is there, whole.

using namespace pagehost;

namespace {

constexpr int bigSize = 400000; ///< bytes
const QStringList writingCalls{QStringLiteral("openat"), QStringLiteral("write"), QStringLiteral("fchown"),
                               QStringLiteral("fchmod"), QStringLiteral("fsync"), QStringLiteral("flock"),
                               QStringLiteral("rename")};

/// `size` bytes of incompressible lesson make the file as large as is wanted.
std::unique_ptr<Document> documentOfSize(int size, unsigned start)
{
    auto document = std::make_unique<Document>();
    addPlain(document->appendPage(), QPointF(start, start));
    std::minstd_rand random(start);
    QByteArray bytes(size, '\0');
    std::generate(bytes.begin(), bytes.end(), [&] { return char(random()); });
    document->setLessons({{QStringLiteral("noise"), bytes}});
    return document;
}

/// Runs `work` in a process of its own and gives what it returned; -1 when it died.
template<typename Work> int inChild(Work work)
{
    const pid_t child = fork();
    if (child == 0)
        _exit(work());
    int status = 0;
    waitpid(child, &status, 0);
    return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

/// Of a child that may write no file beyond `limit` bytes: to it the disk is full there.
void limitFileSize(rlim_t limit)
{
    std::signal(SIGXFSZ, SIG_IGN);
    const rlimit bytes{limit, limit};
    setrlimit(RLIMIT_FSIZE, &bytes);
}

/// The unfinished file of another board that is saving, until it dies.
class WorkFileOfAnotherBoard
{
public:
    explicit WorkFileOfAnotherBoard(const QString &folder)
        : m_descriptor(
              ::open(qPrintable(folder + QStringLiteral("/.00000000-0000-4000-8000-000000000000.unfinished-board")),
                     O_WRONLY | O_CREAT | O_EXCL, 0600))
    {
        if (::flock(m_descriptor, LOCK_EX | LOCK_NB) != 0)
            qFatal("the file cannot be locked");
    }
    ~WorkFileOfAnotherBoard() { die(); }
    void die()
    {
        if (m_descriptor >= 0)
            ::close(m_descriptor);
        m_descriptor = -1;
    }

private:
    int m_descriptor;
};

struct stat factsOf(const QString &file)
{
    struct stat facts = {};
    if (::stat(qPrintable(file), &facts) != 0)
        qFatal("%s is not there", qPrintable(file));
    return facts;
}

QStringList filesIn(const QTemporaryDir &folder)
{
    return QDir(folder.path()).entryList(QDir::Files | QDir::Hidden);
}

} // namespace

class TestSaving : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void saveKilledAtAnyOfItsCallsLeavesTheOldOrTheNewFile_data() { addNames(); }
    void saveKilledAtAnyOfItsCallsLeavesTheOldOrTheNewFile();
    void diskThatIsFullAtAnyCallLeavesTheOldOrTheNewFile_data() { addNames(); }
    void diskThatIsFullAtAnyCallLeavesTheOldOrTheNewFile();
    void whatASaveThatLivesIsWritingIsNoRubbish();
    void filesThatOnlyLookLikeItAreNoRubbish();
    void fullDiskLeavesTheOldFileAndSaysSo_data();
    void fullDiskLeavesTheOldFileAndSaysSo();
    void missingFolderIsTold();
    void folderInTheWayIsTold();
    void pipeStaysAPipe();
    void linkStaysALink();
    void linkToNowhereGetsItsFile();
    void permissionsStay();
    void ownerAndGroupStay();
    void newFileHasWhatTheMaskAllows();
    void protectedFileIsNotReplaced();
    void fileThatSomebodyElseHasWrittenIsLeftAlone();
    void fileThatWasTouchedOnlyIsSaved();
    void fileThatIsGoneIsWrittenAgain();
    void fileThatHasComeMeanwhileIsLeftAlone();

private:
    void addNames();
};

void TestSaving::addNames()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("binary") << "lesson.board";
    QTest::newRow("json") << "lesson.board.json";
}

void TestSaving::saveKilledAtAnyOfItsCallsLeavesTheOldOrTheNewFile()
{
    QFETCH(QString, name);
    const QTemporaryDir folder;
    const QString file = folder.filePath(name);
    const std::unique_ptr<Document> oldDocument = documentOfSize(bigSize, 1);
    const std::unique_ptr<Document> newDocument = documentOfSize(bigSize / 2, 2);
    const QByteArray oldBytes = encodeDocument(*oldDocument, documentFormatOf(name));
    const QByteArray newBytes = encodeDocument(*newDocument, documentFormatOf(name));
    const auto save = [&] { return saveDocument(*newDocument, file).saved ? 0 : 1; };
    QVERIFY(saveDocument(*oldDocument, file).saved);
    const support::TracedRun whole = support::traced(save);
    QVERIFY2(whole.problem.isEmpty(), qPrintable(whole.problem));
    QCOMPARE(whole.exitCode, 0);
    QCOMPARE(contentsOf(file), newBytes);
    QVERIFY(support::isPast(whole, "rename"));

    int strays = 0;
    for (const support::SystemCall &call : whole.calls) {
        QVERIFY(saveDocument(*oldDocument, file).saved);
        const support::TracedRun run = support::traced(save, call.killing());
        QVERIFY2(run.problem.isEmpty(), qPrintable(run.problem));
        QVERIFY2(contentsOf(file) == (support::isPast(run, "rename") ? newBytes : oldBytes), call.name);
        strays += filesIn(folder).size() - 1;
        removeUnfinishedSaves(folder.path());
        QCOMPARE(filesIn(folder), QStringList{name});
    }
    QVERIFY(strays > 0); // else there was nothing to be cleared away
}

void TestSaving::diskThatIsFullAtAnyCallLeavesTheOldOrTheNewFile()
{
    QFETCH(QString, name);
    const QTemporaryDir folder;
    const QString file = folder.filePath(name);
    const std::unique_ptr<Document> oldDocument = documentOfSize(bigSize, 1);
    const std::unique_ptr<Document> newDocument = documentOfSize(bigSize / 2, 2);
    const QByteArray oldBytes = encodeDocument(*oldDocument, documentFormatOf(name));
    const QByteArray newBytes = encodeDocument(*newDocument, documentFormatOf(name));
    enum { Saved, ToldOfAFullDisk, ToldOfSomethingElse };
    const auto save = [&] {
        const SaveResult result = saveDocument(*newDocument, file);
        if (result.saved)
            return Saved;
        return result.problem.textKey == QLatin1String("IDS_FILE_DISK_FULL") ? ToldOfAFullDisk
                                                                             : ToldOfSomethingElse;
    };
    QVERIFY(saveDocument(*oldDocument, file).saved);
    const support::TracedRun whole = support::traced(save);
    QVERIFY2(whole.problem.isEmpty(), qPrintable(whole.problem));

    QStringList refusals;
    for (const support::SystemCall &call : whole.calls) {
        if (!writingCalls.contains(QString::fromLatin1(call.name)))
            continue;
        QVERIFY(saveDocument(*oldDocument, file).saved);
        const support::TracedRun run = support::traced(save, call.failing("ENOSPC"));
        QVERIFY2(run.problem.isEmpty(), qPrintable(run.problem));
        QVERIFY2(run.exitCode == Saved || run.exitCode == ToldOfAFullDisk, call.name);
        QVERIFY2(contentsOf(file) == (run.exitCode == Saved ? newBytes : oldBytes), call.name);
        QCOMPARE(filesIn(folder), QStringList{name});
        if (run.exitCode != Saved)
            refusals.append(QString::fromLatin1(call.name));
    }
    for (const QString &call :
         {QStringLiteral("openat"), QStringLiteral("write"), QStringLiteral("fsync"), QStringLiteral("rename")})
        QVERIFY2(refusals.contains(call), qPrintable(call));
}

/// Another board may start while this one saves.
void TestSaving::whatASaveThatLivesIsWritingIsNoRubbish()
{
    const QTemporaryDir folder;
    WorkFileOfAnotherBoard other(folder.path());
    QCOMPARE(filesIn(folder).size(), 1);
    QCOMPARE(removeUnfinishedSaves(folder.path()), 0);
    QCOMPARE(filesIn(folder).size(), 1);
    other.die();
    QCOMPARE(removeUnfinishedSaves(folder.path()), 1);
    QCOMPARE(filesIn(folder), QStringList());
}

void TestSaving::filesThatOnlyLookLikeItAreNoRubbish()
{
    const QTemporaryDir folder;
    const QStringList names{QStringLiteral(".lesson.board"), QStringLiteral(".unfinished-board"),
                            QStringLiteral(".x.unfinished-board"), QStringLiteral("lesson.board.abcdef")};
    for (const QString &name : names)
        writeContents(folder.filePath(name), "mine");
    QCOMPARE(removeUnfinishedSaves(folder.path()), 0);
    QCOMPARE(filesIn(folder), names);
}

void TestSaving::fullDiskLeavesTheOldFileAndSaysSo_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("size");
    QTest::addColumn<int>("limit");
    QTest::newRow("binary, most of it fits") << "lesson.board" << 1000000 << 900000;
    QTest::newRow("binary, little of it fits") << "lesson.board" << 1000000 << 61440;
    QTest::newRow("binary, small file") << "lesson.board" << 100 << 50;
    QTest::newRow("binary, nothing fits") << "lesson.board" << 100 << 0;
    QTest::newRow("json, most of it fits") << "lesson.board.json" << 1000000 << 900000;
    QTest::newRow("json, small file") << "lesson.board.json" << 100 << 50;
}

void TestSaving::fullDiskLeavesTheOldFileAndSaysSo()
{
    QFETCH(QString, name);
    QFETCH(int, size);
    QFETCH(int, limit);
    const QTemporaryDir folder;
    const QString file = folder.filePath(name);
    const std::unique_ptr<Document> oldDocument = documentOfSize(10, 1);
    const std::unique_ptr<Document> newDocument = documentOfSize(size, 2);
    QVERIFY(saveDocument(*oldDocument, file).saved);
    const QByteArray oldBytes = contentsOf(file);
    const int told = inChild([&] {
        limitFileSize(rlim_t(limit));
        const SaveResult result = saveDocument(*newDocument, file);
        const bool isTold = result.problem.textKey == QLatin1String("IDS_FILE_DISK_FULL") ||
                            result.problem.textKey == QLatin1String("IDS_FILE_CANNOT_WRITE");
        return !result.saved && isTold && result.problem.severity == FileMessage::Error ? 1 : 0;
    });
    QCOMPARE(told, 1);
    QCOMPARE(contentsOf(file), oldBytes);
    QCOMPARE(filesIn(folder), QStringList{name});
}

void TestSaving::missingFolderIsTold()
{
    const QTemporaryDir folder;
    const std::unique_ptr<Document> document = documentOfSize(10, 1);
    const SaveResult result = saveDocument(*document, folder.filePath(QStringLiteral("nowhere/lesson.board")));
    QVERIFY(!result.saved);
    QCOMPARE(result.problem.textKey, QStringLiteral("IDS_FILE_CANNOT_WRITE"));
}

void TestSaving::folderInTheWayIsTold()
{
    const QTemporaryDir folder;
    const std::unique_ptr<Document> document = documentOfSize(10, 1);
    const SaveResult result = saveDocument(*document, folder.path());
    QVERIFY(!result.saved);
    QCOMPARE(result.problem.textKey, QStringLiteral("IDS_FILE_CANNOT_WRITE"));
}

/// Renaming would make a file of it.
void TestSaving::pipeStaysAPipe()
{
    const QTemporaryDir folder;
    const std::unique_ptr<Document> document = documentOfSize(10, 1);
    const QString file = folder.filePath(QStringLiteral("pipe.board"));
    const QByteArray pipe = QFile::encodeName(file);
    QCOMPARE(mkfifo(pipe.constData(), 0600), 0);
    const SaveResult result = saveDocument(*document, file);
    QVERIFY(!result.saved);
    QCOMPARE(result.problem.textKey, QStringLiteral("IDS_FILE_CANNOT_WRITE"));
    struct stat facts = {};
    QCOMPARE(stat(pipe.constData(), &facts), 0);
    QVERIFY(S_ISFIFO(facts.st_mode));
    QCOMPARE(filesIn(folder), QStringList());
}

void TestSaving::linkStaysALink()
{
    const QTemporaryDir folder;
    const QString target = folder.filePath(QStringLiteral("target.board"));
    const QString link = folder.filePath(QStringLiteral("link.board"));
    const std::unique_ptr<Document> document = documentOfSize(10, 1);
    writeContents(target, "old");
    QVERIFY(QFile::link(target, link));
    QVERIFY(saveDocument(*document, link).saved);
    QVERIFY(QFileInfo(link).isSymLink());
    QCOMPARE(contentsOf(target), encodeDocument(*document, DocumentFormat::Binary));
}

void TestSaving::permissionsStay()
{
    const QTemporaryDir folder;
    const QString file = folder.filePath(QStringLiteral("lesson.board"));
    const std::unique_ptr<Document> document = documentOfSize(10, 1);
    QVERIFY(saveDocument(*document, file).saved);
    constexpr mode_t readableByGroup = 0640;
    QCOMPARE(::chmod(qPrintable(file), readableByGroup), 0);
    QVERIFY(saveDocument(*document, file).saved);
    QCOMPARE(int(factsOf(file).st_mode & 07777), int(readableByGroup));
}

/// As the administrator saves what belongs to somebody else; everybody else has only files of their own to try.
void TestSaving::ownerAndGroupStay()
{
    constexpr uid_t somebody = 12345;
    const QTemporaryDir folder;
    const QString file = folder.filePath(QStringLiteral("lesson.board"));
    const std::unique_ptr<Document> document = documentOfSize(10, 1);
    QVERIFY(saveDocument(*document, file).saved);
    const bool isAdministrator = ::geteuid() == 0;
    const uid_t owner = isAdministrator ? somebody : ::geteuid();
    const gid_t group = isAdministrator ? somebody + 1 : ::getegid();
    QCOMPARE(::chown(qPrintable(file), owner, group), 0);
    constexpr mode_t mode = 04750;
    QCOMPARE(::chmod(qPrintable(file), mode), 0);
    QVERIFY(saveDocument(*document, file).saved);
    QCOMPARE(factsOf(file).st_uid, owner);
    QCOMPARE(factsOf(file).st_gid, group);
    QCOMPARE(int(factsOf(file).st_mode & 07777), int(mode));
}

void TestSaving::newFileHasWhatTheMaskAllows()
{
    const QTemporaryDir folder;
    const QString file = folder.filePath(QStringLiteral("lesson.board"));
    const std::unique_ptr<Document> document = documentOfSize(10, 1);
    const mode_t before = ::umask(026);
    const bool saved = saveDocument(*document, file).saved;
    ::umask(before);
    QVERIFY(saved);
    QCOMPARE(int(factsOf(file).st_mode & 07777), 0640);
}

/// Though everybody who may write in a folder could replace what is in it.
void TestSaving::protectedFileIsNotReplaced()
{
    const QTemporaryDir folder;
    const QString file = folder.filePath(QStringLiteral("lesson.board"));
    const std::unique_ptr<Document> document = documentOfSize(10, 1);
    writeContents(file, "precious");
    QCOMPARE(::chmod(qPrintable(file), 0444), 0);
    QCOMPARE(::chmod(qPrintable(folder.path()), 0777), 0);
    const int told = inChild([&] {
        // Nothing is protected from the administrator.
        if (::geteuid() == 0 && ::setuid(65534) != 0)
            return 2;
        return saveDocument(*document, file).problem.textKey == QLatin1String("IDS_FILE_CANNOT_WRITE") ? 1 : 0;
    });
    QCOMPARE(told, 1);
    QCOMPARE(contentsOf(file), QByteArray("precious"));
    QCOMPARE(filesIn(folder), QStringList{QStringLiteral("lesson.board")});
}

void TestSaving::linkToNowhereGetsItsFile()
{
    const QTemporaryDir folder;
    const QString target = folder.filePath(QStringLiteral("target.board"));
    const QString link = folder.filePath(QStringLiteral("link.board"));
    const std::unique_ptr<Document> document = documentOfSize(10, 1);
    QVERIFY(QFile::link(target, link));
    QVERIFY(saveDocument(*document, link).saved);
    QVERIFY(QFileInfo(link).isSymLink());
    QCOMPARE(contentsOf(target), encodeDocument(*document, DocumentFormat::Binary));
}

void TestSaving::fileThatSomebodyElseHasWrittenIsLeftAlone()
{
    const QTemporaryDir folder;
    const QString file = folder.filePath(QStringLiteral("lesson.board"));
    const std::unique_ptr<Document> mine = documentOfSize(10, 1);
    const std::unique_ptr<Document> theirs = documentOfSize(10, 2);
    const FileStamp stamp = saveDocument(*mine, file).stamp;
    QVERIFY(saveDocument(*theirs, file).saved);
    const QByteArray bytes = contentsOf(file);
    const SaveResult refused = saveDocument(*mine, file, stamp);
    QVERIFY(!refused.saved);
    QVERIFY(refused.isConflict);
    QCOMPARE(contentsOf(file), bytes);
    QCOMPARE(filesIn(folder), QStringList{QStringLiteral("lesson.board")});
    QVERIFY(saveDocument(*mine, file).saved);
}

/// By a program that copies files, for instance: nothing of anybody's would be lost.
void TestSaving::fileThatWasTouchedOnlyIsSaved()
{
    const QTemporaryDir folder;
    const QString file = folder.filePath(QStringLiteral("lesson.board"));
    const std::unique_ptr<Document> first = documentOfSize(10, 1);
    const std::unique_ptr<Document> second = documentOfSize(10, 2);
    const FileStamp stamp = saveDocument(*first, file).stamp;
    const QByteArray bytes = contentsOf(file);
    QVERIFY(QFile::remove(file));
    writeContents(file, bytes);
    QVERIFY(saveDocument(*second, file, stamp).saved);
    QCOMPARE(contentsOf(file), encodeDocument(*second, DocumentFormat::Binary));
}

void TestSaving::fileThatIsGoneIsWrittenAgain()
{
    const QTemporaryDir folder;
    const QString file = folder.filePath(QStringLiteral("lesson.board"));
    const std::unique_ptr<Document> document = documentOfSize(10, 1);
    const FileStamp stamp = saveDocument(*document, file).stamp;
    QVERIFY(QFile::remove(file));
    QVERIFY(saveDocument(*document, file, stamp).saved);
    QVERIFY(QFile::exists(file));
}

void TestSaving::fileThatHasComeMeanwhileIsLeftAlone()
{
    const QTemporaryDir folder;
    const QString file = folder.filePath(QStringLiteral("lesson.board"));
    const std::unique_ptr<Document> document = documentOfSize(10, 1);
    writeContents(file, "theirs");
    QVERIFY(saveDocument(*document, file, FileStamp()).isConflict);
    QCOMPARE(contentsOf(file), QByteArray("theirs"));
}

QTEST_MAIN(TestSaving)
#include "test_saving.moc"

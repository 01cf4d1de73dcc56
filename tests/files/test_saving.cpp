#include "filetest.h"

#include <QtCore/QDir>
#include <QtCore/QTemporaryDir>

#include <csignal>
#include <random>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

// Saving while the process dies or the disk is full: the old or the new file is there, whole.

using namespace pagehost;

namespace {

constexpr int bigSize = 400000; ///< bytes
constexpr int kills = 200;

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
    if (child == 0) {
        _exit(work());
    }
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

QStringList filesIn(const QTemporaryDir &folder)
{
    return QDir(folder.path()).entryList(QDir::Files | QDir::Hidden);
}

} // namespace

class TestSaving : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void killedSaveLeavesTheOldOrTheNewFile_data() { addNames(); }
    void killedSaveLeavesTheOldOrTheNewFile();
    void fullDiskLeavesTheOldFileAndSaysSo_data();
    void fullDiskLeavesTheOldFileAndSaysSo();
    void missingFolderIsTold();
    void folderInTheWayIsTold();
    void pipeStaysAPipe();
    void linkStaysALink();
    void permissionsStay();

private:
    void addNames();
};

void TestSaving::addNames()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("binary") << "lesson.board";
    QTest::newRow("json") << "lesson.board.json";
}

void TestSaving::killedSaveLeavesTheOldOrTheNewFile()
{
    QFETCH(QString, name);
    const QTemporaryDir folder;
    const QString file = folder.filePath(name);
    const std::unique_ptr<Document> oldDocument = documentOfSize(bigSize, 1);
    const std::unique_ptr<Document> newDocument = documentOfSize(bigSize / 2, 2);
    const QByteArray oldBytes = encodeDocument(*oldDocument, documentFormatOf(name));
    const QByteArray newBytes = encodeDocument(*newDocument, documentFormatOf(name));
    QElapsedTimer timer;
    timer.start();
    QVERIFY(saveDocument(*oldDocument, file).saved);
    const int saveTime = int(timer.nsecsElapsed() / 1000);

    std::mt19937 random(20240608);
    std::uniform_int_distribution<int> moment(0, 3 * saveTime);
    int oldSeen = 0;
    int newSeen = 0;
    for (int round = 0; round < kills / 2; ++round) {
        const pid_t child = fork();
        if (child == 0) {
            for (;;) {
                saveDocument(*newDocument, file);
                saveDocument(*oldDocument, file);
            }
        }
        usleep(useconds_t(moment(random)));
        ::kill(child, SIGKILL);
        waitpid(child, nullptr, 0);
        const QByteArray found = contentsOf(file);
        QVERIFY(found == oldBytes || found == newBytes);
        ++(found == oldBytes ? oldSeen : newSeen);
    }
    // Else the moments missed the saves.
    QVERIFY(oldSeen > 0 && newSeen > 0);
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
    struct stat state = {};
    QCOMPARE(::stat(qPrintable(file), &state), 0);
    QCOMPARE(int(state.st_mode & 0777), int(readableByGroup));
}

QTEST_MAIN(TestSaving)
#include "test_saving.moc"

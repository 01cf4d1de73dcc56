// What is left when the board is killed: while it saves, and while nothing has been saved.

#include <board/boarddriver.h>

#include <documents/documentcontroller.h>
#include <documents/recovery.h>
#include <objects/demopages.h>
#include <window/mainwindow.h>
#include <window/notices.h>

#include <pagehost/documentfile.h>
#include <pagehost/page.h>

#include <framework/cbaseobject.h>

#include <QtCore/QSettings>
#include <QtCore/QTemporaryDir>
#include <QtTest/QtTest>
#include <QtWidgets/QLabel>
#include <QtWidgets/QPushButton>

#include <csignal>
#include <random>
#include <sys/wait.h>
#include <unistd.h>

using namespace boardtest;

namespace {

constexpr int kills = 100; ///< in each format
/// Milliseconds after which a slow build, with a sanitizer for instance, has been killed often enough in one
/// format.
constexpr int patience = 30000;
constexpr int measuredSaves = 4;
/// What becomes of the last moment of a kill after one that found the old file and the new one: where the board
/// gets through many saves both are found equally often, so that the moments come nearer again.
constexpr double later = 1.25;
constexpr double earlier = 0.5;
const QPointF corner(500, 300);
const QPointF oppositeCorner(700, 420);

QByteArray contentsOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void takeBackAndSave(BoardDriver &board)
{
    board.key(Qt::Key_Z, Qt::ControlModifier);
    board.key(Qt::Key_S, Qt::ControlModifier);
}

void doAgainAndSave(BoardDriver &board)
{
    board.key(Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
    board.key(Qt::Key_S, Qt::ControlModifier);
}

void killAndWait(pid_t process)
{
    ::kill(process, SIGKILL);
    waitpid(process, nullptr, 0);
}

} // namespace

class TestKilled : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { useOwnFolders(); }
    // First: a child has none of the threads that boards start in this process, and would wait for them.
    void workOfAKilledBoardIsOfferedAndBroughtBack();
    void killedWhileSavingItLeavesTheOldOrTheNewFile_data();
    void killedWhileSavingItLeavesTheOldOrTheNewFile();
};

void TestKilled::workOfAKilledBoardIsOfferedAndBroughtBack()
{
    QSettings().clear();
    int ready[2];
    QCOMPARE(pipe(ready), 0);
    const pid_t child = fork();
    if (child == 0) {
        BoardDriver board;
        board.draw(rectangle, corner, oppositeCorner);
        const char made = board.window().recovery()->autosave().saveNow() ? 1 : 0;
        const bool told = write(ready[1], &made, 1) == 1;
        pause();
        _exit(told ? 0 : 1);
    }
    ::close(ready[1]);
    char made = 0;
    const bool answered = read(ready[0], &made, 1) == 1;
    ::close(ready[0]);
    killAndWait(child);
    QVERIFY(answered && made == 1);

    BoardDriver next;
    QCOMPARE(next.page().objectCount(), 0);
    next.window().recovery()->offer();
    QPushButton *bringBack = next.button("Bring back");
    QVERIFY(bringBack);
    QTest::mouseClick(bringBack, Qt::LeftButton);
    QCOMPARE(next.page().objectCount(), 1);
    QCOMPARE(next.placeOf(qAsConst(next).page().objects().first()), QRectF(corner, oppositeCorner));
    QVERIFY(next.window().isWindowModified());
    QVERIFY(next.window().recovery()->autosave().recoverable().isEmpty());
}

void TestKilled::killedWhileSavingItLeavesTheOldOrTheNewFile_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("binary") << "lesson.board";
    QTest::newRow("json") << "lesson.board.json";
}

void TestKilled::killedWhileSavingItLeavesTheOldOrTheNewFile()
{
    QFETCH(QString, name);
    QSettings().clear();
    const QTemporaryDir folder;
    const QString file = folder.filePath(name);
    BoardDriver board;
    board::fillWithDemo(board.workspace());
    QVERIFY(pagehost::saveDocument(*board.workspace().document(), file).saved);
    QVERIFY(board.window().documents()->openNow(file));
    board.draw(rectangle, corner, oppositeCorner);
    board.key(Qt::Key_S, Qt::ControlModifier);
    const QByteArray newBytes = contentsOf(file);
    takeBackAndSave(board);
    const QByteArray oldBytes = contentsOf(file);
    QVERIFY(oldBytes.size() < newBytes.size());

    QElapsedTimer timer;
    timer.start();
    for (int i = 0; i < measuredSaves / 2; ++i) {
        doAgainAndSave(board);
        QCOMPARE(contentsOf(file), newBytes);
        takeBackAndSave(board);
        QCOMPARE(contentsOf(file), oldBytes);
    }
    const int saveTime = int(timer.nsecsElapsed() / 1000 / measuredSaves);

    std::mt19937 random(20240609);
    // A machine that is busy gets to its first save later than the one that was measured: the moments follow it.
    double latest = 3 * saveTime;
    int oldSeen = 0;
    int newSeen = 0;
    timer.restart();
    const auto isEnough = [&] { return oldSeen > 0 && newSeen > 0 && timer.hasExpired(patience); };
    for (int round = 0; round < kills && !isEnough(); ++round) {
        const pid_t child = fork();
        if (child == 0) {
            for (;;) {
                doAgainAndSave(board);
                takeBackAndSave(board);
            }
        }
        usleep(useconds_t(std::uniform_real_distribution<double>(0, latest)(random)));
        killAndWait(child);
        const QByteArray found = contentsOf(file);
        QVERIFY(found == oldBytes || found == newBytes);
        ++(found == oldBytes ? oldSeen : newSeen);
        latest *= found == oldBytes ? later : earlier;
    }
    // Else the moments missed the saves.
    QVERIFY(oldSeen > 0 && newSeen > 0);
}

QTEST_MAIN(TestKilled)
#include "test_killed.moc"

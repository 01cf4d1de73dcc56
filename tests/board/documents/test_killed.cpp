// Files left when the board is killed: at each system call of a save, and while nothing has been saved.

#include <board/desk.h>

#include <support/systemcalls.h>

#include <documents/recovery.h>
#include <lessons/lessoncontroller.h>

#include <pagehost/documentfile.h>

#include <framework/cbaseobject.h>

#include <QtCore/QDir>

#include <csignal>
#include <sys/wait.h>
#include <unistd.h>

using namespace boardtest;

namespace {

const QPointF corner(500, 300);
const QPointF oppositeCorner(700, 420);
const QStringList writingCalls{QStringLiteral("openat"), QStringLiteral("write"), QStringLiteral("fchown"),
                               QStringLiteral("fchmod"), QStringLiteral("fsync"), QStringLiteral("flock"),
                               QStringLiteral("rename")};

void killAndWait(pid_t process)
{
    ::kill(process, SIGKILL);
    waitpid(process, nullptr, 0);
}

/// A board with changes over a saved file.
struct ChangedDesk : Desk
{
    explicit ChangedDesk(const QString &fileName)
        : name(fileName)
    {
        drawOne();
        saveAs(name);
        oldBytes = contents(name);
        board.draw(arrow, {100, 100}, {200, 200});
        newBytes = pagehost::encodeDocument(*board.workspace().document(), pagehost::documentFormatOf(name));
    }

    /// To be run in a copy of this process; 0 when the board says that it has saved.
    int save()
    {
        documents().save();
        return board.window().isWindowModified() ? 1 : 0;
    }
    support::TracedRun traced(const QString &disturbance = {})
    {
        return support::traced([this] { return save(); }, disturbance);
    }
    void putOldFileBack()
    {
        QFile file(path(name));
        if (!file.open(QIODevice::WriteOnly) || file.write(oldBytes) != oldBytes.size())
            qFatal("the file cannot be written");
    }
    /// Does as the program does when it starts.
    void startAgain() { board.window().recovery()->offer(); }
    QStringList files() const { return QDir(folder.path()).entryList(QDir::Files | QDir::Hidden); }

    QString name;
    QByteArray oldBytes;
    QByteArray newBytes;
};

} // namespace

class TestKilled : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { useOwnFolders(); }
    // First: a child has none of the threads that boards start in this process, and would wait for them.
    void workOfAKilledBoardIsOfferedAndBroughtBack();
    void saveKilledAtAnyOfItsCallsLeavesTheOldOrTheNewFile_data() { addNames(); }
    void saveKilledAtAnyOfItsCallsLeavesTheOldOrTheNewFile();
    void diskThatIsFullAtAnyCallLeavesTheOldOrTheNewFile_data() { addNames(); }
    void diskThatIsFullAtAnyCallLeavesTheOldOrTheNewFile();

private:
    void addNames();
};

void TestKilled::addNames()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("binary") << "lesson.board";
    QTest::newRow("json") << "lesson.board.json";
}

void TestKilled::workOfAKilledBoardIsOfferedAndBroughtBack()
{
    QSettings().clear();
    int ready[2];
    QCOMPARE(pipe(ready), 0);
    const pid_t child = fork();
    if (child == 0) {
        BoardDriver board;
        board.window().lessons()->recordOrStop();
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
    // The lesson that was being recorded, too.
    QCOMPARE(next.window().lessons()->names(), QStringList{"Lesson 1"});
    next.window().lessons()->seek(next.window().lessons()->duration());
    QVERIFY(next.window().lessons()->isShowing());
    QCOMPARE(next.page().objectCount(), 1);
}

void TestKilled::saveKilledAtAnyOfItsCallsLeavesTheOldOrTheNewFile()
{
    QFETCH(QString, name);
    ChangedDesk desk(name);
    const support::TracedRun whole = desk.traced();
    QVERIFY2(whole.problem.isEmpty(), qPrintable(whole.problem));
    QCOMPARE(whole.exitCode, 0);
    QCOMPARE(desk.contents(name), desk.newBytes);
    QVERIFY(support::isPast(whole, "rename"));
    for (const support::SystemCall &call : whole.calls) {
        desk.putOldFileBack();
        const support::TracedRun run = desk.traced(call.killing());
        QVERIFY2(run.problem.isEmpty(), qPrintable(run.problem));
        QVERIFY2(desk.contents(name) == (support::isPast(run, "rename") ? desk.newBytes : desk.oldBytes),
                 call.name);
        desk.startAgain();
        QCOMPARE(desk.files(), QStringList{name});
    }
}

void TestKilled::diskThatIsFullAtAnyCallLeavesTheOldOrTheNewFile()
{
    QFETCH(QString, name);
    ChangedDesk desk(name);
    const support::TracedRun whole = desk.traced();
    QVERIFY2(whole.problem.isEmpty(), qPrintable(whole.problem));
    int refusals = 0;
    for (const support::SystemCall &call : whole.calls) {
        if (!writingCalls.contains(QString::fromLatin1(call.name)))
            continue;
        desk.putOldFileBack();
        const support::TracedRun run = desk.traced(call.failing("ENOSPC"));
        QVERIFY2(run.problem.isEmpty(), qPrintable(run.problem));
        QVERIFY2(run.exitCode == 0 || run.exitCode == 1, call.name);
        QVERIFY2(desk.contents(name) == (run.exitCode == 0 ? desk.newBytes : desk.oldBytes), call.name);
        QCOMPARE(desk.files(), QStringList{name});
        refusals += run.exitCode;
    }
    QVERIFY(refusals > 0); // else the disk was full beside the save
}

QTEST_MAIN(TestKilled)
#include "test_killed.moc"

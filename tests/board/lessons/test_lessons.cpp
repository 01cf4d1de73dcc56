#include "board/boarddriver.h"

#include <support/virtualtime.h>

#include <application/commandline.h>
#include <application/demopages.h>
#include <documents/recovery.h>
#include <lessons/lessonbar.h>
#include <lessons/lessoncontroller.h>
#include <lessons/timeline.h>
#include <page/pageview.h>
#include <window/mainwindow.h>

#include <pagehost/documentfile.h>
#include <pagehost/page.h>
#include <pagehost/pagepainter.h>

#include <framework/cbaseobject.h>

#include <QtTest/QtTest>
#include <QtWidgets/QAction>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QUndoStack>

using namespace boardtest;
using board::LessonController;

class TestLessons : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void recordedLessonPlaysToWhatWasDrawn();
    void playedPageLooksLikeAnOpenedOne();
    void keysRecordAndPlay();
    void barShowsWhatCanBeDone();
    void pausedRecordingGoesOn();
    void timeLineGoesToAnyMoment();
    void pressAtTheBeginningRewindsALessonThatWasJustRecorded();
    void timeLineIsMovedByKeys();
    void severalLessonsAreChosenFromAList();
    void deletedLessonIsGone();
    void lessonIsRenamedInTheBar();
    void escapeKeepsTheNameOfALesson();
    void emptyNameIsNoName();
    void speedIsChosenInTheBar();
    void lessonMarksTheDocumentModified();
    void savingWhileRecordingKeepsWhatIsRecorded();
    void recoveryCopyHasWhatIsBeingRecorded();
    void recoveryCopyLeavesAHeldObjectAlone();
    void deletedLessonComesBackWithUndo();
    void recordedLessonGoesAndComesWithUndoAndRedo();
    void newNameIsTakenBackByUndo();
    void lessonIsCutOffWhereItStandsUntilUndone();
    void undoWhileRecordingLeavesWhatIsRecorded();
    void hintStandsAboveWhereMomentsAreShown();
    void nothingCanBeEditedWhileALessonIsShown();
    void boardIsBackAfterTheLesson();
    void anotherDocumentEndsEverything();
    void damagedLessonIsToldOf();
    void damagedLessonPlaysUpToTheDamageAndIsToldOf();
    void barSpeaksGerman();
    void playNeedsAFile();
};

namespace {

LessonController &lessons(const BoardDriver &driver)
{
    return *driver.window().lessons();
}

void pressInTheBar(const BoardDriver &driver, Qt::Key key)
{
    QVERIFY(activate(driver.window()));
    QComboBox *list = driver.window().lessonBar()->list();
    list->setFocus();
    QTest::keyClick(list, key);
}

/// Draws a rectangle and drags it to the right.
/// Between what a teacher does, milliseconds.
constexpr int thought = 500;

void teach(BoardDriver &driver)
{
    support::pass(thought);
    driver.draw(rectangle, {300, 200}, {420, 280});
    support::pass(thought);
    driver.drag({360, 240}, {560, 260});
}

void record(BoardDriver &driver)
{
    lessons(driver).recordOrStop();
    teach(driver);
    lessons(driver).recordOrStop();
}

QByteArray pagesOf(pagehost::Document &document)
{
    const QVector<pagehost::LessonData> kept = document.lessons();
    const QSignalBlocker quiet(&document);
    document.setLessons({});
    QByteArray bytes = pagehost::encodeDocument(document, pagehost::DocumentFormat::Binary);
    document.setLessons(kept);
    return bytes;
}

} // namespace

void TestLessons::recordedLessonPlaysToWhatWasDrawn()
{
    BoardDriver driver;
    record(driver);
    QCOMPARE(driver.workspace().document()->lessons().size(), 1);
    QCOMPARE(lessons(driver).state(), LessonController::Idle);
    lessons(driver).seek(0);
    QCOMPARE(lessons(driver).state(), LessonController::Showing);
    QVERIFY(driver.view().page() != driver.workspace().document()->currentPage());
    QCOMPARE(driver.view().page()->objectCount(), 0);
    lessons(driver).seek(lessons(driver).duration());
    QCOMPARE(driver.view().page()->objectCount(), 1);
    QCOMPARE(pagesOf(*lessons(driver).shownDocument()), pagesOf(*driver.workspace().document()));
}

void TestLessons::playedPageLooksLikeAnOpenedOne()
{
    BoardDriver driver;
    board::fillWithDemo(driver.workspace());
    QCoreApplication::processEvents();
    lessons(driver).recordOrStop();
    lessons(driver).recordOrStop();
    lessons(driver).seek(0);
    pagehost::Document *shown = lessons(driver).shownDocument();
    pagehost::Document *own = driver.workspace().document();
    const pagehost::OpenResult opened = pagehost::decodeDocument(
        pagehost::encodeDocument(*own, pagehost::DocumentFormat::Binary), driver.workspace().registry());
    QCOMPARE(shown->pageCount(), own->pageCount());
    for (int i = 0; i < own->pageCount(); ++i)
        QCOMPARE(pagehost::pageImage(shown->page(i), 1), pagehost::pageImage(opened.document->page(i), 1));
}

void TestLessons::keysRecordAndPlay()
{
    BoardDriver driver;
    driver.key(Qt::Key_F9);
    QCOMPARE(lessons(driver).state(), LessonController::Recording);
    teach(driver);
    driver.key(Qt::Key_F9, Qt::ShiftModifier);
    QCOMPARE(lessons(driver).state(), LessonController::RecordingPaused);
    driver.key(Qt::Key_F9);
    QCOMPARE(lessons(driver).state(), LessonController::Idle);
    driver.key(Qt::Key_F8);
    QCOMPARE(lessons(driver).state(), LessonController::Showing);
    driver.key(Qt::Key_F8, Qt::ShiftModifier);
    QCOMPARE(lessons(driver).state(), LessonController::Idle);
}

void TestLessons::barShowsWhatCanBeDone()
{
    BoardDriver driver;
    board::LessonBar *bar = driver.window().lessonBar();
    // Nothing is recorded, chosen or played.
    QVERIFY(!bar->isVisible());
    QVERIFY(!driver.action(QStringLiteral("Play the lesson"))->isEnabled());
    lessons(driver).recordOrStop();
    QVERIFY(driver.action(QStringLiteral("Stop recording")));
    QVERIFY(bar->message()->text().startsWith(QStringLiteral("Recording")));
    teach(driver);
    lessons(driver).recordOrStop();
    QVERIFY(!bar->message()->isVisible());
    QVERIFY(bar->timeLine()->isVisible());
    QVERIFY(driver.action(QStringLiteral("Play the lesson"))->isEnabled());
    QVERIFY(!driver.button(QStringLiteral("Take over")));
    lessons(driver).seek(0);
    QVERIFY(driver.button(QStringLiteral("Take over")));
}

void TestLessons::pausedRecordingGoesOn()
{
    BoardDriver driver;
    lessons(driver).recordOrStop();
    support::pass(21);
    lessons(driver).pauseOrResumeRecording();
    QCOMPARE(lessons(driver).position(), qint64(21));
    support::pass(60);
    QCOMPARE(lessons(driver).position(), qint64(21));
    teach(driver);
    lessons(driver).pauseOrResumeRecording();
    support::pass(10);
    QCOMPARE(lessons(driver).position(), qint64(31));
    lessons(driver).recordOrStop();
    lessons(driver).seek(lessons(driver).duration());
    QCOMPARE(pagesOf(*lessons(driver).shownDocument()), pagesOf(*driver.workspace().document()));
}

void TestLessons::timeLineGoesToAnyMoment()
{
    BoardDriver driver;
    record(driver);
    board::TimeLine *line = driver.window().lessonBar()->timeLine();
    QTest::mouseClick(line, Qt::LeftButton, {}, QPoint(line->width() - 1, line->height() / 2));
    QCOMPARE(lessons(driver).state(), LessonController::Showing);
    QCOMPARE(lessons(driver).position(), lessons(driver).duration());
    QCOMPARE(driver.view().page()->objectCount(), 1);
    QTest::mouseClick(line, Qt::LeftButton, {}, QPoint(0, line->height() / 2));
    QCOMPARE(lessons(driver).position(), qint64(0));
    QCOMPARE(driver.view().page()->objectCount(), 0);
}

void TestLessons::pressAtTheBeginningRewindsALessonThatWasJustRecorded()
{
    BoardDriver driver;
    record(driver);
    QCOMPARE(driver.view().page()->objectCount(), 1);
    board::TimeLine *line = driver.window().lessonBar()->timeLine();
    QTest::mouseClick(line, Qt::LeftButton, {}, QPoint(0, line->height() / 2));
    QCOMPARE(lessons(driver).state(), LessonController::Showing);
    QCOMPARE(driver.view().page()->objectCount(), 0);
}

void TestLessons::timeLineIsMovedByKeys()
{
    BoardDriver driver;
    pagehost::Lesson lesson;
    lesson.duration = 20000;
    driver.workspace().document()->setLessons({{QStringLiteral("Silence"), lesson.toBytes()}});
    board::TimeLine *line = driver.window().lessonBar()->timeLine();
    QTest::keyClick(line, Qt::Key_Right);
    QCOMPARE(lessons(driver).position(), qint64(1000));
    QTest::keyClick(line, Qt::Key_PageUp);
    QCOMPARE(lessons(driver).position(), qint64(6000));
    QTest::keyClick(line, Qt::Key_End);
    QCOMPARE(lessons(driver).position(), qint64(20000));
    QTest::keyClick(line, Qt::Key_Home);
    QCOMPARE(lessons(driver).position(), qint64(0));
    QCOMPARE(driver.window().lessonBar()->time()->text(), QStringLiteral("0:00 / 0:20"));
}

void TestLessons::severalLessonsAreChosenFromAList()
{
    BoardDriver driver;
    record(driver);
    lessons(driver).recordOrStop();
    support::pass(thought);
    driver.draw(arrow, {600, 400}, {760, 500});
    lessons(driver).recordOrStop();
    QComboBox *list = driver.window().lessonBar()->list();
    QCOMPARE(list->count(), 2);
    QCOMPARE(list->currentIndex(), 1);
    QVERIFY(list->itemText(0).startsWith(QStringLiteral("Lesson 1 (0:01)")));
    lessons(driver).seek(0);
    QCOMPARE(driver.view().page()->objectCount(), 1);
    QTest::keyClick(list, Qt::Key_Up);
    QCOMPARE(lessons(driver).chosen(), 0);
    QCOMPARE(lessons(driver).state(), LessonController::Idle);
    lessons(driver).seek(0);
    QCOMPARE(driver.view().page()->objectCount(), 0);
}

void TestLessons::deletedLessonIsGone()
{
    BoardDriver driver;
    record(driver);
    record(driver);
    lessons(driver).choose(0);
    const QByteArray second = driver.workspace().document()->lessons().at(1).data;
    driver.action(QStringLiteral("Delete the lesson"))->trigger();
    QCOMPARE(driver.workspace().document()->lessons().size(), 1);
    QCOMPARE(driver.workspace().document()->lessons().first().data, second);
    QCOMPARE(lessons(driver).chosen(), 0);
    driver.action(QStringLiteral("Delete the lesson"))->trigger();
    QCOMPARE(lessons(driver).chosen(), -1);
    QVERIFY(!driver.window().lessonBar()->isVisible());
}

void TestLessons::lessonIsRenamedInTheBar()
{
    BoardDriver driver;
    record(driver);
    record(driver);
    driver.workspace().document()->markSaved();
    pressInTheBar(driver, Qt::Key_F2);
    QLineEdit *field = driver.window().lessonBar()->name();
    QVERIFY(field->isVisible());
    QVERIFY(!driver.window().lessonBar()->list()->isVisible());
    QCOMPARE(field->text(), QStringLiteral("Lesson 2"));
    QTest::keyClicks(field, QStringLiteral(" Halves and quarters "));
    QTest::keyClick(field, Qt::Key_Return);
    QVERIFY(!field->isVisible());
    const QString name = QStringLiteral("Halves and quarters");
    QCOMPARE(lessons(driver).names(), QStringList({QStringLiteral("Lesson 1"), name}));
    QVERIFY(driver.window().lessonBar()->list()->currentText().startsWith(name));
    pagehost::Lesson lesson;
    QVERIFY(lesson.fromData(driver.workspace().document()->lessons().at(1).data));
    QCOMPARE(lesson.title, name);
    QVERIFY(driver.workspace().document()->isModified());
    lessons(driver).seek(lessons(driver).duration());
    QCOMPARE(pagesOf(*lessons(driver).shownDocument()), pagesOf(*driver.workspace().document()));
}

void TestLessons::escapeKeepsTheNameOfALesson()
{
    BoardDriver driver;
    record(driver);
    pressInTheBar(driver, Qt::Key_F2);
    QLineEdit *field = driver.window().lessonBar()->name();
    QTest::keyClicks(field, QStringLiteral("Thirds"));
    QTest::keyClick(field, Qt::Key_Escape);
    QVERIFY(!field->isVisible());
    QVERIFY(driver.window().lessonBar()->list()->isVisible());
    QCOMPARE(lessons(driver).names(), QStringList(QStringLiteral("Lesson 1")));
}

void TestLessons::emptyNameIsNoName()
{
    BoardDriver driver;
    QVERIFY(!driver.action(QStringLiteral("Rename the lesson"))->isEnabled());
    record(driver);
    driver.action(QStringLiteral("Rename the lesson"))->trigger();
    QLineEdit *field = driver.window().lessonBar()->name();
    field->setText(QStringLiteral("  "));
    QTest::keyClick(field, Qt::Key_Return);
    QCOMPARE(lessons(driver).names(), QStringList(QStringLiteral("Lesson 1")));
}

void TestLessons::speedIsChosenInTheBar()
{
    BoardDriver driver;
    pagehost::Lesson lesson;
    lesson.duration = 60000;
    driver.workspace().document()->setLessons({{QStringLiteral("Silence"), lesson.toBytes()}});
    QComboBox *speed = driver.window().lessonBar()->speed();
    QCOMPARE(speed->currentText(), QStringLiteral("1 ×"));
    speed->setFocus();
    QTest::keyClick(speed, Qt::Key_End);
    QCOMPARE(speed->currentText(), QStringLiteral("4 ×"));
    QCOMPARE(lessons(driver).speed(), 4.0);
    lessons(driver).playOrPause();
    support::pass(150);
    lessons(driver).playOrPause();
    QCOMPARE(lessons(driver).position(), qint64(600));
    lessons(driver).close();
    lessons(driver).seek(0);
    QCOMPARE(lessons(driver).speed(), 4.0);
}

void TestLessons::lessonMarksTheDocumentModified()
{
    BoardDriver driver;
    driver.workspace().document()->markSaved();
    lessons(driver).recordOrStop();
    QVERIFY(!driver.workspace().document()->isModified());
    lessons(driver).recordOrStop();
    QVERIFY(driver.workspace().document()->isModified());
}

void TestLessons::savingWhileRecordingKeepsWhatIsRecorded()
{
    BoardDriver driver;
    lessons(driver).recordOrStop();
    teach(driver);
    lessons(driver).keepSoFar();
    QCOMPARE(driver.workspace().document()->lessons().size(), 0);
    QCOMPARE(driver.workspace().document()->lessonsToSave().size(), 1);
    const pagehost::LessonData early = driver.workspace().document()->lessonsToSave().first();
    QCOMPARE(early.name, QStringLiteral("Lesson 1"));
    driver.draw(arrow, {600, 400}, {760, 500});
    lessons(driver).keepSoFar();
    lessons(driver).recordOrStop();
    QCOMPARE(driver.workspace().document()->lessons().size(), 1);
    QCOMPARE(driver.workspace().document()->lessonsToSave().size(), 1);
    QVERIFY(driver.workspace().document()->lessons().first().data.size() > early.data.size());
    pagehost::Lesson lesson;
    QVERIFY(lesson.fromData(early.data));
    QVERIFY(!lesson.events.isEmpty());
}

void TestLessons::recoveryCopyHasWhatIsBeingRecorded()
{
    BoardDriver driver;
    lessons(driver).recordOrStop();
    teach(driver);
    pagehost::Autosave &autosave = driver.window().recovery()->autosave();
    QVERIFY(autosave.saveNow());
    const pagehost::OpenResult copy =
        pagehost::openDocument(autosave.recoveryFile(), driver.workspace().registry());
    QCOMPARE(copy.document->lessons().size(), 1);
    pagehost::Lesson lesson;
    QVERIFY(lesson.fromData(copy.document->lessons().first().data));
    QVERIFY(lesson.events.size() > 2);
    QVERIFY(lessons(driver).isRecording());
    QCOMPARE(driver.workspace().document()->lessons().size(), 0);
}

/// An object in the middle of a drag is where it never will have been.
void TestLessons::recoveryCopyLeavesAHeldObjectAlone()
{
    BoardDriver driver;
    lessons(driver).recordOrStop();
    teach(driver);
    lessons(driver).keepSoFar();
    const pagehost::LessonData before = driver.workspace().document()->lessonsToSave().first();
    driver.hold({560, 260}, {700, 400});
    lessons(driver).keepSoFar();
    QCOMPARE(driver.workspace().document()->lessonsToSave().first().data, before.data);
    driver.release({700, 400});
    lessons(driver).keepSoFar();
    QVERIFY(driver.workspace().document()->lessonsToSave().first().data != before.data);
}

void TestLessons::deletedLessonComesBackWithUndo()
{
    BoardDriver driver;
    record(driver);
    record(driver);
    record(driver);
    const QVector<pagehost::LessonData> before = driver.workspace().document()->lessons();
    lessons(driver).choose(1);
    driver.action(QStringLiteral("Delete the lesson"))->trigger();
    QCOMPARE(lessons(driver).names(), QStringList({QStringLiteral("Lesson 1"), QStringLiteral("Lesson 3")}));
    driver.key(Qt::Key_Z, Qt::ControlModifier);
    QVERIFY(driver.workspace().document()->lessons() == before);
    QCOMPARE(lessons(driver).chosen(), 1);
    QCOMPARE(driver.window().lessonBar()->list()->currentIndex(), 1);
    driver.key(Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
    QCOMPARE(lessons(driver).names(), QStringList({QStringLiteral("Lesson 1"), QStringLiteral("Lesson 3")}));
}

void TestLessons::recordedLessonGoesAndComesWithUndoAndRedo()
{
    BoardDriver driver;
    record(driver);
    const QVector<pagehost::LessonData> recorded = driver.workspace().document()->lessons();
    driver.key(Qt::Key_Z, Qt::ControlModifier);
    QVERIFY(driver.workspace().document()->lessons().isEmpty());
    QCOMPARE(driver.page().objectCount(), 1); // what was drawn has steps of its own
    QCOMPARE(lessons(driver).chosen(), -1);
    driver.key(Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
    QVERIFY(driver.workspace().document()->lessons() == recorded);
    QCOMPARE(lessons(driver).chosen(), 0);
}

void TestLessons::newNameIsTakenBackByUndo()
{
    BoardDriver driver;
    record(driver);
    record(driver);
    driver.workspace().document()->markSaved();
    lessons(driver).choose(0);
    lessons(driver).renameChosen(QStringLiteral("Halves"));
    QCOMPARE(lessons(driver).chosen(), 0);
    driver.key(Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(lessons(driver).names(), QStringList({QStringLiteral("Lesson 1"), QStringLiteral("Lesson 2")}));
    QVERIFY(!driver.workspace().document()->isModified());
}

void TestLessons::lessonIsCutOffWhereItStandsUntilUndone()
{
    BoardDriver driver;
    pagehost::Lesson lesson;
    lesson.duration = 20000;
    driver.workspace().document()->setLessons({{QStringLiteral("Silence"), lesson.toBytes()}});
    QAction *cut = driver.action(QStringLiteral("Cut the lesson off here"));
    QVERIFY(cut && !cut->isEnabled());
    lessons(driver).seek(20000);
    QVERIFY(!cut->isEnabled()); // nothing comes after it
    lessons(driver).seek(7000);
    QVERIFY(cut->isEnabled());
    cut->trigger();
    QCOMPARE(lessons(driver).duration(), qint64(7000));
    QCOMPARE(lessons(driver).state(), LessonController::Idle);
    driver.key(Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(lessons(driver).duration(), qint64(20000));
}

void TestLessons::undoWhileRecordingLeavesWhatIsRecorded()
{
    BoardDriver driver;
    record(driver);
    driver.action(QStringLiteral("Delete the lesson"))->trigger();
    lessons(driver).recordOrStop();
    lessons(driver).keepSoFar();
    driver.key(Qt::Key_Z, Qt::ControlModifier); // brings the deleted lesson back
    driver.draw(arrow, {600, 400}, {760, 500});
    lessons(driver).recordOrStop();
    QCOMPARE(lessons(driver).names(), QStringList({QStringLiteral("Lesson 1"), QStringLiteral("Lesson 2")}));
    lessons(driver).seek(lessons(driver).duration());
    QCOMPARE(driver.view().page()->objectCount(), 2);
}

void TestLessons::hintStandsAboveWhereMomentsAreShown()
{
    BoardDriver driver;
    record(driver);
    lessons(driver).seek(0);
    support::deliverEvents();
    const auto *hint = driver.window().findChild<QLabel *>("hintPill");
    QVERIFY(hint->isVisible());
    QCOMPARE(hint->y(), 12);
    lessons(driver).close();
    support::deliverEvents();
    QVERIFY(!hint->isVisible());
    driver.pick(rectangle);
    support::deliverEvents();
    QCOMPARE(hint->geometry().bottom() + 1 + 24, driver.view().height());
}

void TestLessons::nothingCanBeEditedWhileALessonIsShown()
{
    BoardDriver driver;
    record(driver);
    const QByteArray own = pagesOf(*driver.workspace().document());
    const int steps = driver.history().index();
    lessons(driver).seek(lessons(driver).duration());
    const QByteArray shown = pagesOf(*lessons(driver).shownDocument());
    driver.drag({560, 260}, {700, 400});
    driver.drag({100, 100}, {900, 600});
    driver.key(Qt::Key_A, Qt::ControlModifier);
    driver.key(Qt::Key_Right);
    driver.key(Qt::Key_Delete);
    driver.key(Qt::Key_Z, Qt::ControlModifier);
    driver.key(Qt::Key_V, Qt::ControlModifier);
    QCOMPARE(pagesOf(*lessons(driver).shownDocument()), shown);
    QCOMPARE(pagesOf(*driver.workspace().document()), own);
    QCOMPARE(driver.history().index(), steps);
    QVERIFY(lessons(driver).isShowing());
}

void TestLessons::boardIsBackAfterTheLesson()
{
    BoardDriver driver;
    record(driver);
    lessons(driver).seek(0);
    driver.action(QStringLiteral("Back to the board"))->trigger();
    QCOMPARE(driver.view().page(), driver.workspace().document()->currentPage());
    driver.drag({560, 260}, {600, 300});
    QCOMPARE(driver.placeOf(driver.only()).topLeft(), QPointF(540, 260));
    driver.key(Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(driver.placeOf(driver.only()).topLeft(), QPointF(500, 220));
}

void TestLessons::anotherDocumentEndsEverything()
{
    BoardDriver driver;
    record(driver);
    lessons(driver).seek(0);
    driver.workspace().replaceDocument(std::make_unique<pagehost::Document>());
    QCOMPARE(lessons(driver).state(), LessonController::Idle);
    QCOMPARE(lessons(driver).chosen(), -1);
    QCOMPARE(driver.view().page(), driver.workspace().document()->currentPage());
    lessons(driver).recordOrStop();
    driver.workspace().replaceDocument(std::make_unique<pagehost::Document>());
    QCOMPARE(lessons(driver).state(), LessonController::Idle);
    QVERIFY(driver.workspace().document()->lessons().isEmpty());
}

void TestLessons::damagedLessonIsToldOf()
{
    BoardDriver driver;
    driver.workspace().document()->setLessons({{QStringLiteral("Broken"), "no lesson"}});
    lessons(driver).playOrPause();
    QCOMPARE(lessons(driver).state(), LessonController::Idle);
    const QList<QLabel *> labels = driver.window().findChildren<QLabel *>();
    QVERIFY(std::any_of(labels.begin(), labels.end(), [](const QLabel *label) {
        return label->text().contains(QStringLiteral("“Broken” cannot be played"));
    }));
}

void TestLessons::damagedLessonPlaysUpToTheDamageAndIsToldOf()
{
    BoardDriver driver;
    record(driver);
    pagehost::LessonData data = driver.workspace().document()->lessons().first();
    pagehost::Lesson lesson;
    QVERIFY(lesson.fromData(data.data));
    data.data.chop(1);
    driver.workspace().document()->setLessons({data});
    const qint64 end = lesson.events.at(lesson.events.size() - 2).time;
    QCOMPARE(lessons(driver).duration(), end);
    lessons(driver).seek(end);
    QCOMPARE(lessons(driver).state(), LessonController::Showing);
    QCOMPARE(driver.view().page()->objectCount(), 1);
    const QList<QLabel *> labels = driver.window().findChildren<QLabel *>();
    QVERIFY(std::any_of(labels.begin(), labels.end(), [](const QLabel *label) {
        return label->text().contains(QStringLiteral("“Lesson 1” is damaged and plays up to the damage."));
    }));
}

void TestLessons::barSpeaksGerman()
{
    BoardDriver driver(QStringLiteral("de"));
    QVERIFY(driver.action(QStringLiteral("Lektion aufnehmen")));
    lessons(driver).recordOrStop();
    QVERIFY(driver.window().lessonBar()->message()->text().startsWith(QStringLiteral("Aufnahme läuft")));
    lessons(driver).recordOrStop();
    QCOMPARE(lessons(driver).names(), QStringList{QStringLiteral("Lektion 1")});
}

void TestLessons::playNeedsAFile()
{
    const auto parsed = [](const QStringList &arguments) {
        return board::parseCommandLine(QStringList{QStringLiteral("board")} + arguments);
    };
    QCOMPARE(parsed({"--play"}).action, board::Options::ShowText);
    QVERIFY(parsed({"--play"}).failed);
    const board::Options options = parsed({"--play", "a.board", "--export", "pictures"});
    QCOMPARE(options.action, board::Options::ExportPages);
    QVERIFY(options.play);
    QCOMPARE(options.file, QStringLiteral("a.board"));
}

QTEST_MAIN(TestLessons)
#include "test_lessons.moc"

// Ways through a lesson that is shown: by steps, chapters and speed, and from it back to the board.

#include "board/boarddriver.h"

#include <support/virtualtime.h>

#include <lessons/lessonbar.h>
#include <lessons/lessoncontroller.h>
#include <lessons/momentcard.h>
#include <lessons/timeline.h>
#include <look/theme.h>
#include <page/pageview.h>
#include <window/mainwindow.h>

#include <pagehost/commands.h>
#include <pagehost/lesson.h>
#include <pagehost/page.h>

#include <framework/cbaseobject.h>

#include <QtTest/QtTest>
#include <QtWidgets/QAction>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QMenu>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QToolButton>
#include <QtWidgets/QUndoStack>

using namespace boardtest;
using board::LessonController;

namespace {

/// Between what a teacher does, milliseconds.
constexpr int thought = 500;
/// The lesson runs slower than the teacher.
constexpr int slowness = 4;

/// A lesson in which a rectangle is drawn after two seconds and moved after four; it takes six.
struct Classroom
{
    BoardDriver driver;

    Classroom()
    {
        lessons().recordOrStop();
        support::pass(thought);
        driver.draw(rectangle, {300, 200}, {420, 280});
        support::pass(thought);
        driver.drag({360, 240}, {560, 260});
        support::pass(thought);
        lessons().recordOrStop();
        slowDown();
    }
    void slowDown()
    {
        pagehost::LessonData data = document().lessons().first();
        pagehost::Lesson lesson;
        QVERIFY(lesson.fromData(data.data));
        for (pagehost::LessonEvent &event : lesson.events)
            event.time *= slowness;
        lesson.duration *= slowness;
        document().setLessons({{data.name, lesson.toBytes()}});
    }
    LessonController &lessons() const { return *driver.window().lessons(); }
    board::LessonBar *bar() const { return driver.window().lessonBar(); }
    pagehost::Document &document() { return *driver.workspace().document(); }
    qint64 position() const { return lessons().position(); }
    int objects() const { return driver.view().page()->objectCount(); }
    /// "2000 Roots" for each.
    QStringList chapters() const
    {
        QStringList texts;
        const QVector<board::Chapter> all = lessons().chapters();
        for (const board::Chapter &chapter : all)
            texts.append(QStringLiteral("%1 %2").arg(chapter.start).arg(chapter.name));
        return texts;
    }
    void giveChapters()
    {
        QVERIFY(pagehost::setChapter(&document(), 0, 2000, QStringLiteral("Roots")));
        QVERIFY(pagehost::setChapter(&document(), 0, 5000, QStringLiteral("Powers")));
    }
    void name(const QString &text)
    {
        QTest::keyClicks(bar()->name(), text);
        QTest::keyClick(bar()->name(), Qt::Key_Return);
    }
};

} // namespace

class TestLessonSteps : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void arrowKeysGoStepByStep();
    void buttonsGoStepByStep();
    void arrowKeysMoveTheSelectionWhileNoLessonIsShown();
    void spacePlaysAndPauses();
    void plusAndMinusChangeTheSpeed();
    void plusAndMinusAreOfTheToolAgainAfterTheLesson();
    void ctrlArrowsGoFromChapterToChapter();
    void chapterBeginsWhileRecording();
    void chapterOfAShownLessonGetsItsNameInTheBar();
    void escapeBeginsNoChapter();
    void namingAChapterPausesTheLesson();
    void chapterIsRenamed();
    void emptyNameTakesTheChapterAway();
    void chaptersAreListed();
    void lineIsInPiecesOfChapters();
    void mouseOverTheLineShowsTheMoment();
    void pictureOfAnEarlierMomentIsShown();
    void pictureOfATallPageHasAFrame();
    void cardGoesWithTheMouse();
    void returnTakesThePageOver();
    void pageTakenOverAtAnotherZoomIsTheSame();
    void buttonTakesThePageOver();
    void nothingIsTakenOverWithoutALesson();
};

void TestLessonSteps::arrowKeysGoStepByStep()
{
    Classroom room;
    room.lessons().seek(0);
    room.driver.key(Qt::Key_Right);
    QCOMPARE(room.position(), qint64(2000));
    QCOMPARE(room.objects(), 1);
    room.driver.key(Qt::Key_Right);
    QCOMPARE(room.position(), qint64(4000));
    room.driver.key(Qt::Key_Right);
    QCOMPARE(room.position(), qint64(6000));
    room.driver.key(Qt::Key_Left);
    QCOMPARE(room.position(), qint64(4000));
    room.driver.key(Qt::Key_Left);
    room.driver.key(Qt::Key_Left);
    QCOMPARE(room.position(), qint64(0));
    QCOMPARE(room.objects(), 0);
}

void TestLessonSteps::buttonsGoStepByStep()
{
    Classroom room;
    const QList<QToolButton *> buttons = room.bar()->findChildren<QToolButton *>();
    const auto press = [&](const QString &name) {
        for (QToolButton *button : buttons)
            if (button->isVisible() && button->text() == name)
                return QTest::mouseClick(button, Qt::LeftButton);
        QFAIL(qPrintable(name));
    };
    room.lessons().seek(0);
    press(QStringLiteral("One step forward"));
    QCOMPARE(room.position(), qint64(2000));
    press(QStringLiteral("One step forward"));
    press(QStringLiteral("One step back"));
    QCOMPARE(room.position(), qint64(2000));
}

void TestLessonSteps::arrowKeysMoveTheSelectionWhileNoLessonIsShown()
{
    Classroom room;
    CBaseObject *shape = room.driver.only();
    room.driver.page().select({shape});
    const QPointF before = shape->pos();
    room.driver.key(Qt::Key_Right);
    QCOMPARE(room.lessons().state(), LessonController::Idle);
    QVERIFY(shape->pos().x() > before.x());
}

void TestLessonSteps::spacePlaysAndPauses()
{
    Classroom room;
    room.lessons().seek(0);
    room.driver.key(Qt::Key_Space);
    QVERIFY(room.lessons().isPlaying());
    support::pass(500);
    room.driver.key(Qt::Key_Space);
    QVERIFY(!room.lessons().isPlaying());
    QCOMPARE(room.position(), qint64(500));
}

void TestLessonSteps::plusAndMinusChangeTheSpeed()
{
    Classroom room;
    room.lessons().seek(0);
    room.driver.key(Qt::Key_Plus);
    QCOMPARE(room.lessons().speed(), 1.5);
    QCOMPARE(room.bar()->speed()->currentData().toDouble(), 1.5);
    for (int i = 0; i < 5; ++i)
        room.driver.key(Qt::Key_Plus);
    QCOMPARE(room.lessons().speed(), 4.0);
    for (int i = 0; i < 6; ++i)
        room.driver.key(Qt::Key_Minus);
    QCOMPARE(room.lessons().speed(), 0.5);
    QCOMPARE(room.bar()->speed()->currentIndex(), 0);
}

void TestLessonSteps::plusAndMinusAreOfTheToolAgainAfterTheLesson()
{
    Classroom room;
    room.lessons().seek(0);
    room.lessons().close();
    room.driver.key(Qt::Key_Plus);
    QCOMPARE(room.lessons().speed(), 1.0);
}

void TestLessonSteps::ctrlArrowsGoFromChapterToChapter()
{
    Classroom room;
    room.giveChapters();
    room.lessons().seek(0);
    room.driver.key(Qt::Key_Right, Qt::ControlModifier);
    QCOMPARE(room.position(), qint64(2000));
    room.driver.key(Qt::Key_Right, Qt::ControlModifier);
    QCOMPARE(room.position(), qint64(5000));
    room.driver.key(Qt::Key_Left, Qt::ControlModifier);
    QCOMPARE(room.position(), qint64(2000));
    room.driver.key(Qt::Key_Left, Qt::ControlModifier);
    QCOMPARE(room.position(), qint64(0));
}

void TestLessonSteps::chapterBeginsWhileRecording()
{
    BoardDriver driver;
    LessonController &lessons = *driver.window().lessons();
    driver.key(Qt::Key_F9, Qt::ControlModifier);
    lessons.recordOrStop();
    support::pass(1000);
    driver.key(Qt::Key_F9, Qt::ControlModifier);
    QCOMPARE(driver.window().lessonBar()->message()->text(), QStringLiteral("Recording  0:01 · Chapter 1"));
    support::pass(1000);
    driver.key(Qt::Key_F9, Qt::ControlModifier);
    QVERIFY(!driver.window().lessonBar()->name()->isVisible());
    lessons.recordOrStop();
    const QVector<board::Chapter> chapters = lessons.chapters();
    QCOMPARE(chapters.size(), 2);
    QCOMPARE(chapters.at(0).start, qint64(1000));
    QCOMPARE(chapters.at(0).name, QStringLiteral("Chapter 1"));
    QCOMPARE(chapters.at(1).start, qint64(2000));
    QCOMPARE(chapters.at(1).name, QStringLiteral("Chapter 2"));
    lessons.recordOrStop();
    QCOMPARE(driver.window().lessonBar()->message()->text(), QStringLiteral("Recording  0:00"));
}

void TestLessonSteps::chapterOfAShownLessonGetsItsNameInTheBar()
{
    Classroom room;
    room.lessons().seek(3000);
    room.driver.key(Qt::Key_F9, Qt::ControlModifier);
    QVERIFY(room.bar()->name()->isVisible());
    QCOMPARE(room.bar()->name()->text(), QStringLiteral("Chapter 1"));
    QCOMPARE(room.bar()->name()->accessibleName(), QStringLiteral("Name of the chapter"));
    room.name(QStringLiteral(" Roots "));
    QCOMPARE(room.chapters(), QStringList{"3000 Roots"});
    QCOMPARE(room.lessons().state(), LessonController::Showing);
    QCOMPARE(room.position(), qint64(3000));
    QCOMPARE(room.objects(), 1);
    room.lessons().close();
    room.driver.key(Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(room.chapters(), QStringList());
}

void TestLessonSteps::escapeBeginsNoChapter()
{
    Classroom room;
    room.lessons().seek(3000);
    room.driver.key(Qt::Key_F9, Qt::ControlModifier);
    QTest::keyClick(room.bar()->name(), Qt::Key_Escape);
    QVERIFY(!room.bar()->name()->isVisible());
    QCOMPARE(room.chapters(), QStringList());
}

void TestLessonSteps::namingAChapterPausesTheLesson()
{
    Classroom room;
    room.lessons().seek(1000);
    room.lessons().playOrPause();
    support::pass(500);
    room.driver.key(Qt::Key_F9, Qt::ControlModifier);
    QVERIFY(!room.lessons().isPlaying());
    room.name(QStringLiteral("Roots"));
    QCOMPARE(room.chapters(), QStringList{"1500 Roots"});
}

void TestLessonSteps::chapterIsRenamed()
{
    Classroom room;
    room.giveChapters();
    QAction *rename = room.driver.action(QStringLiteral("Rename the chapter"));
    QVERIFY(!rename->isEnabled());
    room.lessons().seek(1999);
    QVERIFY(!rename->isEnabled());
    room.lessons().seek(4000);
    QVERIFY(rename->isEnabled());
    rename->trigger();
    QCOMPARE(room.bar()->name()->text(), QStringLiteral("Roots"));
    room.name(QStringLiteral("Square roots"));
    QCOMPARE(room.chapters(), QStringList({"2000 Square roots", "5000 Powers"}));
    QCOMPARE(room.position(), qint64(4000));
}

void TestLessonSteps::emptyNameTakesTheChapterAway()
{
    Classroom room;
    room.giveChapters();
    room.lessons().seek(4000);
    room.driver.action(QStringLiteral("Rename the chapter"))->trigger();
    room.bar()->name()->clear();
    room.name(QStringLiteral("  "));
    QCOMPARE(room.chapters(), QStringList{"5000 Powers"});
}

void TestLessonSteps::chaptersAreListed()
{
    Classroom room;
    room.giveChapters();
    QMenu *list = room.bar()->chapters()->menu();
    Q_EMIT list->aboutToShow();
    QCOMPARE(list->actions().at(0)->text(), QStringLiteral("Roots · 0:02"));
    QCOMPARE(list->actions().at(1)->text(), QStringLiteral("Powers · 0:05"));
    list->actions().at(1)->trigger();
    QCOMPARE(room.position(), qint64(5000));
    QCOMPARE(list->actions().constLast()->text(), QStringLiteral("Rename the chapter"));
}

void TestLessonSteps::lineIsInPiecesOfChapters()
{
    Classroom room;
    const board::TimeLine *line = room.bar()->timeLine();
    QCOMPARE(line->pieces().size(), 1);
    const int before = line->sizeHint().height();
    room.giveChapters();
    const QVector<QRectF> pieces = line->pieces();
    QCOMPARE(pieces.size(), 3);
    QVERIFY(line->sizeHint().height() > before);
    // Two, three and one of six seconds, with gaps of 4 before the second and third.
    const double all = pieces[2].right() - pieces[0].left();
    QCOMPARE(pieces[0].width(), all / 3);
    QCOMPARE(pieces[1].left(), pieces[0].right() + 4);
    QCOMPARE(pieces[1].width(), all / 2 - 4);
    QCOMPARE(pieces[2].width(), all / 6 - 4);
}

/// Points at that part of the time line.
static void pointAt(const Classroom &room, double share)
{
    board::TimeLine *line = room.bar()->timeLine();
    const QVector<QRectF> pieces = line->pieces();
    const QRectF whole = pieces.first().united(pieces.last());
    const QPoint place(qRound(whole.left() + share * whole.width()), line->height() / 2);
    QMouseEvent event(QEvent::MouseMove, place, line->mapToGlobal(place), Qt::NoButton, Qt::NoButton,
                      Qt::NoModifier);
    QApplication::sendEvent(line, &event);
}

/// How many pixels of the card's picture are darker than paper.
static int inkOf(const Classroom &room)
{
    const QImage picture = room.bar()->card()->picture()->pixmap(Qt::ReturnByValue).toImage();
    int count = 0;
    for (int y = 0; y < picture.height(); ++y)
        for (int x = 0; x < picture.width(); ++x)
            count += qGray(picture.pixel(x, y)) < 245;
    return count;
}

void TestLessonSteps::mouseOverTheLineShowsTheMoment()
{
    Classroom room;
    room.giveChapters();
    QVERIFY(!room.bar()->card());
    pointAt(room, 0.5);
    const board::MomentCard *card = room.bar()->card();
    QVERIFY(card->isVisible());
    QVERIFY(room.driver.window().rect().contains(card->geometry()));
    QCOMPARE(card->caption()->text(), QStringLiteral("Roots · 0:03"));
    QVERIFY(support::passUntil([card] { return card->picture()->pixmap(Qt::ReturnByValue).width() == 160; }));
    QVERIFY(inkOf(room) > 0);
    // The lesson is not shown for that.
    QCOMPARE(room.lessons().state(), LessonController::Idle);
    QCOMPARE(card->geometry().bottom() + 1, room.bar()->mapTo(&room.driver.window(), QPoint()).y() - 8);
}

void TestLessonSteps::pictureOfAnEarlierMomentIsShown()
{
    Classroom room;
    pointAt(room, 1);
    QVERIFY(support::passUntil([&room] { return inkOf(room) > 0; }));
    pointAt(room, 0);
    QCOMPARE(room.bar()->card()->caption()->text(), QStringLiteral("0:00"));
    QVERIFY(support::passUntil([&room] { return inkOf(room) == 0; }));
}

void TestLessonSteps::pictureOfATallPageHasAFrame()
{
    QWidget window;
    board::MomentCard card(&window);
    card.showAt({200, 200}, QStringLiteral("0:00"));
    QImage page(60, 90, QImage::Format_RGB32);
    page.fill(Qt::white);
    card.setPicture(page);
    const QImage drawn = card.grab().toImage();
    const QRect room = card.picture()->geometry();
    const QRect picture(room.center().x() - 29, room.top(), 60, 90);
    const QColor border = board::themeColors().border;
    for (const QPoint &edge : {picture.topLeft() + QPoint(-1, 40), picture.topRight() + QPoint(1, 40),
                               picture.topLeft() + QPoint(30, -1), picture.bottomLeft() + QPoint(30, 1)})
        QCOMPARE(drawn.pixelColor(edge), border);
    QCOMPARE(drawn.pixelColor(room.left() - 1, room.center().y()), board::themeColors().surface);
}

void TestLessonSteps::cardGoesWithTheMouse()
{
    Classroom room;
    pointAt(room, 0.5);
    QEvent leave(QEvent::Leave);
    QApplication::sendEvent(room.bar()->timeLine(), &leave);
    QVERIFY(!room.bar()->card()->isVisible());
    QVERIFY(room.bar()->card()->picture()->pixmap(Qt::ReturnByValue).isNull());
}

void TestLessonSteps::returnTakesThePageOver()
{
    Classroom room;
    room.lessons().seek(2000);
    const QRectF place = room.driver.view().page()->objects().first()->sceneBoundingRect();
    room.driver.key(Qt::Key_Return);
    QCOMPARE(room.lessons().state(), LessonController::Idle);
    QCOMPARE(room.document().pageCount(), 2);
    QCOMPARE(room.document().currentIndex(), 1);
    QCOMPARE(room.objects(), 1);
    QCOMPARE(room.driver.view().page()->objects().first()->sceneBoundingRect(), place);
    QCOMPARE(room.driver.history().undoText(), QStringLiteral("IDS_LESSON_TAKE_OVER"));
    room.driver.key(Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(room.document().pageCount(), 1);
}

/// Of the first object of a page, after the view has shown it.
static QByteArray shownState(Classroom &room, int page)
{
    room.document().setCurrentIndex(page);
    room.driver.view().grab();
    QByteArray bytes;
    QDataStream out(&bytes, QIODevice::WriteOnly);
    room.document().page(page)->objects().first()->save(out);
    return bytes;
}

void TestLessonSteps::pageTakenOverAtAnotherZoomIsTheSame()
{
    Classroom room;
    room.driver.view().setZoom(3);
    const QByteArray original = shownState(room, 0);
    room.lessons().seek(6000);
    room.driver.key(Qt::Key_Return);
    QCOMPARE(shownState(room, 1), original);
}

void TestLessonSteps::buttonTakesThePageOver()
{
    Classroom room;
    QVERIFY(!room.driver.button(QStringLiteral("Take over")));
    room.lessons().seek(6000);
    QTest::mouseClick(room.driver.button(QStringLiteral("Take over")), Qt::LeftButton);
    QCOMPARE(room.document().pageCount(), 2);
    QVERIFY(!room.driver.button(QStringLiteral("Take over")));
}

void TestLessonSteps::nothingIsTakenOverWithoutALesson()
{
    Classroom room;
    room.lessons().takeOver();
    QCOMPARE(room.document().pageCount(), 1);
    QVERIFY(!room.driver.action(QStringLiteral("Take the page over"))->isEnabled());
}

QTEST_MAIN(TestLessonSteps)

#include "test_lessonsteps.moc"

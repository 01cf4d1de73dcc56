// Animation on the board: it runs while visible, and F7 pauses it.

#include "board/boarddriver.h"

#include <support/virtualtime.h>

#include <lessons/lessoncontroller.h>
#include <page/pageview.h>
#include <window/mainwindow.h>

#include <pagehost/lesson.h>
#include <pagehost/objectplugin.h>
#include <pagehost/page.h>

#include <framework/cbaseobject.h>

#include <QtCore/QDataStream>
#include <QtCore/QHash>
#include <QtTest/QtTest>
#include <QtWidgets/QAction>
#include <QtWidgets/QScrollBar>
#include <QtWidgets/QToolButton>
#include <QtWidgets/QUndoStack>

using namespace boardtest;
using board::LessonController;

namespace {

const QString pendulum = QStringLiteral("shapes.pendulum");
/// Long enough for several pictures, milliseconds.
constexpr int someTime = 150;

CBaseObject *drawPendulum(BoardDriver &driver)
{
    return driver.draw(pendulum, {300, 200}, {500, 400});
}

QAction *playAction(const BoardDriver &driver)
{
    return driver.action(QStringLiteral("Play animations"));
}

bool plays(CBaseObject *object)
{
    QByteArray bytes;
    QDataStream out(&bytes, QIODevice::WriteOnly);
    bool running = false;
    if (object->GetSpecialProperty(pagehost::AnimationRuns, out))
        QDataStream(bytes) >> running;
    return running;
}

/// Counts the pictures that an object shows of itself.
class Pictures : public QObject
{
public:
    Pictures(CBaseObject *object, const pagehost::Page &page)
    {
        connect(&page, &pagehost::Page::objectPropertyChanged, this, [this, object](CBaseObject *each, int id) {
            m_count += each == object && id == CPSRootObject::AppearanceChanged;
        });
    }
    int count() const { return m_count; }

private:
    int m_count = 0;
};

bool standsStill(CBaseObject *object, const pagehost::Page &page)
{
    const Pictures pictures(object, page);
    support::pass(someTime);
    return pictures.count() == 0;
}

bool moves(CBaseObject *object, const pagehost::Page &page)
{
    const Pictures pictures(object, page);
    support::pass(someTime);
    return pictures.count() > 1;
}

} // namespace

class TestAnimation : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void drawnPendulumSwings();
    void clockGearsAndPendulumPlayAndNothingElse();
    void keyHoldsAndGoesOn();
    void actionIsOffWhereNothingMoves();
    void pageThatIsTurnedAwayStandsStill();
    void scrolledAwayPendulumStandsStill();
    void swingingIsNoChange();
    void swingingPendulumIsEditedAndUndone();
    void lessonHoldsNoPictures();
    void playedLessonSwingsToo();
    void speaksGerman();
};

void TestAnimation::drawnPendulumSwings()
{
    BoardDriver driver;
    CBaseObject *object = drawPendulum(driver);
    support::deliverEvents();
    QVERIFY(plays(object));
    const QImage before = driver.view().viewport()->grab().toImage();
    support::pass(someTime);
    QVERIFY(driver.view().viewport()->grab().toImage() != before);
}

void TestAnimation::clockGearsAndPendulumPlayAndNothingElse()
{
    BoardDriver driver;
    QHash<CBaseObject *, int> pictures;
    QHash<CBaseObject *, QString> kinds;
    const QVector<pagehost::ObjectKind> drawable = driver.drawableKinds();
    for (const pagehost::ObjectKind &kind : drawable) {
        const QPointF corner(20 + kinds.size() % 6 * 120, 20 + kinds.size() / 6 * 120);
        kinds.insert(driver.draw(kind.id, corner, corner + QPointF(100, 100)), kind.id);
    }
    QVERIFY(kinds.size() >= 23);
    support::pass(someTime);
    connect(&driver.page(), &pagehost::Page::objectPropertyChanged, &driver.page(),
            [&](CBaseObject *object) { ++pictures[object]; });
    support::pass(someTime);
    QStringList playing;
    for (auto kind = kinds.cbegin(); kind != kinds.cend(); ++kind) {
        CBaseObject *object = kind.key();
        if (plays(object))
            QVERIFY(pictures.value(object) > 1);
        else
            QVERIFY(pictures.value(object) <= 1);
        if (plays(object))
            playing.append(*kind);
    }
    playing.sort();
    QCOMPARE(playing, QStringList({"shapes.clock", "shapes.gears", pendulum}));
}

void TestAnimation::keyHoldsAndGoesOn()
{
    BoardDriver driver;
    CBaseObject *object = drawPendulum(driver);
    support::deliverEvents();
    QVERIFY(plays(object));
    QVERIFY(playAction(driver)->isChecked());
    driver.key(Qt::Key_F7);
    QVERIFY(!plays(object));
    QVERIFY(!playAction(driver)->isChecked());
    QVERIFY(standsStill(object, driver.page()));
    driver.key(Qt::Key_F7);
    QVERIFY(plays(object));
    QVERIFY(playAction(driver)->isChecked());
    QVERIFY(moves(object, driver.page()));
}

void TestAnimation::actionIsOffWhereNothingMoves()
{
    BoardDriver driver;
    QVERIFY(!playAction(driver)->isEnabled());
    driver.draw(rectangle, {100, 100}, {200, 200});
    QVERIFY(!playAction(driver)->isEnabled());
    drawPendulum(driver);
    QVERIFY(playAction(driver)->isEnabled());
    driver.key(Qt::Key_Delete);
    QVERIFY(!playAction(driver)->isEnabled());
    driver.key(Qt::Key_Z, Qt::ControlModifier);
    QVERIFY(playAction(driver)->isEnabled());
}

void TestAnimation::pageThatIsTurnedAwayStandsStill()
{
    BoardDriver driver;
    CBaseObject *object = drawPendulum(driver);
    const pagehost::Page &page = driver.page();
    support::deliverEvents();
    QVERIFY(plays(object));
    driver.key(Qt::Key_N, Qt::ControlModifier | Qt::ShiftModifier);
    QVERIFY(!plays(object));
    QVERIFY(!playAction(driver)->isEnabled());
    QVERIFY(standsStill(object, page));
    driver.key(Qt::Key_PageUp);
    support::deliverEvents();
    QVERIFY(plays(object));
}

void TestAnimation::scrolledAwayPendulumStandsStill()
{
    BoardDriver driver;
    CBaseObject *object = drawPendulum(driver);
    driver.view().setZoom(8);
    driver.view().horizontalScrollBar()->setValue(driver.view().horizontalScrollBar()->maximum());
    support::deliverEvents();
    QVERIFY(!plays(object));
    QVERIFY(standsStill(object, driver.page()));
    driver.view().centerOn(object);
    support::deliverEvents();
    QVERIFY(plays(object));
}

void TestAnimation::swingingIsNoChange()
{
    BoardDriver driver;
    CBaseObject *object = drawPendulum(driver);
    support::deliverEvents();
    QVERIFY(plays(object));
    driver.workspace().document()->markSaved();
    QCoreApplication::processEvents();
    const quint64 revision = driver.workspace().document()->revision();
    const int steps = driver.history().count();
    QVERIFY(moves(object, driver.page()));
    QCOMPARE(driver.workspace().document()->revision(), revision);
    QCOMPARE(driver.history().count(), steps);
    QVERIFY(!driver.workspace().document()->isModified());
}

void TestAnimation::swingingPendulumIsEditedAndUndone()
{
    BoardDriver driver;
    CBaseObject *object = drawPendulum(driver);
    support::deliverEvents();
    QVERIFY(plays(object));
    const QRectF place = driver.placeOf(object);
    driver.drag(place.center(), place.center() + QPointF(100, 50));
    QCOMPARE(driver.placeOf(object).topLeft(), place.topLeft() + QPointF(100, 50));
    QVERIFY(plays(object));
    driver.key(Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(driver.placeOf(object), place);
    QVERIFY(plays(object));
    driver.key(Qt::Key_Z, Qt::ControlModifier);
    QVERIFY(!plays(object));
}

void TestAnimation::lessonHoldsNoPictures()
{
    BoardDriver driver;
    CBaseObject *object = drawPendulum(driver);
    support::deliverEvents();
    QVERIFY(plays(object));
    LessonController &lessons = *driver.window().lessons();
    lessons.recordOrStop();
    QVERIFY(moves(object, driver.page()));
    lessons.recordOrStop();
    pagehost::Lesson lesson;
    QVERIFY(lesson.fromData(driver.workspace().document()->lessons().first().data));
    QCOMPARE(lesson.events.size(), 0);
}

void TestAnimation::playedLessonSwingsToo()
{
    BoardDriver driver;
    CBaseObject *own = drawPendulum(driver);
    LessonController &lessons = *driver.window().lessons();
    lessons.recordOrStop();
    lessons.recordOrStop();
    lessons.seek(0);
    CBaseObject *shown = driver.page().objects().first();
    support::deliverEvents();
    QVERIFY(plays(shown));
    QVERIFY(!plays(own));
    driver.key(Qt::Key_F7);
    QVERIFY(!plays(shown));
    lessons.close();
    QVERIFY(!plays(own));
    driver.key(Qt::Key_F7);
    QVERIFY(plays(own));
}

void TestAnimation::speaksGerman()
{
    BoardDriver driver(QStringLiteral("de"));
    QAction *action = driver.action(QStringLiteral("Animationen abspielen"));
    QVERIFY(action);
    QCOMPARE(action->shortcut(), QKeySequence(Qt::Key_F7));
    QVERIFY(!action->icon().isNull());
}

QTEST_MAIN(TestAnimation)
#include "test_animation.moc"

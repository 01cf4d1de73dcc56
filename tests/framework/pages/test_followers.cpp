// Objects that follow others, as lines do that connect two of them.

#include <pagehost/commands.h>
#include <pagehost/objectid.h>
#include <pagehost/objectplugin.h>
#include <pagehost/recorder.h>
#include <pagehost/toolsession.h>

#include "framework/editor.h"

using pagehost::ToolPage;

namespace {

/// Notes the corners of what it follows, one line for each time that it is told; "-" for what is not there.
class Follower : public TestObject
{
public:
    explicit Follower(const QVector<quint32> &numbers)
        : numbers(numbers)
    {
    }
    bool GetSpecialProperty(int id, QDataStream &out) override
    {
        if (id != pagehost::FollowedObjects)
            return TestObject::GetSpecialProperty(id, out);
        out << qint32(numbers.size());
        for (const quint32 number : qAsConst(numbers))
            out << number;
        return true;
    }
    bool SetSpecialProperty(int id, QDataStream &in, bool record) override
    {
        qint32 count = 0;
        if (id == pagehost::FollowedObjects) {
            in >> count;
            for (quint32 &number : numbers)
                in >> number;
            return true;
        }
        if (id != pagehost::FollowedPlaces)
            return TestObject::SetSpecialProperty(id, in, record);
        in >> count;
        QStringList corners;
        for (qint32 i = 0; i < count; ++i)
            corners.append(readCorner(in));
        told.append(corners.join(QLatin1Char(' ')));
        // To follow changes it, which must not tell it again.
        notifyObjPropertyChanged(AppearanceChanged, QString());
        return true;
    }

    QVector<quint32> numbers;
    QStringList told;

private:
    static QString readCorner(QDataStream &in)
    {
        bool isThere = false;
        in >> isThere;
        if (!isThere)
            return QStringLiteral("-");
        QPainterPath outline;
        qint32 places = 0;
        in >> outline >> places;
        for (qint32 i = 0; i < places; ++i) {
            QString name;
            QPointF place;
            double direction = 0;
            in >> name >> place >> direction;
        }
        const QPointF corner = outline.boundingRect().bottomRight();
        return QStringLiteral("%1,%2").arg(corner.x()).arg(corner.y());
    }
};

/// Has a place "nose" in the middle of its right side, where lines leave to the right.
class NosedObject : public TestObject
{
public:
    using TestObject::TestObject;
    bool GetSpecialProperty(int id, QDataStream &out) override
    {
        if (id != pagehost::ConnectionPlaces)
            return TestObject::GetSpecialProperty(id, out);
        out << qint32(1) << QStringLiteral("nose") << QPointF(getClientRect().right(), getClientRect().center().y())
            << 0.0;
        return true;
    }
};

pagehost::ToolPointer pointerAt(const QPointF &pos, double pixel = 1)
{
    pagehost::ToolPointer pointer;
    pointer.pos = pos;
    pointer.pixel = pixel;
    return pointer;
}

/// A page with an object that others follow by its number, 7.
struct Scene : Editor
{
    Scene()
        : target(add(QSizeF(100, 60), QPointF(200, 100)))
    {
        pagehost::setObjectId(target, 7);
    }
    TestObject *target;
};

} // namespace

class TestFollowers : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void itIsToldWhenItComesToThePage();
    void itIsToldOfWhatComesLater();
    void itIsToldOfEachMoveOfWhatItFollows();
    void itIsToldOfASizeATurnAndALook();
    void itIsToldThatAnObjectIsDeletedAndBroughtBack();
    void itIsToldAgainWhenItHasItselfChanged();
    void itIsToldNothingOfOthers();
    void anObjectThatHasLeftThePageIsNotTold();
    void followersAreNotFollowed();
    void numbersOfDeletedObjectsAreNotGivenAgain();
    void aCopyFollowsTheCopy();
    void aCopyAloneFollowsNothing();
    void aNumberIsRecorded();
    void aLineEndsAtThePlaceWithinReach();
    void aLineEndsAtTheOutlineOfTheTopmostObject();
    void lineEndsPassByWhatFollows();
};

void TestFollowers::itIsToldWhenItComesToThePage()
{
    Scene scene;
    QCOMPARE(scene.add<Follower>(QVector<quint32>{7, 0})->told, QStringList{"300,160 -"});
}

void TestFollowers::itIsToldOfWhatComesLater()
{
    Editor editor;
    auto *follower = editor.add<Follower>(QVector<quint32>{7});
    auto *target = new TestObject(QSizeF(100, 60), QPointF(10, 20));
    pagehost::setObjectId(target, 7);
    editor.page->addObject(target);
    QCOMPARE(follower->told.first(), QStringLiteral("-"));
    QCOMPARE(follower->told.last(), QStringLiteral("110,80"));
}

void TestFollowers::itIsToldOfEachMoveOfWhatItFollows()
{
    Scene scene;
    auto *follower = scene.add<Follower>(QVector<quint32>{7});
    follower->told.clear();
    scene.press({250, 130});
    scene.moveTo({260, 130});
    scene.moveTo({270, 150});
    QCOMPARE(follower->told.last(), QStringLiteral("320,180"));
    QVERIFY(follower->told.contains(QStringLiteral("310,160")));
    scene.release({270, 150});
    undoStack()->undo();
    QCOMPARE(follower->told.last(), QStringLiteral("300,160"));
    undoStack()->redo();
    QCOMPARE(follower->told.last(), QStringLiteral("320,180"));
}

void TestFollowers::itIsToldOfASizeATurnAndALook()
{
    Scene scene;
    auto *follower = scene.add<Follower>(QVector<quint32>{7});
    QVERIFY(pagehost::resizeObject(scene.target, {140, 60}));
    QCOMPARE(follower->told.last(), QStringLiteral("340,160"));
    undoStack()->undo();
    QCOMPARE(follower->told.last(), QStringLiteral("300,160"));
    // About the middle (250, 130).
    QVERIFY(pagehost::rotateObjects({scene.target}, 90));
    QCOMPARE(follower->told.last(), QStringLiteral("280,180"));
    const int count = follower->told.size();
    scene.target->notifyObjPropertyChanged(CPSRootObject::AppearanceChanged, QString());
    QCOMPARE(follower->told.size(), count + 1);
}

void TestFollowers::itIsToldThatAnObjectIsDeletedAndBroughtBack()
{
    Scene scene;
    auto *follower = scene.add<Follower>(QVector<quint32>{7});
    follower->told.clear();
    QVERIFY(pagehost::removeObjects(scene.page, {scene.target}));
    QCOMPARE(follower->told, QStringList{"-"});
    undoStack()->undo();
    QCOMPARE(follower->told.last(), QStringLiteral("300,160"));
}

void TestFollowers::itIsToldAgainWhenItHasItselfChanged()
{
    Scene scene;
    auto *follower = scene.add<Follower>(QVector<quint32>{7});
    follower->told.clear();
    follower->CPSRootObject::setPos({5, 5}, false);
    QCOMPARE(follower->told, QStringList{"300,160"});
    follower->numbers = {0};
    follower->notifyObjPropertyChanged(CPSRootObject::AppearanceChanged, QString());
    QCOMPARE(follower->told.size(), 1);
    scene.target->CPSRootObject::setPos({5, 5}, false);
    QCOMPARE(follower->told.size(), 1);
}

void TestFollowers::itIsToldNothingOfOthers()
{
    Scene scene;
    auto *follower = scene.add<Follower>(QVector<quint32>{7});
    auto *numbered = scene.add(QSizeF(10, 10));
    pagehost::setObjectId(numbered, 8);
    auto *other = scene.add(QSizeF(10, 10));
    follower->told.clear();
    numbered->CPSRootObject::setPos({5, 5}, false);
    other->CPSRootObject::setPos({5, 5}, false);
    QCOMPARE(follower->told, QStringList());
}

void TestFollowers::anObjectThatHasLeftThePageIsNotTold()
{
    Scene scene;
    auto *follower = scene.add<Follower>(QVector<quint32>{7});
    QVERIFY(pagehost::removeObjects(scene.page, {follower}));
    follower->told.clear();
    scene.target->CPSRootObject::setPos({5, 5}, false);
    QCOMPARE(follower->told, QStringList());
    undoStack()->undo();
    QCOMPARE(follower->told, QStringList{"105,65"});
}

void TestFollowers::followersAreNotFollowed()
{
    Editor editor;
    auto *one = new Follower({2});
    pagehost::setObjectId(one, 1);
    editor.page->addObject(one);
    auto *two = new Follower({1});
    pagehost::setObjectId(two, 2);
    editor.page->addObject(two);
    one->CPSRootObject::setPos({5, 5}, false);
    QCOMPARE(QSet<QString>(one->told.begin(), one->told.end()), QSet<QString>{"-"});
    QCOMPARE(QSet<QString>(two->told.begin(), two->told.end()), QSet<QString>{"-"});
}

void TestFollowers::numbersOfDeletedObjectsAreNotGivenAgain()
{
    Scene scene;
    pagehost::ToolSession session(scene.page, nullptr);
    QVERIFY(pagehost::removeObjects(scene.page, {scene.target}));
    QCOMPARE(session.numberOf(scene.add(QSizeF(10, 10))), 8u);
    // Of one that is not even kept for undo, but still followed.
    scene.add<Follower>(QVector<quint32>{20});
    QCOMPARE(session.numberOf(scene.add(QSizeF(10, 10))), 21u);
}

void TestFollowers::aCopyFollowsTheCopy()
{
    Scene scene;
    TestObject object(QSizeF(10, 10));
    TestObject further(QSizeF(10, 10));
    Follower copy({7, 0, 9, 9});
    pagehost::followCopies({&object, &copy, &further}, {7, 0, 9}, &scene.document);
    QCOMPARE(pagehost::objectId(&object), 8u);
    QCOMPARE(pagehost::objectId(&further), 9u);
    QCOMPARE(copy.numbers, (QVector<quint32>{8, 0, 9, 9}));
    QCOMPARE(pagehost::objectId(&copy), 0u);
}

void TestFollowers::aCopyAloneFollowsNothing()
{
    Scene scene;
    TestObject object(QSizeF(10, 10));
    Follower alone({7});
    pagehost::followCopies({&alone}, {0}, &scene.document);
    QCOMPARE(alone.numbers, QVector<quint32>{0});
    Follower elsewhere({7});
    pagehost::followCopies({&object, &elsewhere}, {7, 0}, nullptr);
    QCOMPARE(elsewhere.numbers, QVector<quint32>{0});
}

void TestFollowers::aNumberIsRecorded()
{
    Scene scene;
    pagehost::ToolSession session(scene.page, nullptr);
    auto *object = scene.add(QSizeF(10, 10));
    QCOMPARE(session.numberOf(object), 8u);
    QCOMPARE(session.numberOf(object), 8u);
    QCOMPARE(object->records.size(), 1);
    TestObject replayed(QSizeF(10, 10));
    QVERIFY(pagehost::replayAction(&replayed, object->records.first().first, object->records.first().second));
    QCOMPARE(pagehost::objectId(&replayed), 8u);
    QVERIFY(!pagehost::replayAction(&replayed, pagehost::ActionNumbered, QByteArray(3, '\0')));
    QCOMPARE(pagehost::objectId(&replayed), 8u);
}

void TestFollowers::aLineEndsAtThePlaceWithinReach()
{
    Editor editor;
    pagehost::ToolSession session(editor.page, nullptr);
    auto *nosed = editor.add<NosedObject>(QSizeF(100, 60), QPointF(200, 100));
    ToolPage::Connection found = session.connectionAt(pointerAt({306, 138}));
    QCOMPARE(found.object, nosed);
    QCOMPARE(found.place, QStringLiteral("nose"));
    // 10.4 away from the place; the outline is nearer.
    found = session.connectionAt(pointerAt({304, 139.6}));
    QCOMPARE(found.object, nosed);
    QCOMPARE(found.place, QString());
    QCOMPARE(session.connectionAt(pointerAt({307, 150})).object, nullptr);
    // A view at half size reaches twice as far.
    QCOMPARE(session.connectionAt(pointerAt({307, 150}, 2)).object, nosed);
    QVERIFY(pagehost::rotateObjects({nosed}, 90));
    QCOMPARE(session.connectionAt(pointerAt({250, 186})).place, QStringLiteral("nose"));
}

void TestFollowers::aLineEndsAtTheOutlineOfTheTopmostObject()
{
    Editor editor;
    pagehost::ToolSession session(editor.page, nullptr);
    editor.add(QSizeF(100, 60), QPointF(200, 100));
    auto *above = editor.add(QSizeF(100, 60), QPointF(250, 100));
    QCOMPARE(session.connectionAt(pointerAt({275, 130})).object, above);
    QCOMPARE(session.connectionAt(pointerAt({400, 130})).object, nullptr);
}

void TestFollowers::lineEndsPassByWhatFollows()
{
    Scene scene;
    pagehost::ToolSession session(scene.page, nullptr);
    auto *follower = scene.add<Follower>(QVector<quint32>{0});
    follower->CPSRootObject::setPos({200, 100}, false);
    QCOMPARE(session.connectionAt(pointerAt({250, 130})).object, scene.target);
}

QTEST_MAIN(TestFollowers)
#include "test_followers.moc"

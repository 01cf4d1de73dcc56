#include <pagehost/creation.h>
#include <pagehost/objectregistry.h>

#include "framework/editor.h"

namespace {

/// Kinds: drawn by hand; drawn by hand and square; finished from the start; never finished; none at all.
class Plugin : public pagehost::ObjectPlugin
{
public:
    QVector<pagehost::ObjectKind> objectKinds() const override
    {
        const QString name = QStringLiteral("IDS_TEST_NAME");
        const QString group = QStringLiteral("IDS_TEST_GROUP");
        return {{QStringLiteral("drawn"), name, group},    {QStringLiteral("square"), name, group},
                {QStringLiteral("finished"), name, group}, {QStringLiteral("empty"), name, group},
                {QStringLiteral("endless"), name, group},  {QStringLiteral("failing"), name, group}};
    }
    CBaseObject *createObject(const QString &kindId) const override
    {
        if (kindId == QLatin1String("finished"))
            return new TestObject(QSizeF(70, 40));
        if (kindId == QLatin1String("empty"))
            return new TestObject(QSizeF(0, 0));
        if (kindId == QLatin1String("failing"))
            return nullptr;
        if (kindId == QLatin1String("endless"))
            return new EndlessObject;
        auto *object = new CreatedObject;
        object->keepsSquare = kindId == QLatin1String("square");
        return object;
    }
    pagehost::TextTable texts(const QString &) const override
    {
        return {{QStringLiteral("IDS_TEST_NAME"), QStringLiteral("Name")}};
    }

private:
    class EndlessObject : public CreatedObject
    {
    public:
        void mouseReleaseEvent(QGraphicsSceneMouseEvent *) override {}
    };
};

struct Workshop : Editor
{
    explicit Workshop(double zoom = 1)
        : Editor(zoom)
        , tool(&registry)
    {
        registry.addPlugin(&plugin, QStringLiteral("test"));
        QObject::connect(&tool, &pagehost::CreationTool::created, &tool,
                         [this](CBaseObject *object) { created.append(object); });
        QObject::connect(&tool, &pagehost::CreationTool::cancelled, &tool, [this] { ++cancellations; });
    }
    bool begin(const char *kind) { return tool.begin(page->scene(), QString::fromLatin1(kind)); }
    CreatedObject *last() const { return dynamic_cast<CreatedObject *>(created.value(created.size() - 1)); }

    Plugin plugin;
    pagehost::ObjectRegistry registry;
    pagehost::CreationTool tool;
    QVector<CBaseObject *> created;
    int cancellations = 0;
};

} // namespace

class TestCreation : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void dragInAnyDirectionGrowsRightAndDown_data();
    void dragInAnyDirectionGrowsRightAndDown();
    void dragAcrossTheStartTurnsTheCorner();
    void cornerOfTheStartStaysPutForAnObjectThatTakesAnotherSize_data();
    void cornerOfTheStartStaysPutForAnObjectThatTakesAnotherSize();
    void smallDragLeftIsAnchoredAtItsStart();
    void clickMakesTheDefaultSizeAtTheClick();
    void tremblingClickIsAClick_data();
    void tremblingClickIsAClick();
    void shiftKeepsTheDragSquare();
    void modifiersCountAtAnyTimeOfTheDrag();
    void controlDrawsAboutTheStart();
    void controlKeepsTheCentreOfAnObjectThatTakesAnotherSize();
    void spaceMovesTheStart();
    void startAndEndCatchAtAnObject();
    void shiftedSquareCatches();
    void altDrawsWithoutSnapping();
    void placedObjectDoesNotSnap();
    void resultIsOneStepAndTheSelection();
    void objectIsOnThePageWhileItIsDrawn();
    void finishedObjectTakesTheDraggedSize();
    void finishedObjectKeepsItsSizeAtAClick();
    void emptyFinishedObjectGetsASizeAtAClick();
    void objectIsTaggedWithItsKind();
    void escapeRemovesTheUnfinishedObject();
    void escapeBeforeThePressStopsWaiting();
    void unknownKindIsRefused();
    void failingPluginCancels();
    void objectThatIsNeverFinishedIsRemoved();
    void toolWaitsForOnePressOnly();
    void otherButtonsDrawNothing();
    void beginningAnotherKindCancelsTheFirst();
    void createAtMakesOneAtOnce();
    void destroyedToolLeavesTheSceneUsable();
    void cursorIsACrossWhileWaiting();
};

void TestCreation::dragInAnyDirectionGrowsRightAndDown_data()
{
    QTest::addColumn<QPointF>("end");
    QTest::addColumn<QPointF>("topLeft");
    QTest::newRow("right and down") << QPointF(420, 380) << QPointF(300, 300);
    QTest::newRow("left and down") << QPointF(180, 380) << QPointF(180, 300);
    QTest::newRow("right and up") << QPointF(420, 220) << QPointF(300, 220);
    QTest::newRow("left and up") << QPointF(180, 220) << QPointF(180, 220);
}

void TestCreation::dragInAnyDirectionGrowsRightAndDown()
{
    QFETCH(QPointF, end);
    QFETCH(QPointF, topLeft);
    Workshop workshop;
    QVERIFY(workshop.begin("drawn"));
    workshop.drag(QPointF(300, 300), end);
    QCOMPARE(workshop.created.size(), 1);
    CreatedObject *object = workshop.last();
    QCOMPARE(object->getPos(), topLeft);
    QCOMPARE(object->getClientRect(), QRectF(0, 0, 120, 80));
    QCOMPARE(object->presses, QList<QPointF>{QPointF(0, 0)});
    const QList<QPointF> expectedMoves{QPointF(60, 40), QPointF(120, 80)};
    QCOMPARE(object->moves, expectedMoves);
    QCOMPARE(object->releases, QList<QPointF>{QPointF(120, 80)});
}

void TestCreation::dragAcrossTheStartTurnsTheCorner()
{
    Workshop workshop;
    workshop.begin("drawn");
    workshop.press(QPointF(300, 300));
    workshop.moveTo(QPointF(400, 360));
    workshop.moveTo(QPointF(250, 260));
    workshop.release(QPointF(250, 260));
    CreatedObject *object = workshop.last();
    QCOMPARE(object->getPos(), QPointF(250, 260));
    QCOMPARE(object->getClientRect(), QRectF(0, 0, 50, 40));
}

void TestCreation::cornerOfTheStartStaysPutForAnObjectThatTakesAnotherSize_data()
{
    QTest::addColumn<QPointF>("end");
    QTest::addColumn<QPointF>("topLeft");
    // A square object makes 80 × 80 of the drag.
    QTest::newRow("right and down") << QPointF(420, 380) << QPointF(300, 300);
    QTest::newRow("left and down") << QPointF(180, 380) << QPointF(220, 300);
    QTest::newRow("right and up") << QPointF(420, 220) << QPointF(300, 220);
    QTest::newRow("left and up") << QPointF(180, 220) << QPointF(220, 220);
}

void TestCreation::cornerOfTheStartStaysPutForAnObjectThatTakesAnotherSize()
{
    QFETCH(QPointF, end);
    QFETCH(QPointF, topLeft);
    Workshop workshop;
    workshop.begin("square");
    workshop.drag(QPointF(300, 300), end);
    QCOMPARE(workshop.last()->getClientRect(), QRectF(0, 0, 80, 80));
    QCOMPARE(workshop.last()->getPos(), topLeft);
}

void TestCreation::smallDragLeftIsAnchoredAtItsStart()
{
    Workshop workshop;
    workshop.begin("drawn");
    workshop.drag(QPointF(300, 300), QPointF(290, 288));
    // 10 × 12 becomes 30 × 30, the lower right corner where the drag began.
    QCOMPARE(workshop.last()->getClientRect(), QRectF(0, 0, 30, 30));
    QCOMPARE(workshop.last()->getPos(), QPointF(270, 270));
}

void TestCreation::clickMakesTheDefaultSizeAtTheClick()
{
    Workshop workshop;
    workshop.begin("drawn");
    workshop.click(QPointF(300, 200));
    QCOMPARE(workshop.created.size(), 1);
    QCOMPARE(workshop.last()->getPos(), QPointF(300, 200));
    QCOMPARE(workshop.last()->getClientRect(), QRectF(0, 0, 80, 50));
    QVERIFY(workshop.last()->moves.isEmpty());
}

void TestCreation::tremblingClickIsAClick_data()
{
    QTest::addColumn<double>("zoom");
    QTest::addColumn<double>("way"); // scene units
    QTest::addColumn<bool>("isClick");
    QTest::newRow("3 pixels") << 1.0 << 3.0 << true;
    QTest::newRow("4 pixels") << 1.0 << 4.0 << false;
    QTest::newRow("6 units at half zoom") << 0.5 << 6.0 << true;
    QTest::newRow("3 units at triple zoom") << 3.0 << 3.0 << false;
}

void TestCreation::tremblingClickIsAClick()
{
    QFETCH(double, zoom);
    QFETCH(double, way);
    QFETCH(bool, isClick);
    Workshop workshop(zoom);
    workshop.begin("drawn");
    workshop.press(QPointF(120, 120));
    workshop.moveTo(QPointF(120 + way, 120));
    workshop.release(QPointF(120 + way, 120));
    QCOMPARE(workshop.last()->getClientRect().size(), isClick ? QSizeF(80, 50) : QSizeF(30, 30));
    QCOMPARE(workshop.last()->getPos(), QPointF(120, 120));
}

void TestCreation::shiftKeepsTheDragSquare()
{
    Workshop workshop;
    workshop.begin("drawn");
    workshop.drag(QPointF(300, 300), QPointF(180, 350), Qt::ShiftModifier);
    QCOMPARE(workshop.last()->getClientRect(), QRectF(0, 0, 120, 120));
    QCOMPARE(workshop.last()->getPos(), QPointF(180, 300));
}

void TestCreation::modifiersCountAtAnyTimeOfTheDrag()
{
    Workshop workshop;
    workshop.begin("drawn");
    workshop.press({300, 300});
    workshop.moveTo({420, 350});
    QTest::keyPress(workshop.view.viewport(), Qt::Key_Shift);
    auto *drawn = dynamic_cast<CreatedObject *>(workshop.page->scene()->items().first());
    QCOMPARE(drawn->getClientRect(), QRectF(0, 0, 120, 120));
    QTest::keyRelease(workshop.view.viewport(), Qt::Key_Shift, Qt::ShiftModifier);
    QCOMPARE(drawn->getClientRect(), QRectF(0, 0, 120, 50));
    workshop.release({420, 350});
    QCOMPARE(workshop.last()->getClientRect(), QRectF(0, 0, 120, 50));
}

void TestCreation::controlDrawsAboutTheStart()
{
    Workshop workshop;
    workshop.begin("drawn");
    workshop.drag({300, 300}, {360, 340}, Qt::ControlModifier);
    QCOMPARE(workshop.last()->getPos(), QPointF(240, 260));
    QCOMPARE(workshop.last()->getClientRect(), QRectF(0, 0, 120, 80));
    workshop.begin("drawn");
    workshop.drag({300, 300}, {240, 330}, Qt::ControlModifier | Qt::ShiftModifier);
    QCOMPARE(workshop.last()->getPos(), QPointF(240, 240));
    QCOMPARE(workshop.last()->getClientRect(), QRectF(0, 0, 120, 120));
}

void TestCreation::controlKeepsTheCentreOfAnObjectThatTakesAnotherSize()
{
    Workshop workshop;
    workshop.begin("square");
    workshop.drag({300, 300}, {360, 340}, Qt::ControlModifier);
    QCOMPARE(workshop.last()->getClientRect(), QRectF(0, 0, 80, 80));
    QCOMPARE(workshop.last()->getPos(), QPointF(260, 260));
}

void TestCreation::spaceMovesTheStart()
{
    Workshop workshop;
    workshop.begin("drawn");
    workshop.press({300, 300});
    workshop.moveTo({360, 340});
    QTest::keyPress(workshop.view.viewport(), Qt::Key_Space);
    workshop.moveTo({380, 330});
    QTest::keyRelease(workshop.view.viewport(), Qt::Key_Space);
    workshop.moveTo({400, 350});
    workshop.release({400, 350});
    QCOMPARE(workshop.last()->getPos(), QPointF(320, 290));
    QCOMPARE(workshop.last()->getClientRect(), QRectF(0, 0, 80, 60));
}

void TestCreation::startAndEndCatchAtAnObject()
{
    Workshop workshop;
    workshop.add(QSizeF(100, 60), QPointF(400, 300));
    workshop.page->scene()->setSnapping(true);
    workshop.begin("drawn");
    workshop.drag({504, 365}, {700, 500});
    QCOMPARE(workshop.last()->getPos(), QPointF(500, 360));
    QCOMPARE(workshop.last()->getClientRect(), QRectF(0, 0, 200, 140));
    workshop.begin("drawn");
    workshop.drag({100, 100}, {396, 297});
    QCOMPARE(workshop.last()->getPos(), QPointF(100, 100));
    QCOMPARE(workshop.last()->getClientRect(), QRectF(0, 0, 300, 200));
}

void TestCreation::shiftedSquareCatches()
{
    Workshop workshop;
    workshop.add(QSizeF(100, 60), QPointF(400, 300));
    workshop.page->scene()->setSnapping(true);
    workshop.begin("drawn");
    workshop.drag({100, 50}, {396, 120}, Qt::ShiftModifier);
    QCOMPARE(workshop.last()->getClientRect(), QRectF(0, 0, 300, 300));
}

void TestCreation::altDrawsWithoutSnapping()
{
    Workshop workshop;
    workshop.add(QSizeF(100, 60), QPointF(400, 300));
    workshop.page->scene()->setSnapping(true);
    workshop.begin("drawn");
    workshop.drag({504, 365}, {700, 500}, Qt::AltModifier);
    QCOMPARE(workshop.last()->getPos(), QPointF(504, 365));
}

void TestCreation::placedObjectDoesNotSnap()
{
    Workshop workshop;
    workshop.add(QSizeF(100, 60), QPointF(400, 300));
    workshop.page->scene()->setSnapping(true);
    const CBaseObject *placed =
        workshop.tool.createAt(workshop.page->scene(), QStringLiteral("drawn"), QPointF(504, 365));
    QCOMPARE(placed->getPos(), QPointF(504, 365));
}

void TestCreation::resultIsOneStepAndTheSelection()
{
    Workshop workshop;
    auto *other = workshop.add(QSizeF(50, 50), QPointF(10, 10));
    other->setSelected(true);
    workshop.begin("drawn");
    workshop.drag(QPointF(300, 300), QPointF(420, 380));
    CBaseObject *object = workshop.last();
    QCOMPARE(stepTexts(), QStringList{QStringLiteral("IDS_UNDO_ADD_OBJECTS")});
    QCOMPARE(workshop.page->selectedObjects(), QVector<CBaseObject *>{object});
    const QVector<CBaseObject *> both{other, object};
    QCOMPARE(workshop.page->objects(), both);
    undoStack()->undo();
    QCOMPARE(workshop.page->objects(), QVector<CBaseObject *>{other});
    QCOMPARE(object->scene(), nullptr);
    undoStack()->redo();
    QCOMPARE(workshop.page->objects(), both);
    QCOMPARE(object->getPos(), QPointF(300, 300));
}

void TestCreation::objectIsOnThePageWhileItIsDrawn()
{
    Workshop workshop;
    workshop.begin("drawn");
    workshop.press(QPointF(300, 300));
    workshop.moveTo(QPointF(400, 360));
    QVERIFY(workshop.tool.isDrawing());
    const QList<QGraphicsItem *> items = workshop.page->scene()->items();
    QCOMPARE(items.size(), 1);
    QCOMPARE(dynamic_cast<CBaseObject *>(items.first())->GetPage(), static_cast<IPsPage *>(workshop.page));
    QCOMPARE(workshop.page->objectCount(), 0);
    workshop.release(QPointF(400, 360));
    QVERIFY(!workshop.tool.isDrawing());
}

void TestCreation::finishedObjectTakesTheDraggedSize()
{
    Workshop workshop;
    workshop.begin("finished");
    workshop.drag(QPointF(300, 300), QPointF(180, 220));
    QCOMPARE(workshop.created.first()->getClientRect(), QRectF(0, 0, 120, 80));
    QCOMPARE(workshop.created.first()->getPos(), QPointF(180, 220));
}

void TestCreation::finishedObjectKeepsItsSizeAtAClick()
{
    Workshop workshop;
    workshop.begin("finished");
    workshop.click(QPointF(300, 200));
    QCOMPARE(workshop.created.first()->getClientRect(), QRectF(0, 0, 70, 40));
}

void TestCreation::emptyFinishedObjectGetsASizeAtAClick()
{
    Workshop workshop;
    workshop.begin("empty");
    workshop.click(QPointF(300, 200));
    QCOMPARE(workshop.created.first()->getClientRect(), QRectF(0, 0, 100, 100));
}

void TestCreation::objectIsTaggedWithItsKind()
{
    Workshop workshop;
    workshop.begin("square");
    workshop.click(QPointF(300, 200));
    QCOMPARE(pagehost::kindIdOf(workshop.last()), QStringLiteral("square"));
}

void TestCreation::escapeRemovesTheUnfinishedObject()
{
    Workshop workshop;
    workshop.begin("drawn");
    workshop.press(QPointF(300, 300));
    workshop.moveTo(QPointF(400, 360));
    workshop.pressKey(Qt::Key_Escape);
    QVERIFY(!workshop.tool.isActive());
    QVERIFY(workshop.page->scene()->items().isEmpty());
    workshop.release(QPointF(400, 360));
    QVERIFY(workshop.created.isEmpty());
    QCOMPARE(workshop.cancellations, 1);
    QCOMPARE(undoStack()->count(), 0);
}

void TestCreation::escapeBeforeThePressStopsWaiting()
{
    Workshop workshop;
    workshop.begin("drawn");
    workshop.pressKey(Qt::Key_Escape);
    QCOMPARE(workshop.page->scene()->tool(), nullptr);
    workshop.drag(QPointF(300, 300), QPointF(420, 380));
    QVERIFY(workshop.created.isEmpty());
}

void TestCreation::unknownKindIsRefused()
{
    Workshop workshop;
    QVERIFY(!workshop.begin("nothing"));
    QVERIFY(!workshop.tool.isActive());
    QVERIFY(!workshop.tool.begin(nullptr, QStringLiteral("drawn")));
    QCOMPARE(workshop.tool.createAt(workshop.page->scene(), QStringLiteral("nothing"), QPointF(1, 1)), nullptr);
}

void TestCreation::failingPluginCancels()
{
    Workshop workshop;
    QVERIFY(workshop.begin("failing"));
    workshop.drag(QPointF(300, 300), QPointF(420, 380));
    QCOMPARE(workshop.cancellations, 1);
    QVERIFY(workshop.created.isEmpty());
}

void TestCreation::objectThatIsNeverFinishedIsRemoved()
{
    Workshop workshop;
    workshop.begin("endless");
    workshop.drag(QPointF(300, 300), QPointF(420, 380));
    QVERIFY(workshop.created.isEmpty());
    QVERIFY(workshop.page->scene()->items().isEmpty());
    QCOMPARE(undoStack()->count(), 0);
}

void TestCreation::toolWaitsForOnePressOnly()
{
    Workshop workshop;
    workshop.begin("drawn");
    workshop.click(QPointF(300, 200));
    QVERIFY(!workshop.tool.isActive());
    workshop.click(QPointF(600, 200));
    QCOMPARE(workshop.created.size(), 1);
}

void TestCreation::otherButtonsDrawNothing()
{
    Workshop workshop;
    workshop.begin("drawn");
    QTest::mouseClick(workshop.view.viewport(), Qt::RightButton, Qt::NoModifier, QPoint(300, 300));
    QVERIFY(workshop.created.isEmpty());
    QVERIFY(workshop.tool.isActive());
    QVERIFY(!workshop.tool.isDrawing());
}

void TestCreation::beginningAnotherKindCancelsTheFirst()
{
    Workshop workshop;
    workshop.begin("drawn");
    workshop.press(QPointF(300, 300));
    QVERIFY(workshop.begin("square"));
    QCOMPARE(workshop.cancellations, 1);
    QVERIFY(workshop.page->scene()->items().isEmpty());
    QCOMPARE(workshop.tool.kindId(), QStringLiteral("square"));
}

void TestCreation::createAtMakesOneAtOnce()
{
    Workshop workshop;
    CBaseObject *object =
        workshop.tool.createAt(workshop.page->scene(), QStringLiteral("drawn"), QPointF(12.5, 20));
    QVERIFY(object);
    QCOMPARE(object->getPos(), QPointF(12.5, 20));
    QCOMPARE(object->getClientRect(), QRectF(0, 0, 80, 50));
    QCOMPARE(workshop.page->objects(), QVector<CBaseObject *>{object});
    QCOMPARE(undoStack()->count(), 1);
    QCOMPARE(workshop.created, QVector<CBaseObject *>{object});
}

void TestCreation::destroyedToolLeavesTheSceneUsable()
{
    Workshop workshop;
    {
        pagehost::CreationTool tool(&workshop.registry);
        tool.begin(workshop.page->scene(), QStringLiteral("drawn"));
        workshop.press(QPointF(300, 300));
    }
    QCOMPARE(workshop.page->scene()->tool(), nullptr);
    QVERIFY(workshop.page->scene()->items().isEmpty());
    workshop.click(QPointF(300, 300));
}

void TestCreation::cursorIsACrossWhileWaiting()
{
    Workshop workshop;
    workshop.begin("drawn");
    QCOMPARE(int(workshop.page->scene()->cursorAt(QPointF(1, 1)).shape()), int(Qt::CrossCursor));
    workshop.tool.cancel();
    QCOMPARE(int(workshop.page->scene()->cursorAt(QPointF(1, 1)).shape()), int(Qt::ArrowCursor));
}

QTEST_MAIN(TestCreation)
#include "test_creation.moc"

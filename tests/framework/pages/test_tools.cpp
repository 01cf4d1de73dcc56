// Tools of plug-ins on a page: the pointer that they get, and the undo steps that they make.

#include <pagehost/objectregistry.h>
#include <pagehost/pagechange.h>
#include <pagehost/pagetool.h>
#include <pagehost/toolsession.h>

#include "framework/editor.h"
#include "support/virtualtime.h"

namespace {

/// Puts an object where it is pressed and moves it with the pointer; rubs out the objects under a second press.
class StampTool : public pagehost::PageTool
{
public:
    explicit StampTool(pagehost::ToolPage *page)
        : m_page(page)
    {
    }
    void press(const pagehost::ToolPointer &pointer) override
    {
        events.append(QStringLiteral("press %1 %2").arg(pointer.pos.x()).arg(pointer.pos.y()));
        last = pointer;
        m_object = m_page->createObject(QStringLiteral("stamp"));
        m_page->add(m_object);
        m_object->CPSRootObject::setPos(pointer.pos, false);
    }
    void move(const pagehost::ToolPointer &pointer) override
    {
        events.append(QStringLiteral("move %1 %2").arg(pointer.pos.x()).arg(pointer.pos.y()));
        last = pointer;
        m_object->CPSRootObject::setPos(pointer.pos, false);
    }
    void release(const pagehost::ToolPointer &pointer) override
    {
        events.append(QStringLiteral("release %1 %2").arg(pointer.pos.x()).arg(pointer.pos.y()));
        m_object = nullptr;
        m_page->commit(QStringLiteral("IDS_STAMPED"), afterwards);
    }
    bool isDrawing() const override { return m_object != nullptr; }
    bool cancel() override
    {
        if (!m_object)
            return false;
        m_object = nullptr;
        m_page->revert();
        return true;
    }
    void hover(const pagehost::ToolPointer &pointer) override { hovered.append(pointer.pos); }
    void hoverEnd() override { ++leaves; }
    int stillTime() const override { return 500; }
    void heldStill() override { ++rests; }
    bool keyPress(int key) override { return key == Qt::Key_Return; }

    QStringList events;
    pagehost::ToolPointer last;
    QVector<QPointF> hovered;
    int leaves = 0;
    int rests = 0;
    pagehost::ToolPage::Afterwards afterwards = pagehost::ToolPage::Stay;

private:
    pagehost::ToolPage *m_page;
    CBaseObject *m_object = nullptr;
};

class StampPlugin : public pagehost::ObjectPlugin, public pagehost::ToolPlugin
{
public:
    QVector<pagehost::ObjectKind> objectKinds() const override
    {
        return {{QStringLiteral("stamp"), QStringLiteral("IDS_STAMP"), QString()}};
    }
    CBaseObject *createObject(const QString &) const override { return new TestObject; }
    pagehost::TextTable texts(const QString &) const override
    {
        return {{QStringLiteral("IDS_STAMP"), QStringLiteral("Stamp")}};
    }
    QVector<pagehost::ToolRole> toolRoles() const override
    {
        return {pagehost::ToolRole::Pen, pagehost::ToolRole::Line};
    }
    pagehost::PageTool *createTool(pagehost::ToolRole role, pagehost::ToolPage *page) const override
    {
        if (role == pagehost::ToolRole::Line)
            throw std::runtime_error("no lines today");
        return new StampTool(page);
    }
};

struct Workshop : Editor
{
    Workshop()
        : session((registry.addPlugin(&plugin, QStringLiteral("test")), page), &registry)
        , tool(&session)
    {
        page->scene()->setTool(&tool);
    }
    ~Workshop() { page->scene()->setTool(nullptr); }

    StampPlugin plugin;
    pagehost::ObjectRegistry registry;
    pagehost::ToolSession session;
    StampTool tool;
};

} // namespace

class TestTools : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aPressTheMovesAndTheReleaseReachTheTool();
    void aPointerThatIsNotPressedHovers();
    void otherButtonsReachNoTool();
    void aDrawingIsOneStepThatUndoAndRedoRepeat();
    void escapeTakesTheDrawingBack();
    void aKeyOfTheToolDoesNotReachTheObjects();
    void aToolMaySelectItsObject();
    void aToolThatStaysSelectsNothing();
    void aTextThatIsThereIsLeftToTheUser();
    void aSessionMayKnowOfNoTexts();
    void aPenBringsItsPressure();
    void aBlockedDocumentKeepsToolsOut();
    void aPointerThatRestsIsTold();
    void aPointerThatGoesOnDoesNotRest();
    void aPointerThatTremblesRests();
    void objectsThatComeAndGoAreOneStep();
    void whatIsNotPushedIsTakenBack();
    void anObjectIsPutDirectlyAboveAnother();
    void objectsOfAnAreaAreFoundFromTheBottom();
    void toolsAreFoundByTheirRole();
    void aToolThatCannotBeMadeIsReported();
};

void TestTools::aPressTheMovesAndTheReleaseReachTheTool()
{
    Workshop workshop;
    workshop.press({100, 120});
    workshop.moveTo({110, 130});
    workshop.release({140, 150});
    QCOMPARE(workshop.tool.events, QStringList({"press 100 120", "move 110 130", "release 140 150"}));
    workshop.hover({200, 200});
    QCOMPARE(workshop.tool.events.size(), 3);
    QCOMPARE(workshop.tool.last.pressure, -1.0);
}

void TestTools::aPointerThatIsNotPressedHovers()
{
    Workshop workshop;
    const auto leave = [&workshop] {
        QEvent event(QEvent::Leave);
        QCoreApplication::sendEvent(workshop.view.viewport(), &event);
    };
    workshop.hover({200, 200});
    QCOMPARE(workshop.tool.hovered, QVector<QPointF>{QPointF(200, 200)});
    QVERIFY(workshop.tool.events.isEmpty());
    leave();
    QCOMPARE(workshop.tool.leaves, 1);
    workshop.press({100, 120});
    workshop.tool.hovered.clear();
    workshop.moveTo({110, 130});
    leave();
    QCOMPARE(workshop.tool.leaves, 1);
    QVERIFY(workshop.tool.hovered.isEmpty());
    workshop.release({110, 130});
    workshop.page->scene()->setTool(nullptr);
    workshop.hover({200, 200});
    leave();
    QCOMPARE(workshop.tool.leaves, 1);
    QVERIFY(workshop.tool.hovered.isEmpty());
}

void TestTools::otherButtonsReachNoTool()
{
    Workshop workshop;
    QTest::mouseClick(workshop.view.viewport(), Qt::RightButton, Qt::NoModifier, workshop.at({100, 120}));
    QVERIFY(workshop.tool.events.isEmpty());
}

void TestTools::aDrawingIsOneStepThatUndoAndRedoRepeat()
{
    Workshop workshop;
    workshop.drag({100, 120}, {140, 150});
    QCOMPARE(workshop.page->objectCount(), 1);
    CBaseObject *object = workshop.page->objects().constFirst();
    QCOMPARE(object->getPos(), QPointF(140, 150));
    QCOMPARE(stepTexts(), QStringList{"IDS_STAMPED"});
    undoStack()->undo();
    QCOMPARE(workshop.page->objectCount(), 0);
    undoStack()->redo();
    QCOMPARE(workshop.page->objects(), QVector<CBaseObject *>{object});
    QCOMPARE(object->getPos(), QPointF(140, 150));
}

void TestTools::escapeTakesTheDrawingBack()
{
    Workshop workshop;
    workshop.press({100, 120});
    QVERIFY(workshop.page->scene()->isBusy());
    QCOMPARE(workshop.page->objectCount(), 1);
    workshop.pressKey(Qt::Key_Escape);
    QVERIFY(!workshop.page->scene()->isBusy());
    QCOMPARE(workshop.page->objectCount(), 0);
    workshop.release({140, 150});
    QCOMPARE(workshop.tool.events, QStringList{"press 100 120"});
    QCOMPARE(undoStack()->count(), 0);
}

void TestTools::aKeyOfTheToolDoesNotReachTheObjects()
{
    Workshop workshop;
    QSignalSpy used(workshop.page->scene(), &pagehost::PageScene::toolUsed);
    workshop.pressKey(Qt::Key_A);
    QCOMPARE(used.count(), 0);
    workshop.pressKey(Qt::Key_Return);
    QCOMPARE(used.count(), 1);
}

void TestTools::aToolMaySelectItsObject()
{
    Workshop workshop;
    workshop.tool.afterwards = pagehost::ToolPage::Write;
    workshop.drag({100, 120}, {140, 150});
    QCOMPARE(workshop.page->selectedObjects(), workshop.page->objects());
    const auto result = workshop.session.takeResult();
    QVERIFY(result);
    QCOMPARE(result->objects, workshop.page->objects());
    QCOMPARE(result->afterwards, pagehost::ToolPage::Write);
    QVERIFY(!workshop.session.takeResult());
}

void TestTools::aToolThatStaysSelectsNothing()
{
    Workshop workshop;
    workshop.drag({100, 120}, {140, 150});
    QCOMPARE(workshop.page->objectCount(), 1);
    QVERIFY(workshop.page->selectedObjects().isEmpty());
}

void TestTools::aTextThatIsThereIsLeftToTheUser()
{
    Workshop workshop;
    const QPointF written(100, 120);
    pagehost::ToolSession session(workshop.page, &workshop.registry,
                                  [written](const QPointF &pos) { return pos == written; });
    QVERIFY(!session.writeAt({100, 121}));
    QVERIFY(!session.takeResult());
    QVERIFY(session.writeAt(written));
    const auto result = session.takeResult();
    QVERIFY(result);
    QCOMPARE(*result->writtenText, written);
    QCOMPARE(result->afterwards, pagehost::ToolPage::Write);
    QVERIFY(result->objects.isEmpty());
    QVERIFY(!session.takeResult());
}

void TestTools::aSessionMayKnowOfNoTexts()
{
    Workshop workshop;
    QVERIFY(!workshop.session.writeAt({100, 120}));
    QVERIFY(!workshop.session.takeResult());
    workshop.drag({100, 120}, {140, 150});
    QVERIFY(!workshop.session.takeResult()->writtenText);
}

void TestTools::aPenBringsItsPressure()
{
    Workshop workshop;
    pagehost::ToolPointer pointer;
    pointer.pos = {100.25, 120.5};
    pointer.pressure = 0.75;
    QVERIFY(workshop.page->scene()->pressTool(pointer));
    QCOMPARE(workshop.tool.last.pressure, 0.75);
    pointer.pos = {101.5, 120.5};
    QVERIFY(workshop.page->scene()->moveTool(pointer));
    QVERIFY(workshop.page->scene()->releaseTool(pointer));
    QCOMPARE(workshop.tool.events, QStringList({"press 100.25 120.5", "move 101.5 120.5", "release 101.5 120.5"}));
    workshop.page->scene()->setTool(nullptr);
    QVERIFY(!workshop.page->scene()->pressTool(pointer));
}

void TestTools::aBlockedDocumentKeepsToolsOut()
{
    Workshop workshop;
    workshop.document.setDocumentState(1);
    workshop.drag({100, 120}, {140, 150});
    QVERIFY(workshop.tool.events.isEmpty());
    workshop.document.setDocumentState(0);
    workshop.drag({100, 120}, {140, 150});
    QCOMPARE(workshop.page->objectCount(), 1);
}

void TestTools::aPointerThatRestsIsTold()
{
    Workshop workshop;
    workshop.press({100, 120});
    workshop.moveTo({150, 120});
    support::pass(499);
    QCOMPARE(workshop.tool.rests, 0);
    support::pass(1);
    QCOMPARE(workshop.tool.rests, 1);
    support::pass(2000);
    QCOMPARE(workshop.tool.rests, 1);
}

void TestTools::aPointerThatGoesOnDoesNotRest()
{
    Workshop workshop;
    workshop.press({100, 120});
    for (int i = 1; i <= 10; ++i) {
        support::pass(400);
        workshop.moveTo({100 + 10.0 * i, 120});
    }
    workshop.release({200, 120});
    support::pass(2000);
    QCOMPARE(workshop.tool.rests, 0);
}

void TestTools::aPointerThatTremblesRests()
{
    Workshop workshop;
    workshop.press({100, 120});
    for (int i = 1; i <= 5; ++i) {
        support::pass(100);
        workshop.moveTo({100 + i % 2 * 3.0, 120});
    }
    QCOMPARE(workshop.tool.rests, 1);
}

void TestTools::objectsThatComeAndGoAreOneStep()
{
    Editor editor;
    CBaseObject *bottom = editor.add();
    CBaseObject *middle = editor.add();
    CBaseObject *top = editor.add();
    auto *piece = new TestObject;
    pagehost::PageChange change(editor.page);
    change.remove(middle);
    change.add(piece, 1);
    change.remove(bottom);
    QCOMPARE(editor.page->objects(), QVector<CBaseObject *>({piece, top}));
    QCOMPARE(change.added(), QVector<CBaseObject *>{piece});
    QVERIFY(change.push(QStringLiteral("IDS_ERASED")));
    QVERIFY(change.isEmpty());
    undoStack()->undo();
    QCOMPARE(editor.page->objects(), QVector<CBaseObject *>({bottom, middle, top}));
    undoStack()->redo();
    QCOMPARE(editor.page->objects(), QVector<CBaseObject *>({piece, top}));
    QCOMPARE(stepTexts(), QStringList{"IDS_ERASED"});
    QVERIFY(!change.push(QStringLiteral("IDS_ERASED")));
}

void TestTools::whatIsNotPushedIsTakenBack()
{
    Editor editor;
    CBaseObject *bottom = editor.add();
    CBaseObject *top = editor.add();
    const QPointer<TestObject> piece(new TestObject);
    {
        pagehost::PageChange change(editor.page);
        change.remove(bottom);
        change.add(piece);
    }
    QCOMPARE(editor.page->objects(), QVector<CBaseObject *>({bottom, top}));
    QCOMPARE(undoStack()->count(), 0);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(!piece);
}

void TestTools::anObjectIsPutDirectlyAboveAnother()
{
    Workshop workshop;
    CBaseObject *bottom = workshop.add();
    CBaseObject *top = workshop.add();
    CBaseObject *between = workshop.session.createObject(QStringLiteral("stamp"));
    workshop.session.add(between, bottom);
    QCOMPARE(workshop.page->objects(), QVector<CBaseObject *>({bottom, between, top}));
    QCOMPARE(workshop.session.createObject(QStringLiteral("unknown")), nullptr);
}

void TestTools::objectsOfAnAreaAreFoundFromTheBottom()
{
    Workshop workshop;
    CBaseObject *bottom = workshop.add<TestObject>(QSizeF(100, 60), QPointF(100, 100));
    CBaseObject *top = workshop.add<TestObject>(QSizeF(100, 60), QPointF(150, 120));
    workshop.add<TestObject>(QSizeF(100, 60), QPointF(600, 400));
    QCOMPARE(workshop.session.objectsIn({160, 130, 4, 4}), QVector<CBaseObject *>({bottom, top}));
}

void TestTools::toolsAreFoundByTheirRole()
{
    Workshop workshop;
    QVERIFY(workshop.registry.hasTool(pagehost::ToolRole::Pen));
    QVERIFY(!workshop.registry.hasTool(pagehost::ToolRole::Eraser));
    QVERIFY(workshop.registry.createTool(pagehost::ToolRole::Pen, &workshop.session) != nullptr);
    QCOMPARE(workshop.registry.createTool(pagehost::ToolRole::Eraser, &workshop.session), nullptr);
}

void TestTools::aToolThatCannotBeMadeIsReported()
{
    Workshop workshop;
    QCOMPARE(workshop.registry.createTool(pagehost::ToolRole::Line, &workshop.session), nullptr);
    QCOMPARE(workshop.registry.reports().constFirst().problem,
             QStringLiteral("createTool() threw an exception: no lines today"));
}

QTEST_MAIN(TestTools)
#include "test_tools.moc"

#include <pagehost/commands.h>
#include <pagehost/selection.h>

#include "framework/editor.h"

#include <QtTest/QSignalSpy>

// Everybody who shows what is selected looks at all of it whenever he is told: one selection is one signal.

namespace {

constexpr int objectCount = 5;

/// Objects in a row, none of them selected.
struct Row
{
    Row()
    {
        for (int i = 0; i < objectCount; ++i)
            objects.append(editor.add(QSizeF(50, 40), QPointF(100 + 100 * i, 100)));
    }
    QPointF middleOf(int index) const { return {125.0 + 100 * index, 120}; }
    QVector<CBaseObject *> selection() const { return editor.page->selectedObjects(); }

    Editor editor;
    QVector<CBaseObject *> objects;
    QSignalSpy signalSpy{editor.page, &pagehost::Page::selectionChanged};
    QSignalSpy sceneSpy{editor.page->scene(), &QGraphicsScene::selectionChanged};
};

} // namespace

class TestSelection : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void selectingSeveralObjectsIsOneSignal();
    void selectingTheSameObjectsAgainIsNone();
    void selectingOthersIsOneSignal();
    void objectsOfAnotherPageAreLeftAlone();
    void everybodySeesTheWholeSelectionAtTheSignal();
    void clickOnAnotherObjectIsOneSignal();
    void clickWithinASelectionOfSeveralIsOneSignal();
    void addingIsOneSignal();
    void removingIsOneSignal();
    void removingWhatIsNotSelectedIsNone();
};

void TestSelection::selectingSeveralObjectsIsOneSignal()
{
    Row t;
    pagehost::selectAll(t.editor.page);
    QCOMPARE(t.selection(), t.objects);
    QCOMPARE(t.signalSpy.count(), 1);
    QCOMPARE(t.sceneSpy.count(), 1);
    t.editor.page->select({});
    QCOMPARE(t.selection(), QVector<CBaseObject *>());
    QCOMPARE(t.signalSpy.count(), 2);
}

void TestSelection::selectingTheSameObjectsAgainIsNone()
{
    Row t;
    t.editor.page->select({});
    QCOMPARE(t.signalSpy.count(), 0);
    t.editor.page->select({t.objects[1], t.objects[3]});
    t.editor.page->select({t.objects[3], t.objects[1], t.objects[3]});
    QCOMPARE(t.signalSpy.count(), 1);
    QCOMPARE(t.selection(), (QVector<CBaseObject *>{t.objects[1], t.objects[3]}));
}

void TestSelection::selectingOthersIsOneSignal()
{
    Row t;
    t.editor.page->select({t.objects[0], t.objects[1], t.objects[2]});
    t.editor.page->select({t.objects[2], t.objects[4]});
    QCOMPARE(t.signalSpy.count(), 2);
    QCOMPARE(t.selection(), (QVector<CBaseObject *>{t.objects[2], t.objects[4]}));
}

void TestSelection::objectsOfAnotherPageAreLeftAlone()
{
    Row t;
    pagehost::Page *other = t.editor.document.appendPage();
    auto *there = new TestObject;
    auto *selectedThere = new TestObject;
    other->appendObjects({there, selectedThere});
    other->select({selectedThere});
    t.editor.page->select({there, selectedThere});
    QCOMPARE(t.signalSpy.count(), 0);
    QCOMPARE(other->selectedObjects(), QVector<CBaseObject *>{selectedThere});
}

void TestSelection::everybodySeesTheWholeSelectionAtTheSignal()
{
    Row t;
    QVector<int> seen;
    QObject::connect(t.editor.page, &pagehost::Page::selectionChanged, [&] { seen.append(t.selection().size()); });
    t.editor.page->select(t.objects);
    t.editor.page->select({t.objects[0]});
    QCOMPARE(seen, (QVector<int>{objectCount, 1}));
}

void TestSelection::clickOnAnotherObjectIsOneSignal()
{
    Row t;
    t.editor.click(t.middleOf(0));
    QCOMPARE(t.signalSpy.count(), 1);
    t.editor.click(t.middleOf(1));
    QCOMPARE(t.signalSpy.count(), 2);
    QCOMPARE(t.selection(), QVector<CBaseObject *>{t.objects[1]});
}

void TestSelection::clickWithinASelectionOfSeveralIsOneSignal()
{
    Row t;
    t.editor.page->select(t.objects);
    t.editor.click(t.middleOf(2));
    QCOMPARE(t.signalSpy.count(), 2);
    QCOMPARE(t.selection(), QVector<CBaseObject *>{t.objects[2]});
}

void TestSelection::addingIsOneSignal()
{
    Row t;
    t.editor.page->select({t.objects[0]});
    const QVector<CBaseObject *> added{new TestObject, new TestObject, new TestObject};
    QVERIFY(pagehost::addObjects(t.editor.page, added));
    QCOMPARE(t.signalSpy.count(), 2);
    QCOMPARE(t.selection(), added);
    undoStack()->undo();
    QCOMPARE(t.signalSpy.count(), 3);
    undoStack()->redo();
    QCOMPARE(t.signalSpy.count(), 4);
    QCOMPARE(t.selection(), added);
}

void TestSelection::removingIsOneSignal()
{
    Row t;
    t.editor.page->select({t.objects[0], t.objects[1], t.objects[4]});
    QVERIFY(pagehost::removeObjects(t.editor.page, {t.objects[0], t.objects[1]}));
    QCOMPARE(t.signalSpy.count(), 2);
    QCOMPARE(t.selection(), QVector<CBaseObject *>{t.objects[4]});
    undoStack()->undo();
    QCOMPARE(t.signalSpy.count(), 3);
    QCOMPARE(t.selection(), (QVector<CBaseObject *>{t.objects[0], t.objects[1]}));
}

void TestSelection::removingWhatIsNotSelectedIsNone()
{
    Row t;
    t.editor.page->select({t.objects[4]});
    QVERIFY(pagehost::removeObjects(t.editor.page, {t.objects[0], t.objects[1]}));
    QCOMPARE(t.signalSpy.count(), 1);
    QCOMPARE(t.selection(), QVector<CBaseObject *>{t.objects[4]});
}

QTEST_MAIN(TestSelection)

#include "test_selection.moc"

#include <pagehost/commands.h>
#include <pagehost/objectregistry.h>
#include <pagehost/selection.h>

#include "framework/editor.h"

#include <QtCore/QPointer>

using pagehost::Page;
using pagehost::StackingMove;

namespace {

class Plugin : public pagehost::ObjectPlugin
{
public:
    QVector<pagehost::ObjectKind> objectKinds() const override
    {
        return {{QStringLiteral("plain"), QStringLiteral("IDS_TEST_NAME"), QStringLiteral("IDS_TEST_GROUP")}};
    }
    CBaseObject *createObject(const QString &) const override { return new TestObject(QSizeF(1, 1)); }
    pagehost::TextTable texts(const QString &) const override
    {
        return {{QStringLiteral("IDS_TEST_NAME"), QStringLiteral("Name")}};
    }
};

/// A page with objects A to E, bottom to top.
struct Stack : Editor
{
    Stack()
    {
        for (int i = 0; i < 5; ++i)
            objects.append(add(QSizeF(100, 60), QPointF(100 * i, 0)));
        undoStack()->clear();
    }
    QString order() const
    {
        QString letters;
        const QVector<CBaseObject *> all = page->objects();
        for (CBaseObject *object : all)
            letters.append(QLatin1Char(char('A' + objects.indexOf(object))));
        return letters;
    }
    QVector<CBaseObject *> pick(const QString &letters) const
    {
        QVector<CBaseObject *> picked;
        for (const QChar letter : letters)
            picked.append(objects.at(letter.toLatin1() - 'A'));
        return picked;
    }
    QVector<CBaseObject *> objects;
};

void letGo()
{
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

} // namespace

class TestCommands : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { undoStack()->clear(); }

    void addedObjectsStandOnTopAndAreSelected();
    void addingNothingLeavesNoStep();
    void undoneAdditionIsDeletedWhenItCannotBeRedone();
    void removedObjectsComeBackToTheirPlaces();
    void removingObjectsThatAreElsewhereLeavesNoStep();
    void removedObjectDiesWithItsStep();
    void restackingMovesInOrder_data();
    void restackingMovesInOrder();
    void restackingWithoutEffectLeavesNoStep();

    void movedObjectsComeBackExactly();
    void noMoveLeavesNoStep();
    void moveIsRecorded();
    void rotatedObjectsKeepTheirCentres();
    void fullTurnLeavesNoStep();
    void resizedObjectKeepsItsCorner();
    void resizedStubbornObjectComesBackExactly();
    void mirroredTwiceIsAsBefore();
    void lockedObjectsAreNotTouched();
    void lockIsUndoable();
    void geometryStepHoldsOnlyWhatChanged();

    void backgroundIsUndoable();
    void pageSizeIsUndoableAndLeavesObjects();
    void pageHasNoSizeThatFilesRefuse_data();
    void pageHasNoSizeThatFilesRefuse();
    void fillIsUndoableEvenToAnEqualColor();
    void fillIsRecordedOnce();
    void equalFillLeavesNoStep();

    void addedPageIsUndoable();
    void removedPageComesBackWithItsObjects();
    void lastPageIsNotRemoved();
    void removedPageDiesWithItsStep();
    void movedPageIsUndoable();

    void nudgeMovesTheSelection();
    void nudgeWithoutSelectionLeavesNoStep();
    void deleteRemovesTheSelectionButLockedObjects();
    void duplicateCopiesSavedState();
    void duplicateOfUnknownKindIsPassedOver();
    void selectAllSelectsVisibleObjects();
    void boundsHoldRotatedObjects();
};

void TestCommands::addedObjectsStandOnTopAndAreSelected()
{
    Stack stack;
    const QVector<CBaseObject *> added{new TestObject, new TestObject};
    QVERIFY(pagehost::addObjects(stack.page, added));
    QCOMPARE(stack.page->objects().mid(5), added);
    QCOMPARE(stack.page->selectedObjects(), added);
    undoStack()->undo();
    QCOMPARE(stack.order(), QStringLiteral("ABCDE"));
    undoStack()->redo();
    QCOMPARE(stack.page->objects().mid(5), added);
    QCOMPARE(stepTexts(), QStringList{QStringLiteral("IDS_UNDO_ADD_OBJECTS")});
}

void TestCommands::addingNothingLeavesNoStep()
{
    Stack stack;
    QVERIFY(!pagehost::addObjects(stack.page, {}));
    QVERIFY(!pagehost::addObjects(stack.page, {nullptr}));
    QVERIFY(!pagehost::addObjects(stack.page, stack.pick(QStringLiteral("AB"))));
    QCOMPARE(undoStack()->count(), 0);
}

void TestCommands::undoneAdditionIsDeletedWhenItCannotBeRedone()
{
    Stack stack;
    const QPointer<CBaseObject> object = new TestObject;
    pagehost::addObjects(stack.page, {object});
    undoStack()->undo();
    letGo();
    QVERIFY(object);
    pagehost::moveObjects(stack.objects, QPointF(1, 1));
    letGo();
    QVERIFY(!object);
}

void TestCommands::removedObjectsComeBackToTheirPlaces()
{
    Stack stack;
    QVERIFY(pagehost::removeObjects(stack.page, stack.pick(QStringLiteral("DAC"))));
    QCOMPARE(stack.order(), QStringLiteral("BE"));
    letGo();
    undoStack()->undo();
    QCOMPARE(stack.order(), QStringLiteral("ABCDE"));
    QCOMPARE(stack.page->selectedObjects(), stack.pick(QStringLiteral("ACD")));
    undoStack()->redo();
    QCOMPARE(stack.order(), QStringLiteral("BE"));
    QCOMPARE(stepTexts(), QStringList{QStringLiteral("IDS_UNDO_REMOVE_OBJECTS")});
}

void TestCommands::removingObjectsThatAreElsewhereLeavesNoStep()
{
    Stack stack;
    TestObject elsewhere;
    QVERIFY(!pagehost::removeObjects(stack.page, {&elsewhere}));
    QVERIFY(!pagehost::removeObjects(stack.page, {}));
    QCOMPARE(undoStack()->count(), 0);
}

void TestCommands::removedObjectDiesWithItsStep()
{
    Stack stack;
    const QPointer<CBaseObject> object = stack.objects.first();
    pagehost::removeObjects(stack.page, {object});
    letGo();
    QVERIFY(object);
    undoStack()->clear();
    letGo();
    QVERIFY(!object);
}

void TestCommands::restackingMovesInOrder_data()
{
    QTest::addColumn<QString>("moving");
    QTest::addColumn<int>("move");
    QTest::addColumn<QString>("expected");
    QTest::newRow("one to front") << "B" << int(StackingMove::ToFront) << "ACDEB";
    QTest::newRow("two to front") << "CA" << int(StackingMove::ToFront) << "BDEAC";
    QTest::newRow("two to back") << "DB" << int(StackingMove::ToBack) << "BDACE";
    QTest::newRow("one forward") << "B" << int(StackingMove::Forward) << "ACBDE";
    QTest::newRow("neighbours forward") << "BC" << int(StackingMove::Forward) << "ADBCE";
    QTest::newRow("top and other forward") << "BE" << int(StackingMove::Forward) << "ACBDE";
    QTest::newRow("one backward") << "D" << int(StackingMove::Backward) << "ABDCE";
    QTest::newRow("neighbours backward") << "CD" << int(StackingMove::Backward) << "ACDBE";
    QTest::newRow("bottom and other backward") << "AD" << int(StackingMove::Backward) << "ABDCE";
}

void TestCommands::restackingMovesInOrder()
{
    QFETCH(QString, moving);
    QFETCH(int, move);
    QFETCH(QString, expected);
    Stack stack;
    QVERIFY(pagehost::restack(stack.page, stack.pick(moving), StackingMove(move)));
    QCOMPARE(stack.order(), expected);
    undoStack()->undo();
    QCOMPARE(stack.order(), QStringLiteral("ABCDE"));
    undoStack()->redo();
    QCOMPARE(stack.order(), expected);
}

void TestCommands::restackingWithoutEffectLeavesNoStep()
{
    Stack stack;
    QVERIFY(!pagehost::restack(stack.page, stack.pick(QStringLiteral("DE")), StackingMove::ToFront));
    QVERIFY(!pagehost::restack(stack.page, stack.pick(QStringLiteral("DE")), StackingMove::Forward));
    QVERIFY(!pagehost::restack(stack.page, stack.pick(QStringLiteral("AB")), StackingMove::Backward));
    QVERIFY(!pagehost::restack(stack.page, {}, StackingMove::ToBack));
    QCOMPARE(undoStack()->count(), 0);
}

void TestCommands::movedObjectsComeBackExactly()
{
    Stack stack;
    auto *object = stack.objects.first();
    object->CPSRootObject::setPos(QPointF(0.1, 0.2), false);
    QVERIFY(pagehost::moveObjects(stack.objects, QPointF(0.7, -3.1)));
    QCOMPARE(object->getPos(), QPointF(0.8, -2.9));
    undoStack()->undo();
    QVERIFY(object->getPos().x() == 0.1 && object->getPos().y() == 0.2);
    QCOMPARE(undoStack()->count(), 1);
}

void TestCommands::noMoveLeavesNoStep()
{
    Stack stack;
    QVERIFY(!pagehost::moveObjects(stack.objects, QPointF(0, 0)));
    QVERIFY(!pagehost::moveObjects({}, QPointF(1, 0)));
    QCOMPARE(undoStack()->count(), 0);
}

void TestCommands::moveIsRecorded()
{
    Editor editor;
    auto *object = editor.add();
    pagehost::moveObjects({object}, QPointF(3, 4));
    QCOMPARE(object->records.size(), 1);
    QCOMPARE(object->records.first().first, 101);
    undoStack()->undo();
    QCOMPARE(object->records.size(), 1);
}

void TestCommands::rotatedObjectsKeepTheirCentres()
{
    Editor editor;
    auto *object = editor.add(QSizeF(100, 60), QPointF(100, 100));
    QVERIFY(pagehost::rotateObjects({object}, -90));
    QCOMPARE(object->rotation(), 270.0);
    QCOMPARE(object->mapToScene(QPointF(50, 30)), QPointF(150, 130));
    undoStack()->undo();
    QCOMPARE(object->rotation(), 0.0);
    QCOMPARE(object->getPos(), QPointF(100, 100));
}

void TestCommands::fullTurnLeavesNoStep()
{
    Editor editor;
    auto *object = editor.add();
    QVERIFY(!pagehost::rotateObjects({object}, 360));
    QCOMPARE(undoStack()->count(), 0);
}

void TestCommands::resizedObjectKeepsItsCorner()
{
    Editor editor;
    auto *object = editor.add(QSizeF(100, 60), QPointF(100, 100));
    object->setRotateByPoint(30, QPointF(50, 30), false);
    const QPointF corner = object->mapToScene(QPointF(0, 0));
    QVERIFY(pagehost::resizeObject(object, QSizeF(200, 20)));
    QCOMPARE(object->getClientRect(), QRectF(0, 0, 200, 20));
    QCOMPARE(object->mapToScene(QPointF(0, 0)), corner);
    undoStack()->undo();
    QCOMPARE(object->getClientRect(), QRectF(0, 0, 100, 60));
    QVERIFY(!pagehost::resizeObject(object, QSizeF(qQNaN(), 20)));
}

void TestCommands::resizedStubbornObjectComesBackExactly()
{
    Editor editor;
    auto *object = editor.add<StubbornObject>(QSizeF(99.9, 33.1), QPointF(1, 2));
    const double content = object->content;
    for (const QSizeF &size : {QSizeF(17.3, 90), QSizeF(1000, 1000), QSizeF(3.7, 3.1)})
        QVERIFY(pagehost::resizeObject(object, size));
    while (undoStack()->canUndo())
        undoStack()->undo();
    QVERIFY(object->getClientRect().width() == 99.9 && object->getClientRect().height() == 33.1);
    QVERIFY(object->content == content);
}

void TestCommands::mirroredTwiceIsAsBefore()
{
    Editor editor;
    auto *object = editor.add();
    QVERIFY(pagehost::mirrorObjects({object}, true));
    QVERIFY(object->isMirrored() && !object->isFlipped());
    QVERIFY(pagehost::mirrorObjects({object}, false));
    QVERIFY(object->isMirrored() && object->isFlipped());
    QVERIFY(pagehost::mirrorObjects({object}, true));
    QVERIFY(!object->isMirrored() && object->isFlipped());
    undoStack()->undo();
    QVERIFY(object->isMirrored() && object->isFlipped());
}

void TestCommands::lockedObjectsAreNotTouched()
{
    Editor editor;
    auto *object = editor.add();
    object->setLocked(true);
    QVERIFY(!pagehost::moveObjects({object}, QPointF(1, 1)));
    QVERIFY(!pagehost::rotateObjects({object}, 10));
    QVERIFY(!pagehost::mirrorObjects({object}, true));
    QVERIFY(!pagehost::resizeObject(object, QSizeF(5, 5)));
    QCOMPARE(object->getPos(), QPointF(0, 0));
    QCOMPARE(undoStack()->count(), 0);
}

void TestCommands::lockIsUndoable()
{
    Editor editor;
    auto *one = editor.add();
    auto *other = editor.add();
    other->setLocked(true);
    QVERIFY(pagehost::setObjectsLocked({one, other}, true));
    QVERIFY(one->isLocked() && other->isLocked());
    undoStack()->undo();
    QVERIFY(!one->isLocked() && other->isLocked());
    QVERIFY(!pagehost::setObjectsLocked({other}, true));
}

void TestCommands::geometryStepHoldsOnlyWhatChanged()
{
    Editor editor;
    auto *moved = editor.add();
    auto *still = editor.add();
    const auto before = pagehost::takeSnapshots({moved, still}, pagehost::GeometrySnapshot::PlaceOnly);
    QVERIFY(!pagehost::pushGeometryChange(before, QStringLiteral("IDS_TEST")));
    moved->CPSRootObject::setPos(QPointF(5, 5), false);
    QVERIFY(pagehost::pushGeometryChange(before, QStringLiteral("IDS_TEST")));
    QCOMPARE(stepTexts(), QStringList{QStringLiteral("IDS_TEST")});
    still->CPSRootObject::setPos(QPointF(9, 9), false);
    undoStack()->undo();
    QCOMPARE(moved->getPos(), QPointF(0, 0));
    QCOMPARE(still->getPos(), QPointF(9, 9));
}

void TestCommands::backgroundIsUndoable()
{
    Editor editor;
    CPageBgProp background = editor.page->background();
    QVERIFY(!pagehost::setPageBackground(editor.page, background));
    background.setFillColor(Qt::yellow);
    QVERIFY(pagehost::setPageBackground(editor.page, background));
    QCOMPARE(editor.page->background().fillColor(), QColor(Qt::yellow));
    undoStack()->undo();
    QCOMPARE(editor.page->background().fillColor(), QColor(Qt::white));
}

void TestCommands::pageSizeIsUndoableAndLeavesObjects()
{
    Editor editor;
    auto *object = editor.add();
    object->CPSRootObject::setPos(QPointF(1000, 600), false);
    QVERIFY(!pagehost::setPageSize(editor.page, {1280, 720}));
    QVERIFY(pagehost::setPageSize(editor.page, {794, 1123}));
    QCOMPARE(editor.page->size(), QSizeF(794, 1123));
    QCOMPARE(editor.page->scene()->sceneRect(), QRectF(0, 0, 794, 1123));
    QCOMPARE(object->getPos(), QPointF(1000, 600));
    QCOMPARE(stepTexts(), QStringList{QStringLiteral("IDS_UNDO_PAGE_SIZE")});
    undoStack()->undo();
    QCOMPARE(editor.page->size(), QSizeF(1280, 720));
    undoStack()->redo();
    QCOMPARE(editor.page->size(), QSizeF(794, 1123));
}

void TestCommands::pageHasNoSizeThatFilesRefuse_data()
{
    QTest::addColumn<QSizeF>("size");
    QTest::newRow("flat") << QSizeF(100, 0.5);
    QTest::newRow("narrow") << QSizeF(0, 100);
    QTest::newRow("endless") << QSizeF(100000.5, 100);
    QTest::newRow("no number") << QSizeF(std::nan(""), 100);
}

void TestCommands::pageHasNoSizeThatFilesRefuse()
{
    QFETCH(QSizeF, size);
    Editor editor;
    QVERIFY(!pagehost::setPageSize(editor.page, size));
    QCOMPARE(editor.page->size(), QSizeF(1280, 720));
    QVERIFY(pagehost::setPageSize(editor.page, {100000, 1}));
}

void TestCommands::fillIsUndoableEvenToAnEqualColor()
{
    Editor editor;
    auto *object = editor.add();
    object->fillWith(Qt::red);
    const CPageBgProp solid = *object->getFillProp();
    CPageBgProp gradient = solid;
    gradient.setFillType(CPageBgProp::GradientFill);
    QVERIFY(pagehost::setObjectsFill({object}, gradient));
    QVERIFY(*object->getFillProp() == gradient);
    undoStack()->undo();
    QVERIFY(*object->getFillProp() == solid);
    undoStack()->redo();
    QVERIFY(*object->getFillProp() == gradient);
}

void TestCommands::fillIsRecordedOnce()
{
    Editor editor;
    auto *object = editor.add();
    CPageBgProp fill(nullptr);
    fill.setFillEnable(true);
    pagehost::setObjectsFill({object}, fill);
    QCOMPARE(object->records.size(), 1);
    QCOMPARE(object->records.first().first, 105);
    undoStack()->undo();
    undoStack()->redo();
    QCOMPARE(object->records.size(), 1);
}

void TestCommands::equalFillLeavesNoStep()
{
    Editor editor;
    auto *object = editor.add();
    object->fillWith(Qt::red);
    QVERIFY(!pagehost::setObjectsFill({object}, *object->getFillProp()));
    QCOMPARE(undoStack()->count(), 0);
}

void TestCommands::addedPageIsUndoable()
{
    Editor editor;
    Page *added = pagehost::addPage(&editor.document, 0, QSizeF(300, 200));
    QCOMPARE(editor.document.page(0), added);
    QCOMPARE(editor.document.currentPage(), added);
    QCOMPARE(added->size(), QSizeF(300, 200));
    undoStack()->undo();
    QCOMPARE(editor.document.pages(), QVector<Page *>{editor.page});
    QCOMPARE(editor.document.currentPage(), editor.page);
    undoStack()->redo();
    QCOMPARE(editor.document.page(0), added);
}

void TestCommands::removedPageComesBackWithItsObjects()
{
    Editor editor;
    Page *second = editor.document.appendPage();
    auto *object = new TestObject;
    second->addObject(object);
    QVERIFY(pagehost::removePage(&editor.document, 1));
    letGo();
    QCOMPARE(editor.document.pages(), QVector<Page *>{editor.page});
    undoStack()->undo();
    QCOMPARE(editor.document.page(1), second);
    QCOMPARE(second->objects(), QVector<CBaseObject *>{object});
    QCOMPARE(editor.document.currentPage(), second);
}

void TestCommands::lastPageIsNotRemoved()
{
    Editor editor;
    QVERIFY(!pagehost::removePage(&editor.document, 0));
    QVERIFY(!pagehost::removePage(&editor.document, 5));
    QCOMPARE(editor.document.pageCount(), 1);
    QCOMPARE(undoStack()->count(), 0);
}

void TestCommands::removedPageDiesWithItsStep()
{
    Editor editor;
    const QPointer<Page> second = editor.document.appendPage();
    pagehost::removePage(&editor.document, 1);
    letGo();
    QVERIFY(second);
    undoStack()->clear();
    letGo();
    QVERIFY(!second);
}

void TestCommands::movedPageIsUndoable()
{
    Editor editor;
    Page *second = editor.document.appendPage();
    Page *third = editor.document.appendPage();
    QVERIFY(!pagehost::movePage(&editor.document, 1, 1));
    QVERIFY(!pagehost::movePage(&editor.document, 1, 3));
    QVERIFY(pagehost::movePage(&editor.document, 0, 2));
    const QVector<Page *> moved{second, third, editor.page};
    QCOMPARE(editor.document.pages(), moved);
    undoStack()->undo();
    const QVector<Page *> before{editor.page, second, third};
    QCOMPARE(editor.document.pages(), before);
    QCOMPARE(undoStack()->count(), 1);
}

void TestCommands::nudgeMovesTheSelection()
{
    Stack stack;
    stack.page->select(stack.pick(QStringLiteral("BC")));
    QVERIFY(pagehost::nudgeSelection(stack.page, QPointF(0, 10)));
    QCOMPARE(stack.objects[1]->getPos(), QPointF(100, 10));
    QCOMPARE(stack.objects[2]->getPos(), QPointF(200, 10));
    QCOMPARE(stack.objects[3]->getPos(), QPointF(300, 0));
    QCOMPARE(undoStack()->count(), 1);
}

void TestCommands::nudgeWithoutSelectionLeavesNoStep()
{
    Stack stack;
    QVERIFY(!pagehost::nudgeSelection(stack.page, QPointF(0, 10)));
    QCOMPARE(undoStack()->count(), 0);
}

void TestCommands::deleteRemovesTheSelectionButLockedObjects()
{
    Stack stack;
    stack.objects[2]->setLocked(true);
    stack.page->select(stack.pick(QStringLiteral("BC")));
    QVERIFY(pagehost::deleteSelection(stack.page));
    QCOMPARE(stack.order(), QStringLiteral("ACDE"));
    stack.page->select(stack.pick(QStringLiteral("C")));
    QVERIFY(!pagehost::deleteSelection(stack.page));
}

void TestCommands::duplicateCopiesSavedState()
{
    Plugin plugin;
    pagehost::ObjectRegistry registry;
    registry.addPlugin(&plugin, QStringLiteral("test"));
    Editor editor;
    auto *original = editor.add(QSizeF(123, 45), QPointF(10, 20));
    pagehost::setKindId(original, QStringLiteral("plain"));
    original->setRotation(30);
    original->setMirror(true, false, false);
    original->fillWith(Qt::red);
    original->setSelected(true);

    const QVector<CBaseObject *> copies = pagehost::duplicateSelection(editor.page, &registry, QPointF(7, 8));
    QCOMPARE(copies.size(), 1);
    CBaseObject *copy = copies.first();
    QCOMPARE(copy->getPos(), QPointF(17, 28));
    QCOMPARE(copy->getClientRect(), QRectF(0, 0, 123, 45));
    QCOMPARE(copy->rotation(), 30.0);
    QVERIFY(copy->isMirrored());
    QCOMPARE(copy->getFillProp()->fillColor(), QColor(Qt::red));
    QCOMPARE(pagehost::kindIdOf(copy), QStringLiteral("plain"));
    QCOMPARE(editor.page->selectedObjects(), copies);
    const QVector<CBaseObject *> both{original, copy};
    QCOMPARE(editor.page->objects(), both);
    QCOMPARE(undoStack()->count(), 1);
}

void TestCommands::duplicateOfUnknownKindIsPassedOver()
{
    const pagehost::ObjectRegistry registry;
    Editor editor;
    editor.add()->setSelected(true);
    QVERIFY(pagehost::duplicateSelection(editor.page, &registry).isEmpty());
    QCOMPARE(editor.page->objectCount(), 1);
    QCOMPARE(undoStack()->count(), 0);
}

void TestCommands::selectAllSelectsVisibleObjects()
{
    Stack stack;
    stack.objects[1]->hide();
    pagehost::selectAll(stack.page);
    QCOMPARE(stack.page->selectedObjects(), stack.pick(QStringLiteral("ACDE")));
}

void TestCommands::boundsHoldRotatedObjects()
{
    Editor editor;
    auto *object = editor.add(QSizeF(100, 60), QPointF(100, 100));
    auto *turned = editor.add(QSizeF(100, 60), QPointF(300, 100));
    turned->setRotateByPoint(90, QPointF(50, 30), false);
    // Turned about (350, 130): 60 × 100 from (320, 80).
    QCOMPARE(pagehost::boundsOf({object, turned}), QRectF(100, 80, 280, 100));
    QCOMPARE(pagehost::boundsOf({}), QRectF());
}

QTEST_MAIN(TestCommands)
#include "test_commands.moc"

#include <framework/iframework.h>

#include <pagehost/application.h>
#include <pagehost/document.h>
#include <pagehost/page.h>
#include <pagehost/pagescene.h>

#include "framework/testobject.h"

#include <support/virtualtime.h>

#include <QtCore/QPointer>
#include <QtTest/QtTest>

#include <limits>

using pagehost::Document;
using pagehost::Page;

namespace {

/// Until everything that waits for the event loop to be deleted is.
void letGo()
{
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

} // namespace

class TestDocument : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void beginsEmptyEditableAtZoomOne();
    void stateBlockAndZoomAreToldOnce();
    void zoomThatIsNoneIsIgnored();
    void appendedPageIsCurrentAndKnowsItsDocument();
    void createdPageStandsOutsideUntilInserted();
    void insertPlaceIsBroughtIntoTheRange();
    void insertedPageBecomesCurrent();
    void foreignPageIsNotInserted();
    void takenPageIsDeletedUnlessRetained();
    void retainedPageLivesUntilTheLastRelease();
    void takingTheCurrentPageMakesTheNextCurrent();
    void takingTheLastPageMakesTheOneBeforeCurrent();
    void takingAnEarlierPageKeepsTheCurrentOne();
    void takingTheOnlyPageLeavesNone();
    void takingNoPageGivesNull();
    void movedPageHasTheNewNumber();
    void movingNoPageChangesNothing();
    void currentIndexThatIsNoPageIsIgnored();
    void goingDocumentClearsTheStackAndIsNoLongerCurrent();

    void pageBeginsWhite();
    void pageSizeThatIsNoneIsIgnored();
    void sceneIsThePage();
    void changingSizeAndBackgroundIsTold();
    void objectsStandInStackingOrder();
    void stackingOrderIsDrawingOrder();
    void stackingNumbersNeverRunOut();
    void objectComingBackTouchesNoOther();
    void addedObjectKnowsItsPage();
    void addingTwiceChangesNothing();
    void removedObjectIsDeletedUnlessRetained();
    void retainedObjectLivesUntilTheLastRelease();
    void retainedObjectCanComeBack();
    void releasedObjectOnThePageStays();
    void removingGivesThePlace();
    void movedObjectHasTheNewPlace();
    void stackingOrderMustHoldTheSameObjects();
    void selectionIsExactAndInStackingOrder();
    void objectsAreFoundByTheirShape();
    void contentChangesAreToldOncePerTurn();
    void revisionCountsMovesAndFills();
    void goingPageDeletesItsObjects();
};

void TestDocument::beginsEmptyEditableAtZoomOne()
{
    const Document document;
    QCOMPARE(document.pageCount(), 0);
    QCOMPARE(document.currentIndex(), -1);
    QCOMPARE(document.currentPage(), nullptr);
    QCOMPARE(document.documentState(), 0);
    QCOMPARE(document.editingBlocked(), 0);
    QCOMPARE(document.zoomRate(), 1.0);
}

void TestDocument::stateBlockAndZoomAreToldOnce()
{
    Document document;
    QSignalSpy state(&document, &Document::documentStateChanged);
    QSignalSpy blocked(&document, &Document::editingBlockedChanged);
    QSignalSpy zoom(&document, &Document::zoomRateChanged);
    for (int round = 0; round < 2; ++round) {
        document.setDocumentState(2);
        document.setEditingBlocked(1);
        document.setZoomRate(1.5);
    }
    QCOMPARE(document.documentState(), 2);
    QCOMPARE(document.editingBlocked(), 1);
    QCOMPARE(document.zoomRate(), 1.5);
    QCOMPARE(state.size(), 1);
    QCOMPARE(blocked.size(), 1);
    QCOMPARE(zoom.size(), 1);
    QCOMPARE(zoom.first().first().toDouble(), 1.5);
}

void TestDocument::zoomThatIsNoneIsIgnored()
{
    Document document;
    for (const double rate : {0.0, -1.0, qQNaN(), std::numeric_limits<double>::infinity()}) {
        document.setZoomRate(rate);
        QCOMPARE(document.zoomRate(), 1.0);
    }
}

void TestDocument::appendedPageIsCurrentAndKnowsItsDocument()
{
    Document document;
    Page *page = document.appendPage();
    QCOMPARE(document.pages(), QVector<Page *>{page});
    QCOMPARE(document.currentPage(), page);
    QCOMPARE(page->document(), &document);
    QCOMPARE(page->size(), QSizeF(1280, 720));
    QCOMPARE(document.page(0), page);
    QCOMPARE(document.page(1), nullptr);
    QCOMPARE(document.page(-1), nullptr);
}

void TestDocument::createdPageStandsOutsideUntilInserted()
{
    Document document;
    Page *page = document.createPage(QSizeF(100, 200));
    QCOMPARE(document.pageCount(), 0);
    QCOMPARE(document.indexOf(page), -1);
    document.insertPage(0, page);
    QCOMPARE(document.indexOf(page), 0);
    QCOMPARE(page->size(), QSizeF(100, 200));
}

void TestDocument::insertPlaceIsBroughtIntoTheRange()
{
    Document document;
    Page *middle = document.appendPage();
    Page *last = document.createPage();
    Page *first = document.createPage();
    document.insertPage(99, last);
    document.insertPage(-5, first);
    const QVector<Page *> expected{first, middle, last};
    QCOMPARE(document.pages(), expected);
}

void TestDocument::insertedPageBecomesCurrent()
{
    Document document;
    document.appendPage();
    document.appendPage();
    QSignalSpy inserted(&document, &Document::pageInserted);
    QSignalSpy current(&document, &Document::currentPageChanged);
    Page *page = document.createPage();
    document.insertPage(1, page);
    QCOMPARE(document.currentPage(), page);
    QCOMPARE(inserted.size(), 1);
    QCOMPARE(inserted.first().first().toInt(), 1);
    QCOMPARE(current.size(), 1);
    QCOMPARE(current.first().first().toInt(), 1);
}

void TestDocument::foreignPageIsNotInserted()
{
    Document document;
    Page alone(nullptr);
    document.insertPage(0, &alone);
    QCOMPARE(document.pageCount(), 0);
    Page *page = document.appendPage();
    document.insertPage(0, page);
    QCOMPARE(document.pageCount(), 1);
}

void TestDocument::takenPageIsDeletedUnlessRetained()
{
    Document document;
    const QPointer<Page> page = document.appendPage();
    QCOMPARE(document.takePage(0), page.data());
    QVERIFY(page);
    letGo();
    QVERIFY(!page);
}

void TestDocument::retainedPageLivesUntilTheLastRelease()
{
    Document document;
    const QPointer<Page> page = document.appendPage();
    document.retain(page);
    document.retain(page);
    document.takePage(0);
    letGo();
    QVERIFY(page);
    document.release(page);
    letGo();
    QVERIFY(page);
    document.release(page);
    letGo();
    QVERIFY(!page);
}

void TestDocument::takingTheCurrentPageMakesTheNextCurrent()
{
    Document document;
    document.appendPage();
    document.appendPage();
    Page *third = document.appendPage();
    document.setCurrentIndex(1);
    QSignalSpy current(&document, &Document::currentPageChanged);
    QSignalSpy removed(&document, &Document::pageRemoved);
    document.takePage(1);
    QCOMPARE(document.currentPage(), third);
    QCOMPARE(document.currentIndex(), 1);
    // The number is the same, the page is another one.
    QCOMPARE(current.size(), 1);
    QCOMPARE(removed.size(), 1);
    QCOMPARE(removed.first().first().toInt(), 1);
}

void TestDocument::takingTheLastPageMakesTheOneBeforeCurrent()
{
    Document document;
    Page *first = document.appendPage();
    document.appendPage();
    document.takePage(1);
    QCOMPARE(document.currentPage(), first);
}

void TestDocument::takingAnEarlierPageKeepsTheCurrentOne()
{
    Document document;
    document.appendPage();
    Page *second = document.appendPage();
    document.takePage(0);
    QCOMPARE(document.currentPage(), second);
    QCOMPARE(document.currentIndex(), 0);
}

void TestDocument::takingTheOnlyPageLeavesNone()
{
    Document document;
    document.appendPage();
    QSignalSpy current(&document, &Document::currentPageChanged);
    document.takePage(0);
    QCOMPARE(document.currentIndex(), -1);
    QCOMPARE(document.currentPage(), nullptr);
    QCOMPARE(current.size(), 1);
    QCOMPARE(current.first().first().toInt(), -1);
}

void TestDocument::takingNoPageGivesNull()
{
    Document document;
    document.appendPage();
    QCOMPARE(document.takePage(1), nullptr);
    QCOMPARE(document.takePage(-1), nullptr);
    QCOMPARE(document.pageCount(), 1);
}

void TestDocument::movedPageHasTheNewNumber()
{
    Document document;
    Page *first = document.appendPage();
    Page *second = document.appendPage();
    Page *third = document.appendPage();
    document.setCurrentIndex(0);
    QVERIFY(document.movePage(0, 2));
    const QVector<Page *> expected{second, third, first};
    QCOMPARE(document.pages(), expected);
    QCOMPARE(document.currentPage(), first);
    QVERIFY(document.movePage(2, 1));
    QCOMPARE(document.indexOf(first), 1);
}

void TestDocument::movingNoPageChangesNothing()
{
    Document document;
    document.appendPage();
    QVERIFY(!document.movePage(0, 1));
    QVERIFY(!document.movePage(1, 0));
    QVERIFY(!document.movePage(-1, 0));
}

void TestDocument::currentIndexThatIsNoPageIsIgnored()
{
    Document document;
    document.appendPage();
    document.setCurrentIndex(1);
    document.setCurrentIndex(-1);
    QCOMPARE(document.currentIndex(), 0);
}

void TestDocument::goingDocumentClearsTheStackAndIsNoLongerCurrent()
{
    auto *document = new Document;
    pagehost::setCurrentDocument(document);
    undoStack()->push(new QUndoCommand);
    delete document;
    QCOMPARE(undoStack()->count(), 0);
    QVERIFY(GetFramework()->currentDocument() != document);
    QCOMPARE(GetFramework()->currentDocument()->zoomRate(), 1.0);
}

void TestDocument::pageBeginsWhite()
{
    const Page page(nullptr);
    QVERIFY(page.background().isFillEnable());
    QCOMPARE(page.background().fillColor(), QColor(Qt::white));
    QCOMPARE(page.background().opacity(), 255);
    QCOMPARE(page.rect(), QRectF(0, 0, 1280, 720));
    QCOMPARE(page.document(), nullptr);
}

void TestDocument::pageSizeThatIsNoneIsIgnored()
{
    Page page(nullptr, QSizeF(0, 10));
    QCOMPARE(page.size(), QSizeF(1280, 720));
    page.setSize(QSizeF(10, -1));
    page.setSize(QSizeF(qQNaN(), 10));
    QCOMPARE(page.size(), QSizeF(1280, 720));
}

void TestDocument::sceneIsThePage()
{
    Page page(nullptr, QSizeF(300, 200));
    QCOMPARE(page.scene()->page(), &page);
    QCOMPARE(page.scene()->sceneRect(), QRectF(0, 0, 300, 200));
    page.setSize(QSizeF(50, 60));
    QCOMPARE(page.scene()->sceneRect(), QRectF(0, 0, 50, 60));
}

void TestDocument::changingSizeAndBackgroundIsTold()
{
    Page page(nullptr);
    QSignalSpy size(&page, &Page::sizeChanged);
    QSignalSpy background(&page, &Page::backgroundChanged);
    CPageBgProp fill = page.background();
    page.setSize(QSizeF(1280, 720));
    page.setBackground(fill);
    QCOMPARE(size.size() + background.size(), 0);
    page.setSize(QSizeF(10, 20));
    fill.setFillColor(Qt::red);
    page.setBackground(fill);
    QCOMPARE(size.size(), 1);
    QCOMPARE(background.size(), 1);
    QCOMPARE(page.background().fillColor(), QColor(Qt::red));
}

void TestDocument::objectsStandInStackingOrder()
{
    Page page(nullptr);
    auto *bottom = new TestObject;
    auto *top = new TestObject;
    auto *middle = new TestObject;
    page.addObject(bottom);
    page.addObject(top);
    page.addObject(middle, 1);
    const QVector<CBaseObject *> expected{bottom, middle, top};
    QCOMPARE(page.objects(), expected);
    QCOMPARE(page.objectCount(), 3);
    QCOMPARE(page.indexOf(middle), 1);
    QVERIFY(page.contains(top));
}

void TestDocument::stackingOrderIsDrawingOrder()
{
    Page page(nullptr);
    auto *first = new TestObject;
    auto *second = new TestObject;
    page.addObject(first);
    page.addObject(second, 0);
    QVERIFY(second->zValue() < first->zValue());
    page.moveObject(second, 1);
    QVERIFY(second->zValue() > first->zValue());
}

void TestDocument::stackingNumbersNeverRunOut()
{
    Page page(nullptr);
    page.addObject(new TestObject);
    page.addObject(new TestObject);
    const auto isAscending = [&] {
        const QVector<CBaseObject *> objects = page.objects();
        for (int i = 1; i < objects.size(); ++i)
            if (!(objects[i - 1]->zValue() < objects[i]->zValue()))
                return false;
        return true;
    };
    for (int i = 0; i < 200; ++i) {
        page.addObject(new TestObject, i % 3 == 0 ? 0 : 1);
        QVERIFY(isAscending());
    }
    auto *giant = new TestObject;
    giant->setZValue(1e300);
    page.addObject(giant);
    page.addObject(new TestObject);
    QVERIFY(isAscending());
    page.removeObject(page.objects().at(3));
    page.addObject(new TestObject);
    QVERIFY(isAscending());
}

void TestDocument::objectComingBackTouchesNoOther()
{
    Page page(nullptr);
    QVector<CBaseObject *> objects;
    for (int i = 0; i < 3; ++i) {
        objects.append(new TestObject);
        page.addObject(objects.last());
    }
    const QVector<double> numbers{objects[0]->zValue(), objects[1]->zValue(), objects[2]->zValue()};
    page.retain(objects[1]);
    page.removeObject(objects[1]);
    page.addObject(objects[1], 1);
    page.release(objects[1]);
    const QVector<double> after{objects[0]->zValue(), objects[1]->zValue(), objects[2]->zValue()};
    QCOMPARE(after, numbers);
}

void TestDocument::addedObjectKnowsItsPage()
{
    Page page(nullptr);
    auto *object = new TestObject;
    QVector<CBaseObject *> added;
    connect(&page, &Page::objectAdded, &page, [&](CBaseObject *other) { added.append(other); });
    page.addObject(object);
    QCOMPARE(object->GetPage(), static_cast<IPsPage *>(&page));
    QCOMPARE(object->scene(), page.scene());
    QCOMPARE(added, QVector<CBaseObject *>{object});
}

void TestDocument::addingTwiceChangesNothing()
{
    Page page(nullptr);
    auto *object = new TestObject;
    page.addObject(object);
    page.addObject(object);
    page.addObject(nullptr);
    QCOMPARE(page.objectCount(), 1);
}

void TestDocument::removedObjectIsDeletedUnlessRetained()
{
    Page page(nullptr);
    const QPointer<CBaseObject> object = new TestObject;
    page.addObject(object);
    page.removeObject(object);
    QVERIFY(object);
    QCOMPARE(object->scene(), nullptr);
    letGo();
    QVERIFY(!object);
}

void TestDocument::retainedObjectLivesUntilTheLastRelease()
{
    Page page(nullptr);
    const QPointer<CBaseObject> object = new TestObject;
    page.addObject(object);
    page.retain(object);
    page.retain(object);
    page.removeObject(object);
    page.release(object);
    letGo();
    QVERIFY(object);
    page.release(object);
    letGo();
    QVERIFY(!object);
}

void TestDocument::retainedObjectCanComeBack()
{
    Page page(nullptr);
    const QPointer<CBaseObject> object = new TestObject;
    page.addObject(object);
    page.retain(object);
    page.removeObject(object);
    page.addObject(object);
    page.release(object);
    letGo();
    QVERIFY(object);
    QVERIFY(page.contains(object));
}

void TestDocument::releasedObjectOnThePageStays()
{
    Page page(nullptr);
    const QPointer<CBaseObject> object = new TestObject;
    page.addObject(object);
    page.retain(object);
    page.release(object);
    page.release(object);
    letGo();
    QVERIFY(object);
}

void TestDocument::removingGivesThePlace()
{
    Page page(nullptr);
    auto *first = new TestObject;
    auto *second = new TestObject;
    page.addObject(first);
    page.addObject(second);
    second->setSelected(true);
    page.retain(second);
    QCOMPARE(page.removeObject(second), 1);
    QCOMPARE(page.removeObject(second), -1);
    QVERIFY(!second->isSelected());
    page.release(second);
}

void TestDocument::movedObjectHasTheNewPlace()
{
    Page page(nullptr);
    QVector<CBaseObject *> objects;
    for (int i = 0; i < 4; ++i) {
        objects.append(new TestObject);
        page.addObject(objects.last());
    }
    QSignalSpy changed(&page, &Page::stackingChanged);
    page.moveObject(objects[0], 2);
    const QVector<CBaseObject *> expected{objects[1], objects[2], objects[0], objects[3]};
    QCOMPARE(page.objects(), expected);
    page.moveObject(objects[0], 99);
    QCOMPARE(page.indexOf(objects[0]), 3);
    QCOMPARE(changed.size(), 2);
    page.moveObject(objects[0], 3);
    QCOMPARE(changed.size(), 2);
}

void TestDocument::stackingOrderMustHoldTheSameObjects()
{
    Page page(nullptr);
    auto *first = new TestObject;
    auto *second = new TestObject;
    page.addObject(first);
    page.addObject(second);
    QVERIFY(!page.setStackingOrder({first}));
    QVERIFY(!page.setStackingOrder({first, first}));
    const QVector<CBaseObject *> before{first, second};
    QCOMPARE(page.objects(), before);
    QVERIFY(page.setStackingOrder({second, first}));
    const QVector<CBaseObject *> after{second, first};
    QCOMPARE(page.objects(), after);
    QVERIFY(second->zValue() < first->zValue());
}

void TestDocument::selectionIsExactAndInStackingOrder()
{
    Page page(nullptr);
    QVector<CBaseObject *> objects;
    for (int i = 0; i < 3; ++i) {
        objects.append(new TestObject);
        page.addObject(objects.last());
    }
    TestObject elsewhere;
    objects[1]->setSelected(true);
    page.select({objects[2], objects[0], &elsewhere});
    const QVector<CBaseObject *> expected{objects[0], objects[2]};
    QCOMPARE(page.selectedObjects(), expected);
    QVERIFY(!elsewhere.isSelected());
}

void TestDocument::objectsAreFoundByTheirShape()
{
    Page page(nullptr);
    auto *below = new TestObject(QSizeF(100, 100));
    auto *above = new TestObject(QSizeF(100, 100));
    page.addObject(below);
    page.addObject(above);
    above->regionPath = new QPainterPath;
    above->regionPath->addRect(0, 0, 10, 10);
    above->regenRegionShape(nullptr);
    QCOMPARE(page.objectAt(QPointF(5, 5)), above);
    QCOMPARE(page.objectAt(QPointF(50, 50)), below);
    QCOMPARE(page.objectAt(QPointF(150, 50)), nullptr);
    below->hide();
    QCOMPARE(page.objectAt(QPointF(50, 50)), nullptr);
}

void TestDocument::contentChangesAreToldOncePerTurn()
{
    Page page(nullptr);
    QSignalSpy changed(&page, &Page::contentChanged);
    page.addObject(new TestObject);
    page.addObject(new TestObject);
    QCOMPARE(changed.size(), 0);
    support::deliverEvents();
    QCOMPARE(changed.size(), 1);
    support::pass(20);
    QCOMPARE(changed.size(), 1);
}

void TestDocument::revisionCountsMovesAndFills()
{
    Page page(nullptr);
    auto *object = new TestObject;
    page.addObject(object);
    quint64 last = page.revision();
    const auto hasChanged = [&] { return page.revision() > std::exchange(last, page.revision()); };
    object->CPSRootObject::setPos(QPointF(1, 1), false);
    QVERIFY(hasChanged());
    object->setSize(QSizeF(4, 4), false, false);
    QVERIFY(hasChanged());
    object->fillWith(Qt::red);
    QVERIFY(hasChanged());
    object->setMirror(true, false, false);
    QVERIFY(hasChanged());
    object->setRotateByPoint(30, QPointF(0, 0), false);
    QVERIFY(hasChanged());
    object->hide();
    QVERIFY(hasChanged());
    object->setSelected(true);
    object->setLocked(true);
    QVERIFY(!hasChanged());
}

void TestDocument::goingPageDeletesItsObjects()
{
    auto *page = new Page(nullptr);
    const QPointer<CBaseObject> on = new TestObject;
    const QPointer<CBaseObject> off = new TestObject;
    page->addObject(on);
    page->addObject(off);
    page->retain(off);
    page->removeObject(off);
    delete page;
    QVERIFY(!on);
    QVERIFY(!off);
}

QTEST_MAIN(TestDocument)
#include "test_document.moc"

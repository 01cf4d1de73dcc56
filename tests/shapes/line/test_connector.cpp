// Connectors: lines whose ends are joined to objects. Their pen is 2 wide, so that 8 units of room are around them.

#include "connectordesk.h"

class TestConnector : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aDragConnectsTheOutlinesOfTwoShapes();
    void aPlaceWithinReachIsTaken();
    void theObjectAndItsPlacesAreHighlightedWhileDragging();
    void theObjectUnderTheWaitingPointerIsHighlighted();
    void aToolThatIsPutDownHighlightsNothing();
    void aConnectorToEmptyPageHasAFreeEnd();
    void escapeLeavesNoTrace();
    void aClickDrawsNothing();
    void aShapeIsNotConnectedWithItself();
    void aRightAngledConnectorLeavesTheSidesThatFace();
    void arrowsPointAtTheSecondShape();
    void theWayIsChangedInThePanel();
    void theConnectorFollowsADraggedShape();
    void theConnectorFollowsASize();
    void theConnectorFollowsATurn();
    void theConnectorFollowsAReshapedOutline();
    void aDeletedShapeLeavesAFreeEnd();
    void aFreeEndIsDragged();
    void aConnectorStaysBetweenItsShapes();
    void copiesOfAllStayConnected();
    void aCopyAloneHasFreeEnds();
    void aCopiedFreeEndIsWhereItWasPasted();
    void movingEverythingKeepsTheConnection();
    void aSavedConnectorStillFollows_data();
    void aSavedConnectorStillFollows();
    void aLessonShowsTheConnectorFollow();
    void aLessonThatBeginsWithAConnectorFollows();
    void connectorsDontHoldOnToConnectors();
    void aDamagedConnectorOpens();
};

void TestConnector::aDragConnectsTheOutlinesOfTwoShapes()
{
    Desk desk;
    CBaseObject *connector = desk.connectBoth();
    QCOMPARE(cornersOf(connector), direct);
    QCOMPARE(desk.placeOf(connector), QRectF(149.25, 151, 51.5, 158));
    QCOMPARE(desk.page->selectedObjects(), QVector<CBaseObject *>{connector});
    QCOMPARE(desk.session.takeResult()->afterwards, pagehost::ToolPage::Select);
    QCOMPARE(undoStack()->count(), 1);
    undoStack()->undo();
    QCOMPARE(desk.page->objectCount(), 2);
    undoStack()->redo();
    QCOMPARE(cornersOf(connector), direct);
}

void TestConnector::aPlaceWithinReachIsTaken()
{
    Desk desk;
    QCOMPARE(cornersOf(desk.connectPlaces()), betweenPlaces);
}

void TestConnector::theObjectAndItsPlacesAreHighlightedWhileDragging()
{
    Desk desk;
    desk.press({150, 130});
    QCOMPARE(desk.page->scene()->highlight(), desk.one);
    desk.moveTo({300, 230});
    QCOMPARE(desk.page->scene()->highlight(), nullptr);
    desk.moveTo({200, 330});
    QCOMPARE(desk.page->scene()->highlight(), desk.two);
    // A dot at the place in the middle of its right side: its white paper, and its rim.
    const QImage seen = desk.view.viewport()->grab().toImage();
    QCOMPARE(QColor(seen.pixel(desk.at({250, 330}))), QColor(Qt::white));
    QCOMPARE(QColor(seen.pixel(desk.at({254, 330}))), QColor(255, 149, 0));
    desk.release({200, 330});
    QCOMPARE(desk.page->scene()->highlight(), nullptr);
}

void TestConnector::theObjectUnderTheWaitingPointerIsHighlighted()
{
    Desk desk;
    desk.hover({150, 130});
    QCOMPARE(desk.page->scene()->highlight(), desk.one);
    desk.hover({150, 330});
    QCOMPARE(desk.page->scene()->highlight(), desk.two);
    desk.hover({300, 230});
    QCOMPARE(desk.page->scene()->highlight(), nullptr);
    desk.hover({150, 130});
    QEvent leave(QEvent::Leave);
    QCoreApplication::sendEvent(desk.view.viewport(), &leave);
    QCOMPARE(desk.page->scene()->highlight(), nullptr);
    QCOMPARE(desk.page->objectCount(), 2);
    // A line that is drawn stays joined to what is outside of the view.
    desk.press({150, 130});
    desk.moveTo({200, 330});
    QCoreApplication::sendEvent(desk.view.viewport(), &leave);
    QCOMPARE(desk.page->scene()->highlight(), desk.two);
}

void TestConnector::aToolThatIsPutDownHighlightsNothing()
{
    Desk desk;
    desk.hover({150, 130});
    QCOMPARE(desk.page->scene()->highlight(), desk.one);
    QVERIFY(!desk.pageTool->cancel());
    QCOMPARE(desk.page->scene()->highlight(), nullptr);
}

void TestConnector::aConnectorToEmptyPageHasAFreeEnd()
{
    Desk desk;
    QCOMPARE(cornersOf(desk.connect({150, 130}, {150, 250})), (QVector<QPointF>{{150, 159}, {150, 250}}));
    QCOMPARE(cornersOf(desk.connect({10, 300}, {300, 230})), (QVector<QPointF>{{10, 300}, {300, 230}}));
}

void TestConnector::escapeLeavesNoTrace()
{
    Desk desk;
    desk.press({150, 130});
    desk.moveTo({200, 330});
    QCOMPARE(desk.page->objectCount(), 3);
    desk.pressKey(Qt::Key_Escape);
    desk.release({200, 330});
    QCOMPARE(desk.page->objectCount(), 2);
    QCOMPARE(desk.page->scene()->highlight(), nullptr);
    QCOMPARE(undoStack()->count(), 0);
}

void TestConnector::aClickDrawsNothing()
{
    Desk desk;
    desk.click({150, 130});
    QCOMPARE(desk.page->objectCount(), 2);
    QCOMPARE(undoStack()->count(), 0);
}

void TestConnector::aShapeIsNotConnectedWithItself()
{
    Desk desk;
    // The end is free: it stays where it is when the shape moves.
    CBaseObject *connector = desk.connect({200, 130}, {150, 130});
    QVERIFY(pagehost::moveObjects({desk.one}, {0, 40}));
    QCOMPARE(cornersOf(connector), (QVector<QPointF>{{200, 170}, {150, 130}}));
    // From one place to another one it is.
    connector = desk.connect({200, 170}, {150, 140});
    QVERIFY(pagehost::moveObjects({desk.one}, {0, 40}));
    QCOMPARE(cornersOf(connector), (QVector<QPointF>{{200, 210}, {150, 180}}));
}

void TestConnector::aRightAngledConnectorLeavesTheSidesThatFace()
{
    Desk desk(pagehost::AngledConnector, farRight);
    CBaseObject *connector = desk.connectBoth();
    QCOMPARE(cornersOf(connector), (QVector<QPointF>{{199, 130}, {300, 130}, {300, 330}, {401, 330}}));
    QCOMPARE(desk.placeOf(connector), QRectF(191, 122, 218, 216));
    // Below each other, the sides between them are nearer.
    QVERIFY(pagehost::moveObjects({desk.two}, {-300, 0}));
    QCOMPARE(cornersOf(connector), (QVector<QPointF>{{150, 159}, {150, 301}}));
}

/// A line ends 7 before the tip of its head.
void TestConnector::arrowsPointAtTheSecondShape()
{
    Desk straight(pagehost::StraightArrow);
    CBaseObject *arrow = straight.connectPlaces();
    QCOMPARE(cornersOf(arrow), (QVector<QPointF>{{200, 130}, {200, 293}}));
    QVERIFY(pagehost::moveObjects({straight.two}, {0, 20}));
    QCOMPARE(cornersOf(arrow), (QVector<QPointF>{{200, 130}, {200, 313}}));
    Desk angled(pagehost::AngledArrow, farRight);
    QCOMPARE(cornersOf(angled.connectBoth()), (QVector<QPointF>{{199, 130}, {300, 130}, {300, 330}, {394, 330}}));
}

void TestConnector::theWayIsChangedInThePanel()
{
    Desk desk(pagehost::StraightConnector, farRight);
    CBaseObject *connector = desk.connectBoth();
    const QByteArray before = savedState(connector);
    QByteArray bytes("\0\0\0\1", 4);
    QDataStream angled(&bytes, QIODevice::ReadWrite);
    QVERIFY(connector->SetAttribute(wayProperty, angled, true));
    QCOMPARE(cornersOf(connector), (QVector<QPointF>{{199, 130}, {300, 130}, {300, 330}, {401, 330}}));
    QCOMPARE(desk.placeOf(connector), QRectF(191, 122, 218, 216));
    undoStack()->undo();
    QCOMPARE(savedState(connector), before);
}

void TestConnector::theConnectorFollowsADraggedShape()
{
    Desk desk;
    CBaseObject *connector = desk.connectBoth();
    const QStringList before = savedState(desk.document);
    desk.putToolDown();
    desk.page->select({});
    desk.press({230, 345});
    desk.moveTo({230, 377});
    // The way goes 50 to the right on 232 down.
    QCOMPARE(cornersOf(connector), (QVector<QPointF>{{156.25, 159}, {193.75, 333}}));
    desk.moveTo({430, 145});
    desk.release({430, 145});
    QCOMPARE(cornersOf(connector), (QVector<QPointF>{{199, 130}, {351, 130}}));
    QCOMPARE(undoStack()->count(), 2);
    undoStack()->undo();
    QCOMPARE(savedState(desk.document), before);
    undoStack()->redo();
    QCOMPARE(cornersOf(connector), (QVector<QPointF>{{199, 130}, {351, 130}}));
}

void TestConnector::theConnectorFollowsASize()
{
    Desk desk;
    CBaseObject *connector = desk.connectPlaces();
    QVERIFY(pagehost::resizeObject(desk.one, {160, 100}));
    QCOMPARE(cornersOf(connector), (QVector<QPointF>{{260, 150}, {200, 300}}));
    undoStack()->undo();
    QCOMPARE(cornersOf(connector), betweenPlaces);
}

void TestConnector::theConnectorFollowsATurn()
{
    Desk desk;
    CBaseObject *connector = desk.connectPlaces();
    // The right side comes below the middle (150, 130).
    QVERIFY(pagehost::rotateObjects({desk.one}, 90));
    QCOMPARE(cornersOf(connector), (QVector<QPointF>{{150, 180}, {200, 300}}));
    undoStack()->undo();
    QCOMPARE(cornersOf(connector), betweenPlaces);
}

/// The triangle's corners are (450, 108), (492, 152) and (408, 152). When the upper one is dragged to (474, 108),
/// the left side passes above the middle (450, 130) at y = 152 - 44 * 42 / 66 = 124.
void TestConnector::theConnectorFollowsAReshapedOutline()
{
    Desk desk;
    CBaseObject *triangle = desk.box(QStringLiteral("shapes.triangle"), {400, 100});
    CBaseObject *connector = desk.connect({450, 130}, {450, 50});
    QCOMPARE(cornersOf(connector), (QVector<QPointF>{{450, 108}, {450, 50}}));
    desk.putToolDown();
    desk.page->select({triangle});
    desk.drag({450, 108}, {474, 108});
    QCOMPARE(cornersOf(connector), (QVector<QPointF>{{450, 124}, {450, 50}}));
    undoStack()->undo();
    QCOMPARE(cornersOf(connector), (QVector<QPointF>{{450, 108}, {450, 50}}));
}

void TestConnector::aDeletedShapeLeavesAFreeEnd()
{
    Desk desk;
    CBaseObject *connector = desk.connectBoth();
    const QStringList before = savedState(desk.document);
    QVERIFY(pagehost::removeObjects(desk.page, {desk.two}));
    QCOMPARE(cornersOf(connector), direct);
    // The other end still follows: the way to (192.75, 301) is level with it.
    QVERIFY(pagehost::moveObjects({desk.one}, {-100, 171}));
    QCOMPARE(cornersOf(connector), (QVector<QPointF>{{99, 301}, {192.75, 301}}));
    undoStack()->undo();
    undoStack()->undo();
    QCOMPARE(savedState(desk.document), before);
    QVERIFY(pagehost::moveObjects({desk.two}, {200, -200}));
    QCOMPARE(cornersOf(connector), (QVector<QPointF>{{199, 130}, {351, 130}}));
    // Both at once.
    QVERIFY(pagehost::removeObjects(desk.page, {desk.one, desk.two}));
    QCOMPARE(cornersOf(connector), (QVector<QPointF>{{199, 130}, {351, 130}}));
    QVERIFY(pagehost::moveObjects({connector}, {0, 50}));
    QCOMPARE(cornersOf(connector), (QVector<QPointF>{{199, 180}, {351, 180}}));
    QVERIFY(connector->canDo(OperationResize));
}

void TestConnector::aFreeEndIsDragged()
{
    Desk desk;
    CBaseObject *connector = desk.connect({150, 130}, {150, 250});
    desk.putToolDown();
    desk.drag({150, 250}, {300, 130});
    QCOMPARE(cornersOf(connector), (QVector<QPointF>{{199, 130}, {300, 130}}));
    undoStack()->undo();
    QCOMPARE(cornersOf(connector), (QVector<QPointF>{{150, 159}, {150, 250}}));
}

void TestConnector::aConnectorStaysBetweenItsShapes()
{
    Desk desk;
    CBaseObject *connector = desk.connectBoth();
    const QByteArray before = savedState(connector);
    pagehost::moveObjects({connector}, {50, 50});
    QCOMPARE(cornersOf(connector), direct);
    pagehost::resizeObject(connector, {300, 300});
    QCOMPARE(cornersOf(connector), direct);
    pagehost::rotateObjects({connector}, 30);
    QCOMPARE(cornersOf(connector), direct);
    QCOMPARE(connector->rotation(), 0.0);
    QVERIFY(!connector->canDo(OperationResize));
    QVERIFY(connector->canDo(OperationDelete));
    while (undoStack()->index() > 1)
        undoStack()->undo();
    QCOMPARE(savedState(connector), before);
    QCOMPARE(desk.placeOf(connector), QRectF(149.25, 151, 51.5, 158));
}

void TestConnector::copiesOfAllStayConnected()
{
    Desk desk;
    CBaseObject *connector = desk.connectPlaces();
    desk.page->select({desk.one, desk.two, connector});
    const QVector<CBaseObject *> copies = pagehost::duplicateSelection(desk.page, &shapes(), {20, 30});
    QCOMPARE(copies.size(), 3);
    QCOMPARE(cornersOf(copies.at(2)), (QVector<QPointF>{{220, 160}, {220, 330}}));
    QVERIFY(pagehost::moveObjects({copies.at(0)}, {5, 0}));
    QCOMPARE(cornersOf(copies.at(2)), (QVector<QPointF>{{225, 160}, {220, 330}}));
    QCOMPARE(cornersOf(connector), betweenPlaces);
    QVERIFY(pagehost::moveObjects({desk.one}, {-5, 0}));
    QCOMPARE(cornersOf(copies.at(2)), (QVector<QPointF>{{225, 160}, {220, 330}}));
    QCOMPARE(cornersOf(connector), (QVector<QPointF>{{195, 130}, {200, 300}}));
}

void TestConnector::aCopyAloneHasFreeEnds()
{
    Desk desk;
    desk.page->select({desk.connectPlaces()});
    CBaseObject *copy = pagehost::duplicateSelection(desk.page, &shapes(), {20, 30}).value(0);
    QCOMPARE(cornersOf(copy), (QVector<QPointF>{{220, 160}, {220, 330}}));
    QVERIFY(pagehost::moveObjects({desk.one}, {-5, 0}));
    QCOMPARE(cornersOf(copy), (QVector<QPointF>{{220, 160}, {220, 330}}));
    QVERIFY(pagehost::moveObjects({copy}, {1, 0}));
    QCOMPARE(cornersOf(copy), (QVector<QPointF>{{221, 160}, {221, 330}}));
}

/// Of a copied connector whose other end is free, that end moves with the copy.
void TestConnector::aCopiedFreeEndIsWhereItWasPasted()
{
    Desk desk;
    CBaseObject *connector = desk.connect({203, 127}, {300, 250});
    desk.page->select({desk.one, connector});
    const QVector<CBaseObject *> copies = pagehost::duplicateSelection(desk.page, &shapes(), {20, 30});
    QCOMPARE(cornersOf(copies.at(1)), (QVector<QPointF>{{220, 160}, {320, 280}}));
}

void TestConnector::movingEverythingKeepsTheConnection()
{
    Desk desk;
    CBaseObject *connector = desk.connectPlaces();
    const QStringList before = savedState(desk.document);
    QVERIFY(pagehost::moveObjects({desk.one, desk.two, connector}, {10, 20}));
    QCOMPARE(cornersOf(connector), (QVector<QPointF>{{210, 150}, {210, 320}}));
    undoStack()->undo();
    QCOMPARE(savedState(desk.document), before);
}

void TestConnector::aSavedConnectorStillFollows_data()
{
    QTest::addColumn<pagehost::DocumentFormat>("format");
    QTest::newRow("binary") << pagehost::DocumentFormat::Binary;
    QTest::newRow("JSON") << pagehost::DocumentFormat::Json;
}

void TestConnector::aSavedConnectorStillFollows()
{
    QFETCH(pagehost::DocumentFormat, format);
    Desk desk(pagehost::AngledConnector, farRight);
    desk.connectBoth();
    const QByteArray file = pagehost::encodeDocument(desk.document, format);
    const pagehost::OpenResult opened = pagehost::decodeDocument(file, shapes());
    QVERIFY(opened.document);
    QCOMPARE(savedState(*opened.document), savedState(desk.document));
    const QVector<CBaseObject *> objects = opened.document->page(0)->objects();
    objects.at(1)->CPSRootObject::setPos({100, 300}, false);
    QCOMPARE(cornersOf(objects.at(2)), (QVector<QPointF>{{150, 159}, {150, 301}}));
}

void TestConnector::aLessonShowsTheConnectorFollow()
{
    Desk desk;
    desk.recorder.start(&desk.document);
    desk.connectPlaces();
    desk.letTimersRun();
    desk.now = 1000;
    desk.putToolDown();
    desk.page->select({});
    desk.press({130, 115});
    desk.moveTo({100, 115});
    desk.letTimersRun();
    desk.now = 2000;
    desk.release({90, 135});
    desk.letTimersRun();
    const QStringList drawn = savedState(desk.document);
    const pagehost::Lesson lesson = desk.recorder.stop();
    desk.player.setLesson(lesson);
    desk.player.seek(1500);
    const auto played = [&desk] { return cornersOf(desk.player.document()->page(0)->objects().value(2)); };
    QCOMPARE(played(), (QVector<QPointF>{{170, 130}, {200, 300}}));
    desk.player.seek(500);
    QCOMPARE(played(), betweenPlaces);
    QCOMPARE(desk.played(lesson), drawn);
    // It follows by what it was told, not by corrections afterwards.
    QCOMPARE(desk.count<pagehost::ObjectSettled>(lesson), 0);
}

void TestConnector::aLessonThatBeginsWithAConnectorFollows()
{
    Desk desk;
    CBaseObject *connector = desk.connectPlaces();
    desk.recorder.start(&desk.document);
    desk.now = 1000;
    QVERIFY(pagehost::moveObjects({desk.one}, {-5, 0}));
    desk.now = 2000;
    QVERIFY(pagehost::removeObjects(desk.page, {desk.two}));
    desk.now = 3000;
    undoStack()->undo();
    QVERIFY(pagehost::moveObjects({desk.two}, {0, 7}));
    QCOMPARE(cornersOf(connector), (QVector<QPointF>{{195, 130}, {200, 307}}));
    const QStringList drawn = savedState(desk.document);
    const pagehost::Lesson lesson = desk.recorder.stop();
    QCOMPARE(desk.played(lesson), drawn);
    QCOMPARE(desk.count<pagehost::ObjectSettled>(lesson), 0);
}

void TestConnector::connectorsDontHoldOnToConnectors()
{
    Desk desk;
    CBaseObject *first = desk.connect({203, 127}, {350, 127});
    CBaseObject *second = desk.connect({202, 297}, {300, 127});
    QCOMPARE(cornersOf(second), (QVector<QPointF>{{200, 300}, {300, 127}}));
    QVERIFY(pagehost::moveObjects({desk.one}, {0, 50}));
    QCOMPARE(cornersOf(first), (QVector<QPointF>{{200, 180}, {350, 127}}));
    QCOMPARE(cornersOf(second), (QVector<QPointF>{{200, 300}, {300, 127}}));
}

void TestConnector::aDamagedConnectorOpens()
{
    Desk desk(pagehost::AngledConnector);
    const QByteArray whole = savedState(desk.connectBoth());
    for (int at = 0; at < whole.size(); ++at) {
        QByteArray bytes = whole;
        bytes[at] = char(~bytes[at]);
        const std::unique_ptr<CBaseObject> opened(shapes().createObject(QStringLiteral("shapes.line")));
        QDataStream in(bytes);
        opened->load(in);
        QVERIFY(!savedState(opened.get()).isEmpty());
    }
}

QTEST_MAIN(TestConnector)
#include "test_connector.moc"

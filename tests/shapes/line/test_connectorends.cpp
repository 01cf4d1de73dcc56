// Ends of connectors that are dragged, ways round shapes, and labels.

#include "connectordesk.h"

class TestConnectorEnds : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void anEndIsDraggedOffItsShape();
    void anEndIsDraggedToAnotherShape();
    void theObjectGlowsWhileAnEndIsDraggedToIt();
    void aClickOnAnEndLeavesItThere();
    void escapePutsADraggedEndBack();
    void anEndIsNotDraggedToTheObjectOfTheOtherOne();
    void aPlainLineIsJoinedByDraggingItsEnd();
    void aTurnedLineIsNotJoined();
    void aLessonShowsAnEndGoToAnotherShape();
    void theBendIsDraggedAsBefore();
    void aWayBetweenPlacesLeadsRoundBothShapes();
    void theWayRoundIsSaved();
    void theLabelStandsInTheMiddleOfTheWay();
    void theLabelIsTakenBackAndRecorded();
    void theLabelIsHit();
    void theWayLeavesRoomForItsLabel_data();
    void theWayLeavesRoomForItsLabel();
};

void TestConnectorEnds::anEndIsDraggedOffItsShape()
{
    Desk desk;
    CBaseObject *connector = desk.connectPlaces();
    const QByteArray before = savedState(connector);
    desk.putToolDown();
    undoStack()->clear();
    desk.drag({200, 300}, {300, 250});
    const QVector<QPointF> free{{200, 130}, {300, 250}};
    QCOMPARE(cornersOf(connector), free);
    QCOMPARE(undoStack()->count(), 1);
    // It holds on to nothing any more.
    QVERIFY(pagehost::moveObjects({desk.two}, {40, 40}));
    QCOMPARE(cornersOf(connector), free);
    undoStack()->undo();
    undoStack()->undo();
    QCOMPARE(cornersOf(connector), betweenPlaces);
    QCOMPARE(savedState(connector), before);
    QVERIFY(pagehost::moveObjects({desk.two}, {10, 0}));
    QCOMPARE(cornersOf(connector), (QVector<QPointF>{{200, 130}, {210, 300}}));
}

void TestConnectorEnds::anEndIsDraggedToAnotherShape()
{
    Desk desk;
    CBaseObject *connector = desk.connectPlaces();
    CBaseObject *third = desk.box(QStringLiteral("shapes.roundedrectangle"), {400, 100});
    desk.putToolDown();
    desk.page->select({connector});
    desk.drag({200, 300}, {402, 131});
    QCOMPARE(cornersOf(connector), (QVector<QPointF>{{200, 130}, {400, 130}}));
    QCOMPARE(undoStack()->count(), 1);
    QVERIFY(pagehost::moveObjects({third}, {0, 60}));
    QCOMPARE(cornersOf(connector), (QVector<QPointF>{{200, 130}, {400, 190}}));
    undoStack()->undo();
    undoStack()->undo();
    QCOMPARE(cornersOf(connector), betweenPlaces);
    undoStack()->redo();
    QCOMPARE(cornersOf(connector), (QVector<QPointF>{{200, 130}, {400, 130}}));
    // Dropped on the shape's inside, it ends at the outline.
    desk.drag({400, 130}, {450, 145});
    QCOMPARE(cornersOf(connector).constLast().x(), 401.0);
}

void TestConnectorEnds::theObjectGlowsWhileAnEndIsDraggedToIt()
{
    Desk desk;
    desk.connectPlaces();
    CBaseObject *third = desk.box(QStringLiteral("shapes.roundedrectangle"), {400, 100});
    desk.putToolDown();
    desk.page->select({desk.page->objects().value(2)});
    desk.press({200, 300});
    desk.moveTo({300, 250});
    QCOMPARE(desk.page->scene()->highlight(), nullptr);
    desk.moveTo({430, 130});
    QCOMPARE(desk.page->scene()->highlight(), third);
    desk.release({430, 130});
    QCOMPARE(desk.page->scene()->highlight(), nullptr);
}

void TestConnectorEnds::aClickOnAnEndLeavesItThere()
{
    Desk desk;
    CBaseObject *connector = desk.connectPlaces();
    desk.putToolDown();
    const int steps = undoStack()->count();
    desk.press({201, 301});
    desk.release({201, 301});
    QCOMPARE(cornersOf(connector), betweenPlaces);
    QCOMPARE(undoStack()->count(), steps);
}

void TestConnectorEnds::escapePutsADraggedEndBack()
{
    Desk desk;
    CBaseObject *connector = desk.connectPlaces();
    CBaseObject *third = desk.box(QStringLiteral("shapes.roundedrectangle"), {400, 100});
    const QByteArray before = savedState(connector);
    desk.putToolDown();
    desk.page->select({connector});
    desk.press({200, 300});
    desk.moveTo({430, 130});
    QVERIFY(pagehost::objectId(third) != 0);
    desk.pressKey(Qt::Key_Escape);
    QCOMPARE(savedState(connector), before);
    QCOMPARE(undoStack()->count(), 0);
    QCOMPARE(desk.page->scene()->highlight(), nullptr);
    QCOMPARE(pagehost::objectId(third), 0u);
    desk.release({430, 130});
    QVERIFY(pagehost::moveObjects({desk.two}, {10, 0}));
    QCOMPARE(cornersOf(connector), (QVector<QPointF>{{200, 130}, {210, 300}}));
}

void TestConnectorEnds::anEndIsNotDraggedToTheObjectOfTheOtherOne()
{
    Desk desk;
    CBaseObject *connector = desk.connectPlaces();
    desk.putToolDown();
    desk.press({200, 300});
    desk.moveTo({150, 145});
    QCOMPARE(desk.page->scene()->highlight(), nullptr);
    desk.release({150, 145});
    QCOMPARE(cornersOf(connector), (QVector<QPointF>{{200, 130}, {150, 145}}));
    QVERIFY(pagehost::moveObjects({desk.one}, {0, 40}));
    QCOMPARE(cornersOf(connector), (QVector<QPointF>{{200, 170}, {150, 145}}));
}

void TestConnectorEnds::aPlainLineIsJoinedByDraggingItsEnd()
{
    Desk desk;
    CBaseObject *line = desk.connect({10, 300}, {60, 400});
    QVERIFY(pagehost::moveObjects({line}, {10, 10}));
    const QByteArray before = savedState(line);
    undoStack()->clear();
    desk.putToolDown();
    desk.page->select({line});
    desk.drag({70, 410}, {202, 298});
    QCOMPARE(cornersOf(line), (QVector<QPointF>{{20, 310}, {200, 300}}));
    QVERIFY(pagehost::moveObjects({desk.two}, {10, 0}));
    QCOMPARE(cornersOf(line), (QVector<QPointF>{{20, 310}, {210, 300}}));
    undoStack()->undo();
    undoStack()->undo();
    QCOMPARE(savedState(line), before);
    undoStack()->redo();
    QCOMPARE(cornersOf(line), (QVector<QPointF>{{20, 310}, {200, 300}}));
}

/// Its places aren't those of the page; the end is dragged as before.
void TestConnectorEnds::aTurnedLineIsNotJoined()
{
    Desk desk;
    CBaseObject *line = desk.connect({20, 300}, {80, 300});
    pagehost::rotateObjects({line}, 90);
    desk.putToolDown();
    desk.page->select({line});
    desk.press({50, 330});
    desk.moveTo({200, 330});
    QCOMPARE(desk.page->scene()->highlight(), nullptr);
    desk.release({200, 330});
    QVERIFY(pagehost::moveObjects({desk.two}, {30, 30}));
    QCOMPARE(line->rotation(), 90.0);
}

void TestConnectorEnds::aLessonShowsAnEndGoToAnotherShape()
{
    Desk desk;
    CBaseObject *connector = desk.connectPlaces();
    CBaseObject *third = desk.box(QStringLiteral("shapes.roundedrectangle"), {400, 100});
    desk.putToolDown();
    desk.page->select({connector});
    desk.recorder.start(&desk.document);
    desk.now = 1000;
    desk.press({200, 300});
    desk.moveTo({300, 250});
    desk.letTimersRun();
    desk.now = 2000;
    desk.release({402, 131});
    desk.letTimersRun();
    desk.now = 3000;
    QVERIFY(pagehost::moveObjects({third}, {0, 20}));
    const QStringList drawn = savedState(desk.document);
    const pagehost::Lesson lesson = desk.recorder.stop();
    desk.player.setLesson(lesson);
    desk.player.seek(1500);
    const auto played = [&desk] { return cornersOf(desk.player.document()->page(0)->objects().value(2)); };
    QCOMPARE(played(), (QVector<QPointF>{{200, 130}, {300, 250}}));
    QCOMPARE(desk.played(lesson), drawn);
    QCOMPARE(desk.count<pagehost::ObjectSettled>(lesson), 0);
}

void TestConnectorEnds::theBendIsDraggedAsBefore()
{
    Desk desk;
    CBaseObject *connector = desk.connect({10, 300}, {110, 300});
    desk.putToolDown();
    desk.page->select({connector});
    desk.drag({60, 300}, {60, 340});
    QVERIFY(WritingDesk::svgOf(connector).contains(QStringLiteral("Q")));
}

/// From the left of the first rectangle to the right of the second one, which is far to the right: 20 away from
/// each.
void TestConnectorEnds::aWayBetweenPlacesLeadsRoundBothShapes()
{
    Desk desk(pagehost::AngledConnector, farRight);
    CBaseObject *connector = desk.connect({98, 131}, {502, 331});
    QCOMPARE(cornersOf(connector),
             (QVector<QPointF>{{100, 130}, {80, 130}, {80, 230}, {520, 230}, {520, 330}, {500, 330}}));
    // At one height only the outsides are left.
    QVERIFY(pagehost::moveObjects({desk.two}, {0, -200}));
    const QVector<QPointF> round = cornersOf(connector);
    QCOMPARE(round.size(), 6);
    for (int i = 1; i < round.size(); ++i) {
        const QRectF piece = QRectF(round.at(i - 1), round.at(i)).normalized().adjusted(-0.1, -0.1, 0.1, 0.1);
        QVERIFY(!piece.intersects(QRectF(101, 101, 98, 58)) && !piece.intersects(QRectF(401, 101, 98, 58)));
    }
    undoStack()->undo();
    QCOMPARE(cornersOf(connector).value(2), QPointF(80, 230));
}

void TestConnectorEnds::theWayRoundIsSaved()
{
    Desk desk(pagehost::AngledConnector, farRight);
    CBaseObject *connector = desk.connect({98, 131}, {502, 331});
    QVERIFY(pagehost::moveObjects({desk.two}, {0, -200}));
    const QVector<QPointF> round = cornersOf(connector);
    // Without its shapes it stays what it was.
    QVERIFY(pagehost::removeObjects(desk.page, {desk.one, desk.two}));
    QCOMPARE(cornersOf(connector), round);
}

namespace {

void write(CBaseObject *line, const QString &text, bool record = true)
{
    QByteArray bytes;
    QDataStream(&bytes, QIODevice::WriteOnly) << labelProperty << text;
    QDataStream in(bytes);
    QVERIFY(line->SetSpecialProperty(pagehost::LabelText, in, record));
}

/// Of the label, scene coordinates.
QRectF labelBoxOf(CBaseObject *line)
{
    QByteArray bytes;
    QDataStream out(&bytes, QIODevice::WriteOnly);
    if (!line->GetSpecialProperty(pagehost::LabelPlaces, out))
        return {};
    QDataStream in(bytes);
    qint32 count = 0;
    qint32 id = 0;
    QString text;
    QRectF box;
    in >> count >> id >> text >> box;
    return count == 1 && id == labelProperty ? box.translated(line->getPos()) : QRectF();
}

} // namespace

void TestConnectorEnds::theLabelStandsInTheMiddleOfTheWay()
{
    Desk desk;
    CBaseObject *connector = desk.connectPlaces();
    QCOMPARE(labelBoxOf(connector).center(), QPointF(200, 215));
    write(connector, QStringLiteral("yes"));
    QCOMPARE(labelBoxOf(connector).center(), QPointF(200, 215));
    QVERIFY(pagehost::moveObjects({desk.two}, {100, 20}));
    QCOMPARE(labelBoxOf(connector).center(), QPointF(250, 225));
}

void TestConnectorEnds::theLabelIsTakenBackAndRecorded()
{
    Desk desk;
    CBaseObject *connector = desk.connectPlaces();
    const QByteArray before = savedState(connector);
    QByteArray bytes;
    QDataStream out(&bytes, QIODevice::WriteOnly);
    out << QStringLiteral("a long label");
    QDataStream in(&bytes, QIODevice::ReadWrite);
    desk.recorder.start(&desk.document);
    QVERIFY(connector->SetAttribute(labelProperty, in, true));
    const QByteArray after = savedState(connector);
    const QStringList drawn = savedState(desk.document);
    QCOMPARE(desk.played(desk.recorder.stop()), drawn);
    undoStack()->undo();
    QCOMPARE(savedState(connector), before);
    undoStack()->redo();
    QCOMPARE(savedState(connector), after);
}

void TestConnectorEnds::theLabelIsHit()
{
    Desk desk;
    CBaseObject *connector = desk.connectPlaces();
    const QPointF beside = QPointF(215, 215) - connector->getPos();
    QVERIFY(!connector->shape().contains(beside));
    write(connector, QStringLiteral("wide enough"));
    QVERIFY(connector->shape().contains(QPointF(215, 215) - connector->getPos()));
    write(connector, QString());
    QVERIFY(!connector->shape().contains(QPointF(215, 215) - connector->getPos()));
}

void TestConnectorEnds::theWayLeavesRoomForItsLabel_data()
{
    QTest::addColumn<int>("variant");
    QTest::newRow("direct") << int(pagehost::StraightConnector);
    QTest::newRow("right-angled") << int(pagehost::AngledConnector);
}

void TestConnectorEnds::theWayLeavesRoomForItsLabel()
{
    QFETCH(int, variant);
    Desk desk(variant, {100, 300});
    CBaseObject *connector = desk.connect({150, 158}, {150, 302});
    QCOMPARE(cornersOf(connector).size(), 2);
    write(connector, QStringLiteral("yes"));
    const QRectF box = labelBoxOf(connector);
    QCOMPARE(cornersOf(connector),
             (QVector<QPointF>{{150, 160}, {150, box.top()}, {150, box.bottom()}, {150, 300}}));
    QVERIFY(desk.placeOf(connector).contains(box));
}

QTEST_MAIN(TestConnectorEnds)
#include "test_connectorends.moc"

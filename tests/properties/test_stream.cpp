// The state of a shape core as a stream.

#include <support/shapefixture.h>
#include <support/streams.h>

#include <QtGui/QBrush>
#include <QtTest/QtTest>

using namespace support;

class TestStream : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aDefaultShapeSavesPointsAndItsPenColour();
    void everyEnabledPenValueIsSaved();
    void aRawShapeSavesItsViewBoxFirst();
    void aRawShapeWithoutViewBoxSavesWhatItCovers();
    void aMissingPointIsNotSaved();
    void pointsAreCountedFromOne();
    void withoutFillPropertyTheTemplatesFillStays();
    void pointsMoveWithTheGeometry();
    void rawPointsAreWrittenAsTheyStand();
    void missingPointsAreClonedFromTheFirst();
    void aMissingFirstPointIsSkippedWithoutReading();
    void flagsOfTheStreamDoNotChangeTheShapes();
    void theFillComesFromThePageObject();
    void aDisabledFillOfThePageObjectLeavesTheTemplates();
    void aStreamThatEndsGivesStartValues();
    void aHugeCountEndsWithTheStream();
    void pointsBeyondTheTableAreReadAndDropped();
    void aNegativeCountIsNone();
    void nothingIsRecorded();
    void aMissingPointWithoutFirstIsReadAndDropped();
    void aShapeWithFewerNodesThanItsCountStaysUsable();
    void clonesAreMadeAlsoWhereTheStreamEnds();
    void aPositionThatIsNoNumberIsNotApplied();
    void aCloneStandsWhereTheFirstHasMoved();
    void aCloneHasTheParentOfTheFirst();
    void aPointThatCannotBeClonedIsReadAndDropped();
    void aStreamOfAShapeWithAMissingPointIsOutOfStep();
    void everyTruncationLoads();
};

void TestStream::aDefaultShapeSavesPointsAndItsPenColour()
{
    ShapeFixture fixture(twoPointTemplate());
    fixture.load();
    fixture.shape->setPenColor(Qt::red, false);
    Output out;
    QVERIFY(fixture.shape->save(out));
    QCOMPARE(out.bytes(), bytesOf(qint32(2), 10.0, 20.0, 60.0, 30.0, false, true, QColor(Qt::red), false, false));
}

void TestStream::everyEnabledPenValueIsSaved()
{
    ShapeFixture fixture(svgText(QStringLiteral("0 0 10 10"), QString()));
    fixture.shape->propFillEnabled = true;
    fixture.shape->propPenEnabled = false;
    fixture.shape->propPenStyleEnabled = true;
    fixture.shape->propPenWidthEnabled = true;
    fixture.load();
    fixture.shape->setPenStyle(Qt::DotLine, false);
    fixture.shape->setPenWidth(5, false);
    Output out;
    fixture.shape->save(out);
    QCOMPARE(out.bytes(), bytesOf(qint32(0), true, false, true, qint32(3), true, qint32(5)));
}

void TestStream::aRawShapeSavesItsViewBoxFirst()
{
    ShapeFixture fixture(svgText(QStringLiteral("1 2 30 40"), QString()));
    fixture.shape->rawControlPoints = true;
    fixture.shape->propPenEnabled = false;
    fixture.load();
    Output out;
    fixture.shape->save(out);
    QCOMPARE(out.bytes(), bytesOf(QRectF(1, 2, 30, 40), qint32(0), false, false, false, false));
}

void TestStream::aRawShapeWithoutViewBoxSavesWhatItCovers()
{
    ShapeFixture fixture(svgText(QString(), QStringLiteral("<rect x='3' y='4' width='5' height='6'/>")));
    fixture.shape->rawControlPoints = true;
    fixture.load();
    Output out;
    fixture.shape->save(out);
    QCOMPARE(valueOf<QRectF>(out.bytes()), QRectF(3, 4, 5, 6));
    QCOMPARE(fixture.shape->document->viewBox(), QRectF(3, 4, 5, 6));
}

void TestStream::aMissingPointIsNotSaved()
{
    ShapeFixture fixture(twoPointTemplate());
    fixture.shape->propPenEnabled = false;
    fixture.load();
    fixture.shape->removeNode(fixture.shape->point(2));
    Output out;
    fixture.shape->save(out);
    QCOMPARE(out.bytes(), bytesOf(qint32(2), 10.0, 20.0, false, false, false, false));
}

void TestStream::pointsAreCountedFromOne()
{
    ShapeFixture fixture(
        svgText(QStringLiteral("0 0 100 50"),
                QStringLiteral("<rect id='control_0' x='1' y='2' width='8' height='8'/>") + controlPointsText(1)));
    fixture.load();
    Output out;
    fixture.shape->save(out);
    QVERIFY(out.bytes().startsWith(bytesOf(qint32(1), 10.0, 0.0)));
}

void TestStream::withoutFillPropertyTheTemplatesFillStays()
{
    ShapeFixture fixture(twoPointTemplate());
    fixture.load();
    Output out;
    fixture.shape->save(out);
    CPageBgProp *const prop = fixture.object.fillProp;
    fixture.object.fillProp = nullptr;
    recording::clear();
    Input in(out.bytes());
    QVERIFY(fixture.shape->load(in));
    fixture.object.fillProp = prop;
    QCOMPARE(recording::count("shape", "setFillBrush"), 0);
}

void TestStream::pointsMoveWithTheGeometry()
{
    ShapeFixture fixture(twoPointTemplate());
    fixture.load();
    QVERIFY(fixture.shape->load(inputOf(qint32(2), 11.0, 22.0, 60.0, 30.0, false, false, false, false)));
    QCOMPARE(fixture.shape->pointRect(1), QRectF(11, 22, 8, 8));
    QCOMPARE(fixture.shape->pointRect(2), QRectF(60, 30, 8, 8));
    QCOMPARE(recording::calls("shape", "updateSVG").size(), 1); // the second one is where it was
    QCOMPARE(recording::lastArguments("shape", "updateSVG"),
             QVariantList({QStringLiteral("control_1"), QPointF(1, 2), false, false})); // not finished meanwhile
    QCOMPARE(recording::count("shape", "updateAllControlPoints"), 0); // only where points are written raw
}

void TestStream::rawPointsAreWrittenAsTheyStand()
{
    ShapeFixture fixture(twoPointTemplate());
    fixture.shape->rawControlPoints = true;
    fixture.load();
    fixture.shape->load(
        inputOf(QRectF(5, 6, 70, 80), qint32(2), 11.0, 22.0, 33.0, 44.0, false, false, false, false));
    QCOMPARE(fixture.shape->document->viewBox(), QRectF(5, 6, 70, 80));
    QCOMPARE(fixture.shape->pointRect(1).topLeft(), QPointF(11, 22));
    QCOMPARE(fixture.shape->pointRect(2).topLeft(), QPointF(33, 44));
    QCOMPARE(recording::count("shape", "updateSVG"), 0);
    QCOMPARE(recording::calls("shape", "updateAllControlPoints").size(), 1);
    QCOMPARE(recording::lastArguments("shape", "updateAllControlPoints"), QVariantList({false, false}));
}

void TestStream::missingPointsAreClonedFromTheFirst()
{
    ShapeFixture fixture(svgText(QStringLiteral("0 0 100 50"), controlPointsText(1)));
    fixture.load();
    fixture.shape->load(inputOf(qint32(3), 1.0, 2.0, 11.0, 12.0, 21.0, 22.0, false, false, false, false));
    QCOMPARE(fixture.shape->controlPointCount, 3u);
    QCOMPARE(fixture.shape->node(QStringLiteral("control_2")), fixture.shape->point(2));
    QCOMPARE(fixture.shape->pointRect(2), QRectF(11, 12, 8, 8));
    QCOMPARE(fixture.shape->node(QStringLiteral("control_3")), fixture.shape->point(3));
    QCOMPARE(fixture.shape->pointRect(3), QRectF(21, 22, 8, 8));
    QCOMPARE(recording::count("setAttribute"), 2);
    QCOMPARE(recording::lastArguments("setAttribute"),
             QVariantList({QStringLiteral("id"), QStringLiteral("control_3")}));
    QVERIFY(!fixture.shape->point(3)->isFillEnabled());
    QVERIFY(!fixture.shape->point(3)->isStrokeEnabled());
}

void TestStream::aMissingFirstPointIsSkippedWithoutReading()
{
    ShapeFixture fixture(twoPointTemplate());
    fixture.load();
    fixture.shape->removeNode(fixture.shape->point(1));
    Input in = inputOf(qint32(2), 1.0, 2.0, false, false, false, false);
    fixture.shape->load(in);
    QCOMPARE(fixture.shape->pointRect(2), QRectF(1, 2, 8, 8));
    QCOMPARE(in.status(), QDataStream::Ok);
    QCOMPARE(in.consumed(), qint64(4 + 16 + 4));
}

void TestStream::flagsOfTheStreamDoNotChangeTheShapes()
{
    ShapeFixture fixture(svgText(QStringLiteral("0 0 10 10"), QString()));
    fixture.load();
    fixture.shape->load(inputOf(qint32(0), true, false, true, qint32(2), true, qint32(6)));
    QVERIFY(!fixture.shape->propFillEnabled);
    QVERIFY(fixture.shape->propPenEnabled);
    QVERIFY(!fixture.shape->propPenStyleEnabled);
    QVERIFY(!fixture.shape->propPenWidthEnabled);
    QCOMPARE(fixture.shape->getPenStyle(), Qt::DashLine);
    QCOMPARE(fixture.shape->getPenWidth(), 6);
}

void TestStream::theFillComesFromThePageObject()
{
    ShapeFixture fixture(svgText(QStringLiteral("0 0 10 10"), QString()));
    fixture.load();
    fixture.object.fillProp->setFillEnable(true);
    fixture.object.fillProp->setFillColor(QColor(10, 20, 30));
    fixture.object.fillProp->setOpacity(51);
    fixture.shape->load(inputOf(qint32(0), false, false, false, false));
    QColor expected(10, 20, 30);
    expected.setAlphaF(51 / 255.0);
    QCOMPARE(fixture.shape->document->getAllFillBrush(), QBrush(expected));
    QCOMPARE(recording::calls("shape", "setFillBrush").constFirst().arguments,
             QVariantList({QBrush(expected), false, true}));
}

void TestStream::aDisabledFillOfThePageObjectLeavesTheTemplates()
{
    ShapeFixture fixture(svgText(QStringLiteral("0 0 10 10"), QString()));
    fixture.load();
    fixture.object.fillProp->setFillEnable(false);
    fixture.shape->load(inputOf(qint32(0), false, false, false, false));
    QCOMPARE(recording::count("document", "setAllFillBrush"), 0);
}

void TestStream::aStreamThatEndsGivesStartValues()
{
    ShapeFixture fixture(twoPointTemplate());
    fixture.load();
    QVERIFY(fixture.shape->load(inputOf(qint32(2), 1.0)));
    QCOMPARE(fixture.shape->pointRect(1).topLeft(), QPointF(1, 0));
    QCOMPARE(fixture.shape->pointRect(2).topLeft(), QPointF(0, 0));
    QCOMPARE(recording::count("document", "setAllStrokeColor"), 0);
}

void TestStream::aHugeCountEndsWithTheStream()
{
    ShapeFixture fixture(twoPointTemplate());
    fixture.load();
    QVERIFY(fixture.shape->load(inputOf(qint32(0x7fffffff), 1.0, 2.0)));
    QCOMPARE(fixture.shape->controlPointCount, 32u);
    QVERIFY(!fixture.shape->node(QStringLiteral("control_33")));
}

void TestStream::pointsBeyondTheTableAreReadAndDropped()
{
    ShapeFixture fixture(svgText(QStringLiteral("0 0 100 50"), controlPointsText(1)));
    fixture.load();
    QByteArray bytes = bytesOf(qint32(40));
    for (int i = 1; i <= 40; ++i)
        bytes += bytesOf(double(i), double(i));
    bytes += bytesOf(false, true, QColor(Qt::green), false, false);
    fixture.shape->load(Input(bytes));
    QCOMPARE(fixture.shape->controlPointCount, 32u);
    QCOMPARE(fixture.shape->pointRect(32).topLeft(), QPointF(32, 32));
    QCOMPARE(fixture.shape->getPenColor(), QColor(Qt::green));
}

void TestStream::aNegativeCountIsNone()
{
    ShapeFixture fixture(twoPointTemplate());
    fixture.load();
    fixture.shape->load(inputOf(qint32(-1), false, true, QColor(Qt::green), false, false));
    QCOMPARE(fixture.shape->controlPointCount, 0u);
    QCOMPARE(fixture.shape->getPenColor(), QColor(Qt::green));
}

void TestStream::nothingIsRecorded()
{
    ShapeFixture fixture(twoPointTemplate());
    fixture.load();
    fixture.object.fillProp->setFillEnable(true);
    fixture.object.fillProp->setFillColor(QColor(10, 20, 30));
    fixture.shape->load(
        inputOf(qint32(1), 1.0, 2.0, true, true, QColor(Qt::red), true, qint32(2), true, qint32(3)));
    QCOMPARE(recording::count("document", "setAllFillBrush"), 1);
    QCOMPARE(recording::count("RecordAction"), 0);
    QCOMPARE(recording::count("push"), 0);
}

void TestStream::aMissingPointWithoutFirstIsReadAndDropped()
{
    ShapeFixture fixture(svgText(QStringLiteral("0 0 10 10"), QString()));
    fixture.load();
    // The first is skipped without reading, the second reads the only pair and has no node to be cloned from.
    Input in = inputOf(qint32(2), 1.0, 2.0, false, true, QColor(Qt::green), false, false);
    QVERIFY(fixture.shape->load(in));
    QCOMPARE(fixture.shape->controlPointCount, 2u);
    QVERIFY(!fixture.shape->node(QStringLiteral("control_2")));
    QCOMPARE(fixture.shape->getPenColor(), QColor(Qt::green));
    QCOMPARE(in.status(), QDataStream::Ok);
}

void TestStream::aPointThatCannotBeClonedIsReadAndDropped()
{
    ShapeFixture fixture(svgText(QStringLiteral("0 0 100 50"), controlPointsText(1)));
    fixture.load();
    recording::svg().clonesFail = true;
    QVERIFY(fixture.shape->load(
        inputOf(qint32(2), 1.0, 2.0, 11.0, 12.0, false, true, QColor(Qt::green), false, false)));
    QCOMPARE(fixture.shape->pointRect(1), QRectF(1, 2, 8, 8));
    QVERIFY(!fixture.shape->point(2));
    QCOMPARE(fixture.shape->getPenColor(), QColor(Qt::green));
}

void TestStream::aShapeWithFewerNodesThanItsCountStaysUsable()
{
    ShapeFixture fixture(svgText(QStringLiteral("0 0 10 10"), QString()));
    fixture.shape->rawControlPoints = true;
    fixture.load();
    QVERIFY(fixture.shape->load(inputOf(QRectF(0, 0, 10, 10), qint32(32), 1.0, 2.0)));
    QCOMPARE(fixture.shape->controlPointCount, 32u);
    fixture.shape->setPenWidth(20, false);
    QVERIFY(!fixture.shape->CheckHitTestHandlers(QPointF(1, 2)));
    Output out;
    QVERIFY(fixture.shape->save(out));
    QCOMPARE(out.bytes().mid(32, 4), bytesOf(qint32(32)));
    QCOMPARE(out.bytes().mid(36, 1), bytesOf(false)); // no pair in between
}

void TestStream::clonesAreMadeAlsoWhereTheStreamEnds()
{
    ShapeFixture fixture(svgText(QStringLiteral("0 0 100 50"), controlPointsText(1)));
    fixture.load();
    QVERIFY(fixture.shape->load(inputOf(qint32(3), 1.0, 2.0)));
    QCOMPARE(fixture.shape->pointRect(1), QRectF(1, 2, 8, 8));
    QCOMPARE(fixture.shape->pointRect(2), QRectF(0, 0, 8, 8));
    QCOMPARE(fixture.shape->pointRect(3), QRectF(0, 0, 8, 8));
}

void TestStream::aPositionThatIsNoNumberIsNotApplied()
{
    ShapeFixture fixture(twoPointTemplate());
    fixture.load();
    fixture.shape->load(inputOf(qint32(2), qQNaN(), 25.0, qInf(), -qInf(), false, false, false, false));
    QCOMPARE(fixture.shape->pointRect(1), QRectF(10, 25, 8, 8));
    QCOMPARE(fixture.shape->pointRect(2), QRectF(60, 30, 8, 8));
}

void TestStream::aCloneStandsWhereTheFirstHasMoved()
{
    ShapeFixture fixture(svgText(QStringLiteral("0 0 100 50"), controlPointsText(1)));
    fixture.load();
    fixture.shape->load(inputOf(qint32(2), 5.0, 6.0, qQNaN(), qQNaN(), false, false, false, false));
    QCOMPARE(fixture.shape->pointRect(2), QRectF(5, 6, 8, 8));
}

void TestStream::aCloneHasTheParentOfTheFirst()
{
    ShapeFixture fixture(
        svgText(QStringLiteral("0 0 100 50"), QStringLiteral("<g id='points'>%1</g>").arg(controlPointsText(1))));
    fixture.load();
    fixture.shape->load(inputOf(qint32(2), 1.0, 2.0, 3.0, 4.0, false, false, false, false));
    QVERIFY(fixture.shape->point(1)->parent());
    QCOMPARE(fixture.shape->point(2)->parent(), fixture.shape->point(1)->parent());
    QCOMPARE(fixture.shape->point(2)->parent()->nodeId(), QStringLiteral("points"));
}

void TestStream::aStreamOfAShapeWithAMissingPointIsOutOfStep()
{
    ShapeFixture incomplete(svgText(QStringLiteral("0 0 100 50"), controlPointsText(3)));
    incomplete.load();
    incomplete.shape->removeNode(incomplete.shape->point(2));
    Output out;
    incomplete.shape->save(out);
    QCOMPARE(out.bytes(), bytesOf(qint32(3), 10.0, 0.0, 30.0, 0.0, false, true, QColor(Qt::black), false, false));

    ShapeFixture complete(svgText(QStringLiteral("0 0 100 50"), controlPointsText(3)));
    complete.load();
    complete.shape->load(Input(out.bytes()));
    QCOMPARE(complete.shape->pointRect(2).topLeft(), QPointF(30, 0)); // the third one's
    // The third reads the flags, the pen colour (kind, alpha, red, green, blue) and the last two flags: 15 bytes,
    // one short of a pair.
    QCOMPARE(complete.shape->pointRect(3).y(), 0.0);
}

void TestStream::everyTruncationLoads()
{
    const auto makeShape = [](ShapeFixture &fixture) {
        fixture.shape->rawControlPoints = true;
        fixture.shape->propPenStyleEnabled = true;
        fixture.shape->propPenWidthEnabled = true;
        fixture.load();
    };
    Output out;
    {
        ShapeFixture fixture(twoPointTemplate());
        makeShape(fixture);
        fixture.shape->save(out);
    }
    QCOMPARE(out.bytes().size(), 32 + 4 + 2 * 16 + 1 + 1 + 11 + 1 + 4 + 1 + 4);
    for (int size = 0; size <= out.bytes().size(); ++size) {
        ShapeFixture fixture(twoPointTemplate());
        makeShape(fixture);
        Input in(out.bytes().left(size));
        QVERIFY(fixture.shape->load(in));
        QCOMPARE(in.status() == QDataStream::Ok, size == out.bytes().size());
    }
}

QTEST_MAIN(TestStream)
#include "test_stream.moc"

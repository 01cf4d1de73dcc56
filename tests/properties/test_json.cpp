// The state of a shape core as members of a JSON object.

#include <support/shapefixture.h>

#include <QtCore/QJsonArray>
#include <QtCore/QJsonObject>
#include <QtTest/QtTest>

using namespace support;

class TestJson : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aDefaultShapeSavesThePointsAndItsPenColour();
    void everyEnabledPenValueIsSaved();
    void aMissingPointIsNotSaved();
    void pointsAreCountedFromOne();
    void aHalfTransparentPenComesBack();
    void anInvalidPenSavesAsOpaqueBlack();
    void aRawShapeSavesAndRestoresItsViewBox();
    void aRawShapeWithoutViewBoxSavesWhatItCovers();
    void aMissingViewBoxIsNull();
    void aMissingCountLoadsNoPoint();
    void aMissingPenWidthIsZero();
    void aMissingPenStyleIsNoLine();
    void aMissingCoordinateIsZero();
    void missingPointsAreCloned();
    void aPointThatCannotBeClonedIsDropped();
    void keysThatWereAskedForAreLeftBehindAsNull();
    void coloursThatAreNoneAreInvalidWithoutAWarning();
    void theFillComesFromThePageObject();
    void wholeNumbersAreReadOnlyFromWholeNumbers_data();
    void wholeNumbersAreReadOnlyFromWholeNumbers();
    void noPointBeyondTheTableIsAskedFor();
    void aNegativeCountIsNone();
    void aMissingFirstPointIsNotAskedFor();
    void coloursMayBeNamed_data();
    void coloursMayBeNamed();
    void aMissingPenColourUnderItsFlagIsInvalid();
    void flagsOfTheObjectDoNotChangeTheShapes();
    void nothingIsRecorded();
};

void TestJson::aDefaultShapeSavesThePointsAndItsPenColour()
{
    ShapeFixture fixture(twoPointTemplate());
    fixture.load();
    fixture.shape->setPenColor(QColor(1, 2, 3), false);
    QJsonObject object;
    QVERIFY(fixture.shape->saveJson(object));
    const QJsonObject expected{{"SVG_ControlCount", 2},
                               {"SVG_PosX_1", 10.0},
                               {"SVG_PosY_1", 20.0},
                               {"SVG_PosX_2", 60.0},
                               {"SVG_PosY_2", 30.0},
                               {"SVG_PropFillEnabled", false},
                               {"SVG_PropPenEnabled", true},
                               {"SVG_PenColor", "#ff010203"},
                               {"SVG_PropPenStyleEnabled", false},
                               {"SVG_PropPenWidthEnabled", false}};
    QCOMPARE(object, expected);
}

void TestJson::everyEnabledPenValueIsSaved()
{
    ShapeFixture fixture(svgText(QStringLiteral("0 0 10 10"), QString()));
    fixture.shape->propFillEnabled = true;
    fixture.shape->propPenEnabled = false;
    fixture.shape->propPenStyleEnabled = true;
    fixture.shape->propPenWidthEnabled = true;
    fixture.load();
    fixture.shape->setPenStyle(Qt::DotLine, false);
    fixture.shape->setPenWidth(5, false);
    QJsonObject object;
    fixture.shape->saveJson(object);
    const QJsonObject expected{{"SVG_ControlCount", 0},
                               {"SVG_PropFillEnabled", true},
                               {"SVG_PropPenEnabled", false},
                               {"SVG_PropPenStyleEnabled", true},
                               {"SVG_PenStyle", 3},
                               {"SVG_PropPenWidthEnabled", true},
                               {"SVG_PenWidth", 5}};
    QCOMPARE(object, expected);
}

void TestJson::aHalfTransparentPenComesBack()
{
    ShapeFixture fixture(twoPointTemplate());
    fixture.load();
    fixture.shape->setPenColor(QColor(255, 0, 0, 128), false);
    QJsonObject object;
    fixture.shape->saveJson(object);
    QCOMPARE(object["SVG_PenColor"].toString(), QStringLiteral("#80ff0000"));
    fixture.shape->setPenColor(Qt::blue, false);
    QVERIFY(fixture.shape->loadJson(object));
    QCOMPARE(fixture.shape->getPenColor().alpha(), 128);
    QCOMPARE(fixture.shape->getPenColor().red(), 255);
}

void TestJson::anInvalidPenSavesAsOpaqueBlack()
{
    ShapeFixture fixture(twoPointTemplate());
    fixture.load();
    fixture.shape->setPenColor(QColor(), false);
    QJsonObject object;
    fixture.shape->saveJson(object);
    QCOMPARE(object["SVG_PenColor"].toString(), QStringLiteral("#ff000000"));
}

void TestJson::aRawShapeSavesAndRestoresItsViewBox()
{
    ShapeFixture fixture(twoPointTemplate());
    fixture.shape->rawControlPoints = true;
    fixture.load();
    fixture.shape->document->setViewBox(QRectF(1, 2, 3, 4));
    QJsonObject object;
    fixture.shape->saveJson(object);
    fixture.shape->document->setViewBox(QRectF(0, 0, 9, 9));
    object["SVG_PosX_1"] = 77.0;
    recording::clear();
    fixture.shape->loadJson(object);
    QCOMPARE(fixture.shape->document->viewBox(), QRectF(1, 2, 3, 4));
    QCOMPARE(fixture.shape->pointRect(1).topLeft(), QPointF(77, 20));
    QCOMPARE(recording::count("shape", "updateSVG"), 0);
    QCOMPARE(recording::lastArguments("shape", "updateAllControlPoints"), QVariantList({false, false}));
}

void TestJson::aMissingViewBoxIsNull()
{
    ShapeFixture fixture(twoPointTemplate());
    fixture.shape->rawControlPoints = true;
    fixture.load();
    QJsonObject object;
    fixture.shape->loadJson(object);
    QCOMPARE(recording::lastArguments("document", "setViewBox"), QVariantList({QRectF()}));
    QVERIFY(object.contains("SVG_viewBox"));
    QVERIFY(object.value("SVG_viewBox").isNull());
}

void TestJson::aMissingCountLoadsNoPoint()
{
    ShapeFixture fixture(twoPointTemplate());
    fixture.load();
    QJsonObject object{{"SVG_PosX_1", 5.0}, {"SVG_PosY_1", 5.0}};
    fixture.shape->loadJson(object);
    QCOMPARE(fixture.shape->controlPointCount, 0u);
    QCOMPARE(fixture.shape->point(1)->boundingRect().topLeft(), QPointF(10, 20));
}

void TestJson::aMissingPenWidthIsZero()
{
    ShapeFixture fixture(twoPointTemplate());
    fixture.load();
    QJsonObject object{{"SVG_PropPenWidthEnabled", true}};
    fixture.shape->loadJson(object);
    QCOMPARE(recording::lastArguments("shape", "setPenWidth"), QVariantList({0, false}));
    QVERIFY(object.contains("SVG_PenWidth"));
    QVERIFY(object.value("SVG_PenWidth").isNull());
}

void TestJson::aMissingCoordinateIsZero()
{
    ShapeFixture fixture(twoPointTemplate());
    fixture.load();
    QJsonObject object{{"SVG_ControlCount", 3},
                       {"SVG_PosX_1", 1.0},
                       {"SVG_PosY_1", 2.0},
                       {"SVG_PosY_2", 3.0},
                       {"SVG_PosX_3", 5.0}};
    fixture.shape->loadJson(object);
    QCOMPARE(fixture.shape->pointRect(1).topLeft(), QPointF(1, 2));
    QCOMPARE(fixture.shape->pointRect(2).topLeft(), QPointF(0, 3));
    QCOMPARE(fixture.shape->pointRect(3).topLeft(), QPointF(5, 0));
    QCOMPARE(recording::count("shape", "updateAllControlPoints"), 0); // only where points are written raw
}

void TestJson::missingPointsAreCloned()
{
    ShapeFixture fixture(svgText(QStringLiteral("0 0 100 50"), controlPointsText(1)));
    fixture.load();
    QJsonObject object{{"SVG_ControlCount", 2}, {"SVG_PosX_2", 1.0}, {"SVG_PosY_2", 2.0}};
    fixture.shape->loadJson(object);
    QCOMPARE(fixture.shape->pointRect(2), QRectF(1, 2, 8, 8));
    QCOMPARE(fixture.shape->node(QStringLiteral("control_2")), fixture.shape->point(2));
}

void TestJson::aPointThatCannotBeClonedIsDropped()
{
    ShapeFixture fixture(svgText(QStringLiteral("0 0 100 50"), controlPointsText(1)));
    fixture.load();
    recording::svg().clonesFail = true;
    QJsonObject object{{"SVG_ControlCount", 2}, {"SVG_PosX_1", 3.0}, {"SVG_PosY_1", 4.0}, {"SVG_PosX_2", 1.0}};
    QVERIFY(fixture.shape->loadJson(object));
    QCOMPARE(fixture.shape->pointRect(1), QRectF(3, 4, 8, 8));
    QVERIFY(!fixture.shape->point(2));
}

void TestJson::keysThatWereAskedForAreLeftBehindAsNull()
{
    ShapeFixture fixture(twoPointTemplate());
    fixture.load();
    QJsonObject object;
    fixture.shape->loadJson(object);
    const QJsonObject expected{{"SVG_ControlCount", QJsonValue::Null},
                               {"SVG_PropFillEnabled", QJsonValue::Null},
                               {"SVG_PropPenEnabled", QJsonValue::Null},
                               {"SVG_PropPenStyleEnabled", QJsonValue::Null},
                               {"SVG_PropPenWidthEnabled", QJsonValue::Null}};
    QCOMPARE(object, expected);
}

void TestJson::coloursThatAreNoneAreInvalidWithoutAWarning()
{
    ShapeFixture fixture(twoPointTemplate());
    fixture.load();
    QJsonObject object{{"SVG_PropPenEnabled", true}, {"SVG_PenColor", "no colour"}};
    fixture.shape->loadJson(object);
    QCOMPARE(recording::count("document", "setAllStrokeColor"), 1);
    QVERIFY(!fixture.shape->getPenColor().isValid());
    object["SVG_PenColor"] = QStringLiteral("#f00");
    fixture.shape->loadJson(object);
    QCOMPARE(fixture.shape->getPenColor(), QColor(Qt::red));
}

void TestJson::theFillComesFromThePageObject()
{
    ShapeFixture fixture(twoPointTemplate());
    fixture.load();
    fixture.object.fillProp->setFillEnable(true);
    fixture.object.fillProp->setFillColor(QColor(10, 20, 30));
    QJsonObject object;
    fixture.shape->loadJson(object);
    QCOMPARE(fixture.shape->document->getAllFillBrush(), QBrush(QColor(10, 20, 30)));
}

void TestJson::wholeNumbersAreReadOnlyFromWholeNumbers_data()
{
    QTest::addColumn<QJsonValue>("value");
    QTest::addColumn<int>("width");
    QTest::newRow("whole") << QJsonValue(3) << 3;
    QTest::newRow("whole, as a double") << QJsonValue(3.0) << 3;
    QTest::newRow("fraction") << QJsonValue(2.5) << 0;
    QTest::newRow("too large") << QJsonValue(1e10) << 0;
    QTest::newRow("text") << QJsonValue("3") << 0;
    QTest::newRow("flag") << QJsonValue(true) << 0;
    QTest::newRow("null") << QJsonValue() << 0;
    QTest::newRow("array") << QJsonValue(QJsonArray{3}) << 0;
}

void TestJson::wholeNumbersAreReadOnlyFromWholeNumbers()
{
    QFETCH(QJsonValue, value);
    QFETCH(int, width);
    ShapeFixture fixture(twoPointTemplate());
    fixture.load();
    QJsonObject object{{"SVG_PropPenWidthEnabled", true}, {"SVG_PenWidth", value}, {"SVG_ControlCount", value}};
    fixture.shape->loadJson(object);
    QCOMPARE(recording::lastArguments("shape", "setPenWidth"), QVariantList({width, false}));
    QCOMPARE(fixture.shape->controlPointCount, quint32(width));
}

void TestJson::noPointBeyondTheTableIsAskedFor()
{
    ShapeFixture fixture(svgText(QStringLiteral("0 0 100 50"), controlPointsText(1)));
    fixture.load();
    QJsonObject object{{"SVG_ControlCount", 1000}};
    fixture.shape->loadJson(object);
    QCOMPARE(fixture.shape->controlPointCount, 32u);
    QCOMPARE(fixture.shape->pointRect(32), QRectF(0, 0, 8, 8));
    QVERIFY(object.contains("SVG_PosX_32"));
    QVERIFY(!object.contains("SVG_PosX_33"));
    QVERIFY(!fixture.shape->node(QStringLiteral("control_33")));
}

void TestJson::aNegativeCountIsNone()
{
    ShapeFixture fixture(twoPointTemplate());
    fixture.load();
    QJsonObject object{{"SVG_ControlCount", -1}, {"SVG_PropPenEnabled", true}, {"SVG_PenColor", "#ff00ff00"}};
    fixture.shape->loadJson(object);
    QCOMPARE(fixture.shape->controlPointCount, 0u);
    QCOMPARE(fixture.shape->getPenColor(), QColor(Qt::green));
}

void TestJson::aMissingFirstPointIsNotAskedFor()
{
    ShapeFixture fixture(svgText(QStringLiteral("0 0 10 10"), QString()));
    fixture.load();
    QJsonObject object{{"SVG_ControlCount", 2}};
    fixture.shape->loadJson(object);
    QVERIFY(!object.contains("SVG_PosX_1"));
    QVERIFY(!object.contains("SVG_PosY_1"));
    // The second has no node to be cloned from; its place is asked for and dropped, as in a stream.
    QVERIFY(object.value("SVG_PosX_2").isNull());
    QVERIFY(object.value("SVG_PosY_2").isNull());
    QVERIFY(!fixture.shape->node(QStringLiteral("control_2")));
}

void TestJson::coloursMayBeNamed_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QColor>("color");
    QTest::newRow("with alpha") << "#80ff0000" << QColor(255, 0, 0, 128);
    QTest::newRow("without") << "#00ff00" << QColor(0, 255, 0);
    QTest::newRow("short") << "#f00" << QColor(255, 0, 0);
    QTest::newRow("SVG name") << "navy" << QColor(0, 0, 128);
    QTest::newRow("empty") << "" << QColor();
    QTest::newRow("too short") << "#ff" << QColor();
}

void TestJson::coloursMayBeNamed()
{
    QFETCH(QString, text);
    ShapeFixture fixture(twoPointTemplate());
    fixture.load();
    fixture.shape->setPenColor(Qt::yellow, false);
    QJsonObject object{{"SVG_PropPenEnabled", true}, {"SVG_PenColor", text}};
    fixture.shape->loadJson(object);
    QTEST(fixture.shape->getPenColor(), "color");
}

void TestJson::aMissingPenColourUnderItsFlagIsInvalid()
{
    ShapeFixture fixture(twoPointTemplate());
    fixture.load();
    QJsonObject object{{"SVG_PropPenEnabled", true}};
    fixture.shape->loadJson(object);
    QVERIFY(!fixture.shape->getPenColor().isValid());
    QVERIFY(object.contains("SVG_PenColor"));
    QVERIFY(object.value("SVG_PenColor").isNull());
}

void TestJson::flagsOfTheObjectDoNotChangeTheShapes()
{
    ShapeFixture fixture(twoPointTemplate());
    fixture.load();
    QJsonObject object{{"SVG_PropFillEnabled", true},     {"SVG_PropPenEnabled", false},
                       {"SVG_PropPenStyleEnabled", true}, {"SVG_PenStyle", 2},
                       {"SVG_PropPenWidthEnabled", true}, {"SVG_PenWidth", 6}};
    fixture.shape->loadJson(object);
    QVERIFY(!fixture.shape->propFillEnabled);
    QVERIFY(fixture.shape->propPenEnabled);
    QVERIFY(!fixture.shape->propPenStyleEnabled);
    QVERIFY(!fixture.shape->propPenWidthEnabled);
    QCOMPARE(fixture.shape->getPenStyle(), Qt::DashLine);
    QCOMPARE(fixture.shape->getPenWidth(), 6);
}

void TestJson::nothingIsRecorded()
{
    ShapeFixture fixture(twoPointTemplate());
    fixture.load();
    fixture.object.fillProp->setFillEnable(true);
    fixture.object.fillProp->setFillColor(QColor(10, 20, 30));
    QJsonObject object{{"SVG_ControlCount", 1},
                       {"SVG_PosX_1", 1.0},
                       {"SVG_PropPenEnabled", true},
                       {"SVG_PropPenStyleEnabled", true},
                       {"SVG_PropPenWidthEnabled", true}};
    fixture.shape->loadJson(object);
    QCOMPARE(recording::count("document", "setAllFillBrush"), 1);
    QCOMPARE(recording::count("RecordAction"), 0);
    QCOMPARE(recording::count("push"), 0);
}

void TestJson::aRawShapeWithoutViewBoxSavesWhatItCovers()
{
    ShapeFixture fixture(svgText(QString(), QStringLiteral("<rect x='3' y='4' width='5' height='6'/>")));
    fixture.shape->rawControlPoints = true;
    fixture.load();
    QJsonObject object;
    fixture.shape->saveJson(object);
    QCOMPARE(fixture.shape->document->viewBox(), QRectF(3, 4, 5, 6));
    fixture.shape->document->setViewBox(QRectF(0, 0, 9, 9));
    fixture.shape->loadJson(object);
    QCOMPARE(fixture.shape->document->viewBox(), QRectF(3, 4, 5, 6));
}

void TestJson::aMissingPointIsNotSaved()
{
    ShapeFixture fixture(svgText(QStringLiteral("0 0 100 50"), controlPointsText(3)));
    fixture.load();
    fixture.shape->removeNode(fixture.shape->point(2));
    QJsonObject object;
    fixture.shape->saveJson(object);
    QCOMPARE(object.value("SVG_ControlCount").toInt(), 3);
    QVERIFY(!object.contains("SVG_PosX_2"));
    QVERIFY(!object.contains("SVG_PosY_2"));
    QCOMPARE(object.value("SVG_PosX_3").toDouble(), 30.0);
}

void TestJson::pointsAreCountedFromOne()
{
    ShapeFixture fixture(
        svgText(QStringLiteral("0 0 100 50"),
                QStringLiteral("<rect id='control_0' x='1' y='2' width='8' height='8'/>") + controlPointsText(1)));
    fixture.load();
    QJsonObject object;
    fixture.shape->saveJson(object);
    QCOMPARE(object.value("SVG_ControlCount").toInt(), 1);
    QVERIFY(!object.contains("SVG_PosX_0"));
    QVERIFY(!object.contains("SVG_PosY_0"));
    QCOMPARE(object.value("SVG_PosX_1").toDouble(), 10.0);
}

void TestJson::aMissingPenStyleIsNoLine()
{
    ShapeFixture fixture(twoPointTemplate());
    fixture.load();
    QJsonObject object{{"SVG_PropPenStyleEnabled", true}};
    fixture.shape->loadJson(object);
    QCOMPARE(fixture.shape->getPenStyle(), Qt::NoPen);
    QVERIFY(object.contains("SVG_PenStyle"));
    QVERIFY(object.value("SVG_PenStyle").isNull());
}

QTEST_MAIN(TestJson)
#include "test_json.moc"

// The style of a shape as a map.

#include <support/shapefixture.h>

#include <QtTest/QtTest>

using namespace support;

class TestAttributeMap : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void theMapHoldsTheFourValuesWhateverTheFlags();
    void aMapGivenBackSetsNoPen();
    void theSameStyleChangesNothing();
    void aColourBecomesASolidFill();
    void anEmptyMapChangesNothing();
    void severalChangesRepaintOnce();
    void eachChangeRepaints_data();
    void eachChangeRepaints();
    void nothingIsRecorded();
    void valuesOfTheWrongTypeConvert();
    void theMapOfAnUnfilledShapeGivenBackChangesItsFill();
    void theMapOfASolidlyFilledShapeGivenBackChangesNothing();
    void theColourOfTheSolidFillChangesNothing();
    void theColourOfAPatternRepaintsWithoutChange();
    void theFillGoesOutAsBrushAndComesInAsColour();

private:
    using Map = QMap<QString, QVariant>;
    std::unique_ptr<ShapeFixture> fixture;
};

void TestAttributeMap::init()
{
    fixture = std::make_unique<ShapeFixture>(twoPointTemplate());
    fixture->load();
    fixture->shape->setPenColor(Qt::red, false);
    fixture->shape->setPenStyle(Qt::DashLine, false);
    fixture->shape->setPenWidth(3, false);
    fixture->shape->updateBrush(QBrush(Qt::blue, Qt::Dense1Pattern));
    recording::clear();
}

void TestAttributeMap::cleanup()
{
    fixture.reset();
}

void TestAttributeMap::theMapHoldsTheFourValuesWhateverTheFlags()
{
    fixture->shape->propPenEnabled = false; // the others are off as they are
    Map map{{"other", 1}};
    QVERIFY(fixture->shape->getAllAttributes(map));
    QCOMPARE(map.size(), 5);
    QCOMPARE(map["pen_width"], QVariant(3));
    QCOMPARE(map["pen_color"].value<QColor>(), QColor(Qt::red));
    QCOMPARE(map["pen_style"], QVariant(int(Qt::DashLine)));
    QCOMPARE(map["fill_color"].value<QBrush>(), QBrush(Qt::blue, Qt::Dense1Pattern));
    QCOMPARE(map["pen_width"].userType(), int(QMetaType::Int));
    QCOMPARE(map["pen_color"].userType(), int(QMetaType::QColor));
    QCOMPARE(map["pen_style"].userType(), int(QMetaType::Int));
    QCOMPARE(map["fill_color"].userType(), int(QMetaType::QBrush));
}

void TestAttributeMap::aMapGivenBackSetsNoPen()
{
    Map map;
    fixture->shape->getAllAttributes(map);
    recording::clear();
    fixture->shape->setAllAttributes(map, true);
    QCOMPARE(recording::count("setPenWidth") + recording::count("setPenColor") + recording::count("setPenStyle"),
             0);
}

void TestAttributeMap::theSameStyleChangesNothing()
{
    QVERIFY(!fixture->shape->setAllAttributes(Map{{"pen_style", int(Qt::DashLine)}}, true));
    QCOMPARE(recording::count("OnQPainterDraw"), 0);
}

void TestAttributeMap::aColourBecomesASolidFill()
{
    QVERIFY(fixture->shape->setAllAttributes(Map{{"fill_color", QColor(Qt::green)}}, false));
    QCOMPARE(fixture->shape->document->getAllFillBrush(), QBrush(QColor(Qt::green)));
    QCOMPARE(recording::calls("shape", "setFillBrush").constFirst().arguments,
             QVariantList({QBrush(QColor(Qt::green)), false, true}));
}

void TestAttributeMap::anEmptyMapChangesNothing()
{
    QVERIFY(!fixture->shape->setAllAttributes(Map(), true));
    QCOMPARE(recording::count("OnQPainterDraw"), 0);
}

void TestAttributeMap::severalChangesRepaintOnce()
{
    QVERIFY(fixture->shape->setAllAttributes(Map{{"pen_width", 5}, {"pen_color", QColor(Qt::green)}}, false));
    QCOMPARE(fixture->shape->getPenWidth(), 5);
    QCOMPARE(fixture->shape->getPenColor(), QColor(Qt::green));
    QCOMPARE(recording::calls("object", "notifyObjPropertyChanged").size(), 1);
}

void TestAttributeMap::nothingIsRecorded()
{
    fixture->shape->setAllAttributes(
        Map{{"pen_width", 5}, {"pen_color", QColor(Qt::green)}, {"pen_style", 1}, {"fill_color", QColor(Qt::red)}},
        true);
    QCOMPARE(recording::count("RecordAction"), 0);
    QCOMPARE(recording::count("push"), 0);
}

void TestAttributeMap::valuesOfTheWrongTypeConvert()
{
    fixture->shape->setAllAttributes(Map{{"pen_width", "7"}, {"pen_style", "no number"}, {"pen_color", 1.5}},
                                     false);
    QCOMPARE(fixture->shape->getPenWidth(), 7);
    QCOMPARE(fixture->shape->getPenStyle(), Qt::NoPen);
    QVERIFY(!fixture->shape->getPenColor().isValid());
}

void TestAttributeMap::theMapOfAnUnfilledShapeGivenBackChangesItsFill()
{
    fixture->object.onSetFillProp = [](CPageBgProp *, bool) {};
    fixture->shape->updateBrush(QBrush());
    Map map;
    fixture->shape->getAllAttributes(map);
    QVERIFY(fixture->shape->setAllAttributes(map, false));
    QCOMPARE(fixture->shape->getFillBrush(), QBrush(QColor())); // no brush is no colour
}

void TestAttributeMap::theMapOfASolidlyFilledShapeGivenBackChangesNothing()
{
    fixture->shape->updateBrush(QBrush(Qt::blue));
    Map map;
    fixture->shape->getAllAttributes(map);
    QVERIFY(!fixture->shape->setAllAttributes(map, false));
}

void TestAttributeMap::theColourOfTheSolidFillChangesNothing()
{
    fixture->shape->updateBrush(QBrush(Qt::blue));
    recording::clear();
    QVERIFY(!fixture->shape->setAllAttributes(Map{{"fill_color", QColor(Qt::blue)}}, false));
    QCOMPARE(recording::count("OnQPainterDraw"), 0);
}

void TestAttributeMap::theColourOfAPatternRepaintsWithoutChange()
{
    QVERIFY(fixture->shape->setAllAttributes(Map{{"fill_color", QColor(Qt::blue)}}, false));
    QCOMPARE(fixture->shape->getFillBrush(), QBrush(Qt::blue, Qt::Dense1Pattern));
    QCOMPARE(recording::calls("object", "notifyObjPropertyChanged").size(), 1);
}

// Deliberate: a brush goes out, and only its colour can come back.
void TestAttributeMap::theFillGoesOutAsBrushAndComesInAsColour()
{
    fixture->object.onSetFillProp = [](CPageBgProp *, bool) {};
    Map map;
    fixture->shape->getAllAttributes(map);
    QCOMPARE(map["fill_color"].userType(), int(QMetaType::QBrush));
    QVERIFY(fixture->shape->setAllAttributes(Map{{"fill_color", QBrush(Qt::green, Qt::CrossPattern)}}, false));
    QVERIFY(!fixture->shape->getFillBrush().color().isValid()); // a pattern converts to no colour
    QVERIFY(fixture->shape->setAllAttributes(Map{{"fill_color", QBrush(Qt::green)}}, false));
    QCOMPARE(fixture->shape->getFillBrush(), QBrush(Qt::green));
    QVERIFY(fixture->shape->setAllAttributes(Map{{"fill_color", "red"}}, false));
    QCOMPARE(fixture->shape->getFillBrush(), QBrush(Qt::red));
}

void TestAttributeMap::eachChangeRepaints_data()
{
    QTest::addColumn<QString>("key");
    QTest::addColumn<QVariant>("value");
    QTest::newRow("width") << "pen_width" << QVariant(5);
    QTest::newRow("colour") << "pen_color" << QVariant(QColor(Qt::green));
    QTest::newRow("style") << "pen_style" << QVariant(int(Qt::DotLine));
    QTest::newRow("fill") << "fill_color" << QVariant(QColor(Qt::green));
}

void TestAttributeMap::eachChangeRepaints()
{
    QFETCH(QString, key);
    QFETCH(QVariant, value);
    QVERIFY(fixture->shape->setAllAttributes(Map{{key, value}}, false));
    QCOMPARE(recording::calls("object", "notifyObjPropertyChanged").size(), 1);
}

QTEST_MAIN(TestAttributeMap)
#include "test_attributemap.moc"

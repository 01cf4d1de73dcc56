#include <panels/properties/commonproperties.h>

#include <QtTest/QtTest>

using pagehost::AttributeDescription;

/// Properties of several objects in the panel.
class TestCommonProperties : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void commonPropertiesAreThoseOfAll();
    void fieldsShowTheDecimalsThatAStepNeeds();
};

void TestCommonProperties::commonPropertiesAreThoseOfAll()
{
    AttributeDescription width;
    width.kind = AttributeDescription::WholeRange;
    width.id = 1;
    width.value = 3;
    width.range = {1, 8, 1};
    AttributeDescription wide = width;
    wide.value = 4;
    wide.range = {2, 20, 1};
    AttributeDescription text;
    text.id = 2;
    AttributeDescription number = text;
    number.kind = AttributeDescription::Whole;
    const QVector<board::CommonProperty> common = board::commonProperties({{width, text}, {number, wide}});
    QCOMPARE(common.size(), 1);
    QCOMPARE(common.first().property.id, 1);
    QVERIFY(common.first().isMixed);
    QCOMPARE(common.first().range, (board::NumberRange{2, 8, 1, 0}));
}

void TestCommonProperties::fieldsShowTheDecimalsThatAStepNeeds()
{
    AttributeDescription property;
    property.kind = AttributeDescription::WholeRange;
    property.range = {3, 12, 1};
    QCOMPARE(board::numbersOf(property), (board::NumberRange{3, 12, 1, 0}));
    property.kind = AttributeDescription::RealRange;
    property.range = {0.5, 2, 0.125};
    QCOMPARE(board::numbersOf(property), (board::NumberRange{0.5, 2, 0.125, 3}));
    property.range.step = 0;
    QCOMPARE(board::numbersOf(property), (board::NumberRange{0.5, 2, 0, 2}));
    property.kind = AttributeDescription::Real;
    QCOMPARE(board::numbersOf(property).decimals, 2);
    property.kind = AttributeDescription::Whole;
    QCOMPARE(board::numbersOf(property), board::NumberRange());
}

QTEST_MAIN(TestCommonProperties)
#include "test_commonproperties.moc"

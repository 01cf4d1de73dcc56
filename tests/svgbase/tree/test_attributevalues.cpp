#include "tree/attributes.h"

#include <QtTest>

using namespace Svg;

namespace {

AttributeValue held(const TypedValue &value)
{
    return AttributeValue(value);
}

/// The same value as the text that it is read from anew.
AttributeValue asText(const AttributeValue &value)
{
    return value.text();
}

PathValue somePath()
{
    return {"MLZQCAA",
            {1, 2, 3, 4, 5, 0, 6, 7, 0.1, 0.2, 0.3, 0.4, 8, 9, 10, 20, 30, 1, 0, -5, 6, 0, 1, 0, 0, 1, 9, 9}};
}

} // namespace

class TestAttributeValues : public QObject
{
    Q_OBJECT

private slots:
    void textsAreWhatTheirGrammarsRead();
    void valuesAreTheSameAsTheirTexts();
    void pathsAreTheSameAsTheirTexts();
    void pathsBeyondTheRangeEndThere();
    void listsOfPointsKeepTheirLimits();
    void viewBoxesKeepTheirLimits();
    void aValueOfAnotherKindIsReadAsText();
    void valuesAreEqualWhenTheirTextsAre();
    void aNullTextIsNoValue();
};

void TestAttributeValues::textsAreWhatTheirGrammarsRead()
{
    QCOMPARE(AttributeValue(0.1).text(), QString("0.1"));
    QCOMPARE(AttributeValue(-0.0).text(), QString("0"));
    const QVector<Length> lengths{{1.5}, {20, Unit::Percent}, {3, Unit::Em}, {4, Unit::ViewMax}};
    QCOMPARE(held(lengths).text(), QString("1.5 20% 3em 4vmax"));
    QCOMPARE(held(QColor(1, 2, 255)).text(), QString("#0102ff"));
    QCOMPARE(held(QColor(1, 2, 255, 16)).text(), QString("#0102ff10"));
    QCOMPARE(held(PathValue{"MLZ", {1, 2, 3.5, 4}}).text(), QString("M 1 2L 3.5 4Z"));
    const TransformList list{{TransformFunction::Translate, 1, {5}}, {TransformFunction::Rotate, 3, {90, 1, 2}}};
    QCOMPARE(held(list).text(), QString("translate(5) rotate(90 1 2)"));
}

void TestAttributeValues::valuesAreTheSameAsTheirTexts()
{
    const AttributeValue number(12.25);
    QCOMPARE(lengthOf(number)->value, 12.25);
    QVERIFY(*lengthOf(number) == *lengthOf(asText(number)));
    QCOMPARE(numberOf(number), numberOf(asText(number)));
    QCOMPARE(shareOf(number), shareOf(asText(number)));
    QCOMPARE(*shareOf(number), 1.0);
    QCOMPARE(numbersOf(number), numbersOf(asText(number)));
    const AttributeValue percent = held(QVector<Length>{{25, Unit::Percent}});
    QCOMPARE(lengthOf(percent)->unit, Unit::Percent);
    QCOMPARE(*shareOf(percent), 0.25);
    QVERIFY(!numberOf(percent));
    QVERIFY(!numbersOf(percent));
    const AttributeValue box = held(QVector<Length>{{1}, {2}, {3}, {4}});
    QCOMPARE(*viewBoxOf(box), QRectF(1, 2, 3, 4));
    QCOMPARE(pointsOf(box).points, QPolygonF() << QPointF(1, 2) << QPointF(3, 4));
    QVERIFY(!lengthOf(box));
    const AttributeValue turned = held(TransformList{{TransformFunction::Translate, 2, {0.1, 0.7}},
                                                     {TransformFunction::Rotate, 3, {33, 1, 2}},
                                                     {TransformFunction::Scale, 1, {3}},
                                                     {TransformFunction::SkewX, 1, {20}},
                                                     {TransformFunction::SkewY, 1, {10}},
                                                     {TransformFunction::Matrix, 6, {1, 2, 3, 4, 5, 6}}});
    // Exactly, not about: QTransform's operator compares with a tolerance.
    const QTransform a = *transformOf(turned);
    const QTransform b = *transformOf(asText(turned));
    QVERIFY(a.m11() == b.m11() && a.m12() == b.m12() && a.m21() == b.m21() && a.m22() == b.m22() &&
            a.dx() == b.dx() && a.dy() == b.dy());
    QVERIFY(!transformOf(held(TransformList{{TransformFunction::Rotate, 2, {1, 2}}})));
}

void TestAttributeValues::pathsAreTheSameAsTheirTexts()
{
    QVector<PathSegment> segments;
    QVector<PathSegment> segmentsOfText;
    const AttributeValue value = held(somePath());
    const PathData data = pathDataOf(value, &segments);
    const PathData read = pathDataOf(asText(value), &segmentsOfText);
    QCOMPARE(read.errorAt, qsizetype(-1));
    QCOMPARE(data.path, read.path);
    QCOMPARE(data.openEnds, read.openEnds);
    QCOMPARE(segments.size(), 7);
    QCOMPARE(segments.size(), segmentsOfText.size());
    for (int i = 0; i < segments.size(); ++i) {
        QCOMPARE(segments.at(i).kind, segmentsOfText.at(i).kind);
        QCOMPARE(segments.at(i).from, segmentsOfText.at(i).from);
        QCOMPARE(segments.at(i).to, segmentsOfText.at(i).to);
        QCOMPARE(segments.at(i).lastControl, segmentsOfText.at(i).lastControl);
    }
}

void TestAttributeValues::pathsBeyondTheRangeEndThere()
{
    const AttributeValue value = held(PathValue{"MLL", {0, 0, 1, 1, 1e30, 2}});
    QCOMPARE(pathDataOf(value).path.elementCount(), 2);
    QCOMPARE(pathDataOf(value).path, pathDataOf(asText(value)).path);
}

void TestAttributeValues::listsOfPointsKeepTheirLimits()
{
    for (const QVector<Length> &list : {QVector<Length>{{1}, {2}, {3}}, QVector<Length>{{1}, {2}, {1e30}, {4}}}) {
        const Points points = pointsOf(held(list));
        QCOMPARE(points.points, QPolygonF() << QPointF(1, 2));
        QVERIFY(!points.complete);
        QCOMPARE(pointsOf(asText(held(list))).points, points.points);
        QVERIFY(!pointsOf(asText(held(list))).complete);
    }
}

void TestAttributeValues::viewBoxesKeepTheirLimits()
{
    QVERIFY(!viewBoxOf(held(QVector<Length>{{1}, {2}, {3}})));
    QVERIFY(!viewBoxOf(held(QVector<Length>{{1}, {2}, {-3}, {4}})));
    QVERIFY(!viewBoxOf(held(QVector<Length>{{1}, {2}, {3}, {1e30}})));
}

void TestAttributeValues::aValueOfAnotherKindIsReadAsText()
{
    QVERIFY(!lengthOf(held(QColor(Qt::red))));
    QVERIFY(!transformOf(AttributeValue(5.0)));
    QCOMPARE(pathDataOf(AttributeValue(5.0)).errorAt, qsizetype(0));
    QCOMPARE(lengthOf(QString("3em"))->unit, Unit::Em);
}

void TestAttributeValues::valuesAreEqualWhenTheirTextsAre()
{
    QVERIFY(AttributeValue(5.0) == AttributeValue(QString("5")));
    QVERIFY(AttributeValue(5.0) != AttributeValue(QString("5.0")));
    QVERIFY(AttributeValue(5.0) == held(QVector<Length>{{5}}));
    QVERIFY(AttributeValue(5.0) != AttributeValue(5.5));
    QVERIFY(held(somePath()) == held(somePath()));
    QVERIFY(held(somePath()) != held(PathValue{"M", {1, 2}}));
    QVERIFY(held(QColor(Qt::red)) == AttributeValue(QString("#ff0000")));
}

void TestAttributeValues::aNullTextIsNoValue()
{
    Attributes attributes;
    attributes.set(AttributeId::X, AttributeValue(5.0));
    QCOMPARE(attributes.value(AttributeId::X), QString("5"));
    QVERIFY(attributes.held(AttributeId::Y).isNull());
    QVERIFY(!attributes.held(AttributeId::X).isEmpty());
    attributes.set(AttributeId::X, QString());
    QVERIFY(!attributes.contains(AttributeId::X));
}

QTEST_APPLESS_MAIN(TestAttributeValues)

#include "test_attributevalues.moc"

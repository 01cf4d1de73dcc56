#include "history/outlinebuilder.h"

#include <support/shapefixture.h>

#include <QtTest/QtTest>

#include <limits>
#include <memory>

using support::ShapeFixture;
using support::svgText;

Q_DECLARE_METATYPE(QPainterPath)

/// The contribution of each item of a template to the outline.
class TestItems : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void itemsAddTheirForm_data();
    void itemsAddTheirForm();
    void itemsAreAddedInOrder();
    void groupsAddTheirItemsInPlace();
    void hiddenItemsAddNothing();
    void hiddenGroupsAddNothing();
    void hiddenItemsOfGroupsAddNothing();
    void controlPointsAreItemsLikeOthers();
    void aLineIsABandWithRoundEnds();
    void aLineBandFollowsItsStroke_data();
    void aLineBandFollowsItsStroke();
    void theOutlineWindsAroundOverlaps();
    void addingToNothingDoesNothing();
    void nothingIsRemovedFromThePath();
    void nestedGroupsDoNotRecurse();
    void strokesHaveMitredCorners();
    void strokesOfAnyWidthEnd_data();
    void strokesOfAnyWidthEnd();
};

namespace {

/// The outline of a template's content, as the shape itself builds it.
QPainterPath outlineOf(const QString &content)
{
    ShapeFixture fixture(svgText("0 0 100 100", content));
    fixture.shape->keepOutlineRegion = true;
    fixture.load();
    fixture.shape->updateOutlineRegion();
    return *fixture.shape->outlineRegion;
}

QPainterPath winding()
{
    QPainterPath path;
    path.setFillRule(Qt::WindingFill);
    return path;
}

QPainterPath rects(const QVector<QRectF> &list)
{
    QPainterPath path = winding();
    for (const QRectF &rect : list)
        path.addRect(rect);
    return path;
}

QPainterPath ellipse(const QRectF &rect)
{
    QPainterPath path = winding();
    path.addEllipse(rect);
    return path;
}

QPainterPath polygon(const QPolygonF &points)
{
    QPainterPath path = winding();
    path.addPolygon(points);
    return path;
}

QPainterPath triangle()
{
    QPainterPath path = winding();
    path.moveTo(1, 2);
    path.lineTo(30, 2);
    path.lineTo(1, 40);
    path.closeSubpath();
    return path;
}

} // namespace

void TestItems::itemsAddTheirForm_data()
{
    QTest::addColumn<QString>("content");
    QTest::addColumn<QPainterPath>("outline");
    const QPainterPath box = rects({{1, 2, 30, 40}});
    QTest::newRow("nothing") << "" << winding();
    QTest::newRow("rectangle") << "<rect x='1' y='2' width='30' height='40'/>" << box;
    QTest::newRow("circle") << "<circle cx='20' cy='30' r='10'/>" << ellipse({10, 20, 20, 20});
    QTest::newRow("ellipse") << "<ellipse cx='20' cy='30' rx='10' ry='5'/>" << ellipse({10, 25, 20, 10});
    QTest::newRow("path") << "<path d='M1,2 H30 L1,40 Z'/>" << triangle();
    QTest::newRow("polygon") << "<polygon points='1,2 30,2 1,40'/>"
                             << polygon(QVector<QPointF>{{1, 2}, {30, 2}, {1, 40}});
    QTest::newRow("polyline") << "<polyline points='1,2 31,2 1,42'/>" << box;
    QTest::newRow("text") << "<text x='1' y='2' width='30' height='40'/>" << box;
    QTest::newRow("image") << "<image x='1' y='2' width='30' height='40'/>" << box;
    QTest::newRow("use") << "<use x='1' y='2' width='30' height='40'/>" << box;
}

void TestItems::itemsAddTheirForm()
{
    QFETCH(const QString, content);
    QFETCH(const QPainterPath, outline);
    QCOMPARE(outlineOf(content), outline);
}

void TestItems::itemsAreAddedInOrder()
{
    QCOMPARE(outlineOf("<rect x='5' y='5' width='1' height='2'/><rect x='1' y='1' width='3' height='4'/>"),
             rects({{5, 5, 1, 2}, {1, 1, 3, 4}}));
}

void TestItems::groupsAddTheirItemsInPlace()
{
    QCOMPARE(outlineOf("<rect x='1' y='1' width='1' height='1'/>"
                       "<g><rect x='2' y='2' width='1' height='1'/>"
                       "<g><rect x='3' y='3' width='1' height='1'/></g>"
                       "<rect x='4' y='4' width='1' height='1'/></g>"
                       "<rect x='5' y='5' width='1' height='1'/>"),
             rects({{1, 1, 1, 1}, {2, 2, 1, 1}, {3, 3, 1, 1}, {4, 4, 1, 1}, {5, 5, 1, 1}}));
}

void TestItems::hiddenItemsAddNothing()
{
    QCOMPARE(outlineOf("<rect x='1' y='1' width='1' height='1' display='none'/>"
                       "<rect x='2' y='2' width='1' height='1' visibility='hidden'/>"
                       "<rect x='3' y='3' width='1' height='1'/>"),
             rects({{3, 3, 1, 1}}));
}

void TestItems::hiddenGroupsAddNothing()
{
    QCOMPARE(outlineOf("<g display='none'><rect x='1' y='1' width='1' height='1'/>"
                       "<g><rect x='2' y='2' width='1' height='1'/></g></g>"
                       "<rect x='3' y='3' width='1' height='1'/>"),
             rects({{3, 3, 1, 1}}));
}

void TestItems::hiddenItemsOfGroupsAddNothing()
{
    QCOMPARE(outlineOf("<g><rect x='1' y='1' width='1' height='1' display='none'/>"
                       "<rect x='2' y='2' width='1' height='1'/></g>"),
             rects({{2, 2, 1, 1}}));
}

void TestItems::controlPointsAreItemsLikeOthers()
{
    QPainterPath expected = rects({{10, 20, 8, 8}});
    expected.addEllipse(QRectF(46, 46, 8, 8));
    QCOMPARE(outlineOf("<rect id='control_1' x='10' y='20' width='8' height='8'/>"
                       "<ellipse id='control_2' cx='50' cy='50' rx='4' ry='4'/>"),
             expected);
}

void TestItems::aLineIsABandWithRoundEnds()
{
    // A stroke of 2, two units wider: 4 wide, 2 to each side and beyond each end.
    const QPainterPath band = outlineOf("<line x1='10' y1='20' x2='30' y2='20' stroke-width='2'/>");
    QVERIFY(band.contains(QPointF(20, 21.9)));
    QVERIFY(band.contains(QPointF(20, 18.1)));
    QVERIFY(!band.contains(QPointF(20, 22.1)));
    QVERIFY(!band.contains(QPointF(20, 17.9)));
    QVERIFY(band.contains(QPointF(8.1, 20)));
    QVERIFY(band.contains(QPointF(31.9, 20)));
    QVERIFY(!band.contains(QPointF(7.9, 20)));
    QVERIFY(!band.contains(QPointF(8.3, 21.7))); // the corner of a square end
    QVERIFY(!band.contains(QPointF(31.7, 18.3)));
    QCOMPARE(band.boundingRect().height(), 4.0);
}

void TestItems::aLineBandFollowsItsStroke_data()
{
    QTest::addColumn<QString>("stroke");
    QTest::addColumn<double>("height");
    QTest::newRow("none") << "stroke='none'" << 2.0;
    QTest::newRow("not said") << "" << 3.0;
    QTest::newRow("8") << "stroke-width='8'" << 10.0;
}

void TestItems::aLineBandFollowsItsStroke()
{
    QFETCH(const QString, stroke);
    QFETCH(const double, height);
    const QString line = QStringLiteral("<line x1='10' y1='20' x2='30' y2='20' %1/>").arg(stroke);
    QCOMPARE(outlineOf(line).boundingRect().height(), height);
}

void TestItems::theOutlineWindsAroundOverlaps()
{
    const QPainterPath path = outlineOf("<rect x='0' y='0' width='20' height='20'/>"
                                        "<rect x='10' y='10' width='20' height='20'/>");
    QCOMPARE(path.fillRule(), Qt::WindingFill);
    QVERIFY(path.contains(QPointF(15, 15)));
}

void TestItems::addingToNothingDoesNothing()
{
    ShapeFixture fixture(svgText("0 0 9 9", "<rect x='1' y='1' width='1' height='1'/>"));
    fixture.load();
    fixture.shape->addAllItemsRegion(nullptr);
    fixture.shape->addAllItemsRegion(fixture.shape->document, nullptr);
    QPainterPath path;
    fixture.shape->addAllItemsRegion(nullptr, &path);
    QCOMPARE(path, QPainterPath());
}

void TestItems::nothingIsRemovedFromThePath()
{
    ShapeFixture fixture(svgText("0 0 9 9", "<rect x='1' y='1' width='1' height='1'/>"));
    fixture.load();
    QPainterPath path;
    path.addRect(5, 5, 5, 5);
    fixture.shape->addAllItemsRegion(&path);
    QCOMPARE(path, rects({{5, 5, 5, 5}, {1, 1, 1, 1}}));
}

void TestItems::nestedGroupsDoNotRecurse()
{
    const int depth = 2000;
    const QString open = QStringLiteral("<g>").repeated(depth);
    const QString close = QStringLiteral("</g>").repeated(depth);
    QCOMPARE(outlineOf(open + "<rect x='1' y='1' width='1' height='1'/>" + close), rects({{1, 1, 1, 1}}));
}

void TestItems::strokesHaveMitredCorners()
{
    QPainterPath box;
    box.addRect(0, 0, 100, 50);
    const QPainterPath stroke = OutlineBuilder::stroked(box, 6);
    QVERIFY(stroke.contains(QPointF(-2.9, -2.9)));
    QVERIFY(!stroke.contains(QPointF(-3.1, 25)));
    QCOMPARE(stroke.boundingRect(), QRectF(-3, -3, 106, 56));
}

void TestItems::strokesOfAnyWidthEnd_data()
{
    QTest::addColumn<double>("width");
    QTest::addColumn<double>("height");
    // A stroker takes a width that is none as 1.
    QTest::newRow("negative") << -5.0 << 1.0;
    QTest::newRow("no number") << std::numeric_limits<double>::quiet_NaN() << 1.0;
    QTest::newRow("endless") << std::numeric_limits<double>::infinity() << 100000.0;
    QTest::newRow("enormous") << 1e300 << 100000.0;
}

void TestItems::strokesOfAnyWidthEnd()
{
    QFETCH(const double, width);
    QFETCH(const double, height);
    QPainterPath line;
    line.moveTo(0, 0);
    line.lineTo(10, 0);
    const QRectF bounds = OutlineBuilder::stroked(line, width).boundingRect();
    QVERIFY(qAbs(bounds.height() - height) < 1e-3 * height);
}

QTEST_MAIN(TestItems)

#include "test_outlineitems.moc"

#include "svgbase/svgdrawing.h"

#include <QtTest>

#include <cmath>

namespace {

QRectF boundsOf(const QString &element)
{
    const DocumentPointer document = loadContent(element);
    return document && document->namedNode("n") ? document->namedNode("n")->boundingRect() : QRectF(-1, -1, -1, -1);
}

bool isPainted(const QImage &image, int x, int y)
{
    return image.pixelColor(x, y).alpha() == 255;
}

} // namespace

class TestShapes : public QObject
{
    Q_OBJECT

private slots:
    void bounds_data();
    void bounds();
    void rectangleIsFilled();
    void roundedCornersAreCut();
    void oneRadiusStandsForBoth();
    void radiiAreHeldToHalfTheSides();
    void circleIsFilled();
    void lineHasItsEnds();
    void pathIsInDocumentUnits();
    void polygonIsInDocumentUnits();
    void geometryOfOtherTypesIsNull();
    void polylineIsOpenPolygonIsClosed();
    void pathDrawsUpToItsFirstError();
    void transformsNestFromInsideOut();
    void useDrawsInItsPlaceWithItsStyle();
    void useOfAGroupDrawsAllOfIt();
    void symbolFitsItsViewBox();
    void definitionsAreNotDrawnWhereTheyStand();
    void switchDrawsItsFirstChild();
    void nestedSvgFitsItsViewBox();
    void useReferringToItselfDrawsNothing();
    void groupBoundsAreThoseOfItsVisibleChildren();
};

void TestShapes::bounds_data()
{
    QTest::addColumn<QString>("element");
    QTest::addColumn<QRectF>("expected");
    QTest::newRow("rect") << "<rect id='n' x='1' y='2' width='3' height='4' stroke='red' stroke-width='9'/>"
                          << QRectF(1, 2, 3, 4);
    QTest::newRow("rect without size") << "<rect id='n' x='1' y='2'/>" << QRectF(1, 2, 0, 0);
    QTest::newRow("rect of negative width")
        << "<rect id='n' x='1' y='2' width='-3' height='4'/>" << QRectF(1, 2, 0, 4);
    QTest::newRow("rect in units") << "<rect id='n' x='1in' y='10%' width='50%' height='2px'/>"
                                   << QRectF(96, 10, 50, 2);
    QTest::newRow("rect with wrong text") << "<rect id='n' x='wide' width='3' height='4'/>" << QRectF(0, 0, 3, 4);
    QTest::newRow("circle") << "<circle id='n' cx='10' cy='20' r='5'/>" << QRectF(5, 15, 10, 10);
    QTest::newRow("ellipse") << "<ellipse id='n' cx='10' cy='20' rx='5' ry='2'/>" << QRectF(5, 18, 10, 4);
    QTest::newRow("line") << "<line id='n' x1='10' y1='2' x2='5' y2='9'/>" << QRectF(5, 2, 5, 7);
    QTest::newRow("polyline") << "<polyline id='n' points='1,2 5,0 3,9'/>" << QRectF(1, 0, 4, 9);
    QTest::newRow("polygon") << "<polygon id='n' points='1,2 5,0 3,9'/>" << QRectF(1, 0, 4, 9);
    QTest::newRow("path") << "<path id='n' d='M1 2H7V9z'/>" << QRectF(1, 2, 6, 7);
    QTest::newRow("path bounds follow the curve") << "<path id='n' d='M0 0C0 8 8 8 8 0'/>" << QRectF(0, 0, 8, 6);
    QTest::newRow("empty path") << "<path id='n'/>" << QRectF();
    QTest::newRow("image") << "<image id='n' x='1' y='2' width='3' height='4'/>" << QRectF(1, 2, 3, 4);
    QTest::newRow("moved") << "<g transform='translate(10 20)'><rect id='n' width='3' height='4' "
                              "transform='scale(2)'/></g>"
                           << QRectF(10, 20, 6, 8);
    QTest::newRow("turned") << "<rect id='n' width='10' height='20' transform='rotate(90)'/>"
                            << QRectF(-20, 0, 20, 10);
    QTest::newRow("hidden still has bounds")
        << "<rect id='n' width='3' height='4' visibility='hidden'/>" << QRectF(0, 0, 3, 4);
    QTest::newRow("empty group") << "<g id='n'/>" << QRectF();
    QTest::newRow("use")
        << "<defs><rect id='d' width='3' height='4'/></defs><use id='n' xlink:href='#d' x='5' y='6'/>"
        << QRectF(5, 6, 3, 4);
    QTest::newRow("gradient") << "<linearGradient id='n' x1='5'/>" << QRectF();
}

void TestShapes::bounds()
{
    QFETCH(QString, element);
    QFETCH(QRectF, expected);
    const QRectF found = boundsOf(element);
    QVERIFY(qAbs(found.x() - expected.x()) < 1e-9 && qAbs(found.y() - expected.y()) < 1e-9);
    QVERIFY(qAbs(found.width() - expected.width()) < 1e-9 && qAbs(found.height() - expected.height()) < 1e-9);
}

void TestShapes::rectangleIsFilled()
{
    const QImage image = drawnContent("<rect x='20' y='30' width='40' height='10' fill='red'/>");
    QVERIFY(isPainted(image, 20, 30));
    QVERIFY(isPainted(image, 59, 39));
    QCOMPARE(image.pixelColor(19, 30).alpha(), 0);
    QCOMPARE(image.pixelColor(60, 39).alpha(), 0);
    QCOMPARE(image.pixelColor(20, 29).alpha(), 0);
    QCOMPARE(image.pixelColor(20, 40).alpha(), 0);
}

void TestShapes::roundedCornersAreCut()
{
    const QImage image = drawnContent("<rect width='100' height='100' rx='40' ry='20'/>");
    QVERIFY(!isPainted(image, 1, 1));
    QVERIFY(!isPainted(image, 8, 2));
    QVERIFY(isPainted(image, 41, 0));
    QVERIFY(isPainted(image, 0, 21));
}

void TestShapes::oneRadiusStandsForBoth()
{
    const QImage both = drawnContent("<rect width='100' height='100' rx='30' ry='30'/>");
    QCOMPARE(drawnContent("<rect width='100' height='100' rx='30'/>"), both);
    QCOMPARE(drawnContent("<rect width='100' height='100' ry='30'/>"), both);
}

void TestShapes::radiiAreHeldToHalfTheSides()
{
    QCOMPARE(drawnContent("<rect width='100' height='100' rx='500'/>"),
             drawnContent("<rect width='100' height='100' rx='50'/>"));
}

void TestShapes::circleIsFilled()
{
    const QImage image = drawnContent("<circle cx='50' cy='50' r='30'/>");
    QVERIFY(isPainted(image, 50, 50));
    QVERIFY(isPainted(image, 50, 21));
    QVERIFY(!isPainted(image, 50, 18));
    // A corner of the box around it.
    QVERIFY(!isPainted(image, 25, 25));
}

void TestShapes::lineHasItsEnds()
{
    const DocumentPointer document = loadContent("<g transform='translate(1 1)'><line id='n' x1='1' y1='2' x2='3' "
                                                 "y2='4'/><line id='dot' x1='5' y1='5' x2='5' y2='5'/></g>");
    QCOMPARE(document->namedNode("n")->line(), QLineF(2, 3, 4, 5));
    QCOMPARE(document->namedNode("dot")->line().p1(), QPointF(6, 6));
}

void TestShapes::pathIsInDocumentUnits()
{
    const DocumentPointer document = loadContent("<path id='n' transform='scale(2)' d='M1 1L5 1L5 5'/>");
    const QPainterPath path = document->namedNode("n")->path();
    QCOMPARE(path.elementCount(), 3);
    QCOMPARE(QPointF(path.elementAt(0)), QPointF(2, 2));
    QCOMPARE(QPointF(path.elementAt(2)), QPointF(10, 10));
}

void TestShapes::polygonIsInDocumentUnits()
{
    const DocumentPointer document =
        loadContent("<polygon id='n' transform='translate(1 2)' points='1 1 5 1 5 5'/>");
    QCOMPARE(document->namedNode("n")->polygon(), QPolygonF({QPointF(2, 3), QPointF(6, 3), QPointF(6, 7)}));
}

void TestShapes::geometryOfOtherTypesIsNull()
{
    const DocumentPointer document = loadContent("<rect id='n' width='3' height='3'/>");
    QVERIFY(document->namedNode("n")->line().isNull());
    QVERIFY(document->namedNode("n")->path().isEmpty());
    QVERIFY(document->namedNode("n")->polygon().isEmpty());
    QVERIFY(document->path().isEmpty());
}

void TestShapes::polylineIsOpenPolygonIsClosed()
{
    const QString points = "points='20,20 80,20 80,80' fill='none' stroke='red' stroke-width='10'";
    const QPoint onTheClosingSide(50, 50);
    QCOMPARE(drawnContent("<polyline " + points + "/>").pixelColor(onTheClosingSide).alpha(), 0);
    QCOMPARE(drawnContent("<polygon " + points + "/>").pixelColor(onTheClosingSide).alpha(), 255);
}

void TestShapes::pathDrawsUpToItsFirstError()
{
    QCOMPARE(drawnContent("<path d='M10 10H90V90H10z M0 0 nonsense'/>"),
             drawnContent("<path d='M10 10H90V90H10z'/>"));
}

void TestShapes::transformsNestFromInsideOut()
{
    const QRectF found =
        boundsOf("<g transform='scale(2)'><g transform='translate(5 0)'>"
                 "<rect id='n' width='3' height='3' transform='translate(1 1) scale(2)'/></g></g>");
    QCOMPARE(found, QRectF(12, 2, 12, 12));
}

void TestShapes::useDrawsInItsPlaceWithItsStyle()
{
    const QImage image = drawnContent("<defs><rect id='d' width='20' height='20'/></defs>"
                                      "<use href='#d' x='10' y='10' fill='red'/>"
                                      "<use xlink:href='#d' transform='translate(60 60)' x='10' fill='blue'/>");
    QCOMPARE(image.pixelColor(20, 20), QColor(255, 0, 0));
    QCOMPARE(image.pixelColor(75, 65), QColor(0, 0, 255));
    QCOMPARE(image.pixelColor(5, 5).alpha(), 0);
}

void TestShapes::useOfAGroupDrawsAllOfIt()
{
    const QImage image = drawnContent("<g id='d' fill='red'><rect width='10' height='10'/>"
                                      "<g><rect x='20' width='10' height='10'/></g></g><use href='#d' y='50'/>");
    for (const int y : {5, 55}) {
        QVERIFY(isPainted(image, 5, y));
        QVERIFY(isPainted(image, 25, y));
    }
}

void TestShapes::symbolFitsItsViewBox()
{
    const QString symbol = "<symbol id='d' viewBox='0 0 10 10'><rect width='5' height='10'/></symbol>";
    QCOMPARE(drawnContent(symbol), drawnContent(""));
    const QImage image = drawnContent(symbol + "<use href='#d'/>");
    QVERIFY(isPainted(image, 49, 99));
    QVERIFY(!isPainted(image, 51, 50));
}

void TestShapes::definitionsAreNotDrawnWhereTheyStand()
{
    QCOMPARE(drawnContent("<defs><rect width='50' height='50'/></defs>"), drawnContent(""));
}

void TestShapes::switchDrawsItsFirstChild()
{
    QCOMPARE(drawnContent("<switch><title>t</title><rect width='9' height='9'/><circle r='90'/></switch>"),
             drawnContent("<rect width='9' height='9'/>"));
}

void TestShapes::nestedSvgFitsItsViewBox()
{
    const QRectF found = boundsOf("<svg x='10' y='20' width='40' height='40' viewBox='0 0 4 8'>"
                                  "<rect id='n' width='4' height='8'/></svg>");
    // 40 × 40 holds 20 × 40 in its middle.
    QCOMPARE(found, QRectF(20, 20, 20, 40));
    QCOMPARE(boundsOf("<svg x='10' y='20' width='40' height='80'><rect id='n' width='50%' height='50%'/></svg>"),
             QRectF(10, 20, 20, 40));
}

void TestShapes::useReferringToItselfDrawsNothing()
{
    QCOMPARE(drawnContent("<use id='a' href='#a'/>"), drawnContent(""));
    QCOMPARE(drawnContent("<use id='a' href='#b'/><use id='b' href='#a'/>"), drawnContent(""));
    QCOMPARE(drawnContent("<g id='g'><rect width='9' height='9'/><use href='#g' x='50'/></g>"),
             drawnContent("<rect width='9' height='9'/>"));
}

void TestShapes::groupBoundsAreThoseOfItsVisibleChildren()
{
    const DocumentPointer document =
        loadContent("<g id='n'><rect width='3' height='3'/><rect x='10' width='5' height='9'/>"
                    "<rect x='50' width='5' height='9' display='none'/></g>");
    QCOMPARE(document->namedNode("n")->boundingRect(), QRectF(0, 0, 15, 9));
    QCOMPARE(document->transformedBounds(), QRectF(0, 0, 15, 9));
}

QTEST_MAIN(TestShapes)
#include "test_shapes.moc"

#include "svgbase/svgdrawing.h"

#include <QtTest>

namespace {

/// A picture filled by the gradient "g".
QImage filled(const QString &gradient)
{
    return drawnContent("<defs>" + gradient + "</defs><rect width='100' height='100' fill='url(#g)'/>");
}

const QString blackToWhite = QStringLiteral("<stop offset='0'/><stop offset='1' stop-color='white'/>");

/// How white the picture is in a place, 0 to 255.
int whiteness(const QImage &image, int x, int y = 50)
{
    return image.pixelColor(x, y).red();
}

bool isNear(int a, int b)
{
    return qAbs(a - b) <= 4;
}

} // namespace

class TestGradients : public QObject
{
    Q_OBJECT

private slots:
    void linearRunsAcrossTheBounds();
    void linearBetweenItsPoints();
    void userSpaceUnits();
    void percentagesInUserSpaceAreOfTheViewport();
    void gradientTransformTurnsIt();
    void spread_data();
    void spread();
    void radialFromItsCentre();
    void radialWithFocus();
    void radialFollowsWideBounds();
    void stopsOfEqualOffsetMakeAnEdge();
    void offsetsNeverFallBack();
    void stopOpacityAndStyle();
    void fillOpacityFadesTheGradient();
    void oneStopIsAPlainColour();
    void noStopsPaintNothing();
    void pointsThatCoincideGiveTheLastStop();
    void radiusOfZeroGivesTheLastStop();
    void hrefLendsStopsAndAttributes();
    void hrefToItselfEnds();
    void strokeMayBeAGradient();
    void boundsWithoutAreaPaintNothing();
    void changedStopShows();
    void changedHrefTargetShows();
    void removedGradientShows();
};

void TestGradients::linearRunsAcrossTheBounds()
{
    const QImage image = filled("<linearGradient id='g'>" + blackToWhite + "</linearGradient>");
    QVERIFY(isNear(whiteness(image, 0), 0));
    QVERIFY(isNear(whiteness(image, 50), 128));
    QVERIFY(isNear(whiteness(image, 99), 254));
    QCOMPARE(image.pixel(50, 5), image.pixel(50, 95));
}

void TestGradients::linearBetweenItsPoints()
{
    const QImage image =
        filled("<linearGradient id='g' x1='0' x2='0' y1='.2' y2='60%'>" + blackToWhite + "</linearGradient>");
    QCOMPARE(whiteness(image, 50, 10), 0);
    QVERIFY(isNear(whiteness(image, 50, 40), 128));
    QCOMPARE(whiteness(image, 50, 70), 255);
}

void TestGradients::userSpaceUnits()
{
    const QImage image = filled("<linearGradient id='g' gradientUnits='userSpaceOnUse' x1='40' x2='60'>" +
                                blackToWhite + "</linearGradient>");
    QCOMPARE(whiteness(image, 30), 0);
    QVERIFY(isNear(whiteness(image, 50), 134));
    QCOMPARE(whiteness(image, 70), 255);
}

void TestGradients::percentagesInUserSpaceAreOfTheViewport()
{
    const DocumentPointer document =
        loadContent("<linearGradient id='g' gradientUnits='userSpaceOnUse' x1='40%' x2='60%'>" + blackToWhite +
                        "</linearGradient><rect width='200' height='200' fill='url(#g)'/>",
                    "0 0 200 200");
    const QImage image = drawn(*document, QSize(200, 200));
    QCOMPARE(whiteness(image, 70), 0);
    QCOMPARE(whiteness(image, 130), 255);
}

void TestGradients::gradientTransformTurnsIt()
{
    const QImage image =
        filled("<linearGradient id='g' gradientTransform='rotate(90)'>" + blackToWhite + "</linearGradient>");
    QVERIFY(isNear(whiteness(image, 50, 1), 4));
    QVERIFY(isNear(whiteness(image, 50, 98), 251));
    QCOMPARE(image.pixel(5, 50), image.pixel(95, 50));
}

void TestGradients::spread_data()
{
    QTest::addColumn<QString>("method");
    QTest::addColumn<int>("at65");
    // From 40 to 60: at 65.5 it is a quarter into the next period.
    QTest::newRow("pad") << "pad" << 255;
    QTest::newRow("repeat") << "repeat" << 70;
    QTest::newRow("reflect") << "reflect" << 185;
    QTest::newRow("wrong text") << "tile" << 255;
}

void TestGradients::spread()
{
    QFETCH(QString, method);
    QFETCH(int, at65);
    const QImage image =
        filled(QStringLiteral("<linearGradient id='g' x1='.4' x2='.6' spreadMethod='%1'>").arg(method) +
               blackToWhite + "</linearGradient>");
    QVERIFY2(isNear(whiteness(image, 65), at65), qPrintable(QString::number(whiteness(image, 65))));
}

void TestGradients::radialFromItsCentre()
{
    const QImage image = filled("<radialGradient id='g'>" + blackToWhite + "</radialGradient>");
    QVERIFY(whiteness(image, 50) < 8);
    QVERIFY(isNear(whiteness(image, 75), 130));
    QVERIFY(isNear(whiteness(image, 25), 125));
    QCOMPARE(whiteness(image, 2, 2), 255);
}

void TestGradients::radialWithFocus()
{
    const QImage image = filled("<radialGradient id='g' fx='.25'>" + blackToWhite + "</radialGradient>");
    QVERIFY(whiteness(image, 25) < 8);
    // From the focus to the edge at 100 it is 75 units.
    QVERIFY(isNear(whiteness(image, 62), 128));
}

void TestGradients::radialFollowsWideBounds()
{
    const QImage image = drawnContent("<radialGradient id='g'>" + blackToWhite +
                                      "</radialGradient><rect y='25' width='100' height='50' fill='url(#g)'/>");
    QVERIFY(isNear(whiteness(image, 75, 50), 130));
    QVERIFY(isNear(whiteness(image, 50, 62), 128));
}

void TestGradients::stopsOfEqualOffsetMakeAnEdge()
{
    const QImage image = filled("<linearGradient id='g'><stop offset='.5' stop-color='red'/>"
                                "<stop offset='.5' stop-color='blue'/></linearGradient>");
    QCOMPARE(image.pixelColor(47, 50), QColor(255, 0, 0));
    QCOMPARE(image.pixelColor(53, 50), QColor(0, 0, 255));
}

void TestGradients::offsetsNeverFallBack()
{
    const QImage image = filled("<linearGradient id='g'><stop offset='.6' stop-color='red'/>"
                                "<stop offset='.2' stop-color='blue'/></linearGradient>");
    QCOMPARE(image.pixelColor(55, 50), QColor(255, 0, 0));
    QCOMPARE(image.pixelColor(65, 50), QColor(0, 0, 255));
}

void TestGradients::stopOpacityAndStyle()
{
    const QImage image =
        filled("<linearGradient id='g' color='red'><stop style='stop-color:currentColor;stop-opacity:.2'/>"
               "<stop offset='100%' style='stop-color:currentColor;stop-opacity:20%'/></linearGradient>");
    QCOMPARE(image.pixelColor(50, 50), QColor(255, 0, 0, 51));
}

void TestGradients::fillOpacityFadesTheGradient()
{
    const QImage image =
        drawnContent("<linearGradient id='g'><stop stop-color='red'/><stop offset='1' stop-color='red'/>"
                     "</linearGradient><rect width='100' height='100' fill='url(#g)' fill-opacity='.2'/>");
    QCOMPARE(image.pixelColor(50, 50), QColor(255, 0, 0, 51));
}

void TestGradients::oneStopIsAPlainColour()
{
    QCOMPARE(
        filled("<linearGradient id='g'><stop offset='.7' stop-color='red'/></linearGradient>").pixelColor(3, 3),
        QColor(255, 0, 0));
}

void TestGradients::noStopsPaintNothing()
{
    QCOMPARE(filled("<linearGradient id='g'/>"), drawnContent(""));
}

void TestGradients::pointsThatCoincideGiveTheLastStop()
{
    const QImage image = filled("<linearGradient id='g' x1='.5' x2='.5'>" + blackToWhite + "</linearGradient>");
    QCOMPARE(whiteness(image, 10), 255);
}

void TestGradients::radiusOfZeroGivesTheLastStop()
{
    QCOMPARE(whiteness(filled("<radialGradient id='g' r='0'>" + blackToWhite + "</radialGradient>"), 10), 255);
}

void TestGradients::hrefLendsStopsAndAttributes()
{
    const QString lender =
        "<linearGradient id='a' x1='.4' x2='.6' spreadMethod='repeat'>" + blackToWhite + "</linearGradient>";
    const QString direct =
        "<linearGradient id='g' x1='.4' x2='.5' spreadMethod='repeat'>" + blackToWhite + "</linearGradient>";
    QCOMPARE(filled(lender + "<linearGradient id='g' x2='.5' xlink:href='#a'/>"), filled(direct));
    QCOMPARE(filled(lender + "<linearGradient id='b' x2='.5' href='#a'/><linearGradient id='g' href='#b'/>"),
             filled(direct));
}

void TestGradients::hrefToItselfEnds()
{
    QCOMPARE(filled("<linearGradient id='g' href='#g'/>"), drawnContent(""));
    QCOMPARE(filled("<linearGradient id='g' href='#a'/><linearGradient id='a' href='#g'/>"), drawnContent(""));
    const QImage image = filled("<linearGradient id='g' href='#a'/><linearGradient id='a' href='#g'>" +
                                blackToWhite + "</linearGradient>");
    QVERIFY(isNear(whiteness(image, 50), 128));
}

void TestGradients::strokeMayBeAGradient()
{
    const QImage image =
        drawnContent("<linearGradient id='g' gradientUnits='userSpaceOnUse' x2='100'>" + blackToWhite +
                     "</linearGradient><path d='M0 50H100' stroke='url(#g)' stroke-width='20'/>");
    QVERIFY(isNear(whiteness(image, 25), 65));
    QVERIFY(isNear(whiteness(image, 75), 192));
}

void TestGradients::boundsWithoutAreaPaintNothing()
{
    QCOMPARE(drawnContent("<linearGradient id='g'>" + blackToWhite +
                          "</linearGradient><path d='M0 50H100' stroke='url(#g)' stroke-width='20'/>"),
             drawnContent(""));
}

void TestGradients::changedStopShows()
{
    const QString text = "<linearGradient id='g'><stop id='s' stop-color='red'/></linearGradient>"
                         "<rect width='100' height='100' fill='url(#g)'/>";
    const DocumentPointer document = loadContent(text);
    QCOMPARE(drawn(*document).pixelColor(50, 50), QColor(255, 0, 0));
    document->namedNode("s")->setAttribute("stop-color", "blue");
    QCOMPARE(drawn(*document).pixelColor(50, 50), QColor(0, 0, 255));
}

void TestGradients::changedHrefTargetShows()
{
    const DocumentPointer document =
        loadContent("<linearGradient id='a'><stop id='s' stop-color='red'/></linearGradient>"
                    "<linearGradient id='g' href='#a'/>"
                    "<rect width='100' height='100' fill='url(#g)'/>");
    document->namedNode("s")->setAttribute("style", "stop-color:lime");
    QCOMPARE(drawn(*document).pixelColor(50, 50), QColor(0, 255, 0));
    document->namedNode("g")->setAttribute("href", "#none");
    QCOMPARE(drawn(*document).pixelColor(50, 50).alpha(), 0);
}

void TestGradients::removedGradientShows()
{
    const DocumentPointer document = loadContent("<linearGradient id='g'><stop stop-color='red'/></linearGradient>"
                                                 "<rect width='100' height='100' fill='url(#g) blue'/>");
    document->removeChild(document->namedNode("g"));
    QCOMPARE(drawn(*document).pixelColor(50, 50), QColor(0, 0, 255));
}

QTEST_MAIN(TestGradients)
#include "test_gradients.moc"

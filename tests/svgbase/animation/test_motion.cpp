#include "geometry/pathmeasure.h"
#include "grammar/inputlimits.h"
#include "svgbase/animation/animatedattributes.h"

#include <QtMath>
#include <QtTest>

using namespace Svg;

namespace {

DocumentPointer moved(const QString &motion, const QString &more = QString())
{
    return loadContent(QStringLiteral("<path id='p' d='M0 0H30V10'/><rect id='t' width='1' height='1' %2>"
                                      "%1</rect>")
                           .arg(motion, more));
}

/// Where the motion has taken the point (x, y).
QPointF placeAt(const QString &motion, double seconds, double x = 0, double y = 0)
{
    const DocumentPointer document = moved(motion);
    return shownAt(*document, seconds).mapped(x, y);
}

bool isNear(const QPointF &a, const QPointF &b)
{
    return QLineF(a, b).length() < 1e-6;
}

} // namespace

#define COMPARE_POINTS(actual, expected)                                                                           \
    do {                                                                                                           \
        const QPointF point = actual;                                                                              \
        QVERIFY2(isNear(point, expected), qPrintable(QStringLiteral("%1, %2").arg(point.x()).arg(point.y())));     \
    } while (false)

class TestMotion : public QObject
{
    Q_OBJECT

private slots:
    void linesAreMeasured();
    void curvesAreMeasured();
    void jumpsTakeNoLength();
    void standstillsHaveADirection();
    void alongAPathAtOneSpeed();
    void fromToAndBy();
    void listsOfPlaces();
    void linearGoesFromPointToPoint();
    void discreteJumps();
    void keyPoints();
    void keyPointsThatDoNotFit();
    void referredPaths();
    void turnsWithThePath();
    void turnsByAnAngle();
    void liesOutsideTheTransform();
    void addsToOtherMotions();
    void accumulates();
    void waysThatAreNone();
    void longWaysAreLimited();
    void changedPathsMoveWhatFollowsThem();
};

void TestMotion::linesAreMeasured()
{
    QPainterPath path(QPointF(1, 1));
    path.lineTo(4, 5);
    path.lineTo(4, 15);
    const PathMeasure measure(path);
    QCOMPARE(measure.length(), 15.0);
    QCOMPARE(measure.vertices(), (QVector<double>{0, 5, 15}));
    COMPARE_POINTS(measure.at(2.5).point, QPointF(2.5, 3));
    COMPARE_POINTS(measure.at(7).point, QPointF(4, 7));
    QCOMPARE(measure.at(7).angle, 90.0);
    COMPARE_POINTS(measure.at(-3).point, QPointF(1, 1));
    COMPARE_POINTS(measure.at(300).point, QPointF(4, 15));
}

// The quarter of a circle of radius 100, which curves follow to within three in ten thousand.
void TestMotion::curvesAreMeasured()
{
    QPainterPath path(QPointF(100, 0));
    path.arcTo(QRectF(-100, -100, 200, 200), 0, -90);
    const PathMeasure measure(path);
    QVERIFY(qAbs(measure.length() - 50 * M_PI) < 0.03);
    const PathMeasure::Place middle = measure.at(measure.length() / 2);
    QVERIFY(qAbs(middle.point.x() - 100 / M_SQRT2) < 0.03 && qAbs(middle.point.y() - 100 / M_SQRT2) < 0.03);
    QVERIFY(qAbs(middle.angle - 135) < 0.1);
    const PathMeasure::Place third = measure.at(measure.length() / 3);
    QVERIFY(qAbs(third.point.x() - 100 * std::cos(M_PI / 6)) < 0.05);
}

void TestMotion::jumpsTakeNoLength()
{
    QPainterPath path(QPointF(0, 0));
    path.lineTo(10, 0);
    path.moveTo(100, 0);
    path.lineTo(100, 10);
    const PathMeasure measure(path);
    QCOMPARE(measure.length(), 20.0);
    COMPARE_POINTS(measure.at(9).point, QPointF(9, 0));
    COMPARE_POINTS(measure.at(11).point, QPointF(100, 1));
}

void TestMotion::standstillsHaveADirection()
{
    QPainterPath path(QPointF(0, 0));
    path.cubicTo(QPointF(0, 0), QPointF(10, 10), QPointF(10, 10));
    const PathMeasure measure(path);
    QVERIFY(qAbs(measure.at(0).angle - 45) < 0.1);
    QVERIFY(qAbs(measure.at(measure.length()).angle - 45) < 0.1);
    QCOMPARE(PathMeasure(QPainterPath()).at(3).point, QPointF());
    QPainterPath still(QPointF(3, 4));
    still.lineTo(3, 4);
    COMPARE_POINTS(PathMeasure(still).at(0).point, QPointF(3, 4));
}

void TestMotion::alongAPathAtOneSpeed()
{
    const QString motion = "<animateMotion path='M0 0H30V10' dur='4s'/>";
    COMPARE_POINTS(placeAt(motion, 1), QPointF(10, 0));
    COMPARE_POINTS(placeAt(motion, 3), QPointF(30, 0));
    COMPARE_POINTS(placeAt(motion, 3.5), QPointF(30, 5));
    COMPARE_POINTS(placeAt(motion, 4), QPointF(0, 0));
}

void TestMotion::fromToAndBy()
{
    COMPARE_POINTS(placeAt("<animateMotion from='10,20' to='30 40' dur='4s'/>", 1), QPointF(15, 25));
    COMPARE_POINTS(placeAt("<animateMotion from='10,20' by='30 40' dur='4s'/>", 2), QPointF(25, 40));
    COMPARE_POINTS(placeAt("<animateMotion by='30 40' dur='4s'/>", 2), QPointF(15, 20));
    COMPARE_POINTS(placeAt("<animateMotion to='30 40' dur='4s'/>", 2), QPointF(15, 20));
}

void TestMotion::listsOfPlaces()
{
    const QString motion = "<animateMotion values='0 0; 10,0; 10 30;' dur='4s'/>";
    COMPARE_POINTS(placeAt(motion, 1), QPointF(10, 0));
    COMPARE_POINTS(placeAt(motion, 2), QPointF(10, 10));
}

void TestMotion::linearGoesFromPointToPoint()
{
    const QString motion = "<animateMotion values='0 0; 10 0; 10 30' dur='4s' calcMode='linear'/>";
    COMPARE_POINTS(placeAt(motion, 1), QPointF(5, 0));
    COMPARE_POINTS(placeAt(motion, 3), QPointF(10, 15));
    COMPARE_POINTS(placeAt("<animateMotion path='M0 0H30V10' calcMode='linear' dur='4s'/>", 3), QPointF(30, 5));
    const QString timed = "<animateMotion path='M0 0H30V10' calcMode='linear' keyTimes='0;.25;1' dur='4s'/>";
    COMPARE_POINTS(placeAt(timed, 2.5), QPointF(30, 5));
    const QString eased = "<animateMotion path='M0 0H30' calcMode='spline' keySplines='0 0 0 1' dur='8s'/>";
    COMPARE_POINTS(placeAt(eased, 1), QPointF(15, 0));
}

void TestMotion::discreteJumps()
{
    const QString motion = "<animateMotion values='1 2;3 4;5 6' dur='3s' calcMode='discrete'/>";
    COMPARE_POINTS(placeAt(motion, 0.9), QPointF(1, 2));
    COMPARE_POINTS(placeAt(motion, 1), QPointF(3, 4));
    COMPARE_POINTS(placeAt(motion, 2.9), QPointF(5, 6));
}

void TestMotion::keyPoints()
{
    const QString motion = "<animateMotion path='M0 0H100' dur='4s' calcMode='linear' keyPoints='0;0.8;0.2' "
                           "keyTimes='0;0.5;1'/>";
    COMPARE_POINTS(placeAt(motion, 1), QPointF(40, 0));
    COMPARE_POINTS(placeAt(motion, 3), QPointF(50, 0));
    const QString backwards = "<animateMotion path='M0 0H100' dur='4s' calcMode='linear' keyPoints='1;0' "
                              "keyTimes='0;1' fill='freeze'/>";
    COMPARE_POINTS(placeAt(backwards, 1), QPointF(75, 0));
    COMPARE_POINTS(placeAt(backwards, 9), QPointF(0, 0));
}

void TestMotion::keyPointsThatDoNotFit()
{
    for (const char *keys :
         {"keyPoints='0;1'", "keyPoints='0;1' keyTimes='0;0.5;1'", "keyPoints='0;x' keyTimes='0;1'"}) {
        const QString motion = QStringLiteral("<animateMotion path='M50 50H100' dur='4s' calcMode='linear' %1/>")
                                   .arg(QLatin1String(keys));
        COMPARE_POINTS(placeAt(motion, 1), QPointF(0, 0));
    }
}

void TestMotion::referredPaths()
{
    for (const char *name : {"href", "xlink:href"}) {
        const QString motion = QStringLiteral("<animateMotion dur='4s' path='M0 0V90'><mpath %1='#p'/>"
                                              "</animateMotion>")
                                   .arg(QLatin1String(name));
        COMPARE_POINTS(placeAt(motion, 1), QPointF(10, 0));
    }
    COMPARE_POINTS(placeAt("<animateMotion dur='4s'><mpath href='#nobody'/></animateMotion>", 1), QPointF(0, 0));
}

// The point (2, 0) of the element lies in front of it.
void TestMotion::turnsWithThePath()
{
    COMPARE_POINTS(placeAt("<animateMotion path='M0 0H30V10' rotate='auto' dur='4s'/>", 1, 2, 0), QPointF(12, 0));
    COMPARE_POINTS(placeAt("<animateMotion path='M0 0H30V10' rotate='auto' dur='4s'/>", 3.5, 2, 0), QPointF(30, 7));
    COMPARE_POINTS(placeAt("<animateMotion path='M0 0H30V10' rotate='auto-reverse' dur='4s'/>", 3.5, 2, 0),
                   QPointF(30, 3));
}

void TestMotion::turnsByAnAngle()
{
    COMPARE_POINTS(placeAt("<animateMotion path='M0 0H30V10' rotate='90' dur='4s'/>", 1, 2, 0), QPointF(10, 2));
    COMPARE_POINTS(placeAt("<animateMotion path='M0 0H30V10' rotate='0' dur='4s'/>", 3.5, 2, 0), QPointF(32, 5));
}

void TestMotion::liesOutsideTheTransform()
{
    const DocumentPointer document =
        moved("<animateMotion from='10 0' to='10 0' dur='4s'/>"
              "<animateTransform attributeName='transform' type='translate' to='0 8' begin='2s' dur='4s' "
              "calcMode='discrete'/>",
              "transform='scale(2)'");
    COMPARE_POINTS(shownAt(*document, 1).mapped(3, 4), QPointF(16, 8));
    COMPARE_POINTS(shownAt(*document, 3).mapped(3, 4), QPointF(13, 12));
}

void TestMotion::addsToOtherMotions()
{
    const QString under = "<animateMotion from='10 20' to='10 20' dur='4s'/>";
    COMPARE_POINTS(placeAt(under + "<animateMotion by='4 4' dur='4s'/>", 2), QPointF(12, 22));
    COMPARE_POINTS(placeAt(under + "<animateMotion path='M4 4H8' dur='4s' additive='sum'/>", 2), QPointF(16, 24));
    COMPARE_POINTS(placeAt(under + "<animateMotion path='M4 4H8' dur='4s'/>", 2), QPointF(6, 4));
}

void TestMotion::accumulates()
{
    const QString motion = "<animateMotion path='M0 0H10V10' dur='2s' repeatCount='3' accumulate='sum'/>";
    COMPARE_POINTS(placeAt(motion, 1), QPointF(10, 0));
    COMPARE_POINTS(placeAt(motion, 3), QPointF(20, 10));
    COMPARE_POINTS(placeAt(motion, 5), QPointF(30, 20));
}

void TestMotion::waysThatAreNone()
{
    for (const char *way :
         {"", "path=''", "path='L10 10'", "values=''", "values='1 2;3'", "from='1 1'", "to='1'"}) {
        const QString motion = QStringLiteral("<animateMotion dur='4s' %1/>").arg(QLatin1String(way));
        COMPARE_POINTS(placeAt(motion, 1), QPointF(0, 0));
    }
}

void TestMotion::longWaysAreLimited()
{
    const QString far = QStringLiteral("<animateMotion path='M50 50%1' dur='4s'/>");
    const QString third = far.arg(QStringLiteral("h9").repeated(Limits::pathSegments - 1));
    QVERIFY(isNear(placeAt(third, 0), QPointF(50, 50)));
    // The fourth is beyond the limit and does not replace the others.
    const QString other = QStringLiteral("<animateMotion path='M7 7%1' dur='4s'/>")
                              .arg(QStringLiteral("h9").repeated(Limits::pathSegments - 1));
    QVERIFY(isNear(placeAt(third + third + other, 0), QPointF(7, 7)));
    QVERIFY(isNear(placeAt(third + third + third + other, 0), QPointF(50, 50)));
}

void TestMotion::changedPathsMoveWhatFollowsThem()
{
    const DocumentPointer document = moved("<animateMotion dur='4s'><mpath href='#p'/></animateMotion>");
    COMPARE_POINTS(shownAt(*document, 1).mapped(0, 0), QPointF(10, 0));
    document->namedNode("p")->setAttribute("d", "M0 0V80");
    COMPARE_POINTS(shownAt(*document, 1).mapped(0, 0), QPointF(0, 20));
}

QTEST_MAIN(TestMotion)
#include "test_motion.moc"

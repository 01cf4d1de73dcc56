#include "grammar/arcs.h"
#include "grammar/inputlimits.h"
#include "grammar/pathdata.h"

#include <QtTest>

using namespace Svg;

namespace {

/// "M x y L x y C x y x y x y" as the path holds it.
QString written(const QPainterPath &path)
{
    QStringList parts;
    for (int i = 0; i < path.elementCount(); ++i) {
        const QPainterPath::Element e = path.elementAt(i);
        const QString letter = e.type == QPainterPath::MoveToElement    ? QStringLiteral("M ")
                               : e.type == QPainterPath::LineToElement  ? QStringLiteral("L ")
                               : e.type == QPainterPath::CurveToElement ? QStringLiteral("C ")
                                                                        : QString();
        parts.append(letter + QString::number(e.x, 'g', 6) + QLatin1Char(' ') + QString::number(e.y, 'g', 6));
    }
    return parts.join(QLatin1Char(' '));
}

} // namespace

class TestPathData : public QObject
{
    Q_OBJECT

private slots:
    void commands_data();
    void commands();
    void drawsUpToTheFirstError_data();
    void drawsUpToTheFirstError();
    void errorIsFoundWhereItIs();
    void closingReturnsToTheStart();
    void quarterArcStaysOnItsCircle();
    void largeAndSweepFlagsChooseTheArc_data();
    void largeAndSweepFlagsChooseTheArc();
    void arcRadiiThatAreTooSmallAreScaledUp();
    void arcWithoutRadiusIsALine();
    void arcToItsOwnStartIsNothing();
    void flagsNeedNoSeparator();
    void stopsAtTheLimitOfSegments();
    void coordinatesBeyondTheRangeEndThePath();
    void openSubpathsThatComeBackAreTold_data();
    void openSubpathsThatComeBackAreTold();
};

void TestPathData::commands_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("expected");
    QTest::newRow("empty") << ""
                           << "";
    QTest::newRow("lines") << "M1 2L3 4 5 6"
                           << "M 1 2 L 3 4 L 5 6";
    QTest::newRow("relative lines") << "m1 2l3 4 5 6"
                                    << "M 1 2 L 4 6 L 9 12";
    QTest::newRow("pairs after a move are lines") << "M1 2 3 4"
                                                  << "M 1 2 L 3 4";
    QTest::newRow("pairs after a relative move") << "m1 2 3 4"
                                                 << "M 1 2 L 4 6";
    QTest::newRow("horizontal and vertical") << "M1 2H5V7h-1v-2"
                                             << "M 1 2 L 5 2 L 5 7 L 4 7 L 4 5";
    QTest::newRow("cubic") << "M0 0C1 2 3 4 5 6"
                           << "M 0 0 C 1 2 3 4 5 6";
    QTest::newRow("relative cubic") << "M10 10c1 2 3 4 5 6"
                                    << "M 10 10 C 11 12 13 14 15 16";
    QTest::newRow("smooth cubic reflects") << "M0 0C0 5 5 10 10 10S20 5 20 0"
                                           << "M 0 0 C 0 5 5 10 10 10 C 15 10 20 5 20 0";
    QTest::newRow("smooth cubic alone") << "M1 1S20 5 20 0"
                                        << "M 1 1 C 1 1 20 5 20 0";
    QTest::newRow("smooth relative") << "M0 0c0 5 5 10 10 10s10 -5 10 -10"
                                     << "M 0 0 C 0 5 5 10 10 10 C 15 10 20 5 20 0";
    // A quadratic's control point q gives the cubic's at two thirds of the way to q from either end.
    QTest::newRow("quadratic") << "M0 0Q3 6 6 0"
                               << "M 0 0 C 2 4 4 4 6 0";
    QTest::newRow("smooth quadratic") << "M0 0Q3 6 6 0T12 0"
                                      << "M 0 0 C 2 4 4 4 6 0 C 8 -4 10 -4 12 0";
    QTest::newRow("relative quadratic") << "M1 1q3 6 6 0t6 0"
                                        << "M 1 1 C 3 5 5 5 7 1 C 9 -3 11 -3 13 1";
    QTest::newRow("tight numbers") << "M1-2L.5.5+3e0,4"
                                   << "M 1 -2 L 0.5 0.5 L 3 4";
    QTest::newRow("move again") << "M1 1 2 2M5 5 6 6"
                                << "M 1 1 L 2 2 M 5 5 L 6 6";
}

void TestPathData::commands()
{
    QFETCH(QString, text);
    const PathData data = parsePathData(text);
    QCOMPARE(data.errorAt, qsizetype(-1));
    QTEST(written(data.path), "expected");
}

void TestPathData::drawsUpToTheFirstError_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("expected");
    QTest::newRow("starts without a move") << "L1 2"
                                           << "";
    QTest::newRow("lone number") << "M1"
                                 << "";
    QTest::newRow("unknown command") << "M1 2L3 4X5 6"
                                     << "M 1 2 L 3 4";
    QTest::newRow("rubbish") << "M1 2L3 4 five"
                             << "M 1 2 L 3 4";
    QTest::newRow("half a pair") << "M1 2L3 4 5"
                                 << "M 1 2 L 3 4";
    QTest::newRow("overflow") << "M1 2L3 4L1e999 0"
                              << "M 1 2 L 3 4";
    QTest::newRow("NaN") << "M1 2L3 4LNaN 0"
                         << "M 1 2 L 3 4";
    QTest::newRow("comma at the end") << "M1 2L3 4,"
                                      << "M 1 2 L 3 4";
    QTest::newRow("comma after a command") << "M1 2L,3 4"
                                           << "M 1 2";
    QTest::newRow("letter beyond one byte") << QString::fromUtf8("M1 2L3 4Ω") << "M 1 2 L 3 4";
    QTest::newRow("flag that is none") << "M1 2A1 1 0 2 0 5 5"
                                       << "M 1 2";
}

void TestPathData::drawsUpToTheFirstError()
{
    QFETCH(QString, text);
    const PathData data = parsePathData(text);
    QVERIFY(data.errorAt >= 0);
    QVERIFY(!data.tooLong);
    QTEST(written(data.path), "expected");
}

void TestPathData::errorIsFoundWhereItIs()
{
    QCOMPARE(parsePathData(u"M1 2L3 4X5 6").errorAt, qsizetype(8));
    QCOMPARE(parsePathData(u"L1 2").errorAt, qsizetype(0));
}

void TestPathData::closingReturnsToTheStart()
{
    const PathData data = parsePathData(u"M1 1L5 1L5 5zl1 1");
    QCOMPARE(data.errorAt, qsizetype(-1));
    QCOMPARE(written(data.path), QStringLiteral("M 1 1 L 5 1 L 5 5 L 1 1 M 1 1 L 2 2"));
}

void TestPathData::quarterArcStaysOnItsCircle()
{
    const QPainterPath path = parsePathData(u"M10 0A10 10 0 0 1 0 10").path;
    QCOMPARE(path.elementCount(), 4);
    for (const double t : {0.0, 0.25, 0.5, 0.75, 1.0}) {
        const QPointF p = path.pointAtPercent(t);
        QVERIFY(qAbs(std::hypot(p.x(), p.y()) - 10) < 0.01);
        QVERIFY(p.x() > -0.01 && p.y() > -0.01);
    }
}

void TestPathData::largeAndSweepFlagsChooseTheArc_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QRectF>("bounds");
    // From (10, 0) to (0, 10) with radius 10, circles stand at (0, 0) and (10, 10).
    QTest::newRow("small, positive turn") << "M10 0A10 10 0 0 1 0 10" << QRectF(0, 0, 10, 10);
    QTest::newRow("large, positive turn") << "M10 0A10 10 0 1 1 0 10" << QRectF(0, 0, 20, 20);
    QTest::newRow("small, negative turn") << "M10 0A10 10 0 0 0 0 10" << QRectF(0, 0, 10, 10);
    QTest::newRow("large, negative turn") << "M10 0A10 10 0 1 0 0 10" << QRectF(-10, -10, 20, 20);
}

void TestPathData::largeAndSweepFlagsChooseTheArc()
{
    QFETCH(QString, text);
    QFETCH(QRectF, bounds);
    const QRectF box = parsePathData(text).path.boundingRect();
    const QMarginsF difference(box.left() - bounds.left(), box.top() - bounds.top(), box.right() - bounds.right(),
                               box.bottom() - bounds.bottom());
    QVERIFY(qAbs(difference.left()) < 0.02 && qAbs(difference.top()) < 0.02);
    QVERIFY(qAbs(difference.right()) < 0.02 && qAbs(difference.bottom()) < 0.02);
}

void TestPathData::arcRadiiThatAreTooSmallAreScaledUp()
{
    // The end points are 20 apart, so that a radius of 1 becomes 10.
    const QRectF box = parsePathData(u"M0 0A1 1 0 0 1 20 0").path.boundingRect();
    QVERIFY(qAbs(box.height() - 10) < 0.02);
    QVERIFY(qAbs(box.top() + 10) < 0.02);
}

void TestPathData::arcWithoutRadiusIsALine()
{
    QCOMPARE(written(parsePathData(u"M0 0A0 5 0 0 1 20 0").path), QStringLiteral("M 0 0 L 20 0"));
}

void TestPathData::arcToItsOwnStartIsNothing()
{
    QCOMPARE(written(parsePathData(u"M3 4A5 5 0 0 1 3 4L5 5").path), QStringLiteral("M 3 4 L 5 5"));
}

void TestPathData::flagsNeedNoSeparator()
{
    const PathData tight = parsePathData(u"M0 0a10 10 0 0110-5");
    const PathData wide = parsePathData(u"M0 0a10 10 0 0 1 10 -5");
    QCOMPARE(tight.errorAt, qsizetype(-1));
    QCOMPARE(tight.path, wide.path);
    QVERIFY(wide.path.elementCount() > 1);
}

void TestPathData::stopsAtTheLimitOfSegments()
{
    const QString text = QStringLiteral("M0 0") + QStringLiteral("h1v1").repeated(Limits::pathSegments);
    const PathData data = parsePathData(text);
    QVERIFY(data.tooLong);
    QCOMPARE(data.path.elementCount(), Limits::pathSegments);
}

void TestPathData::coordinatesBeyondTheRangeEndThePath()
{
    QCOMPARE(written(parsePathData(u"M0 0L1 1L2e9 0").path), QStringLiteral("M 0 0 L 1 1"));
    // Each step is in range, their sum is not.
    QCOMPARE(parsePathData(u"m0 0l9e8 0l9e8 0").path.elementCount(), 2);
}

void TestPathData::openSubpathsThatComeBackAreTold_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QVector<int>>("ends");
    QTest::newRow("lines") << "M0 0L10 0L10 10L0 0" << QVector<int>{3};
    QTest::newRow("closed") << "M0 0L10 0L10 10L0 0z" << QVector<int>{};
    QTest::newRow("elsewhere") << "M0 0L10 0L10 10L0 1" << QVector<int>{};
    QTest::newRow("there and back") << "M5 5h10h-10" << QVector<int>{2};
    QTest::newRow("curve") << "M1 1C2 1 2 2 1 1" << QVector<int>{3};
    QTest::newRow("rounded sums") << "M.1 .1l.1 0l.1 .3l-.2 -.3" << QVector<int>{3};
    QTest::newRow("before another") << "M0 0L10 0L0 0M5 5L6 6" << QVector<int>{2};
    QTest::newRow("both") << "M0 0L10 0L0 0M5 5L6 6L5 5" << QVector<int>{2, 5};
    QTest::newRow("going on behind a closed one") << "M0 0L10 0L10 10zL5 5L0 0" << QVector<int>{6};
    QTest::newRow("a dot") << "M0 0L0 0" << QVector<int>{};
    QTest::newRow("a move") << "M0 0M5 5" << QVector<int>{};
    QTest::newRow("up to an error") << "M0 0L10 0L0 0X" << QVector<int>{2};
}

// Such a subpath has caps at both ends, which a painter would join (SVG 2 §13.5.4).
void TestPathData::openSubpathsThatComeBackAreTold()
{
    QFETCH(QString, text);
    QFETCH(QVector<int>, ends);
    QCOMPARE(parsePathData(text).openEnds, ends);
}

QTEST_APPLESS_MAIN(TestPathData)
#include "test_pathdata.moc"

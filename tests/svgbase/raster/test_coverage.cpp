// How much of each pixel outlines cover, and the colours that painting straight into pixels gives.

#include "svgbase/svgdrawing.h"

#include "paint/solidpainting.h"
#include "raster/coverage.h"

#include <QtCore/QRandomGenerator>
#include <QtGui/QPainter>
#include <QtTest/QtTest>

#include <limits>

using namespace Svg;

namespace {

/// Coverage of every pixel of a window, 0 where nothing is told.
QVector<int> coverageOf(const QPainterPath &path, const QRect &window)
{
    FlatOutline outline;
    if (!flatten(path, &outline))
        return {};
    QVector<int> result(window.width() * window.height());
    Coverage coverage;
    coverage.sweep(outline, window, [&](const Coverage::Span &span) {
        for (int i = 0; i < span.length; ++i)
            result[(span.y - window.top()) * window.width() + span.x + i - window.left()] += span.coverage;
    });
    return result;
}

QPainterPath rectPath(double x, double y, double width, double height)
{
    QPainterPath path;
    path.addRect(x, y, width, height);
    return path;
}

QPainterPath randomPath(QRandomGenerator &random)
{
    const auto point = [&] { return QPointF(random.bounded(120.0) - 30, random.bounded(120.0) - 30); };
    QPainterPath path(point());
    for (int i = 0; i < 6; ++i)
        if (random.bounded(2))
            path.lineTo(point());
        else
            path.cubicTo(point(), point(), point());
    path.setFillRule(random.bounded(2) ? Qt::WindingFill : Qt::OddEvenFill);
    return path;
}

/// The share of a grid of points in a pixel that lies inside of a path, of 255.
double sampledCoverage(const QPainterPath &path, int x, int y)
{
    constexpr int samples = 16;
    int inside = 0;
    for (int i = 0; i < samples; ++i)
        for (int j = 0; j < samples; ++j)
            inside += path.contains(QPointF(x + (i + 0.5) / samples, y + (j + 0.5) / samples)) ? 1 : 0;
    return 255.0 * inside / (samples * samples);
}

QImage painted(const QByteArray &content, QImage::Format format, QRgb below)
{
    const std::unique_ptr<QZeSvgTinyDocument> document(QZeSvgTinyDocument::load(
        "<svg xmlns='http://www.w3.org/2000/svg' viewBox='0 0 4 4'>" + content + "</svg>"));
    QImage image(4, 4, format);
    image.fill(QColor::fromRgba(below));
    QPainter painter(&image);
    document->draw(&painter, QRectF(0, 0, 4, 4), 1, false);
    painter.end();
    return image.convertToFormat(QImage::Format_ARGB32);
}

} // namespace

class TestCoverage : public QObject
{
    Q_OBJECT

private slots:
    void wholePixelsAreCoveredWholly();
    void partsOfPixelsCountByTheirArea();
    void aSlopeCoversHalf();
    void directionsDoNotMatter();
    void overlapsFollowTheFillRule();
    void whatLiesBesideTheWindowCounts();
    void uprightEdgesAreCutAtTheWindow();
    void edgesInTheLastPixelOfAWordReachIntoTheNext();
    void anyWindowTellsTheSame();
    void isTheAreaOfAnyOutline();
    void farOutlinesAreRefused();
    void numbersThatAreNoneAreRefused();
    void outlinesThatTurnOftenAddUpOrAreRefused();
    void colorsAreLaidOverWhatIsBelow_data();
    void colorsAreLaidOverWhatIsBelow();
    void everyPixelOfARowIsMixedWithWhatIsBelowIt();
    void longRunsOfARowEndWhereTheColourBelowChanges();
    void paintersWithMoreThanARectangleAreRefused();
    void aRectangularClipIsKept();
};

void TestCoverage::wholePixelsAreCoveredWholly()
{
    QCOMPARE(coverageOf(rectPath(1, 1, 2, 1), QRect(0, 0, 4, 3)),
             QVector<int>({0, 0, 0, 0, 0, 255, 255, 0, 0, 0, 0, 0}));
}

void TestCoverage::partsOfPixelsCountByTheirArea()
{
    // A quarter of the first pixel, half of the second: 64 and 128 of 256.
    QCOMPARE(coverageOf(rectPath(0.5, 0.5, 1.5, 0.5), QRect(0, 0, 3, 1)), QVector<int>({64, 128, 0}));
}

void TestCoverage::aSlopeCoversHalf()
{
    QPainterPath triangle;
    triangle.addPolygon(QPolygonF({{0, 0}, {2, 2}, {0, 2}, {0, 0}}));
    QCOMPARE(coverageOf(triangle, QRect(0, 0, 2, 2)), QVector<int>({128, 0, 255, 128}));
    // One row high and four pixels wide: eighths of 256, from 1 to 7.
    QPainterPath flat;
    flat.addPolygon(QPolygonF({{0, 1}, {4, 0}, {4, 1}, {0, 1}}));
    QCOMPARE(coverageOf(flat, QRect(0, 0, 4, 1)), QVector<int>({32, 96, 160, 224}));
}

void TestCoverage::directionsDoNotMatter()
{
    const QPainterPath path = rectPath(0.25, 0.5, 3, 1);
    QCOMPARE(coverageOf(path.toReversed(), QRect(0, 0, 4, 2)), coverageOf(path, QRect(0, 0, 4, 2)));
}

void TestCoverage::overlapsFollowTheFillRule()
{
    QPainterPath path = rectPath(0, 0, 2, 1);
    path.addPath(rectPath(1, 0, 2, 1));
    path.setFillRule(Qt::WindingFill);
    QCOMPARE(coverageOf(path, QRect(0, 0, 3, 1)), QVector<int>({255, 255, 255}));
    path.setFillRule(Qt::OddEvenFill);
    QCOMPARE(coverageOf(path, QRect(0, 0, 3, 1)), QVector<int>({255, 0, 255}));
}

void TestCoverage::whatLiesBesideTheWindowCounts()
{
    const QPainterPath around = rectPath(-50, -50, 200, 200);
    QCOMPARE(coverageOf(around, QRect(10, 10, 2, 2)), QVector<int>(4, 255));
    QCOMPARE(coverageOf(rectPath(-50, 0, 40, 5), QRect(0, 0, 2, 2)), QVector<int>(4, 0));
    QCOMPARE(coverageOf(rectPath(50, 0, 40, 5), QRect(0, 0, 2, 2)), QVector<int>(4, 0));
}

void TestCoverage::uprightEdgesAreCutAtTheWindow()
{
    // Three quarters of the first row and half of the second, from before the window to beyond it.
    QCOMPARE(coverageOf(rectPath(-1.5, 0.25, 4, 1.25), QRect(0, 0, 2, 2)), QVector<int>({192, 192, 128, 128}));
    QCOMPARE(coverageOf(rectPath(-1.5, 0, 2, 1), QRect(0, 0, 2, 1)), QVector<int>({128, 0}));
    QCOMPARE(coverageOf(rectPath(0.5, 0, 1.5, 1), QRect(0, 0, 2, 1)), QVector<int>({128, 255}));
    QCOMPARE(coverageOf(rectPath(0.5, 0, 9, 1), QRect(0, 0, 2, 1)), QVector<int>({128, 255}));
    QCOMPARE(coverageOf(rectPath(2, 0, 9, 1), QRect(0, 0, 2, 1)), QVector<int>({0, 0}));
}

// Pixels are marked in words of 64.
void TestCoverage::edgesInTheLastPixelOfAWordReachIntoTheNext()
{
    QVector<int> expected(130);
    expected[63] = expected[127] = expected[128] = 128;
    QPainterPath path = rectPath(63.5, 0, 0.5, 1);
    path.addPath(rectPath(127.5, 0, 1, 1));
    QCOMPARE(coverageOf(path, QRect(0, 0, 130, 1)), expected);
}

void TestCoverage::anyWindowTellsTheSame()
{
    QRandomGenerator random(1);
    const QRect whole(-20, -20, 100, 100);
    for (int round = 0; round < 300; ++round) {
        const QPainterPath path = randomPath(random);
        const QVector<int> all = coverageOf(path, whole);
        const QRect part(random.bounded(60) - 20, random.bounded(60) - 20, 1 + random.bounded(30),
                         1 + random.bounded(30));
        const QVector<int> some = coverageOf(path, part & whole);
        const QRect seen = part & whole;
        for (int y = 0; y < seen.height(); ++y) {
            for (int x = 0; x < seen.width(); ++x)
                QCOMPARE(some[y * seen.width() + x],
                         all[(y + seen.top() - whole.top()) * whole.width() + x + seen.left() - whole.left()]);
        }
    }
}

void TestCoverage::isTheAreaOfAnyOutline()
{
    QPainterPath path;
    path.addEllipse(QRectF(1.3, 2.6, 13, 11));
    const QVector<int> found = coverageOf(path, QRect(0, 0, 16, 16));
    for (int y = 0; y < 16; ++y) {
        for (int x = 0; x < 16; ++x) {
            const double expected = sampledCoverage(path, x, y);
            // Counting points is off by up to the points along an edge.
            QVERIFY2(
                qAbs(found[y * 16 + x] - expected) < 12,
                qPrintable(QStringLiteral("%1,%2: %3, not %4").arg(x).arg(y).arg(found[y * 16 + x]).arg(expected)));
        }
    }
}

void TestCoverage::farOutlinesAreRefused()
{
    FlatOutline outline;
    QVERIFY(flatten(rectPath(-31000, 0, 62000, 1), &outline));
    QVERIFY(!flatten(rectPath(0, 0, 33000, 1), &outline));
    QVERIFY(!flatten(rectPath(0, -33000, 1, 1), &outline));
}

void TestCoverage::numbersThatAreNoneAreRefused()
{
    const double none = std::numeric_limits<double>::quiet_NaN();
    QPainterPath path = rectPath(0, 0, 10, 10);
    path.setElementPositionAt(2, none, 10);
    FlatOutline outline;
    QVERIFY(!flatten(path, &outline));
}

void TestCoverage::outlinesThatTurnOftenAddUpOrAreRefused()
{
    QPainterPath path;
    for (int i = 0; i < 7999; ++i)
        path.addPolygon(QPolygonF({{0, 0}, {4, 0}, {4, 4}, {0, 4}}));
    FlatOutline outline;
    QVERIFY(flatten(path, &outline));
    QCOMPARE(coverageOf(path, QRect(0, 0, 4, 4)), QVector<int>(16, 255));
    path.addPolygon(QPolygonF({{0, 0}, {4, 0}, {4, 4}, {0, 4}}));
    path.addPolygon(QPolygonF({{0, 0}, {4, 0}, {4, 4}, {0, 4}}));
    QVERIFY(!flatten(path, &outline));
}

void TestCoverage::colorsAreLaidOverWhatIsBelow_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QRgb>("below");
    QTest::addColumn<QRgb>("expected");
    const QByteArray opaque = "<rect width='2' height='2' fill='#ff8000'/>";
    const QByteArray faded = "<rect width='2' height='2' fill='#ff0000' opacity='0.5'/>";
    const QByteArray half = "<rect width='1.5' height='2' fill='#ff0000'/>";
    QTest::newRow("opaque") << opaque << qRgba(0, 0, 255, 255) << qRgba(255, 128, 0, 255);
    QTest::newRow("opaque over nothing") << opaque << qRgba(0, 0, 0, 0) << qRgba(255, 128, 0, 255);
    // Alpha 128 of 256 steps is 127 of 255; what is below keeps 128 of 255.
    QTest::newRow("faded") << faded << qRgba(0, 0, 255, 255) << qRgba(127, 0, 128, 255);
    QTest::newRow("faded over nothing") << faded << qRgba(0, 0, 0, 0) << qRgba(255, 0, 0, 127);
    // 127 and what 128 of 255 leave of 128, 64, are 191; 127 and 64 of these are 170 and 85 of 255.
    QTest::newRow("faded over faded") << faded << qRgba(0, 0, 255, 128) << qRgba(170, 0, 85, 191);
    // Half of the pixel is 128 of 255.
    QTest::newRow("half of a pixel") << half << qRgba(0, 0, 255, 255) << qRgba(128, 0, 127, 255);
    QTest::newRow("half of a pixel over nothing") << half << qRgba(0, 0, 0, 0) << qRgba(255, 0, 0, 128);
}

void TestCoverage::colorsAreLaidOverWhatIsBelow()
{
    QFETCH(const QByteArray, content);
    QFETCH(const QRgb, below);
    QFETCH(const QRgb, expected);
    QCOMPARE(QColor::fromRgba(painted(content, QImage::Format_ARGB32, below).pixel(1, 1)),
             QColor::fromRgba(expected));
    QCOMPARE(QColor::fromRgba(painted(content, QImage::Format_ARGB32_Premultiplied, below).pixel(1, 1)),
             QColor::fromRgba(expected));
}

void TestCoverage::everyPixelOfARowIsMixedWithWhatIsBelowIt()
{
    for (const QImage::Format format : {QImage::Format_ARGB32, QImage::Format_ARGB32_Premultiplied}) {
        QImage image(5, 1, format);
        image.fill(Qt::transparent);
        for (const int x : {1, 2})
            image.setPixelColor(x, 0, QColor(0, 0, 255));
        image.setPixelColor(4, 0, QColor(0, 255, 0));
        QPainter painter(&image);
        MappedItem row;
        row.bounds = image.rect();
        auto &shape = row.content.emplace<MappedShape>();
        shape.path.addRect(image.rect());
        // Alpha 102 leaves 153 of 255.
        shape.fill = QColor(255, 0, 0, 102);
        QVERIFY(paintSolid(row, 1, pixelTarget(painter), false));
        painter.end();
        const QColor overNothing(255, 0, 0, 102);
        const QColor overBlue(102, 0, 153);
        QCOMPARE(image.pixelColor(0, 0), overNothing);
        QCOMPARE(image.pixelColor(1, 0), overBlue);
        QCOMPARE(image.pixelColor(2, 0), overBlue);
        QCOMPARE(image.pixelColor(3, 0), overNothing);
        QCOMPARE(image.pixelColor(4, 0), QColor(102, 153, 0));
    }
}

void TestCoverage::longRunsOfARowEndWhereTheColourBelowChanges()
{
    for (const QImage::Format format : {QImage::Format_ARGB32, QImage::Format_ARGB32_Premultiplied}) {
        QImage image(22, 1, format);
        image.fill(QColor(0, 0, 255));
        image.setPixelColor(21, 0, QColor(0, 255, 0));
        FlatOutline row;
        QVERIFY(flatten(rectPath(0, 0, 22, 1), &row));
        // Alpha 102 leaves 153 of 255.
        fillSolid(row, QColor(255, 0, 0, 102), 1, image.rect(), {&image, QPoint(), image.rect()});
        for (int x = 0; x < 21; ++x)
            QCOMPARE(image.pixelColor(x, 0), QColor(102, 0, 153));
        QCOMPARE(image.pixelColor(21, 0), QColor(102, 153, 0));
        // The same colour all over.
        image.fill(QColor(0, 0, 255));
        fillSolid(row, QColor(255, 0, 0, 102), 1, image.rect(), {&image, QPoint(), image.rect()});
        for (int x = 0; x < 22; ++x)
            QCOMPARE(image.pixelColor(x, 0), QColor(102, 0, 153));
    }
}

void TestCoverage::paintersWithMoreThanARectangleAreRefused()
{
    QImage image(8, 8, QImage::Format_ARGB32_Premultiplied);
    QPainter painter(&image);
    QVERIFY(pixelTarget(painter).picture);
    painter.setClipRegion(QRegion(0, 0, 2, 2) | QRegion(4, 4, 2, 2));
    QVERIFY(!pixelTarget(painter).picture);
    QPainterPath clip;
    clip.addRect(0.5, 0.5, 4, 4);
    painter.setClipPath(clip);
    QVERIFY(!pixelTarget(painter).picture);
    painter.setClipping(false);
    painter.setCompositionMode(QPainter::CompositionMode_Multiply);
    QVERIFY(!pixelTarget(painter).picture);
    painter.setCompositionMode(QPainter::CompositionMode_SourceOver);
    painter.setViewport(1, 0, 8, 8);
    QVERIFY(!pixelTarget(painter).picture);
    QImage other(8, 8, QImage::Format_RGB16);
    QPainter otherPainter(&other);
    QVERIFY(!pixelTarget(otherPainter).picture);
}

void TestCoverage::aRectangularClipIsKept()
{
    QImage image(8, 8, QImage::Format_ARGB32_Premultiplied);
    QPainter painter(&image);
    painter.setClipRect(2, 3, 20, 2);
    QCOMPARE(pixelTarget(painter).window, QRect(2, 3, 6, 2));
}

QTEST_MAIN(TestCoverage)
#include "test_coverage.moc"

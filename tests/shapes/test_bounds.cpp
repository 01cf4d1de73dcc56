// The bounding rectangle of a shape: views keep a picture of just that area and repaint no more, so that whatever a
// shape paints has to lie within it.

#include <shapes/shapedriver.h>

#include <svgobj/csvgbase.h>
#include <svgobj/csvgobj.h>

#include <support/listed.h>

#include <QtGui/QPainter>
#include <QtTest/QtTest>

#include <cmath>

using namespace shapetest;

namespace {

/// Room around the object in which something might be painted, pixels.
constexpr int room = 150;
/// Alpha left by antialiasing at the very edge of a line.
constexpr int faintestAlpha = 2;
/// The margin that the host gives every object, pixels.
constexpr double hostMargin = 1;

/// The area, item coordinates, of all pixels that the object touches; control points too if they are shown.
QRect paintedPixels(const ShapeDriver &shape)
{
    const QSize size = shape.object().getClientRect().size().toSize() + QSize(2 * room, 2 * room);
    QImage image(size, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(room, room);
    shape.object().OnQPainterDraw(&painter);
    painter.end();
    QRect painted;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x)
            if (qAlpha(image.pixel(x, y)) > faintestAlpha)
                painted |= QRect(x, y, 1, 1);
    }
    return painted.translated(-room, -room);
}

void setPenWidth(const ShapeDriver &shape, int width)
{
    shape.core().setPenWidth(width, false);
    shape.core().invalidate();
}

QRect wholePixelsAround(const QRectF &rect)
{
    return rect.toAlignedRect();
}

} // namespace

class TestBounds : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everythingPaintedLiesWithin_data();
    void everythingPaintedLiesWithin();
    void aControlPointThatIsDraggedOutStaysWithin();
    void theBoundsAreNoLargerThanTheFigureAndItsPen();
    void theBoundsShrinkWithThePen();
    void theBoundsGrowOnlyWhileAThickPenIsThere_data();
    void theBoundsGrowOnlyWhileAThickPenIsThere();
    void selectedShapesHaveRoomForTheirControlPoints();
    void pointingAtAShapeLeavesItsBounds();
};

void TestBounds::everythingPaintedLiesWithin_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("penWidth");
    QTest::addColumn<QSizeF>("size");
    for (const QString &name : support::listed(allShapeNames())) {
        for (const int penWidth : {2, 8, 30}) {
            QTest::newRow(qPrintable(QStringLiteral("%1, pen %2").arg(name).arg(penWidth)))
                << name << penWidth << QSizeF(180, 140);
            QTest::newRow(qPrintable(QStringLiteral("%1, small, pen %2").arg(name).arg(penWidth)))
                << name << penWidth << QSizeF(40, 40);
        }
    }
}

void TestBounds::everythingPaintedLiesWithin()
{
    QFETCH(QString, name);
    QFETCH(int, penWidth);
    QFETCH(QSizeF, size);
    ShapeDriver shape(name);
    shape.createByDrag(QSizeF(120, 90));
    setPenWidth(shape, penWidth);
    QVERIFY2(wholePixelsAround(shape.object().boundingRect()).contains(paintedPixels(shape)), "another pen");
    shape.object().setSize(size, false, false);
    QVERIFY2(wholePixelsAround(shape.object().boundingRect()).contains(paintedPixels(shape)), "another size");
}

void TestBounds::aControlPointThatIsDraggedOutStaysWithin()
{
    ShapeDriver shape(QStringLiteral("callout"));
    shape.createByDrag(QSizeF(120, 90));
    shape.select();
    shape.dragControlPoint(1, QPointF(60, 55));
    shape.object().setSelected(false);
    const QRect painted = paintedPixels(shape);
    QVERIFY(wholePixelsAround(shape.object().boundingRect()).contains(painted));
}

void TestBounds::theBoundsAreNoLargerThanTheFigureAndItsPen()
{
    ShapeDriver shape(QStringLiteral("roundedrectangle"));
    shape.createByDrag(QSizeF(120, 90));
    shape.object().setSelected(false);
    setPenWidth(shape, 2);
    // The line ends at the frame, it can be hit one unit around it, and then there is the host's margin.
    const double margin = 1 + hostMargin;
    QCOMPARE(shape.object().boundingRect(), QRectF(-margin, -margin, 120 + 2 * margin, 90 + 2 * margin));
}

void TestBounds::theBoundsShrinkWithThePen()
{
    ShapeDriver shape(QStringLiteral("gears")); // stretched: its pen reaches over the edge
    shape.createByDrag(QSizeF(140, 96));
    setPenWidth(shape, 2);
    const QRectF thin = shape.object().boundingRect();
    setPenWidth(shape, 30);
    QVERIFY(shape.object().boundingRect().height() > thin.height());
    setPenWidth(shape, 2);
    QCOMPARE(shape.object().boundingRect(), thin);
}

void TestBounds::theBoundsGrowOnlyWhileAThickPenIsThere_data()
{
    QTest::addColumn<QString>("name");
    for (const QString &name : support::listed(allShapeNames()))
        QTest::newRow(qPrintable(name)) << name;
}

void TestBounds::theBoundsGrowOnlyWhileAThickPenIsThere()
{
    QFETCH(QString, name);
    ShapeDriver shape(name);
    shape.createByDrag(QSizeF(160, 120));
    shape.object().setSelected(false);
    const QRectF painted = paintedPixels(shape);
    const QRectF bounds = shape.object().boundingRect();
    // A thin line can be hit four units beside it, and a line of text has room above and below its letters.
    constexpr double largestMargin = 12;
    const QRectF needed = painted | shape.object().getClientRect();
    QVERIFY2(needed.adjusted(-largestMargin, -largestMargin, largestMargin, largestMargin).contains(bounds),
             qPrintable(QStringLiteral("%1 × %2 for %3 × %4")
                            .arg(bounds.width())
                            .arg(bounds.height())
                            .arg(needed.width())
                            .arg(needed.height())));
}

void TestBounds::selectedShapesHaveRoomForTheirControlPoints()
{
    ShapeDriver shape(QStringLiteral("triangle"));
    shape.createByDrag(QSizeF(120, 90));
    setPenWidth(shape, 30);
    shape.object().setSelected(false);
    const QRectF unselected = shape.object().boundingRect();
    shape.select();
    const QRectF selected = shape.object().boundingRect();
    const QRectF point = shape.controlPoint(1); // document units are item units here
    QVERIFY(selected.contains(point));
    shape.object().setSelected(false);
    QCOMPARE(shape.object().boundingRect(), unselected);
}

void TestBounds::pointingAtAShapeLeavesItsBounds()
{
    ShapeDriver shape(QStringLiteral("star"));
    shape.createByDrag(QSizeF(120, 90));
    shape.object().setSelected(false);
    const QRectF bounds = shape.object().boundingRect();
    QVERIFY(shape.object().contains(QPointF(60, 45)));
    QCOMPARE(shape.object().boundingRect(), bounds);
}

QTEST_MAIN(TestBounds)
#include "test_bounds.moc"

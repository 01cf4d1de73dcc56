// Reshaping by control points. Positions are top-left corners in document units, worked out from the templates.

#include <shapes/shapedriver.h>

#include <svgobj/csvgbase.h>
#include <svgobj/csvgobj.h>

#include <pagehost/application.h>
#include <pagehost/document.h>

#include <svgbase/qzesvgtinydocument.h>

#include <support/listed.h>

#include <QtTest/QtTest>
#include <QtWidgets/QUndoStack>

using shapetest::ShapeDriver;

class TestControlPoints : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void standWhereTheTemplateSays_data();
    void standWhereTheTemplateSays();
    void centresLieInsideTheFigure_data();
    void centresLieInsideTheFigure();
    void dragInsideTheLimitsLandsExactly_data();
    void dragInsideTheLimitsLandsExactly();
    void dragStopsAtTheLimits_data();
    void dragStopsAtTheLimits();
    void undoAndRedoOfADragAreExact_data();
    void undoAndRedoOfADragAreExact();
    void undoAndRedoAreExactAfterZooming_data();
    void undoAndRedoAreExactAfterZooming();
    void everyStepOfADragRefreshesThePicture_data();
    void everyStepOfADragRefreshesThePicture();
    void undoRefreshesThePicture_data();
    void undoRefreshesThePicture();
    void arrowHeadLeavesRoomForTheNotch();
    void arrowNotchLeavesRoomForTheHead();
    void cornersOfTheRectangleBecomeSquare();
    void otherCornersOfThePolygonStay();
    void liquidRisesWithItsControlPoint();
    void regionHoldsEveryControlPoint_data();
    void regionHoldsEveryControlPoint();
    void controlPointsAreNoPartOfTheFill();

private:
    void addShapeRows();
};

void TestControlPoints::addShapeRows()
{
    QTest::addColumn<QString>("name");
    for (const QString &name : support::listed(shapetest::shapeNames()))
        QTest::newRow(qPrintable(name)) << name;
}

void TestControlPoints::standWhereTheTemplateSays_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("number");
    QTest::addColumn<QPointF>("corner");
    QTest::newRow("rounded rectangle") << "roundedrectangle" << 1 << QPointF(20, 8);
    QTest::newRow("arrow head") << "blockarrow" << 1 << QPointF(86, 27);
    QTest::newRow("arrow notch") << "blockarrow" << 2 << QPointF(4, 41);
    QTest::newRow("first corner") << "polygon" << 1 << QPointF(56, 0);
    QTest::newRow("last corner") << "polygon" << 5 << QPointF(0, 41);
    QTest::newRow("level") << "flask" << 1 << QPointF(56, 86);
}

void TestControlPoints::standWhereTheTemplateSays()
{
    QFETCH(QString, name);
    QFETCH(int, number);
    QFETCH(QPointF, corner);
    ShapeDriver shape(name);
    shape.createByClick();
    QCOMPARE(shape.controlPoint(number), QRectF(corner, QSizeF(8, 8)));
}

void TestControlPoints::centresLieInsideTheFigure_data()
{
    addShapeRows();
}

void TestControlPoints::centresLieInsideTheFigure()
{
    QFETCH(QString, name);
    ShapeDriver shape(name);
    shape.createByClick();
    QPainterPath region;
    QVERIFY(shape.core().getOutlinePath(&region));
    for (int i = 1; i <= shape.controlPointCount(); ++i)
        QVERIFY2(region.contains(shape.controlPoint(i).center()), qPrintable(QString::number(i)));
}

void TestControlPoints::dragInsideTheLimitsLandsExactly_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("number");
    QTest::addColumn<QPointF>("delta");
    QTest::addColumn<QPointF>("corner");
    QTest::newRow("radius") << "roundedrectangle" << 1 << QPointF(10.25, 0) << QPointF(30.25, 8);
    QTest::newRow("radius, sloppily") << "roundedrectangle" << 1 << QPointF(-7, 20) << QPointF(13, 8);
    QTest::newRow("arrow head") << "blockarrow" << 1 << QPointF(-20, -8.5) << QPointF(66, 18.5);
    QTest::newRow("arrow notch") << "blockarrow" << 2 << QPointF(12, 5) << QPointF(16, 41);
    QTest::newRow("corner 2") << "polygon" << 2 << QPointF(-10, 7) << QPointF(102, 48);
    QTest::newRow("corner 4") << "polygon" << 4 << QPointF(20.5, -30.25) << QPointF(41.5, 75.75);
    QTest::newRow("level") << "flask" << 1 << QPointF(50, 20) << QPointF(56, 106);
}

void TestControlPoints::dragInsideTheLimitsLandsExactly()
{
    QFETCH(QString, name);
    QFETCH(int, number);
    QFETCH(QPointF, delta);
    QFETCH(QPointF, corner);
    ShapeDriver shape(name);
    shape.createByClick();
    shape.select();
    const QString before = shape.geometry();
    shape.dragControlPoint(number, delta);
    QCOMPARE(shape.controlPoint(number).topLeft(), corner);
    QVERIFY(shape.geometry() != before);
    QCOMPARE(shape.undoStack().count(), 1);
}

void TestControlPoints::dragStopsAtTheLimits_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("number");
    QTest::addColumn<QPointF>("delta");
    QTest::addColumn<QPointF>("corner");
    // The radius goes from 0 to half the shorter side: centres at 8 and 8 + 40.
    QTest::newRow("radius, largest") << "roundedrectangle" << 1 << QPointF(90, 0) << QPointF(44, 8);
    QTest::newRow("radius, smallest") << "roundedrectangle" << 1 << QPointF(-90, 0) << QPointF(4, 8);
    // The head starts 20 behind the tail at least, and is 8 long; its centre is 6 from the top and at the middle.
    QTest::newRow("head, up and left") << "blockarrow" << 1 << QPointF(-200, -200) << QPointF(16, 2);
    QTest::newRow("head, down and right") << "blockarrow" << 1 << QPointF(200, 200) << QPointF(128, 41);
    // 20 before the head at 90, and the control point 8 behind the notch.
    QTest::newRow("notch, deepest") << "blockarrow" << 2 << QPointF(200, 0) << QPointF(74, 41);
    QTest::newRow("notch, none") << "blockarrow" << 2 << QPointF(-50, 0) << QPointF(4, 41);
    // 4 from the frame, which is 120 × 114.
    QTest::newRow("corner, down and right") << "polygon" << 1 << QPointF(300, 300) << QPointF(112, 106);
    QTest::newRow("corner, up and left") << "polygon" << 3 << QPointF(-300, -300) << QPointF(0, 0);
    QTest::newRow("level, full") << "flask" << 1 << QPointF(0, -100) << QPointF(56, 56);
    QTest::newRow("level, empty") << "flask" << 1 << QPointF(0, 100) << QPointF(56, 122);
}

void TestControlPoints::dragStopsAtTheLimits()
{
    QFETCH(QString, name);
    QFETCH(int, number);
    QFETCH(QPointF, delta);
    QFETCH(QPointF, corner);
    ShapeDriver shape(name);
    shape.createByClick();
    shape.select();
    shape.dragControlPoint(number, delta);
    QCOMPARE(shape.controlPoint(number).topLeft(), corner);
}

void TestControlPoints::undoAndRedoOfADragAreExact_data()
{
    dragInsideTheLimitsLandsExactly_data();
}

void TestControlPoints::undoAndRedoOfADragAreExact()
{
    QFETCH(QString, name);
    QFETCH(int, number);
    QFETCH(QPointF, delta);
    ShapeDriver shape(name);
    shape.createByDrag(QSizeF(150, 200));
    shape.select();
    const QString first = shape.geometry();
    shape.dragControlPoint(number, delta / 4);
    const QString second = shape.geometry();
    shape.dragControlPoint(number, delta / 8);
    const QString third = shape.geometry();
    QVERIFY(first != second && second != third);

    shape.undoStack().undo();
    QCOMPARE(shape.geometry(), second);
    shape.undoStack().undo();
    QCOMPARE(shape.geometry(), first);
    shape.undoStack().redo();
    QCOMPARE(shape.geometry(), second);
    shape.undoStack().redo();
    QCOMPARE(shape.geometry(), third);
}

void TestControlPoints::undoAndRedoAreExactAfterZooming_data()
{
    dragInsideTheLimitsLandsExactly_data();
}

void TestControlPoints::undoAndRedoAreExactAfterZooming()
{
    QFETCH(QString, name);
    QFETCH(int, number);
    QFETCH(QPointF, delta);
    pagehost::Document document;
    pagehost::setCurrentDocument(&document);
    {
        ShapeDriver shape(name);
        shape.createByClick();
        shape.select();
        const auto zoomTo = [&](double zoom) {
            document.setZoomRate(zoom);
            shape.core().invalidate();
        };
        const QString first = shape.geometry();
        const QPointF firstCentre = shape.controlPoint(number).center();
        shape.dragControlPoint(number, delta);
        zoomTo(0.5);
        QCOMPARE(shape.controlPoint(number).size(), QSizeF(16, 16));
        shape.dragControlPoint(number, delta / -4);
        const QPointF lastCentre = shape.controlPoint(number).center();

        zoomTo(2);
        shape.undoStack().undo();
        shape.undoStack().undo();
        QCOMPARE(shape.controlPoint(number).center(), firstCentre);
        zoomTo(0.5);
        shape.undoStack().redo();
        shape.undoStack().redo();
        QCOMPARE(shape.controlPoint(number).center(), lastCentre);
        shape.undoStack().undo();
        shape.undoStack().undo();
        zoomTo(1);
        QCOMPARE(shape.geometry(), first);
    }
    pagehost::setCurrentDocument(nullptr);
}

void TestControlPoints::everyStepOfADragRefreshesThePicture_data()
{
    dragInsideTheLimitsLandsExactly_data();
}

void TestControlPoints::everyStepOfADragRefreshesThePicture()
{
    QFETCH(QString, name);
    QFETCH(int, number);
    QFETCH(QPointF, delta);
    ShapeDriver shape(name);
    shape.createByClick();
    shape.select();
    const QImage before = shape.paintedElsewhere();
    shape.holdControlPoint(number, delta);
    const QImage during = shape.paintedElsewhere();
    QVERIFY(during != before);
    // The picture shows the last step, fill included, and not the one before.
    shape.core().invalidate();
    QCOMPARE(shape.paintedElsewhere(), during);
}

void TestControlPoints::undoRefreshesThePicture_data()
{
    dragInsideTheLimitsLandsExactly_data();
}

void TestControlPoints::undoRefreshesThePicture()
{
    QFETCH(QString, name);
    QFETCH(int, number);
    QFETCH(QPointF, delta);
    ShapeDriver shape(name);
    shape.createByClick();
    shape.select();
    shape.core().invalidate();
    const QImage before = shape.paintedElsewhere();
    shape.dragControlPoint(number, delta);
    const QImage after = shape.paintedElsewhere();
    shape.undoStack().undo();
    QCOMPARE(shape.paintedElsewhere(), before);
    shape.undoStack().redo();
    QCOMPARE(shape.paintedElsewhere(), after);
}

void TestControlPoints::arrowHeadLeavesRoomForTheNotch()
{
    ShapeDriver shape(QStringLiteral("blockarrow"));
    shape.createByClick();
    shape.select();
    shape.dragControlPoint(2, QPointF(30, 0));
    QCOMPARE(shape.controlPoint(2).topLeft(), QPointF(34, 41));
    // The notch is 30 deep now, so that the head starts at 50 at least.
    shape.dragControlPoint(1, QPointF(-200, 0));
    QCOMPARE(shape.controlPoint(1).topLeft(), QPointF(46, 27));
    QCOMPARE(shape.controlPoint(2).topLeft(), QPointF(34, 41));
}

void TestControlPoints::arrowNotchLeavesRoomForTheHead()
{
    ShapeDriver shape(QStringLiteral("blockarrow"));
    shape.createByClick();
    shape.select();
    shape.dragControlPoint(1, QPointF(-40, 0));
    QCOMPARE(shape.controlPoint(1).topLeft(), QPointF(46, 27));
    // The head starts at 50 now, so that the notch is 30 deep at most.
    shape.dragControlPoint(2, QPointF(200, 0));
    QCOMPARE(shape.controlPoint(2).topLeft(), QPointF(34, 41));
    QCOMPARE(shape.controlPoint(1).topLeft(), QPointF(46, 27));
}

void TestControlPoints::cornersOfTheRectangleBecomeSquare()
{
    ShapeDriver shape(QStringLiteral("roundedrectangle"));
    shape.createByClick();
    shape.select();
    const QPoint corner(3, 3);
    QCOMPARE(shape.colorAt(corner), QColor(Qt::white));
    shape.dragControlPoint(1, QPointF(-50, 0));
    QCOMPARE(shape.colorAt(corner), shape.core().getFillBrush().color());
}

void TestControlPoints::otherCornersOfThePolygonStay()
{
    ShapeDriver shape(QStringLiteral("polygon"));
    shape.createByClick();
    shape.select();
    shape.dragControlPoint(3, QPointF(-12, -9));
    const QVector<QPointF> expected{{60, 4}, {116, 45}, {83, 101}, {25, 110}, {4, 45}};
    const QPolygonF corners = shape.document().namedNode(QStringLiteral("figure"))->polygon();
    for (int i = 0; i < expected.size(); ++i)
        QCOMPARE(corners.value(i), expected.at(i));
}

void TestControlPoints::liquidRisesWithItsControlPoint()
{
    ShapeDriver shape(QStringLiteral("flask"));
    shape.createByClick();
    shape.select();
    const QPoint aboveTheLevel(60, 80);
    const QColor liquid(0x7f, 0xd0, 0xe6);
    QVERIFY(shape.colorAt(aboveTheLevel) != liquid);
    shape.dragControlPoint(1, QPointF(0, -25));
    QCOMPARE(shape.colorAt(aboveTheLevel), liquid);
}

void TestControlPoints::regionHoldsEveryControlPoint_data()
{
    addShapeRows();
}

void TestControlPoints::regionHoldsEveryControlPoint()
{
    QFETCH(QString, name);
    ShapeDriver shape(name);
    shape.createByClick();
    const QPainterPath region = shape.object().shape();
    for (int i = 1; i <= shape.controlPointCount(); ++i) {
        const QRectF inner = shape.controlPoint(i).adjusted(0.5, 0.5, -0.5, -0.5);
        for (const QPointF &point : {inner.topLeft(), inner.topRight(), inner.bottomLeft(), inner.bottomRight()})
            QVERIFY2(region.contains(point), qPrintable(QString::number(i)));
    }
}

void TestControlPoints::controlPointsAreNoPartOfTheFill()
{
    // A corner of the polygon's own control point that lies outside the figure stays empty while unselected.
    ShapeDriver shape(QStringLiteral("polygon"));
    shape.createByClick();
    QPainterPath outline;
    QVERIFY(shape.core().getOutlineRegion(&outline));
    QVERIFY(!outline.contains(QPointF(57, 1)));
    QVERIFY(shape.controlPoint(1).contains(QPointF(57, 1)));
    QCOMPARE(shape.colorAt(QPoint(57, 1)), QColor(Qt::white));
}

QTEST_MAIN(TestControlPoints)
#include "test_controlpoints.moc"

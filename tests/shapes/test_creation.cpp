// Drawing a new shape with the mouse.

#include <shapes/shapedriver.h>

#include <svgobj/csvgbase.h>
#include <svgobj/csvgobj.h>

#include <svgbase/qzesvgtinydocument.h>

#include <support/listed.h>

#include <QtGui/QPainter>
#include <QtTest/QtTest>

using shapetest::ShapeDriver;

namespace {

/// The three shapes that are drawn anew for every size.
QStringList fittedShapes()
{
    return {QStringLiteral("roundedrectangle"), QStringLiteral("blockarrow"), QStringLiteral("polygon")};
}

/// Paints the shape with room around it and gives the first painted pixel outside its frame, in item coordinates;
/// empty when there is none.
QString paintOutsideTheFrame(const ShapeDriver &shape)
{
    constexpr int room = 10;
    const QRect frame(QPoint(room, room), shape.object().getClientRect().size().toSize());
    QImage picture(frame.size() + QSize(2 * room, 2 * room), QImage::Format_ARGB32);
    picture.fill(Qt::white);
    QPainter painter(&picture);
    painter.translate(room, room);
    shape.object().OnQPainterDraw(&painter);
    painter.end();
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x)
            if (!frame.contains(x, y) && picture.pixelColor(x, y) != QColor(Qt::white))
                return QStringLiteral("painted at %1, %2").arg(x - room).arg(y - room);
    }
    return {};
}

} // namespace

class TestCreation : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void clickGivesTheDefaultSize_data();
    void clickGivesTheDefaultSize();
    void dragGivesTheDraggedSize_data();
    void dragGivesTheDraggedSize();
    void flaskKeepsItsProportions();
    void viewBoxFollowsTheLastStepOfTheDrag_data();
    void viewBoxFollowsTheLastStepOfTheDrag();
    void tinyDragGivesThirtyByThirty_data();
    void tinyDragGivesThirtyByThirty();
    void newShapeHasThePenOfThePageObject_data();
    void newShapeHasThePenOfThePageObject();
    void newShapeIsFilled_data();
    void newShapeIsFilled();
    void figureStaysInsideTheFrameWithTheWidestPen_data();
    void figureStaysInsideTheFrameWithTheWidestPen();
    void thickestArrowStaysInsideTheFrameWithTheWidestPen();
};

void TestCreation::clickGivesTheDefaultSize_data()
{
    QTest::addColumn<QSizeF>("size");
    QTest::newRow("roundedrectangle") << QSizeF(120, 80);
    QTest::newRow("blockarrow") << QSizeF(140, 90);
    QTest::newRow("polygon") << QSizeF(120, 114);
    QTest::newRow("flask") << QSizeF(120, 160);
}

void TestCreation::clickGivesTheDefaultSize()
{
    QFETCH(QSizeF, size);
    ShapeDriver shape(QString::fromLatin1(QTest::currentDataTag()));
    shape.createByClick();
    QVERIFY(shape.object().isCreateFinished());
    QCOMPARE(shape.object().getClientRect(), QRectF(QPointF(0, 0), size));
    QCOMPARE(shape.document().viewBox(), QRectF(QPointF(0, 0), size));
}

void TestCreation::dragGivesTheDraggedSize_data()
{
    QTest::addColumn<QString>("name");
    for (const QString &name : support::listed(fittedShapes()))
        QTest::newRow(qPrintable(name)) << name;
}

void TestCreation::dragGivesTheDraggedSize()
{
    QFETCH(QString, name);
    ShapeDriver shape(name);
    shape.createByDrag(QSizeF(200, 150));
    QVERIFY(shape.object().isCreateFinished());
    QCOMPARE(shape.object().getClientRect(), QRectF(0, 0, 200, 150));
}

void TestCreation::flaskKeepsItsProportions()
{
    // 3 : 4, and 150 high at most.
    ShapeDriver shape(QStringLiteral("flask"));
    shape.createByDrag(QSizeF(200, 150));
    QCOMPARE(shape.object().getClientRect(), QRectF(0, 0, 112.5, 150));
    QCOMPARE(shape.document().viewBox(), QRectF(0, 0, 120, 160));
}

void TestCreation::viewBoxFollowsTheLastStepOfTheDrag_data()
{
    dragGivesTheDraggedSize_data();
}

void TestCreation::viewBoxFollowsTheLastStepOfTheDrag()
{
    QFETCH(QString, name);
    ShapeDriver shape(name);
    shape.press(QPointF(0, 0));
    shape.moveTo(QPointF(90, 70));
    shape.release(QPointF(200, 150));
    QCOMPARE(shape.document().viewBox(), QRectF(0, 0, 200, 150));
    // The picture that other threads copy was made after that.
    const QImage picture = shape.paintedElsewhere();
    shape.core().invalidate();
    QCOMPARE(picture, shape.paintedElsewhere());
    QVERIFY(shape.object().shape().boundingRect().right() > 190);
}

void TestCreation::tinyDragGivesThirtyByThirty_data()
{
    dragGivesTheDraggedSize_data();
}

void TestCreation::tinyDragGivesThirtyByThirty()
{
    QFETCH(QString, name);
    ShapeDriver shape(name);
    shape.createByDrag(QSizeF(10, 12));
    QCOMPARE(shape.object().getClientRect(), QRectF(0, 0, 30, 30));
    QCOMPARE(shape.document().viewBox(), QRectF(0, 0, 30, 30));
}

void TestCreation::newShapeHasThePenOfThePageObject_data()
{
    QTest::addColumn<QString>("name");
    for (const QString &name : support::listed(shapetest::shapeNames()))
        QTest::newRow(qPrintable(name)) << name;
}

void TestCreation::newShapeHasThePenOfThePageObject()
{
    QFETCH(QString, name);
    const ShapeDriver shape(name);
    QCOMPARE(shape.core().getPenColor(), shape.object().getMyPen().color());
    QCOMPARE(shape.core().getPenStyle(), Qt::SolidLine);
    QCOMPARE(shape.core().getPenWidth(), name == QLatin1String("flask") ? 3 : 2);
}

void TestCreation::newShapeIsFilled_data()
{
    QTest::addColumn<QPoint>("inside");
    QTest::addColumn<QColor>("fill");
    QTest::newRow("roundedrectangle") << QPoint(60, 40) << QColor(0xd3, 0xe4, 0xfd);
    QTest::newRow("blockarrow") << QPoint(60, 45) << QColor(0xff, 0xdf, 0x9e);
    QTest::newRow("polygon") << QPoint(60, 60) << QColor(0xc9, 0xec, 0xc8);
    QTest::newRow("flask") << QPoint(60, 120) << QColor(0x7f, 0xd0, 0xe6);
}

void TestCreation::newShapeIsFilled()
{
    QFETCH(QPoint, inside);
    QFETCH(QColor, fill);
    ShapeDriver shape(QString::fromLatin1(QTest::currentDataTag()));
    shape.createByClick();
    QCOMPARE(shape.core().getFillBrush().color(), fill);
    QCOMPARE(shape.colorAt(inside), fill);
}

void TestCreation::figureStaysInsideTheFrameWithTheWidestPen_data()
{
    newShapeHasThePenOfThePageObject_data();
}

void TestCreation::figureStaysInsideTheFrameWithTheWidestPen()
{
    QFETCH(QString, name);
    ShapeDriver shape(name);
    shape.createByClick();
    shape.core().setPenWidth(8, false);
    QCOMPARE(paintOutsideTheFrame(shape), QString());
}

void TestCreation::thickestArrowStaysInsideTheFrameWithTheWidestPen()
{
    ShapeDriver shape(QStringLiteral("blockarrow"));
    shape.createByClick();
    shape.select();
    shape.dragControlPoint(1, QPointF(0, -100));
    shape.core().setPenWidth(8, false);
    QCOMPARE(paintOutsideTheFrame(shape), QString());
}

QTEST_MAIN(TestCreation)
#include "test_creation.moc"

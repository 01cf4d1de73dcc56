// Effects of a new size on a shape.

#include <shapes/shapedriver.h>

#include <svgobj/csvgbase.h>
#include <svgobj/csvgobj.h>

#include <svgbase/qzesvgtinydocument.h>

#include <support/listed.h>

#include <QtTest/QtTest>

using shapetest::ShapeDriver;

class TestResizing : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void controlPointsFollowTheSize_data();
    void controlPointsFollowTheSize();
    void controlPointsStaySquareAtAnySize_data();
    void controlPointsStaySquareAtAnySize();
    void formComesBackWithTheSize_data();
    void formComesBackWithTheSize();
    void formComesBackAfterAnotherPenWidth();
    void sizeNeverGoesBelowTheMinimum_data();
    void sizeNeverGoesBelowTheMinimum();
    void cornersOfTheRectangleStayRound();
    void lineKeepsItsWidth_data();
    void lineKeepsItsWidth();
    void flaskIsStretchedAsAWhole();
    void savedShapeComesBack_data();
    void savedShapeComesBack();
    void savedPolygonBringsItsCornersAlong();
    void starOfFiveStrokesIsFilledInItsMiddle();
    void damagedDataIsSurvived_data();
    void damagedDataIsSurvived();

private:
    void addShapeRows();
};

void TestResizing::addShapeRows()
{
    QTest::addColumn<QString>("name");
    for (const QString &name : support::listed(shapetest::shapeNames()))
        QTest::newRow(qPrintable(name)) << name;
}

void TestResizing::controlPointsFollowTheSize_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QSizeF>("size");
    QTest::addColumn<int>("number");
    QTest::addColumn<QPointF>("corner");
    // A fifth of the shorter side, and (8, 12) from there to the centre.
    QTest::newRow("radius, wider") << "roundedrectangle" << QSizeF(240, 80) << 1 << QPointF(20, 8);
    QTest::newRow("radius, twice as large") << "roundedrectangle" << QSizeF(240, 160) << 1 << QPointF(36, 8);
    QTest::newRow("radius, half as large") << "roundedrectangle" << QSizeF(60, 40) << 1 << QPointF(12, 8);
    // The head is 50/90 of the shorter side, half the shaft 20/90 of the height, 6 down from its corner.
    QTest::newRow("head, wider") << "blockarrow" << QSizeF(280, 90) << 1 << QPointF(226, 27);
    QTest::newRow("head, twice as large") << "blockarrow" << QSizeF(280, 180) << 1 << QPointF(176, 52);
    QTest::newRow("notch, twice as large") << "blockarrow" << QSizeF(280, 180) << 2 << QPointF(4, 86);
    QTest::newRow("corner, twice as wide") << "polygon" << QSizeF(240, 114) << 2 << QPointF(232, 41);
    // Stretched at paint time: the document does not change.
    QTest::newRow("level") << "flask" << QSizeF(240, 320) << 1 << QPointF(56, 86);
}

void TestResizing::controlPointsFollowTheSize()
{
    QFETCH(QString, name);
    QFETCH(QSizeF, size);
    QFETCH(int, number);
    QFETCH(QPointF, corner);
    ShapeDriver shape(name);
    shape.createByClick();
    shape.object().setSize(size, false, false);
    QCOMPARE(shape.object().getClientRect().size(), size);
    QCOMPARE(shape.controlPoint(number).topLeft(), corner);
}

void TestResizing::controlPointsStaySquareAtAnySize_data()
{
    addShapeRows();
}

void TestResizing::controlPointsStaySquareAtAnySize()
{
    QFETCH(QString, name);
    ShapeDriver shape(name);
    shape.createByClick();
    shape.object().setSize(QSizeF(333, 51), false, false);
    for (int i = 1; i <= shape.controlPointCount(); ++i)
        QCOMPARE(shape.controlPoint(i).size(), QSizeF(8, 8));
}

void TestResizing::formComesBackWithTheSize_data()
{
    addShapeRows();
}

void TestResizing::formComesBackWithTheSize()
{
    QFETCH(QString, name);
    ShapeDriver shape(name);
    shape.createByClick();
    const QSizeF size = shape.object().getClientRect().size();
    const QString before = shape.geometry();
    // Far too small for the form, and then as it was.
    shape.object().setSize(QSizeF(24, 24), false, false);
    shape.object().setSize(size, false, false);
    if (name != QLatin1String("flask"))
        QCOMPARE(shape.object().getClientRect().size(), size);
    QCOMPARE(shape.geometry(), before);
}

void TestResizing::formComesBackAfterAnotherPenWidth()
{
    ShapeDriver shape(QStringLiteral("blockarrow"));
    shape.createByClick();
    const QString before = shape.geometry();
    // The head has no room here; a new pen must not take that for what the user wants.
    shape.object().setSize(QSizeF(40, 90), false, false);
    shape.core().setPenWidth(5, false);
    shape.core().setPenWidth(2, false);
    shape.object().setSize(QSizeF(140, 90), false, false);
    QCOMPARE(shape.geometry(), before);
}

void TestResizing::sizeNeverGoesBelowTheMinimum_data()
{
    QTest::addColumn<QSizeF>("minimum");
    QTest::newRow("roundedrectangle") << QSizeF(24, 24);
    QTest::newRow("blockarrow") << QSizeF(32, 24);
    QTest::newRow("polygon") << QSizeF(24, 24);
    // 16 × 16, then brought to 3 : 4.
    QTest::newRow("flask") << QSizeF(12, 16);
}

void TestResizing::sizeNeverGoesBelowTheMinimum()
{
    QFETCH(QSizeF, minimum);
    ShapeDriver shape(QString::fromLatin1(QTest::currentDataTag()));
    shape.createByClick();
    shape.object().setSize(QSizeF(1, 1), false, false);
    QCOMPARE(shape.object().getClientRect().size(), minimum);
}

void TestResizing::cornersOfTheRectangleStayRound()
{
    ShapeDriver shape(QStringLiteral("roundedrectangle"));
    shape.createByClick();
    shape.object().setSize(QSizeF(400, 100), false, false);
    // The radius is 20, the line runs 1 inside the frame: the corner's circle has its centre at (20, 20).
    const QPainterPath figure = shape.document().namedNode(QStringLiteral("figure"))->path();
    for (const double degrees : {180.0, 200.0, 225.0, 250.0, 270.0}) {
        const QLineF spoke = QLineF::fromPolar(1, -degrees);
        const QPointF direction(spoke.dx(), spoke.dy());
        QVERIFY(figure.contains(QPointF(20, 20) + direction * 18.9));
        QVERIFY(!figure.contains(QPointF(20, 20) + direction * 19.1));
    }
}

void TestResizing::lineKeepsItsWidth_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("roundedrectangle") << "roundedrectangle";
    QTest::newRow("blockarrow") << "blockarrow";
}

void TestResizing::lineKeepsItsWidth()
{
    QFETCH(QString, name);
    ShapeDriver shape(name);
    shape.createByClick();
    shape.core().setPenColor(Qt::black, false);
    shape.object().setSize(QSizeF(600, 90), false, false);
    // The left edge, well between the corners: two black columns, then the fill.
    const QImage picture = shape.painted();
    QCOMPARE(picture.pixelColor(0, 40), QColor(Qt::black));
    QCOMPARE(picture.pixelColor(1, 40), QColor(Qt::black));
    QCOMPARE(picture.pixelColor(2, 40), shape.core().getFillBrush().color());
}

void TestResizing::flaskIsStretchedAsAWhole()
{
    ShapeDriver shape(QStringLiteral("flask"));
    shape.createByClick();
    const QString before = shape.geometry();
    shape.object().setSize(QSizeF(300, 320), false, false);
    QCOMPARE(shape.object().getClientRect().size(), QSizeF(240, 320));
    QCOMPARE(shape.geometry(), before);
    QCOMPARE(shape.colorAt(QPoint(120, 240)), QColor(0x7f, 0xd0, 0xe6));
}

void TestResizing::savedShapeComesBack_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QPointF>("delta");
    QTest::newRow("roundedrectangle") << "roundedrectangle" << QPointF(12, 0);
    QTest::newRow("blockarrow") << "blockarrow" << QPointF(-15, -9);
    QTest::newRow("polygon") << "polygon" << QPointF(20, 30);
    QTest::newRow("flask") << "flask" << QPointF(0, 17);
}

void TestResizing::savedShapeComesBack()
{
    QFETCH(QString, name);
    QFETCH(QPointF, delta);
    ShapeDriver original(name);
    original.createByDrag(QSizeF(180, 240));
    original.select();
    original.dragControlPoint(1, delta);
    original.core().setPenWidth(5, false);
    QByteArray bytes;
    QDataStream out(&bytes, QIODevice::WriteOnly);
    QVERIFY(original.object().save(out));

    ShapeDriver copy(name);
    QDataStream in(bytes);
    QVERIFY(copy.object().load(in));
    QVERIFY(in.atEnd());
    QCOMPARE(copy.object().getClientRect(), original.object().getClientRect());
    QCOMPARE(copy.geometry(), original.geometry());
    original.object().setSelected(false);
    QCOMPARE(copy.painted(), original.painted());
}

void TestResizing::savedPolygonBringsItsCornersAlong()
{
    // Raw control points: the view box, the count, and top-left corners; then the flags of fill and pen.
    const QVector<QPointF> corners{{6, 6}, {106, 6}, {106, 86}, {56, 46}, {6, 86}, {16, 46}};
    QByteArray bytes;
    QDataStream out(&bytes, QIODevice::WriteOnly);
    out << QRectF(0, 0, 120, 100) << qint32(corners.size());
    for (const QPointF &corner : corners)
        out << corner.x() << corner.y();
    out << false << false << false << false;

    ShapeDriver shape(QStringLiteral("polygon"));
    QDataStream in(bytes);
    QVERIFY(shape.core().load(in));
    const QPolygonF drawn = shape.document().namedNode(QStringLiteral("figure"))->polygon();
    for (int i = 0; i < corners.size(); ++i)
        QCOMPARE(drawn.value(i), corners.at(i) + QPointF(4, 4));
    QCOMPARE(shape.controlPointCount(), 6);
}

void TestResizing::starOfFiveStrokesIsFilledInItsMiddle()
{
    ShapeDriver shape(QStringLiteral("polygon"));
    shape.createByClick();
    shape.select();
    // From the pentagon to the star: each corner goes where the next but one stood.
    const QVector<QPointF> pentagon{{60, 4}, {116, 45}, {95, 110}, {25, 110}, {4, 45}};
    for (int i = 0; i < 5; ++i)
        shape.dragControlPoint(i + 1, pentagon.at(2 * i % 5) - shape.controlPoint(i + 1).center());
    QCOMPARE(shape.colorAt(QPoint(60, 60)), shape.core().getFillBrush().color());
    QCOMPARE(shape.colorAt(QPoint(60, 105)), QColor(Qt::white));
}

void TestResizing::damagedDataIsSurvived_data()
{
    addShapeRows();
}

void TestResizing::damagedDataIsSurvived()
{
    QFETCH(QString, name);
    ShapeDriver original(name);
    original.createByClick();
    QByteArray bytes;
    QDataStream out(&bytes, QIODevice::WriteOnly);
    original.core().save(out);
    for (int length = 0; length < bytes.size(); length += 3) {
        ShapeDriver shape(name);
        shape.createByClick();
        const QByteArray part = bytes.left(length);
        QDataStream in(part);
        QVERIFY(shape.core().load(in));
        shape.core().invalidate();
        shape.object().setSize(QSizeF(100, 100), false, false);
        QVERIFY(shape.object().getClientRect().isValid());
    }
}

QTEST_MAIN(TestResizing)
#include "test_resizing.moc"

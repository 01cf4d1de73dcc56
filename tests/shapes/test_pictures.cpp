// Pictures from elsewhere, and the look of shapes for others.

#include <shapes/shapedriver.h>

#include <svgobj/csvgbase.h>
#include <svgobj/csvgobj.h>

#include <framework/cpagebgprop.h>
#include <pagehost/style.h>

#include <svgbase/qzesvgtinydocument.h>

#include <support/listed.h>

#include <QtCore/QBuffer>
#include <QtCore/QJsonDocument>
#include <QtGui/QPainter>
#include <QtTest/QtTest>

#include <memory>

using shapetest::ShapeDriver;

namespace {

const QString svgType = QStringLiteral("image/svg+xml");
const QString name = QStringLiteral("picture");
const QByteArray redSquare = "<svg xmlns='http://www.w3.org/2000/svg' width='60' height='40' viewBox='0 0 6 4'>"
                             "<rect width='6' height='4' fill='#ff0000'/></svg>";

QByteArray pngOf(const QSize &size, const QColor &color)
{
    QImage image(size, QImage::Format_ARGB32);
    image.fill(color);
    QByteArray png;
    QBuffer buffer(&png);
    image.save(&buffer, "PNG");
    return png;
}

QImage drawnSvg(const QByteArray &svg, const QSizeF &size)
{
    QImage picture(size.toSize(), QImage::Format_ARGB32);
    picture.fill(Qt::white);
    const std::unique_ptr<QZeSvgTinyDocument> document(QZeSvgTinyDocument::load(svg));
    if (!document)
        return {};
    QPainter painter(&picture);
    document->drawFitted(&painter, QRectF(QPointF(0, 0), size));
    return picture;
}

} // namespace

class TestPictures : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void onlyThePictureTakesPixels();
    void svgBecomesAnObjectOfItsOwnSize();
    void pixelsBecomeAnObjectOfTheirSize();
    void unreadableDataBecomesNothing_data();
    void unreadableDataBecomesNothing();
    void controlPointsOfAPictureAreNone();
    void pictureIsSavedWithTheObject();
    void pictureKeepsItsColors();
    void opacityFadesThePicture();
    void regionIsTheWholeFrame();
    void lookForOthersIsWhatIsSeen_data();
    void lookForOthersIsWhatIsSeen();
    void lookForOthersIsSvgAlone();

private:
    /// A finished object of such data in the driver's place; false when there was none.
    bool show(ShapeDriver &driver, const QString &type, const QByteArray &data);
};

bool TestPictures::show(ShapeDriver &driver, const QString &type, const QByteArray &data)
{
    QString kind;
    CBaseObject *object = driver.plugin()->createFromData(type, data, kind);
    if (!object)
        return false;
    if (kind != QStringLiteral("shapes.picture"))
        qFatal("kind %s", qPrintable(kind));
    driver.takeObject(object);
    driver.createByClick();
    return true;
}

void TestPictures::onlyThePictureTakesPixels()
{
    for (const QString &shape : support::listed(shapetest::allShapeNames())) {
        const ShapeDriver driver(shape);
        const QStringList types = driver.plugin()->dataTypes();
        // Shapes that files declare share a plug-in.
        if (driver.plugin()->objectKinds().size() > 1)
            QCOMPARE(types, QStringList({svgType}));
        else
            QCOMPARE(!types.isEmpty(), shape == name);
    }
    const QStringList types = ShapeDriver(name).plugin()->dataTypes();
    QCOMPARE(types.first(), svgType);
    QVERIFY(types.contains(QStringLiteral("image/png")) && types.contains(QStringLiteral("image/jpeg")));
}

void TestPictures::svgBecomesAnObjectOfItsOwnSize()
{
    ShapeDriver picture(name);
    QVERIFY(show(picture, svgType, redSquare));
    QCOMPARE(picture.object().getClientRect(), QRectF(0, 0, 60, 40));
    QCOMPARE(picture.colorAt(QPoint(30, 20)), QColor(Qt::red));
    QCOMPARE(picture.paintedElsewhere().pixelColor(58, 38), QColor(Qt::red));
}

void TestPictures::pixelsBecomeAnObjectOfTheirSize()
{
    ShapeDriver picture(name);
    QVERIFY(show(picture, QStringLiteral("image/png"), pngOf(QSize(50, 30), QColor(0, 128, 255))));
    QCOMPARE(picture.object().getClientRect(), QRectF(0, 0, 50, 30));
    QCOMPARE(picture.colorAt(QPoint(25, 15)), QColor(0, 128, 255));
}

void TestPictures::unreadableDataBecomesNothing_data()
{
    QTest::addColumn<QString>("type");
    QTest::addColumn<QByteArray>("data");
    QTest::newRow("no SVG") << svgType << QByteArray("hello");
    QTest::newRow("nothing") << svgType << QByteArray();
    QTest::newRow("half a PNG") << QStringLiteral("image/png") << pngOf(QSize(9, 9), Qt::red).left(20);
    QTest::newRow("other type") << QStringLiteral("text/plain") << redSquare;
}

void TestPictures::unreadableDataBecomesNothing()
{
    QFETCH(QString, type);
    QFETCH(QByteArray, data);
    QString kind;
    QVERIFY(!ShapeDriver(name).plugin()->createFromData(type, data, kind));
    QVERIFY(kind.isEmpty());
}

void TestPictures::controlPointsOfAPictureAreNone()
{
    ShapeDriver picture(name);
    QVERIFY(show(picture, svgType,
                 "<svg xmlns='http://www.w3.org/2000/svg' width='60' height='40'><g><rect id='control_1' width='9' "
                 "height='9'/></g><rect id='control_2' width='9' height='9'/></svg>"));
    QCOMPARE(picture.controlPointCount(), 0);
    QVERIFY(!picture.document().namedNode(QStringLiteral("control_2")));
}

void TestPictures::pictureIsSavedWithTheObject()
{
    ShapeDriver original(name);
    QVERIFY(show(original, svgType, redSquare));
    QByteArray bytes;
    QDataStream out(&bytes, QIODevice::WriteOnly);
    original.object().save(out);
    ShapeDriver copy(name);
    QDataStream in(bytes);
    QVERIFY(copy.object().load(in));
    QCOMPARE(copy.painted(), original.painted());

    QJsonObject json;
    original.object().saveJson(json);
    ShapeDriver other(name);
    QVERIFY(other.object().loadJson(json));
    QCOMPARE(other.painted(), original.painted());
}

void TestPictures::pictureKeepsItsColors()
{
    ShapeDriver picture(name);
    QVERIFY(show(picture, svgType, redSquare));
    picture.core().setPenColor(Qt::green, false);
    picture.core().setPenWidth(8, false);
    QCOMPARE(picture.colorAt(QPoint(1, 1)), QColor(Qt::red));
}

void TestPictures::opacityFadesThePicture()
{
    ShapeDriver picture(name);
    QVERIFY(show(picture, svgType, redSquare));
    picture.object().SetSettingJson(QStringLiteral("{\"idOpacity\": \"0.5\"}"), true, true);
    const QColor faded = picture.colorAt(QPoint(30, 20));
    QCOMPARE(faded.red(), 255);
    QVERIFY2(qAbs(faded.green() - 127) <= 2, qPrintable(faded.name()));
}

void TestPictures::regionIsTheWholeFrame()
{
    ShapeDriver picture(name);
    QVERIFY(show(picture, svgType,
                 "<svg xmlns='http://www.w3.org/2000/svg' viewBox='0 0 60 40'><rect width='9' height='9'/></svg>"));
    QVERIFY(picture.object().shape().contains(QPointF(55, 35)));
}

void TestPictures::lookForOthersIsWhatIsSeen_data()
{
    QTest::addColumn<QString>("shapeName");
    for (const QString &shape : support::listed(shapetest::allShapeNames()))
        QTest::newRow(qPrintable(shape)) << shape;
}

void TestPictures::lookForOthersIsWhatIsSeen()
{
    QFETCH(QString, shapeName);
    ShapeDriver shape(shapeName);
    shape.createByDrag(QSizeF(200, 150));
    pagehost::setFill({&shape.object()}, QColor(80, 160, 90));
    shape.select();
    shape.object().SetSettingJson(QStringLiteral("{\"idScale1\": \"2\"}"), false, false);
    const QByteArray svg = shape.plugin()->dataOf(&shape.object(), svgType);
    shape.object().setSelected(false);
    QVERIFY(!svg.contains("control_1"));
    const QImage seen = shape.painted();
    const QImage drawn = drawnSvg(svg, shape.object().getClientRect().size());
    QCOMPARE(drawn.size(), seen.size());
    int different = 0;
    for (int y = 0; y < seen.height(); ++y) {
        for (int x = 0; x < seen.width(); ++x) {
            const QColor a = seen.pixelColor(x, y);
            const QColor b = drawn.pixelColor(x, y);
            different += qAbs(a.red() - b.red()) + qAbs(a.green() - b.green()) + qAbs(a.blue() - b.blue()) > 90;
        }
    }
    // Edges of a clipped fill and of a filled path differ a little.
    const int pixels = seen.width() * seen.height();
    QVERIFY2(different * 200 <= pixels, qPrintable(QStringLiteral("%1 of %2").arg(different).arg(pixels)));
    // The shape is as it was.
    QCOMPARE(shape.painted(), seen);
}

void TestPictures::lookForOthersIsSvgAlone()
{
    ShapeDriver shape(QStringLiteral("star"));
    shape.createByClick();
    QVERIFY(shape.plugin()->dataOf(&shape.object(), QStringLiteral("image/png")).isEmpty());
    QVERIFY(shape.plugin()->dataOf(nullptr, svgType).isEmpty());
}

QTEST_MAIN(TestPictures)
#include "test_pictures.moc"

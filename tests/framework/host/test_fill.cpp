#include <framework/cpagebgprop.h>

#include "framework/testobject.h"

#include <QtCore/QJsonArray>
#include <QtCore/QJsonObject>
#include <QtTest/QtTest>

#include <functional>

namespace {

CPageBgProp fillOf(CPageBgProp::FillType type, const QColor &color, int opacity = 255)
{
    CPageBgProp fill(nullptr);
    fill.setFillEnable(true);
    fill.setFillType(type);
    fill.setFillColor(color);
    fill.setOpacity(opacity);
    return fill;
}

QPixmap picture()
{
    QPixmap pixmap(4, 2);
    pixmap.fill(Qt::red);
    return pixmap;
}

CPageBgProp everything()
{
    CPageBgProp fill = fillOf(CPageBgProp::PictureFill, QColor(1, 2, 3), 77);
    fill.setFollowingPage(true);
    fill.setGradientColor(QColor(9, 8, 7, 6));
    fill.setGradientAngle(30.5);
    fill.setPattern(Qt::CrossPattern);
    fill.setPixmap(picture());
    return fill;
}

} // namespace

class TestFill : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void beginsDisabledSolidWhiteAndOpaque();
    void colorDropsItsAlpha();
    void opacityIsBoundedBy0And255();
    void disabledFillGivesNoBrush();
    void brushColorIsTheFillColorWhateverTheType_data();
    void brushColorIsTheFillColorWhateverTheType();
    void solidFillGivesASolidBrush();
    void noFillGivesABrushThatPaintsNothing();
    void patternFillGivesItsPattern();
    void patternThatIsNoneGivesASolidBrush();
    void gradientRunsAcrossTheRectangle();
    void gradientTurnsCounterClockwise();
    void opacityFadesBothGradientColors();
    void pictureIsATextureOnlyWhenAskedFor();
    void textureIsStretchedOverTheRectangle();
    void textureIsFadedByTheOpacity();
    void onlyEnabledGradientsNeedANewBrushForEveryRectangle();
    void comparesEveryMember();
    void comesBackFromAStream();
    void comesBackFromJson();
    void shortStreamLeavesTheFillAlone();
    void impossibleStreamValuesLeaveTheFillAlone_data();
    void impossibleStreamValuesLeaveTheFillAlone();
    void hugePictureInAStreamIsRefused();
    void missingJsonMembersKeepTheirValues();
    void mistypedJsonMembersKeepTheirValues();

    void objectTakesACopyOfTheFill();
    void equalSolidColorKeepsGradientPatternAndPicture_data();
    void equalSolidColorKeepsGradientPatternAndPicture();
    void otherColorReplacesAPicture();
    void otherOpacityReplacesAPicture();
    void enabledSolidReplacesADisabledPicture();
    void gradientOfTheSameColorReplacesASolid();
    void nullFillIsIgnored();
    void settingAFillPaintsNothing();
    void recordsTheFillWhenAsked();
};

void TestFill::beginsDisabledSolidWhiteAndOpaque()
{
    const CPageBgProp fill(nullptr);
    QVERIFY(!fill.isFillEnable());
    QVERIFY(!fill.isFollowingPage());
    QCOMPARE(fill.fillType(), int(CPageBgProp::SolidFill));
    QCOMPARE(fill.fillColor(), QColor(255, 255, 255));
    QCOMPARE(fill.opacity(), 255);
    QVERIFY(fill.pixmap().isNull());
}

void TestFill::colorDropsItsAlpha()
{
    CPageBgProp fill(nullptr);
    fill.setFillColor(QColor(10, 20, 30, 40));
    QCOMPARE(fill.fillColor(), QColor(10, 20, 30, 255));
    QCOMPARE(fill.opacity(), 255);
}

void TestFill::opacityIsBoundedBy0And255()
{
    CPageBgProp fill(nullptr);
    fill.setOpacity(-1);
    QCOMPARE(fill.opacity(), 0);
    fill.setOpacity(256);
    QCOMPARE(fill.opacity(), 255);
}

void TestFill::disabledFillGivesNoBrush()
{
    CPageBgProp fill = fillOf(CPageBgProp::GradientFill, Qt::red);
    fill.setFillEnable(false);
    QCOMPARE(fill.createBrushByProp(QRectF(0, 0, 10, 10), true), QBrush());
}

void TestFill::brushColorIsTheFillColorWhateverTheType_data()
{
    QTest::addColumn<int>("type");
    for (int type = CPageBgProp::NoFill; type <= CPageBgProp::PictureFill; ++type)
        QTest::addRow("type %d", type) << type;
}

void TestFill::brushColorIsTheFillColorWhateverTheType()
{
    QFETCH(int, type);
    CPageBgProp fill = fillOf(CPageBgProp::FillType(type), QColor(10, 20, 30), 40);
    fill.setPixmap(picture());
    const QRectF rect(0, 0, 10, 10);
    QCOMPARE(fill.createBrushByProp(rect, false).color(), QColor(10, 20, 30, 40));
    QCOMPARE(fill.createBrushByProp(rect, true).color(), QColor(10, 20, 30, 40));
}

void TestFill::solidFillGivesASolidBrush()
{
    const CPageBgProp fill = fillOf(CPageBgProp::SolidFill, Qt::green);
    QCOMPARE(fill.createBrushByProp(QRectF(), false), QBrush(QColor(Qt::green)));
}

void TestFill::noFillGivesABrushThatPaintsNothing()
{
    QCOMPARE(fillOf(CPageBgProp::NoFill, Qt::green).createBrushByProp(QRectF(), false).style(), Qt::NoBrush);
}

void TestFill::patternFillGivesItsPattern()
{
    CPageBgProp fill = fillOf(CPageBgProp::PatternFill, Qt::green);
    fill.setPattern(Qt::DiagCrossPattern);
    QCOMPARE(fill.createBrushByProp(QRectF(), false).style(), Qt::DiagCrossPattern);
}

void TestFill::patternThatIsNoneGivesASolidBrush()
{
    CPageBgProp fill = fillOf(CPageBgProp::PatternFill, Qt::green);
    fill.setPattern(Qt::TexturePattern);
    QCOMPARE(fill.createBrushByProp(QRectF(), false).style(), Qt::SolidPattern);
}

void TestFill::gradientRunsAcrossTheRectangle()
{
    CPageBgProp fill = fillOf(CPageBgProp::GradientFill, Qt::red);
    fill.setGradientColor(Qt::blue);
    const QBrush brush = fill.createBrushByProp(QRectF(10, 20, 100, 40), false);
    QCOMPARE(brush.style(), Qt::LinearGradientPattern);
    const auto *gradient = static_cast<const QLinearGradient *>(brush.gradient());
    QCOMPARE(gradient->start(), QPointF(10, 40));
    QCOMPARE(gradient->finalStop(), QPointF(110, 40));
    const QGradientStops stops{{0, QColor(Qt::red)}, {1, QColor(Qt::blue)}};
    QCOMPARE(gradient->stops(), stops);
}

void TestFill::gradientTurnsCounterClockwise()
{
    CPageBgProp fill = fillOf(CPageBgProp::GradientFill, Qt::red);
    fill.setGradientAngle(90);
    const QBrush brush = fill.createBrushByProp(QRectF(0, 0, 100, 40), false);
    const auto *gradient = static_cast<const QLinearGradient *>(brush.gradient());
    QCOMPARE(gradient->start(), QPointF(50, 40));
    QCOMPARE(gradient->finalStop(), QPointF(50, 0));
}

void TestFill::opacityFadesBothGradientColors()
{
    CPageBgProp fill = fillOf(CPageBgProp::GradientFill, Qt::red, 51);
    fill.setGradientColor(Qt::blue);
    const QGradientStops stops = fill.createBrushByProp(QRectF(0, 0, 9, 9), false).gradient()->stops();
    QCOMPARE(stops.first().second.alpha(), 51);
    QCOMPARE(stops.last().second.alpha(), 51);
}

void TestFill::pictureIsATextureOnlyWhenAskedFor()
{
    CPageBgProp fill = fillOf(CPageBgProp::PictureFill, Qt::green);
    QCOMPARE(fill.createBrushByProp(QRectF(0, 0, 9, 9), true).style(), Qt::SolidPattern);
    fill.setPixmap(picture());
    QCOMPARE(fill.createBrushByProp(QRectF(0, 0, 9, 9), false).style(), Qt::SolidPattern);
    QCOMPARE(fill.createBrushByProp(QRectF(0, 0, 9, 9), true).style(), Qt::TexturePattern);
}

void TestFill::textureIsStretchedOverTheRectangle()
{
    CPageBgProp fill = fillOf(CPageBgProp::PictureFill, Qt::green);
    fill.setPixmap(picture());
    const QTransform transform = fill.createBrushByProp(QRectF(10, 20, 40, 30), true).transform();
    QCOMPARE(transform.mapRect(QRectF(0, 0, 4, 2)), QRectF(10, 20, 40, 30));
}

void TestFill::textureIsFadedByTheOpacity()
{
    CPageBgProp fill = fillOf(CPageBgProp::PictureFill, Qt::green, 51);
    fill.setPixmap(picture());
    const QImage texture = fill.createBrushByProp(QRectF(0, 0, 4, 2), true).textureImage();
    QCOMPARE(qAlpha(texture.pixel(0, 0)), 51);
}

void TestFill::onlyEnabledGradientsNeedANewBrushForEveryRectangle()
{
    CPageBgProp fill = fillOf(CPageBgProp::GradientFill, Qt::red);
    QVERIFY(fill.needCreatBrush(QRectF(0, 0, 1, 1)));
    fill.setFillEnable(false);
    QVERIFY(!fill.needCreatBrush(QRectF(0, 0, 1, 1)));
    QVERIFY(!fillOf(CPageBgProp::SolidFill, Qt::red).needCreatBrush(QRectF(0, 0, 1, 1)));
    QVERIFY(!fillOf(CPageBgProp::PictureFill, Qt::red).needCreatBrush(QRectF(0, 0, 1, 1)));
}

void TestFill::comparesEveryMember()
{
    const CPageBgProp fill = everything();
    QVERIFY(fill == everything());
    const QVector<std::function<void(CPageBgProp &)>> changes{
        [](CPageBgProp &other) { other.setFollowingPage(false); },
        [](CPageBgProp &other) { other.setFillType(CPageBgProp::SolidFill); },
        [](CPageBgProp &other) { other.setFillEnable(false); },
        [](CPageBgProp &other) { other.setFillColor(Qt::red); },
        [](CPageBgProp &other) { other.setOpacity(1); },
        [](CPageBgProp &other) { other.setGradientColor(Qt::red); },
        [](CPageBgProp &other) { other.setGradientAngle(1); },
        [](CPageBgProp &other) { other.setPattern(Qt::HorPattern); },
        [](CPageBgProp &other) { other.setPixmap(QPixmap()); }};
    for (int i = 0; i < changes.size(); ++i) {
        CPageBgProp other = everything();
        changes[i](other);
        QVERIFY2(fill != other, qPrintable(QString::number(i)));
    }
}

void TestFill::comesBackFromAStream()
{
    QByteArray bytes;
    QDataStream out(&bytes, QIODevice::WriteOnly);
    QVERIFY(everything().save(out));
    out << qint32(4711);

    CPageBgProp loaded(nullptr);
    QDataStream in(bytes);
    QVERIFY(loaded.load(in));
    QVERIFY(loaded == everything());
    qint32 next = 0;
    in >> next;
    QCOMPARE(next, 4711);
}

void TestFill::comesBackFromJson()
{
    QJsonObject object;
    QVERIFY(everything().saveJson(object));
    CPageBgProp loaded(nullptr);
    QVERIFY(loaded.loadJson(object));
    QVERIFY(loaded == everything());
}

void TestFill::shortStreamLeavesTheFillAlone()
{
    QByteArray bytes;
    QDataStream out(&bytes, QIODevice::WriteOnly);
    everything().save(out);
    for (int length = 0; length < bytes.size(); ++length) {
        CPageBgProp loaded(nullptr);
        QDataStream in(bytes.left(length));
        QVERIFY(!loaded.load(in));
        QVERIFY(loaded == CPageBgProp(nullptr));
    }
}

void TestFill::impossibleStreamValuesLeaveTheFillAlone_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<int>("pattern");
    QTest::addColumn<double>("angle");
    QTest::newRow("type below all") << -1 << 0 << 0.0;
    QTest::newRow("type above all") << 5 << 0 << 0.0;
    QTest::newRow("pattern below all") << 1 << -1 << 0.0;
    QTest::newRow("texture as pattern") << 1 << int(Qt::TexturePattern) << 0.0;
    QTest::newRow("pattern below those of paper") << 1 << 25 << 0.0;
    QTest::newRow("pattern above those of paper") << 1 << 31 << 0.0;
    QTest::newRow("angle not a number") << 1 << 0 << qQNaN();
}

void TestFill::impossibleStreamValuesLeaveTheFillAlone()
{
    QFETCH(int, type);
    QFETCH(int, pattern);
    QFETCH(double, angle);
    QByteArray bytes;
    QDataStream out(&bytes, QIODevice::WriteOnly);
    out << true << qint32(type) << true << quint32(0) << qint32(1) << quint32(0) << angle << qint32(pattern)
        << QByteArray();
    CPageBgProp loaded(nullptr);
    QDataStream in(bytes);
    QVERIFY(!loaded.load(in));
    QVERIFY(loaded == CPageBgProp(nullptr));
}

void TestFill::hugePictureInAStreamIsRefused()
{
    // A PNG that claims 32767 x 32767 pixels in its header and has no data.
    const QByteArray header = QByteArray::fromHex("89504e470d0a1a0a0000000d4948445200007fff00007fff0806000000");
    QByteArray bytes;
    QDataStream out(&bytes, QIODevice::WriteOnly);
    out << false << qint32(1) << true << quint32(0) << qint32(1) << quint32(0) << 0.0 << qint32(0) << header;
    CPageBgProp loaded(nullptr);
    QDataStream in(bytes);
    QVERIFY(!loaded.load(in));
    QVERIFY(loaded == CPageBgProp(nullptr));
}

void TestFill::missingJsonMembersKeepTheirValues()
{
    CPageBgProp fill = everything();
    QVERIFY(!fill.loadJson({}));
    QVERIFY(fill == everything());
    QVERIFY(!fill.loadJson({{QStringLiteral("opacity"), 5}}));
    CPageBgProp expected = everything();
    expected.setOpacity(5);
    QVERIFY(fill == expected);
}

void TestFill::mistypedJsonMembersKeepTheirValues()
{
    QJsonObject object;
    everything().saveJson(object);
    const QStringList keys = object.keys();
    QCOMPARE(keys.size(), 9);
    for (const QString &key : keys) {
        QJsonObject mistyped = object;
        mistyped[key] = QJsonArray{1, 2};
        CPageBgProp fill = everything();
        QVERIFY2(!fill.loadJson(mistyped), qPrintable(key));
        QVERIFY2(fill == everything(), qPrintable(key));
    }
}

void TestFill::objectTakesACopyOfTheFill()
{
    TestObject object;
    CPageBgProp fill = fillOf(CPageBgProp::SolidFill, Qt::red, 128);
    object.setFillProp(&fill, false);
    fill.setFillColor(Qt::blue);
    QCOMPARE(object.getFillProp()->fillColor(), QColor(Qt::red));
    QCOMPARE(object.getHostFillBrush(), QBrush(QColor(255, 0, 0, 128)));
}

void TestFill::equalSolidColorKeepsGradientPatternAndPicture_data()
{
    QTest::addColumn<int>("type");
    QTest::newRow("gradient") << int(CPageBgProp::GradientFill);
    QTest::newRow("pattern") << int(CPageBgProp::PatternFill);
    QTest::newRow("picture") << int(CPageBgProp::PictureFill);
}

void TestFill::equalSolidColorKeepsGradientPatternAndPicture()
{
    QFETCH(int, type);
    TestObject object;
    CPageBgProp present = fillOf(CPageBgProp::FillType(type), Qt::red, 128);
    object.setFillProp(&present, false);
    CPageBgProp solid = fillOf(CPageBgProp::SolidFill, Qt::red, 128);
    object.setFillProp(&solid, false);
    QVERIFY(*object.getFillProp() == present);
    QCOMPARE(object.getHostFillBrush(), present.createBrushByProp(QRectF(0, 0, 100, 60), false));
}

void TestFill::otherColorReplacesAPicture()
{
    TestObject object;
    CPageBgProp present = fillOf(CPageBgProp::PictureFill, Qt::red);
    object.setFillProp(&present, false);
    CPageBgProp solid = fillOf(CPageBgProp::SolidFill, Qt::blue);
    object.setFillProp(&solid, false);
    QVERIFY(*object.getFillProp() == solid);
}

void TestFill::otherOpacityReplacesAPicture()
{
    TestObject object;
    CPageBgProp present = fillOf(CPageBgProp::PictureFill, Qt::red);
    object.setFillProp(&present, false);
    CPageBgProp solid = fillOf(CPageBgProp::SolidFill, Qt::red, 254);
    object.setFillProp(&solid, false);
    QVERIFY(*object.getFillProp() == solid);
}

void TestFill::enabledSolidReplacesADisabledPicture()
{
    TestObject object;
    CPageBgProp present = fillOf(CPageBgProp::PictureFill, Qt::red);
    present.setFillEnable(false);
    object.setFillProp(&present, false);
    CPageBgProp solid = fillOf(CPageBgProp::SolidFill, Qt::red);
    object.setFillProp(&solid, false);
    QVERIFY(*object.getFillProp() == solid);
}

void TestFill::gradientOfTheSameColorReplacesASolid()
{
    TestObject object;
    object.fillWith(Qt::red);
    CPageBgProp gradient = fillOf(CPageBgProp::GradientFill, Qt::red);
    object.setFillProp(&gradient, false);
    QVERIFY(*object.getFillProp() == gradient);
}

void TestFill::nullFillIsIgnored()
{
    TestObject object;
    object.fillWith(Qt::red);
    object.setFillProp(nullptr, true);
    QCOMPARE(object.getFillProp()->fillColor(), QColor(Qt::red));
    QVERIFY(object.records.isEmpty());
}

void TestFill::settingAFillPaintsNothing()
{
    TestObject object;
    object.fillWith(Qt::red);
    QCOMPARE(object.paints + object.renderings, 0);
}

void TestFill::recordsTheFillWhenAsked()
{
    TestObject object;
    CPageBgProp fill = fillOf(CPageBgProp::SolidFill, Qt::red);
    object.setFillProp(&fill, false);
    QVERIFY(object.records.isEmpty());
    object.setFillProp(&fill, true);
    QCOMPARE(object.records.size(), 1);
    QCOMPARE(object.records.first().first, 105);
    CPageBgProp recorded(nullptr);
    QDataStream in(object.records.first().second);
    QVERIFY(recorded.load(in));
    QVERIFY(recorded == fill);
}

QTEST_MAIN(TestFill)
#include "test_fill.moc"

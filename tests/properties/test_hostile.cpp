#include "properties/gradientreading.h"
#include "properties/streamcheck.h"
#include "properties/valuecodec.h"

#include <properties/fullshape.h>
#include <support/streams.h>

#include <QtCore/QBuffer>
#include <QtGui/QBrush>
#include <QtGui/QImage>
#include <QtTest/QtTest>

#include <algorithm>
#include <cstring>

using support::bytesOf;
using support::Input;
using support::valueOf;

/// Colours and brushes whose bytes claim what they do not hold.
class TestHostile : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyUsualBrushIsReadAsItWasWritten_data();
    void everyUsualBrushIsReadAsItWasWritten();
    void aHostileBrushIsNoBrush_data();
    void aHostileBrushIsNoBrush();
    void aHostileBrushIsNotReadAtAll();
    void aHostileBrushIsReplayedAsNoBrush();
    void aGradientHasRoomForItsStops();
    void limitsAreInclusive();
    void onlyTheHeaderChunkIsTheHeader();
    void aStreamWithoutDeviceIsReadable();
    void anInvalidColourIsAKnownKind();
    void eachColourTypeHasItsChannels_data();
    void eachColourTypeHasItsChannels();
    void aTextureWithoutPictureIsRead();
    void aTextureIsLookedAtWithoutWhatFollows();
    void whatCannotSeekIsLookedAtToo();
    void lookingAheadLeavesTheStreamWhereItStands();
    void oldStreamsReadTheirGradientsAndTextures_data();
    void oldStreamsReadTheirGradientsAndTextures();
    void streamsOfQt3HaveNeitherGradientsNorKindsOfColours();
    void anyNumberOfStopsIsRead();
    void unsortedStopsAreReadAsQtReadsThem();
    void stopsAreSortedBeforeQtSeesThem();
    void stopsOfTheSamePlaceKeepTheLastColour();
    void stopsOutsideOfTheGradientAreLeftOut();
    void everyTruncationOfABrushIsRead_data();
    void everyTruncationOfABrushIsRead();
    void everyChangedByteOfABrushIsRead_data();
    void everyChangedByteOfABrushIsRead();
    void aColourOfNoKindIsBlack_data();
    void aColourOfNoKindIsBlack();
    void aColourOfNoKindInASavedShapeIsBlack();
    void aBrushOfAStreamWithAnotherByteOrderIsChecked();
    void aTextureOfAStreamWithAnotherByteOrderIsRead();
};

namespace {

constexpr int styleBytes = 1;
constexpr int colorBytes = 11;
constexpr int stopCountOffset = styleBytes + colorBytes + 4 * 4;
constexpr int textureOffset = styleBytes + colorBytes + 4;
/// Of a PNG picture: signature, length, type.
constexpr int pictureSizeOffset = textureOffset + 8 + 4 + 4;

template<typename Gradient> QBrush gradientBrush(Gradient gradient)
{
    gradient.setStops({{0, Qt::red}, {0.25, Qt::green}, {1, Qt::blue}});
    return gradient;
}

QBrush textureBrush(int width, int height)
{
    QImage image(width, height, QImage::Format_ARGB32);
    image.fill(Qt::red);
    QBrush brush;
    brush.setTextureImage(image);
    return brush;
}

QByteArray withNumber(QByteArray bytes, int offset, quint32 number)
{
    return bytes.replace(offset, 4, bytesOf(number));
}

QByteArray withByte(QByteArray bytes, int offset, quint8 value)
{
    bytes[offset] = char(value);
    return bytes;
}

QByteArray stopBytes(const QGradientStops &stops)
{
    QByteArray bytes;
    for (const QGradientStop &stop : stops)
        bytes += bytesOf(stop.first, stop.second);
    return bytes;
}

/// A linear gradient with the stops in that order.
QByteArray gradientOfStops(const QGradientStops &stops)
{
    const QByteArray head = bytesOf(gradientBrush(QLinearGradient(0, 0, 1, 1))).left(stopCountOffset);
    return head + bytesOf(quint32(stops.size())) + stopBytes(stops) +
           bytesOf(QPointF(), QPointF(1, 1), QTransform());
}

QGradientStops readStops(const QByteArray &bytes)
{
    Input in(bytes);
    return readGradient(in).gradient()->stops();
}

/// Memory that counts what is read of it.
class CountingBuffer : public QBuffer
{
public:
    explicit CountingBuffer(QByteArray *bytes)
        : QBuffer(bytes)
    {
    }
    qint64 readBytes = 0;

protected:
    qint64 readData(char *data, qint64 size) override
    {
        const qint64 read = QBuffer::readData(data, size);
        readBytes += read;
        return read;
    }
};

/// Bytes that come one after the other, like those of a pipe.
class Pipe : public QIODevice
{
public:
    explicit Pipe(const QByteArray &bytes)
        : m_bytes(bytes)
    {
        open(ReadOnly);
    }
    bool isSequential() const override { return true; }
    qint64 bytesAvailable() const override { return m_bytes.size() - m_read + QIODevice::bytesAvailable(); }

protected:
    qint64 readData(char *data, qint64 size) override
    {
        const QByteArray part = m_bytes.mid(m_read, int(qMin(size, qint64(m_bytes.size()))));
        std::memcpy(data, part.constData(), size_t(part.size()));
        m_read += part.size();
        return part.size();
    }
    qint64 writeData(const char *, qint64) override { return -1; }

private:
    QByteArray m_bytes;
    int m_read = 0;
};

/// A texture that claims its size, depth (bits a channel) and colour type (PNG 11.2.2), with so many bytes of data.
QByteArray textureOfSize(quint32 width, quint32 height, int dataBytes, quint8 depth = 1, quint8 colorType = 0)
{
    const quint32 checksum = 0;
    const quint8 none = 0;
    QByteArray bytes = bytesOf(quint8(Qt::TexturePattern), QColor(Qt::black), qint32(1)) + "\x89PNG\r\n\x1a\n";
    bytes += bytesOf(quint32(13)) + "IHDR" + bytesOf(width, height, depth, colorType, none, none, none, checksum);
    bytes += bytesOf(quint32(dataBytes)) + "IDAT" + QByteArray(dataBytes, '\0') + bytesOf(checksum);
    return bytes + bytesOf(quint32(0)) + "IEND" + bytesOf(checksum);
}

bool isReadable(const QByteArray &bytes,
                QDataStream::FloatingPointPrecision precision = QDataStream::DoublePrecision)
{
    QDataStream in(bytes);
    in.setFloatingPointPrecision(precision);
    return StreamCheck::isReadableBrush(in);
}

/// Keeps what Qt says about damaged gradients and pictures from the test's output while it lives.
class Silence
{
public:
    Silence()
        : m_before(qInstallMessageHandler([](QtMsgType, const QMessageLogContext &, const QString &) {}))
    {
    }
    ~Silence() { qInstallMessageHandler(m_before); }
    Q_DISABLE_COPY(Silence)

private:
    QtMessageHandler m_before;
};

void brushRows()
{
    QTest::addColumn<QBrush>("brush");
    QTest::newRow("none") << QBrush();
    QTest::newRow("solid") << QBrush(QColor(1, 2, 3, 4));
    QTest::newRow("invalid colour") << QBrush(QColor());
    QTest::newRow("pattern") << QBrush(Qt::green, Qt::DiagCrossPattern);
    QTest::newRow("linear") << gradientBrush(QLinearGradient(1, 2, 3, 4));
    QTest::newRow("radial") << gradientBrush(QRadialGradient(1, 2, 3));
    QTest::newRow("conical") << gradientBrush(QConicalGradient(1, 2, 3));
    QTest::newRow("texture") << textureBrush(2, 3);
}

} // namespace

void TestHostile::everyUsualBrushIsReadAsItWasWritten_data()
{
    brushRows();
    QTest::newRow("cmyk") << QBrush(QColor::fromCmyk(1, 2, 3, 4));
    QTest::newRow("extended") << QBrush(QColor::fromRgba64(1, 2, 3, 4).toExtendedRgb());
    QTest::newRow("large texture of one colour") << textureBrush(2000, 2000);
    QTest::newRow("no stops") << QBrush(QLinearGradient(1, 2, 3, 4));
}

void TestHostile::everyUsualBrushIsReadAsItWasWritten()
{
    QFETCH(QBrush, brush);
    FullShape full;
    full.object.onSetFillProp = [](CPageBgProp *, bool) {};
    full.shape->updateBrush(QBrush(QColor(9, 9, 9)));
    QByteArray bytes = bytesOf(brush);
    Input in(bytes + "more");
    QVERIFY(full.shape->setInnerProperty(5005, in, false, false));
    QCOMPARE(bytesOf(full.shape->getFillBrush()), bytes);
    QCOMPARE(in.status(), QDataStream::Ok);
    QCOMPARE(in.consumed(), qint64(bytes.size()));
}

void TestHostile::aHostileBrushIsNoBrush_data()
{
    QTest::addColumn<QByteArray>("bytes");
    const QByteArray linear = bytesOf(gradientBrush(QLinearGradient(1, 2, 3, 4)));
    const QByteArray radial = bytesOf(gradientBrush(QRadialGradient(1, 2, 3)));
    const QByteArray conical = bytesOf(gradientBrush(QConicalGradient(1, 2, 3)));
    for (const quint32 count : {0x7fffffffu, 0xffffffffu, 0x10000000u, 1000u}) {
        QTest::addRow("linear, %u stops", count) << withNumber(linear, stopCountOffset, count);
        QTest::addRow("radial, %u stops", count) << withNumber(radial, stopCountOffset, count);
        QTest::addRow("conical, %u stops", count) << withNumber(conical, stopCountOffset, count);
    }
    // Behind the three stops of 19 bytes stand 32 bytes of points and 72 of a matrix: room for five more.
    QTest::newRow("one stop more than the bytes hold") << withNumber(linear, stopCountOffset, 9);
    const QByteArray texture = bytesOf(textureBrush(2, 3));
    QTest::newRow("texture too wide") << withNumber(texture, pictureSizeOffset, 60000);
    QTest::newRow("texture too high") << withNumber(texture, pictureSizeOffset + 4, 60000);
    QTest::newRow("texture of the largest size")
        << withNumber(withNumber(texture, pictureSizeOffset, 0x7fffffff), pictureSizeOffset + 4, 0x7fffffff);
    QTest::newRow("texture without width") << withNumber(texture, pictureSizeOffset, 0);
    QTest::newRow("texture whose chunk is longer than the bytes")
        << withNumber(texture, textureOffset + 8, 0xffffffff);
    QTest::newRow("texture that ends in its data") << texture.left(texture.indexOf("IDAT") + 8);
    QTest::newRow("texture whose signature is another") << withByte(texture, textureOffset, 0x88);
    QTest::newRow("texture without end") << texture.left(texture.indexOf("IEND") - 4);
    QTest::newRow("texture in another format") << texture.left(textureOffset) + "P6 30000 30000 255\n";
    QTest::newRow("style 18") << withByte(linear, 0, 18);
    QTest::newRow("style 200") << withByte(bytesOf(QBrush(Qt::red)), 0, 200);
}

void TestHostile::aHostileBrushIsNoBrush()
{
    QFETCH(QByteArray, bytes);
    FullShape full;
    full.object.onSetFillProp = [](CPageBgProp *, bool) {};
    Input in(bytes);
    QVERIFY(full.shape->SetAttribute(5005, in, false, true));
    QCOMPARE(full.shape->getFillBrush(), QBrush());
    QCOMPARE(in.status(), QDataStream::ReadCorruptData);
}

void TestHostile::aHostileBrushIsNotReadAtAll()
{
    FullShape full;
    Input in(withByte(bytesOf(QBrush(Qt::red)), 0, 200));
    full.shape->setInnerProperty(5005, in, false, false);
    QCOMPARE(in.consumed(), qint64(0));
}

void TestHostile::aHostileBrushIsReplayedAsNoBrush()
{
    FullShape full;
    full.object.onSetFillProp = [](CPageBgProp *, bool) {};
    QVERIFY(full.shape->DoPlaybackActionEx(
        1005, Input(withNumber(bytesOf(gradientBrush(QLinearGradient())), stopCountOffset, 0x7ffffffe))));
    QCOMPARE(full.shape->getFillBrush(), QBrush());
}

void TestHostile::everyTruncationOfABrushIsRead_data()
{
    brushRows();
}

void TestHostile::everyTruncationOfABrushIsRead()
{
    QFETCH(QBrush, brush);
    FullShape full;
    const QByteArray bytes = bytesOf(brush);
    for (int size = 0; size < bytes.size(); ++size) {
        Input in(bytes.left(size));
        QVERIFY(full.shape->setInnerProperty(5005, in, false, false));
        QVERIFY2(in.status() != QDataStream::Ok, qPrintable(QString::number(size)));
    }
}

void TestHostile::everyChangedByteOfABrushIsRead_data()
{
    brushRows();
}

void TestHostile::everyChangedByteOfABrushIsRead()
{
    QFETCH(QBrush, brush);
    FullShape full;
    full.object.onSetFillProp = [](CPageBgProp *, bool) {};
    const QByteArray bytes = bytesOf(brush);
    int changed = 0;
    const Silence silence;
    for (int offset = 0; offset < bytes.size(); ++offset)
        for (const quint8 value : {0x00, 0x01, 0x0f, 0x18, 0x7f, 0x80, 0xff})
            changed += full.shape->setInnerProperty(5005, Input(withByte(bytes, offset, value)), false, false);
    QCOMPARE(changed, bytes.size() * 7);
}

void TestHostile::aColourOfNoKindIsBlack_data()
{
    QTest::addColumn<int>("kind");
    QTest::addColumn<bool>("known");
    for (int kind = -1; kind <= 8; ++kind)
        QTest::addRow("%d", kind) << kind
                                  << (kind >= 0 && kind <= 5); // from QColor::Invalid to QColor::ExtendedRgb
    QTest::newRow("127") << 127 << false;
}

void TestHostile::aColourOfNoKindIsBlack()
{
    QFETCH(int, kind);
    QFETCH(bool, known);
    FullShape full;
    full.object.onSetFillProp = [](CPageBgProp *, bool) {};
    const QByteArray bytes = withByte(bytesOf(QColor(10, 20, 30, 40)), 0, quint8(kind));
    const QByteArray expected = known ? bytes : bytesOf(QColor(0, 0, 0, 40));
    Input in(bytes);
    QVERIFY(full.shape->setInnerProperty(5002, in, false, true));
    QCOMPARE(bytesOf(full.shape->getPenColor()), expected);
    QCOMPARE(in.status(), QDataStream::Ok);
    QVERIFY(full.shape->setInnerProperty(5005, Input(QByteArray(1, '\1') + bytes + bytesOf(QTransform())), false,
                                         true));
    QCOMPARE(bytesOf(full.shape->getFillBrush().color()), expected);
    QCOMPARE(full.shape->getFillBrush().style(), Qt::SolidPattern);
}

void TestHostile::aColourOfNoKindInASavedShapeIsBlack()
{
    FullShape full;
    const QByteArray color = withByte(bytesOf(QColor(Qt::green)), 0, 99);
    Input in(bytesOf(qint32(0), false, true) + color + bytesOf(false, false));
    QVERIFY(full.shape->load(in));
    QCOMPARE(full.shape->getPenColor(), QColor(Qt::black));
}

void TestHostile::aBrushOfAStreamWithAnotherByteOrderIsChecked()
{
    for (const bool hostile : {false, true}) {
        QByteArray bytes;
        QDataStream out(&bytes, QIODevice::WriteOnly);
        out.setByteOrder(QDataStream::LittleEndian);
        out.setFloatingPointPrecision(QDataStream::SinglePrecision);
        out << gradientBrush(QLinearGradient(1, 2, 3, 4));
        if (hostile)
            bytes[stopCountOffset] = 100;
        QDataStream in(bytes);
        in.setByteOrder(QDataStream::LittleEndian);
        in.setFloatingPointPrecision(QDataStream::SinglePrecision);
        QCOMPARE(StreamCheck::isReadableBrush(in), !hostile);
    }
}

void TestHostile::aTextureOfAStreamWithAnotherByteOrderIsRead()
{
    QByteArray bytes;
    QDataStream out(&bytes, QIODevice::WriteOnly);
    out.setByteOrder(QDataStream::LittleEndian);
    out << textureBrush(2, 3);
    QDataStream in(bytes);
    in.setByteOrder(QDataStream::LittleEndian);
    QVERIFY(StreamCheck::isReadableBrush(in));
}

void TestHostile::aGradientHasRoomForItsStops()
{
    const QByteArray whole = bytesOf(gradientBrush(QLinearGradient(1, 2, 3, 4)));
    // Behind the three stops of 8 + 11 bytes stand 32 bytes of points and 72 of a matrix: room for five more.
    QVERIFY(isReadable(withNumber(whole, stopCountOffset, 8)));
    QVERIFY(!isReadable(withNumber(whole, stopCountOffset, 9)));
    const QByteArray eight = withNumber(whole, stopCountOffset, 8).left(stopCountOffset + 4 + 8 * 19);
    QVERIFY(isReadable(eight));
    QVERIFY(!isReadable(eight.chopped(1)));

    QByteArray single;
    QDataStream out(&single, QIODevice::WriteOnly);
    out.setFloatingPointPrecision(QDataStream::SinglePrecision);
    out << gradientBrush(QLinearGradient(1, 2, 3, 4));
    const QByteArray four = withNumber(single, stopCountOffset, 4).left(stopCountOffset + 4 + 4 * 15);
    QVERIFY(isReadable(four, QDataStream::SinglePrecision));
    QVERIFY(!isReadable(four.chopped(1), QDataStream::SinglePrecision));
}

void TestHostile::limitsAreInclusive()
{
    QVERIFY(isReadable(textureOfSize(8192, 8192, 9000)));
    QVERIFY(!isReadable(textureOfSize(8193, 8192, 9000)));
    QVERIFY(isReadable(textureOfSize(1, 64 * 1024 * 1024, 200000)));
    QVERIFY(!isReadable(textureOfSize(1, 64 * 1024 * 1024 + 1, 200000)));
    QVERIFY(isReadable(textureOfSize(1, 1, 1, 16)));
    QVERIFY(!isReadable(textureOfSize(1, 1, 1, 17)));
    QVERIFY(!isReadable(textureOfSize(1, 1, 1, 0)));
    QVERIFY(!isReadable(textureOfSize(1, 0, 1)));
    // Rows of 1 + 3 bytes: data of one byte can become 1032 and 1024 for what surrounds them, 514 rows.
    QVERIFY(isReadable(textureOfSize(24, 514, 1)));
    QVERIFY(!isReadable(textureOfSize(24, 515, 1)));
    // Rows of 1 + 16 bytes: 120 of them are 2040 bytes, 121 are 2057, one too many.
    QVERIFY(isReadable(textureOfSize(16, 120, 1, 8)));
    QVERIFY(!isReadable(textureOfSize(16, 121, 1, 8)));
}

void TestHostile::onlyTheHeaderChunkIsTheHeader()
{
    const QByteArray texture = textureOfSize(16, 120, 1, 8);
    const int behindHeader = texture.indexOf("IDAT") - 4;
    QByteArray commented = texture;
    commented.insert(behindHeader, bytesOf(quint32(13)) + "tEXt" + "Title no more" + bytesOf(quint32(0)));
    QVERIFY(isReadable(commented));
    // One byte of the header cut off, and its length said so.
    QByteArray shortened = texture;
    shortened.remove(behindHeader - 5, 1);
    QVERIFY(!isReadable(withNumber(shortened, textureOffset + 8, 12)));
}

void TestHostile::aStreamWithoutDeviceIsReadable()
{
    QDataStream in;
    QVERIFY(StreamCheck::isReadableBrush(in));
    QVERIFY(StreamCheck::hasKnownColorKind(in));
}

void TestHostile::anInvalidColourIsAKnownKind()
{
    const QByteArray bytes = bytesOf(QColor());
    QDataStream in(bytes);
    QVERIFY(StreamCheck::hasKnownColorKind(in));
}

void TestHostile::eachColourTypeHasItsChannels_data()
{
    QTest::addColumn<quint8>("colorType");
    QTest::addColumn<quint32>("rows");
    // One byte of data fills 2056 bytes: so many rows of a filter byte and a byte for each channel.
    QTest::newRow("grey") << quint8(0) << 1028u;
    QTest::newRow("red, green and blue") << quint8(2) << 514u;
    QTest::newRow("palette") << quint8(3) << 1028u;
    QTest::newRow("grey with alpha") << quint8(4) << 685u;
    QTest::newRow("colours with alpha") << quint8(6) << 411u;
}

void TestHostile::eachColourTypeHasItsChannels()
{
    QFETCH(const quint8, colorType);
    QFETCH(const quint32, rows);
    QVERIFY(isReadable(textureOfSize(1, rows, 1, 8, colorType)));
    QVERIFY(!isReadable(textureOfSize(1, rows + 1, 1, 8, colorType)));
}

void TestHostile::aTextureWithoutPictureIsRead()
{
    FullShape full;
    full.object.onSetFillProp = [](CPageBgProp *, bool) {};
    Input in(bytesOf(quint8(Qt::TexturePattern), QColor(Qt::green), qint32(0), QTransform()));
    QVERIFY(full.shape->setInnerProperty(5005, in, false, false));
    QCOMPARE(in.status(), QDataStream::Ok);
    QCOMPARE(full.shape->getFillBrush().color(), QColor(Qt::green));
}

void TestHostile::aTextureIsLookedAtWithoutWhatFollows()
{
    QByteArray bytes = textureOfSize(8, 8, 1000) + QByteArray(1 << 20, 'x');
    CountingBuffer buffer(&bytes);
    QVERIFY(buffer.open(QIODevice::ReadOnly));
    QDataStream in(&buffer);
    QVERIFY(StreamCheck::isReadableBrush(in));
    // Style, picture or not, signature, the heads of three chunks, the data of the first.
    QCOMPARE(buffer.readBytes, qint64(1 + 4 + 8 + 3 * 8 + 13));
}

void TestHostile::whatCannotSeekIsLookedAtToo()
{
    const QVector<QBrush> brushes{QBrush(Qt::red), gradientBrush(QLinearGradient(1, 2, 3, 4)),
                                  textureBrush(20, 30)};
    for (const QBrush &brush : brushes) {
        Pipe pipe(bytesOf(brush, qint32(7)));
        QDataStream in(&pipe);
        QVERIFY(StreamCheck::isReadableBrush(in));
        QCOMPARE(bytesOf(decodeValue<QBrush>(in)), bytesOf(brush));
        QCOMPARE(decodeValue<qint32>(in), 7);
        QCOMPARE(in.status(), QDataStream::Ok);
    }
    Pipe pipe(textureOfSize(8193, 8192, 9000));
    QDataStream in(&pipe);
    QVERIFY(!StreamCheck::isReadableBrush(in));
}

void TestHostile::lookingAheadLeavesTheStreamWhereItStands()
{
    QByteArray bytes = "before" + textureOfSize(8, 8, 1000);
    bytes.chop(12 + 1); // within the checksum of the data: the next chunk would stand behind the end
    QBuffer buffer(&bytes);
    QVERIFY(buffer.open(QIODevice::ReadWrite));
    QVERIFY(buffer.seek(6));
    QDataStream in(&buffer);
    QVERIFY(!StreamCheck::isReadableBrush(in));
    QCOMPARE(buffer.pos(), qint64(6));
    QCOMPARE(bytes.size(), 6 + textureOfSize(8, 8, 1000).size() - 13);
}

void TestHostile::oldStreamsReadTheirGradientsAndTextures_data()
{
    QTest::addColumn<int>("version");
    QTest::addColumn<int>("countOffset");
    // Behind style and colour stands the type, since 4.3 also spread and coordinates, since 4.5 interpolation.
    QTest::newRow("4.0") << int(QDataStream::Qt_4_0) << 12 + 4;
    QTest::newRow("4.2") << int(QDataStream::Qt_4_2) << 12 + 4;
    QTest::newRow("4.3") << int(QDataStream::Qt_4_3) << 12 + 12;
    QTest::newRow("4.4") << int(QDataStream::Qt_4_4) << 12 + 12;
    QTest::newRow("4.5") << int(QDataStream::Qt_4_5) << 12 + 16;
    QTest::newRow("4.6") << int(QDataStream::Qt_4_6) << 12 + 16;
}

void TestHostile::oldStreamsReadTheirGradientsAndTextures()
{
    QFETCH(const int, version);
    QFETCH(const int, countOffset);
    const QVector<QBrush> brushes{gradientBrush(QLinearGradient(1, 2, 3, 4)),
                                  gradientBrush(QRadialGradient(1, 2, 3)),
                                  gradientBrush(QConicalGradient(1, 2, 3))};
    for (const QBrush &brush : brushes) {
        QByteArray bytes;
        QDataStream out(&bytes, QIODevice::WriteOnly);
        out.setVersion(version);
        out << brush << qint32(7);
        QDataStream in(bytes);
        in.setVersion(version);
        QCOMPARE(bytesOf(decodeValue<QBrush>(in)), bytesOf(brush));
        QCOMPARE(decodeValue<qint32>(in), 7);
        QCOMPARE(valueOf<quint32>(bytes.mid(countOffset)), 3u);
        QDataStream hostile(withNumber(bytes, countOffset, 1000));
        hostile.setVersion(version);
        QVERIFY(!StreamCheck::isReadableBrush(hostile));
    }
    QByteArray texture;
    QDataStream out(&texture, QIODevice::WriteOnly);
    out.setVersion(version);
    out << textureBrush(2, 3);
    QDataStream in(texture);
    in.setVersion(version);
    QCOMPARE(decodeValue<QBrush>(in).textureImage().size(), QSize(2, 3));
    QDataStream color(withByte(bytesOf(QColor(Qt::red)), 0, 99));
    color.setVersion(version);
    QVERIFY(!StreamCheck::hasKnownColorKind(color));
}

void TestHostile::streamsOfQt3HaveNeitherGradientsNorKindsOfColours()
{
    constexpr int qt33 = QDataStream::Qt_3_3;
    QDataStream gradient(bytesOf(gradientBrush(QLinearGradient(1, 2, 3, 4))));
    gradient.setVersion(qt33);
    QVERIFY(!StreamCheck::isReadableBrush(gradient));
    QDataStream color(withByte(bytesOf(QColor(Qt::red)), 0, 99));
    color.setVersion(qt33);
    QVERIFY(StreamCheck::hasKnownColorKind(color));
}

void TestHostile::anyNumberOfStopsIsRead()
{
    constexpr int count = 131072;
    QGradientStops falling;
    for (int i = 0; i < count; ++i)
        falling.append({1 - i / double(count), QColor::fromRgba64(quint16(i), quint16(i >> 8), 0)});
    QGradientStops rising = falling;
    std::reverse(rising.begin(), rising.end());
    FullShape full;
    full.object.onSetFillProp = [](CPageBgProp *, bool) {};
    Input in(gradientOfStops(falling));
    QVERIFY(full.shape->setInnerProperty(5005, in, false, false));
    QCOMPARE(in.status(), QDataStream::Ok);
    const QBrush brush = full.shape->getFillBrush();
    QVERIFY(brush.gradient());
    QVERIFY(brush.gradient()->stops() == rising);
}

void TestHostile::unsortedStopsAreReadAsQtReadsThem()
{
    const QVector<double> places{0, 0.25, 0.25, 0.25, 1};
    QVector<int> order{0, 1, 2, 3, 4};
    int orders = 0;
    do {
        QGradientStops stops;
        for (const int index : qAsConst(order))
            stops.append({places[index], QColor(index, 0, 0)});
        const QByteArray bytes = gradientOfStops(stops);
        QCOMPARE(readStops(bytes), valueOf<QBrush>(bytes).gradient()->stops());
        ++orders;
    } while (std::next_permutation(order.begin(), order.end()));
    QCOMPARE(orders, 120);
}

void TestHostile::stopsAreSortedBeforeQtSeesThem()
{
    const QGradientStops stops{{1, Qt::red}, {0.5, Qt::green}, {0, Qt::blue}};
    const QGradientStops sorted{{0, Qt::blue}, {0.5, Qt::green}, {1, Qt::red}};
    QCOMPARE(settledStops(stopBytes(stops), QDataStream()), bytesOf(quint32(3)) + stopBytes(sorted));
    QDataStream small;
    small.setByteOrder(QDataStream::LittleEndian);
    small.setFloatingPointPrecision(QDataStream::SinglePrecision);
    const QByteArray one = QByteArray::fromHex("0000803f") + bytesOf(QColor(Qt::red)); // 1
    const QByteArray half = QByteArray::fromHex("0000003f") + bytesOf(QColor(Qt::green));
    QCOMPARE(settledStops(one + half, small), QByteArray::fromHex("02000000") + half + one);
}

void TestHostile::stopsOfTheSamePlaceKeepTheLastColour()
{
    const QGradientStops stops{{0.5, Qt::red}, {0, Qt::black}, {0.5, Qt::green}, {0.5, Qt::blue}};
    QCOMPARE(settledStops(stopBytes(stops), QDataStream()),
             bytesOf(quint32(2)) + stopBytes({{0, Qt::black}, {0.5, Qt::blue}}));
}

void TestHostile::stopsOutsideOfTheGradientAreLeftOut()
{
    const QGradientStops stops{{2, Qt::red},  {-0.1, Qt::red},   {qQNaN(), Qt::red},
                               {1, Qt::blue}, {qInf(), Qt::red}, {0, Qt::green}};
    QCOMPARE(settledStops(stopBytes(stops), QDataStream()),
             bytesOf(quint32(2)) + stopBytes({{0, Qt::green}, {1, Qt::blue}}));
}

QTEST_MAIN(TestHostile)
#include "test_hostile.moc"

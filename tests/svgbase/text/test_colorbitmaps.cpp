#include "grammar/inputlimits.h"
#include "text/colorbitmaps.h"

#include <QtCore/QDataStream>
#include <QtTest>

using namespace Svg;

namespace {

const QByteArray png("picture of a glyph");
constexpr int firstGlyph = 7;
constexpr qint8 bearingX = -3;
constexpr qint8 bearingY = 8;

/// Numbers with the highest byte first.
class Bytes
{
public:
    template<typename Number> Bytes &add(Number number)
    {
        QDataStream(&m_bytes, QIODevice::Append) << number;
        return *this;
    }
    Bytes &add(const QByteArray &bytes)
    {
        m_bytes.append(bytes);
        return *this;
    }
    operator QByteArray() const { return m_bytes; }

private:
    QByteArray m_bytes;
};

QByteArray metrics(bool big)
{
    Bytes bytes;
    bytes.add(quint8(10)).add(quint8(6)).add(bearingX).add(bearingY).add(quint8(6));
    return big ? bytes.add(quint8(0)).add(quint8(0)).add(quint8(10)) : bytes;
}

/// A bitmap with what stands in front of it.
QByteArray dataOf(int image)
{
    Bytes bytes;
    if (image != 19)
        bytes.add(metrics(image == 18));
    return bytes.add(quint32(png.size())).add(png);
}

/// Where the bitmap of the glyph behind the first one of a range stands: behind another one of the same size.
QByteArray listOf(int format, int image)
{
    const int size = dataOf(image).size();
    Bytes bytes;
    bytes.add(quint16(format)).add(quint16(image)).add(quint32(4));
    if (format == 1)
        return bytes.add(quint32(0)).add(quint32(size)).add(quint32(2 * size));
    if (format == 3)
        return bytes.add(quint16(0)).add(quint16(size)).add(quint16(2 * size));
    if (format == 4)
        return bytes.add(quint32(2))
            .add(quint16(firstGlyph - 2))
            .add(quint16(0))
            .add(quint16(firstGlyph + 1))
            .add(quint16(size))
            .add(quint16(0))
            .add(quint16(2 * size));
    bytes.add(quint32(size)).add(metrics(true));
    if (format == 5)
        bytes.add(quint32(2)).add(quint16(firstGlyph - 2)).add(quint16(firstGlyph + 1));
    return bytes;
}

QByteArray strike(int ranges, int rangesAt, int pixels)
{
    Bytes bytes;
    return bytes.add(quint32(rangesAt))
        .add(quint32(0))
        .add(quint32(ranges))
        .add(QByteArray(28, '\0'))
        .add(quint16(firstGlyph))
        .add(quint16(firstGlyph + 1))
        .add(quint8(pixels))
        .add(quint8(pixels))
        .add(quint8(32))
        .add(qint8(1));
}

constexpr int headerBytes = 8;
constexpr int strikeBytes = 48;
constexpr int rangeBytes = 8;

QByteArray placesOf(int format, int image, int otherRanges = 0)
{
    Bytes bytes;
    bytes.add(quint32(0x30000)).add(quint32(1)).add(strike(otherRanges + 1, headerBytes + strikeBytes, 10));
    for (int i = 0; i < otherRanges; ++i)
        bytes.add(quint16(1)).add(quint16(2)).add(quint32(0));
    bytes.add(quint16(firstGlyph)).add(quint16(firstGlyph + 1)).add(quint32((otherRanges + 1) * rangeBytes));
    return bytes.add(listOf(format, image));
}

QByteArray picturesOf(int image)
{
    return Bytes().add(quint32(0x30000)).add(QByteArray(dataOf(image).size(), 'x')).add(dataOf(image));
}

} // namespace

// Tables of OpenType: "CBLC" and "CBDT".
class TestColorBitmaps : public QObject
{
    Q_OBJECT

private slots:
    void bitmapsAreFoundHoweverTheyAreListed_data();
    void bitmapsAreFoundHoweverTheyAreListed();
    void theLargestBitmapIsTaken();
    void otherGlyphsHaveNone();
    void cutTablesGiveNothing();
    void damagedTablesGiveNothingBeyondTheirEnd();
    void lookingEnds();
};

void TestColorBitmaps::bitmapsAreFoundHoweverTheyAreListed_data()
{
    QTest::addColumn<int>("format");
    QTest::addColumn<int>("image");
    QTest::newRow("long offsets, small metrics") << 1 << 17;
    QTest::newRow("long offsets, big metrics") << 1 << 18;
    QTest::newRow("one size, shared metrics") << 2 << 19;
    QTest::newRow("short offsets, small metrics") << 3 << 17;
    QTest::newRow("one by one, small metrics") << 4 << 17;
    QTest::newRow("one by one of one size, shared metrics") << 5 << 19;
}

void TestColorBitmaps::bitmapsAreFoundHoweverTheyAreListed()
{
    QFETCH(int, format);
    QFETCH(int, image);
    ColorBitmaps bitmaps(placesOf(format, image), picturesOf(image));
    const std::optional<GlyphBitmap> found = bitmaps.find(firstGlyph + 1);
    QVERIFY(found);
    QCOMPARE(found->png, png);
    QCOMPARE(found->corner, QPoint(bearingX, -bearingY));
    QCOMPARE(found->pixelsPerEmX, 10);
    QCOMPARE(found->pixelsPerEmY, 10);
}

void TestColorBitmaps::theLargestBitmapIsTaken()
{
    const int lists = headerBytes + 3 * strikeBytes;
    Bytes places;
    places.add(quint32(0x30000)).add(quint32(3));
    // The range of the second strike alone leads to a list.
    places.add(strike(1, 0, 20)).add(strike(1, lists, 30)).add(strike(1, 0, 10));
    places.add(quint16(firstGlyph)).add(quint16(firstGlyph + 1)).add(quint32(rangeBytes)).add(listOf(1, 17));
    const std::optional<GlyphBitmap> found = ColorBitmaps(places, picturesOf(17)).find(firstGlyph + 1);
    QVERIFY(found);
    QCOMPARE(found->pixelsPerEmY, 30);
}

void TestColorBitmaps::otherGlyphsHaveNone()
{
    for (const int format : {1, 4, 5}) {
        ColorBitmaps bitmaps(placesOf(format, 17), picturesOf(17));
        QVERIFY(!bitmaps.find(firstGlyph - 1));
        QVERIFY(!bitmaps.find(firstGlyph));
        QVERIFY(!bitmaps.find(firstGlyph + 2));
        QVERIFY(!bitmaps.find(0x10000 + firstGlyph + 1));
    }
    QVERIFY(ColorBitmaps(QByteArray(), QByteArray()).isEmpty());
    QVERIFY(!ColorBitmaps(placesOf(1, 17), QByteArray()).find(firstGlyph + 1));
    QVERIFY(!ColorBitmaps(placesOf(1, 16), picturesOf(17)).find(firstGlyph + 1));
    QVERIFY(!ColorBitmaps(placesOf(6, 17), picturesOf(17)).find(firstGlyph + 1));
}

void TestColorBitmaps::cutTablesGiveNothing()
{
    for (const int format : {1, 2, 3, 4, 5}) {
        const QByteArray places = placesOf(format, 17);
        const QByteArray pictures = picturesOf(17);
        QVERIFY(ColorBitmaps(places, pictures).find(firstGlyph + 1) || format == 2 || format == 5);
        for (int length = 0; length < pictures.size(); ++length)
            QVERIFY(!ColorBitmaps(places, pictures.left(length)).find(firstGlyph + 1));
        for (int length = 0; length < headerBytes + strikeBytes + rangeBytes; ++length)
            QVERIFY(!ColorBitmaps(places.left(length), pictures).find(firstGlyph + 1));
    }
}

void TestColorBitmaps::damagedTablesGiveNothingBeyondTheirEnd()
{
    for (const int format : {1, 2, 3, 4, 5}) {
        const QByteArray places = placesOf(format, 17);
        const QByteArray pictures = picturesOf(17);
        for (int i = 0; i < places.size(); ++i) {
            QByteArray damaged = places;
            damaged[i] = char(0xff);
            const std::optional<GlyphBitmap> found = ColorBitmaps(damaged, pictures).find(firstGlyph + 1);
            QVERIFY(!found || pictures.contains(found->png));
        }
    }
}

void TestColorBitmaps::lookingEnds()
{
    const int ranges = 99998;
    // One strike, the other ranges, and the right one.
    const int steps = ranges + 2;
    ColorBitmaps bitmaps(placesOf(1, 17, ranges), picturesOf(17));
    for (int i = 0; i < Limits::fontPictureSteps / steps; ++i)
        QVERIFY(bitmaps.find(firstGlyph + 1));
    QVERIFY(!bitmaps.tookTooLong());
    QVERIFY(!bitmaps.find(firstGlyph + 1));
    QVERIFY(bitmaps.tookTooLong());
    QVERIFY(!bitmaps.find(firstGlyph));
}

QTEST_APPLESS_MAIN(TestColorBitmaps)
#include "test_colorbitmaps.moc"

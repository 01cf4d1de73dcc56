#include "document/documentreading.h"
#include "grammar/datauris.h"
#include "grammar/inputlimits.h"
#include "images/images.h"
#include "svgbase/svgdrawing.h"

#include <QtCore/QBuffer>
#include <QtEndian>
#include <QtTest>

using namespace Svg;

namespace {

QString base64Uri(const QByteArray &bytes)
{
    return QStringLiteral("data:;base64,") + QString::fromLatin1(bytes.toBase64());
}

QByteArray encoded(const QImage &image, const char *format)
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    // Full quality would mean a PNG that is not compressed.
    image.save(&buffer, format, qstrcmp(format, "PNG") == 0 ? 0 : 100);
    return bytes;
}

QImage plain(const QSize &size, const QColor &color)
{
    QImage image(size, QImage::Format_RGB32);
    image.fill(color);
    return image;
}

/// The check sum of PNG chunks.
quint32 crc(const QByteArray &bytes)
{
    quint32 value = 0xffffffff;
    for (const char byte : bytes) {
        value ^= uchar(byte);
        for (int bit = 0; bit < 8; ++bit)
            value = (value & 1) ? (value >> 1) ^ 0xedb88320 : value >> 1;
    }
    return ~value;
}

QByteArray bigEndian(quint32 value)
{
    QByteArray bytes(4, '\0');
    qToBigEndian(value, bytes.data());
    return bytes;
}

/// A PNG whose header claims a size that its data does not have.
QByteArray claiming(int width, int height)
{
    QByteArray bytes = encoded(plain(QSize(1, 1), Qt::red), "PNG");
    constexpr int headerOffset = 12;
    constexpr int headerSize = 17;
    constexpr int sizeOffset = 16;
    bytes.replace(sizeOffset, 8, bigEndian(quint32(width)) + bigEndian(quint32(height)));
    bytes.replace(headerOffset + headerSize, 4, bigEndian(crc(bytes.mid(headerOffset, headerSize))));
    return bytes;
}

QString problemOf(const QByteArray &bytes)
{
    Problem problem;
    readImage(base64Uri(bytes), documentReader(), &problem);
    return problem.text;
}

} // namespace

class TestImages : public QObject
{
    Q_OBJECT

private slots:
    void dataUris_data();
    void dataUris();
    void jpegIsShown();
    void gifIsShown();
    void otherKindsAreNotShown();
    void sizeIsJudgedFromTheHeader();
    void hugeImageIsLeftOutWithAMessage();
    void imagesOfADrawingAreBoundedTogether();
    void damagedPictureShowsNothing();
    void changedReferenceShowsAtOnce();
    void compressedDocumentIsShown();
    void documentsInDocumentsEndSomewhere();
};

void TestImages::dataUris_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("valid");
    QTest::addColumn<QByteArray>("bytes");
    QTest::newRow("plain") << "data:,a b" << true << QByteArray("a b");
    QTest::newRow("escapes") << "data:text/plain,%41%4a%2C" << true << QByteArray("AJ,");
    QTest::newRow("percent sign without digits") << "data:,50%,%4" << true << QByteArray("50%,%4");
    QTest::newRow("base 64") << "data:image/png;base64,QUI=" << true << QByteArray("AB");
    QTest::newRow("base 64 without padding") << "data:;base64,QUI" << true << QByteArray("AB");
    QTest::newRow("base 64 with spaces") << " data:;base64, Q\nUI =\t" << true << QByteArray("AB");
    QTest::newRow("base 64 with escapes") << "data:;base64,QUI%3D" << true << QByteArray("AB");
    QTest::newRow("upper case") << "DATA:;BASE64,QUI=" << true << QByteArray("AB");
    QTest::newRow("comma in data") << "data:,a,b" << true << QByteArray("a,b");
    QTest::newRow("empty") << "data:," << true << QByteArray();
    QTest::newRow("no comma") << "data:image/png" << false << QByteArray();
    QTest::newRow("bad base 64") << "data:;base64,Q!" << false << QByteArray();
    QTest::newRow("a file") << "file:///etc/passwd" << false << QByteArray();
    QTest::newRow("nothing") << "" << false << QByteArray();
}

void TestImages::dataUris()
{
    QFETCH(QString, text);
    const std::optional<QByteArray> bytes = parseDataUri(text);
    QTEST(bytes.has_value(), "valid");
    QTEST(bytes.value_or(QByteArray()), "bytes");
}

void TestImages::jpegIsShown()
{
    const QByteArray jpeg = encoded(plain(QSize(8, 8), Qt::blue), "JPEG");
    const QImage image = drawnContent("<image width='100' height='100' href='" + base64Uri(jpeg) + "'/>");
    // JPEG may be off by a step or two.
    const QColor color = image.pixelColor(50, 50);
    QVERIFY(color.blue() >= 253 && color.red() <= 2 && color.green() <= 2 && color.alpha() == 255);
}

void TestImages::gifIsShown()
{
    const QString image = drawnContent("<image width='100' height='100' href='data:image/gif;base64,"
                                       "R0lGODlhAQABAIAAAP8AAP///yH5BAAAAAAALAAAAAABAAEAAAICRAEAOw=='/>")
                              .pixelColor(50, 50)
                              .name();
    QCOMPARE(image, QStringLiteral("#ff0000"));
}

void TestImages::otherKindsAreNotShown()
{
    QVERIFY(!problemOf(encoded(plain(QSize(2, 2), Qt::red), "BMP")).isEmpty());
    QVERIFY(!problemOf("no image at all").isEmpty());
    QVERIFY(!problemOf("<html/>").isEmpty());
}

void TestImages::sizeIsJudgedFromTheHeader()
{
    constexpr int side = 8192;
    static_assert(side * side == Limits::imagePixels);
    // The data stays one pixel: if more than the header were read, both would be refused.
    QVERIFY(problemOf(claiming(side, side)).isEmpty());
    QVERIFY(problemOf(claiming(side + 1, side)).contains(QString::number(Limits::imagePixels)));
    QVERIFY(problemOf(claiming(2147483647, 2147483647)).contains(QStringLiteral("image")));
}

void TestImages::hugeImageIsLeftOutWithAMessage()
{
    const DocumentPointer document =
        loadContent("<image id='huge' width='100' height='100' href='" + base64Uri(claiming(65536, 65536)) +
                    "'/><rect width='50' height='50' fill='#0f0'/>");
    QCOMPARE(drawn(*document).pixelColor(25, 25), QColor(0, 255, 0));
    QCOMPARE(document->messages().size(), 1);
    QCOMPARE(document->messages().constFirst().elementId, QStringLiteral("huge"));
}

void TestImages::imagesOfADrawingAreBoundedTogether()
{
    // Three images of a third and a half of what is allowed: the third of them is left out.
    QString content;
    for (int i = 0; i < 3; ++i) {
        const QString tall = base64Uri(encoded(plain(QSize(1024, 25 * 1024 + i), Qt::red), "PNG"));
        content += QStringLiteral("<image x='%1' width='10' height='100' preserveAspectRatio='none' href='%2'/>")
                       .arg(i * 20)
                       .arg(tall);
    }
    const QImage image = drawnContent(content);
    QVERIFY(!image.isNull());
    QCOMPARE(image.pixelColor(5, 50), QColor(Qt::red));
    QCOMPARE(image.pixelColor(25, 50), QColor(Qt::red));
    QCOMPARE(image.pixelColor(45, 50).alpha(), 0);
}

void TestImages::damagedPictureShowsNothing()
{
    const QImage image = drawnContent("<image width='100' height='100' href='" + base64Uri(claiming(50, 50)) +
                                      "'/><rect width='10' height='10'/>");
    QCOMPARE(image.pixelColor(5, 5), QColor(Qt::black));
    QCOMPARE(image.pixelColor(50, 99).alpha(), 0);
}

void TestImages::changedReferenceShowsAtOnce()
{
    const QString red = base64Uri(encoded(plain(QSize(1, 1), Qt::red), "PNG"));
    const QString blue = base64Uri(encoded(plain(QSize(1, 1), Qt::blue), "PNG"));
    const DocumentPointer document = loadContent("<image id='i' width='100' height='100' href='" + red + "'/>");
    QCOMPARE(drawn(*document).pixelColor(50, 50), QColor(Qt::red));
    document->namedNode("i")->setAttribute("href", blue);
    QCOMPARE(drawn(*document).pixelColor(50, 50), QColor(Qt::blue));
    document->namedNode("i")->setAttribute("href", "#nothing");
    QCOMPARE(drawn(*document).pixelColor(50, 50).alpha(), 0);
}

void TestImages::compressedDocumentIsShown()
{
    // <svg viewBox="0 0 1 1"><rect width="1" height="1" fill="#0f0"/></svg>
    const QString gzip =
        QStringLiteral("H4sIAAAAAAACA7MpLktXKMtMLXfKr7BVMlAwUDBUMFSysylKTS5RKM9MKcmwVTJUUshIzUzPKAEz0zJzcmyVlA3SDJ"
                       "T07Wz0gfrtAJ+X3upFAAAA");
    const DocumentPointer document =
        loadContent("<image width='100' height='100' href='data:image/svg+xml;base64," + gzip + "'/>");
    QCOMPARE(drawn(*document).pixelColor(50, 50), QColor(0, 255, 0));
}

void TestImages::documentsInDocumentsEndSomewhere()
{
    QByteArray inner =
        "<svg xmlns='http://www.w3.org/2000/svg' viewBox='0 0 1 1'><rect width='1' height='1'/></svg>";
    QVector<int> alphas;
    for (int depth = 1; depth <= Limits::imageDepth + 1; ++depth) {
        inner = "<svg xmlns='http://www.w3.org/2000/svg' viewBox='0 0 1 1'><image width='1' height='1' href='" +
                base64Uri(inner).toLatin1() + "'/></svg>";
        const DocumentPointer document(QZeSvgTinyDocument::load(inner));
        alphas.append(drawn(*document).pixelColor(50, 50).alpha());
    }
    QCOMPARE(alphas, QVector<int>({255, 255, 255, 255, 0}));
}

QTEST_MAIN(TestImages)
#include "test_images.moc"

#include "grammar/inputlimits.h"
#include "svgbase/svgdrawing.h"
#include "tree/gunzip.h"

#include <QtTest>

#include <zlib.h>

namespace {

QByteArray gzipped(const QByteArray &bytes)
{
    z_stream stream = {};
    deflateInit2(&stream, Z_BEST_COMPRESSION, Z_DEFLATED, MAX_WBITS + 16, 8, Z_DEFAULT_STRATEGY);
    QByteArray result(int(deflateBound(&stream, uLong(bytes.size()))), '\0');
    QByteArray source = bytes;
    stream.next_in = reinterpret_cast<Bytef *>(source.data());
    stream.avail_in = uInt(source.size());
    stream.next_out = reinterpret_cast<Bytef *>(result.data());
    stream.avail_out = uInt(result.size());
    deflate(&stream, Z_FINISH);
    result.resize(int(stream.total_out));
    deflateEnd(&stream);
    return result;
}

} // namespace

class TestGunzip : public QObject
{
    Q_OBJECT

private slots:
    void compressedDocumentIsLoaded();
    void compressedDocumentDrawsAsPlainOne();
    void truncatedFileIsRefused();
    void damagedFileIsRefused();
    void bombIsRefused();
    void limitCountsWhatComesOut();
    void membersFollowEachOther();
    void damagedSecondMemberIsRefused();
    void limitCountsAllMembers();
    void fillBehindTheLastMemberIsIgnored();
    void documentOfSeveralMembersIsLoaded();
};

void TestGunzip::compressedDocumentIsLoaded()
{
    const QByteArray text = svgText(QStringLiteral("<rect id='r' width='10' height='10'/>"));
    const DocumentPointer document(QZeSvgTinyDocument::load(gzipped(text)));
    QVERIFY(document);
    QCOMPARE(document->namedNode(QStringLiteral("r"))->boundingRect(), QRectF(0, 0, 10, 10));
}

void TestGunzip::compressedDocumentDrawsAsPlainOne()
{
    const QByteArray text = svgText(QStringLiteral("<circle cx='50' cy='50' r='40' fill='red'/>"));
    const DocumentPointer plain(QZeSvgTinyDocument::load(text));
    const DocumentPointer compressed(QZeSvgTinyDocument::load(gzipped(text)));
    QCOMPARE(drawn(*compressed), drawn(*plain));
}

void TestGunzip::truncatedFileIsRefused()
{
    const QByteArray file = gzipped(svgText(QStringLiteral("<rect width='10' height='10'/>")));
    QVector<QZeSvgTinyDocument::Message> messages;
    QVERIFY(!DocumentPointer(QZeSvgTinyDocument::load(file.left(file.size() - 12), &messages)));
    QCOMPARE(messages.size(), 1);
    QCOMPARE(messages.first().severity, QZeSvgTinyDocument::Message::Error);
}

void TestGunzip::damagedFileIsRefused()
{
    QByteArray file = gzipped(svgText(QStringLiteral("<rect width='10' height='10'/>")));
    // The checksum of the contents stands in the last eight bytes.
    file[file.size() - 8] = char(file.at(file.size() - 8) ^ 1);
    QVERIFY(!DocumentPointer(QZeSvgTinyDocument::load(file)));
}

void TestGunzip::bombIsRefused()
{
    const QByteArray bomb = gzipped(QByteArray(Svg::Limits::textBytes + 1, ' '));
    QVERIFY(bomb.size() < 100000);
    QVERIFY(!DocumentPointer(QZeSvgTinyDocument::load(bomb)));
}

void TestGunzip::limitCountsWhatComesOut()
{
    const QByteArray file = gzipped("0123456789");
    QVERIFY(Svg::isGzip(file));
    QCOMPARE(Svg::gunzip(file, 10).value_or(QByteArray()), QByteArray("0123456789"));
    QVERIFY(!Svg::gunzip(file, 9));
}

// RFC 1952 §2.2: a file is a series of members, and empty ones count, too.
void TestGunzip::membersFollowEachOther()
{
    const QByteArray file = gzipped("0123") + gzipped("") + gzipped("456") + gzipped("789");
    QCOMPARE(Svg::gunzip(file, 10).value_or(QByteArray()), QByteArray("0123456789"));
}

void TestGunzip::damagedSecondMemberIsRefused()
{
    QByteArray second = gzipped("456");
    second[second.size() - 8] = char(second.at(second.size() - 8) ^ 1);
    QVERIFY(!Svg::gunzip(gzipped("0123") + second, 10));
    const QByteArray cut = gzipped("456").left(15);
    QVERIFY(!Svg::gunzip(gzipped("0123") + cut, 10));
}

void TestGunzip::limitCountsAllMembers()
{
    const QByteArray file = gzipped("0123") + gzipped("456");
    QVERIFY(Svg::gunzip(file, 7));
    QVERIFY(!Svg::gunzip(file, 6));
}

void TestGunzip::fillBehindTheLastMemberIsIgnored()
{
    const QByteArray file = gzipped("0123") + QByteArray(100, '\0');
    QCOMPARE(Svg::gunzip(file, 10).value_or(QByteArray()), QByteArray("0123"));
}

void TestGunzip::documentOfSeveralMembersIsLoaded()
{
    const QByteArray text = svgText(QStringLiteral("<rect id='r' width='10' height='10'/>"));
    const DocumentPointer document(QZeSvgTinyDocument::load(gzipped(text.left(20)) + gzipped(text.mid(20))));
    QVERIFY(document);
    QCOMPARE(document->namedNode(QStringLiteral("r"))->boundingRect(), QRectF(0, 0, 10, 10));
}

QTEST_MAIN(TestGunzip)
#include "test_gunzip.moc"

// The description of a property read from its stream by editor code, and the stream that sets it.

#include <pagehost/attributestream.h>

#include <framework/testobject.h>

#include <support/listed.h>

#include <QtCore/QDataStream>
#include <QtGui/QBrush>
#include <QtGui/QColor>
#include <QtTest/QtTest>

using pagehost::AttributeDescription;
using pagehost::readAttribute;

static constexpr int someId = 5100;

/// A description built value by value; the head is that of every property.
class Described
{
public:
    explicit Described(int code) { m_out << qint32(someId) << qint32(code) << QStringLiteral("IDS_X") << true; }
    /// Without an editor code.
    Described() { m_out << qint32(someId) << QStringLiteral("IDS_X") << true; }
    template<typename Value> Described &operator<<(const Value &value)
    {
        m_out << value;
        return *this;
    }
    QByteArray bytes() const { return m_bytes; }
    AttributeDescription read() const { return readAttribute(someId, m_bytes).value(); }
    bool isReadable() const { return readAttribute(someId, m_bytes).has_value(); }

private:
    QByteArray m_bytes;
    QDataStream m_out{&m_bytes, QIODevice::WriteOnly};
};

static QByteArray stream(qint32 value)
{
    QByteArray bytes;
    QDataStream(&bytes, QIODevice::WriteOnly) << value;
    return bytes;
}

class TestAttributeStream : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void headIsRead();
    void colorIsRead();
    void brushIsItsColour();
    void emptyBrushIsTransparent();
    void listOfTextsIsRead();
    void listOfPicturesIsRead();
    void wholeRangeIsRead();
    void realRangeIsRead();
    void switchIsRead();
    void textIsRead();
    void numberWithoutCode();
    void realNumberWithoutCode();
    void otherPropertyIsRefused();
    void bytesOfTheObjectsOwnAreNotShown();
    void nonsenseIsRefused_data();
    void nonsenseIsRefused();
    void everyCutIsRefused();
    void everyFlippedByteIsSurvived();
    void hugePicturesAreRefused();
    void answers();
    void objectIsAsked();
    void objectIsGivenAValue();
    void unknownKindOfColourIsRefused();
    void descriptionsAreWritten_data();
    void descriptionsAreWritten();
};

void TestAttributeStream::headIsRead()
{
    const AttributeDescription property = (Described(4) << true).read();
    QCOMPARE(property.id, someId);
    QCOMPARE(property.nameKey, QString("IDS_X"));
    QVERIFY(property.isEnabled);
}

void TestAttributeStream::colorIsRead()
{
    const AttributeDescription property = (Described(2) << QColor(1, 2, 3, 4)).read();
    QCOMPARE(property.kind, AttributeDescription::Color);
    QCOMPARE(property.value.value<QColor>(), QColor(1, 2, 3, 4));
}

void TestAttributeStream::brushIsItsColour()
{
    const AttributeDescription property = (Described(2) << QBrush(QColor(1, 2, 3, 4))).read();
    QCOMPARE(property.kind, AttributeDescription::Brush);
    QCOMPARE(property.value.value<QColor>(), QColor(1, 2, 3, 4));
    QLinearGradient gradient(0, 0, 1, 1);
    gradient.setColorAt(0, Qt::red);
    QCOMPARE((Described(2) << QBrush(gradient)).read().kind, AttributeDescription::Brush);
    QCOMPARE((Described(2) << QBrush(gradient)).read().value.value<QColor>(), QColor(Qt::transparent));
}

void TestAttributeStream::emptyBrushIsTransparent()
{
    QCOMPARE((Described(2) << QBrush(Qt::NoBrush)).read().value.value<QColor>(), QColor(Qt::transparent));
}

void TestAttributeStream::listOfTextsIsRead()
{
    const AttributeDescription property =
        (Described(1) << qint32(3) << qint32(2) << qint32(0) << QStringLiteral("1") << QStringLiteral("2")
                      << QStringLiteral("3"))
            .read();
    QCOMPARE(property.kind, AttributeDescription::Choice);
    QCOMPARE(property.value, QVariant(2));
    QCOMPARE(property.entries.size(), 3);
    QCOMPARE(property.entries.at(1).text, QString("2"));
    QVERIFY(property.entries.at(1).icon.isNull());
}

void TestAttributeStream::listOfPicturesIsRead()
{
    QPixmap picture(8, 4);
    picture.fill(Qt::black);
    const AttributeDescription property =
        (Described(1) << qint32(2) << qint32(7) << qint32(2) << QString() << picture << QString() << QPixmap())
            .read();
    QCOMPARE(property.entries.size(), 2);
    QCOMPARE(property.entries.at(0).icon.size(), QSize(8, 4));
    QVERIFY(property.entries.at(1).icon.isNull());
    // No entry has that number.
    QCOMPARE(property.value, QVariant(-1));
}

void TestAttributeStream::wholeRangeIsRead()
{
    const AttributeDescription property =
        (Described(7) << qint32(3) << qint32(12) << qint32(1) << qint32(5)).read();
    QCOMPARE(property.kind, AttributeDescription::WholeRange);
    QCOMPARE(property.range.minimum, 3.0);
    QCOMPARE(property.range.maximum, 12.0);
    QCOMPARE(property.range.step, 1.0);
    QCOMPARE(property.value, QVariant(5));
}

void TestAttributeStream::realRangeIsRead()
{
    const AttributeDescription property = (Described(7) << 0.5 << 2.0 << 0.25 << 1.75).read();
    QCOMPARE(property.kind, AttributeDescription::RealRange);
    QCOMPARE(property.range.minimum, 0.5);
    QCOMPARE(property.range.maximum, 2.0);
    QCOMPARE(property.range.step, 0.25);
    QCOMPARE(property.value, QVariant(1.75));
    // Outside its bounds it is shown at the nearer one.
    QCOMPARE((Described(7) << 0.5 << 2.0 << 0.25 << 9.0).read().value, QVariant(2.0));
}

void TestAttributeStream::switchIsRead()
{
    QCOMPARE((Described(4) << true).read().kind, AttributeDescription::Switch);
    QCOMPARE((Described(4) << true).read().value, QVariant(true));
    QCOMPARE((Described(4) << false).read().value, QVariant(false));
}

void TestAttributeStream::textIsRead()
{
    const AttributeDescription property = (Described(5) << QStringLiteral("1 2 3")).read();
    QCOMPARE(property.kind, AttributeDescription::Text);
    QCOMPARE(property.value, QVariant(QString("1 2 3")));
}

void TestAttributeStream::numberWithoutCode()
{
    const AttributeDescription property = (Described() << qint32(-7)).read();
    QCOMPARE(property.kind, AttributeDescription::Whole);
    QCOMPARE(property.nameKey, QString("IDS_X"));
    QCOMPARE(property.value, QVariant(-7));
}

void TestAttributeStream::realNumberWithoutCode()
{
    const AttributeDescription property = (Described() << 2.5).read();
    QCOMPARE(property.kind, AttributeDescription::Real);
    QCOMPARE(property.value, QVariant(2.5));
    QVERIFY(!(Described() << qInf()).isReadable());
    // The length of this name looks like an editor code.
    QByteArray bytes;
    QDataStream(&bytes, QIODevice::WriteOnly) << qint32(someId) << QStringLiteral("size") << true << 2.5;
    QCOMPARE(readAttribute(someId, bytes)->nameKey, QString("size"));
}

void TestAttributeStream::otherPropertyIsRefused()
{
    QVERIFY(!readAttribute(someId + 1, (Described(4) << true).bytes()));
}

void TestAttributeStream::bytesOfTheObjectsOwnAreNotShown()
{
    QVERIFY(!(Described(8) << QByteArray("anything")).isReadable());
}

void TestAttributeStream::nonsenseIsRefused_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::newRow("nothing") << QByteArray();
    QTest::newRow("unknown code") << (Described(3) << qint32(1)).bytes();
    QTest::newRow("description without value") << Described(2).bytes();
    QTest::newRow("switch with more behind it") << (Described(4) << true << true).bytes();
    QTest::newRow("empty list") << (Described(1) << qint32(0) << qint32(0) << qint32(0)).bytes();
    QTest::newRow("list of less than nothing") << (Described(1) << qint32(-1) << qint32(0) << qint32(0)).bytes();
    QTest::newRow("list of 2147483647") << (Described(1) << qint32(2147483647) << qint32(0) << qint32(0)).bytes();
    QTest::newRow("list shorter than it says")
        << (Described(1) << qint32(2) << qint32(0) << qint32(0) << QStringLiteral("1")).bytes();
    QTest::newRow("range upside down")
        << (Described(7) << qint32(9) << qint32(1) << qint32(1) << qint32(2)).bytes();
    QTest::newRow("range to infinity") << (Described(7) << 0.0 << qInf() << 1.0 << 2.0).bytes();
    QTest::newRow("range of no numbers") << (Described(7) << 0.0 << 1.0 << qQNaN() << 2.0).bytes();
    QTest::newRow("invalid colour") << (Described(2) << QColor()).bytes();
    QTest::newRow("text of 4 GB") << (Described(5) << quint32(0xfffffffe)).bytes();
}

void TestAttributeStream::nonsenseIsRefused()
{
    QFETCH(QByteArray, bytes);
    QVERIFY(!readAttribute(someId, bytes));
}

static QVector<QByteArray> samples()
{
    QPixmap picture(8, 4);
    picture.fill(Qt::black);
    return {(Described(2) << QBrush(QColor(1, 2, 3, 4))).bytes(),
            (Described(1) << qint32(2) << qint32(0) << qint32(2) << QString() << picture << QString() << picture)
                .bytes(),
            (Described(7) << 0.5 << 2.0 << 0.25 << 1.75).bytes(), (Described(5) << QStringLiteral("text")).bytes()};
}

void TestAttributeStream::everyCutIsRefused()
{
    for (const QByteArray &whole : support::listed(samples())) {
        QVERIFY(readAttribute(someId, whole));
        for (int size = 0; size < whole.size(); ++size) {
            const auto property = readAttribute(someId, whole.left(size));
            // A brush may lose what stands behind its colour, which is all that is shown of it.
            const bool isColor = property && (property->kind == AttributeDescription::Brush ||
                                              property->kind == AttributeDescription::Color);
            // Nor does a PNG file need the chunk of 12 bytes that ends it.
            const bool isPicture = property && property->kind == AttributeDescription::Choice;
            QVERIFY2(!property || isColor || (isPicture && size >= whole.size() - 12),
                     qPrintable(QString("%1 of %2").arg(size).arg(whole.size())));
        }
    }
}

void TestAttributeStream::everyFlippedByteIsSurvived()
{
    for (const QByteArray &whole : support::listed(samples())) {
        for (int i = 0; i < whole.size(); ++i) {
            for (const char bits : {char(0xff), char(0x80), char(0x01)}) {
                QByteArray changed = whole;
                changed[i] = char(changed[i] ^ bits);
                const auto property = readAttribute(someId, changed);
                QVERIFY(!property || property->entries.size() <= 1000);
            }
        }
    }
}

void TestAttributeStream::hugePicturesAreRefused()
{
    QPixmap picture(8, 4);
    picture.fill(Qt::black);
    QByteArray bytes = (Described(1) << qint32(1) << qint32(0) << qint32(2) << QString() << picture).bytes();
    const int header = bytes.indexOf("IHDR");
    QVERIFY(header > 0);
    // 2^31 - 1 pixels wide.
    bytes.replace(header + 4, 4, QByteArray("\x7f\xff\xff\xff", 4));
    QVERIFY(!readAttribute(someId, bytes));
}

void TestAttributeStream::answers()
{
    AttributeDescription property;
    property.kind = AttributeDescription::Choice;
    QCOMPARE(pagehost::attributeAnswer(property, 3), stream(3));
    property.kind = AttributeDescription::WholeRange;
    // Sliders give doubles.
    QCOMPARE(pagehost::attributeAnswer(property, 4.0), stream(4));
    property.kind = AttributeDescription::Switch;
    QCOMPARE(pagehost::attributeAnswer(property, true), QByteArray(1, '\1'));
    property.kind = AttributeDescription::RealRange;
    // The number 2 as eight big-endian bytes.
    QCOMPARE(pagehost::attributeAnswer(property, 2.0), QByteArray("\x40\0\0\0\0\0\0\0", 8));
    property.kind = AttributeDescription::Text;
    QCOMPARE(pagehost::attributeAnswer(property, QString("a")), QByteArray("\0\0\0\2\0a", 6));
    property.kind = AttributeDescription::Color;
    const QByteArray color = pagehost::attributeAnswer(property, QColor(255, 0, 0));
    // RGB, then alpha, red, green, blue and padding as 16-bit numbers.
    QCOMPARE(color, QByteArray("\1\xff\xff\xff\xff\0\0\0\0\0\0", 11));
    property.kind = AttributeDescription::Brush;
    const QByteArray brush = pagehost::attributeAnswer(property, QColor(255, 0, 0));
    QCOMPARE(brush.left(12), QByteArray("\1", 1) + color);
}

/// An object that says what it is told to, and writes over the value that it takes.
class Speaker : public TestObject
{
public:
    bool GetAttribute(int id, QDataStream &out) override
    {
        out.writeRawData(said.constData(), said.size());
        return id == someId;
    }
    bool SetAttribute(int id, QDataStream &in, bool record) override
    {
        in >> taken;
        recorded = record;
        in.device()->reset();
        in << qint32(0);
        return id == someId;
    }

    QByteArray said;
    qint32 taken = 0;
    bool recorded = false;
};

void TestAttributeStream::objectIsAsked()
{
    Speaker object;
    object.said = (Described(4) << true).bytes();
    QCOMPARE(pagehost::attributeOf(&object, someId)->value, QVariant(true));
    QVERIFY(!pagehost::attributeOf(&object, someId + 1));
}

void TestAttributeStream::objectIsGivenAValue()
{
    Speaker object;
    const QByteArray answer = stream(7);
    QVERIFY(pagehost::giveAttribute(&object, someId, answer, true));
    QCOMPARE(object.taken, 7);
    QVERIFY(object.recorded);
    QVERIFY(pagehost::giveAttribute(&object, someId, answer, false));
    QVERIFY(!object.recorded);
    QVERIFY(!pagehost::giveAttribute(&object, someId + 1, answer, true));
    QCOMPARE(answer, stream(7));
}

void TestAttributeStream::unknownKindOfColourIsRefused()
{
    QByteArray color = (Described(2) << QColor(1, 2, 3, 4)).bytes();
    color[color.size() - 11] = 6;
    QVERIFY(!readAttribute(someId, color));
    color[color.size() - 11] = 1;
    QVERIFY(readAttribute(someId, color));
    QByteArray brush = (Described(2) << QBrush(QColor(1, 2, 3, 4))).bytes();
    const int kindAt = brush.size() - 72 - 11; // before the matrix
    brush[kindAt] = 6;
    QVERIFY(!readAttribute(someId, brush));
    brush[kindAt] = 1;
    QVERIFY(readAttribute(someId, brush));
}

void TestAttributeStream::descriptionsAreWritten_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QPixmap picture(8, 4);
    picture.fill(Qt::black);
    QTest::newRow("list of texts") << (Described(1) << qint32(2) << qint32(1) << qint32(0) << QStringLiteral("1")
                                                    << QStringLiteral("2"))
                                          .bytes();
    QTest::newRow("list of pictures") << (Described(1) << qint32(2) << qint32(0) << qint32(2) << QString()
                                                       << picture << QStringLiteral("b") << QPixmap())
                                             .bytes();
    QTest::newRow("colour") << (Described(2) << QColor(1, 2, 3, 4)).bytes();
    QTest::newRow("brush") << (Described(2) << QBrush(QColor(1, 2, 3, 4))).bytes();
    QTest::newRow("whole number") << (Described() << qint32(-7)).bytes();
    QTest::newRow("real number") << (Described() << 2.5).bytes();
    QTest::newRow("whole range") << (Described(7) << qint32(3) << qint32(12) << qint32(1) << qint32(5)).bytes();
    QTest::newRow("real range") << (Described(7) << 0.5 << 2.0 << 0.25 << 1.75).bytes();
    QTest::newRow("switch") << (Described(4) << true).bytes();
    QTest::newRow("text") << (Described(5) << QStringLiteral("1 2 3")).bytes();
}

void TestAttributeStream::descriptionsAreWritten()
{
    QFETCH(QByteArray, bytes);
    QCOMPARE(pagehost::writeAttribute(readAttribute(someId, bytes).value()), bytes);
}

QTEST_MAIN(TestAttributeStream)
#include "test_attributestream.moc"

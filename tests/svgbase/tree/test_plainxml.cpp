// Plain XML is read by a reader of its own. Whatever it accepts, it reads as Qt's reader does.

#include "grammar/inputlimits.h"
#include "svgbase/goldencases.h"
#include "svgbase/tree/treereading.h"

#include <support/listed.h>

#include <QtCore/QRandomGenerator>
#include <QtTest/QtTest>

using namespace Svg;
using treereading::plain;
using treereading::streamed;

namespace {

QByteArray inRoot(const QByteArray &content)
{
    return "<svg xmlns='http://www.w3.org/2000/svg' xmlns:xlink='http://www.w3.org/1999/xlink'>" + content +
           "</svg>";
}

QVector<QByteArray> knownTexts()
{
    QVector<QByteArray> texts;
    for (const QString &name : support::listed(goldencases::namesWith(QStringLiteral(".svg"))))
        texts.append(goldencases::contents(name));
    return texts;
}

QByteArray damaged(QByteArray text, QRandomGenerator &random)
{
    static const QByteArray pieces[] = {"<",        ">",    "/>",  "</",   "\"",       "'",
                                        "=",        " ",    "\n",  "]]>",  "--",       "<!--",
                                        "-->",      "&lt;", "<g>", "</g>", "xmlns=''", "xml:space='preserve'",
                                        "\xc3\xa9", ":"};
    for (int i = 0; i <= random.bounded(2); ++i) {
        const int place = random.bounded(text.size());
        if (random.bounded(2))
            text.insert(place, pieces[random.bounded(int(std::size(pieces)))]);
        else
            text.remove(place, 1 + random.bounded(3));
    }
    return text;
}

} // namespace

class TestPlainXml : public QObject
{
    Q_OBJECT

private slots:
    void readsLikeQt_data();
    void readsLikeQt();
    void leavesToQt_data();
    void leavesToQt();
    void readsEveryGoldenDocumentLikeQt();
    void acceptsNoDamageThatQtRefuses();
    void goesDownToTheDepthThatIsRead();
};

void TestPlainXml::readsLikeQt_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::newRow("empty root") << inRoot("");
    QTest::newRow("no namespace") << QByteArray("<svg><rect width='1'/></svg>");
    QTest::newRow("declaration") << QByteArray("<?xml version=\"1.0\"?><svg/>");
    QTest::newRow("declared encoding") << QByteArray("<?xml version='1.0' encoding='UTF-8'?>\n<svg/>\n");
    QTest::newRow("both quotes") << inRoot("<g id=\"it's\" class='a\"b'/>");
    QTest::newRow("spaces in tags") << inRoot("<g\n id = 'a'\t\n class='b' ></g\n >");
    QTest::newRow("white space in values") << inRoot("<path d='M 1\n2\tL 3 4'/>");
    QTest::newRow("lines and columns") << inRoot("\n  <g>\n\n <rect\n x='1'/></g>  <rect/>\n");
    QTest::newRow("text") << inRoot("<text> a <tspan>b\n</tspan>\n c </text><title>t</title>");
    QTest::newRow("blank text") << inRoot("<text>  \n <tspan> </tspan></text>");
    QTest::newRow("text beside comments") << inRoot("<text>a<!-- - --> b <!----></text>");
    QTest::newRow("comments around") << "<!-- 1 -->\n<!--<g>-->" + inRoot("<!-- 2\n -->") + "\n<!-- 3 --> ";
    QTest::newRow("brackets in text") << inRoot("<text>a]b]]c</text><style>g[id='a']{fill:red}</style>");
    QTest::newRow("greater sign in text") << inRoot("<text>a > b</text>");
    QTest::newRow("greater sign in a value") << inRoot("<g id='a>b'/>");
    QTest::newRow("beyond ASCII") << inRoot("<text id='\xc3\xa9'>\xe4\xbd\xa0\xf0\x9f\x98\x80</text><g/>");
    QTest::newRow("byte order mark") << "\xef\xbb\xbf" + inRoot("<g/>");
    QTest::newRow("prefixed") << QByteArray("<s:svg xmlns:s='http://www.w3.org/2000/svg'><s:g s:id='a'/></s:svg>");
    QTest::newRow("links") << inRoot("<use xlink:href='#a' xml:space='preserve' href='#b'/>");
    QTest::newRow("foreign elements") << inRoot("<a:b xmlns:a='urn:a' a:c='1'><g/></a:b><g a='1'/>");
    QTest::newRow("namespace set back") << inRoot("<g xmlns=''><rect/></g><rect/>");
    QTest::newRow("prefix declared after its use") << inRoot("<g b:c='1' xmlns:b='urn:b'/>");
    QTest::newRow("prefix declared twice")
        << inRoot("<g xmlns:b='urn:b'><g xmlns:b='urn:c' b:d='1'/><g b:d='1'/></g>");
    QTest::newRow("names") << inRoot("<_a-b.c9 _d-e.f='1'/>");
    QTest::newRow("too many stops") << inRoot("<linearGradient>" + QByteArray("<stop/>").repeated(1002) +
                                              "</linearGradient>");
}

void TestPlainXml::readsLikeQt()
{
    QFETCH(const QByteArray, text);
    const QStringList expected = streamed(text);
    QVERIFY(!expected.isEmpty());
    QCOMPARE(plain(text), expected);
}

void TestPlainXml::leavesToQt_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::newRow("nothing") << QByteArray();
    QTest::newRow("no element") << QByteArray("<!-- -->");
    QTest::newRow("another root") << QByteArray("<g/>");
    QTest::newRow("two roots") << QByteArray("<svg/><svg/>");
    QTest::newRow("text after the root") << QByteArray("<svg/>a");
    QTest::newRow("text before the root") << QByteArray("a<svg/>");
    QTest::newRow("not closed") << QByteArray("<svg><g></svg>");
    QTest::newRow("closed too often") << QByteArray("<svg/></svg>");
    QTest::newRow("ends in a tag") << QByteArray("<svg><g ");
    QTest::newRow("ends in a value") << QByteArray("<svg><g id='");
    QTest::newRow("ends in a comment") << QByteArray("<svg/><!-- -");
    QTest::newRow("dashes in a comment") << inRoot("<!-- a--b -->");
    QTest::newRow("no space between attributes") << inRoot("<g id='a'class='b'/>");
    QTest::newRow("no value") << inRoot("<g id/>");
    QTest::newRow("value without quotes") << inRoot("<g id=a/>");
    QTest::newRow("less sign in a value") << inRoot("<g id='<'/>");
    QTest::newRow("attribute twice") << inRoot("<g id='a' id='b'/>");
    QTest::newRow("attribute twice by its namespace")
        << inRoot("<g xmlns:a='urn:a' xmlns:b='urn:a' a:c='1' b:c='2'/>");
    QTest::newRow("unknown prefix") << inRoot("<a:b/>");
    QTest::newRow("unknown prefix of an attribute") << inRoot("<g a:b='1'/>");
    QTest::newRow("prefix out of its element") << inRoot("<g xmlns:a='urn:a'/><g a:b='1'/>");
    QTest::newRow("prefix taken back") << inRoot("<g xmlns:a=''/>");
    QTest::newRow("reserved prefix") << inRoot("<g xmlns:xml='urn:a'/>");
    QTest::newRow("end of a section in text") << inRoot("<text>]]></text>");
    QTest::newRow("entity") << inRoot("<text>&amp;</text>");
    QTest::newRow("entity in a value") << inRoot("<g id='&lt;'/>");
    QTest::newRow("section of character data") << inRoot("<style><![CDATA[a]]></style>");
    QTest::newRow("document type") << QByteArray("<!DOCTYPE svg><svg/>");
    QTest::newRow("processing instruction") << inRoot("<?a b?>");
    QTest::newRow("other version") << QByteArray("<?xml version='1.1'?><svg/>");
    QTest::newRow("other encoding") << QByteArray("<?xml version='1.0' encoding='ISO-8859-1'?><svg id='\xe9'/>");
    QTest::newRow("not UTF-8") << QByteArray("<svg id='\xe9'/>");
    QTest::newRow("control character") << QByteArray("<svg id='\x01'/>");
    QTest::newRow("zero byte") << QByteArray("<svg/>\0", 7);
    QTest::newRow("carriage return") << QByteArray("<svg>\r\n</svg>");
    QTest::newRow("name beyond ASCII") << inRoot("<\xc3\xa9/>");
    QTest::newRow("name beyond ASCII from its second character") << inRoot("<g\xc3\xa9/>");
    QTest::newRow("two colons") << inRoot("<a:b:c xmlns:a='urn:a'/>");
    QTest::newRow("many attributes") << [] {
        QByteArray tag = "<g";
        for (int i = 0; i < 33; ++i)
            tag += " a" + QByteArray::number(i) + "=''";
        return inRoot(tag + "/>");
    }();
}

void TestPlainXml::leavesToQt()
{
    QFETCH(const QByteArray, text);
    QCOMPARE(plain(text), QStringList());
}

void TestPlainXml::readsEveryGoldenDocumentLikeQt()
{
    int plainOnes = 0;
    const QVector<QByteArray> texts = knownTexts();
    for (const QByteArray &text : texts) {
        const QStringList read = plain(text);
        if (read.isEmpty())
            continue;
        QCOMPARE(read, streamed(text));
        ++plainOnes;
    }
    // Most have nothing special.
    QVERIFY2(plainOnes > texts.size() / 2, qPrintable(QString::number(plainOnes)));
}

void TestPlainXml::acceptsNoDamageThatQtRefuses()
{
    constexpr int rounds = 10;
    QRandomGenerator random(20);
    int accepted = 0;
    const QVector<QByteArray> texts = knownTexts();
    for (const QByteArray &text : texts) {
        for (int i = 0; i < rounds; ++i) {
            const QByteArray changed = damaged(text, random);
            const QStringList read = plain(changed);
            if (read.isEmpty())
                continue;
            QVERIFY2(read == streamed(changed), changed.constData());
            ++accepted;
        }
    }
    QVERIFY(accepted > texts.size());
}

void TestPlainXml::goesDownToTheDepthThatIsRead()
{
    const int inside = Limits::depth - 1;
    const QByteArray text = inRoot(QByteArray("<g>").repeated(inside) + QByteArray("</g>").repeated(inside));
    QCOMPARE(plain(text), streamed(text));
    QCOMPARE(plain(inRoot("<g>" + text + "</g>")), QStringList());
}

QTEST_GUILESS_MAIN(TestPlainXml)
#include "test_plainxml.moc"

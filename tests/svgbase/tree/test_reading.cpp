#include "grammar/inputlimits.h"
#include "svgbase/svgdrawing.h"

#include <support/listed.h>

#include <QtTest>

using namespace Svg;
using Message = QZeSvgTinyDocument::Message;

class TestReading : public QObject
{
    Q_OBJECT

private slots:
    void loadsTheSmallestDocument();
    void namespaceMayBeLeftOut();
    void refusesWhatIsNoDocument_data();
    void refusesWhatIsNoDocument();
    void saysWhyAndWhereLoadingFailed();
    void saysWhichElementCouldNotBeUnderstood();
    void readsUtf8();
    void believesUtf8WhateverTheDeclarationSays();
    void keepsAttributesOfEveryKind();
    void titleNamesItsNode();
    void foreignElementsAreKeptButNotListed();
    void typeCodes_data();
    void typeCodes();
    void childrenAreTheDrawableOnesInOrder();
    void elementsDirectlyUnderTheDocumentHaveNoParent();
    void viewBoxIsTheAttribute();
    void widthAndHeightMakeNoViewBox();
    void animationsAreNoticed();
    void aKnownTextGivesAnIndependentDocument();
    void entityMayHoldSeveralLines_data();
    void entityMayHoldSeveralLines();
    void linesAroundATypeDeclarationStayAsTheyAre();
};

void TestReading::loadsTheSmallestDocument()
{
    QVector<Message> messages;
    const DocumentPointer document(QZeSvgTinyDocument::load("<svg/>", &messages));
    QVERIFY(document);
    QVERIFY(messages.isEmpty());
    QCOMPARE(document->type(), QZeSvgNode::Document);
    QVERIFY(document->children().isEmpty());
    QVERIFY(!document->parent());
}

void TestReading::namespaceMayBeLeftOut()
{
    const DocumentPointer document(QZeSvgTinyDocument::load("<svg><rect id='r' width='3' height='4'/></svg>"));
    QVERIFY(document);
    QCOMPARE(document->namedNode("r")->boundingRect(), QRectF(0, 0, 3, 4));
}

void TestReading::refusesWhatIsNoDocument_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::newRow("empty") << QByteArray();
    QTest::newRow("words") << QByteArray("no document");
    QTest::newRow("other root") << QByteArray("<html/>");
    QTest::newRow("svg of another namespace") << QByteArray("<svg xmlns='http://example.org/'/>");
    QTest::newRow("not closed") << QByteArray("<svg><g></svg>");
    QTest::newRow("cut off") << QByteArray("<svg><g>");
    QTest::newRow("two roots") << QByteArray("<svg/><svg/>");
    QTest::newRow("attribute twice") << QByteArray("<svg a='1' a='2'/>");
    QTest::newRow("undeclared prefix") << QByteArray("<svg><x:rect/></svg>");
    QTest::newRow("zero bytes") << QByteArray("<svg>\0</svg>", 12);
    QTest::newRow("zero byte behind the end") << QByteArray("<svg/>\0", 7);
    QTest::newRow("zero byte behind the end, with a declaration")
        << QByteArray("<?xml version='1.0' encoding='UTF-8'?><svg/>\0", 45);
    QTest::newRow("zero byte behind the end, with a document type") << QByteArray("<!DOCTYPE svg><svg/>\0", 21);
    QTest::newRow("a second root behind a zero byte") << QByteArray("<svg/>\0<svg/>", 13);
    QTest::newRow("not UTF-8") << QByteArray("<svg id='\xff\xff'/>");
}

void TestReading::refusesWhatIsNoDocument()
{
    QFETCH(QByteArray, text);
    QVector<Message> messages;
    const DocumentPointer document(QZeSvgTinyDocument::load(text, &messages));
    QVERIFY(!document);
    QVERIFY(!messages.isEmpty());
    QCOMPARE(messages.last().severity, Message::Error);
    QVERIFY(!messages.last().text.isEmpty());
}

void TestReading::saysWhyAndWhereLoadingFailed()
{
    QVector<Message> messages;
    QVERIFY(!QZeSvgTinyDocument::load("<svg>\n <g>\n  </rect>\n</svg>", &messages));
    QCOMPARE(messages.size(), 1);
    QCOMPARE(messages[0].line, 3);
    QVERIFY(messages[0].column >= 3 && messages[0].column <= 10);
}

void TestReading::saysWhichElementCouldNotBeUnderstood()
{
    const DocumentPointer document(QZeSvgTinyDocument::load("<svg>\n"
                                                            "<path id='bad' d='M1 1 L2 2 X'/>\n"
                                                            "<rect id='worse' fill='colourless'/>\n"
                                                            "<g id='turned' transform='turn(3)'/>\n</svg>"));
    QVERIFY(document);
    const QVector<Message> messages = document->messages();
    QCOMPARE(messages.size(), 3);
    QCOMPARE(messages[0].severity, Message::Warning);
    QCOMPARE(messages[0].elementId, QStringLiteral("bad"));
    QCOMPARE(messages[0].line, 2);
    QVERIFY(messages[0].text.contains("character 11"));
    QCOMPARE(messages[1].elementId, QStringLiteral("worse"));
    QCOMPARE(messages[1].line, 3);
    QCOMPARE(messages[2].elementId, QStringLiteral("turned"));
}

void TestReading::readsUtf8()
{
    const DocumentPointer document(QZeSvgTinyDocument::load(u8"<svg><g id='größe'><title>Ω</title></g></svg>"));
    QVERIFY(document);
    QZeSvgNode *node = document->namedNode(QString::fromUtf8(u8"größe"));
    QVERIFY(node);
    QCOMPARE(node->attribute("title"), QString::fromUtf8(u8"Ω"));
}

void TestReading::believesUtf8WhateverTheDeclarationSays()
{
    const QByteArray text = u8"<?xml version='1.0' encoding='ISO-8859-1'?><svg><g id='größe'/></svg>";
    const DocumentPointer document(QZeSvgTinyDocument::load(text));
    QVERIFY(document);
    QVERIFY(document->namedNode(QString::fromUtf8(u8"größe")));
}

void TestReading::keepsAttributesOfEveryKind()
{
    const DocumentPointer document = loadContent(
        "<rect id='r' x_from='5' y_to=' 7 ' own='thing' fill='red' style='stroke:blue' xlink:href='#a'/>");
    const QZeSvgNode *node = document->namedNode("r");
    QCOMPARE(node->attribute("x_from"), QStringLiteral("5"));
    QCOMPARE(node->attribute("y_to"), QStringLiteral(" 7 "));
    QCOMPARE(node->attribute("own"), QStringLiteral("thing"));
    QCOMPARE(node->attribute("fill"), QStringLiteral("red"));
    QCOMPARE(node->attribute("style"), QStringLiteral("stroke:blue"));
    QCOMPARE(node->attribute("xlink:href"), QStringLiteral("#a"));
    QCOMPARE(node->attribute("id"), QStringLiteral("r"));
    QVERIFY(node->attribute("x_to").isEmpty());
    QVERIFY(node->attribute("").isEmpty());
}

void TestReading::titleNamesItsNode()
{
    const DocumentPointer document = loadContent("<g id='g'><title> The <!-- no -->roof </title><rect/></g>");
    QCOMPARE(document->namedNode("g")->attribute("title"), QStringLiteral("The roof"));
}

void TestReading::foreignElementsAreKeptButNotListed()
{
    const DocumentPointer document =
        loadContent("<x:thing xmlns:x='urn:x' id='t' x:size='4'><rect id='inside'/></x:thing><rect id='r'/>");
    QCOMPARE(document->children().size(), 1);
    QCOMPARE(document->namedNode("t")->attribute("x:size"), QStringLiteral("4"));
    QVERIFY(document->namedNode("inside"));
}

void TestReading::typeCodes_data()
{
    QTest::addColumn<QString>("element");
    QTest::addColumn<int>("code");
    const QVector<QPair<const char *, int>> codes = {
        {"g", 1},       {"a", 1},     {"defs", 2},   {"switch", 3}, {"animate", 4},  {"circle", 6},
        {"ellipse", 7}, {"image", 8}, {"line", 9},   {"path", 10},  {"polygon", 11}, {"polyline", 12},
        {"rect", 13},   {"text", 14}, {"tspan", 16}, {"use", 17},   {"svg", 1}};
    for (const auto &[element, code] : codes)
        QTest::newRow(element) << QString::fromLatin1(element) << code;
}

void TestReading::typeCodes()
{
    QFETCH(QString, element);
    const DocumentPointer document = loadContent(QStringLiteral("<%1 id='n'/>").arg(element));
    QVERIFY(document->namedNode("n"));
    QTEST(int(document->namedNode("n")->type()), "code");
}

void TestReading::childrenAreTheDrawableOnesInOrder()
{
    const DocumentPointer document = loadContent(
        "<title>t</title><desc>d</desc><defs><rect/></defs><style>x{}</style><rect id='a'/><linearGradient/>"
        "<g id='b'><circle id='c'/></g><metadata/><animate/><text id='d'/><use id='e'/>");
    QStringList ids;
    for (const QZeSvgNode *child : support::listed(document->children()))
        ids.append(child->nodeId());
    QCOMPARE(ids, QStringList({"a", "b", "d", "e"}));
    auto *group = dynamic_cast<QZeSvgStructureNode *>(document->namedNode("b"));
    QVERIFY(group);
    QCOMPARE(group->children().size(), 1);
    QCOMPARE(group->children().constFirst(), document->namedNode("c"));
}

void TestReading::elementsDirectlyUnderTheDocumentHaveNoParent()
{
    const DocumentPointer document = loadContent("<g id='g'><g id='h'><rect id='r'/></g></g>");
    QVERIFY(!document->namedNode("g")->parent());
    QCOMPARE(document->namedNode("h")->parent(), document->namedNode("g"));
    QCOMPARE(document->namedNode("r")->parent(), document->namedNode("h"));
}

void TestReading::viewBoxIsTheAttribute()
{
    const DocumentPointer document = loadContent("<rect width='500' height='500'/>", "-10 5 40 20");
    QCOMPARE(document->viewBox(), QRectF(-10, 5, 40, 20));
}

void TestReading::widthAndHeightMakeNoViewBox()
{
    const DocumentPointer document(
        QZeSvgTinyDocument::load("<svg width='50' height='60'><rect x='1' y='2' width='3' height='4'/></svg>"));
    QCOMPARE(document->viewBox(), QRectF(1, 2, 3, 4));
}

void TestReading::animationsAreNoticed()
{
    QVERIFY(!loadContent("<rect/>")->animated());
    for (const char *name : {"animate", "animateTransform", "animateMotion", "animateColor", "set"}) {
        const DocumentPointer document = loadContent(QStringLiteral("<g><rect><%1/></rect></g>").arg(name));
        QVERIFY2(document->animated(), name);
        document->startAnimate();
        QVERIFY(document->animated());
        document->stopAnimate();
        QVERIFY(document->animated());
    }
}

void TestReading::aKnownTextGivesAnIndependentDocument()
{
    const QByteArray text = svgText("<rect id='r' width='10' height='10' fill='red'/>");
    const DocumentPointer first(QZeSvgTinyDocument::load(text));
    first->namedNode("r")->setNumericAttribute("width", 99);
    first->setAllFillBrush(Qt::blue);
    first->setViewBox(QRectF(0, 0, 1, 1));
    first->namedNode("r")->setFillEnabled(false);
    const DocumentPointer second(QZeSvgTinyDocument::load(text));
    QCOMPARE(second->namedNode("r")->boundingRect(), QRectF(0, 0, 10, 10));
    QCOMPARE(second->getAllFillBrush().color(), QColor(Qt::red));
    QCOMPARE(second->viewBox(), QRectF(0, 0, 100, 100));
    QVERIFY(second->namedNode("r")->isFillEnabled());
    QVERIFY(first->namedNode("r") != second->namedNode("r"));
}

void TestReading::entityMayHoldSeveralLines_data()
{
    QTest::addColumn<QByteArray>("literal");
    QTest::addColumn<int>("line");
    QTest::newRow("between attributes") << QByteArray("'<rect id=\"r\"\n data-a=\"1 > 2\"\n/>'") << 3;
    QTest::newRow("in a value") << QByteArray("'<rect id=\"r\" data-a=\"1\n> 2\"/>'") << 2;
    QTest::newRow("in an end") << QByteArray("'<rect id=\"r\" data-a=\"1 > 2\"></rect\n>'") << 2;
    QTest::newRow("carriage returns") << QByteArray("\"<rect\r\nid='r'\rdata-a='1 > 2'/>\"") << 3;
    QTest::newRow("behind an instruction") << QByteArray("'<?a\n<b ?><rect id=\"r\" data-a=\"1 > 2\"/>'") << 2;
    QTest::newRow("behind style") << QByteArray(
                                         "'<style><![CDATA[a>\nb{}]]></style><rect id=\"r\" data-a=\"1 > 2\"/>'")
                                  << 2;
    QTest::newRow("behind a comment") << QByteArray("'<!-- a\n<b -->\n<rect id=\"r\"\ndata-a=\"1 > 2\"/>'") << 4;
}

// XML 1.0 §3.1: white space of any kind separates attributes; §3.3.3: in a value it becomes a space.
void TestReading::entityMayHoldSeveralLines()
{
    QFETCH(QByteArray, literal);
    QFETCH(int, line);
    const QByteArray text =
        "<!DOCTYPE svg [<!-- it's --><?p 'x?><!ENTITY e " + literal + ">]><svg>&e;<g fill='?'/></svg>";
    QVector<Message> messages;
    const DocumentPointer document(QZeSvgTinyDocument::load(text, &messages));
    QVERIFY2(document, messages.isEmpty() ? "" : qPrintable(messages.first().text));
    const QString value = document->namedNode(QStringLiteral("r"))->attribute(QStringLiteral("data-a"));
    QCOMPARE(value, QStringLiteral("1 > 2"));
    QCOMPARE(messages.size(), 1);
    QCOMPARE(messages.first().line, line);
}

// Text that only looks like a document type, and quotes that nothing closes, change nothing.
void TestReading::linesAroundATypeDeclarationStayAsTheyAre()
{
    const QByteArray text =
        "<!-- <!DOCTYPE svg [<!ENTITY e '<a\nb'>]> --><svg><title>it's\n<![CDATA[<a\nb>]]>\n'&gt;"
        "</title></svg>";
    const DocumentPointer document(QZeSvgTinyDocument::load(text + " &"));
    QVERIFY(!document);
    const DocumentPointer sound(QZeSvgTinyDocument::load(text));
    QVERIFY(sound);
    QVERIFY(sound->toSvg().contains("it's\n&lt;a\nb&gt;\n'&gt;"));
    for (const char *cut : {"<!DOCTYPE", "<!DOCTYPE svg [<!ENTITY e '", "<!DOCTYPE svg [<!ENTITY e '<a\n",
                            "<!DOCTYPE svg [<!--", "<!DOCTYPE svg [<?", "<!DOCTYPE svg [<!ENTITY e '<a\n'"})
        QVERIFY(!DocumentPointer(QZeSvgTinyDocument::load(cut)));
}

QTEST_MAIN(TestReading)
#include "test_reading.moc"

// Documents written back as text.

#include "svgbase/svgdrawing.h"

#include <QtTest>

namespace {

QString written(const QString &content)
{
    return QString::fromUtf8(loadContent(content)->toSvg());
}

DocumentPointer again(const QZeSvgTinyDocument &document)
{
    return DocumentPointer(QZeSvgTinyDocument::load(document.toSvg()));
}

const QString shapes = QStringLiteral("<rect id='r' x='10' y='10' width='50' height='40' fill='red' stroke='blue'/>"
                                      "<circle id='c' cx='60' cy='60' r='30'/>"
                                      "<path id='p' d='M10 90H90' fill='none' stroke='green' stroke-width='4'/>");

} // namespace

class TestWriting : public QObject
{
    Q_OBJECT

private slots:
    void elementsAndAttributesAreWritten();
    void textIsEscaped();
    void whiteSpaceOfAttributesSurvives();
    void styleSheetIsKept();
    void titleIsKept();
    void foreignElementsAndPrefixesAreKept();
    void prefixedElementsAreReadBack();
    void linkPrefixIsDeclared();
    void attributeWithoutDeclaredPrefixIsLeftOut();
    void viewBoxIsTheOneLastSet();
    void removedAttributesAreNotWritten();
    void documentWideStyleDrawsTheSame_data();
    void documentWideStyleDrawsTheSame();
    void gradientThatFadesKeepsItsLook_data();
    void gradientThatFadesKeepsItsLook();
    void styledTextKeepsTheStyleOfItsParts();
};

void TestWriting::elementsAndAttributesAreWritten()
{
    const QString text = written(QStringLiteral("<g id='g' data-kind='x'><rect width='5' height='6'/></g>"));
    QVERIFY2(
        text.contains(QStringLiteral("<g id=\"g\" data-kind=\"x\">\n<rect width=\"5\" height=\"6\"></rect>\n</g>")),
        qPrintable(text));
    QVERIFY(text.startsWith(QStringLiteral("<svg xmlns=\"http://www.w3.org/2000/svg\"")));
}

void TestWriting::textIsEscaped()
{
    const QString text = written(QStringLiteral("<text data-a='&lt;&amp;&quot;'>a &lt; b &amp; c</text>"));
    QVERIFY2(text.contains(QStringLiteral("<text data-a=\"&lt;&amp;&quot;\">a &lt; b &amp; c</text>")),
             qPrintable(text));
}

void TestWriting::whiteSpaceOfAttributesSurvives()
{
    const DocumentPointer document = loadContent(QStringLiteral("<rect id='r' data-a='a&#10;b&#9;c'/>"));
    const DocumentPointer copy = again(*document);
    QCOMPARE(copy->namedNode(QStringLiteral("r"))->attribute(QStringLiteral("data-a")), QStringLiteral("a\nb\tc"));
}

void TestWriting::styleSheetIsKept()
{
    const QString text = written(QStringLiteral("<style>g > rect { fill: red }</style>"));
    QVERIFY2(text.contains(QStringLiteral("<style>g &gt; rect { fill: red }</style>")), qPrintable(text));
}

void TestWriting::titleIsKept()
{
    const DocumentPointer document = loadContent(QStringLiteral("<rect id='r'><title>A name</title></rect>"));
    const DocumentPointer copy = again(*document);
    QCOMPARE(copy->namedNode(QStringLiteral("r"))->attribute(QStringLiteral("title")), QStringLiteral("A name"));
}

void TestWriting::foreignElementsAndPrefixesAreKept()
{
    const QString text = written(QStringLiteral("<o:thing xmlns:o='urn:o' o:a='1' id='t'/>"));
    QVERIFY2(text.contains(QStringLiteral("<o:thing o:a=\"1\" id=\"t\" xmlns:o=\"urn:o\"></o:thing>")),
             qPrintable(text));
}

void TestWriting::prefixedElementsAreReadBack()
{
    const QByteArray text = "<s:svg xmlns:s='http://www.w3.org/2000/svg' viewBox='0 0 100 100'>"
                            "<s:rect width='50' height='50'/></s:svg>";
    const DocumentPointer document(QZeSvgTinyDocument::load(text));
    const DocumentPointer copy = again(*document);
    QVERIFY(copy);
    QCOMPARE(drawn(*copy), drawn(*document));
    QCOMPARE(drawn(*copy).pixelColor(25, 25), QColor(0, 0, 0));
}

void TestWriting::linkPrefixIsDeclared()
{
    const QByteArray text = "<svg xmlns='http://www.w3.org/2000/svg' xmlns:l='http://www.w3.org/1999/xlink' "
                            "viewBox='0 0 100 100'><defs><rect id='r' width='50' height='50'/></defs>"
                            "<use l:href='#r'/></svg>";
    const DocumentPointer document(QZeSvgTinyDocument::load(text));
    QCOMPARE(drawn(*again(*document)).pixelColor(25, 25), QColor(0, 0, 0));
}

void TestWriting::attributeWithoutDeclaredPrefixIsLeftOut()
{
    const DocumentPointer document = loadContent(QStringLiteral("<rect id='r'/>"));
    document->namedNode(QStringLiteral("r"))->setAttribute(QStringLiteral("no:where"), QStringLiteral("1"));
    document->namedNode(QStringLiteral("r"))->setAttribute(QStringLiteral("not a name"), QStringLiteral("1"));
    QVERIFY(again(*document));
    QVERIFY(!document->toSvg().contains("where"));
    QVERIFY(!document->toSvg().contains("not a name"));
}

void TestWriting::viewBoxIsTheOneLastSet()
{
    const DocumentPointer document = loadContent(shapes);
    document->setViewBox(QRectF(5, 6, 70, 80.5));
    QCOMPARE(again(*document)->viewBox(), QRectF(5, 6, 70, 80.5));
    QCOMPARE(drawn(*again(*document)), drawn(*document));
}

void TestWriting::removedAttributesAreNotWritten()
{
    const DocumentPointer document = loadContent(shapes);
    document->namedNode(QStringLiteral("r"))->setAttribute(QStringLiteral("stroke"), QString());
    QVERIFY(document->toSvg().contains(
        "<rect id=\"r\" x=\"10\" y=\"10\" width=\"50\" height=\"40\" fill=\"red\"></rect>"));
}

using Styling = void (*)(QZeSvgTinyDocument &);
Q_DECLARE_METATYPE(Styling)

void TestWriting::documentWideStyleDrawsTheSame_data()
{
    QTest::addColumn<Styling>("style");
    const auto add = [](const char *name, Styling style) { QTest::newRow(name) << style; };
    add("stroke colour", [](QZeSvgTinyDocument &d) { d.setAllStrokeColor(QColor(10, 20, 30, 128)); });
    add("stroke width", [](QZeSvgTinyDocument &d) { d.setAllStrokeWidth(6.5); });
    add("no stroke width", [](QZeSvgTinyDocument &d) { d.setAllStrokeWidth(0); });
    add("dashes", [](QZeSvgTinyDocument &d) {
        d.setAllStrokeColor(Qt::red);
        d.setAllStrokeWidth(3);
        d.setAllStrokeStyle(Qt::DashDotLine);
    });
    add("no pen", [](QZeSvgTinyDocument &d) { d.setAllStrokeStyle(Qt::NoPen); });
    add("fill colour", [](QZeSvgTinyDocument &d) { d.setAllFillBrush(QColor(200, 100, 0, 77)); });
    add("no fill", [](QZeSvgTinyDocument &d) { d.setAllFillBrush(Qt::NoBrush); });
    add("linear gradient", [](QZeSvgTinyDocument &d) {
        QLinearGradient gradient(10, 10, 80, 60);
        gradient.setInterpolationMode(QGradient::ComponentInterpolation);
        gradient.setColorAt(0, Qt::red);
        gradient.setColorAt(1, QColor(0, 0, 255, 100));
        gradient.setSpread(QGradient::ReflectSpread);
        d.setAllFillBrush(gradient);
    });
    add("radial gradient", [](QZeSvgTinyDocument &d) {
        QRadialGradient gradient(50, 50, 40, 60, 55);
        gradient.setColorAt(0, Qt::yellow);
        gradient.setColorAt(1, Qt::darkGreen);
        d.setAllFillBrush(gradient);
    });
}

void TestWriting::documentWideStyleDrawsTheSame()
{
    QFETCH(Styling, style);
    const DocumentPointer document = loadContent(shapes);
    const QImage before = drawn(*document);
    style(*document);
    QVERIFY(drawn(*document) != before);
    QCOMPARE(drawn(*again(*document)), drawn(*document));
}

void TestWriting::gradientThatFadesKeepsItsLook_data()
{
    QTest::addColumn<QColor>("from");
    QTest::addColumn<QColor>("to");
    QTest::newRow("into another colour") << QColor(255, 0, 0) << QColor(0, 0, 255, 100);
    QTest::newRow("to nothing") << QColor(255, 0, 0) << QColor(0, 0, 255, 0);
    QTest::newRow("out of nothing") << QColor(255, 255, 255, 0) << QColor(0, 0, 0);
    QTest::newRow("almost to nothing") << QColor(255, 255, 0) << QColor(0, 0, 255, 3);
}

// Painters mix colours that are multiplied by their alpha; SVG mixes each channel on its own (SVG 1.1 §13.2.4).
// The stops in between are rounded to whole channels, which with the painter's own rounding makes two at most.
void TestWriting::gradientThatFadesKeepsItsLook()
{
    QFETCH(QColor, from);
    QFETCH(QColor, to);
    QLinearGradient gradient(0, 0, 100, 0);
    gradient.setColorAt(0, from);
    gradient.setColorAt(1, to);
    const DocumentPointer document = loadContent(QStringLiteral("<rect width='100' height='1'/>"));
    document->setAllFillBrush(gradient);
    const QImage before = drawn(*document);
    const QImage after = drawn(*again(*document));
    for (int x = 0; x < 100; ++x) {
        const QRgb a = reinterpret_cast<const QRgb *>(before.constScanLine(0))[x];
        const QRgb b = reinterpret_cast<const QRgb *>(after.constScanLine(0))[x];
        const QByteArray where =
            QByteArray::number(x) + ": " + QByteArray::number(a, 16) + " " + QByteArray::number(b, 16);
        QVERIFY2(qAbs(qRed(a) - qRed(b)) <= 2 && qAbs(qGreen(a) - qGreen(b)) <= 2 &&
                     qAbs(qBlue(a) - qBlue(b)) <= 2 && qAbs(qAlpha(a) - qAlpha(b)) <= 2,
                 where.constData());
    }
}

void TestWriting::styledTextKeepsTheStyleOfItsParts()
{
    const DocumentPointer document = loadContent(QStringLiteral(
        "<text x='5' y='60' font-size='40' fill='red'>A<tspan fill='blue' stroke='red'>B</tspan></text>"));
    document->setAllFillBrush(QColor(Qt::green));
    document->setAllStrokeWidth(3);
    QCOMPARE(drawn(*again(*document)), drawn(*document));
}

QTEST_MAIN(TestWriting)
#include "test_writing.moc"

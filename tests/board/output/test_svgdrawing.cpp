// SVG drawings of objects and pages, put together from what the objects give.

#include "drawnpage.h"

#include <output/pageexport.h>
#include <output/svgdrawing.h>
#include <output/svgfragment.h>

#include <QtCore/QTemporaryDir>
#include <QtCore/QXmlStreamReader>
#include <QtCore/QXmlStreamWriter>
#include <QtTest/QtTest>

static QByteArray fragment(const QByteArray &source, bool *written = nullptr)
{
    QByteArray bytes;
    QXmlStreamWriter out(&bytes);
    const bool isWritten = board::writeSvgFragment(out, source, QSizeF(20, 10), QStringLiteral("p-"));
    if (written)
        *written = isWritten;
    return bytes;
}

/// The contents of the root of such a document's fragment.
static QByteArray inner(const QByteArray &content)
{
    const QByteArray whole = fragment(svg(content));
    const int start = whole.indexOf('>') + 1;
    return whole.mid(start, whole.lastIndexOf("</svg>") - start);
}

namespace {

struct SvgPage : DrawnPage
{
    QByteArray drawing() { return board::svgOfPage(page, registry); }
};

} // namespace

class TestSvgDrawing : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void rootGetsItsPlace();
    void idsGetThePrefix();
    void referencesFollow_data();
    void referencesFollow();
    void unknownIdsStay();
    void textIsKept();
    void addressesOfLinksAreKept();
    void styleSheetsStayAmongThemselves();
    void whatIsNoSvgIsRefused_data();
    void whatIsNoSvgIsRefused();
    void pageHasItsSizeAndBackground();
    void gradientBackgroundIsAPicture();
    void objectsStandAtTheirPlaces();
    void mirroredAndTurnedObjects();
    void sameIdsOfTwoObjectsDontMeet();
    void hiddenObjectsAreLeftOut();
    void objectWithoutALookMakesNoDrawing();
    void exportWritesDrawings();
    void exportTellsOfPagesThatCantBeDrawn();
};

void TestSvgDrawing::rootGetsItsPlace()
{
    const QByteArray written = fragment("<svg xmlns=\"http://www.w3.org/2000/svg\" x=\"5\" width=\"9cm\" "
                                        "height=\"1\" viewBox=\"0 0 2 1\"><rect width=\"1\"/></svg>");
    QCOMPARE(written, QByteArray("<svg xmlns=\"http://www.w3.org/2000/svg\" viewBox=\"0 0 2 1\" width=\"20\" "
                                 "height=\"10\" overflow=\"visible\"><rect width=\"1\"/></svg>"));
}

void TestSvgDrawing::idsGetThePrefix()
{
    QCOMPARE(inner("<rect id=\"a\"/>"), QByteArray("<rect id=\"p-a\"/>"));
}

void TestSvgDrawing::referencesFollow_data()
{
    QTest::addColumn<QByteArray>("before");
    QTest::addColumn<QByteArray>("after");
    QTest::newRow("fill") << QByteArray("fill=\"url(#a)\"") << QByteArray("fill=\"url(#p-a)\"");
    QTest::newRow("style") << QByteArray("style=\"fill:url('#a');stroke:url(#a) red\"")
                           << QByteArray("style=\"fill:url('#p-a');stroke:url(#p-a) red\"");
    QTest::newRow("link") << QByteArray("href=\"#a\"") << QByteArray("href=\"#p-a\"");
    QTest::newRow("old link") << QByteArray("xlink:href=\"#a\"") << QByteArray("xlink:href=\"#p-a\"");
    QTest::newRow("time") << QByteArray("begin=\"2s; a.click; a.end+1s\"")
                          << QByteArray("begin=\"2s; p-a.click; p-a.end+1s\"");
    QTest::newRow("label") << QByteArray("aria-labelledby=\"b a\"") << QByteArray("aria-labelledby=\"b p-a\"");
    QTest::newRow("no reference") << QByteArray("fill=\"#a\"") << QByteArray("fill=\"#a\"");
}

void TestSvgDrawing::referencesFollow()
{
    QFETCH(QByteArray, before);
    QFETCH(QByteArray, after);
    QCOMPARE(inner("<g id=\"a\"/><rect " + before + "/>"), "<g id=\"p-a\"/><rect " + after + "/>");
}

void TestSvgDrawing::unknownIdsStay()
{
    QCOMPARE(inner("<rect fill=\"url(#elsewhere)\" href=\"picture.png#a\"/>"),
             QByteArray("<rect fill=\"url(#elsewhere)\" href=\"picture.png#a\"/>"));
}

void TestSvgDrawing::textIsKept()
{
    QCOMPARE(inner("<text>1 &lt; 2 <tspan> ü </tspan></text>"),
             QByteArray("<text>1 &lt; 2 <tspan> ü </tspan></text>"));
}

void TestSvgDrawing::addressesOfLinksAreKept()
{
    const QByteArray link("<text>see <a xlink:href=\"https://example.org/#a\">there</a></text><g id=\"%1a\"/>");
    QCOMPARE(inner(QByteArray(link).replace("%1", "")), QByteArray(link).replace("%1", "p-"));
}

void TestSvgDrawing::styleSheetsStayAmongThemselves()
{
    const QByteArray source = svg("<style>rect { fill: red }</style><rect/>");
    const QByteArray written = fragment(source);
    QVERIFY(written.startsWith("<image width=\"20\" height=\"10\""));
    QVERIFY(written.contains("data:image/svg+xml;base64," + source.toBase64()));
    QVERIFY(fragment("<?xml-stylesheet href=\"a.css\"?>" + svg("<rect/>")).startsWith("<image"));
}

void TestSvgDrawing::whatIsNoSvgIsRefused_data()
{
    QTest::addColumn<QByteArray>("source");
    QTest::newRow("nothing") << QByteArray();
    QTest::newRow("words") << QByteArray("hello");
    QTest::newRow("HTML") << QByteArray("<html><svg/></html>");
    QTest::newRow("cut") << QByteArray("<svg><rect/>");
    QTest::newRow("badly nested") << QByteArray("<svg><g></svg></g>");
}

void TestSvgDrawing::whatIsNoSvgIsRefused()
{
    QFETCH(QByteArray, source);
    bool written = true;
    QCOMPARE(fragment(source, &written), QByteArray());
    QVERIFY(!written);
}

void TestSvgDrawing::pageHasItsSizeAndBackground()
{
    SvgPage t;
    CPageBgProp background(nullptr);
    background.setFillEnable(true);
    background.setFillColor(QColor(255, 0, 16));
    t.page->setBackground(background);
    const QByteArray drawing = t.drawing();
    QVERIFY2(drawing.contains("width=\"200\" height=\"100\" viewBox=\"0 0 200 100\""), drawing.constData());
    QVERIFY2(drawing.contains("<rect width=\"200\" height=\"100\" fill=\"#ff0010\" fill-opacity=\"1\"/>"),
             drawing.constData());
}

void TestSvgDrawing::gradientBackgroundIsAPicture()
{
    SvgPage t;
    CPageBgProp background(nullptr);
    background.setFillEnable(true);
    background.setFillType(CPageBgProp::GradientFill);
    t.page->setBackground(background);
    const QByteArray drawing = t.drawing();
    QVERIFY2(drawing.contains("<image width=\"200\" height=\"100\" xlink:href=\"data:image/png;base64,"),
             drawing.constData());
}

void TestSvgDrawing::objectsStandAtTheirPlaces()
{
    SvgPage t;
    t.add({10, 20});
    const QByteArray drawing = t.drawing();
    QVERIFY2(drawing.contains("<g transform=\"matrix(1 0 0 1 10 20)\"><svg"), drawing.constData());
    QVERIFY(drawing.contains("width=\"40\" height=\"30\""));
}

void TestSvgDrawing::mirroredAndTurnedObjects()
{
    SvgPage t;
    CBaseObject *mirrored = t.add({10, 20});
    // Left to right about the middle of its 40 units: x becomes 10 + 40 - x.
    mirrored->setMirror(true, false, false);
    QVERIFY2(t.drawing().contains("matrix(-1 0 0 1 50 20)"), t.drawing().constData());
    mirrored->setMirror(false, true, false);
    QVERIFY2(t.drawing().contains("matrix(1 0 0 -1 10 50)"), t.drawing().constData());
    mirrored->setMirror(false, false, false);
    mirrored->setRotation(90);
    // Clockwise about its origin: right becomes down, down becomes left.
    const QByteArray drawing = t.drawing();
    static const QRegularExpression quarter("matrix\\((0|[-\\d.]+e-1\\d) 1 -1 (0|[-\\d.]+e-1\\d) 10 20\\)");
    QVERIFY2(quarter.match(drawing).hasMatch(), drawing.constData());
}

void TestSvgDrawing::sameIdsOfTwoObjectsDontMeet()
{
    SvgPage t;
    t.add({10, 20});
    t.add({60, 20});
    const QByteArray drawing = t.drawing();
    QVERIFY(drawing.contains("id=\"object1-a\""));
    QVERIFY(drawing.contains("id=\"object2-a\""));
    QXmlStreamReader in(drawing);
    while (!in.atEnd())
        in.readNext();
    QVERIFY2(!in.hasError(), qPrintable(in.errorString()));
}

void TestSvgDrawing::hiddenObjectsAreLeftOut()
{
    SvgPage t;
    t.add({10, 20})->setVisible(false);
    QVERIFY(!t.drawing().contains("matrix"));
    QVERIFY(t.drawing().contains("</svg>") || t.drawing().contains("/>"));
}

void TestSvgDrawing::objectWithoutALookMakesNoDrawing()
{
    SvgPage t;
    t.add({10, 20});
    t.plugin.look.clear();
    QCOMPARE(t.drawing(), QByteArray());
    t.plugin.look = "no SVG";
    QCOMPARE(t.drawing(), QByteArray());
}

void TestSvgDrawing::exportWritesDrawings()
{
    SvgPage t;
    t.add({10, 20});
    t.document.appendPage(QSizeF(300, 100));
    const QTemporaryDir folder;
    const board::ExportResult result =
        board::exportPages(&t.document, t.registry, folder.path(), {board::PageFormat::Svg, 1});
    QCOMPARE(result.problems, QStringList());
    QCOMPARE(result.files, (QStringList{folder.filePath("page-1.svg"), folder.filePath("page-2.svg")}));
    QFile file(result.files.first());
    QVERIFY(file.open(QIODevice::ReadOnly));
    QCOMPARE(file.readAll(), t.drawing());
}

void TestSvgDrawing::exportTellsOfPagesThatCantBeDrawn()
{
    SvgPage t;
    t.plugin.look.clear();
    t.document.appendPage(QSizeF(300, 100));
    t.add({10, 20});
    const QTemporaryDir folder;
    const board::ExportResult result =
        board::exportPages(&t.document, t.registry, folder.path(), {board::PageFormat::Svg, 1});
    QCOMPARE(result.files, QStringList{folder.filePath("page-2.svg")});
    QCOMPARE(result.problems.size(), 1);
    QVERIFY(result.problems.first().contains("page-1.svg"));
    QVERIFY(!QFile::exists(folder.filePath("page-1.svg")));
}

QTEST_MAIN(TestSvgDrawing)
#include "test_svgdrawing.moc"

#include "svgbase/svgdrawing.h"

#include "document/documentprivate.h"

#include <QtTest>

#include <cmath>

namespace {

const QString twoRects =
    QStringLiteral("<rect id='a' x='10' y='10' width='30' height='80' fill='red' stroke='black'/>"
                   "<g><rect id='b' x='60' y='10' width='30' height='80' fill='lime' stroke='black'/></g>");

QColor fillOf(const QImage &image, int x)
{
    return image.pixelColor(x, 50);
}

} // namespace

class TestStyling : public QObject
{
    Q_OBJECT

private slots:
    void fillReachesEveryNode();
    void strokeReachesEveryNode();
    void disabledNodesKeepTheirPaint();
    void noneInTheTemplateSwitchesOff();
    void inheritedNoneSwitchesOff();
    void transparentStaysOn();
    void strokeNeverMentionedStaysOn();
    void widthAloneDoesNotStrokeWhatHasNoStroke();
    void flagsGateStylingNotDrawing();
    void laterFlagKeepsEarlierStyle();
    void emptyBrushFillsNothing();
    void gradientsAreReplaced();
    void alphaCountsAsOpacity();
    void styleReplacesDashes();
    void noPenStrokesNothing();
    void lastWordCounts();
    void sameStyleAgainChangesNothing();
    void gettersGiveWhatWasSet();
    void gettersGiveTheFirstStyledNode();
    void gettersPassOverControlPointsAndDefinitions();
    void gettersGiveInitialValuesWithoutAnyNode();
    void oddWidthsDrawNothing_data();
    void oddWidthsDrawNothing();
    void invalidColourIsKeptAndDrawn();
    void stylingReachesUsedNodes();
    void brushWithGradientIsInUserUnits();
};

void TestStyling::fillReachesEveryNode()
{
    const DocumentPointer document = loadContent(twoRects);
    document->setAllFillBrush(QColor(0, 0, 255));
    const QImage image = drawn(*document);
    QCOMPARE(fillOf(image, 25), QColor(0, 0, 255));
    QCOMPARE(fillOf(image, 75), QColor(0, 0, 255));
}

void TestStyling::strokeReachesEveryNode()
{
    const DocumentPointer document = loadContent(twoRects);
    document->setAllStrokeColor(Qt::blue);
    document->setAllStrokeWidth(8);
    const QImage image = drawn(*document);
    for (const int x : {7, 12, 38, 42, 57, 62})
        QCOMPARE(fillOf(image, x), QColor(0, 0, 255));
    QCOMPARE(fillOf(image, 5).alpha(), 0);
}

void TestStyling::disabledNodesKeepTheirPaint()
{
    const DocumentPointer document = loadContent(twoRects);
    document->namedNode("a")->setFillEnabled(false);
    document->namedNode("b")->setStrokeEnabled(false);
    document->setAllFillBrush(QColor(0, 0, 255));
    document->setAllStrokeWidth(10);
    const QImage image = drawn(*document);
    QCOMPARE(fillOf(image, 25), QColor(255, 0, 0));
    QCOMPARE(fillOf(image, 75), QColor(0, 0, 255));
    QCOMPARE(fillOf(image, 7), QColor(0, 0, 0));
    QCOMPARE(fillOf(image, 57).alpha(), 0);
}

void TestStyling::noneInTheTemplateSwitchesOff()
{
    const DocumentPointer document =
        loadContent("<rect id='a' width='100' height='100' fill='none' style='stroke:none'/>");
    QVERIFY(!document->namedNode("a")->isFillEnabled());
    QVERIFY(!document->namedNode("a")->isStrokeEnabled());
    document->setAllFillBrush(QColor(Qt::red));
    document->setAllStrokeColor(Qt::red);
    QCOMPARE(drawn(*document), drawnContent(""));
}

void TestStyling::inheritedNoneSwitchesOff()
{
    const DocumentPointer document = loadContent("<g fill='none'><rect id='a'/><rect id='b' fill='red'/></g>");
    QVERIFY(!document->namedNode("a")->isFillEnabled());
    QVERIFY(document->namedNode("b")->isFillEnabled());
}

void TestStyling::transparentStaysOn()
{
    const DocumentPointer document = loadContent("<rect id='a' width='100' height='100' fill='transparent'/>"
                                                 "<rect id='b' fill='rgba(1,2,3,0)' stroke='#0000'/>");
    QVERIFY(document->namedNode("a")->isFillEnabled());
    QVERIFY(document->namedNode("b")->isFillEnabled());
    QVERIFY(document->namedNode("b")->isStrokeEnabled());
    document->setAllFillBrush(QColor(255, 0, 0));
    QCOMPARE(fillOf(drawn(*document), 50), QColor(255, 0, 0));
}

void TestStyling::strokeNeverMentionedStaysOn()
{
    const DocumentPointer document = loadContent("<rect id='a' x='20' y='20' width='60' height='60' fill='none'/>");
    QVERIFY(document->namedNode("a")->isStrokeEnabled());
    document->setAllStrokeColor(QColor(255, 0, 0));
    document->setAllStrokeWidth(10);
    QCOMPARE(fillOf(drawn(*document), 20), QColor(255, 0, 0));
}

void TestStyling::widthAloneDoesNotStrokeWhatHasNoStroke()
{
    const DocumentPointer document = loadContent("<rect x='20' y='20' width='60' height='60' fill='none'/>");
    document->setAllStrokeWidth(10);
    QCOMPARE(drawn(*document), drawnContent(""));
}

void TestStyling::flagsGateStylingNotDrawing()
{
    const DocumentPointer document = loadContent(twoRects);
    const QImage before = drawn(*document);
    for (const char *id : {"a", "b"}) {
        document->namedNode(id)->setFillEnabled(false);
        document->namedNode(id)->setStrokeEnabled(false);
    }
    QCOMPARE(drawn(*document), before);
}

void TestStyling::laterFlagKeepsEarlierStyle()
{
    const DocumentPointer document = loadContent(twoRects);
    document->setAllFillBrush(QColor(0, 0, 255));
    document->namedNode("a")->setFillEnabled(false);
    document->setAllFillBrush(QColor(255, 255, 0));
    const QImage image = drawn(*document);
    QCOMPARE(fillOf(image, 25), QColor(0, 0, 255));
    QCOMPARE(fillOf(image, 75), QColor(255, 255, 0));
}

void TestStyling::emptyBrushFillsNothing()
{
    const DocumentPointer document = loadContent(twoRects);
    document->setAllFillBrush(QBrush());
    QCOMPARE(fillOf(drawn(*document), 25).alpha(), 0);
    QCOMPARE(document->getAllFillBrush(), QBrush());
}

void TestStyling::gradientsAreReplaced()
{
    const DocumentPointer document = loadContent(
        "<linearGradient id='g'><stop stop-color='red'/><stop offset='1'/></linearGradient>"
        "<rect x='20' y='20' width='60' height='60' fill='url(#g)' stroke='url(#g)' stroke-width='10'/>");
    document->setAllFillBrush(QColor(0, 0, 255));
    document->setAllStrokeColor(QColor(0, 255, 0));
    const QImage image = drawn(*document);
    QCOMPARE(fillOf(image, 50), QColor(0, 0, 255));
    QCOMPARE(fillOf(image, 20), QColor(0, 255, 0));
}

void TestStyling::alphaCountsAsOpacity()
{
    const DocumentPointer document = loadContent("<rect width='100' height='100' fill='red' fill-opacity='.5'/>");
    QCOMPARE(document->getAllFillBrush().color().alpha(), 128);
    document->setAllFillBrush(QColor(0, 0, 255, 51));
    QCOMPARE(fillOf(drawn(*document), 50), QColor(0, 0, 255, 51));
}

void TestStyling::styleReplacesDashes()
{
    const QString line = "<path d='M0 50H100' stroke='red' stroke-width='10' %1/>";
    const DocumentPointer dashed = loadContent(line.arg("stroke-dasharray='20 10'"));
    QCOMPARE(dashed->getAllStrokeStyle(), Qt::CustomDashLine);
    dashed->setAllStrokeStyle(Qt::SolidLine);
    QCOMPARE(drawn(*dashed), drawnContent(line.arg("")));
    dashed->setAllStrokeStyle(Qt::CustomDashLine);
    QCOMPARE(drawn(*dashed), drawnContent(line.arg("stroke-dasharray='20 10'")));
    // Qt's dash line is 4 widths on, 2 widths off.
    dashed->setAllStrokeStyle(Qt::DashLine);
    QCOMPARE(fillOf(drawn(*dashed), 35).alpha(), 255);
    QCOMPARE(fillOf(drawn(*dashed), 50).alpha(), 0);
    QCOMPARE(dashed->getAllStrokeStyle(), Qt::DashLine);
}

void TestStyling::noPenStrokesNothing()
{
    const DocumentPointer document = loadContent("<path id='a' d='M0 50H100' stroke='red' stroke-width='10'/>");
    document->setAllStrokeStyle(Qt::NoPen);
    QCOMPARE(drawn(*document), drawnContent(""));
    QCOMPARE(document->namedNode("a")->strokeWidth(), 0.0);
}

void TestStyling::lastWordCounts()
{
    const DocumentPointer document = loadContent(twoRects);
    document->setAllFillBrush(QColor(0, 0, 255));
    document->setAllStrokeColor(QColor(0, 255, 255));
    document->namedNode("a")->setAttribute("fill", "yellow");
    document->namedNode("b")->setAttribute("style", "fill:white");
    QImage image = drawn(*document);
    QCOMPARE(fillOf(image, 25), QColor(255, 255, 0));
    QCOMPARE(fillOf(image, 75), QColor(255, 255, 255));
    document->namedNode("a")->setAttribute("x", "11");
    QCOMPARE(fillOf(drawn(*document), 25), QColor(255, 255, 0));
    document->setAllFillBrush(QColor(0, 0, 255));
    QCOMPARE(fillOf(drawn(*document), 25), QColor(0, 0, 255));
    QCOMPARE(fillOf(drawn(*document), 75), QColor(0, 0, 255));
}

void TestStyling::sameStyleAgainChangesNothing()
{
    const DocumentPointer document = loadContent(twoRects);
    const Svg::Document &content = DocumentPrivate::of(document.get())->content;
    document->setAllFillBrush(QColor(0, 0, 255));
    document->setAllStrokeWidth(4);
    const quint32 revision = content.revision();
    document->setAllFillBrush(QColor(0, 0, 255));
    document->setAllStrokeWidth(4);
    QCOMPARE(content.revision(), revision);
    // One node alone was given another fill since.
    document->namedNode(QStringLiteral("b"))->setAttribute(QStringLiteral("fill"), QStringLiteral("red"));
    document->setAllFillBrush(QColor(0, 0, 255));
    QVERIFY(content.revision() > revision);
    QCOMPARE(fillOf(drawn(*document), 75), QColor(0, 0, 255));
    const quint32 refilled = content.revision();
    document->setAllStrokeColor(Qt::red);
    QVERIFY(content.revision() > refilled);
}

void TestStyling::gettersGiveWhatWasSet()
{
    const DocumentPointer document = loadContent("<rect width='9' height='9' fill='none' stroke='none'/>");
    document->setAllStrokeColor(QColor(1, 2, 3, 4));
    document->setAllStrokeStyle(Qt::DotLine);
    document->setAllStrokeWidth(2.5);
    const QBrush brush(QColor(5, 6, 7), Qt::Dense3Pattern);
    document->setAllFillBrush(brush);
    QCOMPARE(document->getAllStrokeColor(), QColor(1, 2, 3, 4));
    QCOMPARE(document->getAllStrokeStyle(), Qt::DotLine);
    QCOMPARE(document->getAllStrokeWidth(), 2.5);
    QCOMPARE(document->getAllFillBrush(), brush);
}

void TestStyling::gettersGiveTheFirstStyledNode()
{
    const DocumentPointer document = loadContent("<rect width='9' height='9' fill='none'/>"
                                                 "<g stroke='#123456' stroke-width='2.5' stroke-opacity='.2'>"
                                                 "<path d='M0 0H9' stroke-dasharray='2' fill='#abcdef'/></g>"
                                                 "<rect width='9' height='9' fill='red' stroke='red'/>");
    QCOMPARE(document->getAllStrokeColor().rgba(), qRgba(0x12, 0x34, 0x56, 51));
    QCOMPARE(document->getAllStrokeWidth(), 2.5);
    QCOMPARE(document->getAllStrokeStyle(), Qt::CustomDashLine);
    QCOMPARE(document->getAllFillBrush(), QBrush(QColor(0xab, 0xcd, 0xef)));
}

void TestStyling::gettersPassOverControlPointsAndDefinitions()
{
    const DocumentPointer document =
        loadContent("<defs><rect width='9' height='9' fill='lime' stroke='lime'/></defs>"
                    "<rect id='control_1' width='8' height='8' fill='red' stroke='red'/>"
                    "<rect id='off' width='8' height='8' fill='red' stroke='red'/>"
                    "<rect width='9' height='9' fill='blue' stroke='blue' stroke-width='3'/>");
    document->namedNode("off")->setFillEnabled(false);
    document->namedNode("off")->setStrokeEnabled(false);
    QCOMPARE(document->getAllFillBrush().color(), QColor(Qt::blue));
    QCOMPARE(document->getAllStrokeColor(), QColor(Qt::blue));
    QCOMPARE(document->getAllStrokeWidth(), 3.0);
}

void TestStyling::gettersGiveInitialValuesWithoutAnyNode()
{
    const DocumentPointer document = loadContent("");
    QCOMPARE(document->getAllStrokeColor(), QColor(Qt::black));
    QCOMPARE(document->getAllStrokeStyle(), Qt::SolidLine);
    QCOMPARE(document->getAllStrokeWidth(), 1.0);
    QCOMPARE(document->getAllFillBrush(), QBrush());
}

void TestStyling::oddWidthsDrawNothing_data()
{
    QTest::addColumn<double>("width");
    QTest::newRow("NaN") << qQNaN();
    QTest::newRow("zero") << 0.0;
    QTest::newRow("negative") << -3.0;
    QTest::newRow("minus infinite") << -qInf();
}

void TestStyling::oddWidthsDrawNothing()
{
    QFETCH(double, width);
    const DocumentPointer document = loadContent("<path id='a' d='M0 50H100' stroke='red' stroke-width='10'/>");
    document->setAllStrokeWidth(width);
    QCOMPARE(drawn(*document), drawnContent(""));
    QCOMPARE(document->namedNode("a")->strokeWidth(), 0.0);
    const double kept = document->getAllStrokeWidth();
    QVERIFY(kept == width || (std::isnan(kept) && std::isnan(width)));
}

void TestStyling::invalidColourIsKeptAndDrawn()
{
    const DocumentPointer document =
        loadContent("<rect x='20' y='20' width='60' height='60' stroke='red' fill='none'/>");
    document->setAllStrokeColor(QColor());
    document->setAllStrokeWidth(20);
    QVERIFY(!document->getAllStrokeColor().isValid());
    QCOMPARE(fillOf(drawn(*document), 20), QColor(0, 0, 0));
}

void TestStyling::stylingReachesUsedNodes()
{
    const DocumentPointer document =
        loadContent("<defs><rect id='d' width='50' height='100' fill='red'/></defs><use href='#d'/>");
    document->setAllFillBrush(QColor(0, 0, 255));
    QCOMPARE(fillOf(drawn(*document), 25), QColor(0, 0, 255));
}

void TestStyling::brushWithGradientIsInUserUnits()
{
    const DocumentPointer document = loadContent("<rect width='50' height='50' fill='red'/>", "0 0 50 50");
    QLinearGradient gradient(0, 0, 50, 0);
    gradient.setColorAt(0, Qt::black);
    gradient.setColorAt(1, Qt::white);
    document->setAllFillBrush(gradient);
    const QImage image = drawn(*document, QSize(100, 100));
    QVERIFY(qAbs(fillOf(image, 50).red() - 128) <= 4);
    QVERIFY(qAbs(fillOf(image, 25).red() - 65) <= 4);
}

QTEST_MAIN(TestStyling)
#include "test_styling.moc"

#include "grammar/inputlimits.h"
#include "svgbase/svgdrawing.h"
#include "text/fonts.h"

#include <QtGui/QFontDatabase>
#include <QtGui/QFontMetricsF>
#include <QtTest>

using namespace Svg;

namespace {

QRectF textBounds(const QString &content)
{
    const DocumentPointer document = loadContent(content);
    return document ? document->namedNode("t")->boundingRect() : QRectF();
}

/// Room that characters take at a font size of 20 in the font of these tests.
double advance(const QString &characters)
{
    FontStyle style;
    style.family = QStringLiteral("DejaVu Sans");
    return QFontMetricsF(outlineFont(style)).horizontalAdvance(characters) * 20 / outlineFontSize;
}

/// Output of "make_test_font.py colors" as Base64: of "A" a picture of 0.6 by 1 of the font size, its left half
/// red, its right half blue.
const char colorFont[] =
    "AAEAAAALAIAAAwAwQ0JEVH6phUEAAAC8AAAAW0NCTEMcDDTJAAABGAAAAFBjbWFwAAwAdQAAAWgAAAAsZ2x5ZgvMCKoAAAGUAAAA"
    "RGhlYWRi/EM+AAAB2AAAADZoaGVhBwoDJAAAAhAAAAAkaG10eAg0AGQAAAI0AAAADGxvY2EAAABmAAACQAAAABBtYXhwAAUABQAA"
    "AlAAAAAgbmFtZQIOBlsAAAJwAAAAKHBvc3T/nwAyAAACmAAAACAAAwAACgYACAYAAABOiVBORw0KGgoAAAANSUhEUgAAAAYAAAAK"
    "CAYAAACXDi8zAAAAFUlEQVR42mP4z8DwH4aRmP8ZhrsEACYEd4ltutnDAAAAAElFTkSuQmCCAAADAAAAAAABAAAAOAAAABgAAAAB"
    "AAAAAAj+CgAAAAAAAAAAAAj+CgAAAAAAAAAAAAABAAEKCiABAAEAAQAAAAgAAQARAAAABAAAAAAAAABXAAAAAQADAAEAAAAMAAQA"
    "IAAAAAQABAABAAAAQv//AAAAQf///8AAAQAAAAAAAQBkAAAB9AK8AAMAAAEBAQEAZAAAAZAAAAAAArwAAP1EAAEAAP84A+gDIAAD"
    "AAABAQEBAAAAAAPoAAD/OAPoAAD8GAABAAAAAQAAAAAAAF8PPPUAAAPoAAAAAAAAAAAAAAAAAAAAAAAA/zgD6AMgAAAACAACAAEA"
    "AAAAAAEAAAMg/zgAAAPoAAAAAAPoAAEAAAAAAAAAAAAAAAAAAAADAfQAAAJYAGQD6AAAAAAAAAAAAAAAAAAiAAAARAABAAAAAwAE"
    "AAEAAAAAAAEAAAAAAAAAAAAAAAAAAAAAAAAAAQASAAMAAQQJAAEAFgAAAFQAZQBzAHQAIABDAG8AbABvAHIAcwADAAAAAAAA/5wA"
    "MgAAAAAAAAAAAAAAAAAAAAAAAAAA";

const QString start = QStringLiteral("<text id='t' font-family='DejaVu Sans' font-size='20' ");

bool isNear(double a, double b)
{
    return qAbs(a - b) < 0.05;
}

} // namespace

class TestText : public QObject
{
    Q_OBJECT

private slots:
    void standsOnItsBaseline();
    void sizeScalesTheOutlines();
    void anchorMovesTheLine_data();
    void anchorMovesTheLine();
    void boldAndItalicTakeAnotherFace();
    void whiteSpaceIsCollapsed();
    void whiteSpaceIsPreservedOnRequest();
    void tspanContinuesTheLine();
    void tspanStartsAnewWhereItSays();
    void tspanIsMovedByDxAndDy();
    void tspanHasItsOwnPaint();
    void documentWideFillReachesText();
    void changedTspanMovesTheRest();
    void textWithoutCharactersHasNoBounds();
    void hiddenTextHasTheBoundsOfItsVisibleParts();
    void changedWayMovesItsText();
    void changedGlyphsChangeTheirText_data();
    void changedGlyphsChangeTheirText();
    void changedPartsLookLikeLoadedOnes_data();
    void changedPartsLookLikeLoadedOnes();
    void boundingBoxUnitsRelateToCells();
    void outlinesScaleWithTheFontSize();
    void arabicLettersAreJoined();
    void textPathsAreLimited();
    void installedFontsShowTheirPictures();
    void fontWeights_data();
    void fontWeights();
};

void TestText::standsOnItsBaseline()
{
    const QRectF bounds = textBounds(start + "x='10' y='50'>H</text>");
    QVERIFY(isNear(bounds.bottom(), 50));
    // A capital is about 0.73 of the font size high.
    QVERIFY(bounds.height() > 13 && bounds.height() < 16);
    QVERIFY(bounds.left() > 10 && bounds.left() < 13);
    const QImage image = drawnContent(start + "x='10' y='50'>H</text>");
    const QRect inside = bounds.toAlignedRect();
    int painted = 0;
    for (int x = inside.left(); x <= inside.right(); ++x)
        painted += image.pixelColor(x, 43).alpha() > 100 ? 1 : 0;
    QVERIFY(painted >= 2);
}

void TestText::sizeScalesTheOutlines()
{
    const QRectF small = textBounds("<text id='t' font-size='10'>Hg</text>");
    const QRectF large = textBounds("<text id='t' font-size='35'>Hg</text>");
    QVERIFY(!small.isEmpty());
    QVERIFY(isNear(large.width(), small.width() * 3.5));
    QVERIFY(isNear(large.height(), small.height() * 3.5));
}

void TestText::anchorMovesTheLine_data()
{
    QTest::addColumn<QString>("anchor");
    QTest::addColumn<double>("share");
    QTest::newRow("start") << "start" << 0.0;
    QTest::newRow("middle") << "middle" << 0.5;
    QTest::newRow("end") << "end" << 1.0;
}

void TestText::anchorMovesTheLine()
{
    QFETCH(QString, anchor);
    QFETCH(double, share);
    const double left = textBounds(start + "x='50'>HHH</text>").left();
    const QRectF moved = textBounds(start + QStringLiteral("x='50' text-anchor='%1'>HHH</text>").arg(anchor));
    QVERIFY(isNear(moved.left(), left - share * advance("HHH")));
}

void TestText::boldAndItalicTakeAnotherFace()
{
    const double normal = textBounds(start + ">HHH</text>").width();
    QVERIFY(textBounds(start + "font-weight='bold'>HHH</text>").width() > normal + 1);
    QVERIFY(drawnContent(start + "y='50' font-style='italic'>HHH</text>") !=
            drawnContent(start + "y='50'>HHH</text>"));
}

void TestText::whiteSpaceIsCollapsed()
{
    QCOMPARE(drawnContent(start + "y='50'>\n  H \t\n H  </text>"), drawnContent(start + "y='50'>H H</text>"));
}

void TestText::whiteSpaceIsPreservedOnRequest()
{
    const double left = textBounds(start + ">H</text>").left();
    const double moved = textBounds(start + "xml:space='preserve'>  H</text>").left();
    QVERIFY(isNear(moved, left + 2 * advance(" ")));
}

void TestText::tspanContinuesTheLine()
{
    const QRectF whole = textBounds(start + "y='50'>H H</text>");
    const QRectF parts = textBounds(start + "y='50'>H<tspan> </tspan><tspan>H</tspan></text>");
    QVERIFY(isNear(whole.left(), parts.left()) && isNear(whole.right(), parts.right()));
}

void TestText::tspanStartsAnewWhereItSays()
{
    const QRectF bounds = textBounds(start + "x='0' y='20'>H<tspan x='0' y='60'>H</tspan></text>");
    const QRectF one = textBounds(start + "x='0' y='20'>H</text>");
    QVERIFY(isNear(bounds.width(), one.width()));
    QVERIFY(isNear(bounds.bottom(), one.bottom() + 40));
}

void TestText::tspanIsMovedByDxAndDy()
{
    const QRectF plain = textBounds(start + "y='50'>H<tspan>H</tspan></text>");
    const QRectF moved = textBounds(start + "y='50'>H<tspan dx='7' dy='5'>H</tspan></text>");
    QVERIFY(isNear(moved.right(), plain.right() + 7));
    QVERIFY(isNear(moved.bottom(), plain.bottom() + 5));
}

void TestText::tspanHasItsOwnPaint()
{
    const QImage image = drawnContent("<text font-family='DejaVu Sans' font-size='90' y='90' fill='red'>I<tspan "
                                      "x='50' fill='blue'>I</tspan></text>");
    QSet<QRgb> colors;
    for (int x = 0; x < 100; ++x)
        if (image.pixelColor(x, 60).alpha() == 255)
            colors.insert(image.pixel(x, 60));
    QCOMPARE(colors, QSet<QRgb>({qRgb(255, 0, 0), qRgb(0, 0, 255)}));
}

void TestText::documentWideFillReachesText()
{
    const DocumentPointer document = loadContent(start + "y='50' fill='red'>H<tspan fill='blue'>H</tspan></text>");
    document->setAllFillBrush(QColor(0, 255, 0));
    const DocumentPointer expected = loadContent(start + "y='50' fill='#0f0'>HH</text>");
    QCOMPARE(drawn(*document), drawn(*expected));
}

void TestText::changedTspanMovesTheRest()
{
    const DocumentPointer document = loadContent(start + "y='50'>H<tspan id='s'>H</tspan>H</text>");
    const double before = document->namedNode("t")->boundingRect().right();
    document->namedNode("s")->setAttribute("dx", "9");
    QVERIFY(isNear(document->namedNode("t")->boundingRect().right(), before + 9));
}

void TestText::textWithoutCharactersHasNoBounds()
{
    QVERIFY(textBounds(start + "x='10' y='10'> </text>").isNull());
    QVERIFY(textBounds("<text id='t' font-size='0'>H</text>").isNull());
}

void TestText::hiddenTextHasTheBoundsOfItsVisibleParts()
{
    const QRectF alone = textBounds(start + "x='10' y='50'>H</text>");
    QVERIFY(!alone.isEmpty());
    QCOMPARE(textBounds(start + "visibility='hidden'><tspan x='10' y='50' visibility='visible'>H</tspan>H</text>"),
             alone);
    QVERIFY(textBounds(start + "x='10' y='50' visibility='hidden'>H</text>").isNull());
}

void TestText::changedWayMovesItsText()
{
    const DocumentPointer document = loadContent("<path id='p' d='M0 50H90' fill='none'/><text id='t' "
                                                 "font-family='DejaVu Sans'><textPath id='w' href='#p'>i</textPath>"
                                                 "</text>");
    const QRectF before = document->namedNode("t")->boundingRect();
    document->namedNode("p")->setAttribute("d", "M0 70H90");
    QVERIFY(isNear(document->namedNode("t")->boundingRect().bottom(), before.bottom() + 20));
    document->namedNode("w")->setAttribute("startOffset", "30");
    QVERIFY(isNear(document->namedNode("t")->boundingRect().left(), before.left() + 30));
}

void TestText::changedGlyphsChangeTheirText_data()
{
    QTest::addColumn<QString>("id");
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("value");
    QTest::newRow("outline") << "g"
                             << "d"
                             << "M0 0H20V80H0z";
    QTest::newRow("character") << "g"
                               << "unicode"
                               << "b";
    QTest::newRow("advance") << "g"
                             << "horiz-adv-x"
                             << "80";
    QTest::newRow("advance of the font") << "f"
                                         << "horiz-adv-x"
                                         << "80";
    QTest::newRow("family") << "face"
                            << "font-family"
                            << "Other";
    QTest::newRow("units") << "face"
                           << "units-per-em"
                           << "200";
    QTest::newRow("kerning") << "k"
                             << "k"
                             << "30";
}

void TestText::changedGlyphsChangeTheirText()
{
    QFETCH(QString, id);
    QFETCH(QString, name);
    QFETCH(QString, value);
    const QString text =
        "<font id='f' horiz-adv-x='60' %1><font-face id='face' %2/><glyph id='g' %3/><hkern id='k' %4/></font>"
        "<text id='t' y='50' font-family='Boxes, DejaVu Sans'>aab</text>";
    const QHash<QString, QStringList> plain{{"f", {"horiz-origin-x='0'"}},
                                            {"face", {"font-family='Boxes'", "units-per-em='100'"}},
                                            {"g", {"unicode='a'", "d='M0 0H50V50H0z'"}},
                                            {"k", {"u1='a'", "u2='a'", "k='10'"}}};
    const auto attributes = [&](const QString &element, bool changed) {
        QStringList list = plain.value(element);
        if (changed && element == id) {
            list = list.filter(QRegularExpression("^(?!" + name + "=)"));
            list.append(QStringLiteral("%1='%2'").arg(name, value));
        }
        return list.join(' ');
    };
    const auto content = [&](bool changed) {
        QString whole = text.arg(attributes("f", changed), attributes("face", changed), attributes("g", changed),
                                 attributes("k", changed));
        if (changed && id == "f")
            whole.replace("horiz-adv-x='60'", QString());
        return whole;
    };
    const DocumentPointer document = loadContent(content(false));
    const QImage before = drawn(*document);
    QZeSvgNode *node = document->namedNode(id);
    QVERIFY(node);
    node->setAttribute(name, value);
    QVERIFY(drawn(*document) != before);
    QCOMPARE(drawn(*document), drawnContent(content(true)));
}

void TestText::changedPartsLookLikeLoadedOnes_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("value");
    for (const auto &[name, value] :
         std::initializer_list<std::pair<const char *, const char *>>{{"x", "20 40"},
                                                                      {"dy", "5 5"},
                                                                      {"rotate", "20"},
                                                                      {"textLength", "60"},
                                                                      {"letter-spacing", "4"},
                                                                      {"baseline-shift", "super"},
                                                                      {"text-decoration", "underline"},
                                                                      {"font-size", "30"},
                                                                      {"writing-mode", "tb"},
                                                                      {"direction", "rtl"},
                                                                      {"text-anchor", "end"},
                                                                      {"font-size-adjust", "1"},
                                                                      {"kerning", "3"},
                                                                      {"inline-size", "40"},
                                                                      {"display", "none"}})
        QTest::newRow(name) << QString::fromLatin1(name) << QString::fromLatin1(value);
}

void TestText::changedPartsLookLikeLoadedOnes()
{
    QFETCH(QString, name);
    QFETCH(QString, value);
    const QString text = start + "x='50' y='50'>ab<tspan id='s' %1>cd</tspan>e</text>";
    const DocumentPointer changed = loadContent(text.arg(QString()));
    const QImage before = drawn(*changed);
    changed->namedNode("s")->setAttribute(name, value);
    QCOMPARE(drawn(*changed), drawnContent(text.arg(QStringLiteral("%1='%2'").arg(name, value))));
    changed->namedNode("s")->setAttribute(name, QString());
    QCOMPARE(drawn(*changed), before);
    const QString bare = QStringLiteral("<text id='t' font-family='DejaVu Sans' ");
    const DocumentPointer whole = loadContent(bare + "y='50'>ab</text>");
    whole->namedNode("t")->setAttribute(name, value);
    QCOMPARE(drawn(*whole), drawnContent(bare + QStringLiteral("y='50' %1='%2'>ab</text>").arg(name, value)));
}

// Two cells of 0.2778 · 20 units: the middle of the gradient lies between both letters, at 5.56.
void TestText::boundingBoxUnitsRelateToCells()
{
    const DocumentPointer document = loadContent(
        "<linearGradient id='g'><stop offset='0.5' stop-color='#f00'/><stop offset='0.5' stop-color='#00f'/>"
        "</linearGradient><text id='t' font-family='DejaVu Sans' font-size='60' x='10' y='80' fill='url(#g)'>l"
        "<tspan visibility='hidden'>l</tspan></text>");
    // An l is a bar from 193 to 377 of 2048 units, in a cell of 569.
    QCOMPARE(drawn(*document).pixelColor(18, 60), QColor(255, 0, 0));
    const QImage image = drawn(*document);
    for (int x = 0; x < image.width(); ++x)
        QVERIFY(image.pixelColor(x, 60).blue() == 0);
}

void TestText::outlinesScaleWithTheFontSize()
{
    const QRectF small = textBounds("<text id='t' font-family='DejaVu Sans' font-size='0.5'>HgW</text>");
    const QRectF large = textBounds("<text id='t' font-family='DejaVu Sans' font-size='5000'>HgW</text>");
    QVERIFY(qAbs(large.width() / small.width() / 10000 - 1) < 1e-4);
    QVERIFY(qAbs(large.height() / small.height() / 10000 - 1) < 1e-4);
}

void TestText::textPathsAreLimited()
{
    const QString along = QStringLiteral("<textPath path='M0 50%1'>i</textPath>");
    const DocumentPointer fit = loadContent(start + ">" + along.arg("h9") + "</text>");
    QVERIFY(!fit->namedNode("t")->boundingRect().isEmpty());
    const DocumentPointer tooLong = loadContent(
        start + ">" + along.arg(QStringLiteral("h9").repeated(Svg::Limits::textPathElements)) + "</text>");
    QVERIFY(tooLong->namedNode("t")->boundingRect().isEmpty());
    const QString many = along.arg("h9").repeated(Svg::Limits::textPaths);
    QVERIFY(loadContent(start + ">" + many + "</text>")->messages().isEmpty());
    QCOMPARE(loadContent(start + ">" + many + along.arg("h9") + "</text>")->messages().size(), 1);
}

// Two letters that join are narrower than the same letters apart.
void TestText::arabicLettersAreJoined()
{
    const QRectF joined = textBounds(start + "y='50'>\u0628\u0628</text>");
    const QRectF apart = textBounds(start + "y='50'>\u0628\u200c\u0628</text>");
    QVERIFY(!joined.isEmpty());
    QVERIFY(joined.width() < apart.width() - 1);
}

// CSS Fonts 4 §9. An "l" of 0.278 of the font size stands in front; the pictures begin at 10 + 13.9 and 30 later.
void TestText::installedFontsShowTheirPictures()
{
    const int font = QFontDatabase::addApplicationFontFromData(QByteArray::fromBase64(colorFont));
    QVERIFY(font >= 0);
    const DocumentPointer document =
        loadContent("<text id='t' x='10' y='60' font-size='50' fill='#0f0' font-family='DejaVu Sans'>l<tspan "
                    "font-family='Test Colors'>AA</tspan></text>");
    const QImage image = drawn(*document);
    QCOMPARE(image.pixelColor(31, 45), QColor(255, 0, 0));
    QCOMPARE(image.pixelColor(46, 45), QColor(0, 0, 255));
    QCOMPARE(image.pixelColor(61, 45), QColor(255, 0, 0));
    QCOMPARE(image.pixelColor(76, 45), QColor(0, 0, 255));
    QCOMPARE(image.pixelColor(90, 45).alpha(), 0);
    QCOMPARE(image.pixelColor(17, 45), QColor(0, 255, 0));
    const QRectF bounds = document->namedNode("t")->boundingRect();
    QVERIFY(isNear(bounds.right(), 10 + advance("l") * 50 / 20 + 60));
    QVERIFY(isNear(bounds.top(), 20) && isNear(bounds.bottom(), 70));
    QVERIFY(QFontDatabase::removeApplicationFont(font));
}

void TestText::fontWeights_data()
{
    QTest::addColumn<int>("weight");
    QTest::addColumn<int>("expected");
    QTest::newRow("thin") << 100 << int(QFont::Thin);
    QTest::newRow("normal") << 400 << int(QFont::Normal);
    QTest::newRow("medium") << 500 << int(QFont::Medium);
    QTest::newRow("bold") << 700 << int(QFont::Bold);
    QTest::newRow("black") << 900 << int(QFont::Black);
    QTest::newRow("in between") << 720 << int(QFont::Bold);
    QTest::newRow("lowest") << 1 << int(QFont::Thin);
    QTest::newRow("highest") << 1000 << int(QFont::Black);
}

void TestText::fontWeights()
{
    QFETCH(int, weight);
    QTEST(qtFontWeight(weight), "expected");
}

QTEST_MAIN(TestText)
#include "test_text.moc"

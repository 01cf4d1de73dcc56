#include "grammar/colors.h"
#include "grammar/fontfamilies.h"
#include "grammar/inputlimits.h"
#include "grammar/lengths.h"
#include "grammar/numbers.h"
#include "grammar/paints.h"
#include "grammar/points.h"
#include "grammar/styleattribute.h"
#include "grammar/transforms.h"
#include "grammar/viewboxes.h"

#include <QtTest>

#include <cmath>
#include <limits>

using namespace Svg;

class TestGrammars : public QObject
{
    Q_OBJECT

private slots:
    void number_data();
    void number();
    void notANumber_data();
    void notANumber();
    void numberListTakesSpacesCommasAndSigns();
    void numberListWithRubbishIsRefused();
    void numberTextReadsBackExactly_data();
    void numberTextReadsBackExactly();
    void numberTextIsShortest_data();
    void numberTextIsShortest();
    void length_data();
    void length();
    void notALength_data();
    void notALength();
    void percentagesReferToTheirAxis();
    void hugeLengthsAreHeldInRange();
    void transform_data();
    void transform();
    void notATransform_data();
    void notATransform();
    void color_data();
    void color();
    void notAColor_data();
    void notAColor();
    void opacityIsHeldBetweenZeroAndOne_data();
    void opacityIsHeldBetweenZeroAndOne();
    void paintKinds_data();
    void paintKinds();
    void paintServerWithFallback();
    void styleAttributeSplitsDeclarations();
    void styleAttributeKeepsSemicolonsInsideQuotesAndParentheses();
    void viewBox();
    void notAViewBox_data();
    void notAViewBox();
    void aspectRatio_data();
    void aspectRatio();
    void pointsStopAtTheFirstError();
    void fontFamilies_data();
    void fontFamilies();
    void fontFamiliesAreLimited();
};

void TestGrammars::fontFamilies_data()
{
    QTest::addColumn<QString>("list");
    // Quoted names stand in brackets here.
    QTest::addColumn<QStringList>("expected");
    QTest::newRow("one") << "Serif" << QStringList{"Serif"};
    QTest::newRow("several") << "A, B ,C" << QStringList{"A", "B", "C"};
    QTest::newRow("white space within") << " Two   Words\t, B" << QStringList{"Two Words", "B"};
    QTest::newRow("quoted") << "'A  B',\"C\"" << QStringList{"[A  B]", "[C]"};
    QTest::newRow("comma in quotes") << "'A, B', C" << QStringList{"[A, B]", "C"};
    QTest::newRow("other quote in quotes") << "\"it's\", C" << QStringList{"[it's]", "C"};
    QTest::newRow("never closed") << "'A, B" << QStringList{"[A, B]"};
    QTest::newRow("empty names") << ",A,,'',B," << QStringList{"A", "B"};
    QTest::newRow("nothing") << "" << QStringList();
}

void TestGrammars::fontFamilies()
{
    QFETCH(QString, list);
    QFETCH(QStringList, expected);
    QStringList names;
    const QVector<FamilyName> parsed = parseFontFamilies(list);
    for (const FamilyName &name : parsed)
        names.append(name.quoted ? '[' + name.text + ']' : name.text);
    QCOMPARE(names, expected);
}

void TestGrammars::fontFamiliesAreLimited()
{
    QCOMPARE(parseFontFamilies(QString("a,").repeated(Limits::listedFamilies)).size(), Limits::listedFamilies);
    QCOMPARE(parseFontFamilies(QString("a,").repeated(Limits::listedFamilies + 1)).size(), Limits::listedFamilies);
}

void TestGrammars::number_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<double>("value");
    QTest::newRow("integer") << "12" << 12.0;
    QTest::newRow("decimal") << "12.5" << 12.5;
    QTest::newRow("leading point") << ".5" << 0.5;
    QTest::newRow("plus") << "+3" << 3.0;
    QTest::newRow("minus") << "-.25" << -0.25;
    QTest::newRow("exponent") << "1.5e3" << 1500.0;
    QTest::newRow("upper-case exponent") << "2E-2" << 0.02;
    QTest::newRow("space around") << " \t7\n" << 7.0;
    QTest::newRow("too small to hold") << "1e-999" << 0.0;
}

void TestGrammars::number()
{
    QFETCH(QString, text);
    QFETCH(double, value);
    const std::optional<double> parsed = parseNumber(text);
    QVERIFY(parsed.has_value());
    QCOMPARE(*parsed, value);
}

void TestGrammars::notANumber_data()
{
    QTest::addColumn<QString>("text");
    for (const char *text : {"", " ", ".", "-", "+-1", "e5", "1e999", "-1e999", "NaN", "nan", "inf", "Infinity",
                             "0x10", "1 2", "1,", "1px", "१"})
        QTest::newRow(text[0] ? text : "empty") << QString::fromUtf8(text);
}

void TestGrammars::notANumber()
{
    QFETCH(QString, text);
    QVERIFY(!parseNumber(text).has_value());
}

void TestGrammars::numberListTakesSpacesCommasAndSigns()
{
    const auto numbers = parseNumberList(u" 1,2 3 , -4-5.5.5\n6 ");
    QVERIFY(numbers.has_value());
    QCOMPARE(*numbers, QVector<double>({1, 2, 3, -4, -5.5, .5, 6}));
    QCOMPARE(parseNumberList(u"")->size(), 0);
}

void TestGrammars::numberListWithRubbishIsRefused()
{
    QVERIFY(!parseNumberList(u"1 2 x").has_value());
    QVERIFY(!parseNumberList(u"1,,2").has_value());
    QVERIFY(!parseNumberList(u",1").has_value());
}

void TestGrammars::numberTextReadsBackExactly_data()
{
    QTest::addColumn<double>("value");
    for (const double value : {0.1, 1.0 / 3, 1e21, -2.5e-9, 123456789.123456789, 5e-324, 1.7976931348623157e308})
        QTest::addRow("%g", value) << value;
}

void TestGrammars::numberTextReadsBackExactly()
{
    QFETCH(double, value);
    const std::optional<double> back = parseNumber(numberText(value));
    QVERIFY(back.has_value());
    QVERIFY(*back == value);
}

void TestGrammars::numberTextIsShortest_data()
{
    QTest::addColumn<double>("value");
    QTest::addColumn<QString>("text");
    QTest::newRow("integer") << 46.0 << "46";
    QTest::newRow("million") << 1000000.0 << "1000000";
    QTest::newRow("tenth") << 0.1 << "0.1";
    QTest::newRow("minus zero") << -0.0 << "0";
    QTest::newRow("negative") << -12.75 << "-12.75";
}

void TestGrammars::numberTextIsShortest()
{
    QFETCH(double, value);
    QTEST(numberText(value), "text");
}

void TestGrammars::length_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<double>("userUnits");
    // 96 user units are an inch, 72 points, 6 picas, 2.54 cm.
    QTest::newRow("plain") << "12.5" << 12.5;
    QTest::newRow("px") << "12px" << 12.0;
    QTest::newRow("pt") << "72pt" << 96.0;
    QTest::newRow("pc") << "6pc" << 96.0;
    QTest::newRow("in") << "0.5in" << 48.0;
    QTest::newRow("cm") << "2.54cm" << 96.0;
    QTest::newRow("mm") << "25.4mm" << 96.0;
    QTest::newRow("em") << "2em" << 20.0;
    QTest::newRow("ex") << "2ex" << 10.0;
    QTest::newRow("exponent, not em") << "1e1" << 10.0;
    QTest::newRow("upper case") << "3PX" << 3.0;
    QTest::newRow("percent") << "50%" << 100.0;
    QTest::newRow("space around") << " 4 " << 4.0;
}

void TestGrammars::length()
{
    QFETCH(QString, text);
    const std::optional<Length> parsed = parseLength(text);
    QVERIFY(parsed.has_value());
    QTEST(toUserUnits(*parsed, Axis::Horizontal, {QSizeF(200, 50), 10}), "userUnits");
}

void TestGrammars::notALength_data()
{
    QTest::addColumn<QString>("text");
    for (const char *text : {"", "px", "5 px", "5foo", "5px5", "1e999px", "NaN"})
        QTest::newRow(text[0] ? text : "empty") << QString::fromLatin1(text);
}

void TestGrammars::notALength()
{
    QFETCH(QString, text);
    QVERIFY(!parseLength(text).has_value());
}

void TestGrammars::percentagesReferToTheirAxis()
{
    const Length half{50, Unit::Percent};
    const LengthContext context{QSizeF(60, 80), 16};
    QCOMPARE(toUserUnits(half, Axis::Horizontal, context), 30.0);
    QCOMPARE(toUserUnits(half, Axis::Vertical, context), 40.0);
    // The diagonal is 100, divided by the square root of 2.
    QCOMPARE(toUserUnits(half, Axis::Diagonal, context), 50.0 / std::sqrt(2.0));
}

void TestGrammars::hugeLengthsAreHeldInRange()
{
    QCOMPARE(toUserUnits({1e300, Unit::User}, Axis::Horizontal, {}), 1e9);
    QCOMPARE(toUserUnits({-1e300, Unit::Em}, Axis::Horizontal, {QSizeF(), 1e300}), -1e9);
}

void TestGrammars::transform_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QPointF>("imageOf23");
    QTest::newRow("empty") << "" << QPointF(2, 3);
    QTest::newRow("translate") << "translate(10,20)" << QPointF(12, 23);
    QTest::newRow("translate x only") << "translate(10)" << QPointF(12, 3);
    QTest::newRow("scale") << "scale(2 3)" << QPointF(4, 9);
    QTest::newRow("scale both") << "scale(2)" << QPointF(4, 6);
    QTest::newRow("rotate") << "rotate(90)" << QPointF(-3, 2);
    QTest::newRow("rotate about a point") << "rotate(90 2 0)" << QPointF(-1, 0);
    QTest::newRow("skewX") << "skewX(45)" << QPointF(5, 3);
    QTest::newRow("skewY") << "skewY(45)" << QPointF(2, 5);
    QTest::newRow("matrix") << "matrix(1 2 3 4 5 6)" << QPointF(2 + 9 + 5, 4 + 12 + 6);
    QTest::newRow("last first") << "translate(10 0) scale(2)" << QPointF(14, 6);
    QTest::newRow("separators") << " scale ( 2 , 2 ) , translate( 1,0 ) " << QPointF(6, 6);
}

void TestGrammars::transform()
{
    QFETCH(QString, text);
    QFETCH(QPointF, imageOf23);
    const std::optional<QTransform> parsed = parseTransform(text);
    QVERIFY(parsed.has_value());
    const QPointF image = parsed->map(QPointF(2, 3));
    QVERIFY2(qAbs(image.x() - imageOf23.x()) < 1e-9 && qAbs(image.y() - imageOf23.y()) < 1e-9,
             qPrintable(QStringLiteral("%1 %2").arg(image.x()).arg(image.y())));
}

void TestGrammars::notATransform_data()
{
    QTest::addColumn<QString>("text");
    for (const char *text :
         {"translate", "translate()", "translate(1", "matrix(1 2 3)", "rotate(1 2)", "turn(3)", "scale(1 2 3)",
          "matrix(1 2 3 4 5 6 7)", "translate(1e999)", "translate(NaN)", "scale(1e300) scale(1e300)"})
        QTest::newRow(text) << QString::fromLatin1(text);
}

void TestGrammars::notATransform()
{
    QFETCH(QString, text);
    QVERIFY(!parseTransform(text).has_value());
}

void TestGrammars::color_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QColor>("expected");
    QTest::newRow("#rgb") << "#f80" << QColor(255, 136, 0);
    QTest::newRow("#rgba") << "#f808" << QColor(255, 136, 0, 136);
    QTest::newRow("#rrggbb") << "#12aBcD" << QColor(0x12, 0xab, 0xcd);
    QTest::newRow("#rrggbbaa") << "#12abcd40" << QColor(0x12, 0xab, 0xcd, 0x40);
    QTest::newRow("rgb()") << "rgb(1,2,3)" << QColor(1, 2, 3);
    QTest::newRow("rgb() with spaces") << "rgb( 1 2 3 )" << QColor(1, 2, 3);
    QTest::newRow("rgb() in percent") << "rgb(100%, 0%, 20%)" << QColor(255, 0, 51);
    QTest::newRow("rgb() out of range") << "rgb(300,-5,0)" << QColor(255, 0, 0);
    QTest::newRow("rgba()") << "rgba(1,2,3,0.2)" << QColor(1, 2, 3, 51);
    QTest::newRow("rgb() with slash") << "rgb(1 2 3 / 20%)" << QColor(1, 2, 3, 51);
    QTest::newRow("hsl()") << "hsl(120, 100%, 50%)" << QColor(0, 255, 0);
    QTest::newRow("hsl() turned") << "hsl(-240, 100%, 50%)" << QColor(0, 255, 0);
    QTest::newRow("rgb() of numbers and percentages") << "rgb(20% 0 51)" << QColor(51, 0, 51);
    QTest::newRow("missing components") << "rgb(none 255 none / none)" << QColor(0, 255, 0, 0);
    QTest::newRow("hwb()") << "hwb(120 0% 0%)" << QColor(0, 255, 0);
    QTest::newRow("hwb() with white and black") << "hwb(0.5turn 20% 40%)" << QColor(51, 153, 153);
    QTest::newRow("hwb() of more than all") << "hwb(0 60% 60%)" << QColor(128, 128, 128);
    QTest::newRow("lab() white") << "lab(100% 0 0)" << QColor(255, 255, 255);
    QTest::newRow("lab() grey") << "lab(50 0 0 / 0.2)" << QColor(119, 119, 119, 51);
    QTest::newRow("lab() of percentages") << "lab(50 0% 0%)" << QColor(119, 119, 119);
    QTest::newRow("lch() red") << "lch(54.2917% 106.8372 40.858)" << QColor(255, 0, 0);
    QTest::newRow("lch() grey") << "lch(50 0 270deg)" << QColor(119, 119, 119);
    QTest::newRow("oklab() white") << "oklab(100% 0 0)" << QColor(255, 255, 255);
    QTest::newRow("oklab() red") << "oklab(0.62796 0.22486 0.12585)" << QColor(255, 0, 0);
    QTest::newRow("oklch() blue") << "oklch(45.201% 0.31321 264.052)" << QColor(0, 0, 255);
    QTest::newRow("color() of sRGB") << "color(srgb 1 50% 0 / 20%)" << QColor(255, 128, 0, 51);
    QTest::newRow("color() of light") << "color(srgb-linear 0.5 0.5 0.5)" << QColor(188, 188, 188);
    QTest::newRow("color() of a larger space") << "color(display-p3 0 1 0)" << QColor(0, 255, 0);
    QTest::newRow("color() of Adobe's exponent") << "color(a98-rgb 0.75 0.75 0.75)" << QColor(193, 193, 193);
    QTest::newRow("color() of photographs") << "color(prophoto-rgb 0.5 0.5 0.5)" << QColor(146, 146, 146);
    QTest::newRow("color() of television") << "color(rec2020 0.5 0.5 0.5)" << QColor(139, 139, 139);
    QTest::newRow("color() of XYZ") << "color(xyz 0.95046 1 1.08906)" << QColor(255, 255, 255);
    QTest::newRow("color() of XYZ, D50") << "color(xyz-d50 0.96430 1 0.82510)" << QColor(255, 255, 255);
    QTest::newRow("not closed") << "rgb(1,2,3" << QColor(1, 2, 3);
    QTest::newRow("calculated") << "rgb(calc(2 * 3), max(1, 7), 8)" << QColor(6, 7, 8);
    QTest::newRow("of another") << "rgb(from rgb(1 2 3) b r g)" << QColor(3, 1, 2);
    QTest::newRow("alpha of another") << "rgb(from #12345678 r g b)" << QColor(0x12, 0x34, 0x56, 0x78);
    QTest::newRow("lab() of a grey") << "lab(from #777777 l a b)" << QColor(119, 119, 119);
    QTest::newRow("oklch() of another") << "oklch(from #336699 l c h)" << QColor(0x33, 0x66, 0x99);
    QTest::newRow("larger space of another") << "color(from #336699 display-p3 r g b)" << QColor(0x33, 0x66, 0x99);
    QTest::newRow("mixed") << "color-mix(in srgb, #f00, #00f)" << QColor(128, 0, 128);
    QTest::newRow("mixed of light") << "color-mix(in srgb-linear, #000, #fff)" << QColor(188, 188, 188);
    QTest::newRow("name of CSS") << "rebeccapurple" << QColor(0x66, 0x33, 0x99);
    QTest::newRow("name of the list") << "LightGoldenRodYellow" << QColor(250, 250, 210);
    QTest::newRow("transparent") << "transparent" << QColor(0, 0, 0, 0);
    QTest::newRow("space around") << " red " << QColor(255, 0, 0);
}

void TestGrammars::color()
{
    QFETCH(QString, text);
    QFETCH(QColor, expected);
    const std::optional<QColor> parsed = parseColor(text);
    QCOMPARE(parsed.has_value(), expected.isValid());
    if (parsed)
        QCOMPARE(parsed->rgba(), expected.rgba());
}

void TestGrammars::notAColor_data()
{
    QTest::addColumn<QString>("text");
    for (const char *text : {"",
                             "#",
                             "#12",
                             "#12345",
                             "#1234567",
                             "#123456789",
                             "#ggg",
                             "rgb",
                             "rgb(1,2)",
                             "rgb(1,2",
                             "rgb(from nothing r g b)",
                             "rgb(from #fff r, g, b)",
                             "rgb(from #fff x g b)",
                             "color-mix(in srgb, red)",
                             "color-mix(in srgb, red 0%, blue 0%)",
                             "color-mix(in srgb, red 101%, blue)",
                             "color-mix(red, blue)",
                             "rgb(1,2,3,4,5)",
                             "rgb(NaN,0,0)",
                             "rgb(1 2,3)",
                             "rgb(1,2 3)",
                             "rgb(1,2,3/4)",
                             "rgb(1 2 3 4)",
                             "rgb(1%,2,3)",
                             "rgb(1deg 2 3)",
                             "rgb(none,0,0)",
                             "hsl(1% 2% 3%)",
                             "hwb(1,2%,3%)",
                             "lab(1,2,3)",
                             "lch(1 2 3%)",
                             "oklab(1 2deg 3)",
                             "color(1 2 3)",
                             "color(unknown 1 2 3)",
                             "color(srgb,1,2,3)",
                             "color(srgb 1 2 3deg)",
                             "color(srgb 1 2)",
                             "lab(1 2 3) x",
                             "none",
                             "currentColor",
                             "no such name",
                             "url(#a)"})
        QTest::newRow(text[0] ? text : "empty") << QString::fromLatin1(text);
}

void TestGrammars::notAColor()
{
    QFETCH(QString, text);
    QVERIFY(!parseColor(text).has_value());
}

void TestGrammars::opacityIsHeldBetweenZeroAndOne_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<double>("opacity");
    QTest::newRow("plain") << ".25" << 0.25;
    QTest::newRow("percent") << "25%" << 0.25;
    QTest::newRow("too high") << "7" << 1.0;
    QTest::newRow("too low") << "-1" << 0.0;
}

void TestGrammars::opacityIsHeldBetweenZeroAndOne()
{
    QFETCH(QString, text);
    const std::optional<double> parsed = parseOpacity(text);
    QVERIFY(parsed.has_value());
    QTEST(*parsed, "opacity");
    QVERIFY(!parseOpacity(u"half").has_value());
}

void TestGrammars::paintKinds_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("kind");
    QTest::newRow("none") << " none " << int(Paint::None);
    QTest::newRow("colour") << "#123" << int(Paint::Color);
    QTest::newRow("transparent is a colour") << "transparent" << int(Paint::Color);
    QTest::newRow("currentColor") << "currentColor" << int(Paint::CurrentColor);
    QTest::newRow("reference") << "url(#a)" << int(Paint::Server);
}

void TestGrammars::paintKinds()
{
    QFETCH(QString, text);
    const std::optional<Paint> paint = parsePaint(text);
    QVERIFY(paint.has_value());
    QTEST(int(paint->kind), "kind");
    QVERIFY(!parsePaint(u"nonsense").has_value());
}

void TestGrammars::paintServerWithFallback()
{
    const std::optional<Paint> paint = parsePaint(u"url( '#grad' ) #00f");
    QVERIFY(paint.has_value());
    QCOMPARE(paint->server, QStringLiteral("grad"));
    QCOMPARE(paint->color, QColor(0, 0, 255));
    QVERIFY(!parsePaint(u"url(#grad)")->color.isValid());
    QVERIFY(parsePaint(u"url(other.svg#grad)")->server.isEmpty());
    QVERIFY(!parsePaint(u"url(#grad").has_value());
}

void TestGrammars::styleAttributeSplitsDeclarations()
{
    const QString text = QStringLiteral("fill : red ; /* note */ stroke:blue !important;;broken; :x; opacity:.5");
    const QVector<StyleDeclaration> list = parseStyleAttribute(text);
    QCOMPARE(list.size(), 3);
    QCOMPARE(list[0].name.toString(), QStringLiteral("fill"));
    QCOMPARE(list[0].value.toString(), QStringLiteral("red"));
    QCOMPARE(list[1].name.toString(), QStringLiteral("stroke"));
    QCOMPARE(list[1].value.toString(), QStringLiteral("blue"));
    QCOMPARE(list[2].value.toString(), QStringLiteral(".5"));
}

void TestGrammars::styleAttributeKeepsSemicolonsInsideQuotesAndParentheses()
{
    const QString text = QStringLiteral("font-family:'a;b';fill:url(#x;y) red");
    const QVector<StyleDeclaration> list = parseStyleAttribute(text);
    QCOMPARE(list.size(), 2);
    QCOMPARE(list[0].value.toString(), QStringLiteral("'a;b'"));
    QCOMPARE(list[1].value.toString(), QStringLiteral("url(#x;y) red"));
}

void TestGrammars::viewBox()
{
    QCOMPARE(parseViewBox(u"-5, 10 200.5,100").value_or(QRectF()), QRectF(-5, 10, 200.5, 100));
    QVERIFY(parseViewBox(u"0 0 0 0")->isNull());
}

void TestGrammars::notAViewBox_data()
{
    QTest::addColumn<QString>("text");
    for (const char *text :
         {"", "0 0 10", "0 0 10 10 10", "0 0 -1 10", "0 0 10 -1", "0 0 1e999 10", "0 0 1e12 1", "a b c d"})
        QTest::newRow(text[0] ? text : "empty") << QString::fromLatin1(text);
}

void TestGrammars::notAViewBox()
{
    QFETCH(QString, text);
    QVERIFY(!parseViewBox(text).has_value());
}

void TestGrammars::aspectRatio_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QRectF>("imageOfBox");
    // A box of 10 × 10 in a viewport of 40 × 20: meet gives 20 × 20, slice 40 × 40.
    QTest::newRow("default") << "" << QRectF(10, 0, 20, 20);
    QTest::newRow("none") << "none" << QRectF(0, 0, 40, 20);
    QTest::newRow("xMinYMin") << "xMinYMin" << QRectF(0, 0, 20, 20);
    QTest::newRow("xMaxYMax meet") << "xMaxYMax meet" << QRectF(20, 0, 20, 20);
    QTest::newRow("xMidYMid slice") << "xMidYMid slice" << QRectF(0, -10, 40, 40);
    QTest::newRow("xMinYMax slice") << "xMinYMax slice" << QRectF(0, -20, 40, 40);
    QTest::newRow("wrong text counts as the default") << "xMinYmin" << QRectF(10, 0, 20, 20);
}

void TestGrammars::aspectRatio()
{
    QFETCH(QString, text);
    const QRectF box(5, 5, 10, 10);
    const auto transform = viewBoxTransform(box, QRectF(0, 0, 40, 20), parseAspectRatio(text));
    QVERIFY(transform.has_value());
    QTEST(transform->mapRect(box), "imageOfBox");
    QVERIFY(!viewBoxTransform(QRectF(), QRectF(0, 0, 40, 20), {}).has_value());
}

void TestGrammars::pointsStopAtTheFirstError()
{
    const Points whole = parsePoints(u"0,0 10-5\n20 30");
    QVERIFY(whole.complete);
    QCOMPARE(whole.points, QPolygonF({QPointF(0, 0), QPointF(10, -5), QPointF(20, 30)}));
    const Points odd = parsePoints(u"1 2 3");
    QVERIFY(!odd.complete);
    QCOMPARE(odd.points, QPolygonF({QPointF(1, 2)}));
    QVERIFY(!parsePoints(u"1 2 1e999 3").complete);
}

QTEST_APPLESS_MAIN(TestGrammars)
#include "test_grammars.moc"

#include "svgbase/svgdrawing.h"

#include <QtTest>

namespace {

/// A square over the whole picture.
QString square(const QString &attributes)
{
    return QStringLiteral("<rect width='100' height='100' %1/>").arg(attributes);
}

QColor middle(const QString &content)
{
    return drawnContent(content).pixelColor(50, 50);
}

/// An opacity of 0.2, to the step that pictures are faded in.
bool isFaintly(const QColor &found, const QColor &color)
{
    return qAbs(found.alpha() - 51) <= 1 && found.rgb() == color.rgb();
}

} // namespace

class TestStyle : public QObject
{
    Q_OBJECT

private slots:
    void paintOfTheMiddle_data();
    void paintOfTheMiddle();
    void strokeDetails_data();
    void strokeDetails();
    void strokeOfNoWidthDrawsNothing();
    void miterLimitCutsSharpCorners();
    void dashesLeaveGaps();
    void dashOffsetMovesTheGaps();
    void fillRuleDecidesHoles();
    void groupOpacityFadesThePictureAsOne();
    void nodeOpacityFadesFillAndStrokeAsOne();
    void visibilityMayBeTakenBackByAChild();
    void displayCannotBeTakenBack();
    void visibilityFlag();
};

void TestStyle::paintOfTheMiddle_data()
{
    QTest::addColumn<QString>("content");
    QTest::addColumn<QColor>("expected");
    const QColor red(255, 0, 0);
    const QColor blue(0, 0, 255);
    const QColor nothing(0, 0, 0, 0);
    QTest::newRow("fill is black unless said") << square("") << QColor(0, 0, 0);
    QTest::newRow("attribute") << square("fill='red'") << red;
    QTest::newRow("none") << square("fill='none'") << nothing;
    QTest::newRow("transparent") << square("fill='transparent'") << nothing;
    QTest::newRow("style attribute") << square("style='fill:red'") << red;
    QTest::newRow("style wins over the attribute") << square("fill='blue' style='fill:red'") << red;
    QTest::newRow("later declaration wins") << square("style='fill:blue;fill:red'") << red;
    QTest::newRow("declaration that is none is skipped") << square("style='fill:red;fill:nonsense'") << red;
    QTest::newRow("inherited") << "<g fill='red'><g>" + square("") + "</g></g>" << red;
    QTest::newRow("inherited from the root's style")
        << "<g style='fill:red'>" + square("stroke='none'") + "</g>" << red;
    QTest::newRow("own before inherited") << "<g fill='blue'>" + square("fill='red'") + "</g>" << red;
    QTest::newRow("inherit") << "<g fill='red'>" + square("style='fill:blue;fill:inherit'") + "</g>" << red;
    QTest::newRow("currentColor") << "<g color='red'>" + square("fill='currentColor'") + "</g>" << red;
    QTest::newRow("own color before its use") << square("fill='currentColor' color='red'") << red;
    QTest::newRow("currentColor is inherited as a keyword")
        << "<g color='red' fill='currentColor'>" + square("color='blue'") + "</g>" << blue;
    QTest::newRow("fill-opacity") << square("fill='red' fill-opacity='0.2'") << QColor(255, 0, 0, 51);
    QTest::newRow("fill-opacity and alpha")
        << square("fill='rgba(255,0,0,.5)' fill-opacity='0.4'") << QColor(255, 0, 0, 51);
    QTest::newRow("opacity") << square("fill='red' opacity='20%'") << QColor(255, 0, 0, 51);
    QTest::newRow("opacity is not inherited but multiplied")
        << "<g opacity='.5'>" + square("fill='red' opacity='.4'") + "</g>" << QColor(255, 0, 0, 51);
    QTest::newRow("opacity of 0") << square("fill='red' opacity='0'") << nothing;
    QTest::newRow("display none") << square("fill='red' display='none'") << nothing;
    QTest::newRow("visibility hidden") << square("fill='red' visibility='hidden'") << nothing;
    QTest::newRow("painted in document order") << square("fill='red'") + square("fill='blue'") << blue;
    QTest::newRow("missing paint server without fallback") << square("fill='url(#none)'") << nothing;
    QTest::newRow("missing paint server with fallback") << square("fill='url(#none) red'") << red;
}

void TestStyle::paintOfTheMiddle()
{
    QFETCH(QString, content);
    QFETCH(QColor, expected);
    const QColor found = middle(content);
    QCOMPARE(found.alpha(), expected.alpha());
    if (expected.alpha() > 0)
        QCOMPARE(found.rgb(), expected.rgb());
}

void TestStyle::strokeDetails_data()
{
    QTest::addColumn<QString>("attributes");
    QTest::addColumn<QPoint>("place");
    QTest::addColumn<bool>("painted");
    // A line from (30, 50) to (70, 50), 20 wide: from y 40 to 60.
    const QPoint beside(50, 42);
    const QPoint before(25, 50);
    const QPoint cornerOfCap(22, 42);
    QTest::newRow("no stroke unless said") << "stroke-width='20'" << beside << false;
    QTest::newRow("width of 1 unless said") << "stroke='red'" << beside << false;
    QTest::newRow("width") << "stroke='red' stroke-width='20'" << beside << true;
    QTest::newRow("width in percent of the diagonal") << "stroke='red' stroke-width='20%'" << beside << true;
    QTest::newRow("width in em") << "stroke='red' stroke-width='2em' font-size='10'" << beside << true;
    QTest::newRow("negative width is refused") << "stroke='red' stroke-width='-20'" << beside << false;
    QTest::newRow("butt") << "stroke='red' stroke-width='20'" << before << false;
    QTest::newRow("round") << "stroke='red' stroke-width='20' stroke-linecap='round'" << before << true;
    QTest::newRow("round has no corner")
        << "stroke='red' stroke-width='20' stroke-linecap='round'" << cornerOfCap << false;
    QTest::newRow("square") << "stroke='red' stroke-width='20' stroke-linecap='square'" << cornerOfCap << true;
    QTest::newRow("stroke-opacity of 0") << "stroke='red' stroke-width='20' stroke-opacity='0'" << beside << false;
}

void TestStyle::strokeDetails()
{
    QFETCH(QString, attributes);
    QFETCH(QPoint, place);
    const QImage image = drawnContent(QStringLiteral("<line x1='30' y1='50' x2='70' y2='50' %1/>").arg(attributes));
    QTEST(image.pixelColor(place).alpha() == 255, "painted");
}

void TestStyle::strokeOfNoWidthDrawsNothing()
{
    const QImage image = drawnContent("<path d='M10 50H90' stroke='red' stroke-width='0' fill='none'/>");
    QCOMPARE(image, drawnContent(""));
}

void TestStyle::miterLimitCutsSharpCorners()
{
    // A right angle at (80, 20): the miter's tip stands at (90, 10), its length is 1.41 widths.
    const QString corner = "<path d='M20 20H80V80' fill='none' stroke='red' stroke-width='20' %1/>";
    QCOMPARE(drawnContent(corner.arg("")).pixelColor(88, 12).alpha(), 255);
    QCOMPARE(drawnContent(corner.arg("stroke-miterlimit='1.3'")).pixelColor(88, 12).alpha(), 0);
    QCOMPARE(drawnContent(corner.arg("stroke-linejoin='bevel'")).pixelColor(88, 12).alpha(), 0);
    QCOMPARE(drawnContent(corner.arg("stroke-linejoin='round'")).pixelColor(88, 12).alpha(), 0);
    QCOMPARE(drawnContent(corner.arg("stroke-linejoin='round'")).pixelColor(86, 14).alpha(), 255);
    QCOMPARE(drawnContent(corner.arg("stroke-linejoin='bevel'")).pixelColor(86, 14).alpha(), 0);
}

void TestStyle::dashesLeaveGaps()
{
    const QString line = "<path d='M0 50H100' stroke='red' stroke-width='10' stroke-dasharray='%1'/>";
    const QImage image = drawnContent(line.arg("20 10"));
    QCOMPARE(image.pixelColor(10, 50).alpha(), 255);
    QCOMPARE(image.pixelColor(25, 50).alpha(), 0);
    QCOMPARE(image.pixelColor(40, 50).alpha(), 255);
    // An odd pattern is repeated: 20 on, 20 off, and so on.
    const QImage odd = drawnContent(line.arg("20"));
    QCOMPARE(odd.pixelColor(30, 50).alpha(), 0);
    QCOMPARE(odd.pixelColor(50, 50).alpha(), 255);
    QCOMPARE(drawnContent(line.arg("0 0")).pixelColor(25, 50).alpha(), 255);
    QCOMPARE(drawnContent(line.arg("20 -10")).pixelColor(25, 50).alpha(), 255);
}

void TestStyle::dashOffsetMovesTheGaps()
{
    const QImage image = drawnContent(
        "<path d='M0 50H100' stroke='red' stroke-width='10' stroke-dasharray='20 10' stroke-dashoffset='20'/>");
    QCOMPARE(image.pixelColor(5, 50).alpha(), 0);
    QCOMPARE(image.pixelColor(25, 50).alpha(), 255);
}

void TestStyle::fillRuleDecidesHoles()
{
    const QString squares = "<path d='M0 0H100V100H0z M30 30H70V70H30z' fill='red' %1/>";
    QCOMPARE(drawnContent(squares.arg("")).pixelColor(50, 50).alpha(), 255);
    QCOMPARE(drawnContent(squares.arg("fill-rule='evenodd'")).pixelColor(50, 50).alpha(), 0);
}

void TestStyle::groupOpacityFadesThePictureAsOne()
{
    const QColor found = middle("<g opacity='0.2'>" + square("fill='blue'") + square("fill='red'") + "</g>");
    // Of two layers of 0.2 each the blue one would show through.
    QVERIFY(isFaintly(found, Qt::red));
}

void TestStyle::nodeOpacityFadesFillAndStrokeAsOne()
{
    const QImage image = drawnContent("<rect x='20' y='20' width='60' height='60' fill='blue' stroke='red' "
                                      "stroke-width='20' opacity='0.2'/>");
    // Inside the rectangle, where the stroke lies over the fill.
    QVERIFY(isFaintly(image.pixelColor(25, 50), Qt::red));
    QVERIFY(isFaintly(image.pixelColor(50, 50), Qt::blue));
}

void TestStyle::visibilityMayBeTakenBackByAChild()
{
    QCOMPARE(middle("<g visibility='hidden'>" + square("fill='red' visibility='visible'") + "</g>").alpha(), 255);
    QCOMPARE(middle("<g visibility='hidden'>" + square("fill='red'") + "</g>").alpha(), 0);
}

void TestStyle::displayCannotBeTakenBack()
{
    QCOMPARE(middle("<g display='none'>" + square("fill='red' display='inline'") + "</g>").alpha(), 0);
}

void TestStyle::visibilityFlag()
{
    const DocumentPointer document =
        loadContent("<g id='g' visibility='hidden'><rect id='a'/><rect id='b' visibility='visible'/></g>"
                    "<g id='h' display='none'><rect id='c'/></g>");
    QVERIFY(document->namedNode("g")->isVisible());
    QVERIFY(!document->namedNode("a")->isVisible());
    QVERIFY(document->namedNode("b")->isVisible());
    QVERIFY(!document->namedNode("h")->isVisible());
    QVERIFY(document->namedNode("c")->isVisible());
}

QTEST_MAIN(TestStyle)
#include "test_style.moc"

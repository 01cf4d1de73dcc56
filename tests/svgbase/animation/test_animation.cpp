#include "svgbase/animation/animatedattributes.h"

#include <support/virtualtime.h>

#include <QtTest>

using namespace Svg;

namespace {

/// A square of 10 with animation elements in it.
DocumentPointer square(const QString &animations, const QString &more = QString())
{
    return loadContent(
        QStringLiteral("<rect id='t' x='10' y='20' width='10' height='10' %2>%1</rect>").arg(animations, more));
}

double xAt(QZeSvgTinyDocument &document, double seconds)
{
    return shownAt(document, seconds).bounds().x();
}

} // namespace

class TestAnimation : public QObject
{
    Q_OBJECT

private slots:
    void attributesMoveWithTheClock();
    void nothingMovesBeforeTheClockIsUsed();
    void attributesReadAsTheyAreWritten();
    void theDrawingShowsTheMoment();
    void framesHoldNoTexts();
    void theElementComesBackAfterwards();
    void targetsByReference();
    void targetsThatAreNone();
    void setReplacesAValue();
    void propertiesLieOverStyleAttributes();
    void propertiesAreInherited();
    void inheritedValuesAreReadFromTheParent();
    void colorsAreAnimated();
    void toStartsFromTheComputedValue();
    void laterBeginsLieHigher();
    void documentOrderBreaksTies();
    void additiveAnimationsStack();
    void transformsReplace();
    void transformsAreAppended();
    void gradientTransforms();
    void gradientsAndStops();
    void textOfAWholeMoves();
    void usedElementsMove();
    void viewBoxOfTheRoot();
    void displayAndVisibility();
    void changedAttributesShow();
    void changedAnimationsShow();
    void removedAnimationsStop();
    void documentWideFillStaysUnderAnimation();
    void documentWideStrokeIsKept();
    void clonesHaveTheirOwnClock();
    void aMomentThatChangesNothingIsTheSameDrawing();
    void unaffectedNodesKeepTheirFacts();
    void theClockRunsBetweenStartAndStop();
    void timesThatAreNoNumber();
    void animationOfAnimationIsRefused();
    void manyAnimations();
};

void TestAnimation::attributesMoveWithTheClock()
{
    const DocumentPointer document = square("<animate attributeName='x' from='0' to='80' begin='1s' dur='4s'/>");
    QVERIFY(document->animated());
    QCOMPARE(xAt(*document, 0), 10.0);
    QCOMPARE(xAt(*document, 1), 0.0);
    QCOMPARE(xAt(*document, 2), 20.0);
    QCOMPARE(xAt(*document, 4.5), 70.0);
    QCOMPARE(xAt(*document, 5), 10.0);
    QCOMPARE(xAt(*document, 3), 40.0);
}

void TestAnimation::nothingMovesBeforeTheClockIsUsed()
{
    const DocumentPointer document = square("<set attributeName='x' to='50'/>");
    QCOMPARE(drawn(*document).pixelColor(15, 25).alpha(), 255);
    document->setAnimationTime(0);
    QCOMPARE(drawn(*document).pixelColor(15, 25).alpha(), 0);
    QCOMPARE(drawn(*document).pixelColor(55, 25).alpha(), 255);
}

void TestAnimation::attributesReadAsTheyAreWritten()
{
    const DocumentPointer document = square("<animate attributeName='x' from='0' to='80' dur='4s'/>"
                                            "<set attributeName='fill' to='red'/>");
    document->setAnimationTime(2);
    const QZeSvgNode *node = document->namedNode("t");
    QCOMPARE(node->attribute("x"), QString("10"));
    QCOMPARE(node->attribute("fill"), QString());
    QCOMPARE(node->boundingRect(), QRectF(10, 20, 10, 10));
    QCOMPARE(ShownNode(*document, "t").bounds(), QRectF(40, 20, 10, 10));
}

void TestAnimation::theDrawingShowsTheMoment()
{
    const DocumentPointer document =
        square("<animate attributeName='x' from='0' to='80' dur='4s' fill='freeze'/>", "fill='#00f'");
    for (const double seconds : {1.0, 2.0, 3.0, 4.0, 1.0}) {
        document->setAnimationTime(seconds);
        QCOMPARE(drawn(*document),
                 drawnContent(
                     QStringLiteral("<rect x='%1' y='20' width='10' height='10' fill='#00f'/>").arg(seconds * 20)));
    }
}

void TestAnimation::framesHoldNoTexts()
{
    const DocumentPointer document = loadContent(
        "<path id='t' d='M0 0L9 9' transform='scale(2)'><animate attributeName='d' to='M4 4L8 8' dur='4s'/>"
        "<animate attributeName='fill' from='#000' to='#0f0' dur='4s'/>"
        "<animate attributeName='opacity' from='0' to='1' dur='4s'/>"
        "<animate attributeName='stroke-dasharray' from='1 2' to='3 4' dur='4s'/>"
        "<animate attributeName='pathLength' from='10' to='30' dur='4s'/>"
        "<animateTransform attributeName='transform' type='rotate' from='0' to='80' dur='4s' "
        "additive='sum'/></path>"
        "<polygon id='p' points='0 0 4 0 4 4'><animate attributeName='points' to='8 8 4 0 4 4' "
        "dur='4s'/></polygon>");
    document->setAnimationTime(2);
    const Tree &tree = DocumentPrivate::of(document.get())->shown().tree();
    const NodeIndex path = tree.findId("t");
    const Attributes &attributes = tree.node(path).attributes;
    QCOMPARE(attributes.held(AttributeId::D).as<PathValue>()->coordinates, QVector<double>({2, 2, 8.5, 8.5}));
    QCOMPARE(*attributes.held(AttributeId::PathLength).asNumber(), 20.0);
    const auto *transforms = attributes.held(AttributeId::Transform).as<TransformList>();
    QCOMPARE(transforms->size(), 2);
    QCOMPARE(transforms->last().arguments[0], 40.0);
    const Attributes styles = tree.animatedStyle(path);
    QCOMPARE(*styles.held(AttributeId::Fill).as<QColor>(), QColor(0, 128, 0));
    QCOMPARE(*styles.held(AttributeId::Opacity).asNumber(), 0.5);
    QCOMPARE(styles.held(AttributeId::StrokeDasharray).as<QVector<Length>>()->last().value, 3.0);
    const Attributes &polygon = tree.node(tree.findId("p")).attributes;
    QCOMPARE(polygon.held(AttributeId::Points).as<QVector<Length>>()->first().value, 4.0);
    QCOMPARE(ShownNode(*document, "t").attribute("d"), QString("M 2 2L 8.5 8.5"));
}

void TestAnimation::theElementComesBackAfterwards()
{
    const DocumentPointer document = square("<animate attributeName='x' from='0' to='80' dur='4s'/>"
                                            "<animate attributeName='opacity' values='0;1' dur='4s'/>"
                                            "<animateTransform attributeName='transform' type='scale' to='2' "
                                            "dur='4s'/><animateMotion to='5,5' dur='4s'/>",
                                            "fill='#00f'");
    const QImage before = drawn(*document);
    document->setAnimationTime(1);
    QVERIFY(drawn(*document) != before);
    document->setAnimationTime(4);
    QCOMPARE(drawn(*document), before);
}

void TestAnimation::targetsByReference()
{
    for (const char *name : {"href", "xlink:href"}) {
        const DocumentPointer document =
            loadContent(QStringLiteral("<rect id='t' width='10' height='10'/><circle r='5'>"
                                       "<animate %1='#t' attributeName='x' from='0' to='80' dur='4s'/></circle>")
                            .arg(QLatin1String(name)));
        QCOMPARE(xAt(*document, 1), 20.0);
    }
}

void TestAnimation::targetsThatAreNone()
{
    const DocumentPointer document = square("<animate href='#nobody' attributeName='x' from='0' to='80' dur='4s'/>"
                                            "<animate from='0' to='80' dur='4s'/>"
                                            "<animate attributeName='id' from='0' to='80' dur='4s'/>"
                                            "<animate attributeName='nothing' from='0' to='80' dur='4s'/>"
                                            "<animate attributeName='transform' from='0' to='80' dur='4s'/>");
    QCOMPARE(xAt(*document, 1), 10.0);
    QCOMPARE(ShownNode(*document, "t").attribute("transform"), QString());
}

void TestAnimation::setReplacesAValue()
{
    const DocumentPointer document =
        square("<set attributeName='x' to='70' begin='1s' end='3s'/><set attributeName='width' begin='2s'/>");
    QCOMPARE(xAt(*document, 0.5), 10.0);
    QCOMPARE(xAt(*document, 2), 70.0);
    QCOMPARE(ShownNode(*document, "t").bounds().width(), 10.0);
    QCOMPARE(xAt(*document, 3), 10.0);
}

void TestAnimation::propertiesLieOverStyleAttributes()
{
    const DocumentPointer document = square("<animate attributeName='opacity' from='0' to='1' dur='4s'/>"
                                            "<animate attributeName='stroke-width' from='0' to='8' dur='4s'/>",
                                            "style='opacity:0.1;stroke-width:2;stroke:#f00' stroke-width='1'");
    QCOMPARE(shownAt(*document, 1).style().opacity, 0.25);
    QCOMPARE(ShownNode(*document, "t").style().strokeWidth, 2.0);
    QCOMPARE(shownAt(*document, 3).style().strokeWidth, 6.0);
    QCOMPARE(ShownNode(*document, "t").style().stroke.color, QColor(255, 0, 0));
    QCOMPARE(shownAt(*document, 4).style().opacity, 0.1);
    QCOMPARE(ShownNode(*document, "t").style().strokeWidth, 2.0);
}

void TestAnimation::propertiesAreInherited()
{
    const DocumentPointer document = loadContent("<g><set attributeName='fill' to='#0f0'/>"
                                                 "<rect id='t' width='10' height='10'/></g>");
    QCOMPARE(shownAt(*document, 0).style().fill.color, QColor(0, 255, 0));
}

void TestAnimation::inheritedValuesAreReadFromTheParent()
{
    const DocumentPointer document =
        loadContent("<g opacity='0.5' stroke-width='10'><rect id='t' width='10' height='10' stroke-width='0'>"
                    "<animate attributeName='stroke-width' from='0' to='inherit' dur='2s'/></rect></g>");
    QCOMPARE(shownAt(*document, 1).style().strokeWidth, 5.0);
}

void TestAnimation::colorsAreAnimated()
{
    for (const char *element : {"animate", "animateColor"}) {
        const DocumentPointer document =
            square(QStringLiteral("<%1 attributeName='fill' values='#000;#f00;#fff' dur='4s'/>")
                       .arg(QLatin1String(element)));
        QCOMPARE(shownAt(*document, 2).style().fill.color, QColor(255, 0, 0));
        QCOMPARE(shownAt(*document, 3).style().fill.color, QColor(255, 128, 128));
    }
}

void TestAnimation::toStartsFromTheComputedValue()
{
    const DocumentPointer document =
        loadContent("<g fill='#000080' stroke-width='4'><rect id='t' width='10' height='10'>"
                    "<animate attributeName='fill' to='#800000' dur='4s'/>"
                    "<animate attributeName='stroke-width' by='8' dur='4s'/></rect></g>");
    QCOMPARE(shownAt(*document, 2).style().fill.color, QColor(64, 0, 64));
    QCOMPARE(ShownNode(*document, "t").style().strokeWidth, 8.0);
}

void TestAnimation::laterBeginsLieHigher()
{
    const DocumentPointer document = square("<set attributeName='x' to='50' begin='2s' dur='2s'/>"
                                            "<set attributeName='x' to='30' begin='1s'/>");
    QCOMPARE(xAt(*document, 1), 30.0);
    QCOMPARE(xAt(*document, 2), 50.0);
    QCOMPARE(xAt(*document, 4), 30.0);
}

void TestAnimation::documentOrderBreaksTies()
{
    const DocumentPointer document = square("<set attributeName='x' to='50'/><set attributeName='x' to='30'/>");
    QCOMPARE(xAt(*document, 1), 30.0);
}

void TestAnimation::additiveAnimationsStack()
{
    const DocumentPointer document =
        square("<animate attributeName='x' from='0' to='40' dur='4s'/>"
               "<animate attributeName='x' from='5' to='9' dur='4s' additive='sum' fill='freeze'/>");
    QCOMPARE(xAt(*document, 2), 27.0);
    QCOMPARE(xAt(*document, 5), 19.0);
    // "to" goes from whatever lies under it at that moment.
    const DocumentPointer blended = square("<animate attributeName='x' from='0' to='40' dur='4s'/>"
                                           "<animate attributeName='x' to='100' dur='4s'/>");
    QCOMPARE(xAt(*blended, 2), 60.0);
}

void TestAnimation::transformsReplace()
{
    const DocumentPointer document = square("<animateTransform attributeName='transform' type='translate' from='0' "
                                            "to='40 20' dur='4s'/>",
                                            "transform='scale(3)'");
    QCOMPARE(shownAt(*document, 2).mapped(10, 20), QPointF(30, 30));
    QCOMPARE(shownAt(*document, 4).mapped(10, 20), QPointF(30, 60));
    const DocumentPointer turned =
        square("<animateTransform attributeName='transform' type='rotate' from='0 10 20' "
               "to='180 10 20' dur='2s'/>");
    const QPointF corner = shownAt(*turned, 1).mapped(20, 20);
    QVERIFY(qAbs(corner.x() - 10) < 1e-9 && qAbs(corner.y() - 30) < 1e-9);
}

void TestAnimation::transformsAreAppended()
{
    const DocumentPointer document =
        square("<animateTransform attributeName='transform' type='translate' to='10' dur='2s' additive='sum'/>"
               "<animateTransform attributeName='transform' type='translate' from='0' to='10' dur='2s' "
               "additive='sum' fill='freeze'/>"
               "<animateTransform attributeName='transform' type='scale' from='1' to='3' dur='2s' additive='sum' "
               "fill='freeze'/>",
               "transform='translate(1 2) scale(2)'");
    // "to" alone is not additive: it replaces the attribute by translate(5).
    QCOMPARE(shownAt(*document, 1).mapped(1, 1), QPointF(5 + 5 + 2, 2));
    // Afterwards the attribute is back: translate(1 2) scale(2) translate(10) scale(3).
    QCOMPARE(shownAt(*document, 2).mapped(1, 1), QPointF(1 + 2 * (10 + 3), 2 + 2 * 3));
}

void TestAnimation::gradientTransforms()
{
    const DocumentPointer document = loadContent(
        "<linearGradient id='g' gradientUnits='userSpaceOnUse' x1='0' x2='50'>"
        "<stop stop-color='#f00' offset='0.5'/><stop stop-color='#00f' offset='0.5'/>"
        "<animateTransform attributeName='gradientTransform' type='translate' from='0' to='50' dur='2s'/>"
        "</linearGradient><rect width='100' height='100' fill='url(#g)'/>");
    document->setAnimationTime(0);
    QCOMPARE(drawn(*document).pixelColor(40, 50), QColor(0, 0, 255));
    document->setAnimationTime(1);
    QCOMPARE(drawn(*document).pixelColor(40, 50), QColor(255, 0, 0));
    QCOMPARE(drawn(*document).pixelColor(60, 50), QColor(0, 0, 255));
}

void TestAnimation::gradientsAndStops()
{
    const DocumentPointer document =
        loadContent("<linearGradient id='g'><stop stop-color='#f00'>"
                    "<animate attributeName='stop-color' values='#000;#0f0' dur='2s' fill='freeze'/></stop>"
                    "</linearGradient><rect width='100' height='100' fill='url(#g)'/>");
    document->setAnimationTime(0);
    QCOMPARE(drawn(*document).pixelColor(50, 50), QColor(0, 0, 0));
    document->setAnimationTime(2);
    QCOMPARE(drawn(*document).pixelColor(50, 50), QColor(0, 255, 0));
}

void TestAnimation::textOfAWholeMoves()
{
    const DocumentPointer document =
        loadContent("<text id='t' font-family='DejaVu Sans' x='0' y='50'>A<tspan x='10'>B"
                    "<animate attributeName='x' from='10' to='60' dur='2s'/></tspan></text>");
    const double before = document->namedNode("t")->boundingRect().right();
    QCOMPARE(shownAt(*document, 1).bounds().right(), before + 25);
}

void TestAnimation::usedElementsMove()
{
    const DocumentPointer document =
        loadContent("<defs><rect id='a' width='10' height='10' fill='#f00'>"
                    "<animate attributeName='x' from='0' to='40' dur='2s'/></rect></defs>"
                    "<use href='#a' y='50'><animate attributeName='y' from='0' to='80' "
                    "dur='2s'/></use>");
    document->setAnimationTime(1);
    QCOMPARE(drawn(*document), drawnContent("<rect x='20' y='40' width='10' height='10' fill='#f00'/>"));
}

void TestAnimation::viewBoxOfTheRoot()
{
    const DocumentPointer document =
        loadContent("<animate attributeName='viewBox' from='0 0 100 100' to='40 40 20 20' dur='2s' fill='freeze'/>"
                    "<rect x='50' y='50' width='5' height='5' fill='#f00'/>");
    document->setAnimationTime(2);
    QCOMPARE(drawn(*document), drawnContent("<rect x='50' y='50' width='25' height='25' fill='#f00'/>"));
    QCOMPARE(document->viewBox(), QRectF(0, 0, 100, 100));
    QCOMPARE(document->attribute("viewBox"), QString("0 0 100 100"));
}

void TestAnimation::displayAndVisibility()
{
    const DocumentPointer document =
        square("<animate attributeName='display' values='inline;none' dur='2s'/>"
               "<animate attributeName='visibility' values='hidden;visible' dur='4s' begin='2s'/>");
    QVERIFY(shownAt(*document, 0.9).facts()->displayed);
    QVERIFY(!shownAt(*document, 1).facts()->displayed);
    QVERIFY(shownAt(*document, 2).facts()->displayed);
    QVERIFY(!ShownNode(*document, "t").style().visible);
    QVERIFY(shownAt(*document, 4).style().visible);
}

void TestAnimation::changedAttributesShow()
{
    const DocumentPointer document = square("<animate attributeName='x' by='40' dur='4s'/>");
    QCOMPARE(xAt(*document, 1), 20.0);
    document->namedNode("t")->setAttribute("x", "30");
    document->namedNode("t")->setNumericAttribute("y", 5);
    document->setAnimationTime(1);
    QCOMPARE(ShownNode(*document, "t").bounds(), QRectF(40, 5, 10, 10));
    QCOMPARE(document->namedNode("t")->boundingRect(), QRectF(30, 5, 10, 10));
    // The animation overrides the attribute until it ends.
    const DocumentPointer replaced = square("<set attributeName='x' to='40' end='4s'/>");
    document->setAnimationTime(1);
    replaced->namedNode("t")->setAttribute("x", "30");
    QCOMPARE(xAt(*replaced, 1), 40.0);
    QCOMPARE(xAt(*replaced, 4), 30.0);
}

void TestAnimation::changedAnimationsShow()
{
    const DocumentPointer document = square("<animate id='a' attributeName='x' from='0' to='40' dur='4s'/>");
    QCOMPARE(xAt(*document, 2), 20.0);
    document->namedNode("a")->setAttribute("dur", "8s");
    QCOMPARE(xAt(*document, 2), 10.0);
    document->namedNode("a")->setAttribute("attributeName", "y");
    QCOMPARE(xAt(*document, 2), 10.0);
    QCOMPARE(ShownNode(*document, "t").bounds().y(), 10.0);
}

void TestAnimation::removedAnimationsStop()
{
    const DocumentPointer document = loadContent("<g id='g'><rect id='t' x='10' width='10' height='10'/>"
                                                 "<g id='h'><set href='#t' attributeName='x' to='40'/></g></g>");
    QCOMPARE(xAt(*document, 1), 40.0);
    static_cast<QZeSvgStructureNode *>(document->namedNode("g"))->removeChild(document->namedNode("h"));
    QCOMPARE(xAt(*document, 1), 10.0);
}

void TestAnimation::documentWideFillStaysUnderAnimation()
{
    const DocumentPointer document = square("<set attributeName='fill' to='#0f0' begin='1s' end='2s'/>");
    document->setAllFillBrush(QColor(255, 0, 0));
    document->setAnimationTime(0);
    QCOMPARE(drawn(*document).pixelColor(15, 25), QColor(255, 0, 0));
    document->setAnimationTime(1);
    QCOMPARE(drawn(*document).pixelColor(15, 25), QColor(0, 255, 0));
    document->setAnimationTime(2);
    QCOMPARE(drawn(*document).pixelColor(15, 25), QColor(255, 0, 0));
}

void TestAnimation::documentWideStrokeIsKept()
{
    const DocumentPointer document =
        square("<set attributeName='fill' to='#0f0'/>", "style='stroke:#00f;stroke-width:4'");
    document->setAllStrokeColor(QColor(255, 0, 0));
    document->setAnimationTime(0);
    QCOMPARE(drawn(*document).pixelColor(10, 25), QColor(255, 0, 0));
    QCOMPARE(drawn(*document).pixelColor(15, 25), QColor(0, 255, 0));
}

void TestAnimation::clonesHaveTheirOwnClock()
{
    const DocumentPointer document = square("<animate attributeName='x' from='0' to='40' dur='4s'/>");
    document->setAnimationTime(1);
    const DocumentPointer copy(static_cast<QZeSvgTinyDocument *>(document->clone()));
    QVERIFY(copy->animated());
    QCOMPARE(copy->animationTime(), 0.0);
    QCOMPARE(xAt(*copy, 3), 30.0);
    QCOMPARE(ShownNode(*document, "t").bounds().x(), 10.0);
    QCOMPARE(xAt(*document, 2), 20.0);
    QCOMPARE(ShownNode(*copy, "t").bounds().x(), 30.0);
}

void TestAnimation::aMomentThatChangesNothingIsTheSameDrawing()
{
    const DocumentPointer document = square("<animate attributeName='x' from='0' to='40' begin='1s' dur='4s' "
                                            "fill='freeze'/><animate attributeName='y' values='20;20' dur='90s'/>");
    document->setAnimationTime(0);
    QVERIFY(!document->setAnimationTime(0.5));
    QVERIFY(document->setAnimationTime(1));
    QVERIFY(document->setAnimationTime(2));
    QVERIFY(!document->setAnimationTime(2));
    QVERIFY(document->setAnimationTime(5));
    QVERIFY(!document->setAnimationTime(50));
    const DocumentPointer still = square(QString());
    QVERIFY(!still->animated());
    QVERIFY(!still->setAnimationTime(5));
}

void TestAnimation::unaffectedNodesKeepTheirFacts()
{
    const DocumentPointer document = loadContent("<rect id='a' width='10' height='10'/><rect id='t' width='10'>"
                                                 "<animate attributeName='x' from='0' to='40' dur='4s'/></rect>");
    document->setAnimationTime(1);
    const FactsPointer still = ShownNode(*document, "a").facts();
    const FactsPointer moving = ShownNode(*document, "t").facts();
    document->setAnimationTime(2);
    QVERIFY(ShownNode(*document, "a").facts() == still);
    QVERIFY(ShownNode(*document, "t").facts() != moving);
}

void TestAnimation::theClockRunsBetweenStartAndStop()
{
    const DocumentPointer document = square("<animate attributeName='x' from='0' to='40' dur='4s'/>");
    QCOMPARE(document->animationTime(), 0.0);
    document->startAnimate();
    support::pass(7);
    QCOMPARE(document->animationTime(), 0.007);
    document->setAnimationTime(1000);
    support::pass(20);
    QCOMPARE(document->animationTime(), 1000.02);
    document->stopAnimate();
    support::pass(500);
    QCOMPARE(document->animationTime(), 1000.02);
    document->startAnimate();
    support::pass(3);
    QCOMPARE(document->animationTime(), 1000.023);
}

void TestAnimation::timesThatAreNoNumber()
{
    const DocumentPointer document =
        square("<animate attributeName='x' from='0' to='40' dur='4s' repeatCount='indefinite' accumulate='sum'/>");
    document->setAnimationTime(1);
    QVERIFY(!document->setAnimationTime(qQNaN()));
    QCOMPARE(document->animationTime(), 1.0);
    document->setAnimationTime(-1e300);
    QCOMPARE(ShownNode(*document, "t").bounds().x(), 10.0);
    document->setAnimationTime(qInf());
    QVERIFY(qIsFinite(ShownNode(*document, "t").bounds().x()));
    QVERIFY(!drawn(*document).isNull());
}

void TestAnimation::animationOfAnimationIsRefused()
{
    const DocumentPointer document = square("<animate id='a' attributeName='x' from='0' to='40' dur='4s'>"
                                            "<set attributeName='to' to='100'/></animate>");
    QCOMPARE(xAt(*document, 1), 10.0);
}

void TestAnimation::manyAnimations()
{
    QString content;
    for (int i = 0; i < 20000; ++i)
        content += QStringLiteral("<set id='a%1' href='#t' attributeName='x' begin='a%2.begin' to='%1'/>")
                       .arg(i)
                       .arg(i + 1);
    content += QStringLiteral("<set id='a20000' href='#t' attributeName='y' to='3' begin='1s'/>"
                              "<rect id='t' width='5' height='5'/>");
    const DocumentPointer document = loadContent(content);
    QCOMPARE(shownAt(*document, 1).bounds().topLeft(), QPointF(19999, 3));
}

QTEST_MAIN(TestAnimation)
#include "test_animation.moc"

#include "document/documentprivate.h"
#include "grammar/inputlimits.h"
#include "svgbase/svgdrawing.h"

#include <support/listed.h>

#include <QtTest>

using namespace Svg;

namespace {

QZeSvgStructureNode *group(QZeSvgTinyDocument &document, const QString &id)
{
    return dynamic_cast<QZeSvgStructureNode *>(document.namedNode(id));
}

QStringList childIds(const QZeSvgStructureNode &node)
{
    QStringList ids;
    for (const QZeSvgNode *child : support::listed(node.children()))
        ids.append(child->nodeId());
    return ids;
}

} // namespace

class TestDocument : public QObject
{
    Q_OBJECT

private slots:
    void namedLookupFindsDefinitionsAndTheRoot();
    void namedLookupGivesTheFirstOfTwo();
    void namedLookupFollowsAChangedId();
    void nodeObjectsStayTheSame();
    void attributesReadBackAsWritten();
    void numericAttributesReadBackExactly_data();
    void numericAttributesReadBackExactly();
    void numbersBecomeTextWhenTheyAreAskedFor();
    void rectangleBoundsFollowAtOnce();
    void ellipseIsPlacedByTheCornerOfItsBox();
    void circleIsPlacedByTheCornerOfItsBox();
    void radiiOfARectangleAreCornerRadii();
    void notFiniteNumbersAreIgnored();
    void negativeSizesCountAsNone();
    void boundsFollowATransformAbove();
    void changedViewBoxAttributeCounts();
    void nullViewBoxIsSettledOnce();
    void emptyDocumentHasANullViewBox();
    void movingFreedomIsAnAttribute();
    void cloneIsAnUnlinkedCopyUnderTheSameParent();
    void cloneTakesChildrenAttributesStylingAndFlags();
    void cloneIsIndependent();
    void cloneMayBeDeletedUnused();
    void cloneMayOutliveItsDocument();
    void clonesReusePlaces();
    void cloneOfTheDocumentIsADocument();
    void addedNodeHasItsIdAndIsFound();
    void addedNodeIsDrawnLast();
    void addingMovesAChild();
    void addingRefusesNullAncestorsAndStrangers();
    void addingRefusesToNestTooDeeply();
    void removedNodeStaysAlive();
    void removedNodeCanBeAddedAgain();
    void removingAStrangerDoesNothing();
    void removingDoesNotCountForGrandchildren();
    void strokeWidthIsTheResolvedOne();
};

void TestDocument::namedLookupFindsDefinitionsAndTheRoot()
{
    const DocumentPointer document(QZeSvgTinyDocument::load(
        "<svg id='root'><defs id='d'><linearGradient id='g'/></defs><rect id='control_1'/></svg>"));
    QCOMPARE(document->namedNode("root"), static_cast<QZeSvgNode *>(document.get()));
    QVERIFY(document->namedNode("d"));
    QVERIFY(document->namedNode("g"));
    QVERIFY(document->namedNode("control_1"));
    QVERIFY(!document->namedNode("other"));
    QVERIFY(!document->namedNode(""));
    QVERIFY(!document->namedNode(QString()));
}

void TestDocument::namedLookupGivesTheFirstOfTwo()
{
    const DocumentPointer document = loadContent("<g><rect id='a' width='1'/></g><rect id='a' width='2'/>");
    QCOMPARE(document->namedNode("a")->attribute("width"), QStringLiteral("1"));
}

void TestDocument::namedLookupFollowsAChangedId()
{
    const DocumentPointer document = loadContent("<rect id='a'/>");
    QZeSvgNode *node = document->namedNode("a");
    node->setAttribute("id", "b");
    QVERIFY(!document->namedNode("a"));
    QCOMPARE(document->namedNode("b"), node);
    QCOMPARE(node->nodeId(), QStringLiteral("b"));
}

void TestDocument::nodeObjectsStayTheSame()
{
    const DocumentPointer document = loadContent("<g id='g'><rect id='a'/></g>");
    QZeSvgNode *node = document->namedNode("a");
    QCOMPARE(document->namedNode("a"), node);
    QCOMPARE(group(*document, "g")->children().constFirst(), node);
    QCOMPARE(node->parent(), group(*document, "g"));
}

void TestDocument::attributesReadBackAsWritten()
{
    const DocumentPointer document = loadContent("<rect id='a' width='3' note='old'/>");
    QZeSvgNode *node = document->namedNode("a");
    node->setAttribute("note", "new");
    node->setAttribute("other", " spaced ");
    node->setAttribute("width", "wide");
    QCOMPARE(node->attribute("note"), QStringLiteral("new"));
    QCOMPARE(node->attribute("other"), QStringLiteral(" spaced "));
    QCOMPARE(node->attribute("width"), QStringLiteral("wide"));
    QCOMPARE(node->boundingRect(), QRectF());
}

void TestDocument::numericAttributesReadBackExactly_data()
{
    QTest::addColumn<QString>("element");
    QTest::addColumn<QString>("name");
    for (const char *element : {"rect", "ellipse", "circle", "path", "g"})
        for (const char *name : {"x", "y", "width", "height", "rx", "ry", "own"})
            QTest::addRow("%s %s", element, name) << QString::fromLatin1(element) << QString::fromLatin1(name);
}

void TestDocument::numericAttributesReadBackExactly()
{
    QFETCH(QString, element);
    QFETCH(QString, name);
    const DocumentPointer document = loadContent(QStringLiteral("<%1 id='a' cx='7' cy='9'/>").arg(element));
    QZeSvgNode *node = document->namedNode("a");
    for (const double value : {0.1, 1.0 / 3, 46.0, 1e20, 0.0}) {
        node->setNumericAttribute(name, value);
        QVERIFY(node->attribute(name).toDouble() == value);
    }
}

void TestDocument::numbersBecomeTextWhenTheyAreAskedFor()
{
    const DocumentPointer document =
        loadContent("<rect id='r' width='4' height='4'/><ellipse id='e' cx='5' cy='5' rx='5' ry='5'/>");
    document->namedNode("r")->setNumericAttribute("x", 12.5);
    document->namedNode("r")->setNumericAttribute("stroke-width", 3);
    document->namedNode("e")->setNumericAttribute("x", 10);
    Document &content = DocumentPrivate::of(document.get())->content;
    const auto number = [&content](const char *id, AttributeId attribute) {
        const double *held = content.tree().node(content.tree().findId(id)).attributes.held(attribute).asNumber();
        return held ? *held : qQNaN();
    };
    QCOMPARE(number("r", AttributeId::X), 12.5);
    QCOMPARE(number("r", AttributeId::StrokeWidth), 3.0);
    QCOMPARE(number("e", AttributeId::Cx), 15.0);
    QCOMPARE(document->namedNode("r")->boundingRect(), QRectF(12.5, 0, 4, 4));
    QCOMPARE(content.facts(content.tree().findId("r"))->style->strokeWidth, 3.0);
    QCOMPARE(document->namedNode("e")->boundingRect(), QRectF(10, 0, 10, 10));
    QCOMPARE(document->namedNode("r")->attribute("x"), QStringLiteral("12.5"));
    QVERIFY(document->toSvg().contains("x=\"12.5\""));
}

void TestDocument::rectangleBoundsFollowAtOnce()
{
    const DocumentPointer document = loadContent("<rect id='a' x='1' y='2' width='3' height='4'/>");
    QZeSvgNode *node = document->namedNode("a");
    QCOMPARE(node->boundingRect(), QRectF(1, 2, 3, 4));
    node->setNumericAttribute("x", 10.5);
    QCOMPARE(node->boundingRect(), QRectF(10.5, 2, 3, 4));
    node->setNumericAttribute("y", -5);
    QCOMPARE(node->boundingRect(), QRectF(10.5, -5, 3, 4));
    node->setNumericAttribute("width", 30);
    node->setNumericAttribute("height", 40);
    QCOMPARE(node->boundingRect(), QRectF(10.5, -5, 30, 40));
    QCOMPARE(document->transformedBounds(), QRectF(10.5, -5, 30, 40));
}

void TestDocument::ellipseIsPlacedByTheCornerOfItsBox()
{
    const DocumentPointer document = loadContent("<ellipse id='a' cx='10' cy='20' rx='5' ry='4'/>");
    QZeSvgNode *node = document->namedNode("a");
    node->setNumericAttribute("x", 50);
    QCOMPARE(node->boundingRect(), QRectF(50, 16, 10, 8));
    node->setNumericAttribute("y", 60);
    QCOMPARE(node->boundingRect(), QRectF(50, 60, 10, 8));
    node->setNumericAttribute("width", 30);
    QCOMPARE(node->boundingRect(), QRectF(50, 60, 30, 8));
    node->setNumericAttribute("height", 2);
    QCOMPARE(node->boundingRect(), QRectF(50, 60, 30, 2));
    node->setNumericAttribute("rx", 4);
    QCOMPARE(node->boundingRect(), QRectF(50, 60, 8, 2));
    node->setNumericAttribute("ry", 6);
    QCOMPARE(node->boundingRect(), QRectF(50, 60, 8, 12));
    QCOMPARE(node->attribute("cx"), QStringLiteral("54"));
    QCOMPARE(node->attribute("cy"), QStringLiteral("66"));
}

void TestDocument::circleIsPlacedByTheCornerOfItsBox()
{
    const DocumentPointer document = loadContent("<circle id='a' cx='10' cy='20' r='5'/>");
    QZeSvgNode *node = document->namedNode("a");
    node->setNumericAttribute("x", 50);
    node->setNumericAttribute("y", 60);
    QCOMPARE(node->boundingRect(), QRectF(50, 60, 10, 10));
    node->setNumericAttribute("width", 16);
    QCOMPARE(node->boundingRect(), QRectF(50, 60, 16, 16));
    node->setNumericAttribute("ry", 3);
    QCOMPARE(node->boundingRect(), QRectF(50, 60, 6, 6));
    QCOMPARE(node->attribute("r"), QStringLiteral("3"));
}

void TestDocument::radiiOfARectangleAreCornerRadii()
{
    const DocumentPointer document = loadContent("<rect id='a' width='100' height='100'/>");
    document->namedNode("a")->setNumericAttribute("rx", 40);
    document->namedNode("a")->setNumericAttribute("ry", 20);
    QCOMPARE(document->namedNode("a")->boundingRect(), QRectF(0, 0, 100, 100));
    QCOMPARE(drawn(*document), drawnContent("<rect width='100' height='100' rx='40' ry='20'/>"));
}

void TestDocument::notFiniteNumbersAreIgnored()
{
    const DocumentPointer document = loadContent("<rect id='a' x='1' width='3' height='4'/><circle id='b' r='2'/>");
    for (const double value : {qQNaN(), qInf(), -qInf()}) {
        for (const char *name : {"x", "y", "width", "height", "rx", "ry"}) {
            document->namedNode("a")->setNumericAttribute(name, value);
            document->namedNode("b")->setNumericAttribute(name, value);
        }
    }
    QCOMPARE(document->namedNode("a")->boundingRect(), QRectF(1, 0, 3, 4));
    QCOMPARE(document->namedNode("b")->boundingRect(), QRectF(-2, -2, 4, 4));
}

void TestDocument::negativeSizesCountAsNone()
{
    const DocumentPointer document =
        loadContent("<rect id='a' x='1' y='2' width='3' height='4'/><circle id='b' r='2'/>");
    document->namedNode("a")->setNumericAttribute("width", -7);
    QCOMPARE(document->namedNode("a")->boundingRect(), QRectF(1, 2, 0, 4));
    QCOMPARE(document->namedNode("a")->attribute("width"), QStringLiteral("-7"));
    document->namedNode("b")->setNumericAttribute("width", -7);
    QCOMPARE(document->namedNode("b")->boundingRect(), QRectF(-2, -2, 0, 0));
    QCOMPARE(drawn(*document), drawnContent(""));
}

void TestDocument::boundsFollowATransformAbove()
{
    const DocumentPointer document = loadContent("<g id='g'><g><rect id='a' width='3' height='4'/></g></g>");
    QZeSvgNode *node = document->namedNode("a");
    QCOMPARE(node->boundingRect(), QRectF(0, 0, 3, 4));
    document->namedNode("g")->setAttribute("transform", "translate(10 20) scale(2)");
    QCOMPARE(node->boundingRect(), QRectF(10, 20, 6, 8));
    document->namedNode("g")->setAttribute("transform", "");
    QCOMPARE(node->boundingRect(), QRectF(0, 0, 3, 4));
}

void TestDocument::changedViewBoxAttributeCounts()
{
    const DocumentPointer document = loadContent("<rect id='a' width='50%' height='50%'/>");
    document->setAttribute("viewBox", "0 0 40 20");
    QCOMPARE(document->viewBox(), QRectF(0, 0, 40, 20));
    QCOMPARE(document->namedNode("a")->boundingRect(), QRectF(0, 0, 20, 10));
}

void TestDocument::nullViewBoxIsSettledOnce()
{
    const DocumentPointer document(
        QZeSvgTinyDocument::load("<svg><rect id='a' x='1' y='2' width='3' height='4'/></svg>"));
    QCOMPARE(document->viewBox(), QRectF(1, 2, 3, 4));
    document->namedNode("a")->setNumericAttribute("width", 30);
    QCOMPARE(document->viewBox(), QRectF(1, 2, 3, 4));
    document->setViewBox(QRectF(5, 5, 0, 0));
    QCOMPARE(document->viewBox(), QRectF(1, 2, 30, 4));
    document->setViewBox(QRectF(5, 5, 0, 3));
    QCOMPARE(document->viewBox(), QRectF(5, 5, 0, 3));
}

void TestDocument::emptyDocumentHasANullViewBox()
{
    const DocumentPointer document(QZeSvgTinyDocument::load("<svg/>"));
    QCOMPARE(document->viewBox(), QRectF());
    QCOMPARE(document->transformedBounds(), QRectF());
}

void TestDocument::movingFreedomIsAnAttribute()
{
    const DocumentPointer document = loadContent(
        "<rect id='free'/><rect id='h' y_move='0'/><rect id='v' x_move=' 0 '/><rect id='one' x_move='1'/>");
    QVERIFY(document->namedNode("free")->canMoveHorizontally() && document->namedNode("free")->canMoveVertically());
    QVERIFY(document->namedNode("h")->canMoveHorizontally() && !document->namedNode("h")->canMoveVertically());
    QVERIFY(!document->namedNode("v")->canMoveHorizontally() && document->namedNode("v")->canMoveVertically());
    QVERIFY(document->namedNode("one")->canMoveHorizontally());
    document->namedNode("free")->setNumericAttribute("x_move", 0);
    QVERIFY(!document->namedNode("free")->canMoveHorizontally());
}

void TestDocument::cloneIsAnUnlinkedCopyUnderTheSameParent()
{
    const DocumentPointer document =
        loadContent("<g id='g' transform='translate(5 5)'><rect id='a' width='3' height='4'/></g>");
    const std::unique_ptr<QZeSvgNode> copy(document->namedNode("a")->clone());
    QCOMPARE(copy->type(), QZeSvgNode::Rect);
    QCOMPARE(copy->nodeId(), QStringLiteral("a"));
    QCOMPARE(copy->parent(), group(*document, "g"));
    QCOMPARE(copy->boundingRect(), QRectF(5, 5, 3, 4));
    QCOMPARE(childIds(*group(*document, "g")), QStringList({"a"}));
    QVERIFY(document->namedNode("a") != copy.get());
}

void TestDocument::cloneTakesChildrenAttributesStylingAndFlags()
{
    const DocumentPointer document = loadContent("<g id='g' own='1'><rect id='a' width='9' height='9' fill='red'/>"
                                                 "<g id='h'><rect id='b' x='20' width='9' height='9'/></g></g>");
    document->setAllFillBrush(QColor(Qt::blue));
    document->namedNode("b")->setFillEnabled(false);
    document->namedNode("b")->setNumericAttribute("x", 40);
    document->namedNode("g")->setStrokeEnabled(false);
    QZeSvgNode *copy = document->namedNode("g")->clone();
    document->addChild(copy, "copy");
    QCOMPARE(copy->attribute("own"), QStringLiteral("1"));
    QVERIFY(!copy->isStrokeEnabled() && copy->isFillEnabled());
    const auto *copiedGroup = dynamic_cast<QZeSvgStructureNode *>(copy);
    QVERIFY(copiedGroup);
    QCOMPARE(childIds(*copiedGroup), QStringList({"a", "h"}));
    const auto *inner = dynamic_cast<QZeSvgStructureNode *>(copiedGroup->children().constLast());
    QVERIFY(inner);
    QVERIFY(!inner->children().constFirst()->isFillEnabled());
    QCOMPARE(inner->children().constFirst()->boundingRect(), QRectF(40, 0, 9, 9));
    document->removeChild(document->namedNode("g"));
    QCOMPARE(drawn(*document).pixelColor(4, 4), QColor(0, 0, 255));
}

void TestDocument::cloneIsIndependent()
{
    const DocumentPointer document = loadContent("<rect id='a' width='3' height='4'/>");
    const std::unique_ptr<QZeSvgNode> copy(document->namedNode("a")->clone());
    copy->setNumericAttribute("width", 30);
    QCOMPARE(copy->boundingRect(), QRectF(0, 0, 30, 4));
    QCOMPARE(document->namedNode("a")->boundingRect(), QRectF(0, 0, 3, 4));
}

void TestDocument::cloneMayBeDeletedUnused()
{
    const DocumentPointer document = loadContent("<g id='g'><rect id='a' width='3' height='4'/></g>");
    auto *copy = dynamic_cast<QZeSvgStructureNode *>(document->namedNode("g")->clone());
    QVERIFY(copy);
    QCOMPARE(copy->children().size(), 1);
    delete copy;
    QCOMPARE(childIds(*document), QStringList({"g"}));
    QCOMPARE(document->namedNode("a")->boundingRect(), QRectF(0, 0, 3, 4));
}

void TestDocument::cloneMayOutliveItsDocument()
{
    DocumentPointer document = loadContent("<rect id='a' width='3' height='4'/>");
    const std::unique_ptr<QZeSvgNode> copy(document->namedNode("a")->clone());
    document.reset();
    copy->setNumericAttribute("x", 3);
    copy->setAttribute("y", "4");
    QVERIFY(copy->boundingRect().isNull());
    QVERIFY(copy->transformedBounds().isNull());
    QVERIFY(copy->nodeId().isEmpty());
    QVERIFY(copy->attribute("width").isEmpty());
    QVERIFY(!copy->parent());
    QVERIFY(!copy->clone());
    QVERIFY(!copy->isVisible());
    QCOMPARE(copy->strokeWidth(), 0.0);
}

void TestDocument::clonesReusePlaces()
{
    const DocumentPointer document = loadContent("<g id='g'><rect id='a' width='3' height='4'/></g>");
    for (int i = 0; i < 1000; ++i) {
        const std::unique_ptr<QZeSvgNode> copy(document->namedNode("g")->clone());
        QCOMPARE(copy->boundingRect(), QRectF(0, 0, 3, 4));
        copy->setAttribute("transform", "scale(2)");
        QCOMPARE(copy->boundingRect(), QRectF(0, 0, 6, 8));
    }
    QCOMPARE(document->namedNode("g")->boundingRect(), QRectF(0, 0, 3, 4));
}

void TestDocument::cloneOfTheDocumentIsADocument()
{
    const DocumentPointer document = loadContent("<rect id='a' width='3' height='4'/>");
    document->setAllFillBrush(QColor(Qt::blue));
    const std::unique_ptr<QZeSvgNode> node(document->clone());
    auto *copy = dynamic_cast<QZeSvgTinyDocument *>(node.get());
    QVERIFY(copy);
    QCOMPARE(copy->viewBox(), QRectF(0, 0, 100, 100));
    QCOMPARE(copy->getAllFillBrush(), QBrush(QColor(Qt::blue)));
    copy->namedNode("a")->setNumericAttribute("width", 30);
    QCOMPARE(document->namedNode("a")->boundingRect(), QRectF(0, 0, 3, 4));
}

void TestDocument::addedNodeHasItsIdAndIsFound()
{
    const DocumentPointer document = loadContent("<g id='g'><rect id='a' width='3' height='4'/></g><g id='h'/>");
    QZeSvgNode *copy = document->namedNode("a")->clone();
    group(*document, "h")->addChild(copy, "b");
    QCOMPARE(copy->nodeId(), QStringLiteral("b"));
    QCOMPARE(copy->attribute("id"), QStringLiteral("b"));
    QCOMPARE(document->namedNode("b"), copy);
    QCOMPARE(copy->parent(), group(*document, "h"));
    document->addChild(document->namedNode("a")->clone(), "c");
    QVERIFY(!document->namedNode("c")->parent());
    QCOMPARE(childIds(*document), QStringList({"g", "h", "c"}));
}

void TestDocument::addedNodeIsDrawnLast()
{
    const DocumentPointer document = loadContent(
        "<rect id='a' width='100' height='100' fill='red'/><rect width='100' height='100' fill='blue'/>");
    QCOMPARE(drawn(*document).pixelColor(5, 5), QColor(0, 0, 255));
    document->addChild(document->namedNode("a")->clone(), "b");
    QCOMPARE(drawn(*document).pixelColor(5, 5), QColor(255, 0, 0));
}

void TestDocument::addingMovesAChild()
{
    const DocumentPointer document = loadContent(
        "<g id='g' transform='scale(2)'><rect id='a' width='3' height='4'/><rect id='b'/></g><g id='h'/>");
    group(*document, "h")->addChild(document->namedNode("a"), "moved");
    QCOMPARE(childIds(*group(*document, "g")), QStringList({"b"}));
    QCOMPARE(childIds(*group(*document, "h")), QStringList({"moved"}));
    QCOMPARE(document->namedNode("moved")->boundingRect(), QRectF(0, 0, 3, 4));
    QVERIFY(!document->namedNode("a"));
}

void TestDocument::addingRefusesNullAncestorsAndStrangers()
{
    const DocumentPointer document = loadContent("<g id='g'><g id='h'/></g>");
    const DocumentPointer other = loadContent("<rect id='r'/>");
    document->addChild(nullptr, "x");
    group(*document, "h")->addChild(document->namedNode("g"), "x");
    group(*document, "h")->addChild(document->namedNode("h"), "x");
    group(*document, "h")->addChild(document.get(), "x");
    document->addChild(other->namedNode("r"), "x");
    QVERIFY(!document->namedNode("x"));
    QCOMPARE(childIds(*document), QStringList({"g"}));
    QCOMPARE(childIds(*other), QStringList({"r"}));
}

void TestDocument::addingRefusesToNestTooDeeply()
{
    const int levels = Svg::Limits::depth - 1;
    const DocumentPointer document(QZeSvgTinyDocument::load("<svg>" + QByteArray("<g id='g'>").repeated(levels) +
                                                            QByteArray("</g>").repeated(levels) +
                                                            "<g id='h'><rect/></g></svg>"));
    QVERIFY(document);
    auto *deepest = group(*document, "g");
    while (!deepest->children().isEmpty())
        deepest = dynamic_cast<QZeSvgStructureNode *>(deepest->children().constFirst());
    deepest->addChild(document->namedNode("h"), "x");
    QVERIFY(deepest->children().isEmpty());
    QVERIFY(document->namedNode("h"));
}

void TestDocument::removedNodeStaysAlive()
{
    const DocumentPointer document =
        loadContent("<g id='g'><rect id='a' width='30' height='40'/><rect id='b'/></g>");
    QZeSvgNode *node = document->namedNode("a");
    group(*document, "g")->removeChild(node);
    QVERIFY(!document->namedNode("a"));
    QCOMPARE(childIds(*group(*document, "g")), QStringList({"b"}));
    QCOMPARE(drawn(*document), drawnContent(""));
    QCOMPARE(node->boundingRect(), QRectF(0, 0, 30, 40));
    QCOMPARE(node->nodeId(), QStringLiteral("a"));
    QCOMPARE(node->parent(), group(*document, "g"));
    node->setNumericAttribute("x", 7);
    QCOMPARE(node->boundingRect(), QRectF(7, 0, 30, 40));
}

void TestDocument::removedNodeCanBeAddedAgain()
{
    const QString content = "<g id='g'><rect id='a' width='30' height='40'/></g>";
    const DocumentPointer document = loadContent(content);
    QZeSvgNode *node = document->namedNode("a");
    group(*document, "g")->removeChild(node);
    node->parent()->addChild(node, "a");
    QCOMPARE(document->namedNode("a"), node);
    QCOMPARE(drawn(*document), drawnContent(content));
}

void TestDocument::removingAStrangerDoesNothing()
{
    const DocumentPointer document = loadContent("<rect id='a'/>");
    const DocumentPointer other = loadContent("<rect id='a'/>");
    document->removeChild(nullptr);
    document->removeChild(document.get());
    document->removeChild(other->namedNode("a"));
    const std::unique_ptr<QZeSvgNode> copy(document->namedNode("a")->clone());
    document->removeChild(copy.get());
    QVERIFY(document->namedNode("a"));
    QVERIFY(other->namedNode("a"));
}

void TestDocument::removingDoesNotCountForGrandchildren()
{
    const DocumentPointer document = loadContent("<g><rect id='a'/></g>");
    document->removeChild(document->namedNode("a"));
    QVERIFY(document->namedNode("a"));
}

void TestDocument::strokeWidthIsTheResolvedOne()
{
    const DocumentPointer document = loadContent(
        "<g stroke='red' stroke-width='3'><path id='a' d='M0 0H9'/><path id='b' d='M0 0H9' stroke='none'/>"
        "<path id='c' d='M0 0H9' style='stroke-width:5'/></g><path id='d' d='M0 0H9'/>");
    QCOMPARE(document->namedNode("a")->strokeWidth(), 3.0);
    QCOMPARE(document->namedNode("b")->strokeWidth(), 0.0);
    QCOMPARE(document->namedNode("c")->strokeWidth(), 5.0);
    QCOMPARE(document->namedNode("d")->strokeWidth(), 0.0);
    document->setAllStrokeWidth(7);
    QCOMPARE(document->namedNode("a")->strokeWidth(), 7.0);
}

QTEST_MAIN(TestDocument)
#include "test_document.moc"

// Shared parts of elements take memory only once.

#include "document/document.h"
#include "grammar/inputlimits.h"
#include "resolve/drawingwalk.h"
#include "svgbase/svgdrawing.h"

#include <QtCore/QBuffer>
#include <QtTest>

using namespace Svg;

class TestSharing : public QObject
{
    Q_OBJECT

private slots:
    void elementsOfWhichTheSameIsSaidShareTheirStyle();
    void childOfWhichNothingIsSaidSharesItsParentsStyle();
    void whatIsNotInheritedIsNotShared();
    void sameWordsBelowOtherParentsMeanOtherStyles();
    void valuesThatRunTogetherAreToldApart();
    void wrongValuesAreToldOfEveryElement();
    void childrenOfAMovedGroupKeepTheirStyle();
    void usedElementSharesStyleAndOutline();
    void usedElementThatInheritsOtherwiseDoesNot();
    void imageIsReadOnceForAllReferencesToIt();
    void outlinesHaveNoRoomForMore();
    void longTextIsPaintedInPieces();
};

namespace {

/// A document whose facts are asked for by id.
class Content
{
public:
    explicit Content(const QString &content)
        : m_document(makePrototype(svgText(content), &m_messages))
    {
    }

    Document &document() { return m_document; }
    NodeIndex node(const QString &id) const { return m_document.tree().findId(id); }
    FactsPointer facts(const QString &id) { return m_document.facts(node(id)); }
    StylePointer style(const QString &id) { return facts(id)->style; }
    /// The facts of a node where it is drawn last.
    FactsPointer drawnFacts(const QString &id)
    {
        FactsPointer found;
        walkDrawing(m_document, rootNode, [&](NodeIndex index, const FactsPointer &facts) {
            if (index == node(id))
                found = facts;
            return true;
        });
        return found;
    }

private:
    Messages m_messages;
    Document m_document;
};

QString pictureReference()
{
    QImage image(2, 2, QImage::Format_RGB32);
    image.fill(Qt::red);
    QBuffer buffer;
    image.save(&buffer, "PNG");
    return "data:image/png;base64," + QString::fromLatin1(buffer.data().toBase64());
}

} // namespace

void TestSharing::elementsOfWhichTheSameIsSaidShareTheirStyle()
{
    Content content("<rect id='a' fill='red' style='stroke:blue'/><circle id='b' fill='red' style='stroke:blue'/>"
                    "<rect id='c' fill='red' style='stroke:lime'/>");
    QCOMPARE(content.style("a"), content.style("b"));
    QVERIFY(content.style("a") != content.style("c"));
    QCOMPARE(content.style("c")->stroke.color, QColor(Qt::green));
}

void TestSharing::childOfWhichNothingIsSaidSharesItsParentsStyle()
{
    Content content("<g id='g' fill='red'><rect id='a' width='9'/></g>");
    QCOMPARE(content.style("a"), content.style("g"));
    QCOMPARE(content.style("a")->fill.color, QColor(Qt::red));
}

void TestSharing::whatIsNotInheritedIsNotShared()
{
    for (const char *said :
         {"opacity='.5'", "display='none'", "vector-effect='non-scaling-stroke'", "filter='url(#f)'",
          "stop-color='red'", "stop-opacity='.5'", "style='transform:scale(2)'", "baseline-shift='3'"}) {
        Content content(QString("<g id='g' %1><rect id='a'/><rect id='b'/></g>").arg(said));
        const StylePointer style = content.style("a");
        QVERIFY2(style != content.style("g"), said);
        QCOMPARE(style, content.style("b"));
        QCOMPARE(style->opacity, 1.0);
        QVERIFY(style->displayed && style->strokeScales && !style->effects && !style->inlineText);
        QVERIFY(style->stopColor == Qt::black && style->stopOpacity == 1 && style->attributes.isEmpty());
    }
}

void TestSharing::sameWordsBelowOtherParentsMeanOtherStyles()
{
    Content content("<g font-size='10'><rect id='a' stroke-width='2em'/></g>"
                    "<g font-size='20'><rect id='b' stroke-width='2em'/></g>"
                    "<svg width='50' height='50'><rect id='c' stroke-width='10%'/></svg>"
                    "<rect id='d' stroke-width='10%'/>");
    QCOMPARE(content.style("a")->strokeWidth, 20.0);
    QCOMPARE(content.style("b")->strokeWidth, 40.0);
    QCOMPARE(content.style("c")->strokeWidth, 5.0);
    QCOMPARE(content.style("d")->strokeWidth, 10.0);
}

void TestSharing::valuesThatRunTogetherAreToldApart()
{
    Content content("<rect id='a' style='--x:1;--y:2;stroke-width:var(--x)'/>"
                    "<rect id='b' style='--x:2;--y:1;stroke-width:var(--x)'/>");
    QCOMPARE(content.style("a")->strokeWidth, 1.0);
    QCOMPARE(content.style("b")->strokeWidth, 2.0);
}

void TestSharing::wrongValuesAreToldOfEveryElement()
{
    const DocumentPointer document = loadContent("<rect id='a' fill='nonsense'/>\n<rect id='b' fill='nonsense'/>");
    const auto messages = document->messages();
    QCOMPARE(messages.size(), 2);
    QCOMPARE(messages.at(0).elementId, QStringLiteral("a"));
    QCOMPARE(messages.at(1).elementId, QStringLiteral("b"));
    QCOMPARE(messages.at(1).line, 2);
}

void TestSharing::childrenOfAMovedGroupKeepTheirStyle()
{
    Content content("<g id='g'><rect id='a' fill='red' width='9' height='9'/></g>");
    const StylePointer before = content.style("a");
    content.document().setAttribute(content.node("g"), "transform", QStringLiteral("translate(5)"));
    QCOMPARE(content.facts("a")->bounds, QRectF(5, 0, 9, 9));
    QCOMPARE(content.style("a"), before);
    content.document().setAttribute(content.node("g"), "stroke", QStringLiteral("blue"));
    QCOMPARE(content.style("a")->stroke.color, QColor(Qt::blue));
}

void TestSharing::usedElementSharesStyleAndOutline()
{
    Content content("<rect id='a' fill='red' width='9' height='9'/><use href='#a' x='5'/>");
    const FactsPointer own = content.facts("a");
    const FactsPointer used = content.drawnFacts("a");
    QVERIFY(own != used);
    QCOMPARE(used->style, own->style);
    QCOMPARE(used->bounds, QRectF(5, 0, 9, 9));
    QCOMPARE(used->outlines.first().path, own->outlines.first().path);
}

void TestSharing::usedElementThatInheritsOtherwiseDoesNot()
{
    Content content("<rect id='a' width='50%' height='9'/><svg width='40' height='40'>"
                    "<use href='#a' fill='red'/></svg>");
    QCOMPARE(content.drawnFacts("a")->style->fill.color, QColor(Qt::red));
    QCOMPARE(content.drawnFacts("a")->bounds, QRectF(0, 0, 20, 9));
    QCOMPARE(content.facts("a")->style->fill.color, QColor(Qt::black));
    QCOMPARE(content.facts("a")->bounds, QRectF(0, 0, 50, 9));
}

void TestSharing::imageIsReadOnceForAllReferencesToIt()
{
    const QString reference = pictureReference();
    Content content("<image id='a' href='" + reference + "'/><image id='b' xlink:href='" + reference + "'/>");
    QVERIFY(content.facts("a")->image);
    QCOMPARE(content.facts("a")->image, content.facts("b")->image);
}

void TestSharing::outlinesHaveNoRoomForMore()
{
    Content content(
        "<rect id='a' width='9' height='9'/><circle id='b' r='9'/><path id='c' d='M1 1zM5 5h0l0 0h9z'/>");
    for (const char *id : {"a", "b", "c"}) {
        const QPainterPath path = content.facts(id)->outlines.first().path;
        QVERIFY2(path.capacity() - path.elementCount() <= 2, id);
    }
    // A move, four lines; a move, four curves of three points.
    QCOMPARE(content.facts("a")->outlines.first().path.elementCount(), 5);
    QCOMPARE(content.facts("b")->outlines.first().path.elementCount(), 13);
}

void TestSharing::longTextIsPaintedInPieces()
{
    const int letters = Limits::textRunElements / 10;
    const QString text = "<text id='t' y='60' font-size='20' textLength='90' lengthAdjust='spacingAndGlyphs'>" +
                         QString(letters, 'm') + "</text>";
    Content content(text);
    const FactsPointer facts = content.facts("t");
    int elements = 0;
    for (const Outline &outline : facts->outlines) {
        QVERIFY(outline.path.elementCount() < Limits::textRunElements + 1000);
        elements += outline.path.elementCount();
    }
    QVERIFY(facts->outlines.size() > 1);
    QCOMPARE(elements % letters, 0);
    const QImage image = drawnContent(text);
    QVERIFY(image.pixelColor(1, 55).alpha() > 0 && image.pixelColor(88, 55).alpha() > 0);
    QCOMPARE(image.pixelColor(95, 55).alpha(), 0);
}

QTEST_MAIN(TestSharing)
#include "test_sharing.moc"

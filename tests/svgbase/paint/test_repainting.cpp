#include "document/documentprivate.h"
#include "grammar/inputlimits.h"
#include "paint/displaylist.h"
#include "svgbase/svgdrawing.h"

#include <QtTest>

using namespace Svg;

// After a change only what looks different is painted again: the surroundings of the changed nodes, before and
// after, with two pixels around for antialiasing.
class TestRepainting : public QObject
{
    Q_OBJECT

private slots:
    void nothingIsRepaintedWithoutAChange();
    void movedNodeRepaintsWhereItWasAndIs();
    void recolouredNodeRepaintsItself();
    void addedAndRemovedNodesRepaintThemselves();
    void movedSegmentRepaintsItsSurroundings();
    void strokeReachesBeyondASegment();
    void dashedStrokeIsRepaintedWhole();
    void singleLineIsRepaintedWholeUnlessItsEndsAreRound();
    void gradientIsRepaintedWhole();
    void groupWithOpacityIsRepaintedWhole();
    void changeBelowIsRepainted();
    void largeChangeRepaintsEverything();
    void drawingThatChangesAllOverIsNotKept();
    void changeOfPlaceRepaintsEverything();
    void clipPathAndMaskFollowAChangeOfSize();
    void sameStyleAgainChangesNothing();
    void whatComesLateInALongDrawingIsRepaintedToo();
    void paintingLeavesOpacityAsItWas();
};

namespace {

constexpr int side = 100;

/// A document that was drawn until its picture is kept.
class Drawing
{
public:
    explicit Drawing(const QString &content)
        : m_document(makePrototype(svgText(content), &m_messages))
    {
        paint();
        paint();
    }

    Document &document() { return m_document; }
    void set(const QString &id, const QString &name, const QString &value)
    {
        m_document.setAttribute(node(id), name, value);
    }
    NodeIndex node(const QString &id) { return m_document.tree().findId(id); }
    QVector<QRect> repainted(const QImage &below = blank(), const QTransform &stretch = QTransform())
    {
        paint(below, stretch);
        QVector<QRect> parts = m_list.repainted();
        std::sort(parts.begin(), parts.end(), [](const QRect &a, const QRect &b) { return a.x() < b.x(); });
        return parts;
    }
    static QImage blank()
    {
        QImage image(side, side, QImage::Format_ARGB32);
        image.fill(Qt::transparent);
        return image;
    }

    int weight() const { return m_list.weight(); }
    QImage painted(const QTransform &stretch)
    {
        QImage image = blank();
        m_list.update(m_document, stretch, QTransform());
        QPainter painter(&image);
        m_list.paint(&painter, false);
        return image;
    }

private:
    void paint(QImage image = blank(), const QTransform &stretch = QTransform())
    {
        m_list.update(m_document, stretch, QTransform());
        QPainter painter(&image);
        m_list.paint(&painter, false);
    }

    Messages m_messages;
    Document m_document;
    DisplayList m_list;
};

using Rects = QVector<QRect>;

const QString twoRects = QStringLiteral("<rect id='a' x='10' y='10' width='10' height='10'/>"
                                        "<rect id='b' x='60' y='70' width='20' height='10' fill='red'/>"
                                        "<path d='M5 95H95' stroke='black'/>");

} // namespace

void TestRepainting::nothingIsRepaintedWithoutAChange()
{
    QCOMPARE(Drawing(twoRects).repainted(), Rects());
}

void TestRepainting::movedNodeRepaintsWhereItWasAndIs()
{
    Drawing drawing(twoRects);
    drawing.set("a", "x", "40");
    // Its outline, the same rectangle elsewhere, is taken side by side: each between where it was and where it is.
    QCOMPARE(drawing.repainted(), Rects{QRect(8, 8, 44, 14)});
    QCOMPARE(drawing.repainted(), Rects());
}

void TestRepainting::recolouredNodeRepaintsItself()
{
    Drawing drawing(twoRects);
    drawing.set("b", "fill", "blue");
    QCOMPARE(drawing.repainted(), Rects{QRect(58, 68, 24, 14)});
}

void TestRepainting::addedAndRemovedNodesRepaintThemselves()
{
    Drawing drawing(twoRects);
    const NodeIndex node = drawing.node("a");
    drawing.document().remove(node);
    QCOMPARE(drawing.repainted(), Rects{QRect(8, 8, 14, 14)});
    drawing.document().append(rootNode, node, "a");
    QCOMPARE(drawing.repainted(), Rects{QRect(8, 8, 14, 14)});
}

void TestRepainting::movedSegmentRepaintsItsSurroundings()
{
    Drawing drawing("<path id='p' d='M10 10H90V90H50V80H40V90H10Z'/>");
    drawing.set("p", "d", "M10 10H90V90H50V84H40V90H10Z");
    QCOMPARE(drawing.repainted(), Rects{QRect(38, 78, 14, 14)});
}

void TestRepainting::strokeReachesBeyondASegment()
{
    // Half the width times the miter limit.
    Drawing drawing("<path id='p' fill='none' stroke='black' stroke-width='2' stroke-miterlimit='3' "
                    "d='M10 10H90V90H50V80H40V90H10Z'/>");
    drawing.set("p", "d", "M10 10H90V90H50V84H40V90H10Z");
    QCOMPARE(drawing.repainted(), Rects{QRect(35, 75, 20, 20)});
}

void TestRepainting::dashedStrokeIsRepaintedWhole()
{
    Drawing drawing("<path id='p' fill='none' stroke='black' stroke-width='2' stroke-dasharray='4' "
                    "stroke-linejoin='round' d='M20 20H60V60H20'/><rect width='100' height='100' fill='none' "
                    "stroke='red'/>");
    drawing.set("p", "d", "M20 20H60V60H30");
    // Half the width times the square root of two, for square ends.
    QCOMPARE(drawing.repainted(), Rects{QRect(16, 16, 48, 48)});
}

void TestRepainting::singleLineIsRepaintedWholeUnlessItsEndsAreRound()
{
    const QString drawn("<path id='line' d='M20 50H80' stroke='black' stroke-width='2' stroke-linecap='%1'/>"
                        "<rect id='a' x='70' y='45' width='4' height='4'/>");
    Drawing flat(drawn.arg("butt"));
    flat.set("a", "fill", "green");
    // Half the width times the miter limit, of which a line makes no use.
    QCOMPARE(flat.repainted(), Rects{QRect(14, 43, 72, 13)});
    Drawing round(drawn.arg("round"));
    round.set("a", "fill", "green");
    QCOMPARE(round.repainted(), Rects{QRect(68, 43, 8, 8)});
}

void TestRepainting::gradientIsRepaintedWhole()
{
    Drawing drawing("<linearGradient id='g'><stop stop-color='red'/><stop offset='1' stop-color='blue'/>"
                    "</linearGradient><rect x='10' y='10' width='60' height='20' fill='url(#g)'/>"
                    "<rect id='a' x='60' y='25' width='10' height='20'/><path d='M0 99H99' stroke='black'/>");
    drawing.set("a", "fill", "green");
    QCOMPARE(drawing.repainted(), Rects{QRect(8, 8, 64, 39)});
}

void TestRepainting::groupWithOpacityIsRepaintedWhole()
{
    Drawing drawing(
        "<g opacity='.5'><rect id='a' x='10' y='10' width='5' height='5'/><rect x='40' y='20' width='20' "
        "height='20'/></g><path d='M0 99H99' stroke='black'/>");
    drawing.set("a", "fill", "green");
    QCOMPARE(drawing.repainted(), Rects{QRect(8, 8, 54, 34)});
}

void TestRepainting::changeBelowIsRepainted()
{
    Drawing drawing(twoRects);
    QImage below = Drawing::blank();
    QPainter(&below).fillRect(QRect(30, 40, 10, 5), Qt::blue);
    QCOMPARE(drawing.repainted(below), Rects{QRect(28, 38, 14, 9)});
    QCOMPARE(drawing.repainted(below), Rects());
    QCOMPARE(drawing.repainted(), Rects{QRect(28, 38, 14, 9)});
}

void TestRepainting::largeChangeRepaintsEverything()
{
    Drawing drawing("<rect id='a' x='5' y='5' width='90' height='90'/>");
    drawing.set("a", "fill", "green");
    QCOMPARE(drawing.repainted(), Rects{QRect(0, 0, 100, 100)});
}

// A picture takes 4 bytes for each of 100 × 100 pixels; the list itself takes far less than that.
void TestRepainting::drawingThatChangesAllOverIsNotKept()
{
    constexpr int pictureBytes = 4 * side * side;
    Drawing drawing("<rect id='a' x='5' y='5' width='90' height='90'/>");
    QVERIFY(drawing.weight() > pictureBytes);
    for (const char *color : {"green", "blue"}) {
        drawing.set("a", "fill", color);
        drawing.repainted();
        QVERIFY(drawing.weight() < pictureBytes);
    }
    QCOMPARE(drawing.repainted(), Rects{QRect(0, 0, 100, 100)});
    QVERIFY(drawing.weight() > pictureBytes);
    QCOMPARE(drawing.repainted(), Rects());
}

void TestRepainting::changeOfPlaceRepaintsEverything()
{
    Drawing drawing(twoRects);
    const QImage below = Drawing::blank();
    const QTransform moved = QTransform::fromTranslate(1, 0);
    drawing.repainted(below, moved);
    QCOMPARE(drawing.repainted(below, moved), Rects{QRect(0, 0, 100, 100)});
    QCOMPARE(drawing.repainted(below, moved), Rects());
}

void TestRepainting::clipPathAndMaskFollowAChangeOfSize()
{
    Drawing drawing(
        "<clipPath id='c'><rect width='20' height='20'/></clipPath>"
        "<mask id='m' maskContentUnits='userSpaceOnUse'><rect x='30' width='10' height='20' fill='white'/></mask>"
        "<rect width='50' height='50' fill='red' clip-path='url(#c)'/>"
        "<rect width='50' height='50' fill='blue' mask='url(#m)'/>");
    const QImage doubled = drawing.painted(QTransform::fromScale(2, 2));
    QCOMPARE(doubled.pixelColor(39, 39), QColor(Qt::red));
    QCOMPARE(doubled.pixelColor(41, 39), QColor(Qt::transparent));
    QCOMPARE(doubled.pixelColor(61, 39), QColor(Qt::blue));
    QCOMPARE(doubled.pixelColor(79, 39), QColor(Qt::blue));
    QCOMPARE(doubled.pixelColor(59, 39), QColor(Qt::transparent));
}

void TestRepainting::sameStyleAgainChangesNothing()
{
    const DocumentPointer document = loadContent(twoRects);
    document->setAllStrokeWidth(3);
    document->setAllFillBrush(QBrush());
    const Document &content = DocumentPrivate::of(document.get())->content;
    const quint32 before = content.revision();
    document->setAllStrokeWidth(3);
    document->setAllFillBrush(QBrush());
    QCOMPARE(content.revision(), before);
    document->setAllStrokeWidth(4);
    QVERIFY(content.revision() != before);
}

// More outlines than are kept mapped: where one was and where it is are repainted, nothing in between.
void TestRepainting::whatComesLateInALongDrawingIsRepaintedToo()
{
    const QString many = QString("<path d='M0 0h1v1z'/>").repeated(Limits::keptElements / 4);
    Drawing drawing(many + twoRects);
    drawing.set("a", "x", "40");
    QCOMPARE(drawing.repainted(), (Rects{QRect(8, 8, 14, 14), QRect(38, 8, 14, 14)}));
    QCOMPARE(drawing.repainted(), Rects());
}

void TestRepainting::paintingLeavesOpacityAsItWas()
{
    const DocumentPointer document =
        loadContent("<rect id='control_1' x='10' y='10' width='8' height='8' fill='#ff0000'/>"
                    "<rect x='50' y='50' width='20' height='20' fill='blue' opacity='.5'/>");
    document->setSelectionState(1);
    QCOMPARE(drawn(*document, QSize(100, 100), true).pixelColor(14, 14), QColor(Qt::red));
}

QTEST_MAIN(TestRepainting)
#include "test_repainting.moc"

// SVG drawings without declarations, as shapes.

#include "machine.h"

#include <declared/reader/plaindrawing.h>

#include <pagehost/style.h>

#include <QtWidgets/QGraphicsSceneMouseEvent>

using namespace declaredtest;

class TestDrawings : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void drawingComesInASensibleSize_data();
    void drawingComesInASensibleSize();
    void drawingKeepsItsProportions();
    void iconFollowsPenAndFill_data();
    void iconFollowsPenAndFill();
    void drawingOfSeveralColoursKeepsThem_data();
    void drawingOfSeveralColoursKeepsThem();
    void idsOfADrawingMeanNothing();
    void widthOfALineBelongsToTheDrawing();
    void compressedDrawingIsRead();
    void boardWithADrawingOpensElsewhere();
    void droppedShapeFileIsThatShape();
    void otherDataIsNoDrawing_data();
    void otherDataIsNoDrawing();

private:
    /// As it is dropped on the page; null for data that is no drawing.
    DeclaredObject *drop(const QByteArray &svg);
    QColor colourAt(QPointF part);

    Machine m_machine;
    std::unique_ptr<pagehost::Document> m_document;
};

namespace {

const QString svgType = QStringLiteral("image/svg+xml");

QByteArray drawing(const QByteArray &attributes, const QByteArray &content)
{
    return "<svg xmlns='http://www.w3.org/2000/svg' " + attributes + ">" + content + "</svg>";
}

} // namespace

void TestDrawings::init()
{
    static const bool isStarted = (m_machine.start(), true);
    Q_UNUSED(isStarted)
    m_document = std::make_unique<pagehost::Document>();
    pagehost::setCurrentDocument(m_document.get());
    m_document->appendPage(QSizeF(800, 800));
}

DeclaredObject *TestDrawings::drop(const QByteArray &svg)
{
    CBaseObject *object = m_machine.registry().createFromData(svgType, svg);
    if (!object)
        return nullptr;
    m_document->page(0)->addObject(object);
    for (const QEvent::Type type : {QEvent::GraphicsSceneMousePress, QEvent::GraphicsSceneMouseRelease}) {
        QGraphicsSceneMouseEvent event(type);
        event.setButton(Qt::LeftButton);
        if (type == QEvent::GraphicsSceneMousePress)
            object->mousePressEvent(&event);
        else
            object->mouseReleaseEvent(&event);
    }
    return dynamic_cast<DeclaredObject *>(object);
}

/// `part` of the object's size.
QColor TestDrawings::colourAt(QPointF part)
{
    m_document->page(0)->select({});
    const CBaseObject *object = m_document->page(0)->objects().constLast();
    const QSizeF size = object->getClientRect().size();
    const QPointF place = object->mapToScene(QPointF(part.x() * size.width(), part.y() * size.height()));
    return pictureOf(*m_document).pixelColor(place.toPoint());
}

void TestDrawings::drawingComesInASensibleSize_data()
{
    QTest::addColumn<QByteArray>("attributes");
    QTest::addColumn<QSizeF>("size");
    QTest::newRow("icon") << QByteArray("viewBox='0 0 16 16'") << QSizeF(120, 120);
    QTest::newRow("icon that tells its size")
        << QByteArray("width='24' height='24' viewBox='0 0 24 24'") << QSizeF(120, 120);
    QTest::newRow("wide and small") << QByteArray("width='40px' height='30px'") << QSizeF(120, 90);
    QTest::newRow("usual") << QByteArray("viewBox='0 0 300 200'") << QSizeF(300, 200);
    QTest::newRow("large") << QByteArray("viewBox='0 0 1000 2000'") << QSizeF(320, 640);
    QTest::newRow("no size") << QByteArray("width='100%'") << QSizeF(120, 120);
}

void TestDrawings::drawingComesInASensibleSize()
{
    QFETCH(QByteArray, attributes);
    const DeclaredObject *object = drop(drawing(attributes, "<rect width='9' height='9'/>"));
    QVERIFY(object);
    QTEST(object->getClientRect().size(), "size");
}

void TestDrawings::drawingKeepsItsProportions()
{
    DeclaredObject *object = drop(drawing("viewBox='0 0 40 20'", "<rect width='9' height='9'/>"));
    QCOMPARE(object->getClientRect().size(), QSizeF(120, 60));
    pagehost::resizeObject(object, QSizeF(240, 60));
    const QSizeF size = object->getClientRect().size();
    QCOMPARE(size.width(), 2 * size.height());
}

void TestDrawings::iconFollowsPenAndFill_data()
{
    QTest::addColumn<QByteArray>("fill");
    QTest::newRow("current colour") << QByteArray("fill='currentColor'");
    QTest::newRow("one colour") << QByteArray("fill='#00f'");
    QTest::newRow("one colour in a style") << QByteArray("style='fill:#00f;stroke:none'");
    QTest::newRow("no colour") << QByteArray();
}

/// The view box begins at (-8, -8).
void TestDrawings::iconFollowsPenAndFill()
{
    QFETCH(QByteArray, fill);
    DeclaredObject *object =
        drop(drawing("viewBox='-8 -8 16 16'", "<rect x='-8' y='-8' width='16' height='16' " + fill + "/>"));
    QVERIFY(object);
    pagehost::setFill({object}, QColor(Qt::red));
    QCOMPARE(colourAt({0.25, 0.25}), QColor(Qt::red));
    DeclaredObject *line = drop(
        drawing("viewBox='0 0 16 16' fill='none' stroke='currentColor' stroke-width='4'", "<path d='M0 8H16'/>"));
    pagehost::setPenColor({line}, QColor(Qt::green));
    QCOMPARE(colourAt({0.5, 0.5}), QColor(Qt::green));
    QCOMPARE(colourAt({0.5, 0.1}), QColor(Qt::red));
}

void TestDrawings::drawingOfSeveralColoursKeepsThem_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::newRow("attributes") << QByteArray("<rect width='8' height='16' fill='#00f'/>"
                                              "<rect x='8' width='8' height='16' fill='#ff0'/>");
    QTest::newRow("style sheet") << QByteArray("<style>.a{fill:#00f} .b{fill:#ff0}</style>"
                                               "<rect class='a' width='8' height='16'/>"
                                               "<rect class='b' x='8' width='8' height='16'/>");
}

void TestDrawings::drawingOfSeveralColoursKeepsThem()
{
    QFETCH(QByteArray, content);
    DeclaredObject *object = drop(drawing("viewBox='0 0 16 16'", content));
    QVERIFY(object);
    pagehost::setFill({object}, QColor(Qt::red));
    QCOMPARE(colourAt({0.25, 0.5}), QColor(Qt::blue));
    QCOMPARE(colourAt({0.75, 0.5}), QColor(0xff, 0xff, 0x00));
}

void TestDrawings::idsOfADrawingMeanNothing()
{
    // A clip path, a gradient, a text and a rectangle, named like parts of a shape.
    DeclaredObject *object = drop(
        drawing("viewBox='0 0 16 16'",
                "<style>#label_2{fill:url(#label_1)}</style><clipPath id='control_1'><rect width='8' "
                "height='16'/></clipPath><linearGradient id='label_1'><stop stop-color='#00f'/></linearGradient>"
                "<rect id='figure' clip-path='url(#control_1)' width='16' height='8' fill='#0f0'/>"
                "<rect id='label_2' y='8' width='16' height='8'/><text id='label_3' y='40'>none</text>"));
    QVERIFY(object);
    const Declaration &declaration = object->shapeKind().declaration();
    QCOMPARE(declaration.points.size(), 0);
    QCOMPARE(declaration.labels.size(), 0);
    QCOMPARE(colourAt({0.25, 0.25}), QColor(Qt::green));
    QCOMPARE(colourAt({0.75, 0.25}), QColor(Qt::white));
    QCOMPARE(colourAt({0.75, 0.75}), QColor(Qt::blue));
}

void TestDrawings::widthOfALineBelongsToTheDrawing()
{
    DeclaredObject *line = drop(
        drawing("viewBox='0 0 16 16' fill='none' stroke='currentColor' stroke-width='4'", "<path d='M0 8H16'/>"));
    pagehost::setPenWidth({line}, 1);
    // 30 of 120 wide.
    QCOMPARE(colourAt({0.5, 0.6}), colourAt({0.5, 0.5}));
    QVERIFY(colourAt({0.5, 0.6}) != QColor(Qt::white));
    QCOMPARE(colourAt({0.5, 0.65}), QColor(Qt::white));
}

void TestDrawings::compressedDrawingIsRead()
{
    // gzip of <svg xmlns="http://www.w3.org/2000/svg" viewBox="0 0 30 20"><rect width="30" height="20"/></svg>
    const QByteArray compressed =
        QByteArray::fromBase64("H4sIAAAAAAAC/xXLwQ2AIAxA0VWaDmAbuBng4CpKKImKwcYyvnr+74f7KTCO/"
                               "bwjiuo1E5nZZH5qvZBjZvoEwlOzLW1EZGDwDI4xhZ5XBaubSkTPCJJrEY34RUrhH9MLQPVQ6mAAAAA=");
    const DeclaredObject *object = drop(compressed);
    QVERIFY(object);
    QCOMPARE(object->getClientRect().size(), QSizeF(120, 80));
}

void TestDrawings::boardWithADrawingOpensElsewhere()
{
    drop(drawing("viewBox='0 0 16 16'", "<rect width='16' height='16' fill='#00f'/>"));
    const QByteArray bytes = encodeDocument(*m_document, pagehost::DocumentFormat::Binary);
    Machine theirs;
    theirs.start();
    const pagehost::OpenResult opened = decodeDocument(bytes, theirs.registry());
    QVERIFY(opened.messages.isEmpty());
    QVERIFY(objectOn(*opened.document));
    QCOMPARE(encodeDocument(*opened.document, pagehost::DocumentFormat::Binary), bytes);
}

void TestDrawings::droppedShapeFileIsThatShape()
{
    const DeclaredObject *object = drop(barFile("#f00"));
    QVERIFY(object);
    QCOMPARE(object->shapeKind().declaration().points.size(), 1);
    QCOMPARE(object->getClientRect().size(), QSizeF(120, 80));
}

void TestDrawings::otherDataIsNoDrawing_data()
{
    QTest::addColumn<QByteArray>("data");
    QTest::newRow("nothing") << QByteArray();
    QTest::newRow("text") << QByteArray("no drawing");
    QTest::newRow("broken") << QByteArray("<svg xmlns='http://www.w3.org/2000/svg'><rect>");
    QTest::newRow("another document") << QByteArray("<html/>");
    QTest::newRow("faulty shape") << barFile("#f00").replace("{p1.x}", "{p1.z}");
    QTest::newRow("too large") << drawing("", QByteArray(1 << 20, ' '));
}

void TestDrawings::otherDataIsNoDrawing()
{
    QFETCH(QByteArray, data);
    QVERIFY(!drop(data));
}

QTEST_MAIN(TestDrawings)
#include "test_drawings.moc"

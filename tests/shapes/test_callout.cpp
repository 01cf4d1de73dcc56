// The tail of a callout, which leaves the balloon's frame: the page object's box goes with it. The balloon is 1
// inside of its frame of 142 x 112, of which 30 are below it. There are 4 around the tip.

#include <shapes/shapedriver.h>

#include <checklist/states.h>

#include <shapekit/shapeobject.h>

#include <svgobj/csvgbase.h>
#include <svgobj/csvgobj.h>

#include <svgbase/qzesvgtinydocument.h>

#include <pagehost/objectplugin.h>

#include <QtCore/QJsonObject>
#include <QtCore/QLineF>
#include <QtTest/QtTest>
#include <QtWidgets/QUndoStack>

#include <algorithm>

using shapetest::ShapeDriver;

namespace {

QString calloutPath(const ShapeDriver &shape)
{
    return shape.document().namedNode(QStringLiteral("figure"))->attribute(QStringLiteral("d"));
}

/// To a place of the document; the box of the callout follows.
void dragTip(ShapeDriver &shape, QPointF place)
{
    shape.dragInScene(1, shape.object().getPos() - shape.document().viewBox().topLeft() + place);
}

/// The middles of the sides of its frame, scene coordinates.
QVector<QPointF> sidesInScene(const ShapeDriver &shape)
{
    QByteArray bytes;
    QDataStream out(&bytes, QIODevice::WriteOnly);
    shape.core().GetSpecialProperty(pagehost::ConnectionPlaces, out);
    QDataStream in(bytes);
    qint32 count = 0;
    in >> count;
    QVector<QPointF> sides;
    for (int i = 0; i < count; ++i) {
        QString name;
        QPointF place;
        double out = 0;
        in >> name >> place >> out;
        sides.append(shape.object().mapToScene(place));
    }
    return sides;
}

/// Within rounding errors of turned places.
bool isNear(QPointF a, QPointF b)
{
    return QLineF(a, b).length() < 1e-6;
}

bool areNear(const QVector<QPointF> &some, const QVector<QPointF> &others)
{
    return !some.isEmpty() && std::equal(some.begin(), some.end(), others.begin(), others.end(), isNear);
}

/// A selected one of its usual size.
struct Callout : ShapeDriver
{
    Callout()
        : ShapeDriver(QStringLiteral("callout"))
    {
        createByClick();
        select();
    }
};

/// Its text, as the page sees it.
shapekit::LabelPlace labelOf(const ShapeDriver &shape)
{
    return static_cast<shapekit::ShapeObject &>(shape.object()).core()->labelPlaces().value(0);
}

void write(const ShapeDriver &shape, const QString &text)
{
    shape.object().SetSettingJson(
        QStringLiteral(R"({"idText": "%1", "idFontSize": "30", "idBold": "true", "idTextColour": "#ff112233"})")
            .arg(text),
        true, true);
}

QString lettersOf(const ShapeDriver &shape)
{
    shape.painted();
    return shape.document().namedNode(QStringLiteral("label"))->attribute(QStringLiteral("d"));
}

} // namespace

class TestCallout : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void tipLeavesTheFrameAndTheBoxGrows_data();
    void tipLeavesTheFrameAndTheBoxGrows();
    void tipInsideTheBalloonHasNoTail();
    void tipComesBackWithUndo();
    void balloonStaysWhileTheTipIsDragged_data() { addPoses(); }
    void balloonStaysWhileTheTipIsDragged();
    void replayedDragShowsTheSame_data() { addPoses(); }
    void replayedDragShowsTheSame();
    void tipOutsideKeepsItsDistance();
    void tipOutsideIsSaved_data();
    void tipOutsideIsSaved();
    void tailOutsideIsFilledAndHit();
    void otherThreadsGetTheWholeTail();
    void drawingHasTheWholeTail();
    void calloutWithItsTipInsideIsSavedAsBefore();
    void binaryDataOfEarlierVersionsOpen();
    void textStandsInTheBalloon();
    void textStaysInTheBalloonWhileTheTipIsDragged();
    void writtenTextIsTakenBackInOneStep();
    void textIsSavedAndOpened_data();
    void textIsSavedAndOpened();
    void hiddenTextIsNotDrawn();

private:
    static void addPoses();
    static void pose(ShapeDriver &shape);
};

void TestCallout::addPoses()
{
    QTest::addColumn<bool>("mirrored");
    QTest::addColumn<bool>("flipped");
    QTest::addColumn<double>("rotation");
    QTest::addColumn<QSizeF>("size");
    QTest::newRow("as drawn") << false << false << 0.0 << QSizeF(142, 112);
    QTest::newRow("mirrored") << true << false << 0.0 << QSizeF(142, 112);
    QTest::newRow("flipped") << false << true << 0.0 << QSizeF(142, 112);
    QTest::newRow("turned") << false << false << 30.0 << QSizeF(142, 112);
    QTest::newRow("resized to no whole numbers") << false << false << 0.0 << QSizeF(301.7, 199.9);
    QTest::newRow("everything") << true << true << 271.5 << QSizeF(301.7, 199.9);
}

void TestCallout::pose(ShapeDriver &shape)
{
    QFETCH(bool, mirrored);
    QFETCH(bool, flipped);
    QFETCH(double, rotation);
    QFETCH(QSizeF, size);
    shape.object().setSize(size, false, false);
    shape.object().setMirror(mirrored, flipped, false);
    shape.object().setRotateByPoint(rotation, shape.object().getClientRect().center(), false);
    shape.undoStack().clear();
}

void TestCallout::tipLeavesTheFrameAndTheBoxGrows_data()
{
    QTest::addColumn<QPointF>("tip");
    QTest::addColumn<QRectF>("box");
    QTest::addColumn<QString>("tail");
    QTest::newRow("left") << QPointF(-60, 41) << QRectF(-64, 0, 206, 112) << "L1 51 L-60 41 L1 31 ";
    QTest::newRow("right") << QPointF(200, 41) << QRectF(0, 0, 204, 112) << "L141 31 L200 41 L141 51 ";
    QTest::newRow("above") << QPointF(71, -100) << QRectF(0, -104, 142, 216) << "L29 1 L71 -100 L49 1 ";
    QTest::newRow("below") << QPointF(24, 200) << QRectF(0, 0, 142, 204) << "h-82l-25,119l5-119l-18,0";
    QTest::newRow("far left, a bit below")
        << QPointF(-160, 90) << QRectF(-164, 0, 306, 112) << "L1 51 L-160 90 L1 31 ";
}

void TestCallout::tipLeavesTheFrameAndTheBoxGrows()
{
    QFETCH(QPointF, tip);
    QFETCH(QRectF, box);
    QFETCH(QString, tail);
    Callout shape;
    const QPointF before = shape.object().getPos();
    dragTip(shape, tip);
    QCOMPARE(shape.controlPoint(1).center(), tip);
    QCOMPARE(shape.document().viewBox(), box);
    QCOMPARE(shape.object().getClientRect().size(), box.size());
    // The balloon stays where it is.
    QCOMPARE(shape.object().getPos() - before, box.topLeft());
    shape.painted();
    QVERIFY2(calloutPath(shape).contains(tail), qPrintable(calloutPath(shape)));
}

void TestCallout::tipInsideTheBalloonHasNoTail()
{
    Callout shape;
    shape.dragControlPoint(1, QPointF(40, -60));
    shape.painted();
    const QPainterPath figure = shape.document().namedNode(QStringLiteral("figure"))->path();
    QCOMPARE(figure.boundingRect(), QRectF(1, 1, 140, 80));
    QVERIFY(figure.contains(QPointF(64, 46)));
}

void TestCallout::tipComesBackWithUndo()
{
    Callout shape;
    const QByteArray before = checklist::savedBytes(shape);
    dragTip(shape, {-66, -44});
    const QByteArray after = checklist::savedBytes(shape);
    shape.undoStack().undo();
    QCOMPARE(checklist::savedBytes(shape), before);
    shape.undoStack().redo();
    QCOMPARE(checklist::savedBytes(shape), after);
}

void TestCallout::balloonStaysWhileTheTipIsDragged()
{
    Callout shape;
    pose(shape);
    const QVector<QPointF> sides = sidesInScene(shape);
    QVector<QByteArray> states{checklist::savedBytes(shape)};
    for (const QPointF &tip : {QPointF(-180, 77), QPointF(80, -230), QPointF(460.5, 310.25), QPointF(60, 50)}) {
        shape.dragInScene(1, tip);
        QVERIFY(isNear(shape.scenePoint(1), tip));
        QVERIFY(areNear(sidesInScene(shape), sides));
        states.append(checklist::savedBytes(shape));
    }
    for (int i = states.size() - 2; i >= 0; --i) {
        shape.undoStack().undo();
        QCOMPARE(checklist::savedBytes(shape), states.at(i));
    }
    for (int i = 1; i < states.size(); ++i) {
        shape.undoStack().redo();
        QCOMPARE(checklist::savedBytes(shape), states.at(i));
    }
}

/// While it goes on: the recorded step at its end has the whole state.
void TestCallout::replayedDragShowsTheSame()
{
    constexpr int controlPointMoved = 1001;
    Callout drawn;
    pose(drawn);
    drawn.dragInScene(1, {-180, -77});
    ShapeDriver shown(QStringLiteral("callout"));
    shown.createByClick();
    pose(shown);
    for (const double part : {0.5, 1.0}) {
        const QPointF corner = drawn.controlPoint(1).topLeft();
        QByteArray step;
        QDataStream out(&step, QIODevice::WriteOnly);
        out << QStringLiteral("control_1") << corner * part;
        QDataStream in(step);
        shown.core().DoPlaybackActionEx(controlPointMoved, in);
    }
    QVERIFY(isNear(shown.scenePoint(1), {-180, -77}));
    QVERIFY(areNear(sidesInScene(shown), sidesInScene(drawn)));
}

void TestCallout::tipOutsideKeepsItsDistance()
{
    Callout shape;
    shape.dragControlPoint(1, QPointF(176, -65));
    // 58 to the right of the frame, which is 142 wide.
    QCOMPARE(shape.object().getClientRect().size(), QSizeF(204, 112));
    shape.object().setSize(QSizeF(304, 162), false, false);
    QCOMPARE(shape.controlPoint(1).center(), QPointF(300, 91));
    QCOMPARE(shape.document().viewBox(), QRectF(0, 0, 304, 162));
    shape.object().setSize(QSizeF(204, 112), false, false);
    QCOMPARE(shape.controlPoint(1).center(), QPointF(200, 41));
    // Balloon and tail have room in the smallest size, too.
    shape.object().setSize(QSizeF(1, 1), false, false);
    QCOMPARE(shape.object().getClientRect().size(), QSizeF(72 + 62, 60));
}

void TestCallout::tipOutsideIsSaved_data()
{
    QTest::addColumn<bool>("isJson");
    QTest::newRow("binary") << false;
    QTest::newRow("JSON") << true;
}

void TestCallout::tipOutsideIsSaved()
{
    QFETCH(bool, isJson);
    Callout shape;
    dragTip(shape, {-166, -194});
    shape.painted();
    ShapeDriver opened(QStringLiteral("callout"));
    if (isJson) {
        QJsonObject json;
        shape.object().saveJson(json);
        QVERIFY(opened.object().loadJson(json));
    } else {
        QVERIFY(checklist::open(opened, checklist::savedBytes(shape)));
        QCOMPARE(checklist::savedBytes(opened), checklist::savedBytes(shape));
    }
    opened.painted();
    QCOMPARE(calloutPath(opened), calloutPath(shape));
    QCOMPARE(opened.document().viewBox(), shape.document().viewBox());
    // And the tip goes on from there.
    opened.select();
    dragTip(opened, {24, 106});
    QCOMPARE(opened.document().viewBox(), QRectF(0, 0, 142, 112));
}

void TestCallout::tailOutsideIsFilledAndHit()
{
    Callout shape;
    shape.dragControlPoint(1, QPointF(176, -65));
    shape.object().setSelected(false);
    QCOMPARE(shape.colorAt(QPoint(160, 41)), QColor(0xff, 0xf3, 0xc9));
    QVERIFY(shape.object().shape().contains(QPointF(160, 41)));
    QVERIFY(!shape.object().shape().contains(QPointF(180, 80)));
}

void TestCallout::otherThreadsGetTheWholeTail()
{
    Callout shape;
    shape.dragControlPoint(1, QPointF(176, -65));
    shape.object().setSelected(false);
    QCOMPARE(shape.paintedElsewhere().pixelColor(190, 41), shape.colorAt(QPoint(190, 41)));
    QCOMPARE(shape.paintedElsewhere().pixelColor(160, 41), QColor(0xff, 0xf3, 0xc9));
}

void TestCallout::drawingHasTheWholeTail()
{
    Callout shape;
    dragTip(shape, {-60, 41});
    const QByteArray svg = shape.plugin()->dataOf(&shape.object(), QStringLiteral("image/svg+xml"));
    QVERIFY2(svg.contains("viewBox=\"-64 0 206 112\""), svg.constData());
    QVERIFY2(svg.contains("L-60 41 L1 31"), svg.constData());
}

void TestCallout::calloutWithItsTipInsideIsSavedAsBefore()
{
    ShapeDriver shape(QStringLiteral("callout"));
    shape.createByDrag(QSizeF(300, 200));
    shape.select();
    shape.dragControlPoint(1, QPointF(100, -5));
    shape.painted();
    QJsonObject json;
    shape.object().saveJson(json);
    const QString later = QStringLiteral("SVG_FrameOfTheBalloon");
    QCOMPARE(json.value(later).toString(QStringLiteral("missing")), QString());
    // A file of an earlier version.
    json.remove(later);
    ShapeDriver opened(QStringLiteral("callout"));
    QVERIFY(opened.object().loadJson(json));
    opened.painted();
    QCOMPARE(calloutPath(opened), calloutPath(shape));
    QCOMPARE(opened.controlPoint(1), shape.controlPoint(1));
}

/// Callouts had no values of their own.
void TestCallout::binaryDataOfEarlierVersionsOpen()
{
    constexpr int countAndEmptyValue = 12;
    Callout shape;
    dragTip(shape, {100, 100});
    const QByteArray bytes = checklist::savedBytes(shape);
    ShapeDriver opened(QStringLiteral("callout"));
    QVERIFY(checklist::open(opened, bytes.chopped(countAndEmptyValue)));
    QCOMPARE(checklist::savedBytes(opened), bytes);
}

void TestCallout::textStandsInTheBalloon()
{
    Callout shape;
    QCOMPARE(labelOf(shape).text, QString());
    QCOMPARE(labelOf(shape).fontSize, 20.0);
    QCOMPARE(labelOf(shape).alignment, Qt::Alignment(Qt::AlignCenter));
    QCOMPARE(labelOf(shape).box, QRectF(7, 7, 128, 68));
    QCOMPARE(lettersOf(shape), QStringLiteral("M0 0"));
    write(shape, QStringLiteral("Hi"));
    lettersOf(shape);
    const QZeSvgNode *letters = shape.document().namedNode(QStringLiteral("label"));
    QVERIFY(qAbs(letters->boundingRect().center().x() - 71) < 1);
    QVERIFY(qAbs(letters->boundingRect().center().y() - 41) < 4);
    QCOMPARE(letters->attribute(QStringLiteral("fill")), QStringLiteral("#112233"));
    QCOMPARE(labelOf(shape).fontSize, 30.0);
    QVERIFY(labelOf(shape).isBold);
    write(shape, QStringLiteral("A text that has no room in letters of this size"));
    lettersOf(shape);
    QVERIFY(labelOf(shape).fontSize < 30 && labelOf(shape).fontSize >= 8);
}

void TestCallout::textStaysInTheBalloonWhileTheTipIsDragged()
{
    Callout shape;
    write(shape, QStringLiteral("Hi"));
    const QString letters = lettersOf(shape);
    dragTip(shape, {-166, -194});
    QCOMPARE(lettersOf(shape), letters);
    QCOMPARE(labelOf(shape).box, QRectF(7, 7, 128, 68));
}

void TestCallout::writtenTextIsTakenBackInOneStep()
{
    Callout shape;
    dragTip(shape, {-60, 41});
    shape.undoStack().clear();
    const QByteArray before = checklist::savedBytes(shape);
    shape.object().SetSettingJson(QStringLiteral(R"({"idText": "Hi"})"), true, true);
    QCOMPARE(shape.undoStack().count(), 1);
    QCOMPARE(labelOf(shape).text, QStringLiteral("Hi"));
    shape.undoStack().undo();
    QCOMPARE(labelOf(shape).text, QString());
    QCOMPARE(checklist::savedBytes(shape), before);
}

void TestCallout::textIsSavedAndOpened_data()
{
    QTest::addColumn<bool>("isJson");
    QTest::newRow("binary") << false;
    QTest::newRow("JSON") << true;
}

void TestCallout::textIsSavedAndOpened()
{
    QFETCH(bool, isJson);
    Callout empty;
    Callout shape;
    QJsonObject emptyJson, json;
    const QByteArray emptyBytes = checklist::savedBytes(empty);
    empty.object().saveJson(emptyJson);
    QVERIFY(!emptyJson.contains(QStringLiteral("SVG_Label")));
    write(shape, QStringLiteral("Hi"));
    shape.object().saveJson(json);
    ShapeDriver opened(QStringLiteral("callout"));
    QVERIFY(isJson ? opened.object().loadJson(json) : checklist::open(opened, checklist::savedBytes(shape)));
    QCOMPARE(lettersOf(opened), lettersOf(shape));
    QCOMPARE(labelOf(opened).text, QStringLiteral("Hi"));
    QVERIFY(labelOf(opened).isBold);
    // Data without a text take it away.
    QVERIFY(isJson ? opened.object().loadJson(emptyJson) : checklist::open(opened, emptyBytes));
    QCOMPARE(labelOf(opened).text, QString());
    QCOMPARE(checklist::savedBytes(opened), emptyBytes);
}

void TestCallout::hiddenTextIsNotDrawn()
{
    Callout shape;
    write(shape, QStringLiteral("Hi"));
    const QString letters = lettersOf(shape);
    const auto hide = [&](qint32 property) {
        QByteArray bytes;
        QDataStream(&bytes, QIODevice::WriteOnly) << property;
        QDataStream in(bytes);
        return shape.object().SetSpecialProperty(pagehost::HiddenLabel, in, false);
    };
    QVERIFY(hide(labelOf(shape).propertyId));
    QCOMPARE(lettersOf(shape), QStringLiteral("M0 0"));
    QVERIFY(hide(0));
    QCOMPARE(lettersOf(shape), letters);
}

QTEST_MAIN(TestCallout)
#include "test_callout.moc"

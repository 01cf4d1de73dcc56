// The shapes of examples/declared as the board has them. Places are document units, worked out from the files.

#include "drivenshape.h"

#include <pagehost/objectplugin.h>

#include <svgobj/csvgbase.h>

#include <svgbase/qzesvgtinydocument.h>

#include <support/listed.h>

#include <QtCore/QJsonDocument>
#include <QtCore/QJsonObject>
#include <QtTest/QtTest>
#include <QtWidgets/QUndoStack>

using namespace declaredtest;
using shapetest::ShapeDriver;

class TestExamples : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void newShapeLooksAsItsFile_data();
    void newShapeLooksAsItsFile();
    void pointsGoAsFarAsTheirFileSays_data();
    void pointsGoAsFarAsTheirFileSays();
    void figureFollowsItsPoint();
    void pointsFollowTheSize();
    void starHasTheCornersOfItsProperty();
    void starIsThatOfItsPlugin();
    void roundedRectangleIsThatOfItsPlugin();
    void ticksAndFiguresAreThereForEachRound();
    void figuresGetTheColourOfThePen();
    void figuresAreWhatTheirPropertiesSay();
    void hourHandGoesWithTheMinutes();
    void figuresOfTheClockDisappear();
    void pageOrDocumentFillsTheShape();
    void undoBringsEveryByteBack_data();
    void undoBringsEveryByteBack();
    void savedShapeOpensAsItWas_data();
    void savedShapeOpensAsItWas();
    void savedJsonTellsTheValuesByName();
    void propertyIsUndoneInOneStep();
    void pointsThatDamagedDataBringsHaveNoRules();
    void dragTellsTheRadius();
    void linesToOtherObjectsEndAtTheTip();
    void linesToOtherObjectsEndAtTheSidesOtherwise();
};

namespace {

const QStringList examples{
    QStringLiteral("roundedrectangle"), QStringLiteral("blockarrow"), QStringLiteral("star"),
    QStringLiteral("numberline"),       QStringLiteral("clock"),      QStringLiteral("nut"),
    QStringLiteral("speechcloud"),      QStringLiteral("barchart"),   QStringLiteral("spiral"),
    QStringLiteral("trafficlight")};

void addExampleRows()
{
    QTest::addColumn<QString>("kind");
    for (const QString &name : examples)
        QTest::newRow(qPrintable(name)) << QStringLiteral("declared/") + name;
}

QJsonObject savedJson(const ShapeDriver &shape)
{
    QJsonObject object;
    shape.object().saveJson(object);
    return object;
}

/// Whether both paths consist of the same points within what ten digits leave.
bool areAlike(const QPainterPath &a, const QPainterPath &b, double distance)
{
    if (a.elementCount() != b.elementCount())
        return false;
    for (int i = 0; i < a.elementCount(); ++i)
        if (QLineF(a.elementAt(i), b.elementAt(i)).length() > distance)
            return false;
    return true;
}

} // namespace

void TestExamples::initTestCase()
{
    qputenv("GLIOLOLOK_SHAPES", EXAMPLE_FOLDER);
}

void TestExamples::newShapeLooksAsItsFile_data()
{
    addExampleRows();
}

void TestExamples::newShapeLooksAsItsFile()
{
    QFile file(QStringLiteral(EXAMPLE_FOLDER "/%1.shape.svg").arg(QLatin1String(QTest::currentDataTag())));
    QVERIFY(file.open(QIODevice::ReadOnly));
    const std::unique_ptr<QZeSvgTinyDocument> drawn(QZeSvgTinyDocument::load(file.readAll()));
    QFETCH(QString, kind);
    ShapeDriver shape(kind);
    shape.createByClick();
    const QZeSvgNode *figure = shape.document().namedNode(QStringLiteral("figure"));
    QVERIFY(figure);
    QCOMPARE(shape.document().viewBox(), drawn->viewBox());
    // The files have two digits behind the point.
    QVERIFY(areAlike(figure->path(), drawn->namedNode(QStringLiteral("figure"))->path(), 0.01));
    QCOMPARE(figure->boundingRect().toRect(), drawn->namedNode(QStringLiteral("figure"))->boundingRect().toRect());
    for (int number = 1; number <= shape.controlPointCount(); ++number) {
        const QZeSvgNode *point = drawn->namedNode(QStringLiteral("control_%1").arg(number));
        QVERIFY(QLineF(shape.controlPoint(number).center(), point->boundingRect().center()).length() < 0.001);
    }
}

void TestExamples::pointsGoAsFarAsTheirFileSays_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("number");
    QTest::addColumn<QPointF>("way");
    QTest::addColumn<QPointF>("place");
    const auto row = [](const char *title, const char *name, int number, QPointF way, QPointF place) {
        QTest::newRow(title) << QString::fromLatin1(name) << number << way << place;
    };
    row("radius grows up to half the shorter side", "roundedrectangle", 1, {90, 30}, {48, 12});
    row("radius shrinks to nothing", "roundedrectangle", 1, {-20, 0}, {8, 12});
    row("radius takes any value between", "roundedrectangle", 1, {7.5, 0}, {31.5, 12});
    row("head ends before the tail", "blockarrow", 1, {-85, -30}, {20, 6});
    row("head ends at the tip", "blockarrow", 1, {48, 50}, {132, 45});
    row("tail ends before the head", "blockarrow", 2, {100, 0}, {78, 45});
    row("tail ends at its start", "blockarrow", 2, {-7, 3}, {8, 45});
    // From (74.812, 38.292) to (100, 58): 40 / 120 of the width from the middle, which is 0.667 of the way to a
    // tip.
    row("depth goes by the way from the middle", "star", 1, {25.188, 19.708}, {83.52317, 26.70237});
    row("depth ends near the middle", "star", 1, {-14.812, 19.708}, {65.290067, 50.961603});
    row("mark goes back to its number", "numberline", 1, {20, 10}, {112, 8});
    row("mark goes to the next number", "numberline", 1, {30, 0}, {162, 8});
    row("mark stays on the line", "numberline", 1, {-104, 0}, {12, 8});
    row("minute hand goes round", "clock", 2, {-31.177, 58}, {60, 96});
    row("minute hand stands on whole minutes", "clock", 2, {4, -24.5}, {84.088702, 33.246786});
}

void TestExamples::pointsGoAsFarAsTheirFileSays()
{
    QFETCH(QString, name);
    QFETCH(int, number);
    QFETCH(QPointF, way);
    QFETCH(QPointF, place);
    ShapeDriver shape(QStringLiteral("declared/") + name);
    shape.createByClick();
    shape.select();
    shape.dragControlPoint(number, way);
    const QPointF stands = shape.controlPoint(number).center();
    QVERIFY2(isNear(stands, place), qPrintable(QStringLiteral("%1, %2").arg(stands.x()).arg(stands.y())));
}

void TestExamples::figureFollowsItsPoint()
{
    ShapeDriver shape(QStringLiteral("declared/roundedrectangle"));
    shape.createByClick();
    shape.select();
    shape.dragControlPoint(1, {-20, 0});
    // The radius is 8 - 1 less than nothing: a rectangle.
    QCOMPARE(pathOf(shape, "figure").boundingRect(), QRectF(1, 1, 118, 78));
    QVERIFY(pathOf(shape, "figure").contains(QPointF(1.5, 1.5)));
    shape.dragControlPoint(1, {40, 0});
    QVERIFY(!pathOf(shape, "figure").contains(QPointF(10, 10)));
}

void TestExamples::pointsFollowTheSize()
{
    ShapeDriver shape(QStringLiteral("declared/blockarrow"));
    shape.createByClick();
    shape.object().setSize(QSizeF(280, 180), false, true);
    // 50 from the end and 8 from the start are parts of the shorter side; 31 is 25 of 78 behind an offset of 6.
    QVERIFY(isNear(shape.controlPoint(1).center(), {180, 6 + 25.0 / 90 * 180}));
    QVERIFY(isNear(shape.controlPoint(2).center(), {8, 90}));
}

void TestExamples::starHasTheCornersOfItsProperty()
{
    ShapeDriver shape(QStringLiteral("declared/star"));
    shape.createByClick();
    answer(shape, R"({"idDeclared_corners": "8"})");
    shape.painted();
    QCOMPARE(pathOf(shape, "figure").elementCount(), 17);
    answer(shape, R"({"idDeclared_corners": "99"})");
    shape.painted();
    QCOMPARE(pathOf(shape, "figure").elementCount(), 49);
}

void TestExamples::starIsThatOfItsPlugin()
{
    ShapeDriver declared(QStringLiteral("declared/star"));
    ShapeDriver coded(QStringLiteral("star"));
    for (ShapeDriver *shape : {&declared, &coded}) {
        shape->createByDrag({240, 180});
        shape->select();
        shape->dragControlPoint(1, {-20, 15});
        shape->object().setSize(QSizeF(300, 200), false, true);
        shape->painted();
    }
    QVERIFY(isNear(declared.controlPoint(1).center(), coded.controlPoint(1).center()));
    QVERIFY(areAlike(pathOf(declared, "figure"), pathOf(coded, "figure"), 1e-6));
}

void TestExamples::roundedRectangleIsThatOfItsPlugin()
{
    ShapeDriver declared(QStringLiteral("declared/roundedrectangle"));
    ShapeDriver coded(QStringLiteral("roundedrectangle"));
    for (ShapeDriver *shape : {&declared, &coded}) {
        shape->createByDrag({240, 180});
        shape->select();
        shape->dragControlPoint(1, {22, 5});
        shape->painted();
    }
    QCOMPARE(declared.controlPoint(1), coded.controlPoint(1));
    QCOMPARE(pathOf(declared, "figure"), pathOf(coded, "figure"));
}

void TestExamples::ticksAndFiguresAreThereForEachRound()
{
    ShapeDriver shape(QStringLiteral("declared/numberline"));
    shape.createByClick();
    shape.painted();
    int shown = 0;
    for (const QZeSvgNode *child : support::listed(shape.document().children())) {
        if (child->type() != QZeSvgNode::Group)
            continue;
        const QList<QZeSvgNode *> figures = static_cast<const QZeSvgStructureNode *>(child)->children();
        QCOMPARE(figures.size(), 4);
        for (const QZeSvgNode *figure : figures) {
            QVERIFY(figure->isVisible());
            // "0" to "3" are centred below the ticks at 12, 62, 112 and 162; their digits differ in width.
            QVERIFY(qAbs(figure->boundingRect().center().x() - (12 + 50 * shown)) < 0.02);
            QVERIFY(qAbs(figure->boundingRect().bottom() - 46) < 0.3);
            ++shown;
        }
    }
    QCOMPARE(shown, 4);
}

void TestExamples::figuresGetTheColourOfThePen()
{
    ShapeDriver shape(QStringLiteral("declared/numberline"));
    shape.createByClick();
    shape.painted();
    shape.core().setPenColor(QColor(200, 0, 0), false);
    for (const QZeSvgNode *child : support::listed(shape.document().children())) {
        if (child->type() != QZeSvgNode::Group)
            continue;
        for (const QZeSvgNode *figure :
             support::listed(static_cast<const QZeSvgStructureNode *>(child)->children()))
            QCOMPARE(figure->attribute(QStringLiteral("fill")), QStringLiteral("#c80000"));
    }
}

void TestExamples::figuresAreWhatTheirPropertiesSay()
{
    ShapeDriver shape(QStringLiteral("declared/numberline"));
    shape.createByClick();
    shape.painted();
    const auto firstFigure = [&] {
        for (const QZeSvgNode *child : support::listed(shape.document().children()))
            if (child->type() == QZeSvgNode::Group)
                return static_cast<const QZeSvgStructureNode *>(child)
                    ->children()
                    .constFirst()
                    ->boundingRect()
                    .width();
        return 0.0;
    };
    const double one = firstFigure();
    answer(shape, R"({"idDeclared_first": "-100"})");
    shape.painted();
    QVERIFY(firstFigure() > 3 * one);
}

void TestExamples::hourHandGoesWithTheMinutes()
{
    ShapeDriver shape(QStringLiteral("declared/clock"));
    shape.createByClick();
    shape.select();
    shape.dragControlPoint(2, {-31.177, 58});
    // Half past ten: 225 degrees from the right, 22 from the middle.
    QVERIFY(isNear(shape.controlPoint(1).center(), {44.443651, 44.443651}));
}

void TestExamples::figuresOfTheClockDisappear()
{
    ShapeDriver shape(QStringLiteral("declared/clock"));
    shape.createByClick();
    const auto figures = [&]() -> const QZeSvgNode * {
        shape.painted();
        for (const QZeSvgNode *child : support::listed(shape.document().children()))
            if (child->type() == QZeSvgNode::Group)
                return child;
        return nullptr;
    };
    QVERIFY(figures()->isVisible());
    answer(shape, R"({"idDeclared_digits_on": "false"})");
    QVERIFY(!figures()->isVisible());
}

void TestExamples::pageOrDocumentFillsTheShape()
{
    QCOMPARE(ShapeDriver(QStringLiteral("declared/star")).core().getSVGType(), 24);
    QCOMPARE(ShapeDriver(QStringLiteral("declared/clock")).core().getSVGType(), 1024);
    QCOMPARE(ShapeDriver(QStringLiteral("declared/numberline")).core().getSVGType(), 1024);
}

void TestExamples::undoBringsEveryByteBack_data()
{
    addExampleRows();
}

void TestExamples::undoBringsEveryByteBack()
{
    QFETCH(QString, kind);
    ShapeDriver shape(kind);
    shape.createByDrag({200, 160});
    shape.select();
    shape.undoStack().clear();
    const QByteArray before = savedBytes(shape);
    answer(shape, R"({"idDeclared_cycle": "20"})");
    for (int number = 1; number <= shape.controlPointCount(); ++number) {
        shape.dragControlPoint(number, {-17.3, 9.1});
        shape.dragControlPoint(number, {40.7, -23.9});
    }
    const QByteArray after = savedBytes(shape);
    QVERIFY(after != before);
    const int steps = shape.undoStack().count();
    for (int i = 0; i < steps; ++i)
        shape.undoStack().undo();
    QCOMPARE(savedBytes(shape), before);
    for (int i = 0; i < steps; ++i)
        shape.undoStack().redo();
    QCOMPARE(savedBytes(shape), after);
}

void TestExamples::savedShapeOpensAsItWas_data()
{
    addExampleRows();
}

void TestExamples::savedShapeOpensAsItWas()
{
    QFETCH(QString, kind);
    ShapeDriver shape(kind);
    shape.createByDrag({200, 160});
    shape.select();
    shape.dragControlPoint(1, {-17.3, 9.1});
    answer(shape, R"({"idDeclared_corners": "7", "idDeclared_first": "12", "idDeclared_digits_on": "false"})");
    const QByteArray bytes = savedBytes(shape);
    const QJsonObject json = savedJson(shape);
    ShapeDriver fromBytes(kind);
    QDataStream in(bytes);
    QVERIFY(fromBytes.object().load(in));
    QVERIFY(in.atEnd());
    QCOMPARE(savedBytes(fromBytes), bytes);
    ShapeDriver fromJson(kind);
    QJsonObject copy = json;
    QVERIFY(fromJson.object().loadJson(copy));
    QCOMPARE(savedJson(fromJson), json);
    shape.object().setSelected(false);
    QCOMPARE(fromBytes.painted(), shape.painted());
    QCOMPARE(fromBytes.geometry(), shape.geometry());
}

void TestExamples::savedJsonTellsTheValuesByName()
{
    ShapeDriver shape(QStringLiteral("declared/numberline"));
    shape.createByClick();
    answer(shape, R"({"idDeclared_first": "12"})");
    const QJsonObject saved = savedJson(shape).value(QLatin1String("SVG_Declared")).toObject();
    QCOMPARE(saved.value(QLatin1String("form")).toInt(), 1);
    QCOMPARE(saved.value(QLatin1String("id")).toString(), QStringLiteral("numberline"));
    QCOMPARE(saved.value(QLatin1String("text")).toString().size(), 32);
    QCOMPARE(saved.value(QLatin1String("values")).toObject(),
             QJsonObject({{QStringLiteral("first"), 12}, {QStringLiteral("step"), 1}}));
}

void TestExamples::propertyIsUndoneInOneStep()
{
    ShapeDriver shape(QStringLiteral("declared/star"));
    shape.createByClick();
    shape.undoStack().clear();
    const QByteArray before = savedBytes(shape);
    answer(shape, R"({"idDeclared_corners": "9"})");
    QVERIFY(savedBytes(shape) != before);
    QCOMPARE(shape.undoStack().count(), 1);
    shape.undoStack().undo();
    QCOMPARE(savedBytes(shape), before);
}

void TestExamples::pointsThatDamagedDataBringsHaveNoRules()
{
    ShapeDriver original(QStringLiteral("declared/blockarrow"));
    original.createByClick();
    QJsonObject damaged = savedJson(original);
    damaged[QStringLiteral("SVG_ControlCount")] = 32;
    ShapeDriver shape(QStringLiteral("declared/blockarrow"));
    QVERIFY(shape.object().loadJson(damaged));
    shape.select();
    shape.dragControlPoint(1, {-85, -30});
    QVERIFY(isNear(shape.controlPoint(1).center(), {20, 6}));
    // At the top the head is as wide as the tail: of nine elements two lines have no length.
    QCOMPARE(pathOf(shape, "figure").elementCount(), 7);
}

namespace {

QString dragHint(const ShapeDriver &shape)
{
    QByteArray bytes;
    QDataStream out(&bytes, QIODevice::WriteOnly);
    if (!shape.object().GetSpecialProperty(pagehost::DragHint, out))
        return {};
    QString hint;
    QDataStream in(bytes);
    in >> hint;
    return hint;
}

/// "name x y direction" of each.
QStringList connections(const ShapeDriver &shape)
{
    QByteArray bytes;
    QDataStream out(&bytes, QIODevice::WriteOnly);
    if (!shape.object().GetSpecialProperty(pagehost::ConnectionPlaces, out))
        return {};
    QDataStream in(bytes);
    qint32 count = 0;
    in >> count;
    QStringList places;
    for (int i = 0; i < count; ++i) {
        QString name;
        QPointF place;
        double direction = 0;
        in >> name >> place >> direction;
        places.append(QStringLiteral("%1 %2 %3 %4").arg(name).arg(place.x()).arg(place.y()).arg(direction));
    }
    return places;
}

} // namespace

void TestExamples::dragTellsTheRadius()
{
    ShapeDriver shape(QStringLiteral("declared/roundedrectangle"));
    shape.createByClick();
    shape.select();
    QCOMPARE(dragHint(shape), QString());
    shape.holdControlPoint(1, {5, 0});
    QCOMPARE(dragHint(shape), QStringLiteral("Radius 21"));
    shape.release({29, 12});
    QCOMPARE(dragHint(shape), QString());
}

void TestExamples::linesToOtherObjectsEndAtTheTip()
{
    ShapeDriver shape(QStringLiteral("declared/blockarrow"));
    shape.createByDrag({280, 180});
    // The frame ends half a pen before the edge.
    QCOMPARE(connections(shape), QStringList({QStringLiteral("tip 279 90 0")}));
    shape.object().setMirror(true, false, false);
    QCOMPARE(connections(shape), QStringList({QStringLiteral("tip 1 90 180")}));
}

void TestExamples::linesToOtherObjectsEndAtTheSidesOtherwise()
{
    ShapeDriver shape(QStringLiteral("declared/star"));
    shape.createByDrag({240, 180});
    QCOMPARE(connections(shape),
             QStringList({QStringLiteral("left 0 90 180"), QStringLiteral("top 120 0 270"),
                          QStringLiteral("right 240 90 0"), QStringLiteral("bottom 120 180 90")}));
}

QTEST_MAIN(TestExamples)
#include "test_examples.moc"

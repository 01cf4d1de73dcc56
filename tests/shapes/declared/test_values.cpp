// Values of declared shapes: what is saved under a former name, and what moves by them.

#include "shapefile.h"

#include <shapes/shapedriver.h>

#include <declared/core/shapekind.h>

#include <shapekit/shapeobject.h>

#include <svgbase/qzesvgtinydocument.h>

#include <QtCore/QDataStream>
#include <QtTest/QtTest>

#include <algorithm>

using namespace declared;

namespace {

const char *tips = "<shape:property name='tips' type='whole' value='5' from='3' to='24'/>";
const char *corners = "<shape:property name='corners' type='real' value='4' from='3' to='24' was='tips:whole'/>";

QByteArray bytesOf(CSVGObj &object)
{
    QByteArray bytes;
    QDataStream out(&bytes, QIODevice::WriteOnly);
    object.save(out);
    return bytes;
}

template<class Number> Number valueOf(const shapekit::ShapeObject &object, int id)
{
    QByteArray bytes;
    QDataStream out(&bytes, QIODevice::WriteOnly);
    object.core()->getInnerProperty(id, out);
    Number number = 0;
    QDataStream(bytes) >> number;
    return number;
}

} // namespace

class TestValues : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void savedValueOfAFormerNameIsTaken();
    void wholeNumberTakesTheNearest();
    void presentNameWinsOverAFormerOne();
    void lessonOfAFormerNameIsPlayed();
    void movementTakesAsLongAsItsValueSays();
    void partFollowsTheColourOfPenAndFill();
    void copiesKeepTheirColoursWhenPenAndFillChange();
    void limitOfADrawingLeavesOutTheSameAtAnyTime();
};

void TestValues::savedValueOfAFormerNameIsTaken()
{
    const ShapeKind before(declaredtest::readOf(declaredtest::fileOf(tips)));
    const ShapeKind after(declaredtest::readOf(declaredtest::fileOf(corners)));
    shapekit::ShapeObject old(before.kind());
    old.SetSettingJson(QStringLiteral(R"({"idDeclared_tips": "9"})"), false, false);
    shapekit::ShapeObject opened(after.kind());
    QDataStream in(bytesOf(old));
    QVERIFY(opened.load(in));
    QCOMPARE(valueOf<double>(opened, after.declaration().properties.first().id), 9.0);
}

void TestValues::wholeNumberTakesTheNearest()
{
    const ShapeKind before(declaredtest::readOf(
        declaredtest::fileOf("<shape:property name='size' type='real' value='5.6' from='3' to='24'/>")));
    const ShapeKind after(declaredtest::readOf(declaredtest::fileOf(
        "<shape:property name='size' type='whole' value='3' from='3' to='24' was='size:real'/>")));
    shapekit::ShapeObject old(before.kind());
    shapekit::ShapeObject opened(after.kind());
    QDataStream in(bytesOf(old));
    QVERIFY(opened.load(in));
    QCOMPARE(valueOf<qint32>(opened, after.declaration().properties.first().id), 6);
}

void TestValues::presentNameWinsOverAFormerOne()
{
    const ShapeKind kind(declaredtest::readOf(declaredtest::fileOf(corners)));
    shapekit::ShapeObject object(kind.kind());
    QJsonObject json;
    object.saveJson(json);
    QJsonObject saved = json.value(QLatin1String("SVG_Declared")).toObject();
    saved[QStringLiteral("values")] = QJsonObject{{QStringLiteral("corners"), 7}, {QStringLiteral("tips"), 8}};
    json[QStringLiteral("SVG_Declared")] = saved;
    QVERIFY(object.loadJson(json));
    QCOMPARE(valueOf<double>(object, kind.declaration().properties.first().id), 7.0);
}

void TestValues::lessonOfAFormerNameIsPlayed()
{
    const ShapeKind before(declaredtest::readOf(declaredtest::fileOf(tips)));
    const ShapeKind after(declaredtest::readOf(declaredtest::fileOf(corners)));
    const PropertyDeclaration &former = before.declaration().properties.first();
    shapekit::ShapeObject object(after.kind());
    QByteArray recorded;
    QDataStream(&recorded, QIODevice::WriteOnly) << qint32(11);
    QDataStream in(recorded);
    QVERIFY(object.core()->DoPlaybackActionEx(former.id, in));
    QCOMPARE(valueOf<double>(object, after.declaration().properties.first().id), 11.0);
}

void TestValues::movementTakesAsLongAsItsValueSays()
{
    const ShapeKind kind(declaredtest::readOf(
        declaredtest::fileOf("<shape:property name='turns' type='whole' value='4' from='1' to='60'/>"
                             "<g><path id='figure' fill='#fff' d='M0 0H9V9Z'/><animateTransform id='turning' "
                             "attributeName='transform' type='rotate' from='0 60 40' to='360 60 40' dur='15s' "
                             "repeatCount='indefinite' shape:dur='{60 / turns}s' "
                             "shape:to='{turns * 90} {middle}'/></g>")));
    shapetest::ShapeDriver shape(QStringLiteral("star"));
    shape.takeObject(new shapekit::ShapeObject(kind.kind()));
    shape.createByClick();
    shape.object().SetSettingJson(QStringLiteral(R"({"idDeclared_turns": "8"})"), false, false);
    shape.painted();
    const QZeSvgNode *turning = shape.document().namedNode(QStringLiteral("turning"));
    QVERIFY(turning);
    QCOMPARE(turning->attribute(QStringLiteral("dur")), QStringLiteral("7.5s"));
    QCOMPARE(turning->attribute(QStringLiteral("to")), QStringLiteral("720 60 40"));
}

void TestValues::partFollowsTheColourOfPenAndFill()
{
    const ShapeKind kind(declaredtest::readOf(
        declaredtest::fileOf("<path id='figure' fill='#fff' stroke='#000' d='M0 0H120V80H0Z'/>"
                             "<path id='mark' fill='none' d='M9 9H30' shape:visible=\"pen == '#ff0000'\"/>"
                             "<path id='dot' fill='none' d='M9 9H30' shape:visible=\"fill == '#00ff00'\"/>")));
    shapetest::ShapeDriver shape(QStringLiteral("star"));
    shape.takeObject(new shapekit::ShapeObject(kind.kind()));
    shape.createByClick();
    const auto shows = [&](const char *id) {
        shape.painted();
        return shape.document().namedNode(QLatin1String(id))->isVisible();
    };
    QVERIFY(!shows("mark"));
    shape.core().setPenColor(Qt::red, false);
    QVERIFY(shows("mark"));
    QVERIFY(!shows("dot"));
    shape.core().setFillBrush(QColor(0, 255, 0), false, true);
    QVERIFY(shows("dot"));
}

void TestValues::copiesKeepTheirColoursWhenPenAndFillChange()
{
    const ShapeKind kind(declaredtest::readOf(declaredtest::fileOf(
        "<path id='figure' fill='#fff' stroke='#000' d='M0 0H120V80H0Z'/>"
        "<g id='bars' shape:repeat='i in 0..1'><rect width='9' height='9' stroke='#000' fill='#ff0000' "
        "shape:fill=\"{i == 0 ? '#ff0000' : '#00ff00'}\"/><rect width='9' height='9' fill='#00ff00'/></g>")));
    shapetest::ShapeDriver shape(QStringLiteral("star"));
    shape.takeObject(new shapekit::ShapeObject(kind.kind()));
    shape.createByClick();
    const auto fills = [&] {
        shape.painted();
        QStringList colours;
        const auto *bars =
            static_cast<const QZeSvgStructureNode *>(shape.document().namedNode(QStringLiteral("bars")));
        const QList<QZeSvgNode *> children = bars->children();
        for (const QZeSvgNode *bar : children)
            colours.append(bar->attribute(QStringLiteral("fill")));
        return colours.join(QLatin1Char(' '));
    };
    QCOMPARE(fills(), QStringLiteral("#ff0000 #00ff00"));
    shape.core().setPenColor(Qt::blue, false);
    QCOMPARE(fills(), QStringLiteral("#ff0000 #00ff00"));
    shape.core().setFillBrush(QBrush(Qt::yellow), false, true);
    QCOMPARE(fills(), QStringLiteral("#ff0000 #00ff00"));
}

namespace {

/// How many children of a group are drawn.
int drawnIn(const shapetest::ShapeDriver &shape, const char *group)
{
    shape.painted();
    const auto *node = static_cast<const QZeSvgStructureNode *>(shape.document().namedNode(QLatin1String(group)));
    const QList<QZeSvgNode *> children = node->children();
    return int(
        std::count_if(children.begin(), children.end(), [](const auto *child) { return child->isVisible(); }));
}

} // namespace

void TestValues::limitOfADrawingLeavesOutTheSameAtAnyTime()
{
    // Each child takes some 14,000 of the 200,000 steps.
    const QByteArray child = "<path fill='#000' d='M0 0' "
                             "shape:d='M{i} 0{for k in 0..1000}{k + 1 + 1 + 1 + 1 &lt; 0 ? 1 : 2} {end}'/>";
    const ShapeKind kind(declaredtest::readOf(
        declaredtest::fileOf("<path id='figure' fill='#fff' d='M0 0H120V80H0Z'/>"
                             "<shape:property name='n' type='whole' value='2' from='0' to='40'/>"
                             "<g id='some' shape:repeat='i in 0..n'>" +
                             child + "</g><g id='others' shape:repeat='i in 0..4'>" + child + "</g>")));
    shapetest::ShapeDriver shape(QStringLiteral("star"));
    shape.takeObject(new shapekit::ShapeObject(kind.kind()));
    shape.createByClick();
    QCOMPARE(drawnIn(shape, "others"), 5);
    shape.object().SetSettingJson(QStringLiteral(R"({"idDeclared_n": "40"})"), false, false);
    QCOMPARE(drawnIn(shape, "others"), 0);
    shape.object().SetSettingJson(QStringLiteral(R"({"idDeclared_n": "2"})"), false, false);
    QCOMPARE(drawnIn(shape, "others"), 5);
}

QTEST_MAIN(TestValues)
#include "test_values.moc"

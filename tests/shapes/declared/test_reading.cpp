// Reading of files that declare a shape.

#include "shapefile.h"

#include <QtTest/QtTest>

using namespace declared;
using declaredtest::fileOf;
using declaredtest::readOf;

class TestReading : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void smallestFileIsAShape();
    void aboutSaysWhatTheShapeIsLike();
    void idIsTheNameOfTheFileUnlessGiven();
    void namesAreKnownByLanguage();
    void propertiesAreReadWithTheirBounds();
    void propertyKeepsItsIdWhereverItStands();
    void choiceHasItsEntries();
    void listsHaveTheirEntries();
    void letsAreSortedByWhatTheyNeed();
    void pointsHaveTheirCentresAndRules();
    void templateIsPlainSvg();
    void controlPointsGetTheirLook();
    void changingTextBecomesAPath();
    void repeatedGroupKeepsItsFirstChild();
    void penPaintsAreLeftToTheKit();
    void userPaintsReachWhatHasThem();
    void attributesOfTheKitAreNotTakenOver();
    void scriptsAndLinksToElsewhereAreLeftOut();
    void hashIgnoresWhatMakesNoDifference();
    void hashTellsFilesApart();
    void missingEnglishIsAWarning();
};

void TestReading::smallestFileIsAShape()
{
    QVector<Message> messages;
    const SharedDeclaration shape = readOf(fileOf("<path id='figure'/>"), &messages);
    QVERIFY(shape);
    QVERIFY(messages.isEmpty());
    QCOMPARE(shape->id, QStringLiteral("nut"));
    QCOMPARE(shape->size, QSizeF(120, 80));
    QCOMPARE(shape->smallest, QSizeF(24, 24));
    QCOMPARE(shape->group, QStringLiteral("basic"));
    QCOMPARE(shape->widestPen, 8);
    QVERIFY(shape->filling == Filling::Shape);
    QVERIFY(shape->sizing == Sizing::Redrawn);
    QVERIFY(!shape->keepsAspect);
}

void TestReading::aboutSaysWhatTheShapeIsLike()
{
    const SharedDeclaration shape = readOf(declaredtest::fileAbout(
        "name='Nut' group='science' sizing='stretch' filled='page' smallest='10 20' pen='12'", ""));
    QVERIFY(shape);
    QCOMPARE(shape->group, QStringLiteral("science"));
    QVERIFY(shape->sizing == Sizing::Stretched);
    QVERIFY(shape->keepsAspect);
    QVERIFY(shape->filling == Filling::Page);
    QCOMPARE(shape->smallest, QSizeF(10, 20));
    QCOMPARE(shape->widestPen, 12);
    const SharedDeclaration free = readOf(declaredtest::fileAbout("name='N' sizing='stretch' aspect='free'", ""));
    QVERIFY(free && !free->keepsAspect);
    const SharedDeclaration lines = readOf(declaredtest::fileAbout("name='N' filled='none' aspect='kept'", ""));
    QVERIFY(lines && lines->filling == Filling::None && lines->keepsAspect);
}

void TestReading::idIsTheNameOfTheFileUnlessGiven()
{
    QCOMPARE(readShape(fileOf(""), QStringLiteral("hex nut-2"))->id, QStringLiteral("hexnut2"));
    QCOMPARE(readOf(declaredtest::fileAbout("name='Nut' id='bolt'", ""))->id, QStringLiteral("bolt"));
}

void TestReading::namesAreKnownByLanguage()
{
    const SharedDeclaration shape = readOf(declaredtest::fileAbout("name='Nut' name.de='Mutter'", ""));
    QVERIFY(shape);
    QCOMPARE(shape->name.value(QStringLiteral("en")), QStringLiteral("Nut"));
    QCOMPARE(shape->name.value(QStringLiteral("de")), QStringLiteral("Mutter"));
}

void TestReading::propertiesAreReadWithTheirBounds()
{
    const SharedDeclaration shape = readOf(fileOf(
        "<shape:property name='corners' type='whole' value='6' from='3' to='24' title='Corners' title.de='Ecken'/>"
        "<shape:property name='depth' type='real' value='0.5' from='0' to='2' step='0.25' panel='settings'/>"
        "<shape:property name='hole' type='switch' value='yes' panel='properties'/>"
        "<shape:property name='rim' type='colour' value='#ff8000'/>"
        "<shape:property name='caption' type='text' value='M8' panel='none'/>"));
    QVERIFY(shape);
    QCOMPARE(shape->properties.size(), 5);
    const PropertyDeclaration &corners = shape->properties.at(0);
    QVERIFY(corners.kind == PropertyDeclaration::Whole);
    QCOMPARE(corners.number, 6.0);
    QCOMPARE(corners.from, 3.0);
    QCOMPARE(corners.to, 24.0);
    QCOMPARE(corners.title.value(QStringLiteral("de")), QStringLiteral("Ecken"));
    QVERIFY(corners.inPropertyPanel && corners.inSettings);
    const PropertyDeclaration &depth = shape->properties.at(1);
    QCOMPARE(depth.step, 0.25);
    QCOMPARE(depth.title.value(QStringLiteral("en")), QStringLiteral("depth"));
    QVERIFY(!depth.inPropertyPanel && depth.inSettings);
    QCOMPARE(shape->properties.at(2).number, 1.0);
    QVERIFY(shape->properties.at(2).inPropertyPanel && !shape->properties.at(2).inSettings);
    QCOMPARE(shape->properties.at(3).colour, QColor(255, 128, 0));
    QCOMPARE(shape->properties.at(4).text, QStringLiteral("M8"));
    QVERIFY(!shape->properties.at(4).inPropertyPanel && !shape->properties.at(4).inSettings);
}

void TestReading::propertyKeepsItsIdWhereverItStands()
{
    const char *corners = "<shape:property name='corners' type='whole' value='6' from='3' to='24'/>";
    const char *hole = "<shape:property name='hole' type='switch' value='no' title='Hole'/>";
    const SharedDeclaration first = readOf(fileOf(QByteArray(corners) + hole));
    const SharedDeclaration second = readOf(fileOf(QByteArray(hole) + corners));
    QVERIFY(first && second);
    QCOMPARE(first->properties.at(0).id, second->properties.at(1).id);
    QCOMPARE(first->properties.at(1).id, second->properties.at(0).id);
    // SHA-1 of "whole:corners" begins with b1f7c.
    QCOMPARE(first->properties.at(0).id, 0x100000 + 0xb1f7c);
}

void TestReading::choiceHasItsEntries()
{
    const SharedDeclaration shape = readOf(fileOf("<shape:property name='face' type='choice' value='roman'>"
                                                  "<shape:entry name='digits' title='Digits' title.de='Ziffern'/>"
                                                  "<shape:entry name='roman'/></shape:property>"));
    QVERIFY(shape);
    const PropertyDeclaration &face = shape->properties.first();
    QCOMPARE(face.entries, QStringList({QStringLiteral("digits"), QStringLiteral("roman")}));
    QCOMPARE(face.number, 1.0);
    QCOMPARE(face.entryTitles.at(0).value(QStringLiteral("de")), QStringLiteral("Ziffern"));
    QCOMPARE(face.entryTitles.at(1).value(QStringLiteral("en")), QStringLiteral("roman"));
}

void TestReading::listsHaveTheirEntries()
{
    const SharedDeclaration shape =
        readOf(fileOf("<shape:property name='bars' type='numbers' value='3 5, 4' from='0' to='9' count='3'/>"
                      "<shape:property name='bends' type='points' value='1 2 3 4'/>"));
    QVERIFY(shape);
    QCOMPARE(shape->properties.at(0).numbers, QVector<double>({3, 5, 4}));
    QCOMPARE(shape->properties.at(0).count, 3);
    QCOMPARE(shape->properties.at(1).count, 2);
    QCOMPARE(shape->listCount, 3); // that of the points is the first
}

void TestReading::letsAreSortedByWhatTheyNeed()
{
    const SharedDeclaration shape =
        readOf(fileOf("<shape:let name='c' value='b * twice(a)'/>"
                      "<shape:let name='b' value='a + 1'/>"
                      "<shape:let name='twice(v)' value='v * two'/>"
                      "<shape:let name='a' value='w'/><shape:let name='two' value='2'/>"));
    QVERIFY(shape);
    QCOMPARE(shape->lets.size(), 4);
    Inputs inputs;
    inputs.values.resize(shape->slotCount);
    inputs.values[slots_of::Width] = 120.0;
    Budget budget;
    for (const LetDeclaration &let : shape->lets)
        inputs.values[let.slot] = Evaluator(shape->program, inputs, budget).valueOf(let.value);
    QCOMPARE(inputs.values.at(shape->lets.last().slot).number(), 121.0 * 240);
}

void TestReading::pointsHaveTheirCentresAndRules()
{
    const SharedDeclaration shape =
        readOf(fileOf("<rect id='control_2' x='10' y='20' width='6' height='6' shape:mirrors='p1 xy'/>"
                      "<rect id='control_1' x='20' y='8' width='8' height='8' shape:range-x='8 .. w'"
                      " shape:follow-x='shorter' shape:offset-x='8' shape:follow-y='end' shape:offset-y='3 4'/>"));
    QVERIFY(shape);
    QCOMPARE(shape->points.size(), 2);
    QCOMPARE(shape->points.at(0).centre, QPointF(24, 12));
    QVERIFY(shape->points.at(0).x.isLimited && !shape->points.at(0).y.isLimited);
    QCOMPARE(shape->points.at(0).x.follow, QStringLiteral("shorter"));
    QCOMPARE(shape->points.at(0).x.endOffset, 8.0);
    QCOMPARE(shape->points.at(0).y.startOffset, 3.0);
    QCOMPARE(shape->points.at(0).y.endOffset, 4.0);
    QCOMPARE(shape->points.at(1).centre, QPointF(13, 23));
    QCOMPARE(shape->points.at(1).mirrored, 1);
    QVERIFY(shape->points.at(1).mirrorsX && shape->points.at(1).mirrorsY);
}

void TestReading::templateIsPlainSvg()
{
    const SharedDeclaration shape = readOf(
        fileOf("<metadata xmlns='urn:other'>x</metadata><!-- note --><path id='figure' other:z='1'"
               " xmlns:other='urn:other' d='M0 0H9' shape:d='M0 0H{w}'/><text x='3'>a<tspan>b</tspan>c</text>"));
    QVERIFY(shape);
    const QByteArray text = shape->templateText;
    QVERIFY(!text.contains("shape"));
    QVERIFY(!text.contains("urn:other"));
    QVERIFY(!text.contains("note"));
    QVERIFY(text.contains("<path id=\"figure\" d=\"M0 0H9\" keeps=\"stroke\"/>"));
    QVERIFY(text.contains("<text x=\"3\" keeps=\"stroke\">a<tspan>b</tspan>c</text>"));
    QCOMPARE(shape->elements.size(), 1);
    QCOMPARE(shape->elements.first().id, QStringLiteral("figure"));
}

void TestReading::controlPointsGetTheirLook()
{
    const SharedDeclaration shape =
        readOf(fileOf("<rect id='control_1' x='20' y='8' width='10' height='10' fill='none' style='x' "
                      "shape:follow-x='middle' shape:range-x='8 .. w' shape:range-y='h / 2'/>"));
    QVERIFY(shape);
    QVERIFY(shape->templateText.contains(
        "<rect id=\"control_1\" x=\"21\" y=\"9\" width=\"8\" height=\"8\" rx=\"4\" ry=\"4\" fill=\"#ffffff\" "
        "stroke=\"#e8710a\" stroke-width=\"1.5\" x_follows=\"middle\" x_offset=\"0 0\" y_move=\"0\" "
        "y_follows=\"side\" "
        "y_offset=\"0 0\"/>"));
}

void TestReading::changingTextBecomesAPath()
{
    const SharedDeclaration shape =
        readOf(fileOf("<g font-size='11' text-anchor='middle'><text x='5' y='6' fill='#333' shape:x='{w / 2}' "
                      "shape:text='{w}'>120</text></g>"));
    QVERIFY(shape);
    QVERIFY(shape->templateText.contains("<path fill=\"#333\" id=\"declared_3\" keeps=\"stroke\"/>"));
    const LettersDeclaration &letters = shape->elements.first().letters;
    QVERIFY(letters.content.isValid() && letters.x.isValid() && !letters.y.isValid());
    QCOMPARE(letters.fixedY, 6.0);
    QCOMPARE(letters.fixedSize, 11.0);
    QCOMPARE(letters.anchor, 0.5);
}

void TestReading::repeatedGroupKeepsItsFirstChild()
{
    const SharedDeclaration shape =
        readOf(fileOf("<g shape:repeat='i in 0..2'><g><path d='M0 0'/><path d='M1 1' shape:d='M{i} 1'/></g>"
                      "<g id='spare'><path d='M2 2'/></g></g>"));
    QVERIFY(shape);
    QCOMPARE(shape->repeats.size(), 1);
    QVERIFY(!shape->templateText.contains("spare"));
    QCOMPARE(shape->elements.size(), 1);
    QCOMPARE(shape->elements.first().repeat, 0);
    QCOMPARE(shape->elements.first().path, QVector<int>({1}));
}

void TestReading::penPaintsAreLeftToTheKit()
{
    const SharedDeclaration shape = readOf(
        fileOf("<path id='a' shape:fill='{pen}' shape:stroke='{pen}'/><path id='b' shape:keeps='fill stroke'/>"
               "<path id='c' shape:fill='{w > 3 ? \"#f00\" : \"#0f0\"}'/>"));
    QVERIFY(!shape); // texts of expressions stand in single quotes
    const SharedDeclaration right = readOf(
        fileOf("<path id='a' shape:fill='{pen}' shape:stroke='{pen}'/><path id='b' shape:keeps='fill stroke'/>"
               "<path id='c' shape:fill=\"{w > 3 ? '#f00' : '#0f0'}\"/>"));
    QVERIFY(right);
    QVERIFY(right->templateText.contains("<path id=\"a\" fill_follows=\"pen\" stroke_follows=\"pen\"/>"));
    QVERIFY(right->templateText.contains("<path id=\"b\" keeps=\"fill stroke\"/>"));
    QVERIFY(right->templateText.contains("<path id=\"c\" keeps=\"fill stroke\"/>"));
    QCOMPARE(right->elements.size(), 1);
}

void TestReading::userPaintsReachWhatHasThem()
{
    const SharedDeclaration shape =
        readOf(fileOf("<g fill='none' stroke='#000'><path id='a'/><path id='b' fill='#fff' stroke='none'/></g>"
                      "<g style='stroke:red'><path id='c'/></g><path id='d'/>"));
    QVERIFY(shape);
    QVERIFY(shape->templateText.contains("<path id=\"a\" keeps=\"fill\"/>"));
    QVERIFY(shape->templateText.contains("<path id=\"b\" fill=\"#fff\" stroke=\"none\" keeps=\"stroke\"/>"));
    QVERIFY(shape->templateText.contains("<path id=\"c\"/>"));
    QVERIFY(shape->templateText.contains("<path id=\"d\" keeps=\"stroke\"/>"));
}

void TestReading::attributesOfTheKitAreNotTakenOver()
{
    const SharedDeclaration shape = readOf(fileOf("<path id='a' keeps='fill' fill_follows='pen' stroke='#000'/>"));
    QVERIFY(shape);
    QVERIFY(shape->templateText.contains("<path id=\"a\" stroke=\"#000\"/>"));
}

void TestReading::scriptsAndLinksToElsewhereAreLeftOut()
{
    QVector<Message> messages;
    const SharedDeclaration shape =
        readOf(fileOf("<script>alert(1)</script><g onclick='x()'><image href='http://example.com/a.png' width='9'/>"
                      "<path id='figure'/><use href='#figure'/></g>"),
               &messages);
    QVERIFY(shape);
    QVERIFY(!shape->templateText.contains("alert"));
    QVERIFY(!shape->templateText.contains("onclick"));
    QVERIFY(!shape->templateText.contains("example"));
    QVERIFY(shape->templateText.contains("<use href=\"#figure\" keeps=\"stroke\"/>"));
    QStringList told;
    for (const Message &message : qAsConst(messages))
        told.append(message.told(QStringLiteral("nut.shape.svg")));
    QCOMPARE(told, (QStringList{
                       QStringLiteral("nut.shape.svg:3:1: warning C45: \"script\" is left out"),
                       QStringLiteral("nut.shape.svg:3:38: warning C45: scripts are left out"),
                       QStringLiteral("nut.shape.svg:3:56: warning C45: links to elsewhere are left out"),
                   }));
}

void TestReading::hashIgnoresWhatMakesNoDifference()
{
    const SharedDeclaration plain = readOf(fileOf("<path id='a' d='M0 0'/>"));
    const SharedDeclaration other = readOf(fileOf("<!-- a line -->\n  <path   d='M0 0'   id='a' ></path>\n"));
    QVERIFY(plain && other);
    QCOMPARE(plain->hash.size(), 32);
    QCOMPARE(other->hash, plain->hash);
}

void TestReading::hashTellsFilesApart()
{
    const SharedDeclaration first = readOf(fileOf("<path id='a' d='M0 0' shape:d='M{w} 0'/>"));
    const SharedDeclaration second = readOf(fileOf("<path id='a' d='M0 0' shape:d='M{h} 0'/>"));
    QVERIFY(first && second);
    QVERIFY(first->hash != second->hash);
}

void TestReading::missingEnglishIsAWarning()
{
    QVector<Message> messages;
    QVERIFY(readOf(declaredtest::fileAbout("name.de='Mutter'", "<path id='figure'/>"), &messages));
    QCOMPARE(messages.size(), 1);
    QCOMPARE(messages.first().code, QStringLiteral("C48"));
    QVERIFY(messages.first().severity == Message::Warning);
}

QTEST_MAIN(TestReading)
#include "test_reading.moc"

#include "svgbase/svgdrawing.h"

#include <QtTest>

// A document that was changed at run time must look like one whose text said so from the start.
class TestChanges : public QObject
{
    Q_OBJECT

private slots:
    void changedAttributeDrawsLikeChangedText_data();
    void changedAttributeDrawsLikeChangedText();
    void oneAttributeIsSetWrittenAndRemoved_data();
    void oneAttributeIsSetWrittenAndRemoved();
    void randomChangesDrawLikeChangedText();
    void changedDocumentMeasuresLikeChangedText();
};

namespace {

/// Where a numbered place of the scene's text stands.
struct Slot
{
    QString id;
    QString attribute;
};

const QString scene = QStringLiteral(
    "<defs><linearGradient id='lg' x1='%1'><stop id='st' offset='.2' stop-color='%2'/><stop offset='1' "
    "stop-color='white'/>"
    "</linearGradient><rect id='def' width='%3' height='20'/></defs>"
    "<g id='grp' transform='%4' opacity='%5' fill='%6' stroke-width='%7'>"
    "<rect id='rc' x='%8' y='10' width='30' height='25' rx='%9' fill='url(#lg)'/>"
    "<ellipse id='el' cx='60' cy='30' rx='20' ry='10' stroke='black' style='%10'/>"
    "<path id='pa' d='%11' stroke='black' stroke-dasharray='%12'/></g>"
    "<text id='tx' x='5' y='95' font-size='%13'>Text</text><use id='us' href='%14' x='50' y='70'/>"
    "<g id='hid' display='%15'><circle id='ci' cx='85' cy='85' r='10' fill='red' visibility='%16'/></g>"
    "<g id='gt' font-size='%17' letter-spacing='%18' xml:space='%19' fill='%20' transform='%21' fill-rule='%22'>"
    "<text id='tg' x='5' y='78'>a   b</text><text id='tp' x='45' y='78'>c <tspan id='ts' dy='%23'>d</tspan></text>"
    "<rect id='re' x='2em' y='80' width='1em' height='1em'/><path id='pr' d='M70 70h20v20h-20zm5 "
    "5h10v10h-10z'/></g>"
    "<pattern id='pt' patternUnits='%24' width='10' height='10'><rect width='5' height='10'/></pattern>"
    "<path d='M5 98H95' stroke='url(#pt) lime' stroke-width='4'/>");

const QVector<Slot> slotsOfScene = {{"lg", "x1"},
                                    {"st", "stop-color"},
                                    {"def", "width"},
                                    {"grp", "transform"},
                                    {"grp", "opacity"},
                                    {"grp", "fill"},
                                    {"grp", "stroke-width"},
                                    {"rc", "x"},
                                    {"rc", "rx"},
                                    {"el", "style"},
                                    {"pa", "d"},
                                    {"pa", "stroke-dasharray"},
                                    {"tx", "font-size"},
                                    {"us", "href"},
                                    {"hid", "display"},
                                    {"ci", "visibility"},
                                    {"gt", "font-size"},
                                    {"gt", "letter-spacing"},
                                    {"gt", "xml:space"},
                                    {"gt", "fill"},
                                    {"gt", "transform"},
                                    {"gt", "fill-rule"},
                                    {"ts", "dy"},
                                    {"pt", "patternUnits"}};

const QVector<QStringList> choices = {
    {"0", "0.5", "50%", "nonsense"},
    {"red", "#0f08", "currentColor", ""},
    {"20", "0", "1in", "-5"},
    {"", "rotate(10 50 50)", "translate(5 -3) scale(1.2 .8)", "broken("},
    {"1", ".5", "0", "30%"},
    {"blue", "none", "url(#lg) red", "url(#missing) lime"},
    {"1", "4", "0", "-1"},
    {"10", "-4.5", "10%", "1e999"},
    {"0", "5", "500", "x"},
    {"", "fill:lime;stroke-width:3", "display:none", "opacity:.5;fill:red"},
    {"M5 50H45V65H5z", "M5 50a10 8 20 1 0 20 9", "M5 50q10 20 30 0t10 10", "M5 50h30v9h-30v-9",
     "M5 50L40 60 broken"},
    {"", "4 2", "3", "0 0"},
    {"20", "8", "2em", "0"},
    {"#def", "#rc", "#us", "#missing"},
    {"inline", "none", "", "block"},
    {"visible", "hidden", "collapse", "nonsense"},
    {"10", "16", "150%"},
    {"0", "3"},
    {"default", "preserve"},
    {"black", "red", "url(#lg)"},
    {"", "rotate(5)", "translate(3 2)"},
    {"nonzero", "evenodd"},
    {"0", "5"},
    {"userSpaceOnUse", "objectBoundingBox", ""},
};

QString sceneText(const QVector<int> &chosen)
{
    QString text = scene;
    for (int i = 0; i < chosen.size(); ++i)
        text = text.arg(choices.at(i).at(chosen.at(i)));
    return text;
}

QVector<int> firstChoices()
{
    return QVector<int>(slotsOfScene.size(), 0);
}

void apply(QZeSvgTinyDocument &document, int slot, int choice)
{
    QZeSvgNode *node = document.namedNode(slotsOfScene.at(slot).id);
    node->setAttribute(slotsOfScene.at(slot).attribute, choices.at(slot).at(choice));
}

} // namespace

void TestChanges::changedAttributeDrawsLikeChangedText_data()
{
    QTest::addColumn<int>("slot");
    QTest::addColumn<int>("choice");
    for (int slot = 0; slot < slotsOfScene.size(); ++slot) {
        for (int choice = 1; choice < choices.at(slot).size(); ++choice) {
            const Slot &s = slotsOfScene.at(slot);
            QTest::addRow("%s %s %d", qPrintable(s.id), qPrintable(s.attribute), choice) << slot << choice;
        }
    }
}

void TestChanges::changedAttributeDrawsLikeChangedText()
{
    QFETCH(int, slot);
    QFETCH(int, choice);
    QVector<int> chosen = firstChoices();
    const DocumentPointer changed = loadContent(sceneText(chosen));
    QVERIFY(changed);
    const QImage before = drawn(*changed, QSize(120, 90));
    apply(*changed, slot, choice);
    chosen[slot] = choice;
    const DocumentPointer expected = loadContent(sceneText(chosen));
    QCOMPARE(drawn(*changed, QSize(120, 90)), drawn(*expected, QSize(120, 90)));
    apply(*changed, slot, 0);
    QCOMPARE(drawn(*changed, QSize(120, 90)), before);
}

void TestChanges::oneAttributeIsSetWrittenAndRemoved_data()
{
    QTest::addColumn<QString>("content");
    QTest::addColumn<QString>("attribute");
    QTest::addColumn<QString>("value");
    const QString rect = "<rect x='10' y='10' width='50' height='40' fill='red' stroke='blue' stroke-width='6' ";
    const auto filtered = [&](const QString &primitives) {
        return "<filter id='f'>" + primitives + "</filter>" + rect + "filter='url(#f)'/>";
    };
    const QString symbol = "<symbol viewBox='0 0 9 9' ATTRIBUTE><rect width='9' height='9'/></symbol>"
                           "<use href='#changed' x='50' y='50' width='30' height='30'/>";
    const QString gradient =
        "<linearGradient ATTRIBUTE><stop stop-color='red'/><stop offset='1' "
        "stop-color='lime'/></linearGradient><rect width='90' height='90' fill='url(#changed)'/>";
    QTest::newRow("point of a symbol") << symbol << "refX"
                                       << "4";
    QTest::newRow("length of a path") << rect + "stroke-dasharray='2' ATTRIBUTE/>"
                                      << "pathLength"
                                      << "20";
    QTest::newRow("hard edges") << rect + "transform='rotate(9)' ATTRIBUTE/>"
                                << "shape-rendering"
                                << "crispEdges";
    QTest::newRow("calculated length") << "<rect height='30' ATTRIBUTE/>"
                                       << "width"
                                       << "calc(50% - 7px)";
    QTest::newRow("shape that clips") << rect + "ATTRIBUTE/>"
                                      << "clip-path"
                                      << "circle(20px)";
    QTest::newRow("box of a transform") << rect + "ATTRIBUTE/>"
                                        << "style"
                                        << "transform-box:fill-box;transform-origin:center;rotate:20deg";
    const QString boxed = "style='transform-box:fill-box;transform-origin:center;rotate:20deg'";
    QTest::newRow("shape in a group with a box") << "<g " + boxed + "><rect height='30' width='20' ATTRIBUTE/></g>"
                                                 << "x"
                                                 << "40";
    QTest::newRow("used shape with a box")
        << "<defs><rect height='30' width='20' ATTRIBUTE/></defs><use href='#changed' x='9' y='9' " + boxed + "/>"
        << "x"
        << "40";
    QTest::newRow("shape in the paint of its use")
        << "<linearGradient id='g'><stop/><stop offset='1' stop-color='lime'/></linearGradient><defs><rect "
           "height='30' width='20' fill='context-fill' ATTRIBUTE/></defs><use href='#changed' fill='url(#g)'/>"
        << "x"
        << "40";
    QTest::newRow("least of lengths") << "<rect height='30' ATTRIBUTE/>"
                                      << "width"
                                      << "min(50%, 70px)";
    QTest::newRow("variable of a parent") << "<g ATTRIBUTE>" + rect + "style='fill:var(--a,lime)'/></g>"
                                          << "style"
                                          << "--a:yellow";
    QTest::newRow("light of a gradient") << gradient << "color-interpolation"
                                         << "linearRGB";
    QTest::newRow("noise") << filtered("<feTurbulence ATTRIBUTE/>") << "baseFrequency"
                           << ".1";
    QTest::newRow("kernel") << filtered("<feConvolveMatrix ATTRIBUTE/>") << "kernelMatrix"
                            << "1 0 0 0 0 0 0 0 1";
    QTest::newRow("displacement") << filtered("<feDisplacementMap in2='SourceGraphic' ATTRIBUTE/>") << "scale"
                                  << "9";
    QTest::newRow("light") << filtered("<feDiffuseLighting><fePointLight z='9' ATTRIBUTE/></feDiffuseLighting>")
                           << "x"
                           << "30";
    QTest::newRow("colour of light")
        << filtered("<feSpecularLighting ATTRIBUTE><feDistantLight elevation='60'/></feSpecularLighting>")
        << "lighting-color"
        << "orange";
    QTest::newRow("picture of an element")
        << "<defs><circle id='c' cx='40' cy='40' r='20'/></defs>" + filtered("<feImage ATTRIBUTE/>") << "href"
        << "#c";
}

void TestChanges::oneAttributeIsSetWrittenAndRemoved()
{
    QFETCH(QString, content);
    QFETCH(QString, attribute);
    QFETCH(QString, value);
    const QString plain = QString(content).replace("ATTRIBUTE", "id='changed'");
    const QString said = QString(content).replace("ATTRIBUTE", "id='changed' " + attribute + "='" + value + "'");
    const DocumentPointer changed = loadContent(plain);
    QVERIFY(changed);
    const QImage before = drawn(*changed);
    changed->namedNode("changed")->setAttribute(attribute, value);
    const QImage after = drawn(*changed);
    QVERIFY(after != before);
    QCOMPARE(after, drawn(*loadContent(said)));
    const DocumentPointer written(QZeSvgTinyDocument::load(changed->toSvg()));
    QVERIFY(written);
    QCOMPARE(drawn(*written), after);
    changed->namedNode("changed")->setAttribute(attribute, QString());
    QCOMPARE(drawn(*changed), before);
}

void TestChanges::randomChangesDrawLikeChangedText()
{
    constexpr quint32 startValue = 20240517;
    QRandomGenerator random(startValue);
    QVector<int> chosen = firstChoices();
    const DocumentPointer changed = loadContent(sceneText(chosen));
    for (int round = 0; round < 150; ++round) {
        for (int changes = random.bounded(1, 5); changes > 0; --changes) {
            const int slot = random.bounded(slotsOfScene.size());
            chosen[slot] = random.bounded(choices.at(slot).size());
            apply(*changed, slot, chosen[slot]);
        }
        const QSize size(random.bounded(2) ? 100 : 80, 100);
        const DocumentPointer expected = loadContent(sceneText(chosen));
        QVERIFY2(drawn(*changed, size) == drawn(*expected, size), qPrintable(sceneText(chosen)));
    }
}

void TestChanges::changedDocumentMeasuresLikeChangedText()
{
    constexpr quint32 startValue = 77;
    QRandomGenerator random(startValue);
    QVector<int> chosen = firstChoices();
    const DocumentPointer changed = loadContent(sceneText(chosen));
    for (int round = 0; round < 150; ++round) {
        const int slot = random.bounded(slotsOfScene.size());
        chosen[slot] = random.bounded(choices.at(slot).size());
        apply(*changed, slot, chosen[slot]);
        const DocumentPointer expected = loadContent(sceneText(chosen));
        for (const char *id :
             {"grp", "rc", "el", "pa", "tx", "us", "hid", "ci", "def", "gt", "tg", "tp", "re", "pr"}) {
            const QZeSvgNode *a = changed->namedNode(id);
            const QZeSvgNode *b = expected->namedNode(id);
            QVERIFY2(a->boundingRect() == b->boundingRect(), id);
            QVERIFY2(a->strokeWidth() == b->strokeWidth(), id);
            QVERIFY2(a->isVisible() == b->isVisible(), id);
        }
        QVERIFY(changed->transformedBounds() == expected->transformedBounds());
    }
}

QTEST_MAIN(TestChanges)
#include "test_changes.moc"

#include <framework/cpagebgprop.h>
#include <framework/cundoredo.h>
#include <framework/cwbundocmd.h>
#include <framework/ijsonutil.h>
#include <recordinghost/framework/recordingframework.h>
#include <recordinghost/log/calllog.h>
#include <recordinghost/svgbase/recordingsvg.h>
#include <svgbase/qzesvgtinydocument.h>

#include <QtGui/QPainter>
#include <QtTest/QtTest>
#include <QtWidgets/QUndoStack>

/// The recorder is what all unit tests stand on, so it has a test of its own.
class TestRecordingHost : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        recording::resetSvg();
        recording::resetFramework();
        recording::clear();
    }
    void theLogKeepsOrderObjectAndArguments();
    void aRectangleHasItsAttributesAsBounds();
    void anEllipseIsPlacedByItsBoundingBox();
    void boundsCanBeHeldBack();
    void groupsAreTransparentToLookup();
    void aNullViewBoxSettlesOnTheContent();
    void aTextThatIsNoSvgGivesNull();
    void aRemovedNodeStaysAlive();
    void aCloneIsInNoChildList();
    void documentWideStylingSparesDisabledNodes();
    void drawReportsItsArguments();
    void theStackRedoesOncePerPush();
    void rectanglesPassThroughJson();
    void aFillPropertyGivesItsBrush();
};

namespace {

std::unique_ptr<QZeSvgTinyDocument> load(const char *content, const char *root = "<svg>")
{
    return std::unique_ptr<QZeSvgTinyDocument>(
        QZeSvgTinyDocument::load(QByteArray(root) + content + QByteArray("</svg>")));
}

class CountingCommand : public CWbUndoCmd
{
public:
    explicit CountingCommand(int *count)
        : m_count(count)
    {
    }
    void redo() override { ++*m_count; }
    void undo() override { --*m_count; }

private:
    int *m_count;
};

} // namespace

void TestRecordingHost::theLogKeepsOrderObjectAndArguments()
{
    recording::log("a", "first", {1, "x"});
    recording::log("b", "second");
    recording::log("b", "first", {2});
    QCOMPARE(recording::names(), QStringList({"a.first", "b.second", "b.first"}));
    QCOMPARE(recording::names({"second"}), QStringList("b.second"));
    QCOMPARE(recording::count("first"), 2);
    QCOMPARE(recording::count("a", "first"), 1);
    QCOMPARE(recording::lastArguments("first"), QVariantList({2}));
    QCOMPARE(recording::lastArguments("a", "first"), QVariantList({1, "x"}));
    QVERIFY(recording::lastArguments("third").isEmpty());
}

void TestRecordingHost::aRectangleHasItsAttributesAsBounds()
{
    const auto document = load("<rect id='r' x='1' y='2' width='3' height='4'/>");
    QZeSvgNode *node = document->namedNode("r");
    QCOMPARE(node->boundingRect(), QRectF(1, 2, 3, 4));
    node->setNumericAttribute("x", 0.1);
    QCOMPARE(node->boundingRect().x(), 0.1);
    QVERIFY(node->boundingRect().x() == 0.1);
    node->setNumericAttribute("x", qInf());
    QCOMPARE(node->boundingRect(), QRectF(0.1, 2, 3, 4));
}

void TestRecordingHost::anEllipseIsPlacedByItsBoundingBox()
{
    const auto document = load("<circle id='c' cx='10' cy='20' r='4'/>");
    QZeSvgNode *node = document->namedNode("c");
    QCOMPARE(node->boundingRect(), QRectF(6, 16, 8, 8));
    node->setNumericAttribute("x", 0);
    node->setNumericAttribute("rx", 5);
    node->setNumericAttribute("height", 2);
    QCOMPARE(node->boundingRect(), QRectF(0, 16, 10, 2));
}

void TestRecordingHost::boundsCanBeHeldBack()
{
    const auto document = load("<rect id='r' x='1' y='2' width='3' height='4'/>");
    QZeSvgNode *node = document->namedNode("r");
    recording::svg().boundsFollow = false;
    node->setNumericAttribute("x", 50);
    QCOMPARE(node->boundingRect(), QRectF(1, 2, 3, 4));
    recording::svg().boundsFollow = true;
    QCOMPARE(node->boundingRect(), QRectF(50, 2, 3, 4));
}

void TestRecordingHost::groupsAreTransparentToLookup()
{
    const auto document = load("<g id='g'><rect id='r'/></g><line id='l'/>");
    auto *group = static_cast<QZeSvgStructureNode *>(document->namedNode("g"));
    QCOMPARE(document->children(), QList<QZeSvgNode *>({group, document->namedNode("l")}));
    QCOMPARE(document->namedNode("r")->parent(), group);
    QVERIFY(!group->parent());
    QVERIFY(!document->namedNode("none"));
}

void TestRecordingHost::aNullViewBoxSettlesOnTheContent()
{
    const auto document = load("<rect x='5' y='6' width='7' height='8'/>");
    QCOMPARE(document->viewBox(), QRectF(5, 6, 7, 8));
    const auto boxed = load("", "<svg viewBox='1 2 30 40'>");
    QCOMPARE(boxed->viewBox(), QRectF(1, 2, 30, 40));
}

void TestRecordingHost::aTextThatIsNoSvgGivesNull()
{
    const int alive = recording::documentCount();
    QVERIFY(!QZeSvgTinyDocument::load("<svg><g></svg>"));
    QVERIFY(!QZeSvgTinyDocument::load(""));
    QVERIFY(!QZeSvgTinyDocument::load("<html/>"));
    recording::svg().failingLoads = 1;
    QVERIFY(!QZeSvgTinyDocument::load("<svg/>"));
    QCOMPARE(recording::documentCount(), alive);
    QVERIFY(load(""));
}

void TestRecordingHost::aRemovedNodeStaysAlive()
{
    const auto document = load("<rect id='r' width='3'/>");
    QZeSvgNode *node = document->namedNode("r");
    document->removeChild(node);
    QVERIFY(!document->namedNode("r"));
    QCOMPARE(node->nodeId(), QString("r"));
    document->addChild(node, "s");
    QCOMPARE(document->namedNode("s"), node);
}

void TestRecordingHost::aCloneIsInNoChildList()
{
    const auto document = load("<g id='g'><rect id='r' width='3'/></g>");
    const auto copy = std::unique_ptr<QZeSvgNode>(document->namedNode("g")->clone());
    QCOMPARE(document->children().size(), 1);
    QCOMPARE(static_cast<QZeSvgStructureNode *>(copy.get())->children().size(), 1);
}

void TestRecordingHost::documentWideStylingSparesDisabledNodes()
{
    const auto document = load("<rect id='a' fill='#ff0000'/><rect id='b'/>");
    document->namedNode("a")->setFillEnabled(false);
    document->namedNode("b")->setStrokeEnabled(false);
    document->setAllFillBrush(QColor(Qt::blue));
    document->setAllStrokeWidth(3);
    QCOMPARE(document->namedNode("a")->attribute("fill"), QString("#ff0000"));
    QCOMPARE(document->namedNode("b")->attribute("fill"), QString("#ff0000ff"));
    QCOMPARE(document->namedNode("a")->strokeWidth(), 3.0);
    QCOMPARE(document->namedNode("b")->strokeWidth(), 1.0);
    QCOMPARE(document->getAllFillBrush(), QBrush(Qt::blue));
}

void TestRecordingHost::drawReportsItsArguments()
{
    const auto document = load("");
    int drawn = 0;
    document->setCallback([&](QPainter *) { ++drawn; });
    QImage image(4, 4, QImage::Format_ARGB32);
    QPainter painter(&image);
    document->setBeforeDraw(true);
    document->draw(&painter, {0, 0, 4, 4}, 0.5f, true);
    QCOMPARE(drawn, 1);
    QVERIFY(!document->isBeforeDraw());
    QCOMPARE(document->lastDraw().target, QRectF(0, 0, 4, 4));
    QCOMPARE(document->lastDraw().scale, 0.5f);
    QCOMPARE(recording::lastArguments("draw"), QVariantList({QRectF(0, 0, 4, 4), 0.5f, true, 0, true}));
}

void TestRecordingHost::theStackRedoesOncePerPush()
{
    int count = 0;
    CUndoRedo::GetInstance()->push(new CountingCommand(&count));
    QCOMPARE(count, 1);
    CUndoRedo::GetInstance()->stack()->undo();
    QCOMPARE(count, 0);
}

void TestRecordingHost::rectanglesPassThroughJson()
{
    const QRectF rect(1, 2, 3, 4);
    const QJsonObject object = GetJsonUtil()->variantToJson(rect);
    QCOMPARE(object, QJsonObject({{"x", 1}, {"y", 2}, {"width", 3}, {"height", 4}}));
    QCOMPARE(GetJsonUtil()->jsonToVariant(object), QVariant(rect));
}

void TestRecordingHost::aFillPropertyGivesItsBrush()
{
    CPageBgProp prop(nullptr);
    QCOMPARE(prop.createBrushByProp({}, false), QBrush());
    prop.setFillEnable(true);
    prop.setFillColor(Qt::red);
    prop.setOpacity(100);
    QCOMPARE(prop.createBrushByProp({}, false).color(), QColor(255, 0, 0, 100));
}

QTEST_MAIN(TestRecordingHost)
#include "test_recordinghost.moc"

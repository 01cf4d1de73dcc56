#include <properties/fullshape.h>
#include <support/shapefixture.h>
#include <support/streams.h>

#include <QtTest/QtTest>
#include <QtWidgets/QUndoStack>

using support::bytesOf;
using support::Input;
using support::inputOf;
using support::Output;
using support::ShapeFixture;
using support::twoPointTemplate;
using support::undoStack;

/// Properties by id through streams: bare values, described attributes, the style snapshot.
class TestAccess : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    // Bare values, reading
    void thePenColourIsWrittenAsColour();
    void thePenStyleIsWrittenAsNumber();
    void thePenWidthIsWrittenLessOne();
    void theFillIsWrittenAsBrush();
    void valuesComeFromTheShapesGetters();
    void anUnknownPropertyIsNotWritten_data();
    void anUnknownPropertyIsNotWritten();
    void aSpecialPropertyIsTheBareValue();

    // Bare values, writing
    void aColourIsApplied();
    void aStyleIsApplied();
    void aWidthIsAppliedAsItIs();
    void aRecordedWidthIsAnIndex();
    void aBrushIsApplied();
    void theRecordFlagReachesTheSetter_data();
    void theRecordFlagReachesTheSetter();
    void withoutUndoNothingIsPushed();
    void eachPropertyPushesOneCommand_data();
    void eachPropertyPushesOneCommand();
    void theOldValueIsTakenFirstAndPushedBeforeTheChange();
    void aRecordedWidthIsUndoneToTheOldAndRedoneToTheNewWidth();
    void aBrushIsUndoneAsAWhole();
    void aPenStyleIsUndone();
    void theCommandHoldsTheStyleAsItCame();
    void anUnknownPropertyIsNotRead_data();
    void anUnknownPropertyIsNotRead();
    void aShortStreamGivesDefaults();
    void aShortStreamWithRecordGivesWidthOne();
    void aDamagedStreamKeepsItsStatus();
    void aSpecialPropertyAlwaysMakesAnUndoStep();
    void aSpecialPropertyPassesItsRecordFlag();
    void aSpecialPropertyDoesNotRepaint();
    void withoutDocumentNothingIsReadOrWritten();
    void theLargestIndexWraps();
    void aStyleThatThereIsNotIsASolidLine_data();
    void aStyleThatThereIsNotIsASolidLine();
    void aBrushThatEndsTooEarlyHasNoColour();
    void aRecordedWidthIsOneMoreThanAReplayedOne();
    void theSmallestWidthWraps();
};

namespace {

const QBrush patternedGreen(Qt::green, Qt::CrossPattern);

} // namespace

void TestAccess::thePenColourIsWrittenAsColour()
{
    FullShape full;
    QCOMPARE(full.inner(5002), bytesOf(QColor(Qt::red)));
}

void TestAccess::thePenStyleIsWrittenAsNumber()
{
    FullShape full;
    QCOMPARE(full.inner(5003), bytesOf(qint32(2)));
}

void TestAccess::thePenWidthIsWrittenLessOne()
{
    FullShape full;
    QCOMPARE(full.inner(5004), bytesOf(qint32(2)));
}

void TestAccess::theFillIsWrittenAsBrush()
{
    FullShape full;
    QCOMPARE(full.inner(5005), bytesOf(QBrush(Qt::blue, Qt::Dense4Pattern)));
}

void TestAccess::valuesComeFromTheShapesGetters()
{
    FullShape full;
    full.shape->onGetPenWidth = [] { return 11; };
    full.shape->onGetFillBrush = [] { return QBrush(Qt::cyan); };
    QCOMPARE(full.inner(5004), bytesOf(qint32(10)));
    QCOMPARE(full.inner(5005), bytesOf(QBrush(Qt::cyan)));
}

void TestAccess::anUnknownPropertyIsNotWritten_data()
{
    QTest::addColumn<int>("propId");
    for (int propId : {0, 26, 1002, 2804, 2805, 5001, 5006, -1})
        QTest::addRow("%d", propId) << propId;
}

void TestAccess::anUnknownPropertyIsNotWritten()
{
    QFETCH(int, propId);
    FullShape full;
    Output out;
    QVERIFY(!full.shape->getInnerProperty(propId, out));
    QVERIFY(!full.shape->GetSpecialProperty(propId, out));
    QCOMPARE(out.bytes(), QByteArray());
}

void TestAccess::aSpecialPropertyIsTheBareValue()
{
    FullShape full;
    Output out;
    QVERIFY(full.shape->GetSpecialProperty(5004, out));
    QCOMPARE(out.bytes(), bytesOf(qint32(2)));
    QCOMPARE(recording::lastArguments("getInnerProperty"), QVariantList({5004}));
}

void TestAccess::aColourIsApplied()
{
    FullShape full;
    QVERIFY(full.shape->setInnerProperty(5002, inputOf(QColor(1, 2, 3, 4)), false, false));
    QCOMPARE(full.shape->document->getAllStrokeColor(), QColor(1, 2, 3, 4));
    QCOMPARE(recording::lastArguments("setPenColor"), QVariantList({QColor(1, 2, 3, 4), false}));
}

void TestAccess::aStyleIsApplied()
{
    FullShape full;
    QVERIFY(full.shape->setInnerProperty(5003, inputOf(qint32(4)), false, false));
    QCOMPARE(recording::lastArguments("setPenStyle"), QVariantList({4, false}));
    QCOMPARE(full.shape->document->getAllStrokeStyle(), Qt::DashDotLine);
}

void TestAccess::aWidthIsAppliedAsItIs()
{
    FullShape full;
    QVERIFY(full.shape->setInnerProperty(5004, inputOf(qint32(6)), false, false));
    QCOMPARE(recording::lastArguments("setPenWidth"), QVariantList({6, false}));
}

void TestAccess::aRecordedWidthIsAnIndex()
{
    FullShape full;
    QVERIFY(full.shape->setInnerProperty(5004, inputOf(qint32(6)), true, false));
    QCOMPARE(recording::lastArguments("setPenWidth"), QVariantList({7, true}));
}

void TestAccess::aBrushIsApplied()
{
    FullShape full;
    QVERIFY(full.shape->setInnerProperty(5005, inputOf(patternedGreen), false, false));
    QCOMPARE(recording::calls({"setFillBrush"}).constFirst().arguments,
             QVariantList({patternedGreen, false, true}));
}

void TestAccess::theRecordFlagReachesTheSetter_data()
{
    QTest::addColumn<int>("propId");
    QTest::addColumn<QByteArray>("value");
    QTest::addColumn<int>("actionId");
    QTest::newRow("pen colour") << 5002 << bytesOf(QColor(Qt::green)) << 1002;
    QTest::newRow("pen style") << 5003 << bytesOf(qint32(1)) << 1003;
    QTest::newRow("pen width") << 5004 << bytesOf(qint32(1)) << 1004;
    QTest::newRow("fill") << 5005 << bytesOf(patternedGreen) << 1005;
}

void TestAccess::theRecordFlagReachesTheSetter()
{
    QFETCH(int, propId);
    QFETCH(QByteArray, value);
    QFETCH(int, actionId);
    FullShape full;
    full.shape->setInnerProperty(propId, Input(value), true, false);
    QCOMPARE(recording::count("RecordAction"), 1);
    QCOMPARE(recording::lastArguments("RecordAction").constFirst().toInt(), actionId);
    FullShape other;
    other.shape->setInnerProperty(propId, Input(value), false, false);
    QCOMPARE(recording::count("RecordAction"), 0);
}

void TestAccess::withoutUndoNothingIsPushed()
{
    FullShape full;
    full.shape->setInnerProperty(5002, inputOf(QColor(Qt::green)), true, false);
    full.shape->setInnerProperty(5003, inputOf(qint32(1)), true, false);
    full.shape->setInnerProperty(5004, inputOf(qint32(1)), true, false);
    full.shape->setInnerProperty(5005, inputOf(patternedGreen), true, false);
    QCOMPARE(undoStack().count(), 0);
}

void TestAccess::eachPropertyPushesOneCommand_data()
{
    theRecordFlagReachesTheSetter_data();
}

void TestAccess::eachPropertyPushesOneCommand()
{
    QFETCH(int, propId);
    QFETCH(QByteArray, value);
    QFETCH(int, actionId);
    FullShape full;
    const QByteArray before = full.inner(propId);
    QVERIFY(full.shape->setInnerProperty(propId, Input(value), false, true));
    QCOMPARE(undoStack().count(), 1);
    QVERIFY(full.inner(propId) != before);
    undoStack().undo();
    QCOMPARE(recording::lastArguments("DoPlaybackActionEx"), QVariantList({actionId}));
    QCOMPARE(full.inner(propId), before);
}

void TestAccess::theOldValueIsTakenFirstAndPushedBeforeTheChange()
{
    FullShape full;
    full.shape->setInnerProperty(5002, inputOf(QColor(Qt::green)), false, true);
    full.shape->setInnerProperty(5003, inputOf(qint32(1)), false, true);
    full.shape->setInnerProperty(5004, inputOf(qint32(1)), false, true);
    full.shape->setInnerProperty(5005, inputOf(patternedGreen), false, true);
    QCOMPARE(recording::names({"getPenColor", "getPenStyle", "getPenWidth", "push", "setAllStrokeColor",
                               "setAllStrokeStyle", "setAllStrokeWidth", "setAllFillBrush"}),
             QStringList({"shape.getPenColor", "undo.push", "document.setAllStrokeColor", "shape.getPenStyle",
                          "undo.push", "document.setAllStrokeStyle", "shape.getPenWidth", "undo.push",
                          "document.setAllStrokeWidth", "undo.push", "document.setAllFillBrush"}));
}

void TestAccess::aRecordedWidthIsUndoneToTheOldAndRedoneToTheNewWidth()
{
    FullShape full;
    full.shape->setInnerProperty(5004, inputOf(qint32(6)), true, true);
    QCOMPARE(full.shape->getPenWidth(), 7);
    undoStack().undo();
    QCOMPARE(full.shape->getPenWidth(), 3);
    undoStack().redo();
    QCOMPARE(full.shape->getPenWidth(), 7);
}

void TestAccess::aBrushIsUndoneAsAWhole()
{
    FullShape full;
    full.object.onSetFillProp = [](CPageBgProp *, bool) {}; // the host's fill would follow with a solid colour
    full.shape->setInnerProperty(5005, inputOf(patternedGreen), false, true);
    QCOMPARE(full.shape->getFillBrush(), patternedGreen);
    undoStack().undo();
    QCOMPARE(full.shape->getFillBrush(), QBrush(Qt::blue, Qt::Dense4Pattern));
    undoStack().redo();
    QCOMPARE(full.shape->getFillBrush(), patternedGreen);
}

void TestAccess::aPenStyleIsUndone()
{
    FullShape full;
    full.shape->setInnerProperty(5003, inputOf(qint32(5)), false, true);
    QCOMPARE(full.shape->getPenStyle(), Qt::DashDotDotLine);
    undoStack().undo();
    QCOMPARE(full.shape->getPenStyle(), Qt::DashLine);
    undoStack().redo();
    QCOMPARE(full.shape->getPenStyle(), Qt::DashDotDotLine);
}

void TestAccess::anUnknownPropertyIsNotRead_data()
{
    anUnknownPropertyIsNotWritten_data();
}

void TestAccess::anUnknownPropertyIsNotRead()
{
    QFETCH(int, propId);
    FullShape full;
    Input input = inputOf(QColor(Qt::green));
    QVERIFY(!full.shape->setInnerProperty(propId, input, true, true));
    QCOMPARE(input.consumed(), 0);
    QCOMPARE(undoStack().count(), 0);
    QCOMPARE(recording::count("RecordAction"), 0);
}

void TestAccess::aShortStreamGivesDefaults()
{
    FullShape full;
    full.object.onSetFillProp = [](CPageBgProp *, bool) {};
    QVERIFY(full.shape->setInnerProperty(5002, Input({}), false, false));
    QVERIFY(!full.shape->document->getAllStrokeColor().isValid());
    QVERIFY(full.shape->setInnerProperty(5003, Input({}), false, false));
    QCOMPARE(full.shape->getPenStyle(), Qt::NoPen);
    QVERIFY(full.shape->setInnerProperty(5004, Input({}), false, false));
    QCOMPARE(full.shape->getPenWidth(), 0);
    QVERIFY(full.shape->setInnerProperty(5005, Input({}), false, false));
    QCOMPARE(full.shape->getFillBrush().style(), Qt::NoBrush);
}

void TestAccess::aShortStreamWithRecordGivesWidthOne()
{
    FullShape full;
    QVERIFY(full.shape->setInnerProperty(5004, Input({}), true, false));
    QCOMPARE(full.shape->getPenWidth(), 1);
}

void TestAccess::aDamagedStreamKeepsItsStatus()
{
    FullShape full;
    Input input(QByteArray("\0\0", 2));
    QVERIFY(full.shape->setInnerProperty(5004, input, false, false));
    QCOMPARE(input.status(), QDataStream::ReadPastEnd);
}

void TestAccess::aSpecialPropertyAlwaysMakesAnUndoStep()
{
    FullShape full;
    QVERIFY(full.shape->SetSpecialProperty(5002, inputOf(QColor(Qt::green)), false));
    QCOMPARE(undoStack().count(), 1);
    QVERIFY(full.shape->SetAttribute(5002, inputOf(QColor(Qt::yellow)), false, false));
    QCOMPARE(undoStack().count(), 1);
    QVERIFY(!full.shape->SetSpecialProperty(26, inputOf(1.0), false));
}

void TestAccess::aSpecialPropertyPassesItsRecordFlag()
{
    FullShape full;
    full.shape->SetSpecialProperty(5002, inputOf(QColor(Qt::green)), true);
    QCOMPARE(recording::lastArguments("setInnerProperty"), QVariantList({5002, true, true}));
    full.shape->SetSpecialProperty(5002, inputOf(QColor(Qt::green)), false);
    QCOMPARE(recording::lastArguments("setInnerProperty"), QVariantList({5002, false, true}));
}

void TestAccess::withoutDocumentNothingIsReadOrWritten()
{
    ShapeFixture fixture(twoPointTemplate());
    Output out;
    Input input = inputOf(QColor(Qt::green));
    QVERIFY(!fixture.shape->getInnerProperty(5002, out));
    QVERIFY(!fixture.shape->setInnerProperty(5002, input, true, true));
    QCOMPARE(out.bytes(), QByteArray());
    QCOMPARE(input.consumed(), 0);
}

void TestAccess::theLargestIndexWraps()
{
    FullShape full;
    QVERIFY(full.shape->setInnerProperty(5004, inputOf(qint32(0x7fffffff)), true, true));
    QCOMPARE(recording::lastArguments("setPenWidth"), QVariantList({-2147483647 - 1, true}));
}

void TestAccess::aStyleThatThereIsNotIsASolidLine_data()
{
    QTest::addColumn<int>("number");
    QTest::addColumn<int>("style");
    QTest::newRow("below") << -1 << 1;
    QTest::newRow("first") << 0 << 0;
    QTest::newRow("last") << 6 << 6;
    QTest::newRow("above") << 7 << 1;
    QTest::newRow("far above") << 0x7fffffff << 1;
}

void TestAccess::aStyleThatThereIsNotIsASolidLine()
{
    QFETCH(int, number);
    FullShape full;
    QVERIFY(full.shape->setInnerProperty(5003, inputOf(qint32(number)), false, false));
    QTEST(int(full.shape->getPenStyle()), "style");
}

void TestAccess::aBrushThatEndsTooEarlyHasNoColour()
{
    FullShape full;
    full.object.onSetFillProp = [](CPageBgProp *, bool) {};
    Input empty({});
    QVERIFY(full.shape->setInnerProperty(5005, empty, false, false));
    QVERIFY(!full.shape->getFillBrush().color().isValid());
    QCOMPARE(full.shape->getFillBrush().style(), Qt::NoBrush);
    QCOMPARE(empty.status(), QDataStream::ReadPastEnd);
}

// Deliberate: a panel, which records, sends an index of its list.
void TestAccess::aRecordedWidthIsOneMoreThanAReplayedOne()
{
    FullShape full;
    full.shape->setInnerProperty(5004, inputOf(qint32(2)), true, false);
    QCOMPARE(full.shape->getPenWidth(), 3);
    full.shape->setInnerProperty(5004, inputOf(qint32(2)), false, false);
    QCOMPARE(full.shape->getPenWidth(), 2);
}

void TestAccess::theSmallestWidthWraps()
{
    FullShape full;
    full.shape->document->setAllStrokeWidth(-1e30);
    QCOMPARE(full.shape->getPenWidth(), std::numeric_limits<int>::min());
    QCOMPARE(full.inner(5004), bytesOf(qint32(std::numeric_limits<int>::max())));
}

void TestAccess::aSpecialPropertyDoesNotRepaint()
{
    FullShape full;
    recording::clear();
    QVERIFY(full.shape->SetSpecialProperty(5002, inputOf(QColor(Qt::green)), false));
    QCOMPARE(recording::count("OnQPainterDraw"), 0);
    QVERIFY(full.shape->SetAttribute(5002, inputOf(QColor(Qt::yellow)), false, false));
    QCOMPARE(recording::count("OnQPainterDraw"), 1);
}

void TestAccess::theCommandHoldsTheStyleAsItCame()
{
    FullShape full;
    qint32 replayed = 0;
    QVERIFY(full.shape->setInnerProperty(5003, inputOf(qint32(99)), false, true));
    full.shape->onDoPlaybackActionEx = [&replayed](int, QDataStream &in) {
        in >> replayed;
        return true;
    };
    undoStack().undo();
    undoStack().redo();
    QCOMPARE(replayed, qint32(99));
}

QTEST_MAIN(TestAccess)
#include "test_access.moc"

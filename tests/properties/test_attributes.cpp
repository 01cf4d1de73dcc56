#include "properties/attributedescription.h"

#include <properties/fullshape.h>
#include <support/listed.h>
#include <support/shapefixture.h>
#include <support/streams.h>

#include <svgobj/csvgpropitem.h>

#include <QtTest/QtTest>
#include <QtWidgets/QUndoStack>

using support::bytesOf;
using support::Input;
using support::inputOf;
using support::Output;
using support::ShapeFixture;
using support::twoPointTemplate;
using support::undoStack;

/// Properties described for and set by the host's panel, and the style snapshot.
class TestAttributes : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    // Described attributes
    void thePenColourIsDescribed();
    void theFillIsDescribed();
    void thePenStyleIsDescribedAsList();
    void thePenWidthIsDescribedAsListAroundTheValue();
    void aRenamedPropertyIsDescribedByItsNewName();
    void attributesAreDescribedByTypeAndExtraData_data();
    void attributesAreDescribedByTypeAndExtraData();
    void editorCodesFollowTypeAndExtraData_data();
    void editorCodesFollowTypeAndExtraData();
    void aPropertyThatTheShapeDoesNotKnowIsStillDescribed();
    void anAttributeWithoutItemIsRefused();
    void withoutDocumentAttributesAreRefused();

    // Setting attributes
    void settingAnAttributeRepaints();
    void anUnknownAttributeIsRefusedWithoutRepaint();
    void settingAnAttributePassesItsFlags();
    void aListIndexOfThePenWidthIsRecorded();
    void aPenWidthWithoutRecordIsTakenAsItIs();

    // Style snapshot
    void aSnapshotIsRefusedAndChangesNothing();
    void aSnapshotTakesWhatIsEnabled();
    void aSnapshotLeavesWhatIsDisabled();
    void aRestoreBringsTheStyleBack();
    void aRestoreWithoutSnapshotGivesInitialValues();
    void aRestoreLeavesWhatIsDisabled();
    void aRestoreSetsStyleThenColourThenFill();
    void aRestorePassesTheRecordFlag();
    void aRestoreMakesNoUndoStepAndNoRepaint();
    void thePenWidthIsNotPartOfTheSnapshot();
    void aShapeMayKnowTheSnapshotIdsItself();
    void aPropertyThatIsSwitchedOffIsSetButNotDescribed();
    void aRestoreWithoutSnapshotLeavesABlackFill();
};

namespace {

const QBrush patternedGreen(Qt::green, Qt::CrossPattern);

} // namespace

void TestAttributes::thePenColourIsDescribed()
{
    FullShape full;
    QCOMPARE(full.attribute(5002),
             bytesOf(qint32(5002), qint32(2), QString("IDS_SVG_PENCOLOR"), true, QColor(Qt::red)));
}

void TestAttributes::theFillIsDescribed()
{
    FullShape full;
    QCOMPARE(full.attribute(5005), bytesOf(qint32(5005), qint32(2), QString("IDS_SVG_FILLCOLOR"), true,
                                           QBrush(Qt::blue, Qt::Dense4Pattern)));
}

void TestAttributes::thePenStyleIsDescribedAsList()
{
    FullShape full;
    const QByteArray list = *full.shape->findPropItemByPropID(5003)->getExtraData();
    const QByteArray head =
        bytesOf(qint32(5003), qint32(1), QString("IDS_SVG_PENSTYLE"), true, qint32(6), qint32(2), qint32(2));
    QCOMPARE(full.attribute(5003), head + list.mid(8));
}

void TestAttributes::thePenWidthIsDescribedAsListAroundTheValue()
{
    FullShape full;
    QCOMPARE(full.attribute(5004), bytesOf(qint32(5004), qint32(1), QString("IDS_SVG_PENWIDTH"), true, qint32(8),
                                           qint32(2), qint32(0), QString("1"), QString("2"), QString("3"),
                                           QString("4"), QString("5"), QString("6"), QString("7"), QString("8")));
}

void TestAttributes::aRenamedPropertyIsDescribedByItsNewName()
{
    FullShape full;
    full.shape->changePropName(5002, "IDS_EDGE");
    QCOMPARE(full.attribute(5002), bytesOf(qint32(5002), qint32(2), QString("IDS_EDGE"), true, QColor(Qt::red)));
}

void TestAttributes::attributesAreDescribedByTypeAndExtraData_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<QByteArray>("extra");
    QTest::addColumn<QByteArray>("code");
    QTest::addColumn<QByteArray>("rest");
    const QByteArray none;
    const QByteArray value = bytesOf(qint32(77));
    const QByteArray twelve("abcdefghijkl");
    const QByteArray twentyFour("abcdefghijklmnopqrstuvwx");
    const auto code = [](qint32 number) { return bytesOf(number); };
    QTest::newRow("0, none") << 0 << none << code(4) << value;
    QTest::newRow("0, some") << 0 << twelve << code(4) << none;
    QTest::newRow("integer, none") << 1 << none << none << value;
    QTest::newRow("integer, range") << 1 << twelve << code(7) << twelve + value;
    QTest::newRow("integer, list") << 1 << twentyFour << code(1) << "abcd" + value + twentyFour.mid(4);
    QTest::newRow("integer, less than a count") << 1 << QByteArray("ab") << code(1) << "ab" + value;
    QTest::newRow("real, none") << 2 << none << none << value;
    QTest::newRow("real, range") << 2 << twentyFour << code(7) << twentyFour + value;
    QTest::newRow("real, other") << 2 << twelve << none << none;
    QTest::newRow("colour, none") << 3 << none << code(2) << value;
    QTest::newRow("colour, some") << 3 << twentyFour << code(2) << none;
    QTest::newRow("4, none") << 4 << none << code(5) << value;
    QTest::newRow("5, some") << 5 << twelve << code(8) << none;
    QTest::newRow("unknown type") << 6 << none << none << value;
}

void TestAttributes::attributesAreDescribedByTypeAndExtraData()
{
    QFETCH(int, type);
    QFETCH(QByteArray, extra);
    QFETCH(QByteArray, code);
    QFETCH(QByteArray, rest);
    FullShape full;
    full.shape->propItems.prepend(new CSVGPropItem(26, "own", 2000, DATA_TYPE(type), &extra, true));
    full.shape->onGetInnerProperty = [](int propId, QDataStream &out) {
        out << qint32(77);
        return propId == 26;
    };
    QCOMPARE(full.attribute(26), bytesOf(qint32(26)) + code + bytesOf(QString("own"), true) + rest);
}

void TestAttributes::editorCodesFollowTypeAndExtraData_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<int>("size");
    QTest::addColumn<int>("code");
    QTest::newRow("0") << 0 << 0 << 4;
    QTest::newRow("integer, none") << 1 << 0 << 0;
    QTest::newRow("integer, 11") << 1 << 11 << 1;
    QTest::newRow("integer, 12") << 1 << 12 << 7;
    QTest::newRow("integer, 13") << 1 << 13 << 1;
    QTest::newRow("integer, 24") << 1 << 24 << 1;
    QTest::newRow("real, none") << 2 << 0 << 0;
    QTest::newRow("real, 12") << 2 << 12 << 0;
    QTest::newRow("real, 23") << 2 << 23 << 0;
    QTest::newRow("real, 24") << 2 << 24 << 7;
    QTest::newRow("real, 25") << 2 << 25 << 0;
    QTest::newRow("colour, 12") << 3 << 12 << 2;
    QTest::newRow("colour, 24") << 3 << 24 << 2;
    QTest::newRow("4") << 4 << 12 << 5;
    QTest::newRow("5") << 5 << 0 << 8;
    QTest::newRow("unknown") << 6 << 12 << 0;
    QTest::newRow("negative") << -1 << 24 << 0;
}

void TestAttributes::editorCodesFollowTypeAndExtraData()
{
    QFETCH(int, type);
    QFETCH(int, size);
    QByteArray extra(size, 'x');
    CSVGPropItem item(26, "own", 2000, DATA_TYPE(type), &extra, true);
    QTEST(AttributeDescription::editorCode(item), "code");
}

void TestAttributes::aPropertyThatTheShapeDoesNotKnowIsStillDescribed()
{
    FullShape full;
    full.shape->propItems.prepend(new CSVGPropItem(26, "own", 2000, DATA_TYPE_COLOR, nullptr, true));
    QCOMPARE(full.attribute(26), bytesOf(qint32(26), qint32(2), QString("own"), true));
}

void TestAttributes::anAttributeWithoutItemIsRefused()
{
    ShapeFixture fixture(twoPointTemplate());
    fixture.load();
    Output out;
    QVERIFY(!fixture.shape->GetAttribute(5005, out));
    QVERIFY(!fixture.shape->GetAttribute(0, out));
    QCOMPARE(out.bytes(), QByteArray());
}

void TestAttributes::withoutDocumentAttributesAreRefused()
{
    ShapeFixture fixture(twoPointTemplate());
    fixture.shape->initPropItems();
    recording::clear();
    Output out;
    Input input = inputOf(QColor(Qt::green));
    QVERIFY(!fixture.shape->GetAttribute(5002, out));
    QVERIFY(!fixture.shape->SetAttribute(5002, input, true, true));
    QVERIFY(!fixture.shape->SetAttribute(2804, input, true, true));
    QCOMPARE(out.bytes(), QByteArray());
    QCOMPARE(input.consumed(), 0);
    QCOMPARE(recording::count("setInnerProperty"), 0);
}

void TestAttributes::settingAnAttributeRepaints()
{
    FullShape full;
    QVERIFY(full.shape->SetAttribute(5002, inputOf(QColor(Qt::green)), false, false));
    QCOMPARE(
        recording::names({"setAllStrokeColor", "OnQPainterDraw", "notifyObjPropertyChanged"}),
        QStringList({"document.setAllStrokeColor", "object.OnQPainterDraw", "object.notifyObjPropertyChanged"}));
    QCOMPARE(recording::lastArguments("notifyObjPropertyChanged"), QVariantList({1002, QString("")}));
}

void TestAttributes::anUnknownAttributeIsRefusedWithoutRepaint()
{
    FullShape full;
    Input input = inputOf(QColor(Qt::green));
    QVERIFY(!full.shape->SetAttribute(26, input, true, true));
    QCOMPARE(input.consumed(), 0);
    QCOMPARE(recording::count("OnQPainterDraw"), 0);
}

void TestAttributes::settingAnAttributePassesItsFlags()
{
    FullShape full;
    full.shape->SetAttribute(5002, inputOf(QColor(Qt::green)), true, false);
    QCOMPARE(recording::lastArguments("setInnerProperty"), QVariantList({5002, true, false}));
    full.shape->SetAttribute(5002, inputOf(QColor(Qt::green)), false, true);
    QCOMPARE(recording::lastArguments("setInnerProperty"), QVariantList({5002, false, true}));
}

void TestAttributes::aListIndexOfThePenWidthIsRecorded()
{
    FullShape full;
    full.shape->document->setAllStrokeWidth(6);
    QVERIFY(full.shape->SetAttribute(5004, inputOf(qint32(2)), true, true));
    QCOMPARE(full.shape->getPenWidth(), 3);
    QCOMPARE(recording::lastArguments("RecordAction"), QVariantList({1004, bytesOf(qint32(3))}));
    QCOMPARE(undoStack().count(), 1);
    undoStack().undo();
    QCOMPARE(full.shape->getPenWidth(), 6);
    undoStack().redo();
    QCOMPARE(full.shape->getPenWidth(), 3);
}

void TestAttributes::aPenWidthWithoutRecordIsTakenAsItIs()
{
    FullShape full;
    QVERIFY(full.shape->SetAttribute(5004, inputOf(qint32(2)), false, true));
    QCOMPARE(full.shape->getPenWidth(), 2);
}

void TestAttributes::aSnapshotIsRefusedAndChangesNothing()
{
    FullShape full;
    QVERIFY(!full.shape->SetAttribute(2804, Input({}), true, true));
    QCOMPARE(recording::names().filter(QRegularExpression("^(document|object|undo)\\.")), QStringList());
}

void TestAttributes::aSnapshotTakesWhatIsEnabled()
{
    FullShape full;
    full.shape->SetAttribute(2804, Input({}), false, false);
    QCOMPARE(full.shape->savedPenStyleIndex, 1);
    QCOMPARE(full.shape->savedPenColor, QColor(Qt::red));
    QCOMPARE(full.shape->savedFillBrush, QBrush(Qt::blue, Qt::Dense4Pattern));
}

void TestAttributes::aSnapshotLeavesWhatIsDisabled()
{
    FullShape full;
    full.shape->propPenStyleEnabled = false;
    full.shape->propPenEnabled = false;
    full.shape->propFillEnabled = false;
    full.shape->SetAttribute(2804, Input({}), false, false);
    QCOMPARE(full.shape->savedPenStyleIndex, 0);
    QVERIFY(!full.shape->savedPenColor.isValid());
    QCOMPARE(full.shape->savedFillBrush, QBrush());
}

void TestAttributes::aRestoreBringsTheStyleBack()
{
    FullShape full;
    full.object.onSetFillProp = [](CPageBgProp *, bool) {};
    full.shape->SetAttribute(2804, Input({}), false, false);
    full.shape->setPenColor(Qt::green, false);
    full.shape->setPenStyle(Qt::NoPen, false);
    full.shape->setFillBrush(patternedGreen, false, true);
    QVERIFY(!full.shape->SetAttribute(2805, Input({}), false, false));
    QCOMPARE(full.shape->getPenColor(), QColor(Qt::red));
    QCOMPARE(full.shape->getPenStyle(), Qt::DashLine);
    QCOMPARE(full.shape->getFillBrush(), QBrush(Qt::blue, Qt::Dense4Pattern));
}

void TestAttributes::aRestoreWithoutSnapshotGivesInitialValues()
{
    FullShape full;
    full.object.onSetFillProp = [](CPageBgProp *, bool) {};
    full.shape->SetAttribute(2805, Input({}), false, false);
    QCOMPARE(full.shape->getPenStyle(), Qt::SolidLine);
    QVERIFY(!full.shape->document->getAllStrokeColor().isValid());
    QCOMPARE(full.shape->getFillBrush(), QBrush());
}

void TestAttributes::aRestoreLeavesWhatIsDisabled()
{
    FullShape full;
    full.shape->propPenStyleEnabled = false;
    full.shape->propPenEnabled = false;
    full.shape->propFillEnabled = false;
    full.shape->SetAttribute(2805, Input({}), true, false);
    QCOMPARE(recording::count("setInnerProperty"), 1);
    QCOMPARE(recording::count("RecordAction"), 0);
}

void TestAttributes::aRestoreSetsStyleThenColourThenFill()
{
    FullShape full;
    full.shape->SetAttribute(2805, Input({}), false, true);
    const QVector<recording::Call> steps = recording::calls({"setInnerProperty"});
    QCOMPARE(steps.size(), 4);
    QCOMPARE(steps[0].arguments, QVariantList({2805, false, true}));
    QCOMPARE(steps[1].arguments, QVariantList({5003, false, false}));
    QCOMPARE(steps[2].arguments, QVariantList({5002, false, false}));
    QCOMPARE(steps[3].arguments, QVariantList({5005, false, false}));
}

void TestAttributes::aRestorePassesTheRecordFlag()
{
    FullShape full;
    full.shape->SetAttribute(2805, Input({}), true, true);
    QList<int> recorded;
    for (const recording::Call &call : support::listed(recording::calls({"RecordAction"})))
        recorded.append(call.arguments.first().toInt());
    QCOMPARE(recorded, QList<int>({1003, 1002, 1005}));
}

void TestAttributes::aRestoreMakesNoUndoStepAndNoRepaint()
{
    FullShape full;
    full.shape->SetAttribute(2805, Input({}), true, true);
    QCOMPARE(undoStack().count(), 0);
    QCOMPARE(recording::count("OnQPainterDraw"), 0);
}

void TestAttributes::thePenWidthIsNotPartOfTheSnapshot()
{
    FullShape full;
    full.shape->SetAttribute(2804, Input({}), false, false);
    full.shape->setPenWidth(7, false);
    full.shape->SetAttribute(2805, Input({}), false, false);
    QCOMPARE(full.shape->getPenWidth(), 7);
}

void TestAttributes::aShapeMayKnowTheSnapshotIdsItself()
{
    FullShape full;
    full.shape->onSetInnerProperty = [](int propId, QDataStream &, bool, bool) { return propId == 2804; };
    QVERIFY(full.shape->SetAttribute(2804, Input({}), false, false));
    QCOMPARE(recording::count("OnQPainterDraw"), 1);
    QCOMPARE(full.shape->savedPenColor, QColor(Qt::red));
}

void TestAttributes::aPropertyThatIsSwitchedOffIsSetButNotDescribed()
{
    ShapeFixture fixture(twoPointTemplate());
    fixture.load();
    QVERIFY(!fixture.shape->propPenStyleEnabled);
    QVERIFY(fixture.shape->SetAttribute(5003, inputOf(qint32(4)), false, false));
    QCOMPARE(fixture.shape->getPenStyle(), Qt::DashDotLine);
    Output out;
    QVERIFY(!fixture.shape->GetAttribute(5003, out));
}

// The fill of no brush is black too, and only colours are compared.
void TestAttributes::aRestoreWithoutSnapshotLeavesABlackFill()
{
    FullShape full;
    full.shape->updateBrush(QBrush(Qt::black, Qt::CrossPattern));
    full.shape->SetAttribute(2805, Input({}), false, false);
    QCOMPARE(full.shape->getFillBrush(), QBrush(Qt::black, Qt::CrossPattern));
}

QTEST_MAIN(TestAttributes)
#include "test_attributes.moc"

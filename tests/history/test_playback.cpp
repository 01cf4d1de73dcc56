#include <support/shapefixture.h>
#include <support/streams.h>

#include <framework/cundoredo.h>
#include <svgobj/csvgpropitem.h>

#include <QtTest/QtTest>
#include <QtWidgets/QUndoStack>

using support::bytesOf;
using support::Input;
using support::inputOf;
using support::Output;
using support::ShapeFixture;
using support::twoPointTemplate;

/// Replay of one recorded action, and the snapshot at the start of a recording.
class TestPlayback : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aMovePlacesTheControlPoint();
    void aMoveTellsTheShapeThatItIsUnderWay();
    void aMoveIsNotRecordedAgain();
    void aMoveAsksForNoRepaint();
    void aMoveWithoutEffectIsStillKnown();
    void aMoveOfAnUnknownNodeIsRefused();
    void aMoveOfAnUnknownNodeLeavesThePositionUnread();
    void aMoveMayNameAnyNode();

    void aPenColourIsReplayed();
    void aPenStyleIsReplayed();
    void aPenWidthIsReplayedAsItIs();
    void aFillIsReplayedAsBrush();
    void aFillAsRecordedIsReplayedAsOpaqueBlack();
    void aPropertyIsAppliedWithoutRecordAndUndo();
    void aPropertyRepaints();
    void theShapesItemsNameTheProperty();
    void anActionWithoutItemIsRefused();
    void aPropertyThatTheShapeDoesNotKnowIsRefused();
    void withoutDocumentNothingIsReplayed();

    void aSnapshotIsTheShapesStream();
    void aSnapshotComesBack();
    void aSnapshotSucceedsWhateverTheShapeSays();
};

namespace {

class FullShape : public ShapeFixture
{
public:
    FullShape()
        : ShapeFixture(twoPointTemplate())
    {
        shape->propPenStyleEnabled = true;
        shape->propPenWidthEnabled = true;
        shape->propFillEnabled = true;
        load();
    }
};

} // namespace

void TestPlayback::aMovePlacesTheControlPoint()
{
    FullShape full;
    QVERIFY(full.shape->DoPlaybackActionEx(1001, inputOf(QString("control_2"), QPointF(12.5, 40))));
    QCOMPARE(full.shape->pointRect(2), QRectF(12.5, 40, 8, 8));
    QCOMPARE(full.shape->pointRect(1), QRectF(10, 20, 8, 8));
}

void TestPlayback::aMoveTellsTheShapeThatItIsUnderWay()
{
    FullShape full;
    full.shape->DoPlaybackActionEx(1001, inputOf(QString("control_1"), QPointF(12.5, 40)));
    // The arguments are node, offset, refresh, and whether the update is finished.
    QCOMPARE(recording::lastArguments("updateSVG"), QVariantList({"control_1", QPointF(2.5, 20), true, false}));
    QVERIFY(full.shape->updateFinished);
}

void TestPlayback::aMoveIsNotRecordedAgain()
{
    FullShape full;
    full.shape->DoPlaybackActionEx(1001, inputOf(QString("control_1"), QPointF(12.5, 40)));
    QCOMPARE(recording::count("RecordAction"), 0);
    QCOMPARE(recording::count("push"), 0);
}

void TestPlayback::aMoveAsksForNoRepaint()
{
    FullShape full;
    full.shape->DoPlaybackActionEx(1001, inputOf(QString("control_1"), QPointF(12.5, 40)));
    QCOMPARE(recording::names({"OnQPainterDraw", "notifyObjPropertyChanged", "updateOutlineRegion"}),
             QStringList());
}

void TestPlayback::aMoveWithoutEffectIsStillKnown()
{
    FullShape full;
    QVERIFY(full.shape->DoPlaybackActionEx(1001, inputOf(QString("control_1"), QPointF(10, 20))));
    QCOMPARE(recording::count("updateSVG"), 0);
}

void TestPlayback::aMoveOfAnUnknownNodeIsRefused()
{
    FullShape full;
    QVERIFY(!full.shape->DoPlaybackActionEx(1001, inputOf(QString("control_3"), QPointF(12.5, 40))));
    QCOMPARE(full.shape->pointRect(1), QRectF(10, 20, 8, 8));
    QCOMPARE(full.shape->pointRect(2), QRectF(60, 30, 8, 8));
    QCOMPARE(recording::count("setNumericAttribute"), 0);
}

void TestPlayback::aMoveOfAnUnknownNodeLeavesThePositionUnread()
{
    FullShape full;
    Input input = inputOf(QString("control_3"), QPointF(12.5, 40));
    full.shape->DoPlaybackActionEx(1001, input);
    QCOMPARE(input.consumed(), qint64(bytesOf(QString("control_3")).size()));
}

void TestPlayback::aMoveMayNameAnyNode()
{
    FullShape full;
    QVERIFY(full.shape->DoPlaybackActionEx(1001, inputOf(QString("body"), QPointF(3, 4))));
    QCOMPARE(full.shape->node("body")->boundingRect().topLeft(), QPointF(3, 4));
}

void TestPlayback::aPenColourIsReplayed()
{
    FullShape full;
    QVERIFY(full.shape->DoPlaybackActionEx(1002, inputOf(QColor(Qt::red))));
    QCOMPARE(full.shape->getPenColor(), QColor(Qt::red));
    QCOMPARE(CUndoRedo::GetInstance()->stack()->count(), 0);
    QCOMPARE(recording::count("RecordAction"), 0);
}

void TestPlayback::aPenStyleIsReplayed()
{
    FullShape full;
    QVERIFY(full.shape->DoPlaybackActionEx(1003, inputOf(qint32(3))));
    QCOMPARE(full.shape->getPenStyle(), Qt::DotLine);
}

void TestPlayback::aPenWidthIsReplayedAsItIs()
{
    FullShape full;
    QVERIFY(full.shape->DoPlaybackActionEx(1004, inputOf(qint32(5))));
    QCOMPARE(full.shape->getPenWidth(), 5);
}

void TestPlayback::aFillIsReplayedAsBrush()
{
    FullShape full;
    full.object.onSetFillProp = [](CPageBgProp *, bool) {};
    const QBrush brush(Qt::red, Qt::CrossPattern);
    QVERIFY(full.shape->DoPlaybackActionEx(1005, inputOf(brush)));
    QCOMPARE(full.shape->getFillBrush(), brush);
}

// Deliberate: a fill is recorded as its colour and read as a brush. Whoever plays a lesson converts.
void TestPlayback::aFillAsRecordedIsReplayedAsOpaqueBlack()
{
    FullShape full;
    full.shape->setFillBrush(QBrush(Qt::yellow, Qt::CrossPattern), true, true);
    QCOMPARE(recording::lastArguments("RecordAction"), QVariantList({1005, bytesOf(QColor(Qt::yellow))}));
    const QByteArray recorded = recording::lastArguments("RecordAction").constLast().toByteArray();
    full.object.onSetFillProp = [](CPageBgProp *, bool) {};
    Input input(recorded);
    QVERIFY(full.shape->DoPlaybackActionEx(1005, input));
    QCOMPARE(full.shape->getFillBrush().style(), Qt::SolidPattern);
    QCOMPARE(full.shape->getFillBrush().color().name(QColor::HexArgb), QStringLiteral("#ff000000"));
    QCOMPARE(input.status(), QDataStream::ReadPastEnd);
}

void TestPlayback::aPropertyIsAppliedWithoutRecordAndUndo()
{
    FullShape full;
    full.shape->DoPlaybackActionEx(1002, inputOf(QColor(Qt::red)));
    QCOMPARE(recording::lastArguments("setInnerProperty"), QVariantList({5002, false, false}));
}

void TestPlayback::aPropertyRepaints()
{
    FullShape full;
    full.shape->DoPlaybackActionEx(1002, inputOf(QColor(Qt::red)));
    QCOMPARE(
        recording::names({"setAllStrokeColor", "OnQPainterDraw", "notifyObjPropertyChanged"}),
        QStringList({"document.setAllStrokeColor", "object.OnQPainterDraw", "object.notifyObjPropertyChanged"}));
    QCOMPARE(recording::lastArguments("notifyObjPropertyChanged"), QVariantList({1002, QString("")}));
}

void TestPlayback::theShapesItemsNameTheProperty()
{
    FullShape full;
    full.shape->propItems.append(new CSVGPropItem(26, "own", 2000, DATA_TYPE_REAL, nullptr, false));
    double value = 0;
    full.shape->onSetInnerProperty = [&](int propId, QDataStream &in, bool, bool) {
        in >> value;
        return propId == 26;
    };
    QVERIFY(full.shape->DoPlaybackActionEx(2000, inputOf(2.5)));
    QCOMPARE(value, 2.5);
    QCOMPARE(recording::lastArguments("actionIdToPropId"), QVariantList({2000}));
}

void TestPlayback::anActionWithoutItemIsRefused()
{
    FullShape full;
    Input input = inputOf(QColor(Qt::red));
    QVERIFY(!full.shape->DoPlaybackActionEx(1999, input));
    QCOMPARE(recording::lastArguments("setInnerProperty"), QVariantList({0, false, false}));
    QCOMPARE(input.consumed(), 0);
    QCOMPARE(recording::count("OnQPainterDraw"), 0);
}

void TestPlayback::aPropertyThatTheShapeDoesNotKnowIsRefused()
{
    FullShape full;
    full.shape->propItems.append(new CSVGPropItem(26, "own", 2000, DATA_TYPE_REAL, nullptr, false));
    QVERIFY(!full.shape->DoPlaybackActionEx(2000, inputOf(2.5)));
    QCOMPARE(recording::lastArguments("setInnerProperty"), QVariantList({26, false, false}));
    QCOMPARE(recording::count("OnQPainterDraw"), 0);
}

void TestPlayback::withoutDocumentNothingIsReplayed()
{
    ShapeFixture fixture(twoPointTemplate());
    QVERIFY(!fixture.shape->DoPlaybackActionEx(1001, inputOf(QString("control_1"), QPointF(1, 1))));
    QVERIFY(!fixture.shape->DoPlaybackActionEx(1002, inputOf(QColor(Qt::red))));
}

void TestPlayback::aSnapshotIsTheShapesStream()
{
    FullShape full;
    Output saved;
    Output snapshot;
    QVERIFY(full.shape->save(saved));
    QVERIFY(full.shape->SavePropertyForPlayback(snapshot));
    QVERIFY(!saved.bytes().isEmpty());
    QCOMPARE(snapshot.bytes(), saved.bytes());
}

void TestPlayback::aSnapshotComesBack()
{
    FullShape full;
    full.shape->document->setAllStrokeColor(Qt::red);
    Output snapshot;
    full.shape->SavePropertyForPlayback(snapshot);
    full.shape->document->setAllStrokeColor(Qt::green);
    full.shape->point(1)->setNumericAttribute("x", 70);
    QVERIFY(full.shape->LoadPropertyForPlayback(Input(snapshot.bytes())));
    QCOMPARE(full.shape->getPenColor(), QColor(Qt::red));
    QCOMPARE(full.shape->pointRect(1), QRectF(10, 20, 8, 8));
}

void TestPlayback::aSnapshotSucceedsWhateverTheShapeSays()
{
    FullShape full;
    full.shape->onSave = [](QDataStream &) { return false; };
    full.shape->onLoad = [](QDataStream &) { return false; };
    Output snapshot;
    QVERIFY(full.shape->SavePropertyForPlayback(snapshot));
    QVERIFY(full.shape->LoadPropertyForPlayback(Input({})));
}

QTEST_MAIN(TestPlayback)
#include "test_playback.moc"

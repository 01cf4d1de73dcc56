#include <support/shapefixture.h>
#include <support/streams.h>

#include <framework/ilocalize.h>
#include <svgobj/csvgbaseundocmd.h>

#include <QtTest/QtTest>
#include <QtWidgets/QUndoStack>

using support::bytesOf;
using support::inputOf;
using support::ShapeFixture;
using support::twoPointTemplate;
using support::undoStack;

/// The undo command: what it keeps, and what undo and redo replay.
class TestUndo : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void itsTextIsALocalisationKey();
    void itIsNeverMerged();
    void itsPlaceInTheHistoryIsTheHosts();
    void itJoinsItsParent();

    void anAppliedCommandDoesNotRedoBeforeThePush();
    void anAppliedCommandRedoesAfterThePush();
    void thePushDoesNotReplay();
    void aCommandThatIsNotAppliedRedoesAtOnce();
    void undoNeedsNoPush();

    void aFlagIsReplayed();
    void anIntegerIsReplayed();
    void aRealIsReplayed();
    void aColourIsReplayed();
    void aBrushIsReplayed();
    void aTextIsReplayed();
    void aBufferIsReplayedAsItIs();
    void aCommandWithoutValueReplaysNothing();
    void theActionIdIsReplayed();

    void aMoveIsReplayedByNodeIdAndPosition();
    void aMoveIsUndoneAndRedone();
    void aMoveRefreshesTheOutlineByType_data();
    void aMoveRefreshesTheOutlineByType();
    void theOutlineIsRefreshedAfterTheMove();
    void aPropertyDoesNotRefreshTheOutline();
    void aMoveWhoseNodeIsGoneMovesNothing();
    void aMoveWithoutNodeDoesNothing();
    void aMoveRepaintsOnlyThroughTheShape();
    void aMoveIsNotRecorded();

    void aPenColourChangeIsOneStep();
    void aPenColourChangeIsUndoneAndRedone();
    void twoWidthChangesAreTwoSteps();
    void aFillThatDiffersInStyleMakesAStepThatChangesNothing();
    void aPropertyWithoutItemIsNotUndone();
    void anUnknownActionChangesNothing();
};

namespace {

/// A shape that keeps what is replayed instead of applying it.
class Replayed : public ShapeFixture
{
public:
    Replayed()
        : ShapeFixture(twoPointTemplate())
    {
        load();
        shape->onDoPlaybackActionEx = [this](int actionId, QDataStream &in) {
            action = actionId;
            bytes = in.device()->readAll();
            ++count;
            return true;
        };
    }

    int action = 0;
    QByteArray bytes;
    int count = 0;
};

/// Replays both values of a command that `set` fills.
template<typename Set> QPair<QByteArray, QByteArray> oldAndNew(Set set)
{
    Replayed replayed;
    CSVGBaseUndoCmd command(replayed.shape, 2000, nullptr, false);
    set(command);
    command.undo();
    const QByteArray oldBytes = replayed.bytes;
    command.redo();
    return {oldBytes, replayed.bytes};
}

using BytesPair = QPair<QByteArray, QByteArray>;

class UpperCase : public ILocalize
{
public:
    QString text(const QString &key) const override { return key.toUpper(); }
};

} // namespace

void TestUndo::itsTextIsALocalisationKey()
{
    const Replayed replayed;
    const CSVGBaseUndoCmd command(replayed.shape, 1002, nullptr, true);
    QCOMPARE(command.text(), QString("IDS_SVG_attribute_adjust"));
    UpperCase localize;
    QCOMPARE(command.getActionName(&localize), QString("IDS_SVG_ATTRIBUTE_ADJUST"));
}

void TestUndo::itIsNeverMerged()
{
    const Replayed replayed;
    CSVGBaseUndoCmd command(replayed.shape, 1004, nullptr, true);
    CSVGBaseUndoCmd next(replayed.shape, 1004, nullptr, true);
    QCOMPARE(command.id(), -1);
    QVERIFY(!command.mergeWith(&next));
}

void TestUndo::itsPlaceInTheHistoryIsTheHosts()
{
    const Replayed replayed;
    CSVGBaseUndoCmd command(replayed.shape, 1004, nullptr, true);
    QCOMPARE(command.getIdxCmd(), -1);
    command.setIdxCmd(4);
    QCOMPARE(command.getIdxCmd(), 4);
}

void TestUndo::itJoinsItsParent()
{
    const Replayed replayed;
    QUndoCommand parent;
    const auto *command = new CSVGBaseUndoCmd(replayed.shape, 1004, &parent, true);
    QCOMPARE(parent.childCount(), 1);
    QCOMPARE(parent.child(0), command);
}

void TestUndo::anAppliedCommandDoesNotRedoBeforeThePush()
{
    const Replayed replayed;
    CSVGBaseUndoCmd command(replayed.shape, 2000, nullptr, true);
    command.setInt(1, 2);
    command.redo();
    QCOMPARE(replayed.count, 0);
}

void TestUndo::anAppliedCommandRedoesAfterThePush()
{
    const Replayed replayed;
    auto *command = new CSVGBaseUndoCmd(replayed.shape, 2000, nullptr, true);
    command->setInt(1, 2);
    replayed.shape->addUndoRedo(command);
    undoStack().undo();
    undoStack().redo();
    QCOMPARE(replayed.count, 2);
    QCOMPARE(replayed.bytes, bytesOf(qint32(2)));
    undoStack().undo();
    undoStack().redo();
    QCOMPARE(replayed.count, 4);
}

void TestUndo::thePushDoesNotReplay()
{
    const Replayed replayed;
    auto *command = new CSVGBaseUndoCmd(replayed.shape, 2000, nullptr, true);
    command->setInt(1, 2);
    replayed.shape->addUndoRedo(command);
    QCOMPARE(replayed.count, 0);
}

void TestUndo::aCommandThatIsNotAppliedRedoesAtOnce()
{
    const Replayed replayed;
    auto *command = new CSVGBaseUndoCmd(replayed.shape, 2000, nullptr, false);
    command->setInt(1, 2);
    replayed.shape->addUndoRedo(command);
    QCOMPARE(replayed.count, 1);
    QCOMPARE(replayed.bytes, bytesOf(qint32(2)));
}

void TestUndo::undoNeedsNoPush()
{
    const Replayed replayed;
    CSVGBaseUndoCmd command(replayed.shape, 2000, nullptr, true);
    command.setInt(1, 2);
    command.undo();
    QCOMPARE(replayed.bytes, bytesOf(qint32(1)));
}

void TestUndo::aFlagIsReplayed()
{
    const BytesPair bytes = oldAndNew([](CSVGBaseUndoCmd &command) { command.setBool(true, false); });
    QCOMPARE(bytes, BytesPair(QByteArray("\1", 1), QByteArray("\0", 1)));
}

void TestUndo::anIntegerIsReplayed()
{
    const BytesPair bytes = oldAndNew([](CSVGBaseUndoCmd &command) { command.setInt(3, -1); });
    QCOMPARE(bytes, BytesPair(QByteArray("\0\0\0\3", 4), QByteArray("\xff\xff\xff\xff", 4)));
}

void TestUndo::aRealIsReplayed()
{
    const BytesPair bytes = oldAndNew([](CSVGBaseUndoCmd &command) { command.setDouble(0.5, 0.1); });
    QCOMPARE(bytes, BytesPair(bytesOf(0.5), bytesOf(0.1)));
}

void TestUndo::aColourIsReplayed()
{
    const BytesPair bytes = oldAndNew([](CSVGBaseUndoCmd &command) { command.setColor(Qt::red, Qt::blue); });
    QCOMPARE(bytes, BytesPair(bytesOf(QColor(Qt::red)), bytesOf(QColor(Qt::blue))));
}

void TestUndo::aBrushIsReplayed()
{
    const QBrush oldBrush(Qt::red, Qt::CrossPattern);
    const QBrush newBrush(Qt::blue, Qt::Dense1Pattern);
    const BytesPair bytes = oldAndNew([&](CSVGBaseUndoCmd &command) { command.setBrush(oldBrush, newBrush); });
    QCOMPARE(bytes, BytesPair(bytesOf(oldBrush), bytesOf(newBrush)));
}

void TestUndo::aTextIsReplayed()
{
    const BytesPair bytes = oldAndNew([](CSVGBaseUndoCmd &command) { command.setString("old", "new"); });
    QCOMPARE(bytes, BytesPair(bytesOf(QString("old")), bytesOf(QString("new"))));
}

void TestUndo::aBufferIsReplayedAsItIs()
{
    const BytesPair bytes = oldAndNew([](CSVGBaseUndoCmd &command) { command.setDataBuffer("ab", "cde"); });
    QCOMPARE(bytes, BytesPair("ab", "cde"));
}

void TestUndo::aCommandWithoutValueReplaysNothing()
{
    const BytesPair bytes = oldAndNew([](CSVGBaseUndoCmd &) {});
    QCOMPARE(bytes, BytesPair());
}

void TestUndo::theActionIdIsReplayed()
{
    const Replayed replayed;
    CSVGBaseUndoCmd command(replayed.shape, 1234, nullptr, false);
    command.undo();
    QCOMPARE(replayed.action, 1234);
}

void TestUndo::aMoveIsReplayedByNodeIdAndPosition()
{
    const Replayed replayed;
    CSVGBaseUndoCmd command(replayed.shape, 1001, nullptr, false);
    command.setControlPointPos(replayed.shape->point(2), QPointF(1, 2), QPointF(3, 4));
    command.undo();
    QCOMPARE(replayed.action, 1001);
    QCOMPARE(replayed.bytes, bytesOf(QString("control_2"), QPointF(1, 2)));
    command.redo();
    QCOMPARE(replayed.bytes, bytesOf(QString("control_2"), QPointF(3, 4)));
}

void TestUndo::aMoveIsUndoneAndRedone()
{
    ShapeFixture fixture(twoPointTemplate());
    fixture.load();
    CSVGBaseUndoCmd command(fixture.shape, 1001, nullptr, false);
    command.setControlPointPos(fixture.shape->point(1), QPointF(1, 2), QPointF(3, 4));
    command.undo();
    QCOMPARE(fixture.shape->pointRect(1), QRectF(1, 2, 8, 8));
    command.redo();
    QCOMPARE(fixture.shape->pointRect(1), QRectF(3, 4, 8, 8));
}

void TestUndo::aMoveRefreshesTheOutlineByType_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<int>("refreshes");
    QTest::newRow("1000") << 1000 << 1;
    QTest::newRow("26") << 26 << 1;
    QTest::newRow("0") << 0 << 1;
    QTest::newRow("-1") << -1 << 1;
    QTest::newRow("27") << 27 << 0;
    QTest::newRow("999") << 999 << 0;
    QTest::newRow("1001") << 1001 << 0;
}

void TestUndo::aMoveRefreshesTheOutlineByType()
{
    QFETCH(int, type);
    QFETCH(int, refreshes);
    ShapeFixture fixture(twoPointTemplate(), type);
    fixture.load();
    CSVGBaseUndoCmd command(fixture.shape, 1001, nullptr, false);
    command.setControlPointPos(fixture.shape->point(1), QPointF(1, 2), QPointF(3, 4));
    command.undo();
    QCOMPARE(recording::count("updateOutlineRegion"), refreshes);
    command.redo();
    QCOMPARE(recording::count("updateOutlineRegion"), 2 * refreshes);
}

void TestUndo::theOutlineIsRefreshedAfterTheMove()
{
    ShapeFixture fixture(twoPointTemplate(), 1000);
    fixture.shape->keepOutlineRegion = true;
    fixture.load();
    CSVGBaseUndoCmd command(fixture.shape, 1001, nullptr, false);
    command.setControlPointPos(fixture.shape->point(1), QPointF(200, 0), QPointF(300, 0));
    command.undo();
    QCOMPARE(fixture.shape->outlineRegion->boundingRect(), QRectF(0, 0, 208, 50));
    command.redo();
    QCOMPARE(fixture.shape->outlineRegion->boundingRect(), QRectF(0, 0, 308, 50));
}

void TestUndo::aPropertyDoesNotRefreshTheOutline()
{
    ShapeFixture fixture(twoPointTemplate(), 1000);
    fixture.load();
    CSVGBaseUndoCmd command(fixture.shape, 1002, nullptr, false);
    command.setColor(Qt::red, Qt::blue);
    command.undo();
    command.redo();
    QCOMPARE(recording::count("updateOutlineRegion"), 0);
}

void TestUndo::aMoveWhoseNodeIsGoneMovesNothing()
{
    ShapeFixture fixture(twoPointTemplate());
    fixture.load();
    QZeSvgNode *node = fixture.shape->point(2);
    CSVGBaseUndoCmd command(fixture.shape, 1001, nullptr, false);
    command.setControlPointPos(node, QPointF(1, 2), QPointF(3, 4));
    fixture.shape->removeNode(node);
    command.undo();
    QCOMPARE(node->boundingRect(), QRectF(60, 30, 8, 8));
    QCOMPARE(fixture.shape->pointRect(1), QRectF(10, 20, 8, 8));
    QCOMPARE(recording::count("updateSVG"), 0);
}

void TestUndo::aMoveWithoutNodeDoesNothing()
{
    ShapeFixture fixture(twoPointTemplate());
    fixture.load();
    CSVGBaseUndoCmd command(fixture.shape, 1001, nullptr, false);
    command.undo();
    command.redo();
    QCOMPARE(recording::count("updateSVG"), 0);
    QCOMPARE(fixture.shape->pointRect(1), QRectF(10, 20, 8, 8));
}

void TestUndo::aMoveRepaintsOnlyThroughTheShape()
{
    ShapeFixture fixture(twoPointTemplate());
    fixture.load();
    CSVGBaseUndoCmd command(fixture.shape, 1001, nullptr, false);
    command.setControlPointPos(fixture.shape->point(1), QPointF(1, 2), QPointF(3, 4));
    command.undo();
    QCOMPARE(recording::lastArguments("updateSVG"), QVariantList({"control_1", QPointF(-9, -18), true, false}));
    QCOMPARE(recording::count("OnQPainterDraw"), 0);
    fixture.shape->onUpdateNode = [&](QZeSvgNode *, QPointF, bool refresh) {
        if (refresh)
            fixture.shape->invalidate();
        return true;
    };
    command.redo();
    QCOMPARE(recording::count("OnQPainterDraw"), 1);
}

void TestUndo::aMoveIsNotRecorded()
{
    ShapeFixture fixture(twoPointTemplate());
    fixture.load();
    CSVGBaseUndoCmd command(fixture.shape, 1001, nullptr, false);
    command.setControlPointPos(fixture.shape->point(1), QPointF(1, 2), QPointF(3, 4));
    command.undo();
    command.redo();
    QCOMPARE(recording::count("RecordAction"), 0);
    QCOMPARE(undoStack().count(), 0);
}

void TestUndo::aPenColourChangeIsOneStep()
{
    ShapeFixture fixture(twoPointTemplate());
    fixture.load();
    fixture.shape->setInnerProperty(5002, inputOf(QColor(Qt::red)), false, true);
    QCOMPARE(undoStack().count(), 1);
    QCOMPARE(recording::count("setAllStrokeColor"), 1);
}

void TestUndo::aPenColourChangeIsUndoneAndRedone()
{
    ShapeFixture fixture(twoPointTemplate());
    fixture.load();
    fixture.shape->document->setAllStrokeColor(Qt::green);
    fixture.shape->setInnerProperty(5002, inputOf(QColor(Qt::red)), false, true);
    undoStack().undo();
    QCOMPARE(fixture.shape->getPenColor(), QColor(Qt::green));
    undoStack().redo();
    QCOMPARE(fixture.shape->getPenColor(), QColor(Qt::red));
    QCOMPARE(undoStack().count(), 1);
    QCOMPARE(recording::count("RecordAction"), 0);
}

void TestUndo::twoWidthChangesAreTwoSteps()
{
    ShapeFixture fixture(twoPointTemplate());
    fixture.shape->propPenWidthEnabled = true;
    fixture.load();
    fixture.shape->document->setAllStrokeWidth(1);
    fixture.shape->setInnerProperty(5004, inputOf(qint32(4)), false, true);
    fixture.shape->setInnerProperty(5004, inputOf(qint32(6)), false, true);
    QCOMPARE(undoStack().count(), 2);
    undoStack().undo();
    QCOMPARE(fixture.shape->getPenWidth(), 4);
    undoStack().undo();
    QCOMPARE(fixture.shape->getPenWidth(), 1);
}

void TestUndo::aFillThatDiffersInStyleMakesAStepThatChangesNothing()
{
    ShapeFixture fixture(twoPointTemplate());
    fixture.shape->propFillEnabled = true;
    fixture.load();
    const QBrush solid(Qt::red);
    fixture.shape->document->setAllFillBrush(solid);
    fixture.shape->setInnerProperty(5005, inputOf(QBrush(Qt::red, Qt::CrossPattern)), false, true);
    QCOMPARE(undoStack().count(), 1);
    QCOMPARE(fixture.shape->getFillBrush(), solid);
    undoStack().undo();
    undoStack().redo();
    QCOMPARE(fixture.shape->getFillBrush(), solid);
}

void TestUndo::aPropertyWithoutItemIsNotUndone()
{
    ShapeFixture fixture(twoPointTemplate());
    fixture.shape->propPenEnabled = false;
    fixture.load();
    fixture.shape->setInnerProperty(5002, inputOf(QColor(Qt::red)), false, true);
    QCOMPARE(undoStack().count(), 1);
    undoStack().undo();
    QCOMPARE(fixture.shape->getPenColor(), QColor(Qt::red));
}

void TestUndo::anUnknownActionChangesNothing()
{
    ShapeFixture fixture(twoPointTemplate());
    fixture.load();
    CSVGBaseUndoCmd command(fixture.shape, 1999, nullptr, false);
    command.setColor(Qt::red, Qt::blue);
    command.undo();
    command.redo();
    QCOMPARE(recording::names().filter(QRegularExpression("^(document|object)\\.")), QStringList());
}

QTEST_MAIN(TestUndo)
#include "test_undo.moc"

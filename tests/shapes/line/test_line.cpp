// Lines, arrows and curves on the page. Their pen is 2 wide: 8 units of room are around them, and arrow heads are
// 10 long and 9 wide.

#include "shapes/writingdesk.h"

using pagehost::ToolRole;

namespace {

struct Desk : WritingDesk
{
    explicit Desk(int variant = pagehost::PlainLine)
        : WritingDesk(ToolRole::Line, {QColor(0x25, 0x63, 0xcf), 2, variant})
    {
    }
    /// From (100, 120).
    CBaseObject *drawnTo(const QPointF &end, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        drag({100, 120}, end, modifiers);
        return page->objects().value(0);
    }
    void putToolDown() { page->scene()->setTool(nullptr); }
};

} // namespace

class TestLine : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aDragMakesALineThatIsSelected();
    void aLineMayRunToTheLeftAndUp();
    void shiftKeepsToStepsOfFifteenDegrees();
    void anArrowHasAHeadAtItsEnd();
    void aCurveIsBent();
    void aClickDrawsNothing();
    void escapeLeavesNoTrace();
    void anEndIsDraggedAnywhere();
    void theMiddleIsDraggedToBendTheLine();
    void aResizedLineFillsItsBox();
    void aLevelLineStaysInTheMiddleOfAHigherBox();
    void aWiderPenMakesRoomForItsHead();
    void theOtherEndOfATurnedLineStays();
    void theOtherEndOfAMirroredLineStays();
    void aMirroredLineIsDraggedInALesson();
    void aLineThatIsSavedAndOpenedIsTheSame();
    void aLessonShowsTheLineGrow();
    void aDamagedLineOpens();
};

void TestLine::aDragMakesALineThatIsSelected()
{
    Desk desk;
    CBaseObject *line = desk.drawnTo({200, 180});
    QCOMPARE(desk.placeOf(line), QRectF(92, 112, 116, 76));
    QVERIFY2(desk.svgOf(line).contains("d=\"M0 0 L100 60"), qPrintable(desk.svgOf(line)));
    QCOMPARE(desk.page->selectedObjects(), QVector<CBaseObject *>{line});
    QCOMPARE(desk.session.takeResult()->afterwards, pagehost::ToolPage::Select);
    QCOMPARE(undoStack()->count(), 1);
    undoStack()->undo();
    QCOMPARE(desk.page->objectCount(), 0);
}

void TestLine::aLineMayRunToTheLeftAndUp()
{
    Desk desk;
    QCOMPARE(desk.placeOf(desk.drawnTo({50, 40})), QRectF(42, 32, 66, 96));
}

void TestLine::shiftKeepsToStepsOfFifteenDegrees()
{
    Desk desk;
    QCOMPARE(desk.placeOf(desk.drawnTo({200, 130}, Qt::ShiftModifier)), QRectF(92, 112, 116, 16));
}

void TestLine::anArrowHasAHeadAtItsEnd()
{
    Desk desk(pagehost::ArrowLine);
    const QString svg = desk.svgOf(desk.drawnTo({200, 120}));
    QVERIFY2(svg.contains("M100 0 L90 4.5 L90 -4.5 Z"), qPrintable(svg));
    QVERIFY2(svg.contains("d=\"M0 0 L93 0"), qPrintable(svg));
}

void TestLine::aCurveIsBent()
{
    Desk desk(pagehost::CurvedLine);
    CBaseObject *curve = desk.drawnTo({200, 120});
    QCOMPARE(desk.placeOf(curve), QRectF(92, 87, 116, 41));
    QVERIFY2(desk.svgOf(curve).contains("M0 0 Q50 -50 100 0"), qPrintable(desk.svgOf(curve)));
}

void TestLine::aClickDrawsNothing()
{
    Desk desk;
    desk.click({100, 120});
    QCOMPARE(desk.page->objectCount(), 0);
    QCOMPARE(undoStack()->count(), 0);
}

void TestLine::escapeLeavesNoTrace()
{
    Desk desk;
    desk.press({100, 120});
    desk.moveTo({200, 180});
    QCOMPARE(desk.page->objectCount(), 1);
    desk.pressKey(Qt::Key_Escape);
    desk.release({200, 180});
    QCOMPARE(desk.page->objectCount(), 0);
    QCOMPARE(undoStack()->count(), 0);
}

void TestLine::anEndIsDraggedAnywhere()
{
    Desk desk;
    CBaseObject *line = desk.drawnTo({200, 180});
    desk.putToolDown();
    desk.drag({200, 180}, {300, 100});
    QCOMPARE(desk.placeOf(line), QRectF(92, 92, 216, 36));
    QVERIFY2(desk.svgOf(line).contains("d=\"M0 0 L200 -20"), qPrintable(desk.svgOf(line)));
    undoStack()->undo();
    QCOMPARE(desk.placeOf(line), QRectF(92, 112, 116, 76));
    undoStack()->redo();
    QCOMPARE(desk.placeOf(line), QRectF(92, 92, 216, 36));
}

void TestLine::theMiddleIsDraggedToBendTheLine()
{
    Desk desk;
    CBaseObject *line = desk.drawnTo({200, 120});
    desk.putToolDown();
    desk.drag({150, 120}, {150, 95});
    QCOMPARE(desk.placeOf(line), QRectF(92, 87, 116, 41));
    undoStack()->undo();
    QCOMPARE(desk.placeOf(line), QRectF(92, 112, 116, 16));
}

void TestLine::aResizedLineFillsItsBox()
{
    Desk desk;
    CBaseObject *line = desk.drawnTo({200, 180});
    QVERIFY(pagehost::resizeObject(line, {232, 152}));
    QCOMPARE(desk.placeOf(line), QRectF(92, 112, 232, 152));
    // The room around the ends stays.
    QVERIFY2(desk.svgOf(line).contains("d=\"M0 0 L216 136"), qPrintable(desk.svgOf(line)));
    undoStack()->undo();
    QVERIFY2(desk.svgOf(line).contains("d=\"M0 0 L100 60"), qPrintable(desk.svgOf(line)));
}

void TestLine::aLevelLineStaysInTheMiddleOfAHigherBox()
{
    Desk desk;
    CBaseObject *line = desk.drawnTo({200, 120});
    QVERIFY(pagehost::resizeObject(line, {116, 56}));
    QCOMPARE(desk.placeOf(line), QRectF(92, 112, 116, 56));
    QVERIFY2(desk.svgOf(line).contains("viewBox=\"-8 -28 116 56\""), qPrintable(desk.svgOf(line)));
    const std::unique_ptr<CBaseObject> copy(pagehost::cloneObject(line, &shapes()));
    QVERIFY2(desk.svgOf(copy.get()).contains("viewBox=\"-8 -28 116 56\""), qPrintable(desk.svgOf(copy.get())));
}

/// A head of a pen of 10 is 40 long and 36 wide.
void TestLine::aWiderPenMakesRoomForItsHead()
{
    Desk desk(pagehost::ArrowLine);
    CBaseObject *arrow = desk.drawnTo({200, 120});
    QVERIFY(pagehost::setPenWidth({arrow}, 10));
    QCOMPARE(desk.placeOf(arrow), QRectF(72, 92, 156, 56));
    undoStack()->undo();
    QCOMPARE(desk.placeOf(arrow), QRectF(92, 112, 116, 16));
}

void TestLine::theOtherEndOfATurnedLineStays()
{
    Desk desk;
    CBaseObject *line = desk.drawnTo({200, 120});
    desk.putToolDown();
    QVERIFY(pagehost::rotateObjects({line}, 90));
    QCOMPARE(line->mapToScene(QPointF(8, 8)), QPointF(150, 70));
    desk.drag({150, 170}, {150, 200});
    QCOMPARE(line->getClientRect().size(), QSizeF(146, 16));
    QCOMPARE(line->mapToScene(QPointF(8, 8)), QPointF(150, 70));
    QCOMPARE(line->mapToScene(QPointF(138, 8)), QPointF(150, 200));
}

/// It goes down to the left then, from (200, 120).
void TestLine::theOtherEndOfAMirroredLineStays()
{
    Desk desk;
    CBaseObject *line = desk.drawnTo({200, 180});
    desk.putToolDown();
    QVERIFY(pagehost::mirrorObjects({line}, true));
    desk.drag({100, 180}, {60, 160});
    QCOMPARE(desk.placeOf(line), QRectF(52, 112, 156, 56));
    undoStack()->undo();
    QCOMPARE(desk.placeOf(line), QRectF(92, 112, 116, 76));
}

void TestLine::aMirroredLineIsDraggedInALesson()
{
    Desk desk;
    CBaseObject *line = desk.drawnTo({200, 180});
    desk.putToolDown();
    QVERIFY(pagehost::mirrorObjects({line}, true));
    desk.recorder.start(&desk.document);
    desk.press({100, 180});
    desk.letTimersRun();
    desk.now = 1000;
    desk.moveTo({60, 160});
    desk.letTimersRun();
    desk.now = 2000;
    desk.release({60, 160});
    const QRectF dragged(52, 112, 156, 56);
    QCOMPARE(desk.placeOf(line), dragged);
    const QStringList drawn = savedState(desk.document);
    const pagehost::Lesson lesson = desk.recorder.stop();
    desk.player.setLesson(lesson);
    desk.player.seek(1500);
    QCOMPARE(desk.placeOf(desk.player.document()->page(0)->objects().constFirst()), dragged);
    QCOMPARE(desk.played(lesson), drawn);
}

void TestLine::aLineThatIsSavedAndOpenedIsTheSame()
{
    Desk desk(pagehost::CurvedLine);
    CBaseObject *line = desk.drawnTo({201, 187});
    const std::unique_ptr<CBaseObject> copy(pagehost::cloneObject(line, &shapes()));
    QCOMPARE(savedState(copy.get()), savedState(line));
    const std::unique_ptr<CBaseObject> opened(shapes().createObject(QStringLiteral("shapes.line")));
    QJsonObject json;
    line->saveJson(json);
    opened->loadJson(json);
    QCOMPARE(desk.placeOf(opened.get()), desk.placeOf(line));
    QCOMPARE(savedState(opened.get()), savedState(line));
}

void TestLine::aLessonShowsTheLineGrow()
{
    Desk desk;
    desk.recorder.start(&desk.document);
    desk.press({100, 120});
    desk.letTimersRun();
    desk.now = 1000;
    desk.moveTo({150, 120});
    desk.letTimersRun();
    desk.now = 2000;
    desk.release({200, 180});
    const QStringList drawn = savedState(desk.document);
    const pagehost::Lesson lesson = desk.recorder.stop();
    desk.player.setLesson(lesson);
    desk.player.seek(1500);
    QCOMPARE(desk.placeOf(desk.player.document()->page(0)->objects().constFirst()), QRectF(92, 112, 66, 16));
    QCOMPARE(desk.played(lesson), drawn);
}

void TestLine::aDamagedLineOpens()
{
    Desk desk;
    const QByteArray whole = savedState(desk.drawnTo({200, 180}));
    for (int at = 0; at < whole.size(); ++at) {
        QByteArray bytes = whole;
        bytes[at] = char(~bytes[at]);
        const std::unique_ptr<CBaseObject> opened(shapes().createObject(QStringLiteral("shapes.line")));
        QDataStream in(bytes);
        opened->load(in);
        QVERIFY(!savedState(opened.get()).isEmpty());
    }
}

QTEST_MAIN(TestLine)
#include "test_line.moc"

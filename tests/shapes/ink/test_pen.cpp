// Strokes of pen and highlighter. Their pen is 5 wide, so that 4 units of room are around the points.

#include "shapes/writingdesk.h"

using pagehost::ToolPointer;
using pagehost::ToolRole;

class TestPen : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aStrokeIsOneObjectAndOneStep();
    void theLastPointIsUnderThePointerWhileDrawing();
    void aStrokeGrowsToTheLeftAndUp();
    void aClickMakesADot();
    void theColourIsThatOfTheTool();
    void theHighlighterIsTranslucent();
    void shiftMakesAStraightLineAndLettingGoBringsTheStrokeBack();
    void holdingStillMakesAStraightLine();
    void pressureMakesAnAreaOfChangingWidth();
    void escapeLeavesNoTrace();
    void aStrokeThatIsSavedAndOpenedIsTheSame_data();
    void aStrokeThatIsSavedAndOpenedIsTheSame();
    void aCopiedStrokeIsTheSame();
    void aStretchedStrokeKeepsItsForm();
    void aLessonShowsTheStrokeGrowInItsOwnTime();
    void aDamagedStrokeOpens();
};

void TestPen::aStrokeIsOneObjectAndOneStep()
{
    WritingDesk desk(ToolRole::Pen);
    desk.drawAlong({{100, 120}, {160, 120}, {160, 180}});
    QCOMPARE(desk.page->objectCount(), 1);
    QCOMPARE(desk.placeOf(desk.object(0)), QRectF(96, 116, 68, 68));
    QVERIFY2(desk.svgOf(desk.object(0)).contains("M0 0 C10 0 50 -10 60 0 C70 10 60 50 60 60"),
             qPrintable(desk.svgOf(desk.object(0))));
    QVERIFY(desk.page->selectedObjects().isEmpty());
    QCOMPARE(undoStack()->count(), 1);
    undoStack()->undo();
    QCOMPARE(desk.page->objectCount(), 0);
    undoStack()->redo();
    QCOMPARE(desk.placeOf(desk.object(0)), QRectF(96, 116, 68, 68));
}

void TestPen::theLastPointIsUnderThePointerWhileDrawing()
{
    WritingDesk desk(ToolRole::Pen);
    desk.press({100, 120});
    for (const QPointF &place : {QPointF(130, 150), QPointF(131, 151), QPointF(190, 150)}) {
        desk.moveTo(place);
        QCOMPARE(desk.placeOf(desk.object(0)).right(), place.x() + 4);
    }
    desk.release({190, 150});
    QCOMPARE(desk.placeOf(desk.object(0)).right(), 194.0);
}

void TestPen::aStrokeGrowsToTheLeftAndUp()
{
    WritingDesk desk(ToolRole::Pen);
    desk.drawAlong({{300, 320}, {250, 300}, {200, 290}});
    QCOMPARE(desk.placeOf(desk.object(0)), QRectF(196, 286, 108, 38));
}

void TestPen::aClickMakesADot()
{
    WritingDesk desk(ToolRole::Pen);
    desk.click({100, 120});
    QCOMPARE(desk.placeOf(desk.object(0)), QRectF(96, 116, 8, 8));
    QVERIFY(desk.svgOf(desk.object(0)).contains("M0 0 L0.01 0"));
}

void TestPen::theColourIsThatOfTheTool()
{
    WritingDesk desk(ToolRole::Pen, {QColor(0x25, 0x63, 0xcf), 5, 0});
    desk.drawAlong({{100, 120}, {160, 120}});
    QVERIFY(desk.svgOf(desk.object(0)).contains("#2563cf", Qt::CaseInsensitive));
}

void TestPen::theHighlighterIsTranslucent()
{
    WritingDesk desk(ToolRole::Highlighter);
    desk.drawAlong({{100, 120}, {160, 120}});
    QImage picture(200, 200, QImage::Format_ARGB32);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    painter.translate(desk.object(0)->getPos());
    desk.object(0)->OnQPainterDraw(&painter);
    painter.end();
    QCOMPARE(qAlpha(picture.pixel(130, 120)), 110);
}

void TestPen::shiftMakesAStraightLineAndLettingGoBringsTheStrokeBack()
{
    WritingDesk desk(ToolRole::Pen);
    desk.press({100, 120});
    desk.moveTo({150, 300});
    desk.moveTo({200, 120}, Qt::ShiftModifier);
    QCOMPARE(desk.placeOf(desk.object(0)), QRectF(96, 116, 108, 8));
    desk.moveTo({210, 120});
    QCOMPARE(desk.placeOf(desk.object(0)), QRectF(96, 116, 118, 188));
    desk.release({210, 120});
}

void TestPen::holdingStillMakesAStraightLine()
{
    WritingDesk desk(ToolRole::Pen);
    QCOMPARE(desk.pageTool->stillTime(), 500);
    desk.press({100, 120});
    desk.moveTo({150, 300});
    desk.moveTo({200, 120});
    desk.pageTool->heldStill();
    QCOMPARE(desk.placeOf(desk.object(0)), QRectF(96, 116, 108, 8));
    // Its end follows the pointer.
    desk.moveTo({200, 220});
    desk.release({200, 220});
    QCOMPARE(desk.placeOf(desk.object(0)), QRectF(96, 116, 108, 108));
    // The next stroke is free again.
    desk.drawAlong({{100, 420}, {150, 600}, {200, 420}});
    QCOMPARE(desk.placeOf(desk.object(1)), QRectF(96, 416, 108, 188));
}

void TestPen::pressureMakesAnAreaOfChangingWidth()
{
    WritingDesk desk(ToolRole::Pen);
    pagehost::PageScene *scene = desk.page->scene();
    ToolPointer pointer{{100, 120}, 1, 1, Qt::NoModifier};
    scene->pressTool(pointer);
    pointer.pos = {140, 120};
    scene->moveTool(pointer);
    scene->releaseTool(pointer);
    // Full pressure: 8 wide to both sides together.
    const QString svg = desk.svgOf(desk.object(0));
    QVERIFY2(svg.contains("M0 -4 L20 -4 L40 -4 L40 4 L20 4 L0 4 Z"), qPrintable(svg));
}

void TestPen::escapeLeavesNoTrace()
{
    WritingDesk desk(ToolRole::Pen);
    desk.press({100, 120});
    desk.moveTo({160, 120});
    desk.pressKey(Qt::Key_Escape);
    desk.release({160, 120});
    QCOMPARE(desk.page->objectCount(), 0);
    QCOMPARE(undoStack()->count(), 0);
}

void TestPen::aStrokeThatIsSavedAndOpenedIsTheSame_data()
{
    QTest::addColumn<bool>("asJson");
    QTest::newRow("binary") << false;
    QTest::newRow("JSON") << true;
}

void TestPen::aStrokeThatIsSavedAndOpenedIsTheSame()
{
    QFETCH(bool, asJson);
    WritingDesk desk(ToolRole::Pen);
    desk.drawAlong({{100, 120}, {160, 125}, {133, 180}});
    CBaseObject *stroke = desk.object(0);
    const std::unique_ptr<CBaseObject> opened(shapes().createObject(QStringLiteral("shapes.ink")));
    if (asJson) {
        QJsonObject json;
        stroke->saveJson(json);
        opened->loadJson(json);
    } else {
        QByteArray bytes = savedState(stroke);
        QDataStream in(bytes);
        opened->load(in);
    }
    QCOMPARE(desk.placeOf(opened.get()), QRectF(96, 116, 68, 68));
    const QString line("M0 0 C10 0.8333333333 54.5 -5 60 5 C65.5 15 37.5 50.83333333 33 60");
    QVERIFY(desk.svgOf(stroke).contains(line));
    QVERIFY(desk.svgOf(opened.get()).contains(line));
    QCOMPARE(savedState(opened.get()), savedState(stroke));
}

void TestPen::aCopiedStrokeIsTheSame()
{
    WritingDesk desk(ToolRole::Pen);
    desk.drawAlong({{100, 120}, {160, 125}, {133, 180}});
    const std::unique_ptr<CBaseObject> copy(pagehost::cloneObject(desk.object(0), &shapes()));
    QVERIFY(copy != nullptr);
    QCOMPARE(savedState(copy.get()), savedState(desk.object(0)));
}

void TestPen::aStretchedStrokeKeepsItsForm()
{
    WritingDesk desk(ToolRole::Pen);
    desk.drawAlong({{100, 120}, {160, 120}, {160, 180}});
    QVERIFY(pagehost::resizeObject(desk.object(0), {136, 136}));
    QCOMPARE(desk.placeOf(desk.object(0)), QRectF(96, 116, 136, 136));
    QVERIFY(desk.svgOf(desk.object(0)).contains("M0 0 C10 0 50 -10 60 0 C70 10 60 50 60 60"));
}

void TestPen::aLessonShowsTheStrokeGrowInItsOwnTime()
{
    WritingDesk desk(ToolRole::Pen);
    desk.recorder.start(&desk.document);
    desk.now = 1000;
    desk.press({100, 120});
    desk.letTimersRun();
    desk.now = 2000;
    desk.moveTo({160, 120});
    desk.letTimersRun();
    desk.now = 3000;
    desk.moveTo({160, 180});
    desk.letTimersRun();
    desk.now = 4000;
    desk.release({160, 180});
    const QStringList drawn = savedState(desk.document);
    const pagehost::Lesson lesson = desk.recorder.stop();
    QCOMPARE(desk.count<pagehost::ObjectSettled>(lesson), 0);
    desk.player.setLesson(lesson);
    const auto shownAt = [&](qint64 time) {
        desk.player.seek(time);
        const auto objects = desk.player.document()->page(0)->objects();
        return objects.isEmpty() ? QRectF() : desk.placeOf(objects.first());
    };
    QCOMPARE(shownAt(500), QRectF());
    QCOMPARE(shownAt(1000), QRectF(96, 116, 8, 8));
    QCOMPARE(shownAt(2000), QRectF(96, 116, 68, 8));
    QCOMPARE(shownAt(3000), QRectF(96, 116, 68, 68));
    QCOMPARE(desk.played(lesson), drawn);
}

void TestPen::aDamagedStrokeOpens()
{
    WritingDesk desk(ToolRole::Pen);
    desk.drawAlong({{100, 120}, {160, 125}, {133, 180}});
    const QByteArray whole = savedState(desk.object(0));
    for (int at = 0; at < whole.size(); ++at) {
        QByteArray bytes = whole;
        bytes[at] = char(~bytes[at]);
        const std::unique_ptr<CBaseObject> opened(shapes().createObject(QStringLiteral("shapes.ink")));
        QDataStream in(bytes);
        opened->load(in);
        QVERIFY(!savedState(opened.get()).isEmpty());
    }
}

QTEST_MAIN(TestPen)
#include "test_pen.moc"

// The Text tool and double clicks in the window: where texts begin, and which are edited.

#include "board/textdesk.h"

#include <core/commands.h>
#include <page/labels.h>
#include <page/labelwriting.h>

#include <pagehost/commands.h>

#include <framework/cbaseobject.h>

#include <QtCore/QSettings>
#include <QtTest/QtTest>
#include <QtWidgets/QAction>
#include <QtWidgets/QUndoStack>

using board::Tool;
using Desk = boardtest::TextDesk;

class TestTextTool : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { boardtest::useOwnFolders(); }
    void init() { QSettings().clear(); }
    void aDoubleClickOnTheEmptyPageTypesThere();
    void aDoubleClickOnAShapeWithoutTextTypesOnIt();
    void aDoubleClickOnALockedShapeTypesOnIt();
    void aDoubleClickBesideThePageTypesNothing();
    void aViewWithoutAPageHasNoTexts();
    void aDoubleClickThatIsNotFollowedByLettersLeavesNoTrace();
    void aClickWithTheToolGoesOnWithAText();
    void aClickWithTheToolGoesOnWithALabel();
    void aClickWithTheToolOnAnEmptyShapeWritesOnIt();
    void aClickWithTheToolOnALockedTextWritesOnIt();
    void aClickWithTheToolGoesOnWithATextOfAGroup();
    void aDragWithTheToolOverATextMakesAnother();
    void aKeptToolStaysAfterATextIsGoneOnWith();
    void theTextToolIsShownWhileLettersAreWritten();
    void pressingAToolEndsTheText_data();
    void pressingAToolEndsTheText();
    void aToolFromTheMenuEndsTheText();
    void aKeptToolWritesTheNextText();
};

void TestTextTool::aDoubleClickOnTheEmptyPageTypesThere()
{
    Desk desk;
    desk.write({500, 300}, "by the tool");
    desk.tools().choose(Tool::Select);
    desk.doubleClick({500, 500});
    QVERIFY(desk.editor());
    QCOMPARE(desk.tools().tool(), Tool::Select);
    desk.type("by the tool");
    desk.end();
    QCOMPARE(desk.page().objectCount(), 2);
    QCOMPARE(desk.written(1), QString("by the tool"));
    // Where a click with the tool would have put it.
    QCOMPARE(desk.placeOf(desk.page().objects().at(1)),
             desk.placeOf(desk.page().objects().at(0)).translated(0, 200));
    QCOMPARE(desk.selection(), desk.page().objects().mid(1));
}

void TestTextTool::aDoubleClickOnAShapeWithoutTextTypesOnIt()
{
    Desk desk;
    CBaseObject *shape = desk.draw("shapes.ring", {300, 200}, {700, 500});
    desk.doubleClick({400, 300});
    desk.type("Base area");
    desk.end();
    QCOMPARE(desk.page().objectCount(), 2);
    QCOMPARE(desk.page().objects().first(), shape);
    QCOMPARE(desk.written(1), QString("Base area"));
    QVERIFY(desk.placeOf(shape).contains(desk.placeOf(desk.page().objects().at(1))));
}

/// Such as the page of a worksheet.
void TestTextTool::aDoubleClickOnALockedShapeTypesOnIt()
{
    Desk desk;
    CBaseObject *shape = desk.draw(boardtest::rectangle, {300, 200}, {700, 500});
    pagehost::setObjectsLocked({shape}, true);
    desk.page().select({});
    desk.doubleClick({400, 300});
    QVERIFY(desk.editor());
    desk.type("x");
    desk.end();
    QCOMPARE(desk.page().objectCount(), 2);
}

void TestTextTool::aDoubleClickBesideThePageTypesNothing()
{
    Desk desk;
    desk.tools().choose(Tool::Select);
    desk.doubleClick({-4, 300});
    QVERIFY(!desk.editor());
    QCOMPARE(desk.tools().tool(), Tool::Select);
    desk.doubleClick({4, 300});
    QVERIFY(desk.editor());
}

void TestTextTool::aViewWithoutAPageHasNoTexts()
{
    Desk desk;
    desk.tools().choose(Tool::Select);
    desk.view().setPage(nullptr);
    const board::LabelWriting &texts = *desk.view().writing();
    QVERIFY(!desk.view().writing()->writeAt({300, 300}));
    QVERIFY(!texts.hasTextAt({300, 300}));
    QVERIFY(!desk.view().writing()->goOnAt({300, 300}));
    QVERIFY(!texts.isFree({300, 300}));
}

void TestTextTool::aDoubleClickThatIsNotFollowedByLettersLeavesNoTrace()
{
    Desk desk;
    desk.tools().choose(Tool::Select);
    desk.doubleClick({500, 300});
    desk.end();
    QCOMPARE(desk.page().objectCount(), 0);
    QCOMPARE(desk.history().count(), 0);
}

void TestTextTool::aClickWithTheToolGoesOnWithAText()
{
    Desk desk;
    desk.write({500, 300}, "Light");
    CBaseObject *text = desk.page().objects().constFirst();
    const QRectF place = desk.placeOf(text);
    desk.tools().choose(Tool::Text);
    desk.click({place.right() - 1, place.center().y()});
    QVERIFY(desk.editor());
    QCOMPARE(desk.tools().tool(), Tool::Select);
    QCOMPARE(desk.selection(), desk.page().objects());
    desk.type("s");
    desk.end();
    QCOMPARE(desk.page().objectCount(), 1);
    QCOMPARE(desk.written(0), QString("Lights"));
    desk.tools().choose(Tool::Text);
    desk.write({place.left() + 1, place.center().y()}, "S");
    QCOMPARE(desk.written(0), QString("SLights"));
    QCOMPARE(desk.history().count(), 3);
    desk.history().undo();
    QCOMPARE(desk.written(0), QString("Lights"));
}

void TestTextTool::aClickWithTheToolGoesOnWithALabel()
{
    Desk desk;
    CBaseObject *shape = desk.draw(boardtest::rectangle, {300, 200}, {700, 500});
    board::setLabelText(*shape, board::labelsOf(*shape).constFirst().propertyId, "Base");
    desk.tools().choose(Tool::Text);
    desk.click({500, 350});
    QVERIFY(desk.editor());
    QCOMPARE(desk.editor()->object(), shape);
    desk.end();
    QCOMPARE(desk.page().objectCount(), 1);
}

/// So that something can be labelled at its edge.
void TestTextTool::aClickWithTheToolOnAnEmptyShapeWritesOnIt()
{
    Desk desk;
    desk.draw(boardtest::rectangle, {300, 200}, {700, 500});
    desk.tools().choose(Tool::Text);
    desk.write({500, 350}, "Base");
    QCOMPARE(desk.page().objectCount(), 2);
    QCOMPARE(desk.written(0), QString());
    QCOMPARE(desk.written(1), QString("Base"));
}

void TestTextTool::aClickWithTheToolOnALockedTextWritesOnIt()
{
    Desk desk;
    desk.write({500, 300}, "Light");
    pagehost::setObjectsLocked(desk.page().objects(), true);
    desk.tools().choose(Tool::Text);
    desk.write({505, 300}, "Shadow");
    QCOMPARE(desk.written(0), QString("Light"));
    QCOMPARE(desk.written(1), QString("Shadow"));
}

void TestTextTool::aClickWithTheToolGoesOnWithATextOfAGroup()
{
    Desk desk;
    CBaseObject *shape = desk.draw("shapes.ring", {700, 200}, {900, 400});
    desk.tools().choose(Tool::Text);
    desk.write({500, 300}, "Light");
    CBaseObject *text = desk.page().objects().at(1);
    QVERIFY(pagehost::groupObjects(&desk.page(), {shape, text}));
    desk.tools().choose(Tool::Text);
    desk.click({505, 300});
    QVERIFY(desk.editor());
    QCOMPARE(desk.editor()->object(), text);
    QCOMPARE(desk.selection(), QVector<CBaseObject *>{text});
    QVERIFY(desk.page().enteredGroup() != 0);
    desk.end();
    QCOMPARE(desk.page().objectCount(), 2);
}

void TestTextTool::aDragWithTheToolOverATextMakesAnother()
{
    Desk desk;
    desk.write({500, 300}, "Light");
    desk.tools().choose(Tool::Text);
    desk.drag({505, 300}, {700, 320});
    desk.type("Shadow");
    desk.end();
    QCOMPARE(desk.written(0), QString("Light"));
    QCOMPARE(desk.written(1), QString("Shadow"));
}

void TestTextTool::aKeptToolStaysAfterATextIsGoneOnWith()
{
    Desk desk;
    desk.write({500, 300}, "Light");
    desk.tools().choose(Tool::Text);
    desk.tools().keep(true);
    desk.click({505, 300});
    QVERIFY(desk.editor());
    QCOMPARE(desk.tools().tool(), Tool::Text);
    desk.end();
    QCOMPARE(desk.page().objectCount(), 1);
    QCOMPARE(desk.history().count(), 1);
}

void TestTextTool::theTextToolIsShownWhileLettersAreWritten()
{
    Desk desk;
    desk.click({500, 300});
    QVERIFY(desk.button(Tool::Text)->isChecked() && !desk.button(Tool::Select)->isChecked());
    desk.type("Light");
    QVERIFY(desk.button(Tool::Text)->isChecked());
    desk.end();
    QVERIFY(!desk.button(Tool::Text)->isChecked() && desk.button(Tool::Select)->isChecked());
    desk.doubleClick({505, 300});
    QVERIFY(desk.editor());
    QVERIFY(desk.button(Tool::Text)->isChecked());
}

void TestTextTool::pressingAToolEndsTheText_data()
{
    QTest::addColumn<int>("tool");
    QTest::newRow("Select") << int(Tool::Select);
    QTest::newRow("Pen") << int(Tool::Pen);
    QTest::newRow("Text") << int(Tool::Text);
}

void TestTextTool::pressingAToolEndsTheText()
{
    QFETCH(int, tool);
    Desk desk;
    desk.click({500, 300});
    desk.type("Light");
    desk.clickOn(desk.button(Tool(tool)));
    QVERIFY(!desk.editor());
    QCOMPARE(desk.tools().tool(), Tool(tool));
    QVERIFY(desk.button(Tool(tool))->isChecked());
    QCOMPARE(desk.written(0), QString("Light"));
}

void TestTextTool::aToolFromTheMenuEndsTheText()
{
    Desk desk;
    desk.click({500, 300});
    desk.type("Light");
    desk.window().commands()->action(board::Command::PenTool)->trigger();
    QVERIFY(!desk.editor());
    QCOMPARE(desk.tools().tool(), Tool::Pen);
    QCOMPARE(desk.written(0), QString("Light"));
}

void TestTextTool::aKeptToolWritesTheNextText()
{
    Desk desk;
    desk.tools().keep(true);
    desk.click({500, 300});
    desk.type("Light");
    desk.write({500, 500}, "Shadow");
    QCOMPARE(desk.written(0), QString("Light"));
    QCOMPARE(desk.written(1), QString("Shadow"));
    QCOMPARE(desk.tools().tool(), Tool::Text);
}

QTEST_MAIN(TestTextTool)
#include "test_texttool.moc"

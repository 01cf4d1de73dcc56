// Texts written on the page in the board's window, with mouse and keys.

#include "board/boarddriver.h"

#include <core/toolchoice.h>
#include <page/labeleditor.h>
#include <page/pageview.h>
#include <tools/toolsettings.h>
#include <window/mainwindow.h>

#include <pagehost/objectregistry.h>
#include <pagehost/page.h>

#include <framework/cbaseobject.h>

#include <QtCore/QSettings>
#include <QtTest/QtTest>
#include <QtWidgets/QUndoStack>

using board::Tool;
using boardtest::BoardDriver;

namespace {

struct Desk : BoardDriver
{
    Desk() { tools().choose(Tool::Text); }
    board::ToolChoice &tools() const { return *window().tools(); }
    /// The editor that is open; null for none.
    board::LabelEditor *editor() const
    {
        for (auto *editor : view().findChildren<board::LabelEditor *>())
            if (editor->isVisible())
                return editor;
        return nullptr;
    }
    void type(const QString &text) { QTest::keyClicks(editor(), text); }
    void end() { QTest::keyClick(editor(), Qt::Key_Escape); }
    QString written(int index) const
    {
        CBaseObject *object = page().objects().value(index);
        return object ? board::labelsOf(*object).first().text : QString("no text");
    }
};

} // namespace

class TestTextWriting : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { boardtest::useOwnFolders(); }
    void init() { QSettings().clear(); }
    void aClickAndKeysMakeAText();
    void theTextAndItsObjectAreOneStep();
    void aTextThatStaysEmptyVanishesWithoutATrace();
    void aTextThatIsEmptiedVanishesInOneStep();
    void aChangedTextIsAStep();
    void aClickElsewhereEndsTheText();
    void theEditorGrowsWithTheText();
    void aKeptToolWritesTheNextText();
};

void TestTextWriting::aClickAndKeysMakeAText()
{
    Desk desk;
    desk.click({500, 300});
    QVERIFY(desk.editor());
    QCOMPARE(desk.tools().tool(), Tool::Select);
    desk.type("Light");
    desk.end();
    QVERIFY(!desk.editor());
    QCOMPARE(desk.page().objectCount(), 1);
    QCOMPARE(desk.written(0), QString("Light"));
    QCOMPARE(desk.selection(), desk.page().objects());
}

void TestTextWriting::theTextAndItsObjectAreOneStep()
{
    Desk desk;
    desk.click({500, 300});
    desk.type("Light");
    desk.end();
    QCOMPARE(desk.history().count(), 1);
    desk.history().undo();
    QCOMPARE(desk.page().objectCount(), 0);
    desk.history().redo();
    QCOMPARE(desk.written(0), QString("Light"));
}

void TestTextWriting::aTextThatStaysEmptyVanishesWithoutATrace()
{
    Desk desk;
    desk.click({500, 300});
    desk.end();
    QCOMPARE(desk.page().objectCount(), 0);
    QCOMPARE(desk.history().count(), 0);
}

void TestTextWriting::aTextThatIsEmptiedVanishesInOneStep()
{
    Desk desk;
    desk.click({500, 300});
    desk.type("Light");
    desk.end();
    desk.view().writeFirstLabel();
    QTest::keyClick(desk.editor(), Qt::Key_Delete);
    desk.end();
    QCOMPARE(desk.page().objectCount(), 0);
    desk.history().undo();
    QCOMPARE(desk.page().objectCount(), 1);
    QCOMPARE(desk.written(0), QString("Light"));
}

void TestTextWriting::aChangedTextIsAStep()
{
    Desk desk;
    desk.click({500, 300});
    desk.type("Light");
    desk.end();
    desk.doubleClick({505, 300});
    desk.release({505, 300});
    QVERIFY(desk.editor());
    desk.type("Shadow");
    desk.end();
    QCOMPARE(desk.written(0), QString("Shadow"));
    desk.history().undo();
    QCOMPARE(desk.written(0), QString("Light"));
}

void TestTextWriting::aClickElsewhereEndsTheText()
{
    Desk desk;
    desk.click({500, 300});
    desk.type("Light");
    desk.click({900, 600});
    QVERIFY(!desk.editor());
    QCOMPARE(desk.written(0), QString("Light"));
}

void TestTextWriting::theEditorGrowsWithTheText()
{
    Desk desk;
    desk.click({500, 300});
    const int before = desk.editor()->width();
    desk.type("A long line of words");
    QVERIFY(desk.editor()->width() > before);
    QVERIFY(desk.editor()->width() > desk.placeOf(desk.page().objects().first()).width());
    desk.end();
}

void TestTextWriting::aKeptToolWritesTheNextText()
{
    Desk desk;
    desk.tools().keep(true);
    desk.click({500, 300});
    desk.type("Light");
    desk.click({500, 500});
    desk.type("Shadow");
    desk.end();
    QCOMPARE(desk.written(0), QString("Light"));
    QCOMPARE(desk.written(1), QString("Shadow"));
    QCOMPARE(desk.tools().tool(), Tool::Text);
}

QTEST_MAIN(TestTextWriting)
#include "test_textwriting.moc"

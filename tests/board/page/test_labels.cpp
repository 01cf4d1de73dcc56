// Texts of shapes that the user writes on the page.

#include <board/boarddriver.h>

#include <core/commands.h>
#include <page/labeleditor.h>
#include <page/pageview.h>
#include <window/mainwindow.h>

#include <pagehost/page.h>
#include <pagehost/style.h>

#include <framework/cbaseobject.h>

#include <QtCore/QDir>
#include <QtGui/QTextBlock>
#include <QtTest/QtTest>
#include <QtWidgets/QAction>
#include <QtWidgets/QUndoStack>

using namespace boardtest;

/// One note, 200 × 100 at (500, 300), with "Hello" in its box from (510, 320) to (690, 380).
struct OneNote
{
    BoardDriver board;
    CBaseObject *note = board.draw(QStringLiteral("declared.note"), {500, 300}, {700, 400});

    QString text() const { return board::labelsOf(*note).value(0).text; }
    board::LabelEditor *editor() const
    {
        const auto editors = board.view().findChildren<board::LabelEditor *>();
        for (board::LabelEditor *editor : editors)
            if (!editor->isHidden())
                return editor;
        return nullptr;
    }
    void doubleClick(const QPointF &pos) { board.doubleClick(pos); }
    void type(const QString &text) { board.type(editor(), text); }
    void strike(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) { board.keyIn(editor(), key, modifiers); }
    /// The whole text through an input method.
    void compose(const QString &preedit, const QString &committed)
    {
        QInputMethodEvent composing(preedit, {});
        QCoreApplication::sendEvent(editor(), &composing);
        if (committed.isEmpty())
            return;
        QInputMethodEvent done;
        done.setCommitString(committed);
        QCoreApplication::sendEvent(editor(), &done);
    }
};

class TestLabels : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void doubleClickWritesTheTextInItsPlace();
    void writtenTextIsTakenBackInOneStep();
    void doubleClickBesideTheTextWritesNothing();
    void lettersOfAShapeWithoutFillTakeIt();
    void aShapeWithoutFillThatIsSelectedIsWrittenByADoubleClick();
    void menuOffersToEditTheTextOfAShapeThatHasOne();
    void enterWritesTheTextOfTheSelectedShape();
    void enterDoesNothingForOtherShapes();
    void escapeWithoutAChangeMakesNoStep();
    void clickElsewhereEndsWriting();
    void quickSecondPressThatDragsMoves();
    void lockedShapeIsNotWritten();
    void chineseIsWrittenThroughAnInputMethod();
    void arabicIsWrittenFromTheRight();
    void otherActionsEndWriting();

private:
    QTemporaryDir m_shapes;
};

void TestLabels::initTestCase()
{
    QFile file(m_shapes.filePath(QStringLiteral("note.shape.svg")));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("<svg xmlns='http://www.w3.org/2000/svg' xmlns:shape='urn:gliololok:shape' viewBox='0 0 120 80'>"
               "<shape:about name='Note'/><path id='figure' fill='#ffe' stroke='#000' d='M1 1H119V79H1Z' "
               "shape:d='M{left} {top}H{right}V{bottom}H{left}Z'/><text id='label_1' x='60' y='44' "
               "shape:box='10; 20; w - 20; h - 40'>Hello</text></svg>");
    file.close();
    qputenv("GLIOLOLOK_SHAPES", QFile::encodeName(m_shapes.path()));
}

void TestLabels::doubleClickWritesTheTextInItsPlace()
{
    OneNote t;
    t.doubleClick({600, 350});
    QVERIFY(t.editor());
    QCOMPARE(t.editor()->toPlainText(), QStringLiteral("Hello"));
    const QPoint middle = t.editor()->geometry().center();
    QVERIFY((middle - t.board.view().mapFromScene(QPointF(600, 350))).manhattanLength() <= 2);
    t.type("Nut");
    QCOMPARE(t.text(), QStringLiteral("Nut"));
}

void TestLabels::writtenTextIsTakenBackInOneStep()
{
    OneNote t;
    const int steps = t.board.history().count();
    t.doubleClick({600, 350});
    t.type("Nut");
    QCOMPARE(t.board.history().count(), steps);
    t.strike(Qt::Key_Escape);
    QVERIFY(!t.editor());
    QCOMPARE(t.board.history().count(), steps + 1);
    t.board.history().undo();
    QCOMPARE(t.text(), QStringLiteral("Hello"));
    t.board.history().redo();
    QCOMPARE(t.text(), QStringLiteral("Nut"));
}

void TestLabels::menuOffersToEditTheTextOfAShapeThatHasOne()
{
    OneNote t;
    QAction *edit = t.board.window().commands()->action(board::Command::EditText);
    QVERIFY(edit->isEnabled());
    t.board.draw(arrow, {800, 300}, {900, 400});
    QVERIFY(!edit->isEnabled());
    t.board.page().select({t.note});
    QVERIFY(edit->isEnabled());
    edit->trigger();
    QVERIFY(t.editor());
}

void TestLabels::lettersOfAShapeWithoutFillTakeIt()
{
    OneNote t;
    pagehost::setFill({t.note}, Qt::transparent);
    t.board.page().select({});
    t.board.click({600, 350});
    QCOMPARE(t.board.selection(), QVector<CBaseObject *>{t.note});
}

void TestLabels::aShapeWithoutFillThatIsSelectedIsWrittenByADoubleClick()
{
    OneNote t;
    pagehost::setFill({t.note}, Qt::transparent);
    t.doubleClick({600, 350});
    t.type(" ");
    t.strike(Qt::Key_Backspace);
    t.strike(Qt::Key_Escape);
    QCOMPARE(t.text(), QString());
    t.doubleClick({600, 350});
    QVERIFY(t.editor());
}

void TestLabels::doubleClickBesideTheTextWritesNothing()
{
    OneNote t;
    t.doubleClick({600, 310});
    QVERIFY(!t.editor());
}

void TestLabels::enterWritesTheTextOfTheSelectedShape()
{
    OneNote t;
    t.board.key(Qt::Key_Return);
    QVERIFY(t.editor());
    // Another line, not the end.
    t.type("a");
    t.strike(Qt::Key_Return);
    t.type("b");
    QCOMPARE(t.text(), QStringLiteral("a\nb"));
    t.strike(Qt::Key_Return, Qt::ControlModifier);
    QVERIFY(!t.editor());
}

void TestLabels::enterDoesNothingForOtherShapes()
{
    OneNote t;
    t.board.draw(rectangle, {100, 100}, {200, 200});
    t.board.key(Qt::Key_Return);
    QVERIFY(!t.editor());
}

void TestLabels::escapeWithoutAChangeMakesNoStep()
{
    OneNote t;
    const int steps = t.board.history().count();
    t.doubleClick({600, 350});
    t.strike(Qt::Key_Escape);
    QCOMPARE(t.board.history().count(), steps);
}

void TestLabels::clickElsewhereEndsWriting()
{
    OneNote t;
    const int steps = t.board.history().count();
    t.doubleClick({600, 350});
    t.type("x");
    t.board.view().setFocus(Qt::MouseFocusReason);
    QVERIFY(!t.editor());
    QCOMPARE(t.board.history().count(), steps + 1);
}

void TestLabels::quickSecondPressThatDragsMoves()
{
    OneNote t;
    t.board.pressTwice({600, 350});
    t.board.moveTo({620, 350});
    t.board.moveTo({640, 350});
    t.board.release({640, 350});
    QVERIFY(!t.editor());
    QCOMPARE(t.board.placeOf(t.note).left(), 540.0);
}

void TestLabels::lockedShapeIsNotWritten()
{
    OneNote t;
    t.note->setLocked(true);
    t.doubleClick({600, 350});
    QVERIFY(!t.editor());
}

void TestLabels::chineseIsWrittenThroughAnInputMethod()
{
    OneNote t;
    t.doubleClick({600, 350});
    t.editor()->selectAll();
    t.compose(QStringLiteral("san jiao"), QString());
    // Nothing is written before it is chosen; the selected text has already gone.
    QCOMPARE(t.text(), QString());
    t.compose(QStringLiteral("san jiao"), QString::fromUtf8("三角形"));
    QCOMPARE(t.text(), QString::fromUtf8("三角形"));
    t.strike(Qt::Key_Escape);
    QCOMPARE(t.text(), QString::fromUtf8("三角形"));
}

void TestLabels::arabicIsWrittenFromTheRight()
{
    OneNote t;
    t.doubleClick({600, 350});
    t.editor()->selectAll();
    t.compose(QString(), QString::fromUtf8("مثلث"));
    QCOMPARE(t.text(), QString::fromUtf8("مثلث"));
    QVERIFY(t.editor()->document()->firstBlock().textDirection() == Qt::RightToLeft);
}

void TestLabels::otherActionsEndWriting()
{
    OneNote t;
    t.doubleClick({600, 350});
    t.type("x");
    board::LabelEditor *editor = t.editor();
    t.board.page().select({t.note});
    t.board.view().settle();
    QVERIFY(editor->isHidden());
    QCOMPARE(t.text(), QStringLiteral("x"));
}

QTEST_MAIN(TestLabels)
#include "test_labels.moc"

// Texts of shapes that the user writes on the page.

#include <board/boarddriver.h>

#include <core/commands.h>
#include <core/toolchoice.h>
#include <page/labeleditor.h>
#include <page/labelwriting.h>
#include <page/pageview.h>

#include <window/mainwindow.h>

#include <pagehost/commands.h>
#include <pagehost/page.h>
#include <pagehost/style.h>

#include <framework/cbaseobject.h>
#include <framework/cpagebgprop.h>

#include <QtCore/QDir>
#include <QtGui/QPainter>
#include <QtGui/QTextBlock>
#include <QtTest/QtTest>
#include <QtWidgets/QAction>
#include <QtWidgets/QUndoStack>

using namespace boardtest;

Q_DECLARE_METATYPE(board::Tool)

namespace {

const QString ring = QStringLiteral("shapes.ring");

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

/// A box that has just been drawn, 300 × 200 at (200, 200), whose text is being written.
struct OneBox
{
    explicit OneBox(const QString &kind = rectangle)
        : box(board.draw(kind, {200, 200}, {500, 400}))
    {
        board.key(Qt::Key_Return);
    }
    board::LabelEditor *editor() const { return board.view().writing()->editor(); }
    board::EditableLabel label() const { return board::labelsOf(*box).value(0); }
    QImage picture() const { return editor()->grab().toImage().convertToFormat(QImage::Format_RGB32); }

    BoardDriver board;
    CBaseObject *box;
};

/// Like paper of a chalkboard.
QColor colourPage(BoardDriver &board)
{
    QColor green(20, 60, 40);
    CPageBgProp background = board.page().background();
    background.setFillColor(green);
    pagehost::setPageBackground(&board.page(), background);
    return green;
}

} // namespace

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
    void boxIsLabelledRightAfterItIsDrawn_data();
    void boxIsLabelledRightAfterItIsDrawn();
    void lettersOfABoxStandOnItsFill();
    void lettersOfABoxStandInItsMiddleWhileTheyAreTyped();
    void boxShowsItsLettersWhileTheyAreTyped();
    void lettersGetSmallerWhileALongTextIsTyped();
    void labelOfALineIsWrittenOnThePaperOfThePage();
    void textIsWrittenOnThePaperOfThePage();
    void boxThatReachesOutOfTheViewIsWrittenAsItStands();
    void lettersBehindTheEditorAreHidden_data();
    void lettersBehindTheEditorAreHidden();

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
    t.board.draw(ring, {800, 300}, {900, 400});
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
    t.board.draw(ring, {100, 100}, {200, 200});
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

void TestLabels::boxIsLabelledRightAfterItIsDrawn_data()
{
    QTest::addColumn<QString>("kind");
    for (const char *kind :
         {"shapes.roundedrectangle", "shapes.ellipse", "shapes.triangle", "shapes.blockarrow", "shapes.polygon",
          "shapes.star", "shapes.cylinder", "declared.diamond", "declared.terminator", "declared.subprocess",
          "declared.document", "declared.parallelogram", "declared.trapezoid", "declared.chevron", "declared.cloud",
          "declared.heart", "declared.cross", "declared.wave", "declared.righttriangle"})
        QTest::newRow(kind) << QString::fromLatin1(kind);
}

void TestLabels::boxIsLabelledRightAfterItIsDrawn()
{
    QFETCH(QString, kind);
    OneBox t(kind);
    QVERIFY(t.editor());
    t.board.type(t.editor(), QStringLiteral("Sun"));
    t.board.keyIn(t.editor(), Qt::Key_Escape);
    QCOMPARE(t.label().text, QStringLiteral("Sun"));
    QCOMPARE(t.label().fontSize, 20.0);
    // Inside of the figure: that is where the next double click is expected to write.
    const QRectF frame = t.box->getClientRect();
    QVERIFY(frame.contains(t.label().box));
    QVERIFY(t.box->shape().contains(t.label().box.center()));
    t.board.history().undo();
    QCOMPARE(t.label().text, QString());
    t.board.doubleClick(t.box->mapToScene(t.label().box.center()));
    QVERIFY(t.editor());
}

void TestLabels::lettersOfABoxStandOnItsFill()
{
    OneBox t;
    const QColor fill(0x33, 0x66, 0x99);
    t.board.keyIn(t.editor(), Qt::Key_Escape);
    pagehost::setFill({t.box}, fill);
    t.board.key(Qt::Key_Return);
    t.board.type(t.editor(), QStringLiteral("Sun"));
    const QImage picture = t.picture();
    QCOMPARE(picture.pixelColor(picture.width() / 2, picture.height() / 6), fill);
    QCOMPARE(picture.pixelColor(picture.width() / 6, picture.height() / 2), fill);
}

void TestLabels::lettersOfABoxStandInItsMiddleWhileTheyAreTyped()
{
    OneBox t;
    t.board.type(t.editor(), QStringLiteral("Sun"));
    const auto middleOfLines = [&] {
        const QRect first = t.editor()->cursorRect(QTextCursor(t.editor()->document()->begin()));
        const QRect last = t.editor()->cursorRect();
        return t.editor()->viewport()->mapToParent((first | last).center()).y();
    };
    QVERIFY(qAbs(middleOfLines() - t.editor()->height() / 2) <= 2);
    t.board.keyIn(t.editor(), Qt::Key_Return);
    t.board.type(t.editor(), QStringLiteral("heats"));
    t.board.keyIn(t.editor(), Qt::Key_Return);
    t.board.type(t.editor(), QStringLiteral("water"));
    QVERIFY(qAbs(middleOfLines() - t.editor()->height() / 2) <= 2);
}

void TestLabels::boxShowsItsLettersWhileTheyAreTyped()
{
    OneBox t;
    const auto drawn = [&] {
        QImage picture(300, 200, QImage::Format_RGB32);
        picture.fill(Qt::white);
        QPainter painter(&picture);
        t.board.view().scene()->render(&painter, picture.rect(), QRectF(200, 200, 300, 200));
        painter.end();
        return picture;
    };
    const QImage before = drawn();
    t.board.type(t.editor(), QStringLiteral("Sun"));
    const QImage after = drawn();
    QVERIFY(after != before);
    t.board.window().resize(t.board.window().size() + QSize(20, 20));
    QVERIFY(drawn() == after);
}

void TestLabels::lettersGetSmallerWhileALongTextIsTyped()
{
    OneBox t;
    t.board.type(t.editor(), QStringLiteral("Sun"));
    const int size = t.editor()->font().pixelSize();
    t.board.type(t.editor(), QStringLiteral("Water of lakes and oceans rises. ").repeated(12));
    QVERIFY(t.label().fontSize < 20);
    const double zoom = t.board.view().transform().m11();
    QCOMPARE(t.editor()->font().pixelSize(), qRound(t.label().fontSize * zoom));
    QVERIFY(t.editor()->font().pixelSize() < size);
}

void TestLabels::labelOfALineIsWrittenOnThePaperOfThePage()
{
    BoardDriver board;
    const QColor paper = colourPage(board);
    board.window().tools()->choose(board::Tool::Line);
    board.drag({200, 200}, {600, 300});
    board.doubleClick({400, 250});
    QVERIFY(board.view().writing()->editor());
    board.type(board.view().writing()->editor(), QStringLiteral("Sun"));
    const QImage picture = board.view().writing()->editor()->grab().toImage();
    QCOMPARE(picture.pixelColor(2, 2), paper);
    QCOMPARE(picture.pixelColor(picture.width() - 3, picture.height() - 3), paper);
}

void TestLabels::textIsWrittenOnThePaperOfThePage()
{
    BoardDriver board;
    const QColor paper = colourPage(board);
    board.window().tools()->choose(board::Tool::Text);
    board.click({500, 300});
    board.type(board.view().writing()->editor(), QStringLiteral("Sun and water"));
    const QImage picture = board.view().writing()->editor()->grab().toImage();
    QCOMPARE(picture.pixelColor(2, 2), paper);
    QCOMPARE(picture.pixelColor(picture.width() - 3, picture.height() - 3), paper);
}

void TestLabels::boxThatReachesOutOfTheViewIsWrittenAsItStands()
{
    BoardDriver board;
    CBaseObject *box = board.draw(QStringLiteral("shapes.ellipse"), {200, 200}, {500, 400});
    board.view().setZoom(6);
    // Its right end, where the outline crosses the box of the letters.
    board.view().centerOn(QPointF(460, 300));
    const QImage before = board.view().viewport()->grab().toImage();
    board.key(Qt::Key_Return);
    board::LabelEditor *editor = board.view().writing()->editor();
    QVERIFY(editor);
    editor->setCursorWidth(0);
    const QRect place =
        board.view().mapFromScene(box->mapToScene(board::labelsOf(*box).value(0).box)).boundingRect();
    const QRect seen = place & board.view().viewport()->rect();
    QVERIFY(place.left() < 0 && place.right() < board.view().viewport()->width());
    QCOMPARE(board.view().viewport()->grab().toImage().copy(seen), before.copy(seen));
}

void TestLabels::lettersBehindTheEditorAreHidden_data()
{
    QTest::addColumn<board::Tool>("tool");
    QTest::newRow("box") << board::Tool::Shape;
    QTest::newRow("line") << board::Tool::Line;
    QTest::newRow("text") << board::Tool::Text;
}

void TestLabels::lettersBehindTheEditorAreHidden()
{
    QFETCH(board::Tool, tool);
    BoardDriver board;
    if (tool == board::Tool::Shape)
        board.draw(rectangle, {200, 200}, {500, 400});
    else
        board.window().tools()->choose(tool);
    if (tool == board::Tool::Line)
        board.drag({200, 200}, {500, 400});
    if (tool == board::Tool::Text)
        board.click({350, 300});
    else
        board.doubleClick({350, 300});
    board.type(board.view().writing()->editor(), QStringLiteral("Sun"));
    board.keyIn(board.view().writing()->editor(), Qt::Key_Escape);
    QVERIFY(board.view().writeFirstLabel());
    board::LabelEditor *editor = board.view().writing()->editor();
    // The object keeps its letters.
    const QSignalBlocker blocker(editor);
    editor->clear();
    editor->setCursorWidth(0);
    const QImage picture = editor->grab().toImage();
    // A text stands as near to its frame as this.
    constexpr int edge = 6;
    for (int x = edge; x < picture.width() - edge; ++x)
        QCOMPARE(picture.pixelColor(x, picture.height() / 2), picture.pixelColor(edge, picture.height() / 2));
}

QTEST_MAIN(TestLabels)
#include "test_labels.moc"

// A lesson that somebody gives who neither sees the board nor holds a mouse: every key that is pressed, and every
// word that a screen reader says to it.

#include <board/boarddriver.h>
#include <board/readerdriver.h>

#include <page/pageview.h>
#include <presenting/presentation.h>
#include <window/mainwindow.h>

#include <pagehost/document.h>
#include <pagehost/page.h>

#include <support/listed.h>
#include <support/patience.h>

#include <QtCore/QFileInfo>
#include <QtCore/QTemporaryDir>
#include <QtTest/QtTest>
#include <QtWidgets/QApplication>
#include <QtWidgets/QFileDialog>

#include <utility>

using namespace boardtest;

namespace {

/// Keys go where the focus is, as on a desktop.
struct KeyTeacher
{
    KeyTeacher() { reader.said(); }

    void press(const QString &name, int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        transcript.append(name);
        board.keyIn(QApplication::focusWidget(), Qt::Key(key), modifiers);
        listen();
    }
    void type(const QString &text)
    {
        transcript.append("“" + text + "”");
        board.type(QApplication::focusWidget(), text);
        listen();
    }
    /// As the window manager does when another window has come or gone.
    void activate(board::PageView *view)
    {
        // A dialog that is done goes first.
        QVERIFY(QTest::qWaitFor([] { return !QApplication::activeModalWidget(); }, support::patience));
        QVERIFY(boardtest::activate(*view->window()));
        // Without a window manager nobody may tell the application.
        QApplication::setActiveWindow(view->window());
        view->setFocus();
        QVERIFY(QTest::qWaitFor([view] { return view->hasFocus(); }, support::patience));
        listen();
    }
    /// A dialog gets the keys when the window system says so.
    template<typename Dialog> void awaitFocusIn()
    {
        const auto hasFocus = [] {
            const QWidget *focused = QApplication::focusWidget();
            return focused && qobject_cast<Dialog *>(focused->window());
        };
        QVERIFY(QTest::qWaitFor(hasFocus, support::patience));
        listen();
    }
    void listen()
    {
        for (const QString &line : support::listed(reader.said()))
            transcript.append("  " + line);
    }
    /// All that was pressed and heard since the last call.
    QStringList heard()
    {
        qInfo("%s", qPrintable(transcript.join('\n')));
        return std::exchange(transcript, {});
    }

    BoardDriver board;
    ReaderDriver reader;
    QTemporaryDir folder;
    QStringList transcript;
};

} // namespace

class TestByKeys : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aLessonIsGivenByKeysAlone();
    void itIsPresentedByKeysAlone();
};

void TestByKeys::aLessonIsGivenByKeysAlone()
{
    KeyTeacher t;
    pagehost::Document &document = *t.board.workspace().document();

    // A shape is found, and put in the middle.
    t.press("S", Qt::Key_S);
    t.type("rounded");
    t.press("Ctrl+Return", Qt::Key_Return, Qt::ControlModifier);
    // The lesson is recorded while its corners become round.
    t.press("F9", Qt::Key_F9);
    t.press("Tab", Qt::Key_Tab);
    t.press("Right", Qt::Key_Right);
    t.press("4", Qt::Key_4);
    t.type("0");
    t.press("Return", Qt::Key_Return);
    t.press("Tab", Qt::Key_Tab);
    t.press("Down", Qt::Key_Down);
    t.press("F9", Qt::Key_F9);
    QCOMPARE(t.heard(), QStringLiteral(R"(S
  focus: Search shapes, field
“rounded”
Ctrl+Return
  focus: Page 1 of 1, 0 objects, page
  focus: Rounded rectangle, graphic, at 579, 309, 120 × 80
  page: Page 1 of 1, 1 object
F9
  alert: Recording has begun
Tab
  focus: Corner radius, slider, 16
Right
  value: 24
4
  focus: Corner radius 24, field
“0”
Return
  focus: Page 1 of 1, 1 object, page
  focus: Corner radius, slider, 40
Tab
  focus: Size, grip, 120 × 80
Down
  now: 120 × 88
F9
  alert: Recording has ended)")
                            .split('\n'));
    QCOMPARE(t.board.page().objectCount(), 1);
    QCOMPARE(document.lessons().size(), 1);
    QCOMPARE(t.board.placeOf(t.board.only()).size(), QSizeF(120, 88));

    // It is saved.
    t.press("Ctrl+S", Qt::Key_S, Qt::ControlModifier);
    t.awaitFocusIn<QFileDialog>();
    QTest::keyClicks(QApplication::focusWidget(), t.folder.filePath("lesson.board"));
    t.reader.said();
    t.press("Return", Qt::Key_Return);
    t.activate(&t.board.view());
    QCOMPARE(t.heard(), QStringLiteral(R"(Ctrl+S
  focus: File name:, field
Return
  alert: Saved
  focus: Page 1 of 1, 1 object, page
  focus: Size, grip, 120 × 88)")
                            .split('\n'));
    QVERIFY(QFileInfo(t.folder.filePath("lesson.board")).size() > 0);
}

void TestByKeys::itIsPresentedByKeysAlone()
{
    KeyTeacher t;
    // A shape on the first of two pages.
    t.press("S", Qt::Key_S);
    t.type("rounded");
    t.press("Ctrl+Return", Qt::Key_Return, Qt::ControlModifier);
    t.press("Ctrl+Shift+N", Qt::Key_N, Qt::ControlModifier | Qt::ShiftModifier);
    t.heard();

    t.press("Shift+F5", Qt::Key_F5, Qt::ShiftModifier);
    t.activate(t.board.window().presentation()->stage()->view());
    t.press("Space", Qt::Key_Space);
    t.press("Space", Qt::Key_Space);
    t.press("PgUp", Qt::Key_PageUp);
    t.press("Left", Qt::Key_Left);
    t.press("End", Qt::Key_End);
    t.press("B", Qt::Key_B);
    t.press("B", Qt::Key_B);
    t.press("Home", Qt::Key_Home);
    t.press("Tab", Qt::Key_Tab);
    t.press("Esc", Qt::Key_Escape);
    t.press("Esc", Qt::Key_Escape);
    t.activate(&t.board.view());
    QCOMPARE(t.heard(), QStringLiteral(R"(Shift+F5
  alert: Presenting has begun
  page: Page 1 of 2, 1 object
  focus: Page 1 of 2, 1 object, page
Space
  page: Page 2 of 2, 0 objects
Space
  alert: This is the last page
PgUp
  page: Page 1 of 2, 1 object
Left
  alert: This is the first page
End
  page: Page 2 of 2, 0 objects
B
  alert: The curtain is drawn
B
  alert: The curtain is open
Home
  page: Page 1 of 2, 1 object
Tab
  focus: Rounded rectangle, graphic, at 579, 309, 120 × 80
Esc
  focus: Page 1 of 2, 1 object, page
Esc
  alert: Presenting has ended
  focus: Page 1 of 2, 1 object, page)")
                            .split('\n'));
    QVERIFY(!t.board.window().presentation()->isRunning());
}

QTEST_MAIN(TestByKeys)
#include "test_bykeys.moc"

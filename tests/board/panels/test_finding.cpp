// Finding and replacing texts of the document, with keys.

#include <board/boarddriver.h>

#include <core/commands.h>
#include <core/toolchoice.h>
#include <lessons/lessoncontroller.h>
#include <page/labeleditor.h>
#include <page/labels.h>
#include <page/linkediting.h>
#include <page/pageview.h>
#include <panels/fields/remarkfield.h>
#include <panels/findbar.h>
#include <window/mainwindow.h>

#include <pagehost/commands.h>
#include <pagehost/outline.h>
#include <pagehost/page.h>

#include <framework/cbaseobject.h>

#include <support/listed.h>
#include <support/virtualtime.h>

#include <QtCore/QSettings>
#include <QtTest/QtTest>
#include <QtWidgets/QAction>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QUndoStack>

using board::Command;
using boardtest::BoardDriver;

using Objects = QVector<CBaseObject *>;

namespace {

/// Milliseconds.
constexpr int pressedTime = 100;

/// A board with texts that the user has written.
struct Desk : BoardDriver
{
    board::LabelEditor *editor() const
    {
        for (auto *editor : support::listed(view().findChildren<board::LabelEditor *>()))
            if (editor->isVisible())
                return editor;
        return nullptr;
    }
    /// With the text tool; nothing is selected afterwards.
    CBaseObject *write(const QPointF &pos, const QString &text)
    {
        window().tools()->choose(board::Tool::Text);
        click(pos);
        QTest::keyClicks(editor(), text);
        QTest::keyClick(editor(), Qt::Key_Escape);
        CBaseObject *written = page().objects().last();
        page().select({});
        return written;
    }
    /// Behind the present page, and shows it.
    void addPage() { key(Qt::Key_N, Qt::ControlModifier | Qt::ShiftModifier); }
    void showPage(int index) { workspace().document()->setCurrentIndex(index); }
    int pageShown() const { return page().document()->currentIndex(); }

    board::FindBar &bar() const { return *window().findBar(); }
    board::RemarkField &sought() const { return *bar().sought(); }
    board::RemarkField &replacement() const { return *bar().replacement(); }
    /// As the field tells it.
    QString state() const { return sought().remark(); }
    /// Ctrl+F, and types.
    void find(const QString &text)
    {
        key(Qt::Key_F, Qt::ControlModifier);
        type(text);
    }
    /// Ctrl+H, and types both.
    void fillIn(const QString &text, const QString &other)
    {
        key(Qt::Key_H, Qt::ControlModifier);
        type(text);
        pressKey(Qt::Key_Tab);
        type(other);
    }
    /// Into what has the focus.
    void type(const QString &text) { QTest::keyClicks(QApplication::focusWidget(), text); }
    void pressKey(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        QTest::keyClick(QApplication::focusWidget(), key, modifiers);
    }
    /// With Alt. Buttons look pressed for a moment before they act.
    void pressLetter(Qt::Key key)
    {
        pressKey(key, Qt::AltModifier);
        support::pass(pressedTime);
    }
    void settle() const { QCoreApplication::processEvents(); }
    static QString textOf(CBaseObject *object) { return board::labelsOf(*object).value(0).text; }
};

/// "one two" and "two" on the first page, "Two" on the second one; the first one is shown.
struct ThreeTexts : Desk
{
    CBaseObject *lower = write({300, 300}, "two");
    CBaseObject *upper = write({300, 100}, "one two");
    CBaseObject *onSecond = nullptr;

    ThreeTexts()
    {
        addPage();
        onSecond = write({300, 200}, "Two");
        showPage(0);
        history().clear();
    }
};

} // namespace

class TestFinding : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { boardtest::useOwnFolders(); }
    void init() { QSettings().clear(); }
    void ctrlFFindsTextsOfAllPagesInReadingOrder();
    void shiftReturnAndShiftF3GoBack();
    void f3GoesOnWithoutTheBar();
    void f3WithoutATextAsksForOne();
    void emptyFieldFindsNothing();
    void textThatIsNowhereIsNotFound();
    void searchBeginsAtThePageThatIsShown();
    void longerTextIsSoughtFromTheSamePlace();
    void caseAndWholeWordsCountOnRequest();
    void cellsOfATableAreFound();
    void matchOutOfViewIsScrolledIntoView();
    void textThatIsShownIsMarked();
    void memberOfAGroupIsSelectedAlone();
    void escapeGivesTheKeysBackToThePage();
    void textThatIsBeingWrittenIsFoundAtItsEnd();
    void returnReplacesAndGoesOn();
    void replacementIsNotFoundAgain();
    void replaceAllIsOneStepOnAllPages();
    void replacedTextsOfOneObjectAreCounted();
    void lockedTextsStayAndAreTold();
    void hiddenTextsAreFoundAndReplaced();
    void emptiedTextVanishesInTheSameStep();
    void linksStayWithTheirLetters();
    void undoBringsMatchesBack();
    void lessonShowsReplacedTexts();
    void nothingIsFoundInALesson();
    void barFitsASmallWindow();
};

void TestFinding::ctrlFFindsTextsOfAllPagesInReadingOrder()
{
    ThreeTexts t;
    t.find("two");
    QVERIFY(t.bar().isVisible());
    QVERIFY(t.sought().hasFocus());
    QCOMPARE(t.state(), QString("1 of 3"));
    QCOMPARE(t.selection(), Objects{t.upper});
    t.pressKey(Qt::Key_Return);
    QCOMPARE(t.state(), QString("2 of 3"));
    QCOMPARE(t.selection(), Objects{t.lower});
    t.pressKey(Qt::Key_Return);
    QCOMPARE(t.state(), QString("3 of 3"));
    QCOMPARE(t.pageShown(), 1);
    QCOMPARE(t.selection(), Objects{t.onSecond});
    t.pressKey(Qt::Key_Return);
    QCOMPARE(t.state(), QString("1 of 3"));
    QCOMPARE(t.pageShown(), 0);
    QVERIFY(t.sought().hasFocus());
}

void TestFinding::shiftReturnAndShiftF3GoBack()
{
    ThreeTexts t;
    t.find("two");
    t.pressKey(Qt::Key_Return, Qt::ShiftModifier);
    QCOMPARE(t.state(), QString("3 of 3"));
    QCOMPARE(t.selection(), Objects{t.onSecond});
    t.pressKey(Qt::Key_F3, Qt::ShiftModifier);
    QCOMPARE(t.selection(), Objects{t.lower});
}

void TestFinding::f3GoesOnWithoutTheBar()
{
    ThreeTexts t;
    t.find("two");
    t.pressKey(Qt::Key_Escape);
    QVERIFY(t.bar().isHidden());
    t.key(Qt::Key_F3);
    QCOMPARE(t.selection(), Objects{t.upper});
    QCOMPARE(t.state(), QString("1 of 3"));
    QVERIFY(t.view().hasFocus());
    t.key(Qt::Key_F3);
    QCOMPARE(t.selection(), Objects{t.lower});
}

void TestFinding::f3WithoutATextAsksForOne()
{
    Desk t;
    t.key(Qt::Key_F3);
    QVERIFY(t.bar().isVisible());
    QVERIFY(t.sought().hasFocus());
    QVERIFY(t.replacement().isHidden());
}

void TestFinding::emptyFieldFindsNothing()
{
    ThreeTexts t;
    t.find("two");
    t.pressKey(Qt::Key_Backspace);
    t.pressKey(Qt::Key_Backspace);
    t.pressKey(Qt::Key_Backspace);
    QCOMPARE(t.state(), QString());
    QVERIFY(t.view().markedText().isNull());
    t.pressKey(Qt::Key_Return);
    QCOMPARE(t.state(), QString());
}

void TestFinding::textThatIsNowhereIsNotFound()
{
    ThreeTexts t;
    t.find("");
    t.settle();
    const QImage plain = t.view().grab().toImage();
    t.type("zebra");
    QCOMPARE(t.state(), QString("Not found"));
    QVERIFY(t.view().markedText().isNull());
    t.settle();
    QCOMPARE(t.view().grab().toImage(), plain);
    t.pressKey(Qt::Key_Return);
    QCOMPARE(t.state(), QString("Not found"));
    QCOMPARE(t.pageShown(), 0);
}

void TestFinding::searchBeginsAtThePageThatIsShown()
{
    ThreeTexts t;
    t.showPage(1);
    t.find("two");
    QCOMPARE(t.state(), QString("3 of 3"));
    t.showPage(0);
    t.key(Qt::Key_F3);
    QCOMPARE(t.state(), QString("1 of 3"));
    t.showPage(1);
    t.key(Qt::Key_F3, Qt::ShiftModifier);
    QCOMPARE(t.state(), QString("2 of 3"));
}

/// "t" is on the first page, too, but "ten" only on the third one, where "te" is before it.
void TestFinding::longerTextIsSoughtFromTheSamePlace()
{
    ThreeTexts t;
    t.showPage(1);
    t.addPage();
    CBaseObject *third = t.write({300, 100}, "tea ten");
    t.showPage(0);
    t.find("t");
    QCOMPARE(t.selection(), Objects{t.upper});
    t.type("e");
    QCOMPARE(t.selection(), Objects{third});
    QCOMPARE(t.state(), QString("1 of 2"));
    t.type("n");
    QCOMPARE(t.state(), QString("1 of 1"));
    t.pressKey(Qt::Key_Backspace);
    t.pressKey(Qt::Key_Backspace);
    QCOMPARE(t.pageShown(), 0);
    QCOMPARE(t.selection(), Objects{t.upper});
}

void TestFinding::caseAndWholeWordsCountOnRequest()
{
    ThreeTexts t;
    t.write({300, 500}, "twofold");
    t.find("two");
    QCOMPARE(t.state(), QString("1 of 4"));
    t.pressLetter(Qt::Key_W);
    QCOMPARE(t.state(), QString("1 of 3"));
    t.pressLetter(Qt::Key_S);
    QCOMPARE(t.state(), QString("1 of 2"));
}

void TestFinding::cellsOfATableAreFound()
{
    Desk t;
    CBaseObject *table = t.draw(QStringLiteral("shapes.table"), {200, 200}, {560, 440});
    const auto cells = board::labelsOf(*table);
    QCOMPARE(cells.size(), 12);
    t.doubleClick(t.placeOf(table).topLeft() + cells.at(7).box.center());
    t.release(t.placeOf(table).topLeft() + cells.at(7).box.center());
    QTest::keyClicks(t.editor(), "seven");
    QTest::keyClick(t.editor(), Qt::Key_Escape);
    t.page().select({});
    t.find("eve");
    QCOMPARE(t.state(), QString("1 of 1"));
    QCOMPARE(t.selection(), Objects{table});
    QCOMPARE(t.view().markedText(), table->mapToScene(cells.at(7).box).boundingRect());
}

void TestFinding::matchOutOfViewIsScrolledIntoView()
{
    ThreeTexts t;
    t.view().setZoom(8);
    t.view().centerOn(1000, 600);
    const auto isSeen = [&] {
        const QRectF seen = t.view().mapToScene(t.view().viewport()->rect()).boundingRect();
        return seen.contains(t.view().markedText());
    };
    t.find("two");
    QVERIFY(!t.view().markedText().isEmpty() && isSeen());
}

void TestFinding::textThatIsShownIsMarked()
{
    ThreeTexts t;
    t.find("two");
    QCOMPARE(t.view().markedText(), t.upper->mapToScene(t.upper->getClientRect()).boundingRect());
    const QImage marked = t.view().grab().toImage();
    t.pressKey(Qt::Key_Escape);
    QVERIFY(t.view().markedText().isNull());
    t.settle();
    QVERIFY(t.view().grab().toImage() != marked);
}

void TestFinding::memberOfAGroupIsSelectedAlone()
{
    ThreeTexts t;
    t.page().select({t.upper, t.lower});
    t.key(Qt::Key_G, Qt::ControlModifier);
    t.page().select({});
    t.find("one");
    QCOMPARE(t.selection(), Objects{t.upper});
    QVERIFY(t.page().enteredGroup() != 0);
}

void TestFinding::escapeGivesTheKeysBackToThePage()
{
    ThreeTexts t;
    t.find("two");
    t.pressKey(Qt::Key_Escape);
    QVERIFY(t.bar().isHidden());
    QVERIFY(t.view().hasFocus());
    QCOMPARE(t.selection(), Objects{t.upper});
    t.pressKey(Qt::Key_Delete);
    QCOMPARE(t.page().objects(), Objects{t.lower});
}

void TestFinding::textThatIsBeingWrittenIsFoundAtItsEnd()
{
    Desk t;
    t.window().tools()->choose(board::Tool::Text);
    t.click({300, 300});
    QTest::keyClicks(t.editor(), "lens");
    QTest::keyClick(t.editor(), Qt::Key_F, Qt::ControlModifier);
    QVERIFY(!t.editor());
    QVERIFY(t.sought().hasFocus());
    t.type("lens");
    QCOMPARE(t.state(), QString("1 of 1"));
}

void TestFinding::returnReplacesAndGoesOn()
{
    ThreeTexts t;
    t.fillIn("two", "three");
    QVERIFY(t.replacement().hasFocus());
    t.pressKey(Qt::Key_Return);
    QCOMPARE(t.textOf(t.upper), QString("one three"));
    QCOMPARE(t.textOf(t.lower), QString("two"));
    QCOMPARE(t.state(), QString("1 of 2"));
    QCOMPARE(t.replacement().remark(), QString("1 replaced"));
    QCOMPARE(t.selection(), Objects{t.lower});
    t.pressKey(Qt::Key_Return);
    t.pressKey(Qt::Key_Return);
    QCOMPARE(t.textOf(t.onSecond), QString("three"));
    QCOMPARE(t.state(), QString("Not found"));
    QCOMPARE(t.history().count(), 3);
}

void TestFinding::replacementIsNotFoundAgain()
{
    Desk t;
    CBaseObject *text = t.write({300, 300}, "aXa");
    t.fillIn("a", "aa");
    t.pressKey(Qt::Key_Return);
    QCOMPARE(t.textOf(text), QString("aaXa"));
    QCOMPARE(t.state(), QString("3 of 3"));
    t.pressKey(Qt::Key_Return);
    QCOMPARE(t.textOf(text), QString("aaXaa"));
    QCOMPARE(t.state(), QString("1 of 4"));
}

void TestFinding::replaceAllIsOneStepOnAllPages()
{
    ThreeTexts t;
    t.fillIn("two", "2");
    t.pressLetter(Qt::Key_C);
    QCOMPARE(t.textOf(t.upper), QString("one 2"));
    QCOMPARE(t.textOf(t.lower), QString("2"));
    QCOMPARE(t.textOf(t.onSecond), QString("2"));
    QCOMPARE(t.replacement().remark(), QString("3 replaced"));
    QCOMPARE(t.state(), QString("Not found"));
    QCOMPARE(t.history().count(), 1);
    QCOMPARE(t.window().commands()->action(Command::Undo)->text(), QString("Undo: Replace text"));
    t.key(Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(t.textOf(t.upper), QString("one two"));
    QCOMPARE(t.textOf(t.lower), QString("two"));
    QCOMPARE(t.textOf(t.onSecond), QString("Two"));
    t.key(Qt::Key_Y, Qt::ControlModifier);
    QCOMPARE(t.textOf(t.onSecond), QString("2"));
}

void TestFinding::replacedTextsOfOneObjectAreCounted()
{
    Desk t;
    CBaseObject *text = t.write({300, 300}, "to be or not to be");
    t.fillIn("be", "have");
    t.pressLetter(Qt::Key_C);
    QCOMPARE(t.textOf(text), QString("to have or not to have"));
    QCOMPARE(t.replacement().remark(), QString("2 replaced"));
}

void TestFinding::lockedTextsStayAndAreTold()
{
    ThreeTexts t;
    pagehost::setObjectsLocked({t.upper}, true);
    t.fillIn("two", "2");
    QCOMPARE(t.state(), QString("1 of 3"));
    t.pressKey(Qt::Key_Return);
    QCOMPARE(t.textOf(t.upper), QString("one two"));
    QCOMPARE(t.replacement().remark(), QString("0 replaced, 1 locked"));
    QCOMPARE(t.state(), QString("2 of 3"));
    t.pressLetter(Qt::Key_C);
    QCOMPARE(t.textOf(t.upper), QString("one two"));
    QCOMPARE(t.textOf(t.lower), QString("2"));
    QCOMPARE(t.replacement().remark(), QString("2 replaced, 1 locked"));
    QCOMPARE(t.state(), QString("1 found"));
}

void TestFinding::hiddenTextsAreFoundAndReplaced()
{
    ThreeTexts t;
    pagehost::setObjectsVisible(&t.page(), {t.upper}, false);
    t.fillIn("one", "1");
    QCOMPARE(t.state(), QString("1 of 1, hidden"));
    QCOMPARE(t.selection(), Objects());
    t.pressKey(Qt::Key_Return);
    QCOMPARE(t.textOf(t.upper), QString("1 two"));
}

void TestFinding::emptiedTextVanishesInTheSameStep()
{
    ThreeTexts t;
    t.fillIn("two", "");
    t.pressLetter(Qt::Key_C);
    QCOMPARE(t.textOf(t.upper), QString("one "));
    QCOMPARE(t.page().objects(), Objects{t.upper});
    QCOMPARE(t.history().count(), 1);
    t.key(Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(t.page().objects(), (Objects{t.lower, t.upper}));
    QCOMPARE(t.textOf(t.lower), QString("two"));
}

void TestFinding::linksStayWithTheirLetters()
{
    Desk t;
    CBaseObject *text = t.write({300, 300}, "my sun and sunny moon");
    const qint32 id = board::labelsOf(*text).value(0).propertyId;
    const auto link = [](int start, int length) {
        return pagehost::TextLink{start, length, QStringLiteral("https://example.org")};
    };
    // "sun", "nny mo" and "on".
    const QVector<pagehost::TextLink> before{link(3, 3), link(13, 6), link(19, 2)};
    board::setLabelLinks(*text, board::linksOf(*text, id).propertyId, before);
    QCOMPARE(board::linksOf(*text, id).links, before);
    t.history().clear();
    t.fillIn("sun", "light");
    t.pressLetter(Qt::Key_C);
    QCOMPARE(t.textOf(text), QString("my light and lightny moon"));
    // The second one keeps what follows the replaced letters.
    QCOMPARE(board::linksOf(*text, id).links, (QVector<pagehost::TextLink>{link(3, 5), link(18, 5), link(23, 2)}));
    QCOMPARE(t.history().count(), 1);
    t.history().undo();
    QCOMPARE(t.textOf(text), QString("my sun and sunny moon"));
    QCOMPARE(board::linksOf(*text, id).links, before);
}

void TestFinding::undoBringsMatchesBack()
{
    ThreeTexts t;
    t.fillIn("two", "2");
    t.pressLetter(Qt::Key_C);
    t.history().undo();
    t.settle();
    QCOMPARE(t.state(), QString("3 found"));
}

void TestFinding::lessonShowsReplacedTexts()
{
    ThreeTexts t;
    board::LessonController &lessons = *t.window().lessons();
    lessons.recordOrStop();
    t.fillIn("two", "2");
    t.pressLetter(Qt::Key_C);
    lessons.recordOrStop();
    const auto shown = [&] {
        QStringList texts;
        for (pagehost::Page *page : support::listed(lessons.shownDocument()->pages()))
            for (CBaseObject *object : support::listed(page->objects()))
                texts.append(t.textOf(object));
        return texts;
    };
    lessons.seek(0);
    QCOMPARE(shown(), (QStringList{"two", "one two", "Two"}));
    lessons.seek(lessons.duration());
    QCOMPARE(shown(), (QStringList{"2", "one 2", "2"}));
}

void TestFinding::nothingIsFoundInALesson()
{
    ThreeTexts t;
    board::LessonController &lessons = *t.window().lessons();
    lessons.recordOrStop();
    t.write({600, 300}, "ray");
    lessons.recordOrStop();
    t.find("ray");
    lessons.seek(0);
    QVERIFY(!t.bar().isEnabled());
    for (const Command command :
         {Command::FindText, Command::ReplaceText, Command::FindNext, Command::FindPrevious})
        QVERIFY(!t.window().commands()->action(command)->isEnabled());
}

void TestFinding::barFitsASmallWindow()
{
    ThreeTexts t;
    t.window().resize(1024, 600);
    t.fillIn("two", "2");
    t.settle();
    QCOMPARE(t.window().size(), QSize(1024, 600));
}

QTEST_MAIN(TestFinding)
#include "test_finding.moc"

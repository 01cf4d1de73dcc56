// The page and the window as screen readers find them, and what they are told of changes.

#include <board/boarddriver.h>
#include <board/readerdriver.h>

#include <core/commands.h>
#include <core/notices.h>
#include <look/dockbutton.h>
#include <page/controlpoints.h>
#include <page/keyhand.h>
#include <page/labeleditor.h>
#include <page/pageview.h>
#include <panels/historylist.h>
#include <panels/historypanel.h>
#include <panels/outlinepanel.h>
#include <panels/outlinetree.h>
#include <panels/settings/ownsettings.h>
#include <window/dock.h>
#include <window/mainwindow.h>

#include <pagehost/commands.h>
#include <pagehost/lessonrecorder.h>
#include <pagehost/outline.h>
#include <pagehost/page.h>

#include <framework/cbaseobject.h>

#include <support/listed.h>

#include <QtTest/QtTest>
#include <QtWidgets/QAction>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QMenu>
#include <QtWidgets/QToolButton>
#include <QtWidgets/QUndoStack>

#include <memory>

using namespace boardtest;

namespace {

const QString star = QStringLiteral("shapes.star");

/// A page with a rectangle and a star above it, nothing selected, and somebody who can't see it.
struct ReadBoard
{
    ReadBoard()
    {
        box = board.draw(rectangle, {500, 300}, {700, 420});
        figure = board.draw(star, {800, 300}, {920, 420});
        board.page().select({});
        board.history().clear();
        reader.said();
    }

    QAccessibleInterface *page() { return ReaderDriver::of(&board.view()); }
    QAccessibleInterface *object(int index) { return page()->child(index); }
    /// The control point of the rectangle: 24 of 0 to 60.
    QAccessibleInterface *point() { return object(0)->child(0); }
    static QString name(QAccessibleInterface *interface) { return interface->text(QAccessible::Name); }
    static QString description(QAccessibleInterface *interface)
    {
        return interface->text(QAccessible::Description);
    }
    static QStringList childNames(QAccessibleInterface *interface)
    {
        QStringList names;
        for (int i = 0; i < interface->childCount(); ++i)
            names.append(name(interface->child(i)));
        return names;
    }
    void tab(int times)
    {
        for (int i = 0; i < times; ++i)
            board.key(Qt::Key_Tab);
    }
    void deleteSelected()
    {
        board.key(Qt::Key_Delete);
        board.history().clear();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QCoreApplication::processEvents();
    }

    BoardDriver board;
    ReaderDriver reader;
    CBaseObject *box;
    CBaseObject *figure;
};

/// Actions of objects that a lesson records meanwhile.
QStringList recorded(BoardDriver &board, const std::function<void()> &work)
{
    pagehost::LessonRecorder recorder(&board.workspace().registry());
    recorder.setTimeSource([] { return 0; });
    recorder.start(board.workspace().document());
    work();
    QStringList actions;
    for (const pagehost::LessonEvent &event : support::listed(recorder.stop().events))
        if (const auto *acted = std::get_if<pagehost::ObjectActed>(&event.step))
            actions.append(QString::number(acted->actionId) + ' ' + acted->payload.toHex());
    return actions;
}

} // namespace

class TestReading : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void thePageTellsWhichItIsAndHowManyObjectsItHas();
    void theObjectsAreItsChildrenInTheOrderOfTab();
    void namesTellTheFirstSetting();
    void descriptionsTellTextsPlaceSizeAndTurn();
    void germanReadersHearGerman();
    void statesTellSelectionFocusAndLocks();
    void anObjectIsSelectedByItsAction();
    void aTextIsEditedByItsAction();
    void theMenuOpensByItsAction();
    void controlPointsAreSlidersWithLimits();
    void pointsThatMoveBothWaysHaveASliderForEach();
    void aValueThatIsSetIsTheSameAsOneThatIsTyped();
    void valuesOutOfTheLimitsBecomeTheNearestOne();
    void theTurnGripIsASliderOfDegrees();
    void lockedObjectsHaveNoSliders();
    void nothingIsChangedWhileALessonShows();
    void focusFollowsTheKeys();
    void theFocusComesBackWithThePage();
    void whatKeysChangeIsTold();
    void interfacesOutliveTheirObjects();
    void interfacesOutliveTheirPage();
    void anObjectThatComesBackHasItsInterface();
    void whatIsUnderThePointerIsFound();
    void hintsAndNoticesAreAlerts();
    void partsOfTheWindowAreNamedToolBarsAndPanes();
    void buttonsTellTheirKeysAndWhetherTheyArePressed();
    void rowsOfTheHistoryReadAsTheyAreShown();
    void rowsOfTheHistoryGetNoFocusWhileThePageHasIt();
    void rowsOfTheOutlineReadWithEyeAndLock();
};

void TestReading::thePageTellsWhichItIsAndHowManyObjectsItHas()
{
    BoardDriver board;
    const ReaderDriver reader;
    QAccessibleInterface *page = ReaderDriver::of(&board.view());
    QCOMPARE(page->role(), QAccessible::Canvas);
    QCOMPARE(ReadBoard::name(page), QString("Page 1 of 1, 0 objects"));
    board.draw(rectangle, {500, 300}, {700, 420});
    QCOMPARE(ReadBoard::name(page), QString("Page 1 of 1, 1 object"));
    board.draw(star, {800, 300}, {920, 420});
    QCOMPARE(ReadBoard::name(page), QString("Page 1 of 1, 2 objects"));
    board.key(Qt::Key_N, Qt::ControlModifier | Qt::ShiftModifier);
    QCOMPARE(ReadBoard::name(page), QString("Page 2 of 2, 0 objects"));
}

void TestReading::theObjectsAreItsChildrenInTheOrderOfTab()
{
    ReadBoard t;
    QCOMPARE(t.object(0)->role(), QAccessible::Graphic);
    QCOMPARE(t.name(t.object(0)), QString("Rounded rectangle"));
    QCOMPARE(t.name(t.object(1)), QString("Star, 5 corners"));
    QCOMPARE(t.object(0)->parent(), t.page());
    QCOMPARE(t.page()->indexOfChild(t.object(1)), 1);
    QCOMPARE(t.childNames(t.object(0)), (QStringList{"Corner radius", "Size", "Rotation"}));
    QCOMPARE(t.object(0)->indexOfChild(t.object(0)->child(2)), 2);
    QCOMPARE(t.object(0)->child(2)->parent(), t.object(0));
    // Above all others.
    t.board.page().select({t.box});
    t.board.key(Qt::Key_BracketRight, Qt::ControlModifier);
    QCOMPARE(t.name(t.object(1)), QString("Rounded rectangle"));
    // Behind them, what lies on the page.
    for (int i = 2; i < t.page()->childCount(); ++i)
        QVERIFY(qobject_cast<QWidget *>(t.object(i)->object()));
    QVERIFY(t.page()->childCount() > 2);
}

void TestReading::namesTellTheFirstSetting()
{
    ReadBoard t;
    t.figure->SetSettingJson(board::settingAnswer(*board::firstOwnSetting(*t.figure), 7), true, true);
    QCOMPARE(t.name(t.object(1)), QString("Star, 7 corners"));
    pagehost::renameObject(&t.board.page(), t.figure, "Sun");
    QCOMPARE(t.name(t.object(1)), QString("Sun, 7 corners"));
    const QPair<QString, QString> others[] = {{"shapes.axes", "Axes, grid: yes"},
                                              {"shapes.numberline", "Number line, first number 0"},
                                              {"declared.lamp", "Lamp, on: yes"}};
    for (const auto &other : others) {
        t.board.draw(other.first, {100, 100}, {300, 220});
        QCOMPARE(t.name(t.object(t.board.page().objectCount() - 1)), other.second);
    }
}

void TestReading::descriptionsTellTextsPlaceSizeAndTurn()
{
    ReadBoard t;
    QCOMPARE(t.description(t.object(0)), QString("at 500, 300, 200 × 120"));
    // As in the panel, the place of the box around it: 224.2 × 167.7 about (600, 360).
    pagehost::rotateObjects({t.box}, 15);
    QCOMPARE(t.description(t.object(0)), QString("at 488, 276, 200 × 120, turned by 15°"));
    pagehost::rotateObjects({t.box}, -30);
    QCOMPARE(t.description(t.object(0)), QString("at 488, 276, 200 × 120, turned by 345°"));
    t.board.key(Qt::Key_T);
    t.board.click({100, 100});
    auto *editor = t.board.view().findChild<board::LabelEditor *>();
    QVERIFY(editor);
    QTest::keyClicks(editor, "Sun");
    QTest::keyClick(editor, Qt::Key_Escape);
    QVERIFY2(t.description(t.object(2)).startsWith("“Sun”, at 100, 86, "), qPrintable(t.description(t.object(2))));
}

void TestReading::germanReadersHearGerman()
{
    BoardDriver board("de");
    board.draw(star, {800, 300}, {920, 420});
    const ReaderDriver reader;
    QAccessibleInterface *page = ReaderDriver::of(&board.view());
    QCOMPARE(ReadBoard::name(page), QString("Seite 1 von 1, 1 Objekt"));
    QCOMPARE(ReadBoard::name(page->child(0)), QString("Stern, 5 Zacken"));
    QCOMPARE(ReadBoard::description(page->child(0)), QString("bei 800, 300, 120 × 120"));
}

void TestReading::statesTellSelectionFocusAndLocks()
{
    ReadBoard t;
    QAccessible::State state = t.object(0)->state();
    QVERIFY(state.selectable && state.focusable && state.editable);
    QVERIFY(!state.selected && !state.focused && !state.readOnly && !state.invisible && !state.offscreen);
    t.tab(1);
    QVERIFY(t.object(0)->state().selected);
    QVERIFY(t.object(0)->state().focused);
    QVERIFY(!t.object(1)->state().selected);
    t.tab(1);
    QVERIFY(t.object(0)->state().selected);
    QVERIFY(!t.object(0)->state().focused);
    QVERIFY(t.point()->state().focused);
    QCOMPARE(t.page()->focusChild(), t.point());
    t.box->setLocked(true);
    state = t.object(0)->state();
    QVERIFY(!state.editable && state.readOnly && state.selectable);
    t.figure->setVisible(false);
    QVERIFY(t.object(1)->state().invisible);
    t.box->setPos(QPointF(-5000, 0), false);
    QVERIFY(t.object(0)->state().offscreen);
}

void TestReading::anObjectIsSelectedByItsAction()
{
    ReadBoard t;
    QAccessibleActionInterface *actions = t.object(1)->actionInterface();
    QVERIFY(actions);
    QVERIFY(actions->actionNames().contains("select"));
    QCOMPARE(actions->localizedActionName("select"), QString("Select"));
    actions->doAction("select");
    QCOMPARE(t.board.selection(), QVector<CBaseObject *>{t.figure});
    t.point()->actionInterface()->doAction("select");
    QCOMPARE(t.board.selection(), QVector<CBaseObject *>{t.box});
    QCOMPARE(t.board.view().keys()->point(), 1);
    actions->doAction("fly");
    QCOMPARE(t.board.selection(), QVector<CBaseObject *>{t.box});
    QCOMPARE(t.board.history().count(), 0);
}

void TestReading::aTextIsEditedByItsAction()
{
    ReadBoard t;
    t.board.draw("shapes.ring", {900, 100}, {1000, 200});
    QVERIFY(!t.object(2)->actionInterface()->actionNames().contains("edit"));
    t.board.key(Qt::Key_T);
    t.board.click({100, 100});
    auto *editor = t.board.view().findChild<board::LabelEditor *>();
    QVERIFY(editor);
    QTest::keyClicks(editor, "Sun");
    QTest::keyClick(editor, Qt::Key_Escape);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(!t.board.view().isWriting());
    QAccessibleActionInterface *actions = t.object(3)->actionInterface();
    QVERIFY(actions->actionNames().contains("edit"));
    actions->doAction("edit");
    QVERIFY(t.board.view().isWriting());
}

void TestReading::theMenuOpensByItsAction()
{
    ReadBoard t;
    t.object(1)->actionInterface()->doAction("menu");
    auto *menu = t.board.window().findChild<QMenu *>("objectMenu");
    QVERIFY(menu->isVisible());
    QCOMPARE(t.board.selection(), QVector<CBaseObject *>{t.figure});
    menu->close();
}

void TestReading::controlPointsAreSlidersWithLimits()
{
    ReadBoard t;
    QCOMPARE(t.point()->role(), QAccessible::Slider);
    QCOMPARE(t.name(t.point()), QString("Corner radius"));
    QCOMPARE(t.description(t.point()), QString("Corner radius 24"));
    QAccessibleValueInterface *value = t.point()->valueInterface();
    QVERIFY(value);
    QCOMPARE(value->currentValue().toDouble(), 24.0);
    QCOMPARE(value->minimumValue().toDouble(), 0.0);
    QCOMPARE(value->maximumValue().toDouble(), 60.0);
    QCOMPARE(value->minimumStepSize().toDouble(), 8.0);
    // Nothing has happened to the shape.
    QCOMPARE(t.board.history().count(), 0);
    QCOMPARE(board::controlPointOf(*t.box, 1).place, QPointF(32, 12));
}

void TestReading::pointsThatMoveBothWaysHaveASliderForEach()
{
    ReadBoard t;
    QCOMPARE(t.childNames(t.object(1)), (QStringList{"Point 1, across", "Point 1, down", "Size", "Rotation"}));
    const QPointF place = board::controlPointOf(*t.figure, 1).place;
    QCOMPARE(t.object(1)->child(1)->valueInterface()->currentValue().toDouble(), qRound(place.y() * 10) / 10.0);
}

void TestReading::aValueThatIsSetIsTheSameAsOneThatIsTyped()
{
    ReadBoard t;
    t.tab(2);
    const QStringList typed = recorded(t.board, [&t] {
        t.board.key(Qt::Key_4);
        auto *field = t.board.view().findChild<QLineEdit *>("pointValue");
        QTest::keyClicks(field, "0");
        QTest::keyClick(field, Qt::Key_Return);
    });
    const QString step = t.board.history().text(0);
    QCOMPARE(board::controlPointOf(*t.box, 1).hint, QString("Corner radius 40"));
    t.board.key(Qt::Key_Z, Qt::ControlModifier);
    t.board.history().clear();
    t.board.page().select({});

    QAccessibleValueInterface *value = t.point()->valueInterface();
    const QStringList set = recorded(t.board, [&] { value->setCurrentValue(40.0); });
    QCOMPARE(value->currentValue().toDouble(), 40.0);
    QCOMPARE(board::controlPointOf(*t.box, 1).hint, QString("Corner radius 40"));
    QCOMPARE(t.board.history().count(), 1);
    QCOMPARE(t.board.history().text(0), step);
    QVERIFY(!typed.isEmpty());
    QCOMPARE(set, typed);
    QCOMPARE(t.board.selection(), QVector<CBaseObject *>{t.box});
    t.board.key(Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(value->currentValue().toDouble(), 24.0);
}

void TestReading::valuesOutOfTheLimitsBecomeTheNearestOne()
{
    ReadBoard t;
    QAccessibleValueInterface *value = t.point()->valueInterface();
    value->setCurrentValue(1000.0);
    QCOMPARE(value->currentValue().toDouble(), 60.0);
    value->setCurrentValue(-1.0);
    QCOMPARE(value->currentValue().toDouble(), 0.0);
    value->setCurrentValue(qQNaN());
    QCOMPARE(value->currentValue().toDouble(), 0.0);
    QCOMPARE(t.board.history().count(), 2);
}

void TestReading::theTurnGripIsASliderOfDegrees()
{
    ReadBoard t;
    QAccessibleValueInterface *value = t.object(0)->child(2)->valueInterface();
    QVERIFY(value);
    QCOMPARE(value->currentValue().toInt(), 0);
    QCOMPARE(value->maximumValue().toInt(), 359);
    QCOMPARE(value->minimumStepSize().toInt(), 15);
    value->setCurrentValue(90);
    QCOMPARE(t.box->rotation(), 90.0);
    QCOMPARE(t.board.history().count(), 1);
    value->setCurrentValue(-15);
    QCOMPARE(value->currentValue().toInt(), 345);
}

void TestReading::lockedObjectsHaveNoSliders()
{
    ReadBoard t;
    QAccessibleInterface *point = t.point();
    t.box->setLocked(true);
    QCOMPARE(t.object(0)->childCount(), 0);
    QVERIFY(!point->isValid());
    point->valueInterface()->setCurrentValue(40.0);
    t.box->setLocked(false);
    QVERIFY(point->isValid());
    QCOMPARE(point->valueInterface()->currentValue().toDouble(), 24.0);
}

void TestReading::nothingIsChangedWhileALessonShows()
{
    ReadBoard t;
    t.board.workspace().document()->setEditingBlocked(1);
    QVERIFY(t.object(0)->actionInterface()->actionNames().isEmpty());
    t.point()->valueInterface()->setCurrentValue(40.0);
    t.object(0)->actionInterface()->doAction("select");
    QVERIFY(t.board.selection().isEmpty());
    QVERIFY(!t.object(0)->state().editable);
    t.board.workspace().document()->setEditingBlocked(0);
    QCOMPARE(t.point()->valueInterface()->currentValue().toDouble(), 24.0);
}

void TestReading::focusFollowsTheKeys()
{
    ReadBoard t;
    t.tab(4);
    QCOMPARE(t.reader.said(), (QStringList{"focus: Rounded rectangle, graphic, at 500, 300, 200 × 120",
                                           "focus: Corner radius, slider, 24", "focus: Size, grip, 200 × 120",
                                           "focus: Rotation, slider, 0"}));
    t.board.key(Qt::Key_Tab, Qt::ControlModifier);
    QCOMPARE(t.reader.said().join(" | "), QString("focus: Star, 5 corners, graphic, at 800, 300, 120 × 120"));
    t.board.key(Qt::Key_Escape);
    QCOMPARE(t.reader.said().join(" | "), QString("focus: Page 1 of 1, 2 objects, page"));
}

void TestReading::theFocusComesBackWithThePage()
{
    ReadBoard t;
    t.tab(2);
    t.board.window().dock()->buttonOf(board::Tool::Pen)->setFocus();
    QCOMPARE(t.reader.said().constLast(), QString("focus: Pen, check box"));
    t.board.view().setFocus();
    QCOMPARE(t.reader.said().constLast(), QString("focus: Corner radius, slider, 24"));
}

void TestReading::whatKeysChangeIsTold()
{
    ReadBoard t;
    t.tab(1);
    t.reader.said();
    t.board.key(Qt::Key_Right);
    QCOMPARE(t.reader.said().join(" | "), QString("now: at 508, 300, 200 × 120"));
    t.tab(1);
    t.reader.said();
    t.board.key(Qt::Key_Right);
    QCOMPARE(t.reader.said().join(" | "), QString("value: 32"));
    t.board.key(Qt::Key_Home);
    QCOMPARE(t.reader.said().join(" | "), QString("value: 0"));
    t.board.key(Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(t.reader.said().join(" | "), QString("value: 32"));
    t.tab(1);
    t.reader.said();
    t.board.key(Qt::Key_Down);
    QCOMPARE(t.reader.said().join(" | "), QString("now: 200 × 128"));
    t.tab(1);
    t.reader.said();
    t.board.key(Qt::Key_Left);
    QCOMPARE(t.reader.said().join(" | "), QString("value: 345"));
}

void TestReading::interfacesOutliveTheirObjects()
{
    ReadBoard t;
    QAccessibleInterface *object = t.object(0);
    QAccessibleInterface *point = t.point();
    QAccessibleInterface *turn = object->child(2);
    t.tab(2);
    t.deleteSelected();
    QCOMPARE(t.board.page().objectCount(), 1);
    QAccessibleInterface *const all[] = {object, point, turn};
    for (QAccessibleInterface *interface : all) {
        QVERIFY(!interface->isValid());
        QVERIFY(interface->state().invalid);
        QCOMPARE(interface->text(QAccessible::Name), QString());
        QCOMPARE(interface->rect(), QRect());
        QCOMPARE(interface->childCount(), 0);
        QVERIFY(!interface->parent());
        QVERIFY(!interface->window());
        interface->actionInterface()->doAction("select");
    }
    QVERIFY(!point->valueInterface()->currentValue().isValid());
    point->valueInterface()->setCurrentValue(3);
    turn->valueInterface()->setCurrentValue(3);
    QCOMPARE(t.board.history().count(), 0);
    QCOMPARE(t.name(t.object(0)), QString("Star, 5 corners"));
}

void TestReading::interfacesOutliveTheirPage()
{
    QAccessible::Id object = 0;
    QAccessible::Id point = 0;
    {
        ReadBoard t;
        object = QAccessible::uniqueId(t.object(0));
        point = QAccessible::uniqueId(t.point());
        t.board.workspace().replaceDocument(std::make_unique<pagehost::Document>());
        QCOMPARE(t.name(t.page()), QString("Page 1 of 1, 0 objects"));
        QAccessibleInterface *left = QAccessible::accessibleInterface(object);
        QVERIFY(!left || !left->isValid());
    }
    QVERIFY(!QAccessible::accessibleInterface(object));
    QVERIFY(!QAccessible::accessibleInterface(point));
}

void TestReading::anObjectThatComesBackHasItsInterface()
{
    ReadBoard t;
    const QAccessible::Id id = QAccessible::uniqueId(t.object(0));
    const QAccessible::Id point = QAccessible::uniqueId(t.point());
    t.tab(1);
    t.board.key(Qt::Key_Delete);
    QVERIFY(!QAccessible::accessibleInterface(id)->isValid());
    t.board.key(Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(QAccessible::uniqueId(t.object(0)), id);
    QCOMPARE(QAccessible::uniqueId(t.point()), point);
    t.board.key(Qt::Key_N, Qt::ControlModifier | Qt::ShiftModifier);
    QVERIFY(!QAccessible::accessibleInterface(id)->isValid());
    t.board.key(Qt::Key_PageUp);
    QCOMPARE(QAccessible::uniqueId(t.object(0)), id);
    QVERIFY(t.object(0)->isValid());
}

void TestReading::whatIsUnderThePointerIsFound()
{
    ReadBoard t;
    const auto at = [&t](const QPointF &place) {
        const QPoint pos = t.board.view().viewport()->mapToGlobal(t.board.view().mapFromScene(place));
        return t.page()->childAt(pos.x(), pos.y());
    };
    QCOMPARE(at({600, 360}), t.object(0));
    QCOMPARE(at({860, 360}), t.object(1));
    QCOMPARE(at({300, 600})->object(), t.board.view().viewport());
    const QPoint corner = t.board.view().viewport()->mapToGlobal(t.board.view().mapFromScene(QPointF(500, 300)));
    QCOMPARE(t.object(0)->rect(), QRect(corner, QSize(200, 120)));
    const QPoint point = corner + QPoint(32, 12);
    QCOMPARE(t.object(0)->childAt(point.x(), point.y()), t.point());
}

void TestReading::hintsAndNoticesAreAlerts()
{
    ReadBoard t;
    t.board.pick(rectangle);
    QVERIFY(t.reader.said().contains("alert: Rounded rectangle: drag to draw. Esc ends."));
    QWidget *bar = t.board.window().notices()->add({"The disk is full.", {"Optics.board"}, {}, "test"});
    QVERIFY(t.reader.said().contains("alert: The disk is full. Optics.board"));
    QCOMPARE(ReaderDriver::of(bar)->role(), QAccessible::AlertMessage);
}

void TestReading::partsOfTheWindowAreNamedToolBarsAndPanes()
{
    ReadBoard t;
    t.board.window().commands()->action(board::Command::PageStrip)->setChecked(true);
    t.board.window().commands()->action(board::Command::Shapes)->trigger();
    QStringList parts;
    for (QWidget *widget : support::listed(t.board.window().findChildren<QWidget *>())) {
        const QAccessible::Role role = ReaderDriver::of(widget)->role();
        if ((role == QAccessible::ToolBar || role == QAccessible::Pane) && !widget->accessibleName().isEmpty())
            parts.append(ReaderDriver::wordsFor(ReaderDriver::of(widget)));
    }
    parts.sort();
    QCOMPARE(parts, (QStringList{"Bar at the selection, tool bar", "Bar at the top, tool bar",
                                 "Colours and widths, tool bar", "Lesson, tool bar", "Messages, pane",
                                 "Pages, pane", "Panel, pane", "Pen options, pane", "Shapes, pane",
                                 "Text, tool bar", "Tools, tool bar"}));
}

void TestReading::buttonsTellTheirKeysAndWhetherTheyArePressed()
{
    ReadBoard t;
    QAccessibleInterface *pen = ReaderDriver::of(t.board.window().dock()->buttonOf(board::Tool::Pen));
    QCOMPARE(t.name(pen), QString("Pen"));
    QCOMPARE(t.description(pen), QString("P"));
    QVERIFY(!pen->state().checked);
    t.board.key(Qt::Key_P);
    QVERIFY(pen->state().checkable && pen->state().checked);
    QStringList silent;
    for (QToolButton *button : support::listed(t.board.window().findChildren<QToolButton *>())) {
        const QAction *action = button->defaultAction();
        const QString key = action ? action->shortcut().toString(QKeySequence::NativeText) : QString();
        if (!key.isEmpty() && !t.description(ReaderDriver::of(button)).contains(key))
            silent.append(t.name(ReaderDriver::of(button)));
    }
    QCOMPARE(silent, QStringList());
}

void TestReading::rowsOfTheHistoryReadAsTheyAreShown()
{
    ReadBoard t;
    t.board.page().select({t.box});
    t.board.key(Qt::Key_Right);
    t.board.key(Qt::Key_M, Qt::ControlModifier);
    auto *history = t.board.window().findChild<board::HistoryPanel *>();
    t.board.window().raisePanel(history);
    QCOMPARE(t.childNames(ReaderDriver::of(history->list())), (QStringList{"Start", "Move with keys", "Mirror"}));
}

void TestReading::rowsOfTheHistoryGetNoFocusWhileThePageHasIt()
{
    ReadBoard t;
    t.board.page().select({t.box});
    auto *history = t.board.window().findChild<board::HistoryPanel *>();
    t.board.window().raisePanel(history);
    t.board.key(Qt::Key_Right);
    static int focusedRows;
    focusedRows = 0;
    const auto count = [](QAccessibleEvent *event) {
        const QAccessibleInterface *told = event->accessibleInterface();
        focusedRows += event->type() == QAccessible::Focus && told && told->role() == QAccessible::ListItem;
    };
    const QAccessible::UpdateHandler reader = QAccessible::installUpdateHandler(count);
    t.board.key(Qt::Key_Right);
    QCOMPARE(focusedRows, 0);
    history->list()->setFocus();
    t.board.keyIn(history->list(), Qt::Key_Up);
    QVERIFY(focusedRows > 0);
    QAccessible::installUpdateHandler(reader);
}

void TestReading::rowsOfTheOutlineReadWithEyeAndLock()
{
    ReadBoard t;
    t.figure->setLocked(true);
    auto *outline = t.board.window().findChild<board::OutlinePanel *>();
    t.board.window().raisePanel(outline);
    t.reader.said();
    const QStringList heads{QString(), QString(), QString()};
    QCOMPARE(t.childNames(ReaderDriver::of(outline->tree())),
             (heads + QStringList{"Star", "Hide", "Unlock", "Rounded rectangle", "Hide", "Lock"}));
}

QTEST_MAIN(TestReading)
#include "test_reading.moc"

#pragma once

#include <board/boarddriver.h>
#include <board/hands.h>

#include <core/commands.h>
#include <page/pageview.h>
#include <presenting/fadingdock.h>
#include <presenting/presentation.h>
#include <window/mainwindow.h>

#include <pagehost/page.h>

#include <QtTest/QtTest>
#include <QtWidgets/QAction>

namespace boardtest {

/// Three pages, the second one with a rectangle of 200 × 120 at (500, 300), presented.
struct Show
{
    BoardDriver board;
    CBaseObject *shape = nullptr;

    explicit Show(bool isStarted = true)
    {
        run(board::Command::AddPage);
        run(board::Command::AddPage);
        document().setCurrentIndex(1);
        shape = board.draw(rectangle, {500, 300}, {700, 420});
        board.page().select({});
        if (!isStarted)
            return;
        board.key(Qt::Key_F5);
        // Over the dock the pointer would keep it.
        movePointer(farAway());
    }
    pagehost::Document &document() { return *board.workspace().document(); }
    void run(board::Command command) const { board.window().commands()->action(command)->trigger(); }
    board::Presentation &presentation() const { return *board.window().presentation(); }
    board::Stage &stage() const { return *presentation().stage(); }
    QWidget *viewport() const { return stage().view()->viewport(); }
    board::FadingDock &dock() const { return *stage().findChild<board::FadingDock *>(); }
    int page() { return document().currentIndex(); }
    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) const
    {
        QVERIFY(activate(*stage().window()));
        stage().view()->setFocus();
        QTest::keyClick(stage().view(), key, modifiers);
    }
    void movePointer(const QPoint &pos) const { board.user().move(viewport(), pos, Qt::NoButton, Qt::NoModifier); }
    QPoint at(const QPointF &scenePos) const { return stage().view()->mapFromScene(scenePos); }
    /// Far from the dock.
    QPoint farAway() const { return {viewport()->width() - 10, 10}; }
};

/// The same with the page on a second screen.
struct TwoScreens
{
    Show show{false};

    explicit TwoScreens(const QSize &presenter = {1366, 768})
    {
        show.presentation().start({{0, 0, 800, 600}, QRect(QPoint(800, 0), presenter)});
    }
    board::AudienceWindow &audience() const { return *show.presentation().audience(); }
};

} // namespace boardtest

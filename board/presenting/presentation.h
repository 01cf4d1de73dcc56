#pragma once

#include "presenting/audiencewindow.h"
#include "presenting/presenterwindow.h"
#include "presenting/screenplan.h"
#include "presenting/stage.h"

#include <QtCore/QObject>
#include <QtCore/QPointer>
#include <QtWidgets/QWidget>

namespace board {

class Commands;
class PageView;
class ToolChoice;
class Voice;
class Workspace;

/// Shows the page of the window alone, over a whole screen, and follows it. The window stays as it is.
class Presentation : public QObject
{
    Q_OBJECT

public:
    /// All must outlive this; what is shown belongs to `window`.
    Presentation(const Workspace *workspace, Commands *commands, ToolChoice *tools, PageView *view,
                 QWidget *window);

    bool isRunning() const { return m_stage; }
    /// On the screens that there are.
    void start();
    void start(const ScreenPlan &plan);
    void end();
    /// Null while nothing is presented.
    Stage *stage() const { return m_stage; }
    /// Null without a second screen.
    PresenterWindow *presenter() const { return m_presenter; }
    AudienceWindow *audience() const { return m_audience; }

private:
    void showOnOneScreen(const QRect &screen);
    void showOnTwoScreens(const ScreenPlan &plan);
    void lendKeys(QWidget *shown);
    void showPage();

    const Workspace *m_workspace;
    Commands *m_commands;
    ToolChoice *m_tools;
    PageView *m_view;
    QWidget *m_window;
    Voice *m_voice;
    QPointer<QWidget> m_single; ///< with one screen
    QPointer<PresenterWindow> m_presenter;
    QPointer<AudienceWindow> m_audience;
    QPointer<Stage> m_stage; ///< in one of these
};

} // namespace board

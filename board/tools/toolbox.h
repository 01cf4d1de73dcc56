#pragma once

#include "core/toolchoice.h"

#include <pagehost/pagescene.h>
#include <pagehost/pagetool.h>
#include <pagehost/toolsession.h>

#include <QtCore/QObject>
#include <QtCore/QPointer>

#include <memory>

namespace board {

class PageView;
class ToolSettings;
class Workspace;

/// Offers the tools that plug-ins have, and gives the chosen one to the page that is shown.
class Toolbox : public QObject
{
    Q_OBJECT

public:
    /// All arguments must outlive the toolbox.
    Toolbox(const Workspace *workspace, PageView *view, ToolChoice *choice, const ToolSettings *settings,
            QObject *parent = nullptr);
    /// Takes the tool from the page.
    ~Toolbox() override;

private:
    void takeUp();
    void putDown();
    void applySettings();
    void followUp();
    void typeAt(const QPointF &pos);
    void removeIfEmpty(CBaseObject *object, bool madeStep);

    const Workspace *m_workspace;
    PageView *m_view;
    ToolChoice *m_choice;
    const ToolSettings *m_settings;
    QPointer<pagehost::PageScene> m_scene; ///< has the tool
    Tool m_inHand = Tool::Select;          ///< the tool that m_tool is
    std::unique_ptr<pagehost::ToolSession> m_session;
    std::unique_ptr<pagehost::PageTool> m_tool; ///< null while no tool of a plug-in is chosen
    QPointer<CBaseObject> m_new;                ///< its text is being written for the first time
};

} // namespace board

#pragma once

#include "core/commandlist.h"

#include <QtWidgets/QWidget>

namespace board {

class Commands;
class Curtain;
class LaserPointer;
class PageView;
class ToolChoice;
class Voice;
class Workspace;

/// A page on black that is presented and drawn on: keys and clickers turn the pages, with a curtain and a laser
/// pointer.
class Stage : public QWidget
{
    Q_OBJECT

public:
    /// All must outlive this.
    Stage(const Workspace *workspace, Commands *commands, ToolChoice *tools, QWidget *parent = nullptr);

    PageView *view() const { return m_view; }
    Curtain *curtain() const { return m_curtain; }
    LaserPointer *laser() const { return m_laser; }
    Voice *voice() const { return m_voice; }

Q_SIGNALS:
    void endRequested();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    bool useKey(const QKeyEvent &event);
    bool turn(bool forwards);
    bool run(Command command);
    bool escape();
    void tellCurtain();

    const Workspace *m_workspace;
    Commands *m_commands;
    ToolChoice *m_tools;
    PageView *m_view;
    Curtain *m_curtain;
    LaserPointer *m_laser;
    Voice *m_voice;
    bool m_isCovered = false; ///< as readers were told
};

} // namespace board

#pragma once

#include "core/commandlist.h"

#include <QtWidgets/QWidget>

class QAction;

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
    /// Shows the whole page again.
    QAction *fit() const { return m_fit; }

Q_SIGNALS:
    void endRequested();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    template<typename Slot> QAction *addZoom(Command command, Slot slot);
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
    QAction *m_fit;
    bool m_isCovered = false; ///< as readers were told
};

} // namespace board

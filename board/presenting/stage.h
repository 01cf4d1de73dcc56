#pragma once

#include "core/commandlist.h"

#include <QtWidgets/QWidget>

namespace board {

class Commands;
class Curtain;
class LaserPointer;
class PageView;
class ToolChoice;

/// A page on black that is presented and drawn on: keys and clickers turn the pages, with a curtain and a laser
/// pointer.
class Stage : public QWidget
{
    Q_OBJECT

public:
    /// Both must outlive this.
    Stage(Commands *commands, ToolChoice *tools, QWidget *parent = nullptr);

    PageView *view() const { return m_view; }
    Curtain *curtain() const { return m_curtain; }
    LaserPointer *laser() const { return m_laser; }

Q_SIGNALS:
    void endRequested();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    bool useKey(const QKeyEvent &event);
    bool turn(bool forwards);
    bool run(Command command);
    bool escape();

    Commands *m_commands;
    ToolChoice *m_tools;
    PageView *m_view;
    Curtain *m_curtain;
    LaserPointer *m_laser;
};

} // namespace board

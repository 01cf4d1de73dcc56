#pragma once

#include <pagehost/paper.h>

#include <QtCore/QObject>

namespace board {

class Commands;
class PageView;

/// The commands that choose the paper of the page that is shown.
class PaperActions : public QObject
{
    Q_OBJECT

public:
    /// All must outlive this.
    PaperActions(Commands *commands, PageView *view, QObject *parent);

private:
    void choose(pagehost::Paper paper);
    void followPage();
    void showPaper();

    Commands *m_commands;
    PageView *m_view;
    QMetaObject::Connection m_connection; ///< to the page that is shown
};

} // namespace board

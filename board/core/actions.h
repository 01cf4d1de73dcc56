#pragma once

#include "core/commandlist.h"

#include <pagehost/commands.h>

#include <QtCore/QObject>

#include <functional>

class CBaseObject;
class QAction;
class QUndoStack;

namespace board {

class Commands;
class PageView;
class Workspace;

/// Performs the commands that concern the page, its objects and its view. Those without effect at the moment are
/// disabled.
class Actions : public QObject
{
    Q_OBJECT

public:
    Actions(Workspace *workspace, Commands *commands, PageView *view, QObject *parent = nullptr);

    /// Looks at page and selection anew.
    void update();

    QAction *undo, *redo, *selectAll, *deselect, *duplicate, *remove;
    QAction *toFront, *forward, *backward, *toBack;
    QAction *mirrorHorizontally, *mirrorVertically, *rotateLeft, *rotateRight;
    QAction *zoomIn, *zoomOut, *actualSize, *fitPage, *playAnimation;
    QAction *addPage, *removePage, *previousPage, *nextPage;
    QAction *darkColors, *highContrast, *quit, *about;

Q_SIGNALS:
    /// Undo or redo comes next: what is only shown must go first.
    void aboutToStep();

private:
    void makeEditActions();
    void makeArrangeActions();
    void makeAlignActions();
    void arrange(Command command, const std::function<void(const QVector<CBaseObject *> &)> &work);
    QVector<QVector<CBaseObject *>> units(const QVector<CBaseObject *> &objects) const;
    void makeViewActions();
    void makeLookActions();
    void showTheme();
    void makePageActions();
    void makeProgramActions();
    void nameHistory();
    void enableHistory();
    void enableArranging();
    void enablePages();
    bool isDragging() const;
    void step(void (QUndoStack::*way)());
    void duplicateSelection();
    void dropCopy(const QPointF &way);
    void restackSelection(pagehost::StackingMove move);
    void mirrorSelection(bool horizontally);
    void rotateSelection(double degrees);
    void duplicatePage();
    void zoomToSelection();
    void showPage(int index);
    void movePage(int by);

    Workspace *m_workspace;
    Commands *m_commands;
    PageView *m_view;
};

} // namespace board

#pragma once

#include "look/icons.h"

#include <pagehost/commands.h>

#include <QtCore/QObject>
#include <QtGui/QKeySequence>

#include <functional>

class QAction;
class QUndoStack;

namespace board {

class PageView;
class Workspace;

/// Actions of menus, tool bar and keys. Actions without effect at the moment are disabled.
class Actions : public QObject
{
    Q_OBJECT

public:
    Actions(Workspace *workspace, PageView *view, QObject *parent = nullptr);

    /// Looks at page and selection anew.
    void update();

    QAction *undo, *redo, *selectAll, *deselect, *duplicate, *remove;
    QAction *toFront, *forward, *backward, *toBack;
    QAction *mirrorHorizontally, *mirrorVertically, *rotateLeft, *rotateRight;
    QAction *zoomIn, *zoomOut, *actualSize, *fitPage, *playAnimation;
    QAction *addPage, *removePage, *previousPage, *nextPage;
    QAction *exportPages, *exportSvg, *darkColors, *quit, *about;

Q_SIGNALS:
    /// Undo or redo comes next: what is only shown must go first.
    void aboutToStep();

private:
    using Work = std::function<void()>;
    QAction *add(const char *textKey, const QList<QKeySequence> &keys, const Work &work);
    QAction *add(const char *textKey, Icon picture, const QList<QKeySequence> &keys, const Work &work);
    void makeEditActions();
    void makeArrangeActions();
    void makeViewActions();
    void makePageActions();
    void makeProgramActions();
    void nameHistory();
    void enableHistory();
    bool isDragging() const;
    void step(void (QUndoStack::*way)());
    void duplicateSelection();
    void restackSelection(pagehost::StackingMove move);
    void mirrorSelection(bool horizontally);
    void rotateSelection(double degrees);
    void turnPage(int by);

    Workspace *m_workspace;
    PageView *m_view;
};

} // namespace board

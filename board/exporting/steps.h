#pragma once

#include <QtCore/QObject>
#include <QtCore/QString>

#include <functional>

class QWidget;

namespace board {

class Workspace;

/// Work of short steps that a user may end early.
struct Steps
{
    QString text; ///< what is being done, for people
    int count = 0;
    std::function<void(int index)> take;
    std::function<void(bool cancelled)> finish;
};

/// Takes the first step at once and the others one after the other while the window stays alive. A dialog with a
/// button to cancel appears when they take longer than a second. Finishes after this call, or never if `window`
/// dies.
void takeSteps(const Workspace &workspace, QWidget *window, const Steps &steps);

} // namespace board

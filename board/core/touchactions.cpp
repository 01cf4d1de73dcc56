#include "core/touchactions.h"

#include "core/commands.h"
#include "core/windowmemory.h"
#include "page/pageview.h"

#include <QtWidgets/QAction>

namespace board {

TouchActions::TouchActions(Commands *commands, PageView *view, QObject *parent)
    : QObject(parent)
{
    QAction *fingers = commands->perform(Command::FingersDraw);
    fingers->setChecked(remembersFingersDraw());
    view->setFingersDraw(fingers->isChecked());
    connect(fingers, &QAction::toggled, view, [view](bool draw) {
        rememberFingersDraw(draw);
        view->setFingersDraw(draw);
    });
}

} // namespace board

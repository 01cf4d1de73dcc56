#include "exporting/steps.h"

#include "core/workspace.h"

#include <QtCore/QTimer>
#include <QtWidgets/QProgressDialog>

namespace board {

namespace {

constexpr int patience = 1000; ///< milliseconds

/// One at a time, from the event loop. The dialog handles events itself while it is shown, so that a repeating
/// timer would enter a step within another.
void takeNext(QProgressDialog *dialog, const Steps &steps, int index)
{
    if (dialog->wasCanceled() || index == steps.count) {
        dialog->deleteLater();
        return steps.finish(dialog->wasCanceled());
    }
    steps.take(index);
    // Handles events, and is not shown again once the user has cancelled.
    dialog->setValue(index + 1);
    QTimer::singleShot(0, dialog, [=] { takeNext(dialog, steps, index + 1); });
}

} // namespace

void takeSteps(const Workspace &workspace, QWidget *window, const Steps &steps)
{
    auto *dialog = new QProgressDialog(steps.text, workspace.text("IDS_BOARD_KEEP_CANCEL"), 0, steps.count, window);
    dialog->setWindowModality(Qt::WindowModal);
    dialog->setMinimumDuration(patience);
    dialog->setAutoClose(false);
    dialog->setAutoReset(false);
    dialog->setValue(0);
    takeNext(dialog, steps, 0);
}

} // namespace board

#include "core/shortcuts.h"

#include <QtWidgets/QAction>

namespace board {

void describe(QAction *action)
{
    QString name = action->text();
    name.remove(QLatin1Char('&'));
    const QString keys = action->shortcut().toString(QKeySequence::NativeText);
    action->setToolTip(keys.isEmpty() ? name : QStringLiteral("%1 (%2)").arg(name, keys));
}

} // namespace board

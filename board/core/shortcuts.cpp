#include "core/shortcuts.h"

#include <QtWidgets/QAction>

namespace board {

QList<QKeySequence> keysFor(QKeySequence::StandardKey key, const QList<QKeySequence> &ours)
{
    QList<QKeySequence> keys = ours;
    const QList<QKeySequence> bindings = QKeySequence::keyBindings(key);
    for (const QKeySequence &binding : bindings)
        if (!keys.contains(binding))
            keys.append(binding);
    return keys;
}

void describe(QAction *action)
{
    QString name = action->text();
    name.remove(QLatin1Char('&'));
    const QString keys = action->shortcut().toString(QKeySequence::NativeText);
    action->setToolTip(keys.isEmpty() ? name : QStringLiteral("%1 (%2)").arg(name, keys));
}

} // namespace board

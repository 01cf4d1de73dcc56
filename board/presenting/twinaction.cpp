#include "presenting/twinaction.h"

#include <QtWidgets/QAction>

namespace board {

QAction *makeTwin(const QAction &original, QObject *parent)
{
    auto *twin = new QAction(original.text(), parent);
    twin->setToolTip(original.toolTip());
    twin->setShortcuts(original.shortcuts());
    return twin;
}

} // namespace board

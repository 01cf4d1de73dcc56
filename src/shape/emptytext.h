#pragma once

#include <QtCore/QString>

/// Text that is empty but not null: hosts and streams distinguish the two.
inline QString emptyText()
{
    return QLatin1String("");
}

#pragma once

#include <QtCore/QString>

/// Text that is empty but not null: hosts and streams tell the two apart.
inline QString emptyText()
{
    return QLatin1String("");
}

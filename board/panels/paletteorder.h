#pragma once

#include <QtCore/QString>
#include <QtCore/QVector>

namespace board {

class Workspace;

/// A kind of shape as the palette offers it, in the user's language.
struct PaletteEntry
{
    QString kindId;
    QString name;
    QString group;
    QString words; ///< that it is found by, besides its name
};

/// All kinds: the basic group first, then the groups by their titles, each by its names.
QVector<PaletteEntry> paletteEntries(const Workspace &workspace);

} // namespace board

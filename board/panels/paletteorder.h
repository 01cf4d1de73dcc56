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
    QString words; ///< that it is found by: names and others, in all languages of the board
    int rank = 0;  ///< place in the group by use; 0 for kinds that follow by name
};

/// All kinds: the basic group first, then the groups by their titles; in each what is used most comes first.
QVector<PaletteEntry> paletteEntries(const Workspace &workspace);

} // namespace board

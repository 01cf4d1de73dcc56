#pragma once

#include <QtCore/QString>

namespace board {

/// The folders that boards were saved in, kept in the user's settings: a save that is interrupted leaves an
/// unfinished file there, which the next start clears away.
class SaveFolders
{
public:
    static constexpr int most = 30;

    /// To be called before something is written there.
    static void add(const QString &folder);
    /// Deletes what interrupted saves left in any of them.
    static void tidy();
};

} // namespace board

#pragma once

#include <QtCore/QStringList>

namespace board {

/// The files that were opened or saved last, kept in the user's settings, the newest first.
class RecentFiles
{
public:
    static constexpr int most = 10;

    /// Those that still exist.
    QStringList files() const;
    /// Puts a file in front; a file that is there already moves.
    void add(const QString &file);
    void remove(const QString &file);
    void clear();
};

} // namespace board

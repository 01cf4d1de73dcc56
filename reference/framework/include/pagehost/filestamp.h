#pragma once

#include <framework/framework_global.h>

#include <QtCore/QByteArray>
#include <QtCore/QJsonObject>
#include <QtCore/QString>

namespace pagehost {

/// Which file a document was read from or written to, and what was in it: enough to notice that another file, or
/// other contents, have come in its place.
struct FRAMEWORK_EXPORT FileStamp
{
    quint64 device = 0;
    quint64 inode = 0;
    qint64 size = -1;    ///< bytes
    qint64 modified = 0; ///< nanoseconds since 1970: when the contents were changed
    qint64 touched = 0;  ///< nanoseconds since 1970: when anything about the file was changed, which nobody can set
    QByteArray hash;     ///< SHA-256 of the contents; empty when they were not read

    /// True of a file that does not exist or cannot be read.
    bool isNull() const { return size < 0; }
    /// Identity, size and times are the same.
    bool isSameFile(const FileStamp &other) const;
    /// Of two stamps with hashes: the contents are the same, in whichever file they are.
    bool hasSameContents(const FileStamp &other) const;

    /// Reads the whole file.
    static FileStamp of(const QString &file);
    /// Without the hash.
    static FileStamp atAGlance(const QString &file);
    /// Of an open file with these contents.
    static FileStamp of(int descriptor, const QByteArray &contents);

    QJsonObject toJson() const;
    /// Null for an object that is no stamp.
    static FileStamp fromJson(const QJsonObject &object);
};

/// Effects of replacing a file, its contents apart.
struct ReplacementEffects
{
    int otherNames = 0;        ///< hard links, which keep the file as it was
    bool changesOwner = false; ///< only its owner and the administrator can keep the owner
};
FRAMEWORK_EXPORT ReplacementEffects effectsOfReplacing(const QString &file);

/// Deletes what saves of processes that are gone left unfinished in a folder; gives the number of files.
FRAMEWORK_EXPORT int removeUnfinishedSaves(const QString &folder);

} // namespace pagehost

#pragma once

#include <framework/framework_global.h>

#include <QtCore/QByteArray>
#include <QtCore/QJsonObject>
#include <QtCore/QString>

namespace pagehost {

/// Identity and contents of the file that a document was read from or written to: tells whether another file, or
/// other contents, have replaced it.
struct FRAMEWORK_EXPORT FileStamp
{
    quint64 device = 0;  ///< the device that holds the file
    quint64 inode = 0;   ///< its number there
    qint64 size = -1;    ///< bytes
    qint64 modified = 0; ///< time of the last change of the contents, nanoseconds since 1970
    qint64 touched =
        0; ///< time of the last change of anything about the file, which no program can set; nanoseconds since 1970
    QByteArray hash; ///< SHA-256 of the contents; empty when they were not read

    /// True for a file that does not exist or cannot be read.
    bool isNull() const { return size < 0; }
    /// Whether identity, size and times are equal.
    bool isSameFile(const FileStamp &other) const;
    /// Whether two stamps with hashes have the same contents, in whichever files.
    bool hasSameContents(const FileStamp &other) const;

    /// Reads the whole file.
    static FileStamp of(const QString &file);
    /// The same without the hash.
    static FileStamp atAGlance(const QString &file);
    /// The stamp of an open file with these contents.
    static FileStamp of(int descriptor, const QByteArray &contents);

    /// For the files that describe recovery copies.
    QJsonObject toJson() const;
    /// Null for a JSON object that is not a stamp.
    static FileStamp fromJson(const QJsonObject &object);
};

/// Effects of replacing a file, apart from its contents.
struct ReplacementEffects
{
    int otherNames = 0;        ///< other hard links, which keep the old contents
    bool changesOwner = false; ///< only its owner and the administrator can keep the owner
};
/// Effects of saving over this file; none for a file that does not exist.
FRAMEWORK_EXPORT ReplacementEffects effectsOfReplacing(const QString &file);

/// Deletes unfinished files in a folder that saves of ended processes left; returns their number.
FRAMEWORK_EXPORT int removeUnfinishedSaves(const QString &folder);

} // namespace pagehost

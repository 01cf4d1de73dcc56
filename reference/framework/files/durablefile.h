#pragma once

#include <pagehost/filestamp.h>

#include <QtCore/QByteArray>
#include <QtCore/QString>

#include <optional>

namespace pagehost {

struct WriteResult
{
    enum Outcome {
        Written,
        DiskFull,
        Failed,
        Conflict ///< another file, or other contents, exist than were expected
    };
    Outcome outcome = Written;
    QString problem; ///< the system's message
    FileStamp stamp; ///< of the bytes written
};

/// Replaces `file` by one with these bytes in one step, after all of them are on the disk, and has the directory
/// remember it. Owner, group and mode stay as far as the system allows. Anything but Written leaves the file as it
/// was. With `expected`, whatever has other contents than that stamp tells of is left alone; a null stamp expects
/// no file. A file that is gone is no conflict.
WriteResult writeDurably(const QString &file, const QByteArray &bytes,
                         const std::optional<FileStamp> &expected = std::nullopt);

} // namespace pagehost

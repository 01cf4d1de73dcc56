#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QString>

namespace pagehost {

struct WriteResult
{
    enum Outcome { Written, ShortWrite, Failed };
    Outcome outcome = Written;
    QString problem; ///< what the system says
};

/// Replaces `file` by one with these bytes in one step, after all of them are on the disk, and has the directory
/// remember it. Anything but Written leaves the file as it was.
WriteResult writeDurably(const QString &file, const QByteArray &bytes);

/// False when it is known that the file's name may be lost when the power fails now.
bool syncDirectoryOf(const QString &file);

} // namespace pagehost

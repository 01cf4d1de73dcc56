#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QString>

#include <sys/stat.h>
#include <sys/types.h>

namespace pagehost {

/// A file that is written beside the one whose place it will take. Its name says what it is, and a lock that ends
/// with the process tells whether somebody still writes it (removeUnfinishedSaves()). Failures are told by errno.
class WorkFile
{
public:
    WorkFile() = default;
    /// Removes what has not taken its place.
    ~WorkFile();
    Q_DISABLE_COPY(WorkFile)

    bool create(const QString &folder, mode_t mode);
    bool write(const QByteArray &bytes);
    /// Takes over owner, group and mode as far as this process may. A group that it cannot keep gets no more than
    /// everybody has.
    bool resemble(const struct stat &original);
    /// Brings the bytes to the disk.
    bool sync();
    bool takePlaceOf(const QString &file);

    int descriptor() const { return m_descriptor; }

private:
    void remove();

    int m_descriptor = -1;
    QByteArray m_name; ///< absolute; empty when there is nothing to be removed
};

} // namespace pagehost

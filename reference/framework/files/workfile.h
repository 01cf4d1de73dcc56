#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QString>

#include <sys/stat.h>
#include <sys/types.h>

namespace pagehost {

/// A file written beside the one that it will replace. Its name tells what it is, and a lock that ends with the
/// process tells whether it is still being written (removeUnfinishedSaves()). Failures set errno.
class WorkFile
{
public:
    WorkFile() = default;
    /// Deletes the file unless it has replaced the other one.
    ~WorkFile();
    Q_DISABLE_COPY(WorkFile)

    bool create(const QString &folder, mode_t mode);
    bool write(const QByteArray &bytes);
    /// Copies owner, group and mode as far as this process may. A group that it cannot keep gets no more rights
    /// than everybody.
    bool resemble(const struct stat &original);
    /// Writes the bytes to the disk.
    bool sync();
    bool takePlaceOf(const QString &file);

    int descriptor() const { return m_descriptor; }

private:
    void remove();

    int m_descriptor = -1;
    QByteArray m_name; ///< absolute; empty when there is nothing to delete
};

} // namespace pagehost

#pragma once

#include <pagehost/documentfile.h>
#include <pagehost/extradata.h>

#include <QtCore/QJsonArray>

namespace pagehost {

/// Bytes of a file that cannot be understood. They stay with their document or page, as base64 in a member that is
/// written again.
class DamagedParts
{
public:
    /// Keeps the bytes and returns the message about them, or about their being too many. Zeros are not kept.
    FileMessage keep(const QByteArray &bytes);
    /// Adds the parts kept since the last call to those in `extra`.
    void moveTo(ExtraData &extra);

private:
    QJsonArray m_parts;
    qint64 m_size = 0; ///< of all parts of the document, bytes
};

} // namespace pagehost

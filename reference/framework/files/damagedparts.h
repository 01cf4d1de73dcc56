#pragma once

#include <pagehost/documentfile.h>
#include <pagehost/extradata.h>

#include <QtCore/QJsonArray>

namespace pagehost {

/// Bytes of a file that cannot be understood. They stay with the document or the page that they stood in, as base64
/// in a member that is written again.
class DamagedParts
{
public:
    /// Keeps the bytes and gives the message that says so, or that they are too many. Zeros are not kept.
    FileMessage keep(const QByteArray &bytes);
    /// Adds what has been kept since the last call to the parts that `extra` has already.
    void moveTo(ExtraData &extra);

private:
    QJsonArray m_parts;
    qint64 m_size = 0; ///< of all parts of the document, bytes
};

} // namespace pagehost

#include <declared/core/savedtext.h>

#include <declared/reader/filelimits.h>

#include <QtCore/QDataStream>
#include <QtCore/QIODevice>
#include <QtCore/QJsonDocument>
#include <QtCore/QtEndian>

#include <zlib.h>

namespace declared {

namespace {

/// Compact JSON has its members sorted. Quotes inside strings are escaped, so that none looks like this.
constexpr char beginning[] = "{\"form\":";
constexpr int sizeBytes = 4;
/// The form of a file is a little longer than the file where that has characters that must be escaped.
constexpr int mostBytes = 8 * limits::fileBytes;

} // namespace

QJsonObject savedAhead(QDataStream &in)
{
    const QByteArray ahead = in.device() ? in.device()->peek(in.device()->bytesAvailable()) : QByteArray();
    for (int place = ahead.indexOf(beginning); place >= 0; place = ahead.indexOf(beginning, place + 1)) {
        if (place < sizeBytes)
            continue;
        // As a byte array, its size stands before it.
        const quint32 size = qFromBigEndian<quint32>(ahead.constData() + place - sizeBytes);
        QJsonObject saved = QJsonDocument::fromJson(ahead.mid(place, int(qMin(size, quint32(mostBytes))))).object();
        if (!saved.isEmpty())
            return saved;
    }
    return {};
}

QString inlined(const QByteArray &text)
{
    return QString::fromLatin1(qCompress(text).toBase64());
}

QByteArray fromInlined(const QString &inlined)
{
    const QByteArray compressed = QByteArray::fromBase64(inlined.toLatin1());
    const quint32 claimed = compressed.size() < sizeBytes ? 0 : qFromBigEndian<quint32>(compressed.constData());
    if (claimed == 0 || claimed > quint32(mostBytes))
        return {};
    QByteArray text(int(claimed), Qt::Uninitialized);
    uLongf size = claimed;
    // qUncompress() would go on beyond the claimed size and take more memory.
    const int result = uncompress(reinterpret_cast<Bytef *>(text.data()), &size,
                                  reinterpret_cast<const Bytef *>(compressed.constData()) + sizeBytes,
                                  uLong(compressed.size() - sizeBytes));
    return result == Z_OK && size == claimed ? text : QByteArray();
}

} // namespace declared

#include "tree/gunzip.h"

#include <zlib.h>

#include <array>

namespace Svg {

namespace {

/// Added to the window size, makes zlib expect the header of a gzip file.
constexpr int gzipHeader = 16;
constexpr size_t pieceBytes = 64 * 1024;

/// Owns a zlib stream.
class Inflater
{
public:
    explicit Inflater(const QByteArray &bytes)
    {
        m_stream.next_in = reinterpret_cast<Bytef *>(const_cast<char *>(bytes.constData()));
        m_stream.avail_in = uInt(bytes.size());
        m_ready = inflateInit2(&m_stream, MAX_WBITS + gzipHeader) == Z_OK;
    }
    ~Inflater() { inflateEnd(&m_stream); }
    Inflater(const Inflater &) = delete;
    Inflater &operator=(const Inflater &) = delete;

    bool isReady() const { return m_ready; }
    /// Appends the next piece; zlib's result.
    int inflatePiece(QByteArray *result)
    {
        m_stream.next_out = reinterpret_cast<Bytef *>(m_piece.data());
        m_stream.avail_out = uInt(m_piece.size());
        const int status = inflate(&m_stream, Z_NO_FLUSH);
        result->append(m_piece.data(), int(m_piece.size() - m_stream.avail_out));
        return status;
    }
    /// Continues with the next member of the file. False if no member follows: some programs pad the last block of
    /// a tape or a disk.
    bool beginNextMember()
    {
        const QByteArray rest =
            QByteArray::fromRawData(reinterpret_cast<const char *>(m_stream.next_in), int(m_stream.avail_in));
        return isGzip(rest) && inflateReset(&m_stream) == Z_OK;
    }

private:
    z_stream m_stream = {};
    std::array<char, pieceBytes> m_piece;
    bool m_ready = false;
};

} // namespace

bool isGzip(const QByteArray &bytes)
{
    return bytes.startsWith("\x1f\x8b");
}

std::optional<QByteArray> gunzip(const QByteArray &bytes, int limit)
{
    Inflater inflater(bytes);
    if (!inflater.isReady())
        return std::nullopt;
    QByteArray result;
    for (;;) {
        const int status = inflater.inflatePiece(&result);
        if (result.size() > limit)
            return std::nullopt;
        if (status == Z_STREAM_END && !inflater.beginNextMember())
            return result;
        if (status != Z_STREAM_END && status != Z_OK)
            return std::nullopt;
    }
}

} // namespace Svg

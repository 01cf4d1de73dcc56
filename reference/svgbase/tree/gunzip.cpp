#include "tree/gunzip.h"

#include <zlib.h>

namespace Svg {

namespace {

/// Added to the window size, it makes zlib expect the header of a gzip file.
constexpr int gzipHeader = 16;
constexpr int pieceBytes = 64 * 1024;

/// A zlib stream that is ended whatever happens.
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
        const int before = result->size();
        result->resize(before + pieceBytes);
        m_stream.next_out = reinterpret_cast<Bytef *>(result->data() + before);
        m_stream.avail_out = pieceBytes;
        const int status = inflate(&m_stream, Z_NO_FLUSH);
        result->resize(before + pieceBytes - int(m_stream.avail_out));
        return status;
    }

private:
    z_stream m_stream = {};
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
        if (status == Z_STREAM_END)
            return result;
        if (status != Z_OK)
            return std::nullopt;
    }
}

} // namespace Svg

// Compressed bytes: the output is bounded, whatever size the input claims.

#include "grammarinput.h"

#include "tree/gunzip.h"

extern "C" int LLVMFuzzerTestOneInput(const unsigned char *data, size_t size)
{
    constexpr int limit = 100000;
    const QByteArray bytes(reinterpret_cast<const char *>(data), int(size));
    const std::optional<QByteArray> plain = Svg::gunzip(bytes, limit);
    require(!plain || plain->size() <= limit, "unpacked bytes are bounded");
    require(!plain || Svg::isGzip(bytes), "what can be unpacked looks like it");
    return 0;
}

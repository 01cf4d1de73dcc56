#include "pathtextinput.h"

#include <cstdio>
#include <cstdlib>

QString pathtextinput::text(const unsigned char *data, size_t size)
{
    constexpr unsigned char anyUnit = 0xff;
    QString result;
    result.reserve(int(size));
    for (size_t i = 0; i < size; ++i) {
        if (data[i] == anyUnit && i + 2 < size) {
            result += QChar(data[i + 1], data[i + 2]);
            i += 2;
        } else {
            result += QChar(ushort(data[i]));
        }
    }
    return result;
}

void pathtextinput::expectNone(const QString &difference)
{
    if (difference.isEmpty())
        return;
    std::fputs(qPrintable(difference), stderr);
    std::abort();
}

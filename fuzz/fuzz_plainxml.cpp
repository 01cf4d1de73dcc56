// The plain XML reader reads every text that it accepts as Qt's reader does.

#include "grammarinput.h"

#include <svgbase/tree/treereading.h>

extern "C" int LLVMFuzzerTestOneInput(const unsigned char *data, size_t size)
{
    const QByteArray text(reinterpret_cast<const char *>(data), int(size));
    const QStringList read = treereading::plain(text);
    require(read.isEmpty() || read == treereading::streamed(text), "both readers agree");
    return 0;
}

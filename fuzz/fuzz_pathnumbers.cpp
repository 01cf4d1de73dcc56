// Reads a text as numbers, one by one and as a list, and compares all results with the literal implementation.

#include "pathtextinput.h"

#include <shape/pathcomparison.h>

extern "C" int LLVMFuzzerTestOneInput(const unsigned char *data, size_t size)
{
    pathtextinput::expectNone(comparison::numbersDifference(pathtextinput::text(data, size)));
    return 0;
}

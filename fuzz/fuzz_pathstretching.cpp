// Edits a text as a path and compares all results with the literal implementation. The first three bytes choose the
// growth of the path and the start of the edits.

#include "pathtextinput.h"

#include <shape/pathcomparison.h>

#include <iterator>
#include <limits>

namespace {

constexpr size_t choices = 3;
constexpr int beforeTheStart = 8;
const double deltas[] = {0,    2,    -2,    0.5,  1e-7, -1e-7,    -995, 123456.789,
                         1e20, -0.0, 1e-12, 1e-6, 1e6,  999999.5, -25,  std::numeric_limits<double>::infinity()};

double delta(unsigned char choice)
{
    return deltas[choice % std::size(deltas)];
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const unsigned char *data, size_t size)
{
    if (size < choices)
        return 0;
    const comparison::Edit edit{delta(data[0]), delta(data[1]), data[2] - beforeTheStart};
    const QString path = pathtextinput::text(data + choices, size - choices);
    pathtextinput::expectNone(comparison::stretchingDifference(path, edit));
    return 0;
}

#pragma once

#include "text/textcontent.h"

namespace Svg {

constexpr ushort leftToRightOverride = 0x202d;
constexpr ushort rightToLeftOverride = 0x202e;

/// Adjacent characters of one level and direction.
struct BidiRun
{
    int begin = 0;
    int end = 0;
    bool rightToLeft = false;
    /// Whether the direction overrides that of the characters.
    bool overridden = false;
};

/// The runs of a line of characters from left to right. None is longer than the limit of characters shaped
/// together.
QVector<BidiRun> bidiRuns(const TextContent &content, int begin, int end);

} // namespace Svg

#pragma once

namespace support {

/// Milliseconds after which what was waited for is taken to never happen: a busy machine with sanitizers takes
/// less, and an idle one never waits so long. Qt's own five and thirty seconds pass on a busy machine.
constexpr int patience = 600000;

} // namespace support

#pragma once

namespace board {

/// The whole program. 0 when all went well, 1 for arguments that make no sense or when nothing could be written.
int runBoard(int argc, char **argv);

} // namespace board

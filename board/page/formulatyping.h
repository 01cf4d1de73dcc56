#pragma once

class QTextCursor;

namespace board {

/// After a character has been typed at the cursor: makes "x^2" and "x_1" raised and lowered characters where
/// Unicode has them, in a step of its own to take back. Names with underscores stay as they are. Whether it did.
bool raiseOrLower(QTextCursor cursor);

} // namespace board

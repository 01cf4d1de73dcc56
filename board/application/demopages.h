#pragma once

namespace board {

class Workspace;

/// Replaces what the document shows with pages that have every kind of shape on them, and forgets the undo steps
/// that led there. Nothing happens without kinds.
void fillWithDemo(Workspace &workspace);

} // namespace board

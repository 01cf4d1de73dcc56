#pragma once

#include "output/pageexport.h"

namespace board {

class Workspace;

/// Plays the document's lessons as fast as it goes and exports the pages as each leaves them: into `folder`, or for
/// several lessons into lesson-1, lesson-2 ... in it. A document without lessons is a problem.
ExportResult exportLessons(const Workspace &workspace, const QString &folder, const ExportFormat &format);

} // namespace board

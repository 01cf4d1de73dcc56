#pragma once

#include "application/texts.h"

namespace board {

/// Texts about recording and playing lessons.
QVector<TextEntry> lessonTexts();

} // namespace board

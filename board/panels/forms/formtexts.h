#pragma once

#include "application/texts.h"

namespace board {

QVector<TextEntry> formTexts();

} // namespace board

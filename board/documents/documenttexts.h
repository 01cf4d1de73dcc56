#pragma once

#include "application/texts.h"

namespace board {

QVector<TextEntry> documentTexts();

} // namespace board

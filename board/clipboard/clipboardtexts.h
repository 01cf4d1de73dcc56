#pragma once

#include "application/texts.h"

namespace board {

QVector<TextEntry> clipboardTexts();

} // namespace board

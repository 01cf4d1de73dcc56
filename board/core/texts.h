#pragma once

#include "core/texttables.h"

#include <pagehost/objectplugin.h>

namespace board {

/// Everything that the board itself says.
QVector<TextEntry> textEntries();

/// The board's own texts in a language ("en" or "de") by localisation key; empty for other languages.
pagehost::TextTable boardTexts(const QString &language);

} // namespace board

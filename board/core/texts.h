#pragma once

#include "core/texttables.h"

#include <pagehost/objectplugin.h>

namespace board {

/// Everything that the board itself says.
QVector<TextEntry> textEntries();

/// Codes of the languages that the board speaks, English first, then those that have a file in board/translations.
QStringList boardLanguages();

/// The board's own texts in a language by localisation key, as far as they are translated; empty for other
/// languages.
pagehost::TextTable boardTexts(const QString &language);

} // namespace board

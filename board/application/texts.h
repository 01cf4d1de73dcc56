#pragma once

#include <pagehost/objectplugin.h>

namespace board {

/// The board's own texts in a language ("en" or "de") by localisation key; empty for other languages.
pagehost::TextTable boardTexts(const QString &language);

} // namespace board

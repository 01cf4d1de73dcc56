#pragma once

#include <pagehost/objectplugin.h>

#include <QtCore/QVector>

namespace board {

/// A text in every language of the board, UTF-8.
struct TextEntry
{
    const char *key;
    const char *english;
    const char *german;
};

/// Everything that the board itself says.
QVector<TextEntry> textEntries();

/// The board's own texts in a language ("en" or "de") by localisation key; empty for other languages.
pagehost::TextTable boardTexts(const QString &language);

} // namespace board

#pragma once

#include <QtCore/QVector>

namespace board {

/// A text in every language of the board, UTF-8.
struct TextEntry
{
    const char *key;
    const char *english;
    const char *german;
};

QVector<TextEntry> clipboardTexts();
QVector<TextEntry> documentTexts();
/// Texts about recording and playing lessons.
QVector<TextEntry> lessonTexts();
/// Texts of the panels that list what can be set.
QVector<TextEntry> formTexts();

} // namespace board

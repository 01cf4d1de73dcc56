#pragma once

#include <QtCore/QVector>

namespace board {

/// A text of the board, UTF-8. Qt Linguist finds the English one and has it translated.
struct TextEntry
{
    const char *key;
    const char *english;
};

QVector<TextEntry> clipboardTexts();
/// Names of commands that have no text elsewhere.
QVector<TextEntry> commandTexts();
QVector<TextEntry> documentTexts();
/// Texts of exporting and printing.
QVector<TextEntry> outputTexts();
/// Texts about recording and playing lessons.
QVector<TextEntry> lessonTexts();
/// Texts of the bars and the dock.
QVector<TextEntry> windowTexts();
/// Texts of the panels that list what can be set.
QVector<TextEntry> formTexts();
/// Words for screen readers.
QVector<TextEntry> readerTexts();
/// Texts of the tools that draw on the page, and of their settings.
QVector<TextEntry> toolTexts();

} // namespace board

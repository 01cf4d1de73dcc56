#pragma once

#include <QtCore/QStringList>

namespace board {

/// Texts of a menu or dialog with marks for keys ("&Open"), each with a letter or digit of its own where there is
/// one. Marks that a text has already stay, unless an earlier text has the same. Texts without a letter or a digit
/// stay as they are.
QStringList withMnemonics(const QStringList &texts);

/// The marked character, in lower case; null without a mark.
QChar mnemonicOf(const QString &text);
/// Without the mark. Two ampersands, which stand for one, stay.
QString withoutMnemonic(const QString &text);

} // namespace board

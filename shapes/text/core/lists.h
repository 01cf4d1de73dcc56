#pragma once

#include <QtCore/QString>

namespace text {

enum class ListKind { None, Bullets, Numbers };

/// By the mark of the first line; lists are parts of the text (pagehost::listMark()).
ListKind listKindOf(const QString &text);
/// All lines with marks of that kind, and no others.
QString asList(const QString &text, ListKind kind);

} // namespace text

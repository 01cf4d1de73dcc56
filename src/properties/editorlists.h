#pragma once

#include <QtCore/QByteArray>

/// Editor descriptions of list properties: qint32 number of entries, qint32 list kind, then the entries.
namespace EditorLists {

/// Six Qt::PenStyle entries, each an empty text and an icon. Encoding icons is expensive: done once per process.
QByteArray lineStyles();
/// The texts "1" to `maximum`; the count is written as given, even below 1, when no entry follows.
QByteArray penWidths(int maximum);

} // namespace EditorLists

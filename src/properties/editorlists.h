#pragma once

#include <QtCore/QByteArray>

/// Editor descriptions of list properties: qint32 number of entries, qint32 list kind, then the entries.
namespace EditorLists {

/// Six Qt::PenStyle entries, each an empty text and an icon. Icons are costly to encode: made once per process.
QByteArray lineStyles();
/// The texts "1" to `maximum`; the count stands as it is given, also below 1, where no entry follows.
QByteArray penWidths(int maximum);

} // namespace EditorLists

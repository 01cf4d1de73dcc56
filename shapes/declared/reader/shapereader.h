#pragma once

#include <declared/reader/declaration.h>
#include <declared/reader/message.h>

namespace declared {

/// Reads what a file declares. `name` is the name of the file without ".shape.svg". Null for a file that has a
/// fault; `messages` says which, and what else is to be said. Nothing but the bytes is read.
SharedDeclaration readShape(const QByteArray &bytes, const QString &name, QVector<Message> *messages = nullptr);

/// The name of a text in documents: the first 32 hexadecimal digits of its SHA-256.
QString hashOf(const QByteArray &canonicalText);

} // namespace declared

#pragma once

#include <QtCore/QByteArray>

class DocumentPrivate;

namespace Svg {

/// The text of a document in its present state, UTF-8.
QByteArray documentText(DocumentPrivate &document);

} // namespace Svg

#pragma once

#include <QtCore/QByteArray>

class DocumentPrivate;

namespace Svg {

/// The text of a document as it is now, UTF-8.
QByteArray documentText(DocumentPrivate &document);

} // namespace Svg

#pragma once

#include <QtCore/QString>

namespace pagehost {
class Document;
class ObjectRegistry;
class Page;
} // namespace pagehost

namespace board {

/// Puts a copy of a page, of this or another document, after the current page and makes it current, as one undo
/// step of that name. The document has the assets of the page.
void addPageCopy(pagehost::Document *document, const pagehost::Page &page, const pagehost::ObjectRegistry &registry,
                 const QString &stepKey);

} // namespace board

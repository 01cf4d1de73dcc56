#pragma once

namespace pagehost {
class Document;
class ObjectRegistry;
} // namespace pagehost

namespace board {

/// Puts a copy of the current page after it and makes it current, as one undo step.
void duplicatePage(pagehost::Document *document, const pagehost::ObjectRegistry &registry);

} // namespace board

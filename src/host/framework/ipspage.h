#pragma once

class IDocument;

/// A page, as the objects on it see it.
class IPsPage
{
public:
    virtual ~IPsPage() = default;
    /// The document that the page belongs to; null for a page outside a document.
    virtual IDocument *document() const = 0;
};

#pragma once

class IDocument;

/// A page: what an object can ask of the place it stands on.
class IPsPage
{
public:
    virtual ~IPsPage() = default;
    /// The document that the page belongs to; null for a page outside a document.
    virtual IDocument *document() const = 0;
};

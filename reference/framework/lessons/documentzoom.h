#pragma once

class CBaseObject;
class IDocument;

namespace pagehost {

class Document;

/// Has the object follow the zoom of its document. Objects do so when they are painted; here they paint on a single
/// pixel, which leaves their cached pictures alone.
void followZoom(CBaseObject &object);
/// All objects of all pages.
void followZoom(const Document &document);

/// Makes a document the current one while it lives: objects that are not on a page yet look there for the zoom.
class CurrentDocument
{
public:
    explicit CurrentDocument(IDocument *document);
    ~CurrentDocument();
    CurrentDocument(const CurrentDocument &) = delete;
    CurrentDocument &operator=(const CurrentDocument &) = delete;

private:
    IDocument *m_before;
};

} // namespace pagehost

#pragma once

class CBaseObject;
class IDocument;

namespace pagehost {

class Document;

/// Makes the object follow the zoom of its document. Objects do so when they paint; here they paint on a single
/// pixel, which leaves their cached pictures alone.
void followZoom(CBaseObject &object);
/// The same for all objects of all pages.
void followZoom(const Document &document);

/// Makes a document current during its lifetime: objects that are not on a page yet read the zoom there.
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

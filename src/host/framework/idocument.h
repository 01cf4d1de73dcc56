#pragma once

#include <framework/framework_global.h>

class IDocument;

/// Notified of the destruction of every document during its own lifetime. For classes that keep pointers to
/// documents they don't own. GUI thread only.
class FRAMEWORK_EXPORT IDocumentWatcher
{
public:
    IDocumentWatcher()
        : m_next(s_first)
    {
        s_first = this;
    }
    virtual ~IDocumentWatcher()
    {
        IDocumentWatcher **link = &s_first;
        while (*link != this)
            link = &(*link)->m_next;
        *link = m_next;
    }
    IDocumentWatcher(const IDocumentWatcher &) = delete;
    IDocumentWatcher &operator=(const IDocumentWatcher &) = delete;

    /// `document` is being destroyed: its address may be compared, but not dereferenced.
    virtual void documentDied(const IDocument *document) = 0;

private:
    friend class IDocument;
    inline static IDocumentWatcher *s_first = nullptr;
    IDocumentWatcher *m_next;
};

/// The document that pages and their objects belong to, as objects see it.
class FRAMEWORK_EXPORT IDocument
{
public:
    /// Notifies all watchers.
    virtual ~IDocument()
    {
        for (IDocumentWatcher *watcher = IDocumentWatcher::s_first; watcher; watcher = watcher->m_next)
            watcher->documentDied(this);
    }
    /// 0 while the document is being edited; any other value (presenting, exporting) hides editing aids such as
    /// control points.
    virtual int documentState() const = 0;
    /// Nonzero while editing by hand is blocked, for instance during playback.
    virtual int editingBlocked() const = 0;
    /// Scene units to screen pixels of the view that edits the document; 1 is 100 %.
    virtual double zoomRate() const = 0;
};

#pragma once

/// The document that pages and their objects belong to, as objects see it.
class IDocument
{
public:
    virtual ~IDocument() = default;
    /// 0 while the document is being edited; any other value (presenting, exporting) hides editing aids such as
    /// control points.
    virtual int documentState() const = 0;
    /// Nonzero while editing by hand is blocked, for instance during playback.
    virtual int editingBlocked() const = 0;
    /// Scene units to screen pixels of the view that edits the document; 1 is 100 %.
    virtual double zoomRate() const = 0;
};

#pragma once

#include <framework/framework_global.h>
#include <framework/idocument.h>

#include <QtCore/QHash>
#include <QtCore/QObject>
#include <QtCore/QSizeF>
#include <QtCore/QVector>

namespace pagehost {

class Page;

/// A document: pages in order, one of them current, and the state that page objects ask for.
///
/// The operations here change the document at once and leave no undo step; pagehost/commands.h has the undoable
/// ones. The process has one undo stack, which a document that goes clears, since its steps point to its objects.
class FRAMEWORK_EXPORT Document : public QObject, public IDocument
{
    Q_OBJECT

public:
    /// Has no page yet.
    explicit Document(QObject *parent = nullptr);
    /// Deletes its pages and their objects, clears the undo stack, and stops being the current document.
    ~Document() override;

    int documentState() const override { return m_state; }
    int editingBlocked() const override { return m_blocked; }
    double zoomRate() const override { return m_zoom; }
    /// 0 while the document is being edited, anything else hides handles and control points.
    void setDocumentState(int state);
    /// Nonzero refuses editing by hand.
    void setEditingBlocked(int blocked);
    /// Scene units to screen pixels of the view that edits the document; the view calls this on every zoom. A rate
    /// that is not finite or not above 0 is ignored.
    void setZoomRate(double rate);

    int pageCount() const { return m_pages.size(); }
    /// Null when there is no such page.
    Page *page(int index) const;
    QVector<Page *> pages() const { return m_pages; }
    /// -1 for a page that is not in the document.
    int indexOf(const Page *page) const;
    /// Null only while the document has no page.
    Page *currentPage() const;
    /// -1 only while the document has no page.
    int currentIndex() const { return m_current; }
    /// Numbers that are no page are ignored.
    void setCurrentIndex(int index);

    /// A new page of this document and this size (scene units) that stands outside the order of pages until
    /// insertPage() puts it there. The document owns it.
    Page *createPage(const QSizeF &size = defaultPageSize());
    /// 1280 × 720 scene units.
    static QSizeF defaultPageSize() { return {1280, 720}; }
    /// Puts a page of createPage() or takePage() before the page at `index` (brought into 0 to pageCount()) and
    /// makes it current.
    void insertPage(int index, Page *page);
    /// createPage() and insertPage() at the end.
    Page *appendPage(const QSizeF &size = defaultPageSize());
    /// Takes a page out of the order; the next page, else the one before, becomes current if it was. It stays alive
    /// while retained, else it is deleted when control returns to the event loop. Null for a number that is no
    /// page.
    Page *takePage(int index);
    /// Moves a page so that it has the number `to` afterwards. False, with nothing changed, for numbers that are no
    /// page.
    bool movePage(int from, int to);

    /// Keeps a page alive outside the order of pages until the matching release(): undo steps and lessons hold
    /// plain pointers.
    void retain(Page *page);
    void release(Page *page);

Q_SIGNALS:
    void pageInserted(int index);
    /// After the page has left the order.
    void pageRemoved(int index);
    void pageMoved(int from, int to);
    /// -1 when the last page has gone.
    void currentPageChanged(int index);
    void documentStateChanged(int state);
    void editingBlockedChanged(int blocked);
    void zoomRateChanged(double rate);

private:
    void setCurrent(int index);
    void dropIfUnused(Page *page);

    int m_state = 0;
    int m_blocked = 0;
    double m_zoom = 1;
    int m_current = -1;
    QVector<Page *> m_pages;
    QVector<Page *> m_outside; ///< owned pages that are not in the order
    QHash<Page *, int> m_retained;
};

} // namespace pagehost

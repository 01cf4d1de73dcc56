#pragma once

#include <framework/framework_global.h>
#include <framework/idocument.h>

#include <pagehost/extradata.h>

#include <QtCore/QByteArray>
#include <QtCore/QHash>
#include <QtCore/QObject>
#include <QtCore/QSizeF>
#include <QtCore/QVector>

namespace pagehost {

class Page;
class ZoomScope;

/// A recorded lesson as a document keeps it: bytes that only lessons themselves understand.
struct LessonData
{
    QString name; ///< for people
    /// Stands readable in the JSON format when it is the text of a JSON object.
    QByteArray data;
    bool isDamaged = false; ///< the data are known not to be those that were saved
};

inline bool operator==(const LessonData &one, const LessonData &other)
{
    return one.name == other.name && one.data == other.data && one.isDamaged == other.isDamaged;
}

/// A document: pages in order, one of them current, and the state that page objects ask for.
///
/// The operations here change the document at once and leave no undo step; pagehost/commands.h has the undoable
/// ones. The process has one undo stack, which a document that goes clears, since its steps point to its objects.
class FRAMEWORK_EXPORT Document : public QObject, public IDocument
{
    Q_OBJECT

public:
    /// Has no page yet and is not modified.
    explicit Document(QObject *parent = nullptr);
    /// Deletes its pages and their objects, clears the undo stack if steps were made while the document was not
    /// kept from view by another current one, and stops being the current document.
    ~Document() override;
    /// False for a document that no undo step will ever refer to, such as one that only plays a lesson: when it
    /// goes, the undo stack stays as it is. True after construction.
    void setUndoable(bool undoable) { m_undoable = undoable; }

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
    /// While fixed, setZoomRate() does nothing: what objects save depends a little on the zoom, so that a lesson
    /// brings its own.
    void setZoomFixed(bool fixed) { m_zoomFixed = fixed; }

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

    /// @name Changes since the document was saved
    /// @{
    /// True when the undo stack is not where it was at markSaved(), or noteChange() was called since. Steps made
    /// while another document is the current one are that one's.
    bool isModified() const { return m_modified; }
    /// The document as it is now is what is saved: marks this place of the undo stack.
    void markSaved();
    /// Not modified, and the undo stack is left alone: for a document that has just been read.
    void clearModified();
    /// Tells of a change that leaves no undo step.
    void noteChange();
    /// Counts up with every change of what the document's pages show, of its lessons, and with noteChange().
    quint64 revision() const;
    /// @}

    /// @name Data saved with the pages
    /// @{
    QVector<LessonData> lessons() const { return m_lessons; }
    /// pagehost/commands.h has the undoable changes.
    void setLessons(const QVector<LessonData> &lessons);
    /// A lesson that is still being recorded, as far as it goes: saved behind the others so that nothing of it is
    /// lost, and no lesson of the document yet. One without data is none.
    void setUnfinishedLesson(const LessonData &lesson);
    QVector<LessonData> lessonsToSave() const;
    ExtraData extraData() const { return m_extraData; }
    void setExtraData(const ExtraData &extraData) { m_extraData = extraData; }
    /// @}

Q_SIGNALS:
    void modifiedChanged(bool modified);
    void lessonsChanged();
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
    friend class ZoomScope;
    void setCurrent(int index);
    void dropIfUnused(Page *page);
    bool getsSteps() const;
    void followStack();
    void setModified(bool modified);

    int m_state = 0;
    int m_blocked = 0;
    double m_zoom = 1;
    bool m_zoomFixed = false;
    bool m_undoable = true;
    int m_current = -1;
    QVector<Page *> m_pages;
    QVector<Page *> m_outside; ///< owned pages that are not in the order
    QHash<Page *, int> m_retained;
    QVector<LessonData> m_lessons;
    LessonData m_unfinishedLesson;
    ExtraData m_extraData;
    bool m_modified = false;
    bool m_changedBySteps = false;     ///< the undo stack is not where it was at markSaved()
    bool m_changedBesideSteps = false; ///< noteChange() since markSaved()
    bool m_mayHaveSteps = false;
    quint64 m_revision = 0; ///< of what is not on pages
};

} // namespace pagehost

#pragma once

#include <framework/framework_global.h>
#include <framework/idocument.h>

#include <pagehost/assetstore.h>
#include <pagehost/extradata.h>

#include <QtCore/QByteArray>
#include <QtCore/QHash>
#include <QtCore/QObject>
#include <QtCore/QSizeF>
#include <QtCore/QVector>

namespace pagehost {

class Page;
class ZoomScope;

/// A recorded lesson as a document stores it: bytes whose meaning only lessons know.
struct LessonData
{
    QString name; ///< for people
    /// Stored as readable JSON when the bytes are the text of a JSON object.
    QByteArray data;
    bool isDamaged = false; ///< the data are known to differ from those that were saved
};

/// Same name, same bytes, and both or none damaged.
inline bool operator==(const LessonData &one, const LessonData &other)
{
    return one.name == other.name && one.data == other.data && one.isDamaged == other.isDamaged;
}

/// A document: pages in order, one of them current, and the state that page objects ask for.
///
/// The operations here change the document at once and leave no undo step; pagehost/commands.h has the undoable
/// ones. The process has one undo stack. Deleting a document clears it, since its steps point to the document's
/// objects.
class FRAMEWORK_EXPORT Document : public QObject, public IDocument
{
    Q_OBJECT

public:
    /// Without pages and not modified.
    explicit Document(QObject *parent = nullptr);
    /// Deletes its pages and their objects, clears the undo stack unless all its steps were made while another
    /// document was current, and stops being the current document.
    ~Document() override;
    /// False for a document that no undo step will ever refer to, such as one that only plays a lesson: deleting it
    /// keeps the undo stack. Initially true.
    void setUndoable(bool undoable) { m_undoable = undoable; }

    int documentState() const override { return m_state; }
    int editingBlocked() const override { return m_blocked; }
    double zoomRate() const override { return m_zoom; }
    /// 0 while the document is being edited; any other value hides handles and control points.
    void setDocumentState(int state);
    /// Nonzero refuses editing by hand.
    void setEditingBlocked(int blocked);
    /// Screen pixels per scene unit of the view that edits the document, which calls this on every zoom. A rate
    /// that is not finite and positive is ignored.
    void setZoomRate(double rate);
    /// While fixed, setZoomRate() does nothing: what objects save depends slightly on the zoom, so a lesson sets
    /// its own.
    void setZoomFixed(bool fixed) { m_zoomFixed = fixed; }

    /// Number of pages in order.
    int pageCount() const { return m_pages.size(); }
    /// Null for an index out of range.
    Page *page(int index) const;
    /// The pages in order.
    QVector<Page *> pages() const { return m_pages; }
    /// -1 for a page that is not in the document.
    int indexOf(const Page *page) const;
    /// Null only while the document has no page.
    Page *currentPage() const;
    /// -1 only while the document has no page.
    int currentIndex() const { return m_current; }
    /// An index out of range is ignored.
    void setCurrentIndex(int index);

    /// A new page of this size (scene units), owned by the document and outside the order of pages until
    /// insertPage().
    Page *createPage(const QSizeF &size = defaultPageSize());
    /// 1280 × 720 scene units.
    static QSizeF defaultPageSize() { return {1280, 720}; }
    /// Inserts a page from createPage() or takePage() at `index` (limited to 0 to pageCount()) and makes it
    /// current.
    void insertPage(int index, Page *page);
    /// createPage() and insertPage() at the end.
    Page *appendPage(const QSizeF &size = defaultPageSize());
    /// Takes a page out of the order; if it was current, the next page becomes current, or else the one before. It
    /// stays alive while retained, else it is deleted when control returns to the event loop. Null for an index out
    /// of range.
    Page *takePage(int index);
    /// Moves a page to the index `to`. False, with nothing changed, for an index out of range.
    bool movePage(int from, int to);

    /// Keeps a page alive outside the order of pages until the matching release(): undo steps and lessons have
    /// plain pointers.
    void retain(Page *page);
    /// Ends a retain(); a page that nobody retains and that is not in the order of pages is deleted later.
    void release(Page *page);

    /// @name Changes since the document was saved
    /// @{

    /// True when the undo stack is not where it was at markSaved(), or noteChange() was called since. Steps made
    /// while another document is current count for that one.
    bool isModified() const { return m_modified; }
    /// The document's present state is saved: marks this position of the undo stack.
    void markSaved();
    /// Marks the document as unmodified without touching the undo stack: for a document that has just been read.
    void clearModified();
    /// Reports a change that leaves no undo step.
    void noteChange();
    /// Increases with every visible change of the document's pages, with every change of its lessons, and with
    /// noteChange().
    quint64 revision() const;
    /// @}

    /// @name Data saved with the pages
    /// @{

    /// In the order in which users see them.
    QVector<LessonData> lessons() const { return m_lessons; }
    /// pagehost/commands.h has the undoable changes.
    void setLessons(const QVector<LessonData> &lessons);
    /// The lesson being recorded, as far as it goes: saved after the others, so that nothing of it is lost, but not
    /// yet a lesson of the document. Without data there is none.
    void setUnfinishedLesson(const LessonData &lesson);
    /// lessons(), and the unfinished one behind them.
    QVector<LessonData> lessonsToSave() const;
    /// Whatever objects and lessons have named so far; files hold what they name when they are written.
    AssetStore &assets() { return m_assets; }
    /// The same, read only.
    const AssetStore &assets() const { return m_assets; }
    /// Parts of the file that this version does not know.
    ExtraData extraData() const { return m_extraData; }
    /// Replaces them, without a change that counts as a modification.
    void setExtraData(const ExtraData &extraData) { m_extraData = extraData; }
    /// @}

Q_SIGNALS:
    /// isModified() has changed.
    void modifiedChanged(bool modified);
    /// lessons() has changed.
    void lessonsChanged();
    /// The page stands at `index` and is the current one.
    void pageInserted(int index);
    /// After the page has left the order.
    void pageRemoved(int index);
    /// The page that was at `from` is at `to`.
    void pageMoved(int from, int to);
    /// -1 after the last page was removed.
    void currentPageChanged(int index);
    /// See setDocumentState().
    void documentStateChanged(int state);
    /// See setEditingBlocked().
    void editingBlockedChanged(int blocked);
    /// See setZoomRate().
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
    AssetStore m_assets;
    ExtraData m_extraData;
    bool m_modified = false;
    bool m_changedBySteps = false;     ///< the undo stack is not where it was at markSaved()
    bool m_changedBesideSteps = false; ///< noteChange() since markSaved()
    bool m_mayHaveSteps = false;
    quint64 m_revision = 0; ///< of changes other than to pages
};

} // namespace pagehost

#include <pagehost/commands.h>

#include <framework/cundoredo.h>

#include <commands/pagecommand.h>
#include <pagehost/document.h>
#include <pagehost/page.h>
#include <pagehost/pagelimits.h>

namespace pagehost {

namespace {

/// Inserts a page into the document or removes it; the step keeps the page alive.
class PagePresenceCommand : public AppliedCommand
{
public:
    PagePresenceCommand(Document *document, Page *page, int index, bool adds)
        : AppliedCommand(adds ? QStringLiteral("IDS_UNDO_ADD_PAGE") : QStringLiteral("IDS_UNDO_REMOVE_PAGE"), false)
        , m_document(document)
        , m_page(page)
        , m_index(index)
        , m_adds(adds)
    {
        document->retain(page);
    }

    ~PagePresenceCommand() override
    {
        if (m_document)
            m_document->release(m_page);
    }

    void undo() override { setPresent(!m_adds); }

protected:
    void apply() override { setPresent(m_adds); }

private:
    void setPresent(bool present)
    {
        if (present)
            m_document->insertPage(m_index, m_page);
        else
            m_document->takePage(m_document->indexOf(m_page));
    }

    QPointer<Document> m_document;
    Page *m_page;
    int m_index;
    bool m_adds;
};

class MovePageCommand : public AppliedCommand
{
public:
    MovePageCommand(Document *document, int from, int to)
        : AppliedCommand(QStringLiteral("IDS_UNDO_MOVE_PAGE"), false)
        , m_document(document)
        , m_from(from)
        , m_to(to)
    {
    }

    void undo() override { m_document->movePage(m_to, m_from); }

protected:
    void apply() override { m_document->movePage(m_from, m_to); }

private:
    Document *m_document;
    int m_from;
    int m_to;
};

class PageSizeCommand : public PageCommand
{
public:
    PageSizeCommand(Page *page, const QSizeF &size)
        : PageCommand(page, {}, QStringLiteral("IDS_UNDO_PAGE_SIZE"))
        , m_before(page->size())
        , m_after(size)
    {
    }

    void undo() override { page()->setSize(m_before); }

protected:
    void apply() override { page()->setSize(m_after); }

private:
    QSizeF m_before;
    QSizeF m_after;
};

} // namespace

bool setPageSize(Page *page, const QSizeF &size)
{
    if (!isPageSize(size) || size == page->size())
        return false;
    CUndoRedo::GetInstance()->push(new PageSizeCommand(page, size));
    return true;
}

Page *addPage(Document *document, int index, const QSizeF &size)
{
    Page *page = document->createPage(size);
    const int place = qBound(0, index, document->pageCount());
    CUndoRedo::GetInstance()->push(new PagePresenceCommand(document, page, place, true));
    return page;
}

bool removePage(Document *document, int index)
{
    Page *page = document->page(index);
    if (!page || document->pageCount() < 2)
        return false;
    CUndoRedo::GetInstance()->push(new PagePresenceCommand(document, page, index, false));
    return true;
}

bool movePage(Document *document, int from, int to)
{
    if (from == to || !document->page(from) || !document->page(to))
        return false;
    CUndoRedo::GetInstance()->push(new MovePageCommand(document, from, to));
    return true;
}

} // namespace pagehost

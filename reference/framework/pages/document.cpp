#include <pagehost/document.h>

#include <framework/cundoredo.h>
#include <framework/iframework.h>

#include <pagehost/application.h>
#include <pagehost/page.h>

#include <QtWidgets/QUndoStack>

#include <cmath>
#include <numeric>

namespace pagehost {

Document::Document(QObject *parent)
    : QObject(parent)
{
    const QUndoStack *stack = CUndoRedo::GetInstance()->stack();
    connect(stack, &QUndoStack::indexChanged, this, &Document::followStack);
    connect(stack, &QUndoStack::cleanChanged, this, &Document::followStack);
}

Document::~Document()
{
    QUndoStack *stack = CUndoRedo::GetInstance()->stack();
    stack->disconnect(this);
    if (m_mayHaveSteps)
        stack->clear();
    if (GetFramework()->currentDocument() == this)
        setCurrentDocument(nullptr);
    const QVector<Page *> owned = m_pages + m_outside;
    m_pages.clear();
    m_outside.clear();
    qDeleteAll(owned);
}

void Document::setDocumentState(int state)
{
    if (state == m_state)
        return;
    m_state = state;
    Q_EMIT documentStateChanged(state);
}

void Document::setEditingBlocked(int blocked)
{
    if (blocked == m_blocked)
        return;
    m_blocked = blocked;
    Q_EMIT editingBlockedChanged(blocked);
}

void Document::setZoomRate(double rate)
{
    if (m_zoomFixed || !std::isfinite(rate) || rate <= 0 || rate == m_zoom)
        return;
    m_zoom = rate;
    Q_EMIT zoomRateChanged(rate);
}

Page *Document::page(int index) const
{
    return m_pages.value(index, nullptr);
}

int Document::indexOf(const Page *page) const
{
    return m_pages.indexOf(const_cast<Page *>(page));
}

Page *Document::currentPage() const
{
    return page(m_current);
}

void Document::setCurrentIndex(int index)
{
    if (index >= 0 && index < m_pages.size())
        setCurrent(index);
}

void Document::setCurrent(int index)
{
    if (index == m_current)
        return;
    m_current = index;
    Q_EMIT currentPageChanged(index);
}

Page *Document::createPage(const QSizeF &size)
{
    auto *page = new Page(this, size);
    m_outside.append(page);
    return page;
}

void Document::insertPage(int index, Page *page)
{
    if (!m_outside.removeOne(page))
        return;
    const int place = qBound(0, index, m_pages.size());
    m_pages.insert(place, page);
    ++m_revision;
    Q_EMIT pageInserted(place);
    m_current = -1;
    setCurrent(place);
}

Page *Document::appendPage(const QSizeF &size)
{
    Page *page = createPage(size);
    insertPage(m_pages.size(), page);
    return page;
}

Page *Document::takePage(int index)
{
    Page *taken = page(index);
    if (!taken)
        return nullptr;
    Page *current = currentPage();
    m_pages.removeAt(index);
    m_outside.append(taken);
    m_revision += taken->revision() + 1; // it no longer counts by itself
    Q_EMIT pageRemoved(index);
    const int next = current == taken ? qMin(index, m_pages.size() - 1) : m_pages.indexOf(current);
    m_current = current == taken ? -2 : m_current;
    setCurrent(next);
    dropIfUnused(taken);
    return taken;
}

bool Document::movePage(int from, int to)
{
    if (!page(from) || !page(to))
        return false;
    Page *current = currentPage();
    m_pages.move(from, to);
    ++m_revision;
    Q_EMIT pageMoved(from, to);
    setCurrent(m_pages.indexOf(current));
    return true;
}

void Document::retain(Page *page)
{
    ++m_retained[page];
}

void Document::release(Page *page)
{
    const auto count = m_retained.find(page);
    if (count == m_retained.end() || --*count > 0)
        return;
    m_retained.erase(count);
    dropIfUnused(page);
}

bool Document::getsSteps() const
{
    const auto *current = dynamic_cast<Document *>(GetFramework()->currentDocument());
    return m_undoable && (!current || current == this);
}

void Document::followStack()
{
    if (!getsSteps())
        return;
    const QUndoStack *stack = CUndoRedo::GetInstance()->stack();
    m_mayHaveSteps = true;
    // An emptied stack is clean although nothing was undone.
    m_changedBesideSteps = m_changedBesideSteps || (m_changedBySteps && stack->count() == 0);
    m_changedBySteps = !stack->isClean();
    setModified(m_changedBySteps || m_changedBesideSteps);
}

void Document::setModified(bool modified)
{
    if (modified == m_modified)
        return;
    m_modified = modified;
    Q_EMIT modifiedChanged(modified);
}

void Document::markSaved()
{
    if (getsSteps())
        CUndoRedo::GetInstance()->stack()->setClean();
    clearModified();
}

void Document::clearModified()
{
    m_changedBySteps = false;
    m_changedBesideSteps = false;
    setModified(false);
}

void Document::noteChange()
{
    ++m_revision;
    m_changedBesideSteps = true;
    setModified(true);
}

quint64 Document::revision() const
{
    const auto addPage = [](quint64 sum, const Page *page) { return sum + page->revision(); };
    return std::accumulate(m_pages.begin(), m_pages.end(), m_revision, addPage);
}

void Document::setLessons(const QVector<LessonData> &lessons)
{
    if (lessons == m_lessons)
        return;
    m_lessons = lessons;
    ++m_revision;
    Q_EMIT lessonsChanged();
}

void Document::setUnfinishedLesson(const LessonData &lesson)
{
    if (lesson == m_unfinishedLesson)
        return;
    m_unfinishedLesson = lesson;
    noteChange();
}

QVector<LessonData> Document::lessonsToSave() const
{
    QVector<LessonData> lessons = m_lessons;
    if (!m_unfinishedLesson.data.isEmpty())
        lessons.append(m_unfinishedLesson);
    return lessons;
}

void Document::dropIfUnused(Page *page)
{
    if (!m_retained.contains(page) && m_outside.removeOne(page))
        page->deleteLater();
}

} // namespace pagehost

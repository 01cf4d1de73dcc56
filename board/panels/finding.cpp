#include "panels/finding.h"

#include "core/commands.h"
#include "core/selecting.h"
#include "core/workspace.h"
#include "page/pageview.h"
#include "panels/fields/remarkfield.h"
#include "panels/findbar.h"

#include <pagehost/document.h>
#include <pagehost/page.h>

#include <framework/cbaseobject.h>
#include <framework/cundoredo.h>

#include <QtWidgets/QUndoStack>

#include <algorithm>

namespace board {

namespace {

/// Between a found text and the edge of the view, logical pixels.
constexpr int viewMargin = 40;

bool isHidden(const CBaseObject *object)
{
    return !object->QGraphicsItem::isVisible();
}

} // namespace

Finding::Finding(const Workspace *workspace, Commands *commands, PageView *view, FindBar *bar, QObject *parent)
    : QObject(parent)
    , m_workspace(workspace)
    , m_view(view)
    , m_bar(bar)
    , m_follow([this] { follow(); })
{
    commands->perform(Command::FindText, this, [this] { open(false); });
    commands->perform(Command::ReplaceText, this, [this] { open(true); });
    commands->perform(Command::FindNext, this, [this] { step(true); });
    commands->perform(Command::FindPrevious, this, [this] { step(false); });
    connect(bar, &FindBar::searchChanged, this, &Finding::search);
    connect(bar, &FindBar::nextWanted, this, [this] { step(true); });
    connect(bar, &FindBar::previousWanted, this, [this] { step(false); });
    connect(bar, &FindBar::replaceWanted, this, &Finding::replaceOne);
    connect(bar, &FindBar::replaceAllWanted, this, &Finding::replaceAll);
    connect(bar, &FindBar::closeWanted, this, &Finding::close);
    connect(workspace, &Workspace::documentReplaced, this, [this] {
        m_shown.reset();
        m_from = {};
        m_found.clear();
        m_follow.request();
    });
    // Every change of a text ends in a step, and every change of steps and pages may change what can be found.
    connect(CUndoRedo::GetInstance()->stack(), &QUndoStack::indexChanged, this, [this] { m_follow.request(); });
}

void Finding::open(bool withReplacing)
{
    m_bar->open(withReplacing);
    m_from = here();
    findAgain();
    showState();
}

void Finding::close()
{
    showNothing();
    m_bar->hide();
    m_view->setFocus();
}

/// For the text as far as it is typed.
void Finding::search()
{
    m_bar->replacement()->setRemark({});
    findAgain();
    const int index = indexFrom(m_from);
    if (index < 0) {
        showNothing();
        return;
    }
    show(index);
}

/// The document has changed.
void Finding::follow()
{
    if (m_bar->isHidden())
        return;
    findAgain();
    if (shownIndex() < 0)
        showNothing();
    showState();
}

void Finding::findAgain()
{
    m_found = findTexts(*m_workspace->document(), m_bar->sought()->text(), m_bar->options());
}

int Finding::shownIndex() const
{
    return m_shown ? m_found.indexOf(*m_shown) : -1;
}

/// Of the first match that is not before the place, else of the first one; -1 without any.
int Finding::indexFrom(const Place &place) const
{
    const auto first = [this](const auto &fits) {
        const auto found = std::find_if(m_found.begin(), m_found.end(), fits);
        return found == m_found.end() ? -1 : int(found - m_found.begin());
    };
    const int inText = first([&](const FoundText &found) {
        return found.object == place.object && found.propertyId == place.propertyId &&
               found.match.start >= place.start;
    });
    if (inText >= 0)
        return inText;
    const pagehost::Document *document = m_workspace->document();
    const int page = document->indexOf(place.page);
    const int onPage = first([&](const FoundText &found) { return document->indexOf(found.page) >= page; });
    return onPage < 0 && !m_found.isEmpty() ? 0 : onPage;
}

/// The match that is shown, else the page.
Finding::Place Finding::here() const
{
    const pagehost::Page *page = m_workspace->document()->currentPage();
    if (!m_shown || m_shown->page != page)
        return {page};
    return {page, m_shown->object, m_shown->propertyId, m_shown->match.start};
}

void Finding::step(bool forward)
{
    if (m_bar->sought()->text().isEmpty()) {
        open(m_bar->replacement()->isVisible());
        return;
    }
    m_bar->show();
    m_bar->replacement()->setRemark({});
    findAgain();
    const int count = m_found.size();
    const bool isHere = m_shown && m_shown->page == m_workspace->document()->currentPage();
    const int shown = isHere ? shownIndex() : -1;
    if (count == 0)
        showNothing();
    else if (shown >= 0)
        show((shown + (forward ? 1 : count - 1)) % count);
    else
        show((indexFrom(here()) + (forward ? 0 : count - 1)) % count);
    m_from = here();
}

void Finding::show(int index)
{
    const FoundText found = m_found.at(index);
    m_shown = found;
    pagehost::Document *document = m_workspace->document();
    document->setCurrentIndex(document->indexOf(found.page));
    selectMembers(*found.page,
                  isHidden(found.object) ? QVector<CBaseObject *>() : QVector<CBaseObject *>{found.object});
    m_view->markText(found.object, found.propertyId);
    m_view->ensureVisible(m_view->markedText(), viewMargin, viewMargin);
    showState();
}

void Finding::showNothing()
{
    m_shown.reset();
    m_view->markText(nullptr, 0);
    showState();
}

void Finding::showState()
{
    const int index = shownIndex();
    const bool isSought = !m_bar->sought()->text().isEmpty();
    QString state;
    if (isSought && m_found.isEmpty())
        state = m_workspace->text("IDS_FIND_NOTHING");
    else if (isSought && index < 0)
        state = m_workspace->text("IDS_FIND_COUNT").arg(m_found.size());
    else if (isSought)
        state = m_workspace->text(isHidden(m_found.at(index).object) ? "IDS_FIND_HIDDEN_PLACE" : "IDS_FIND_PLACE")
                    .arg(index + 1)
                    .arg(m_found.size());
    m_bar->sought()->setRemark(state, isSought && m_found.isEmpty());
}

void Finding::tellReplaced(const ReplacedTexts &result)
{
    const QString text = m_workspace->text(result.locked == 0 ? "IDS_FIND_REPLACED" : "IDS_FIND_REPLACED_SOME");
    m_bar->replacement()->setRemark(result.locked == 0 ? text.arg(result.replaced)
                                                       : text.arg(result.replaced).arg(result.locked));
}

/// The match that is shown, and goes on to the next one; without one, that is all.
void Finding::replaceOne()
{
    findAgain();
    const int index = shownIndex();
    if (index < 0 || m_shown->page != m_workspace->document()->currentPage()) {
        step(true);
        return;
    }
    const FoundText replaced = m_found.at(index);
    FoundText next = m_found.at((index + 1) % m_found.size());
    const QString replacement = m_bar->replacement()->text();
    const ReplacedTexts result = replaceTexts({replaced}, replacement, QStringLiteral("IDS_FIND_REPLACE_STEP"));
    const bool isBehind = next.object == replaced.object && next.propertyId == replaced.propertyId &&
                          next.match.start > replaced.match.start;
    if (isBehind && result.replaced > 0)
        next.match.start += replacement.size() - replaced.match.length;
    findAgain();
    const int nextIndex = m_found.indexOf(next);
    nextIndex < 0 ? showNothing() : show(nextIndex);
    m_from = here();
    tellReplaced(result);
}

void Finding::replaceAll()
{
    findAgain();
    if (m_found.isEmpty()) {
        showNothing();
        return;
    }
    const ReplacedTexts result =
        replaceTexts(m_found, m_bar->replacement()->text(), QStringLiteral("IDS_FIND_REPLACE_STEP"));
    findAgain();
    if (shownIndex() < 0)
        showNothing();
    showState();
    tellReplaced(result);
}

} // namespace board

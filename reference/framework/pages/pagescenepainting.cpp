// The painting of a page besides its objects: paper, frames, handles, guides.

#include <pagehost/pagescene.h>

#include <framework/cbaseobject.h>

#include <pagehost/page.h>
#include <pagehost/pagepainter.h>

#include <pages/framedrag.h>
#include <pages/gripcourse.h>
#include <pages/guidepainter.h>
#include <pages/highlightpainter.h>
#include <pages/overlaypainter.h>
#include <pages/snapper.h>
#include <pages/toolinput.h>

namespace pagehost {

void PageScene::repaintOverlay()
{
    const QRectF covered = overlayBounds(*m_page)
                               .united(highlightBounds(m_highlight, m_pixel))
                               .united(guideBounds(m_snapper->guides(), pixel()))
                               .united(oldPlaceBounds(dragStart(), pixel()));
    const QRectF damaged = m_overlay.united(covered);
    m_overlay = covered;
    // A null rectangle would stand for the whole scene.
    if (!damaged.isNull())
        update(damaged);
}

void PageScene::drawBackground(QPainter *painter, const QRectF &)
{
    paintPageBackground(m_page, painter, m_page->rect());
    if (grid() > 0 && !isPresented())
        paintGrid(*painter, *m_page, grid());
}

bool PageScene::isPresented() const
{
    const Document *document = m_page->document();
    return document && document->documentState() != 0;
}

void PageScene::drawForeground(QPainter *painter, const QRectF &)
{
    if (m_highlight)
        m_pixel = paintHighlight(*m_highlight, *painter);
    if (m_highlight && m_highlightedParts == ObjectAndPlaces)
        paintConnectionPlaces(*m_highlight, *painter);
    if (isPresented())
        return;
    if (showsOldPlace())
        paintOldPlace(dragStart(), *painter, m_dragModifiers.testFlag(Qt::ControlModifier) && canDropCopy());
    const bool isMoving = isDragging() && (m_drag.kind == Grip::Body || m_frameDrag);
    paintOverlay(*m_page, *painter, m_hover, isMoving || !isEditable());
    paintGuides(*painter, m_snapper->guides(), *m_page);
}

} // namespace pagehost

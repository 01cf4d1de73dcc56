#include "presenting/audiencewindow.h"

#include "page/pagefit.h"
#include "page/pageview.h"
#include "presenting/curtain.h"
#include "presenting/laserpointer.h"
#include "presenting/stage.h"

#include <pagehost/page.h>
#include <pagehost/pagescene.h>

#include <QtWidgets/QVBoxLayout>

namespace board {

AudienceView::AudienceView(QWidget *parent)
    : QGraphicsView(parent)
{
    setInteractive(false);
    setFocusPolicy(Qt::NoFocus);
    setFrameShape(NoFrame);
    setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform | QPainter::TextAntialiasing);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
}

void AudienceView::setPage(pagehost::Page *page)
{
    m_page = page;
    setScene(page ? page->scene() : nullptr);
    fit();
}

void AudienceView::fit()
{
    if (!m_page)
        return;
    setSceneRect(m_page->rect());
    const double rate = coveringRate(m_page->size(), viewport()->size());
    setTransform(QTransform::fromScale(rate, rate));
}

void AudienceView::resizeEvent(QResizeEvent *event)
{
    QGraphicsView::resizeEvent(event);
    fit();
}

void AudienceView::drawBackground(QPainter *painter, const QRectF &rect)
{
    painter->fillRect(rect, Qt::black);
    if (!m_page)
        return;
    painter->fillRect(m_page->rect(), Qt::white);
    QGraphicsView::drawBackground(painter, rect);
}

/// The scene's own has frames and handles.
void AudienceView::drawForeground(QPainter *, const QRectF &) {}

AudienceWindow::AudienceWindow(Stage *stage, const ToolChoice *tools, QWidget *parent)
    : QWidget(parent, Qt::Window | Qt::FramelessWindowHint)
    , m_stage(stage)
    , m_view(new AudienceView(this))
    , m_curtain(new Curtain(m_view->viewport()))
    , m_laser(new LaserPointer(m_view, tools))
{
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->addWidget(m_view);
    setCursor(Qt::BlankCursor);
    const auto showPage = [this] { m_view->setPage(m_stage->view()->page()); };
    connect(stage->view(), &PageView::pageShown, this, showPage);
    connect(stage->curtain(), &Curtain::changed, this, &AudienceWindow::showCurtain);
    connect(stage->laser(), &LaserPointer::pointed, m_laser, &LaserPointer::pointAt);
    connect(stage->laser(), &LaserPointer::left, m_laser, &LaserPointer::leave);
    showPage();
}

void AudienceWindow::showCurtain()
{
    const Curtain &original = *m_stage->curtain();
    m_curtain->setDrawn(original.isDrawn());
    if (original.isDrawn())
        m_curtain->setPart(original.part());
}

} // namespace board

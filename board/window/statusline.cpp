#include "window/statusline.h"

#include "core/workspace.h"
#include "look/theme.h"
#include "page/pageview.h"
#include "window/zoomcontrol.h"

#include <QtWidgets/QLabel>
#include <QtWidgets/QStatusBar>

namespace board {

namespace {

constexpr int pointerTextWidth = 110;
constexpr int sizeTextWidth = 120;
/// Milliseconds that a message stands.
constexpr int messageTime = 5000;

} // namespace

StatusLine::StatusLine(const Workspace *workspace, const Actions *actions, PageView *view, QStatusBar *bar)
    : QObject(bar)
    , m_workspace(workspace)
    , m_bar(bar)
    , m_hint(new QLabel(bar))
    , m_pointer(new QLabel(bar))
    , m_size(new QLabel(bar))
{
    m_hint->setForegroundRole(QPalette::PlaceholderText);
    m_hint->setContentsMargins(mediumGap, 0, 0, 0);
    m_pointer->setMinimumWidth(pointerTextWidth);
    m_size->setMinimumWidth(sizeTextWidth);
    bar->setSizeGripEnabled(false);
    bar->addWidget(m_hint, 1);
    bar->addPermanentWidget(m_pointer);
    bar->addPermanentWidget(m_size);
    bar->addPermanentWidget(new ZoomControl(workspace, actions, view, bar));
    connect(view, &PageView::pointerMoved, this, &StatusLine::showPointer);
    connect(view, &PageView::pointerLeft, m_pointer, &QLabel::clear);
}

void StatusLine::showHint(const char *textKey)
{
    m_hint->setText(m_workspace->text(textKey));
}

void StatusLine::showMessage(const QString &pattern, const QString &path)
{
    const QFontMetrics metrics = m_bar->fontMetrics();
    const int room = m_hint->width() - metrics.horizontalAdvance(pattern.arg(QString())) - 2 * mediumGap;
    m_bar->showMessage(pattern.arg(metrics.elidedText(path, Qt::ElideMiddle, room)), messageTime);
}

void StatusLine::showBounds(const QRectF &bounds)
{
    m_size->setText(bounds.isNull()
                        ? QString()
                        : QStringLiteral("%1 × %2").arg(qRound(bounds.width())).arg(qRound(bounds.height())));
}

void StatusLine::showPointer(const QPointF &scenePos)
{
    m_pointer->setText(QStringLiteral("%1, %2").arg(qRound(scenePos.x())).arg(qRound(scenePos.y())));
}

} // namespace board

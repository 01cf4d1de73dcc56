#include "panels/pagepanel.h"

#include "core/workspace.h"
#include "look/pagedelegate.h"
#include "look/sizedbuttons.h"
#include "look/sizes.h"
#include "look/theme.h"

#include <pagehost/commands.h>
#include <pagehost/page.h>

#include <QtGui/QPainter>
#include <QtWidgets/QAction>
#include <QtWidgets/QBoxLayout>
#include <QtWidgets/QListWidget>
#include <QtWidgets/QScrollBar>
#include <QtWidgets/QToolButton>

namespace board {

namespace {

/// Workers paint from pictures that are many times larger than a thumbnail; painting it larger and shrinking the
/// whole keeps thin lines whole.
constexpr int oversampling = 3;

} // namespace

PagePanel::PagePanel(Workspace *workspace, const QList<QAction *> &actions, QWidget *parent)
    : QWidget(parent)
    , m_workspace(workspace)
    , m_list(new QListWidget(this))
{
    auto *buttons = new QVBoxLayout;
    buttons->setSpacing(smallGap);
    for (QAction *action : actions) {
        auto *button = new QToolButton(this);
        button->setDefaultAction(action);
        button->setAccessibleName(action->text());
        sizeAsBarButton(button);
        buttons->addWidget(button);
    }
    buttons->addStretch();
    auto *row = new QHBoxLayout(this);
    row->setContentsMargins(largeGap, smallGap, largeGap, smallGap);
    row->addLayout(buttons);
    row->addWidget(m_list, 1);
    makeList();
    connectList();
    connectDocument();
    followSizes(this, [this] {
        setFixedHeight(sizes().pageStrip);
        m_list->setIconSize({sizes().thumbnail, sizes().thumbnail * 9 / 16});
        rebuild();
    });
    connect(workspace, &Workspace::documentReplaced, this, &PagePanel::connectDocument);
}

void PagePanel::makeList()
{
    m_list->setFlow(QListView::LeftToRight);
    // The page keeps the keys while the mouse is used here.
    m_list->setFocusPolicy(Qt::TabFocus);
    m_list->setWrapping(false);
    m_list->setItemDelegate(new PageDelegate(m_list));
    m_list->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_list->setHorizontalScrollMode(QAbstractItemView::ScrollPerPixel);
    m_list->setDragDropMode(QAbstractItemView::InternalMove);
    m_list->setAccessibleName(m_workspace->text("IDS_BOARD_PAGES"));
    m_list->viewport()->setAutoFillBackground(false);
}

void PagePanel::connectDocument()
{
    const pagehost::Document *document = m_workspace->document();
    connect(document, &pagehost::Document::pageInserted, this, &PagePanel::rebuild);
    connect(document, &pagehost::Document::pageRemoved, this, &PagePanel::rebuild);
    // Queued: the list itself may be in the middle of moving its row.
    connect(document, &pagehost::Document::pageMoved, this, &PagePanel::rebuild, Qt::QueuedConnection);
    connect(document, &pagehost::Document::currentPageChanged, this, &PagePanel::showCurrent);
    rebuild();
}

void PagePanel::connectList()
{
    connect(m_list, &QListWidget::currentRowChanged, this, [this](int row) {
        if (row >= 0)
            m_workspace->document()->setCurrentIndex(row);
    });
    connect(m_list->model(), &QAbstractItemModel::rowsMoved, this,
            [this](const QModelIndex &, int from, int, const QModelIndex &, int before) {
                pagehost::movePage(m_workspace->document(), from, before > from ? before - 1 : before);
            });
    connect(&m_thumbnails, &pagehost::ThumbnailPainter::ready, this, &PagePanel::showThumbnail);
}

void PagePanel::rebuild()
{
    const pagehost::Document *document = m_workspace->document();
    const QSignalBlocker quiet(m_list);
    m_list->clear();
    const QVector<pagehost::Page *> pages = document->pages();
    for (pagehost::Page *page : pages) {
        auto *item = new QListWidgetItem(QString::number(m_list->count() + 1), m_list);
        item->setData(Qt::AccessibleTextRole, m_workspace->text("IDS_BOARD_PAGE_NUMBER").arg(m_list->count()));
        disconnect(page, nullptr, this, nullptr);
        connect(page, &pagehost::Page::contentChanged, this, [this, page] { requestThumbnail(page); });
        requestThumbnail(page);
    }
    m_list->setCurrentRow(document->currentIndex());
}

/// A line towards the desk.
void PagePanel::paintEvent(QPaintEvent *)
{
    QPainter(this).fillRect(QRect(0, 0, width(), edgeWidth()), themeColors().border);
}

void PagePanel::showCurrent(int index)
{
    if (m_list->count() != m_workspace->document()->pageCount())
        return;
    const QSignalBlocker quiet(m_list);
    m_list->setCurrentRow(index);
}

void PagePanel::requestThumbnail(pagehost::Page *page)
{
    m_thumbnails.request(page, m_list->iconSize() * devicePixelRatioF() * oversampling);
}

void PagePanel::showThumbnail(pagehost::Page *page, const QImage &picture)
{
    const int row = m_workspace->document()->indexOf(page);
    if (QListWidgetItem *item = m_list->item(row))
        item->setData(Qt::DecorationRole, picture.scaled(picture.size() / oversampling, Qt::IgnoreAspectRatio,
                                                         Qt::SmoothTransformation));
}

} // namespace board

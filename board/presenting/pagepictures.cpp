#include "presenting/pagepictures.h"

#include "core/workspace.h"
#include "look/pagedelegate.h"
#include "look/theme.h"
#include "page/pageview.h"
#include "presenting/stage.h"

#include <pagehost/page.h>

#include <QtWidgets/QVBoxLayout>

namespace board {

namespace {

constexpr QSize nextSize(286, 161);
/// Two in a row beside a scroll bar.
constexpr QSize smallSize(124, 70);

} // namespace

PagePictures::PagePictures(const Workspace *workspace, Stage *stage, QWidget *middle, QWidget *parent)
    : QWidget(parent)
    , m_workspace(workspace)
    , m_stage(stage)
    , m_nextName(new QLabel(this))
    , m_next(new QLabel(this))
    , m_list(new QListWidget(this))
{
    setFixedWidth(nextSize.width() + 2 * mediumGap);
    m_nextName->setForegroundRole(QPalette::PlaceholderText);
    m_next->setFixedSize(nextSize);
    m_next->setAlignment(Qt::AlignCenter);
    makeList();
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(mediumGap, 0, mediumGap, mediumGap);
    column->addWidget(m_nextName);
    column->addWidget(m_next);
    column->addWidget(middle);
    addHeading(column);
    column->addWidget(m_list, 1);
    connect(stage->view(), &PageView::pageShown, this, &PagePictures::showPage);
    connect(&m_painter, &pagehost::ThumbnailPainter::ready, this, &PagePictures::showPicture);
    showPage();
}

/// Below a line that divides it from the times.
void PagePictures::addHeading(QVBoxLayout *column)
{
    auto *line = new QWidget(this);
    line->setFixedHeight(edgeWidth());
    line->setAutoFillBackground(true);
    line->setBackgroundRole(QPalette::Mid);
    column->addWidget(line);
    column->addSpacing(mediumGap);
    auto *heading = new QLabel(m_workspace->text("IDS_BOARD_PAGES"), this);
    QFont font = heading->font();
    font.setBold(true);
    heading->setFont(font);
    column->addWidget(heading);
}

void PagePictures::makeList()
{
    m_list->setItemDelegate(new PageDelegate(m_list));
    m_list->setStyleSheet(QStringLiteral("QListView { background: transparent }"));
    m_list->setViewMode(QListView::IconMode);
    m_list->setMovement(QListView::Static);
    m_list->setResizeMode(QListView::Adjust);
    m_list->setIconSize(smallSize);
    m_list->setGridSize(PageDelegate::itemSize(smallSize));
    m_list->setFrameShape(QFrame::NoFrame);
    m_list->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    // The page keeps the keys.
    m_list->setFocusPolicy(Qt::NoFocus);
    m_list->setAccessibleName(m_workspace->text("IDS_BOARD_PAGES"));
    connect(m_list, &QListWidget::itemClicked, this,
            [this](QListWidgetItem *item) { document()->setCurrentIndex(m_list->row(item)); });
}

pagehost::Document *PagePictures::document() const
{
    return m_stage->view()->page() ? m_stage->view()->page()->document() : nullptr;
}

void PagePictures::showPage()
{
    if (!document())
        return;
    if (document()->pages() != m_pages)
        rebuild();
    const int index = document()->indexOf(m_stage->view()->page());
    m_list->setCurrentRow(index);
    pagehost::Page *next = document()->page(index + 1);
    m_next->clear();
    m_nextName->setText(next ? m_workspace->text("IDS_BOARD_NEXT_IS").arg(index + 2)
                             : m_workspace->text("IDS_BOARD_NEXT_IS_NONE"));
    if (next)
        request(next);
}

void PagePictures::rebuild()
{
    for (pagehost::Page *page : qAsConst(m_pages))
        disconnect(page, nullptr, this, nullptr);
    m_pages = document()->pages();
    m_list->clear();
    for (pagehost::Page *page : qAsConst(m_pages)) {
        auto *item = new QListWidgetItem(QString::number(m_list->count() + 1), m_list);
        item->setData(Qt::AccessibleTextRole, m_workspace->text("IDS_BOARD_PAGE_NUMBER").arg(m_list->count()));
        connect(page, &pagehost::Page::contentChanged, this, [this, page] { request(page); });
        // A page may be deleted later than it leaves the document, which is noticed here.
        connect(page, &QObject::destroyed, this, [this, page] { m_pages.removeAll(page); });
        request(page);
    }
}

void PagePictures::request(pagehost::Page *page)
{
    m_painter.request(page, nextSize * devicePixelRatioF());
}

void PagePictures::showPicture(pagehost::Page *page, const QImage &picture)
{
    const int row = m_pages.indexOf(page);
    if (QListWidgetItem *item = m_list->item(row))
        item->setData(Qt::DecorationRole, picture);
    if (!document() || row != document()->indexOf(m_stage->view()->page()) + 1)
        return;
    QPixmap large = QPixmap::fromImage(picture);
    large.setDevicePixelRatio(devicePixelRatioF());
    m_next->setPixmap(large);
}

} // namespace board

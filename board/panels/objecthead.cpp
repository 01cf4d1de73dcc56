#include "panels/objecthead.h"

#include "core/objectnames.h"
#include "core/workspace.h"
#include "look/linestart.h"
#include "look/sizes.h"
#include "look/theme.h"
#include "objects/objectpictures.h"

#include <pagehost/objectregistry.h>
#include <pagehost/page.h>

#include <QtCore/QEvent>
#include <QtWidgets/QApplication>
#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QLabel>

namespace board {

namespace {

/// Sides and letters, logical pixels: for mouse and pen, and for fingers.
constexpr int pictureSide = 28;
constexpr int largePictureSide = 40;
constexpr int headingPixels = 15;
constexpr int largeHeadingPixels = 21;
constexpr int captionPixels = 11;
constexpr int largeCaptionPixels = 15;

void setLetters(QLabel *label, int pixels, bool isBold)
{
    QFont font = QApplication::font();
    font.setPixelSize(pixels);
    font.setBold(isBold);
    label->setFont(font);
}

/// Objects that only tools make look like nothing before they are drawn.
QString picturedKind(const pagehost::ObjectRegistry &registry, const pagehost::GroupUnit &unit)
{
    if (unit.group != 0)
        return {};
    const QString id = pagehost::kindIdOf(unit.objects.first());
    return registry.kind(id).group.isEmpty() ? QString() : id;
}

} // namespace

ObjectHead::ObjectHead(const Workspace *workspace, QWidget *parent)
    : QWidget(parent)
    , m_workspace(workspace)
    , m_picture(new QLabel(this))
    , m_title(new QLabel(this))
    , m_kind(new QLabel(this))
{
    for (QLabel *label : {m_title, m_kind}) {
        label->setAlignment(lineStart() | Qt::AlignVCenter);
        label->setWordWrap(true);
        label->setTextFormat(Qt::PlainText);
    }
    m_kind->setForegroundRole(QPalette::PlaceholderText);
    m_picture->setAlignment(Qt::AlignCenter);
    m_picture->hide();
    m_kind->hide();
    auto *row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(largeGap);
    row->addWidget(m_picture);
    auto *names = new QVBoxLayout;
    names->setSpacing(0);
    names->addWidget(m_title);
    names->addWidget(m_kind);
    row->addLayout(names, 1);
    followSizes(this, [this] { takeSizes(); });
    connect(workspace, &Workspace::kindsChanged, this, [this] { showKind(m_kindId); });
}

void ObjectHead::showSelection(const pagehost::Page *page)
{
    const QVector<CBaseObject *> objects = page ? page->selectedObjects() : QVector<CBaseObject *>();
    if (objects.isEmpty()) {
        m_title->setText(m_workspace->text("IDS_BOARD_PAGE"));
        m_kind->hide();
        return showKind({});
    }
    m_title->setText(titleOf(*m_workspace, *page, objects));
    const QVector<pagehost::GroupUnit> units = page->grouping().unitsHolding(objects);
    const bool isOne = units.size() == 1;
    m_kind->setText(isOne ? kindOf(*m_workspace, units.first()) : QString());
    m_kind->setVisible(isOne && m_kind->text() != m_title->text());
    const QString kindId = isOne ? picturedKind(m_workspace->registry(), units.first()) : QString();
    if (kindId != m_kindId)
        showKind(kindId);
}

void ObjectHead::showKind(const QString &kindId)
{
    m_kindId = kindId;
    if (!kindId.isEmpty())
        m_picture->setPixmap(
            pictureOfKind(m_workspace->registry(), kindId, m_picture->size(), devicePixelRatioF()));
    m_picture->setVisible(!kindId.isEmpty());
}

void ObjectHead::takeSizes()
{
    const bool isLarge = areSizesLarge();
    const int side = isLarge ? largePictureSide : pictureSide;
    m_picture->setFixedSize(side, side);
    setLetters(m_title, isLarge ? largeHeadingPixels : headingPixels, true);
    setLetters(m_kind, isLarge ? largeCaptionPixels : captionPixels, false);
    showKind(m_kindId);
}

/// Outlines of pictures go with the theme.
void ObjectHead::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::PaletteChange)
        showKind(m_kindId);
}

} // namespace board

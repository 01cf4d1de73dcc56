#include "panels/stylepanel.h"

#include "core/workspace.h"
#include "look/theme.h"
#include "panels/fillcontrols.h"
#include "panels/pencontrols.h"
#include "panels/placecontrols.h"
#include "panels/selectionfill.h"

#include <pagehost/commands.h>
#include <pagehost/page.h>
#include <pagehost/selection.h>
#include <pagehost/style.h>

#include <framework/cbaseobject.h>
#include <framework/iframework.h>

#include <QtWidgets/QLabel>
#include <QtWidgets/QVBoxLayout>

namespace board {

namespace {

/// Lighter lines are not seen on paper.
constexpr int lightestPattern = 235;
constexpr QRgb patternColor = 0xffb4bfcc;

/// Of a page of which the user only knows that it is white, a pattern in its colour would show nothing.
CPageBgProp seenOnPaper(CPageBgProp fill, const CPageBgProp &present)
{
    const bool becomesPattern =
        fill.fillType() == CPageBgProp::PatternFill && present.fillType() != CPageBgProp::PatternFill;
    if (becomesPattern && fill.fillColor().lightness() > lightestPattern)
        fill.setFillColor(QColor(patternColor));
    return fill;
}

} // namespace

StylePanel::StylePanel(const Workspace *workspace, QWidget *parent)
    : QWidget(parent)
    , m_workspace(workspace)
    , m_pen(new PenControls(workspace))
    , m_fill(new FillControls(workspace))
    , m_background(new FillControls(workspace))
    , m_place(new PlaceControls(workspace))
    , m_refresh(this, [this] { refresh(); })
{
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(largeGap);
    m_fillSection = addSection(column, "IDS_BOARD_FILL", m_fill);
    m_penSection = addSection(column, "IDS_BOARD_PEN", m_pen);
    m_placeSection = addSection(column, "IDS_BOARD_PLACE", m_place);
    m_backgroundSection = addSection(column, "IDS_BOARD_BACKGROUND", m_background);
    connectControls();
}

QWidget *StylePanel::addSection(QBoxLayout *column, const char *titleKey, QWidget *content)
{
    auto *section = new QWidget(this);
    auto *caption = new QLabel(m_workspace->text(titleKey), section);
    caption->setForegroundRole(QPalette::PlaceholderText);
    auto *layout = new QVBoxLayout(section);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(smallGap + 2);
    layout->addWidget(caption);
    layout->addWidget(content);
    column->addWidget(section);
    return section;
}

void StylePanel::connectControls()
{
    connect(m_pen, &PenControls::colorPicked, this,
            [this](const QColor &color) { pagehost::setPenColor(selection(), color); });
    connect(m_pen, &PenControls::widthPicked, this,
            [this](int width) { pagehost::setPenWidth(selection(), width); });
    connect(m_pen, &PenControls::stylePicked, this,
            [this](Qt::PenStyle style) { pagehost::setPenStyle(selection(), style); });
    connect(m_fill, &FillControls::fillPicked, this,
            [this](const CPageBgProp &fill) { giveFill(selection(), fill); });
    connect(m_fill, &FillControls::opacityPicked, this, &StylePanel::takeOpacity);
    connect(m_background, &FillControls::fillPicked, this, [this](const CPageBgProp &fill) {
        if (m_page)
            pagehost::setPageBackground(m_page, seenOnPaper(fill, m_page->background()));
    });
    connect(m_background, &FillControls::opacityPicked, this, [this](int opacity) {
        if (!m_page)
            return;
        CPageBgProp fill = m_page->background();
        fill.setOpacity(opacity);
        pagehost::setPageBackground(m_page, fill);
    });
    connect(m_place, &PlaceControls::movePicked, this,
            [this](const QPointF &delta) { pagehost::moveObjects(selection(), delta); });
    connect(m_place, &PlaceControls::sizePicked, this, [this](const QSizeF &size) {
        if (selection().size() == 1)
            pagehost::resizeObject(selection().constFirst(), size);
    });
    connect(m_place, &PlaceControls::rotationPicked, this, [this](double degrees) {
        if (selection().size() == 1)
            pagehost::rotateObjects(selection(), degrees - selection().constFirst()->rotation());
    });
}

void StylePanel::setPage(pagehost::Page *page)
{
    if (m_page)
        disconnect(m_page, nullptr, this, nullptr);
    m_page = page;
    if (page) {
        const auto request = [this] { m_refresh.request(); };
        connect(page, &pagehost::Page::selectionChanged, this, request);
        connect(page, &pagehost::Page::contentChanged, this, [this] { m_refresh.refreshNow(); });
        connect(page, &pagehost::Page::backgroundChanged, this, request);
    }
    m_refresh.request();
}

QVector<CBaseObject *> StylePanel::selection() const
{
    return m_page ? m_page->selectedObjects() : QVector<CBaseObject *>();
}

/// Each keeps the rest of its fill.
void StylePanel::takeOpacity(int opacity)
{
    GetFramework()->beginUndoGroup(QStringLiteral("IDS_UNDO_FILL"));
    const QVector<CBaseObject *> filled = filledOf(selection());
    for (CBaseObject *object : filled) {
        CPageBgProp fill = *object->getFillProp();
        fill.setOpacity(opacity);
        QColor color = fill.fillColor();
        color.setAlpha(opacity);
        isPlain(fill) ? pagehost::setFill({object}, color) : pagehost::setObjectsFill({object}, fill);
    }
    GetFramework()->endUndoGroup();
}

void StylePanel::refresh()
{
    const QVector<CBaseObject *> objects = selection();
    const bool any = !objects.isEmpty();
    for (QWidget *section : {m_penSection, m_placeSection})
        section->setVisible(any);
    m_backgroundSection->setVisible(!any);
    if (any) {
        showObjects(objects);
        return;
    }
    m_fillSection->hide();
    if (m_page)
        m_background->showFill(m_page->background());
}

void StylePanel::showObjects(const QVector<CBaseObject *> &objects)
{
    CBaseObject *first = objects.first();
    QVector<pagehost::ObjectStyle> styles;
    QVector<CPageBgProp> fills;
    for (CBaseObject *object : objects) {
        styles.append(pagehost::styleOf(object));
        if (styles.last().hasFill && object->getFillProp())
            fills.append(*object->getFillProp());
    }
    m_pen->showStyles(styles);
    m_fillSection->setVisible(!fills.isEmpty());
    if (!fills.isEmpty())
        m_fill->showFills(fills);
    m_place->showPos(pagehost::boundsOf(objects).topLeft());
    if (objects.size() == 1)
        m_place->showForm(first->getClientRect().size(), first->rotation());
    else
        m_place->showNoForm();
}

} // namespace board

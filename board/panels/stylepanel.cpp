#include "panels/stylepanel.h"

#include "core/commands.h"
#include "core/newlook.h"
#include "core/workspace.h"
#include "look/sizedbuttons.h"
#include "look/theme.h"
#include "panels/fields/captionedrow.h"
#include "panels/fillcontrols.h"
#include "panels/foldingsection.h"
#include "panels/pagesizecontrols.h"
#include "panels/pencontrols.h"
#include "panels/placecontrols.h"
#include "panels/selectionfill.h"

#include <pagehost/commands.h>
#include <pagehost/page.h>
#include <pagehost/selection.h>
#include <pagehost/style.h>

#include <framework/cbaseobject.h>
#include <framework/iframework.h>

#include <QtWidgets/QAction>
#include <QtWidgets/QCheckBox>
#include <QtWidgets/QToolButton>
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

QVBoxLayout *columnIn(QWidget *part)
{
    auto *column = new QVBoxLayout(part);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(mediumGap);
    return column;
}

/// Buttons of commands, which have no number to type.
QWidget *makeButtonRow(const Commands &commands, const QVector<Command> &shown)
{
    auto *part = new QWidget;
    auto *layout = new QHBoxLayout(part);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(smallGap);
    for (const Command command : shown) {
        auto *button = new QToolButton(part);
        button->setDefaultAction(commands.action(command));
        button->setToolButtonStyle(Qt::ToolButtonIconOnly);
        sizeAsBarButton(button);
        button->setFocusPolicy(Qt::TabFocus);
        layout->addWidget(button);
    }
    layout->addStretch();
    return part;
}

QWidget *makeSwitch(const Commands &commands, Command command)
{
    const QAction *action = commands.action(command);
    auto *box = new QCheckBox(commands.name(command));
    box->setToolTip(action->toolTip());
    box->setChecked(action->isChecked());
    QObject::connect(action, &QAction::toggled, box, &QCheckBox::setChecked);
    QObject::connect(box, &QCheckBox::clicked, action, &QAction::trigger);
    return box;
}

} // namespace

StylePanel::StylePanel(const Workspace *workspace, const Commands *commands, NewLook *newLook, QWidget *parent)
    : QWidget(parent)
    , m_workspace(workspace)
    , m_pen(new PenControls(workspace))
    , m_fill(new FillControls(workspace, "IDS_BOARD_FILL"))
    , m_background(new FillControls(workspace, "IDS_BOARD_BACKGROUND"))
    , m_pageSize(new PageSizeControls(workspace))
    , m_place(new PlaceControls(workspace))
    , m_newLook(newLook)
    , m_forNewOnes(new QCheckBox(workspace->text("IDS_BOARD_FOR_NEW_ONES")))
    , m_lookSection(new FoldingSection(workspace->text("IDS_BOARD_LOOK"), new QWidget))
    , m_alignSection(new FoldingSection(workspace->text("IDS_BOARD_ALIGN"), new QWidget))
    , m_placeSection(new FoldingSection(workspace->text("IDS_BOARD_PLACE"), new QWidget))
    , m_pagePart(new QWidget)
    , m_refresh(this, [this] { refresh(); })
{
    QVBoxLayout *look = columnIn(m_lookSection->content());
    look->addWidget(m_fill);
    look->addWidget(m_pen);
    look->addWidget(m_forNewOnes);
    addAlignment(*commands);
    addPagePart(*commands);
    QVBoxLayout *place = columnIn(m_placeSection->content());
    place->addWidget(m_place);
    place->addWidget(makeButtonRow(*commands, {Command::TurnLeft, Command::TurnRight, Command::MirrorAcross,
                                               Command::MirrorUp, Command::Lock}));
    QVBoxLayout *column = columnIn(this);
    column->setSpacing(largeGap);
    column->addWidget(m_lookSection);
    column->addWidget(m_alignSection);
    column->addWidget(m_placeSection);
    column->addWidget(m_pagePart);
    m_lookSection->remember(QStringLiteral("look"), true);
    m_alignSection->remember(QStringLiteral("align"), true);
    m_placeSection->remember(QStringLiteral("place"), true);
    m_forNewOnes->setToolTip(workspace->text("IDS_BOARD_FOR_NEW_ONES_TIP"));
    connectControls();
}

void StylePanel::addPagePart(const Commands &commands)
{
    auto *paper = new CaptionedRow(
        m_workspace->text("IDS_BOARD_PAPER"),
        makeButtonRow(commands, {Command::BlankPaper, Command::RuledPaper, Command::SquaredPaper,
                                 Command::DottedPaper, Command::MusicPaper, Command::MillimetrePaper}));
    auto *size = new CaptionedRow(m_workspace->text("IDS_BOARD_PAGE_SIZE"), m_pageSize);
    QVBoxLayout *column = columnIn(m_pagePart);
    column->setSpacing(largeGap);
    for (CaptionedRow *row : {paper, size})
        row->putCaptionAbove();
    column->addWidget(paper);
    column->addWidget(m_background);
    column->addWidget(size);
    column->addWidget(makeSwitch(commands, Command::Grid));
}

void StylePanel::addAlignment(const Commands &commands)
{
    QVBoxLayout *align = columnIn(m_alignSection->content());
    align->addWidget(makeButtonRow(commands, {Command::AlignLeft, Command::AlignCenter, Command::AlignRight,
                                              Command::AlignTop, Command::AlignMiddle, Command::AlignBottom}));
    align->addWidget(
        makeButtonRow(commands, {Command::DistributeAcross, Command::DistributeDown, Command::SameSize}));
}

void StylePanel::connectControls()
{
    connect(m_forNewOnes, &QCheckBox::clicked, this, &StylePanel::useForNewOnes);
    connect(m_newLook, &NewLook::changed, this, &StylePanel::showNewLook);
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
    connect(m_pageSize, &PageSizeControls::sizePicked, this, [this](const QSizeF &size) {
        if (m_page)
            pagehost::setPageSize(m_page, size);
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
        connect(page, &pagehost::Page::sizeChanged, this, request);
    }
    m_refresh.request();
}

/// New shapes look like the selected one from now on, or like their kind again.
void StylePanel::useForNewOnes(bool use)
{
    if (use && !selection().isEmpty())
        m_newLook->choose(selection().constFirst());
    else
        m_newLook->giveUp();
}

void StylePanel::showNewLook()
{
    const QVector<CBaseObject *> objects = selection();
    m_forNewOnes->setChecked(!objects.isEmpty() && m_newLook->isLookOf(objects.first()));
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
    m_lookSection->setVisible(any);
    m_alignSection->setVisible(objects.size() > 1);
    m_placeSection->setVisible(any);
    m_pagePart->setVisible(!any);
    if (any) {
        showObjects(objects);
        return;
    }
    if (!m_page)
        return;
    m_background->showFill(m_page->background());
    m_pageSize->showSize(m_page->size());
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
    m_fill->setVisible(!fills.isEmpty());
    if (!fills.isEmpty())
        m_fill->showFills(fills);
    showNewLook();
    m_place->showPos(pagehost::boundsOf(objects).topLeft());
    if (objects.size() == 1)
        m_place->showForm(first->getClientRect().size(), first->rotation());
    else
        m_place->showNoForm();
}

} // namespace board

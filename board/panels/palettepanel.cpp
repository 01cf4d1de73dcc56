#include "panels/palettepanel.h"

#include "core/workspace.h"
#include "look/theme.h"
#include "objects/objectpictures.h"
#include "panels/buttonflow.h"
#include "panels/palettebutton.h"
#include "panels/paletteorder.h"

#include <QtCore/QEvent>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QScrollArea>
#include <QtWidgets/QScrollBar>
#include <QtWidgets/QVBoxLayout>

namespace board {

namespace {

constexpr QSize pictureSize(52, 46);

} // namespace

PalettePanel::PalettePanel(const Workspace *workspace, QWidget *parent)
    : QWidget(parent)
    , m_workspace(workspace)
    , m_search(new QLineEdit(this))
    , m_scroll(new QScrollArea(this))
{
    m_search->setPlaceholderText(workspace->text("IDS_BOARD_SEARCH"));
    m_search->setAccessibleName(workspace->text("IDS_BOARD_SEARCH"));
    m_search->setClearButtonEnabled(true);
    connect(m_search, &QLineEdit::textChanged, this, &PalettePanel::filter);

    m_scroll->setWidgetResizable(true);
    m_scroll->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    fill();
    // In the smallest window one column is still whole.
    m_scroll->setMinimumWidth(widthOfColumns(1));

    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(largeGap, mediumGap, largeGap, largeGap);
    column->setSpacing(largeGap);
    column->addWidget(m_search);
    column->addWidget(m_scroll, 1);
    paintPictures();
}

void PalettePanel::fill()
{
    auto *content = new QWidget;
    auto *groups = new QVBoxLayout(content);
    groups->setContentsMargins(0, 0, 0, 0);
    groups->setSpacing(largeGap);
    addGroups(groups);
    groups->addStretch();
    m_scroll->setWidget(content);
}

void PalettePanel::showKinds()
{
    const int place = m_scroll->verticalScrollBar()->value();
    m_buttons.clear();
    m_flows.clear();
    fill();
    paintPictures();
    showWaitingKind(m_waitingKind);
    filter(m_search->text());
    m_scroll->verticalScrollBar()->setValue(place);
}

/// Of the scrolled part.
int PalettePanel::widthOfColumns(int columns) const
{
    const int frame = 2 * m_scroll->frameWidth() + m_scroll->verticalScrollBar()->sizeHint().width();
    return frame + (m_flows.isEmpty() ? 0 : m_flows.first()->widthOfColumns(columns));
}

QSize PalettePanel::sizeHint() const
{
    const QMargins margins = layout()->contentsMargins();
    const int width = margins.left() + widthOfColumns(2) + margins.right();
    return {width, QWidget::sizeHint().height()};
}

void PalettePanel::addGroups(QVBoxLayout *column)
{
    const QVector<PaletteEntry> entries = paletteEntries(*m_workspace);
    QHash<QString, ButtonFlow *> flows;
    for (const PaletteEntry &entry : entries) {
        ButtonFlow *&flow = flows[entry.group];
        if (!flow) {
            flow = new ButtonFlow(entry.group);
            m_flows.append(flow);
            column->addWidget(flow);
        }
        addButton(flow, entry);
    }
    if (!entries.isEmpty())
        return;
    auto *nothing = new QLabel(m_workspace->text("IDS_BOARD_NO_SHAPES"));
    nothing->setWordWrap(true);
    nothing->setForegroundRole(QPalette::PlaceholderText);
    column->addWidget(nothing);
}

void PalettePanel::addButton(ButtonFlow *flow, const PaletteEntry &entry)
{
    const QString kindId = entry.kindId;
    auto *button = new PaletteButton(kindId, entry.name, flow);
    button->setSearchWords(entry.words);
    button->setIconSize(pictureSize);
    button->setToolTip(m_workspace->text("IDS_BOARD_KIND_TIP").arg(button->text()));
    connect(button, &PaletteButton::clicked, this,
            [this, kindId](bool down) { Q_EMIT kindPicked(down ? kindId : QString()); });
    connect(button, &PaletteButton::placeRequested, this, [this, kindId] { Q_EMIT placeRequested(kindId); });
    m_buttons.append(button);
    flow->addWidget(button);
}

void PalettePanel::paintPictures()
{
    for (PaletteButton *button : qAsConst(m_buttons))
        button->setIcon(
            QIcon(pictureOfKind(m_workspace->registry(), button->kindId(), pictureSize, devicePixelRatioF())));
}

void PalettePanel::showWaitingKind(const QString &kindId)
{
    m_waitingKind = kindId;
    for (PaletteButton *button : qAsConst(m_buttons))
        button->setChecked(button->kindId() == kindId);
}

void PalettePanel::startSearch()
{
    m_search->setFocus();
    m_search->selectAll();
}

void PalettePanel::filter(const QString &words)
{
    for (PaletteButton *button : qAsConst(m_buttons))
        button->setVisible(button->isFoundBy(words.trimmed()));
    for (ButtonFlow *flow : qAsConst(m_flows))
        flow->rearrange();
}

void PalettePanel::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::PaletteChange)
        paintPictures();
}

} // namespace board

#include "panels/palettepanel.h"

#include "core/searchwords.h"
#include "core/workspace.h"
#include "look/icons.h"
#include "look/linestart.h"
#include "look/sizedbuttons.h"
#include "look/sizes.h"
#include "look/theme.h"
#include "objects/objectpictures.h"
#include "panels/buttonflow.h"
#include "panels/palettebutton.h"
#include "panels/paletteorder.h"

#include <QtCore/QSettings>
#include <QtGui/QKeyEvent>
#include <QtWidgets/QApplication>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QMenu>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QScrollArea>
#include <QtWidgets/QScrollBar>
#include <QtWidgets/QToolButton>
#include <QtWidgets/QVBoxLayout>

#include <algorithm>

namespace board {

namespace {

/// Beside and below the picture of a shape.
constexpr QSize roomBesidePicture(40, 46);
constexpr int columnsShown = 3;
constexpr int mostRecent = 8;
const QString recentKey = QStringLiteral("palette/lastUsed");

QSize pictureSize()
{
    return QSize(sizes().kind, sizes().kind) - roomBesidePicture;
}

QToolButton *headButton(Icon picture, const QString &name)
{
    auto *button = new QToolButton;
    button->setIcon(icon(picture));
    sizeAsBarButton(button);
    button->setToolTip(name);
    button->setAccessibleName(name);
    button->setFocusPolicy(Qt::TabFocus);
    return button;
}

} // namespace

PalettePanel::PalettePanel(const Workspace *workspace, QWidget *parent)
    : QWidget(parent)
    , m_workspace(workspace)
    , m_search(new QLineEdit(this))
    , m_scroll(new QScrollArea(this))
    , m_pin(headButton(Icon::Pin, workspace->text("IDS_BOARD_PIN")))
    , m_menu(new QMenu(this))
    , m_nothing(new QLabel)
    , m_all(new QPushButton(workspace->text("IDS_BOARD_ALL_SHAPES")))
{
    m_search->setPlaceholderText(workspace->text("IDS_BOARD_SEARCH"));
    m_search->setAccessibleName(workspace->text("IDS_BOARD_SEARCH"));
    m_search->setClearButtonEnabled(true);
    m_search->addAction(icon(Icon::Search, QPalette::PlaceholderText), QLineEdit::LeadingPosition);
    m_search->installEventFilter(this);
    connect(m_search, &QLineEdit::textChanged, this, &PalettePanel::filter);

    m_scroll->setWidgetResizable(true);
    m_scroll->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_scroll->setFocusPolicy(Qt::NoFocus);
    m_scroll->viewport()->setAutoFillBackground(false);
    auto *column = new QVBoxLayout(this);
    // The scroll bar stands in the margin.
    column->setContentsMargins(alongLines(largeGap, largeGap, smallGap, largeGap));
    column->setSpacing(largeGap);
    column->addWidget(makeHead());
    column->addWidget(makeNothing());
    column->addWidget(m_scroll, 1);
    fill();
    // In the smallest window one column is still whole.
    followSizes(this, [this] {
        showKinds();
        m_scroll->setMinimumWidth(widthOfColumns(1));
        letWheelGoByRows();
    });
}

QWidget *PalettePanel::makeHead()
{
    m_pin->setCheckable(true);
    QToolButton *more = headButton(Icon::More, m_workspace->text("IDS_BOARD_MORE"));
    more->setMenu(m_menu);
    more->setPopupMode(QToolButton::InstantPopup);
    auto *head = new QWidget(this);
    auto *row = new QHBoxLayout(head);
    row->setContentsMargins(alongLines(0, 0, largeGap - smallGap, 0));
    row->setSpacing(smallGap);
    row->addWidget(m_search, 1);
    row->addWidget(m_pin);
    row->addWidget(more);
    return head;
}

/// In place of shapes when a search finds none.
QWidget *PalettePanel::makeNothing()
{
    m_nothing->setWordWrap(true);
    m_nothing->setTextFormat(Qt::PlainText);
    m_nothing->setForegroundRole(QPalette::PlaceholderText);
    connect(m_all, &QPushButton::clicked, m_search, &QLineEdit::clear);
    auto *part = new QWidget(this);
    auto *column = new QVBoxLayout(part);
    column->setContentsMargins(alongLines(0, 0, largeGap - smallGap, 0));
    column->addWidget(m_nothing);
    column->addWidget(m_all, 0, Qt::AlignLeft);
    return part;
}

void PalettePanel::fill()
{
    auto *content = new QWidget;
    auto *groups = new QVBoxLayout(content);
    groups->setContentsMargins(0, 0, 0, 0);
    groups->setSpacing(largeGap);
    addRecent(groups);
    addGroups(groups);
    groups->addStretch();
    m_scroll->setWidget(content);
    content->setAutoFillBackground(false);
}

void PalettePanel::showKinds()
{
    const int place = m_scroll->verticalScrollBar()->value();
    m_buttons.clear();
    m_found.clear();
    m_recentButtons.clear();
    m_flows.clear();
    m_recentFlow = nullptr;
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

void PalettePanel::letWheelGoByRows()
{
    if (m_buttons.isEmpty())
        return;
    const int row = m_buttons.first()->sizeHint().height() + smallGap;
    m_scroll->verticalScrollBar()->setSingleStep(row / std::max(1, QApplication::wheelScrollLines()));
}

QSize PalettePanel::sizeHint() const
{
    const QMargins margins = layout()->contentsMargins();
    const int width = margins.left() + widthOfColumns(columnsShown) + margins.right();
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
        m_buttons.append(makeButton(flow, entry));
    }
    if (!entries.isEmpty())
        return;
    auto *nothing = new QLabel(m_workspace->text("IDS_BOARD_NO_SHAPES"));
    nothing->setWordWrap(true);
    nothing->setForegroundRole(QPalette::PlaceholderText);
    column->addWidget(nothing);
}

void PalettePanel::addRecent(QVBoxLayout *column)
{
    const QVector<PaletteEntry> entries = paletteEntries(*m_workspace);
    const QStringList recent = QSettings().value(recentKey).toStringList();
    for (const QString &kindId : recent) {
        const auto entry = std::find_if(entries.begin(), entries.end(),
                                        [&](const PaletteEntry &one) { return one.kindId == kindId; });
        if (entry == entries.end())
            continue;
        if (!m_recentFlow) {
            m_recentFlow = new ButtonFlow(m_workspace->text("IDS_BOARD_LAST_USED"));
            column->addWidget(m_recentFlow);
        }
        m_recentButtons.append(makeButton(m_recentFlow, *entry));
    }
}

void PalettePanel::remember(const QString &kindId)
{
    QStringList recent = QSettings().value(recentKey).toStringList();
    if (recent.value(0) == kindId)
        return;
    recent.removeAll(kindId);
    recent.prepend(kindId);
    QSettings().setValue(recentKey, QStringList(recent.mid(0, mostRecent)));
    // The button that was pressed may still be at work.
    QMetaObject::invokeMethod(this, &PalettePanel::showKinds, Qt::QueuedConnection);
}

PaletteButton *PalettePanel::makeButton(ButtonFlow *flow, const PaletteEntry &entry)
{
    const QString kindId = entry.kindId;
    auto *button = new PaletteButton(kindId, entry.name, flow);
    button->setSearchWords(entry.words);
    button->setIconSize(pictureSize());
    button->setToolTip(m_workspace->text("IDS_BOARD_KIND_TIP").arg(button->text()));
    connect(button, &PaletteButton::clicked, this,
            [this, kindId](bool down) { Q_EMIT kindPicked(down ? kindId : QString()); });
    connect(button, &PaletteButton::placeRequested, this, [this, kindId] { Q_EMIT placeRequested(kindId); });
    flow->addWidget(button);
    return button;
}

void PalettePanel::paintPictures()
{
    const QVector<PaletteButton *> all = m_buttons + m_recentButtons;
    for (PaletteButton *button : all)
        button->setIcon(
            QIcon(pictureOfKind(m_workspace->registry(), button->kindId(), pictureSize(), devicePixelRatioF())));
}

void PalettePanel::showWaitingKind(const QString &kindId)
{
    m_waitingKind = kindId;
    const QVector<PaletteButton *> all = m_buttons + m_recentButtons;
    for (PaletteButton *button : all)
        button->setChecked(button->kindId() == kindId);
}

void PalettePanel::startSearch()
{
    m_search->setFocus();
    m_search->selectAll();
}

PaletteButton *PalettePanel::firstHit() const
{
    return m_found.value(0);
}

void PalettePanel::filter(const QString &words)
{
    const QString searched = words.trimmed();
    m_found.clear();
    std::copy_if(m_buttons.begin(), m_buttons.end(), std::back_inserter(m_found),
                 [&](const PaletteButton *button) { return button->isFoundBy(searched); });
    std::stable_sort(m_found.begin(), m_found.end(), [&](const PaletteButton *one, const PaletteButton *other) {
        return nameRank(one->text(), searched) < nameRank(other->text(), searched);
    });
    showFound();
    if (m_recentFlow)
        m_recentFlow->setVisible(searched.isEmpty());
    m_nothing->setText(m_workspace->text("IDS_BOARD_NO_SUCH_SHAPE").arg(searched));
    m_nothing->parentWidget()->setVisible(!m_buttons.isEmpty() && !firstHit());
}

/// Groups with better hits stand above the others.
void PalettePanel::showFound()
{
    QVector<ButtonFlow *> flows = m_flows;
    const auto bestOf = [this](const ButtonFlow *flow) {
        return std::find_if(m_found.begin(), m_found.end(),
                            [flow](const PaletteButton *button) { return button->parentWidget() == flow; });
    };
    if (!m_search->text().trimmed().isEmpty())
        std::stable_sort(flows.begin(), flows.end(), [&](const ButtonFlow *one, const ButtonFlow *other) {
            return bestOf(one) < bestOf(other);
        });
    auto *column = static_cast<QVBoxLayout *>(m_scroll->widget()->layout());
    for (ButtonFlow *flow : qAsConst(flows)) {
        QVector<QWidget *> shown;
        std::copy_if(m_found.begin(), m_found.end(), std::back_inserter(shown),
                     [flow](const PaletteButton *button) { return button->parentWidget() == flow; });
        flow->showOnly(shown);
        column->removeWidget(flow);
        // Above the stretch at the end.
        column->insertWidget(column->count() - 1, flow);
    }
}

/// The return key draws the first shape that was found; with Ctrl it puts it in the middle.
bool PalettePanel::eventFilter(QObject *watched, QEvent *event)
{
    if (watched != m_search || event->type() != QEvent::KeyPress)
        return QWidget::eventFilter(watched, event);
    const auto *key = static_cast<QKeyEvent *>(event);
    const PaletteButton *hit = firstHit();
    if ((key->key() != Qt::Key_Return && key->key() != Qt::Key_Enter) || !hit)
        return false;
    if (key->modifiers() & Qt::ControlModifier)
        Q_EMIT placeRequested(hit->kindId());
    else
        Q_EMIT kindPicked(hit->kindId());
    return true;
}

void PalettePanel::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::PaletteChange)
        paintPictures();
}

} // namespace board

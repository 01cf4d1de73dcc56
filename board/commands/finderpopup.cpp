#include "commands/finderpopup.h"

#include "core/commands.h"
#include "core/workspace.h"
#include "look/surface.h"
#include "look/surfaceoutline.h"
#include "look/surfaceshadow.h"
#include "look/theme.h"
#include "objects/objectpictures.h"

#include <QtGui/QKeyEvent>
#include <QtGui/QPainter>
#include <QtWidgets/QAction>
#include <QtWidgets/QApplication>
#include <QtWidgets/QHeaderView>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QTreeWidget>
#include <QtWidgets/QVBoxLayout>

namespace board {

namespace {

constexpr QSize popupSize(480, 360);
constexpr int distanceFromTop = 56;
constexpr QSize pictureSize(20, 20);
constexpr int rowHeight = 28;
/// More than the popup shows at once; words narrow a longer list faster than scrolling.
constexpr int mostRows = 60;

bool choosesFromTheList(int key)
{
    return key == Qt::Key_Up || key == Qt::Key_Down || key == Qt::Key_PageUp || key == Qt::Key_PageDown;
}

} // namespace

FinderPopup::FinderPopup(const Workspace *workspace, Commands *commands, QWidget *window)
    : QFrame(window, Qt::Popup)
    , m_workspace(workspace)
    , m_commands(commands)
    , m_field(new QLineEdit(this))
    , m_list(new QTreeWidget(this))
    , m_nothing(new QLabel(this))
{
    m_field->setPlaceholderText(workspace->text("IDS_BOARD_FIND_COMMAND"));
    m_field->setAccessibleName(m_field->placeholderText());
    m_field->setClearButtonEnabled(true);
    m_field->installEventFilter(this);
    m_list->setColumnCount(3);
    m_list->setHeaderHidden(true);
    m_list->setRootIsDecorated(false);
    m_list->setUniformRowHeights(true);
    m_list->setIconSize(pictureSize);
    m_list->setFocusPolicy(Qt::NoFocus);
    m_list->header()->setSectionResizeMode(QHeaderView::ResizeToContents);
    m_list->header()->setSectionResizeMode(0, QHeaderView::Stretch);
    m_list->header()->setStretchLastSection(false);
    m_nothing->setForegroundRole(QPalette::PlaceholderText);
    m_nothing->setWordWrap(true);
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(mediumGap, mediumGap, mediumGap, mediumGap);
    column->addWidget(m_field);
    column->addWidget(m_nothing);
    column->addWidget(m_list, 1);
    connect(m_field, &QLineEdit::textChanged, this, &FinderPopup::showFound);
    connect(m_field, &QLineEdit::returnPressed, this, &FinderPopup::run);
    connect(m_list, &QTreeWidget::itemClicked, this, &FinderPopup::run);
}

void FinderPopup::open()
{
    m_all = findables(*m_workspace, *m_commands);
    m_field->clear();
    showFound();
    const QWidget *window = parentWidget();
    resize(popupSize.boundedTo(window->size()));
    move(window->mapToGlobal(QPoint((window->width() - width()) / 2, distanceFromTop)));
    new SurfaceShadow(this, parentWidget());
    show();
    m_field->setFocus();
}

void FinderPopup::showFound()
{
    m_found = findMatches(m_all, m_field->text()).mid(0, mostRows);
    m_list->clear();
    for (const Findable &findable : qAsConst(m_found))
        addRow(findable);
    m_list->setCurrentItem(m_list->topLevelItem(0));
    m_nothing->setText(m_workspace->text("IDS_BOARD_NOTHING_FOUND").arg(m_field->text()));
    m_nothing->setVisible(m_found.isEmpty());
}

void FinderPopup::addRow(const Findable &findable)
{
    auto *row = new QTreeWidgetItem(m_list, {findable.name, findable.group});
    row->setSizeHint(0, QSize(0, rowHeight));
    row->setForeground(1, palette().placeholderText());
    if (!findable.command) {
        row->setIcon(0, pictureOfKind(m_workspace->registry(), findable.kindId, pictureSize, devicePixelRatioF()));
        row->setDisabled(m_commands->isEditingBlocked());
        return;
    }
    const QAction *action = m_commands->action(*findable.command);
    row->setIcon(0, action->icon());
    row->setText(2, action->shortcut().toString(QKeySequence::NativeText));
    row->setDisabled(!action->isEnabled());
}

void FinderPopup::run()
{
    // A command that is off is never the current one.
    const int index = m_list->indexOfTopLevelItem(m_list->currentItem());
    if (index < 0)
        return;
    const Findable chosen = m_found.at(index);
    // First, so that the window has the focus again.
    close();
    if (chosen.command)
        m_commands->action(*chosen.command)->trigger();
    else
        Q_EMIT kindChosen(chosen.kindId);
}

void FinderPopup::resizeEvent(QResizeEvent *event)
{
    QFrame::resizeEvent(event);
    setMask(surfaceRegion(rect()));
}

void FinderPopup::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    paintSurface(&painter, *this);
}

bool FinderPopup::eventFilter(QObject *, QEvent *event)
{
    if (event->type() != QEvent::KeyPress || !choosesFromTheList(static_cast<QKeyEvent *>(event)->key()))
        return false;
    QCoreApplication::sendEvent(m_list, event);
    return true;
}

} // namespace board

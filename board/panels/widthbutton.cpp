#include "panels/widthbutton.h"

#include "core/workspace.h"
#include "look/icons.h"

#include <QtWidgets/QActionGroup>
#include <QtWidgets/QMenu>

namespace board {

namespace {

constexpr int widths[] = {1, 2, 3, 4, 6, 8, 12, 16};

} // namespace

WidthButton::WidthButton(const Workspace *workspace, QWidget *parent)
    : QToolButton(parent)
{
    setIcon(board::icon(Icon::LineWidth));
    setToolTip(workspace->text("IDS_BOARD_PEN_WIDTH"));
    setAccessibleName(toolTip());
    setPopupMode(InstantPopup);
    setMenu(new QMenu(this));
    auto *group = new QActionGroup(this);
    for (const int width : widths) {
        QAction *action = menu()->addAction(QStringLiteral("%1 px").arg(width), this,
                                            [this, width] { Q_EMIT widthPicked(width); });
        action->setCheckable(true);
        action->setData(width);
        group->addAction(action);
    }
}

void WidthButton::showWidth(int width, int largest)
{
    const QList<QAction *> actions = menu()->actions();
    for (QAction *action : actions) {
        const int offered = action->data().toInt();
        action->setVisible(offered <= largest);
        action->actionGroup()->setExclusive(false);
        action->setChecked(offered == width);
        action->actionGroup()->setExclusive(true);
    }
}

} // namespace board

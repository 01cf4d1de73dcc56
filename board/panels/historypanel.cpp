#include "panels/historypanel.h"

#include "core/workspace.h"
#include "look/theme.h"

#include <framework/cundoredo.h>

#include <QtWidgets/QLabel>
#include <QtWidgets/QUndoStack>
#include <QtWidgets/QUndoView>
#include <QtWidgets/QVBoxLayout>

namespace board {

HistoryPanel::HistoryPanel(const Workspace *workspace, QWidget *parent)
    : QWidget(parent)
    , m_view(new QUndoView(CUndoRedo::GetInstance()->stack(), this))
{
    m_view->setItemDelegate(new pagehost::LocalizedDelegate(&workspace->localizer(), m_view));
    m_view->setEmptyLabel(workspace->text("IDS_BOARD_HISTORY_START"));
    m_view->setAccessibleName(workspace->text("IDS_BOARD_HISTORY"));
    m_view->setFocusPolicy(Qt::TabFocus);
    auto *nothing = new QLabel(workspace->text("IDS_BOARD_HISTORY_EMPTY"), this);
    nothing->setForegroundRole(QPalette::PlaceholderText);
    nothing->setWordWrap(true);
    nothing->setContentsMargins(mediumGap, mediumGap, mediumGap, mediumGap);
    const QUndoStack *stack = m_view->stack();
    const auto show = [this, nothing, stack] {
        nothing->setVisible(stack->count() == 0);
        m_view->setVisible(stack->count() > 0);
    };
    connect(stack, &QUndoStack::indexChanged, this, show);
    show();
    auto *column = new QVBoxLayout(this);
    column->addWidget(nothing, 0, Qt::AlignTop);
    column->setContentsMargins(mediumGap, 0, mediumGap, mediumGap);
    column->addWidget(m_view);
}

} // namespace board

#include "presenting/presentingbar.h"

#include "core/commands.h"
#include "core/workspace.h"
#include "look/icons.h"
#include "look/theme.h"
#include "page/pageview.h"
#include "presenting/curtain.h"
#include "presenting/stage.h"

#include <pagehost/page.h>

#include <QtWidgets/QAction>
#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QToolButton>

namespace board {

namespace {

/// Of the side of a button.
constexpr double iconPart = 0.55;

void addLine(QHBoxLayout *row)
{
    auto *line = new QWidget(row->parentWidget());
    line->setFixedWidth(1);
    QPalette colors = line->palette();
    colors.setColor(QPalette::Window, themeColors().border);
    line->setPalette(colors);
    line->setAutoFillBackground(true);
    row->addSpacing(smallGap);
    row->addWidget(line);
    row->addSpacing(smallGap);
}

} // namespace

PresentingBar::PresentingBar(const Workspace *workspace, const Commands &commands, Stage *stage, QHBoxLayout *row,
                             int buttonSide)
    : QObject(row->parentWidget())
    , m_stage(stage)
    , m_pageNumber(new QLabel(row->parentWidget()))
{
    const auto add = [&](Command command) { addButton(row, commands.action(command)); };
    add(Command::PreviousPage);
    m_pageNumber->setAlignment(Qt::AlignCenter);
    row->addWidget(m_pageNumber);
    add(Command::NextPage);
    addLine(row);
    for (const Command command :
         {Command::SelectTool, Command::PenTool, Command::HighlighterTool, Command::EraserTool, Command::LaserTool})
        add(command);
    addLine(row);
    auto *curtain = new QAction(icon(Icon::Curtain), workspace->text("IDS_BOARD_CURTAIN"), this);
    curtain->setToolTip(QStringLiteral("%1 (B)").arg(curtain->text()));
    curtain->setCheckable(true);
    connect(curtain, &QAction::triggered, stage->curtain(), &Curtain::setDrawn);
    connect(stage->curtain(), &Curtain::changed, curtain,
            [=] { curtain->setChecked(stage->curtain()->isDrawn()); });
    addButton(row, curtain);
    auto *end = new QAction(icon(Icon::EndPresenting), workspace->text("IDS_BOARD_END_PRESENTING"), this);
    end->setToolTip(QStringLiteral("%1 (Esc)").arg(end->text()));
    connect(end, &QAction::triggered, stage, &Stage::endRequested);
    addButton(row, end);
    setButtonSide(buttonSide);
    connect(stage->view(), &PageView::pageShown, this, &PresentingBar::showPage);
    showPage();
}

void PresentingBar::addButton(QHBoxLayout *row, QAction *action)
{
    auto *button = new QToolButton(row->parentWidget());
    button->setDefaultAction(action);
    button->setAutoRaise(true);
    button->setAccessibleName(action->text());
    // The page keeps the keys.
    button->setFocusPolicy(Qt::TabFocus);
    // A tool that nobody offers has no button.
    button->setVisible(action->isVisible());
    row->addWidget(button);
    m_buttons.append(button);
}

void PresentingBar::setButtonSide(int side)
{
    const int iconSide = qRound(side * iconPart);
    for (QToolButton *button : qAsConst(m_buttons)) {
        button->setFixedSize(side, side);
        button->setIconSize({iconSide, iconSide});
    }
    m_pageNumber->setMinimumWidth(2 * side);
}

void PresentingBar::showPage()
{
    const pagehost::Page *page = m_stage->view()->page();
    const pagehost::Document *document = page ? page->document() : nullptr;
    m_pageNumber->setText(
        document ? QStringLiteral("%1 / %2").arg(document->indexOf(page) + 1).arg(document->pageCount())
                 : QString());
}

} // namespace board

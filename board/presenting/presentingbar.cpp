#include "presenting/presentingbar.h"

#include "core/commandlist.h"
#include "core/commands.h"
#include "core/workspace.h"
#include "look/dockbutton.h"
#include "look/theme.h"
#include "page/pageview.h"
#include "presenting/curtain.h"
#include "presenting/stage.h"

#include <pagehost/page.h>

#include <QtWidgets/QAction>
#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QLabel>

namespace board {

namespace {

/// Of the side of a button.
constexpr double linePart = 0.64;
/// Of the side of a button, the width of the page number at least.
constexpr double numberPart = 1.5;
constexpr int numberPixels = 15;

} // namespace

PresentingBar::PresentingBar(const Workspace *workspace, const Commands &commands, Stage *stage, QHBoxLayout *row,
                             const ButtonSizes &sizes)
    : QObject(row->parentWidget())
    , m_stage(stage)
    , m_row(row)
    , m_sizes(sizes)
    , m_pageNumber(new QLabel(row->parentWidget()))
{
    const auto add = [&](Command command) {
        addButton(commands.action(command), factsOf(command).icon.value_or(Icon::More));
    };
    add(Command::PreviousPage);
    m_pageNumber->setAlignment(Qt::AlignCenter);
    QFont font = m_pageNumber->font();
    font.setPixelSize(numberPixels);
    font.setBold(true);
    m_pageNumber->setFont(font);
    row->addWidget(m_pageNumber);
    add(Command::NextPage);
    addLine();
    for (const Command command :
         {Command::SelectTool, Command::PenTool, Command::HighlighterTool, Command::EraserTool, Command::LaserTool})
        add(command);
    addLine();
    addCurtain(workspace);
    addButton(stage->fit(), Icon::ZoomFit);
    m_pageNumber->setMinimumWidth(qRound(sizes.button * numberPart));
    connect(stage->view(), &PageView::pageShown, this, &PresentingBar::showPage);
    showPage();
}

void PresentingBar::addCurtain(const Workspace *workspace)
{
    const Curtain *curtain = m_stage->curtain();
    auto *action = new QAction(workspace->text("IDS_BOARD_CURTAIN"), this);
    action->setToolTip(QStringLiteral("%1 (B)").arg(action->text()));
    action->setCheckable(true);
    connect(action, &QAction::triggered, curtain, &Curtain::setDrawn);
    connect(curtain, &Curtain::changed, action, [=] { action->setChecked(curtain->isDrawn()); });
    addButton(action, Icon::Curtain)->setSwitch(true);
}

void PresentingBar::addEnd(const Workspace *workspace)
{
    auto *end = new QAction(workspace->text("IDS_BOARD_END_PRESENTING"), this);
    end->setToolTip(QStringLiteral("%1 (Esc)").arg(end->text()));
    connect(end, &QAction::triggered, m_stage, &Stage::endRequested);
    addLine();
    addButton(end, Icon::EndPresenting);
}

DockButton *PresentingBar::addButton(QAction *action, Icon picture)
{
    auto *button = new DockButton(m_row->parentWidget());
    button->setDefaultAction(action);
    button->setPicture(picture);
    button->setFixedSize(m_sizes.button, m_sizes.button);
    button->setPictureSide(m_sizes.picture);
    button->setAccessibleName(action->text());
    // A tool that nobody offers has no button.
    button->setVisible(action->isVisible());
    m_row->addWidget(button);
    m_buttons.append(button);
    return button;
}

void PresentingBar::addLine()
{
    auto *line = new QWidget(m_row->parentWidget());
    line->setFixedSize(1, qRound(m_sizes.button * linePart));
    line->setAutoFillBackground(true);
    line->setBackgroundRole(QPalette::Mid);
    m_row->addSpacing(smallGap);
    m_row->addWidget(line);
    m_row->addSpacing(smallGap);
    m_lines.append(line);
}

void PresentingBar::setButtonSizes(const ButtonSizes &sizes)
{
    m_sizes = sizes;
    for (DockButton *button : qAsConst(m_buttons)) {
        button->setFixedSize(sizes.button, sizes.button);
        button->setPictureSide(sizes.picture);
    }
    for (QWidget *line : qAsConst(m_lines))
        line->setFixedHeight(qRound(sizes.button * linePart));
    m_pageNumber->setMinimumWidth(qRound(sizes.button * numberPart));
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

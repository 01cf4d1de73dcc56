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
    , m_pageNumber(new QLabel(row->parentWidget()))
{
    const auto add = [&](Command command) {
        addButton(row, commands.action(command), factsOf(command).icon.value_or(Icon::More));
    };
    add(Command::PreviousPage);
    m_pageNumber->setAlignment(Qt::AlignCenter);
    QFont font = m_pageNumber->font();
    font.setPixelSize(numberPixels);
    font.setBold(true);
    m_pageNumber->setFont(font);
    row->addWidget(m_pageNumber);
    add(Command::NextPage);
    addLine(row);
    for (const Command command :
         {Command::SelectTool, Command::PenTool, Command::HighlighterTool, Command::EraserTool, Command::LaserTool})
        add(command);
    addLine(row);
    auto *curtain = new QAction(workspace->text("IDS_BOARD_CURTAIN"), this);
    curtain->setToolTip(QStringLiteral("%1 (B)").arg(curtain->text()));
    curtain->setCheckable(true);
    connect(curtain, &QAction::triggered, stage->curtain(), &Curtain::setDrawn);
    connect(stage->curtain(), &Curtain::changed, curtain,
            [=] { curtain->setChecked(stage->curtain()->isDrawn()); });
    addButton(row, curtain, Icon::Curtain);
    auto *end = new QAction(workspace->text("IDS_BOARD_END_PRESENTING"), this);
    end->setToolTip(QStringLiteral("%1 (Esc)").arg(end->text()));
    connect(end, &QAction::triggered, stage, &Stage::endRequested);
    addLine(row);
    addButton(row, end, Icon::EndPresenting);
    setButtonSizes(sizes);
    connect(stage->view(), &PageView::pageShown, this, &PresentingBar::showPage);
    showPage();
}

void PresentingBar::addButton(QHBoxLayout *row, QAction *action, Icon picture)
{
    auto *button = new DockButton(row->parentWidget());
    button->setDefaultAction(action);
    button->setPicture(picture);
    button->setAccessibleName(action->text());
    // A tool that nobody offers has no button.
    button->setVisible(action->isVisible());
    row->addWidget(button);
    m_buttons.append(button);
}

void PresentingBar::addLine(QHBoxLayout *row)
{
    auto *line = new QWidget(row->parentWidget());
    line->setFixedWidth(1);
    line->setAutoFillBackground(true);
    line->setBackgroundRole(QPalette::Mid);
    row->addSpacing(smallGap);
    row->addWidget(line);
    row->addSpacing(smallGap);
    m_lines.append(line);
}

void PresentingBar::setButtonSizes(const ButtonSizes &sizes)
{
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

#include "core/paperactions.h"

#include "core/commands.h"
#include "page/pageview.h"

#include <pagehost/commands.h>
#include <pagehost/page.h>

#include <QtGui/QIcon>
#include <QtGui/QPainter>
#include <QtWidgets/QAction>

namespace board {

namespace {

using pagehost::Paper;

struct PaperCommand
{
    Command command;
    Paper paper;
    /// The part of a page that the picture shows: its corner (scene units) and pixels per scene unit.
    double left;
    double top;
    double scale;
};
constexpr PaperCommand paperCommands[] = {
    {Command::BlankPaper, Paper::Blank, 0, 0, 1},         {Command::RuledPaper, Paper::Ruled, 0, 60, 0.25},
    {Command::SquaredPaper, Paper::Squared, 16, 16, 0.3}, {Command::DottedPaper, Paper::Dotted, 16, 16, 0.3},
    {Command::MusicPaper, Paper::Music, 40, 50, 0.6},     {Command::MillimetrePaper, Paper::Millimetre, 16, 16, 1}};

constexpr QSize iconSize(40, 40);
constexpr double iconLineWidth = 1.5;
/// Larger than the part that any picture shows.
constexpr QSizeF samplePage(400, 400);

QIcon iconOf(const PaperCommand &row)
{
    QPixmap picture(iconSize);
    picture.fill(Qt::white);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.scale(row.scale, row.scale);
    painter.translate(-row.left, -row.top);
    const QVector<pagehost::PaperLines> all = pagehost::paperLines(row.paper, samplePage, Qt::white);
    for (const pagehost::PaperLines &lines : all) {
        painter.setPen(
            QPen(lines.color.darker(), lines.width * iconLineWidth / row.scale, Qt::SolidLine, Qt::RoundCap));
        painter.drawLines(lines.lines);
    }
    painter.resetTransform();
    painter.setPen(Qt::gray);
    painter.drawRect(picture.rect().adjusted(0, 0, -1, -1));
    return QIcon(picture);
}

} // namespace

PaperActions::PaperActions(Commands *commands, PageView *view, QObject *parent)
    : QObject(parent)
    , m_commands(commands)
    , m_view(view)
{
    for (const PaperCommand &row : paperCommands) {
        QAction *action = commands->perform(row.command, this, [this, paper = row.paper] { choose(paper); });
        action->setIcon(iconOf(row));
    }
    connect(view, &PageView::pageShown, this, &PaperActions::followPage);
    followPage();
}

void PaperActions::choose(Paper paper)
{
    if (pagehost::Page *page = m_view->page()) {
        CPageBgProp background = page->background();
        pagehost::setPaper(background, paper);
        pagehost::setPageBackground(page, background);
    }
    showPaper();
}

void PaperActions::followPage()
{
    disconnect(m_connection);
    if (m_view->page())
        m_connection = connect(m_view->page(), &pagehost::Page::backgroundChanged, this, &PaperActions::showPaper);
    showPaper();
}

/// A background of another kind is no paper.
void PaperActions::showPaper()
{
    const pagehost::Page *page = m_view->page();
    for (const PaperCommand &row : paperCommands) {
        const bool isPlain = page && page->background().fillType() == CPageBgProp::SolidFill;
        const bool isShown =
            page && pagehost::paperOf(page->background()) == row.paper && (row.paper != Paper::Blank || isPlain);
        m_commands->action(row.command)->setChecked(isShown);
    }
}

} // namespace board

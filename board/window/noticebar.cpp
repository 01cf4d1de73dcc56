#include "window/noticebar.h"

#include "application/pluginfolders.h"
#include "application/workspace.h"
#include "look/icons.h"
#include "look/theme.h"

#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QToolButton>

namespace board {

namespace {

constexpr int shownProblems = 3;

} // namespace

NoticeBar::NoticeBar(const Workspace *workspace, QWidget *parent)
    : QFrame(parent)
{
    const QVector<pagehost::PluginReport> problems = workspace->pluginProblems();
    setVisible(!problems.isEmpty());
    QStringList lines;
    QStringList allLines;
    for (const pagehost::PluginReport &report : problems)
        allLines.append(pluginProblemText(report));
    lines = allLines.mid(0, shownProblems);
    if (allLines.size() > shownProblems)
        lines.append(workspace->text("IDS_BOARD_MORE_PROBLEMS").arg(allLines.size() - shownProblems));

    auto *sign = new QLabel(this);
    sign->setPixmap(icon(Icon::Info).pixmap(20, 20));
    auto *text = new QLabel(lines.join(QLatin1Char('\n')), this);
    text->setTextFormat(Qt::PlainText);
    text->setWordWrap(true);
    text->setTextInteractionFlags(Qt::TextSelectableByMouse);
    text->setToolTip(allLines.join(QLatin1Char('\n')));
    text->setAccessibleName(workspace->text("IDS_BOARD_PLUGIN_PROBLEMS"));
    auto *close = new QToolButton(this);
    close->setText(workspace->text("IDS_BOARD_CLOSE"));
    connect(close, &QToolButton::clicked, this, &QWidget::hide);
    auto *row = new QHBoxLayout(this);
    row->setContentsMargins(largeGap, mediumGap, largeGap, mediumGap);
    row->addWidget(sign);
    row->addWidget(text, 1);
    row->addWidget(close);
    setAutoFillBackground(true);
    setBackgroundRole(QPalette::AlternateBase);
}

} // namespace board

#include "window/pencolors.h"

#include "core/toolchoice.h"
#include "core/workspace.h"
#include "look/sizes.h"
#include "look/theme.h"
#include "tools/toolsettings.h"
#include "window/shelfbutton.h"

#include <QtWidgets/QHBoxLayout>

namespace board {

PenColors::PenColors(const Workspace &workspace, ToolChoice *tools, ToolSettings *settings, QWidget *parent)
    : QWidget(parent)
    , m_tools(tools)
    , m_settings(settings)
{
    auto *row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(smallGap);
    addColors(workspace);
    connect(tools, &ToolChoice::changed, this, &PenColors::showChoice);
    connect(settings, &ToolSettings::changed, this, &PenColors::showChoice);
    showChoice();
}

void PenColors::addColors(const Workspace &workspace)
{
    const QVector<QColor> colors = m_settings->colors(Tool::Pen);
    for (const QColor &color : colors) {
        auto *button = new ShelfButton(color, workspace.text(ToolSettings::colorKey(color)), this);
        followSizes(button, [button] { button->setSide(sizes().barButton); });
        connect(button, &QToolButton::clicked, this, [this, color] {
            m_settings->setColor(Tool::Pen, color);
            m_tools->choose(Tool::Pen);
            showChoice();
        });
        layout()->addWidget(button);
    }
}

void PenColors::showChoice()
{
    const bool isPen = m_tools->tool() == Tool::Pen;
    const QVector<QColor> colors = m_settings->colors(Tool::Pen);
    for (int i = 0; i < colors.size(); ++i) {
        auto *button = static_cast<ShelfButton *>(layout()->itemAt(i)->widget());
        button->setChecked(isPen && colors.at(i) == m_settings->color(Tool::Pen));
    }
}

} // namespace board

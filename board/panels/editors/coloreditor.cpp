#include "panels/editors/coloreditor.h"

#include "panels/colorbutton.h"

#include <QtWidgets/QHBoxLayout>

namespace board {

ColorEditor::ColorEditor(const Workspace *workspace, QWidget *parent)
    : ValueEditor(parent)
    , m_button(new ColorButton(workspace, {}, this))
{
    auto *row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->addStretch();
    row->addWidget(m_button);
    connect(m_button, &ColorButton::colorPicked, this, [this](const QColor &color) { Q_EMIT picked(color); });
}

void ColorEditor::showValue(const QVariant &value)
{
    m_button->setColor(value.value<QColor>());
}

void ColorEditor::showMixed()
{
    m_button->setMixed();
}

void ColorEditor::setName(const QString &name)
{
    m_button->setAccessibleName(name);
    m_button->setToolTip(name);
}

} // namespace board

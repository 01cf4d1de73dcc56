#include "panels/editors/commandeditor.h"

#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QPushButton>

namespace board {

CommandEditor::CommandEditor(const QString &command, QWidget *parent)
    : ValueEditor(parent)
    , m_button(new QPushButton(this))
{
    auto *row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->addWidget(m_button);
    connect(m_button, &QPushButton::clicked, this, [this, command] { Q_EMIT picked(command); });
}

void CommandEditor::setName(const QString &name)
{
    QString text = name;
    m_button->setText(text.replace(QLatin1Char('&'), QStringLiteral("&&")));
    m_button->setAccessibleName(name);
}

} // namespace board

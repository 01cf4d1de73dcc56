#include "panels/editors/texteditor.h"

#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QLineEdit>

namespace board {

TextEditor::TextEditor(QWidget *parent)
    : ValueEditor(parent)
    , m_line(new QLineEdit(this))
{
    auto *row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->addWidget(m_line);
    connect(m_line, &QLineEdit::editingFinished, this, &TextEditor::finish);
}

void TextEditor::finish()
{
    // Leaving the field without a change is no answer.
    if (!m_line->isModified())
        return;
    m_line->setModified(false);
    Q_EMIT picked(m_line->text());
}

void TextEditor::showValue(const QVariant &value)
{
    if (m_line->isModified())
        return;
    m_line->setPlaceholderText({});
    if (m_line->text() != value.toString())
        m_line->setText(value.toString());
}

void TextEditor::showMixed()
{
    if (m_line->isModified())
        return;
    m_line->clear();
    m_line->setPlaceholderText(QStringLiteral("—"));
}

void TextEditor::setName(const QString &name)
{
    m_line->setAccessibleName(name);
    m_line->setToolTip(name);
}

} // namespace board

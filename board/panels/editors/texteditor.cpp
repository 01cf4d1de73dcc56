#include "panels/editors/texteditor.h"

#include "look/theme.h"

#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QVBoxLayout>

namespace board {

TextEditor::TextEditor(QWidget *parent)
    : ValueEditor(parent)
    , m_line(new QLineEdit(this))
    , m_note(new QLabel(this))
{
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(smallGap);
    column->addWidget(m_line);
    column->addWidget(m_note);
    m_note->setTextFormat(Qt::PlainText);
    m_note->setWordWrap(true);
    QPalette colors = m_note->palette();
    colors.setColor(QPalette::WindowText, themeColors().bad);
    m_note->setPalette(colors);
    m_note->hide();
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

void TextEditor::showNote(const QString &note)
{
    m_note->setText(note);
    m_note->setVisible(!note.isEmpty());
    m_line->setAccessibleDescription(note);
}

void TextEditor::setName(const QString &name)
{
    m_line->setAccessibleName(name);
    m_line->setToolTip(name);
}

} // namespace board

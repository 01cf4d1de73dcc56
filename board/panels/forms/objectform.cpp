#include "panels/forms/objectform.h"

#include "look/theme.h"
#include "panels/editors/valueeditor.h"
#include "panels/fields/captionedrow.h"

#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QVBoxLayout>

namespace board {

namespace {

QWidget *makeCompactRow(const QString &caption, QWidget *editor)
{
    auto *part = new QWidget;
    auto *row = new QHBoxLayout(part);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(mediumGap);
    auto *label = new QLabel(caption, part);
    label->setForegroundRole(QPalette::PlaceholderText);
    row->addWidget(label);
    row->addWidget(editor);
    return part;
}

} // namespace

ObjectForm::ObjectForm(QWidget *parent)
    : QWidget(parent)
    , m_column(new QVBoxLayout(this))
{
    m_column->setContentsMargins(0, 0, 0, 0);
}

void ObjectForm::showRows(const QVector<FormRow> &rows)
{
    QStringList structure;
    for (const FormRow &row : rows)
        structure.append(row.structure + QLatin1Char('\n') + row.caption);
    if (structure != m_structure || !m_content) {
        rebuild(rows);
        m_structure = structure;
    }
    for (int i = 0; i < rows.size(); ++i) {
        m_editors[i]->setEnabled(rows[i].isEnabled);
        m_editors[i]->showNote(rows[i].note);
        if (rows[i].isMixed)
            m_editors[i]->showMixed();
        else
            m_editors[i]->showValue(rows[i].value);
    }
}

void ObjectForm::rebuild(const QVector<FormRow> &rows)
{
    if (m_content) {
        // One of its editors may be telling its choice just now.
        m_content->hide();
        m_column->removeWidget(m_content);
        m_content->deleteLater();
    }
    m_editors.clear();
    m_content = new QWidget(this);
    auto *column = new QVBoxLayout(m_content);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(mediumGap);
    m_column->addWidget(m_content);
    for (const FormRow &row : rows)
        addRow(row);
    m_content->show();
}

QWidget *ObjectForm::makeRow(const QString &caption, ValueEditor *editor) const
{
    if (!editor->hasCaption())
        return editor;
    if (m_isCompact)
        return makeCompactRow(caption, editor);
    return new CaptionedRow(caption, editor);
}

void ObjectForm::addRow(const FormRow &row)
{
    ValueEditor *editor = row.makeEditor();
    editor->setName(row.caption);
    m_content->layout()->addWidget(makeRow(row.caption, editor));
    const int index = m_editors.size();
    m_editors.append(editor);
    connect(editor, &ValueEditor::previewed, this,
            [this, index](const QVariant &value) { Q_EMIT previewed(index, value); });
    connect(editor, &ValueEditor::abandoned, this, &ObjectForm::abandoned);
    connect(editor, &ValueEditor::picked, this,
            [this, index](const QVariant &value) { Q_EMIT picked(index, value); });
}

} // namespace board

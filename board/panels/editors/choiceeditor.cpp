#include "panels/editors/choiceeditor.h"

#include <QtWidgets/QComboBox>
#include <QtWidgets/QHBoxLayout>

namespace board {

namespace {

const QString mixedSign = QStringLiteral("—");

} // namespace

ChoiceEditor::ChoiceEditor(const QVector<ChoiceEntry> &entries, const QSize &iconSize, QWidget *parent)
    : ValueEditor(parent)
    , m_box(new QComboBox(this))
{
    for (const ChoiceEntry &entry : entries)
        m_box->addItem(entry.icon, entry.text);
    m_box->setIconSize(iconSize);
    // As wide as its longest entry where there is room, in narrow panels as wide as these are.
    m_box->setSizeAdjustPolicy(QComboBox::AdjustToContents);
    m_box->setMinimumContentsLength(1);
    m_box->setFocusPolicy(Qt::StrongFocus);
    auto *row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->addWidget(m_box);
    connect(m_box, QOverload<int>::of(&QComboBox::activated), this, &ChoiceEditor::picked);
}

void ChoiceEditor::showValue(const QVariant &value)
{
    m_box->setPlaceholderText({});
    m_box->setCurrentIndex(value.toInt());
}

void ChoiceEditor::showMixed()
{
    m_box->setPlaceholderText(mixedSign);
    m_box->setCurrentIndex(-1);
}

void ChoiceEditor::setName(const QString &name)
{
    m_box->setAccessibleName(name);
    m_box->setToolTip(name);
}

} // namespace board

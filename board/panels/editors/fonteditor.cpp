#include "panels/editors/fonteditor.h"

#include <QtWidgets/QComboBox>
#include <QtWidgets/QHBoxLayout>

namespace board {

namespace {

const QString mixedSign = QStringLiteral("—");

} // namespace

FontEditor::FontEditor(const QString &usualName, const QStringList &families, QWidget *parent)
    : ValueEditor(parent)
    , m_box(new QComboBox(this))
{
    m_box->addItem(usualName, QString());
    for (const QString &family : families)
        m_box->addItem(family, family);
    m_box->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    m_box->setMinimumContentsLength(1);
    m_box->setFocusPolicy(Qt::StrongFocus);
    auto *row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->addWidget(m_box, 1);
    connect(m_box, QOverload<int>::of(&QComboBox::activated), this,
            [this](int index) { Q_EMIT picked(m_box->itemData(index)); });
}

void FontEditor::showValue(const QVariant &value)
{
    m_box->setPlaceholderText({});
    if (m_box->findData(value.toString()) < 0)
        m_box->insertItem(1, value.toString(), value.toString());
    m_box->setCurrentIndex(m_box->findData(value.toString()));
}

void FontEditor::showMixed()
{
    m_box->setPlaceholderText(mixedSign);
    m_box->setCurrentIndex(-1);
}

void FontEditor::setName(const QString &name)
{
    m_box->setAccessibleName(name);
    m_box->setToolTip(name);
}

} // namespace board

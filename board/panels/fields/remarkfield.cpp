#include "panels/fields/remarkfield.h"

#include "look/theme.h"

#include <QtCore/QEvent>
#include <QtGui/QAccessible>
#include <QtWidgets/QLabel>

namespace board {

RemarkField::RemarkField(QWidget *parent)
    : QLineEdit(parent)
    , m_remark(new QLabel(this))
{
    m_remark->setAttribute(Qt::WA_TransparentForMouseEvents);
    m_remark->setTextFormat(Qt::PlainText);
    m_remark->setForegroundRole(QPalette::WindowText);
    m_remark->hide();
}

QString RemarkField::remark() const
{
    return m_remark->text();
}

void RemarkField::setRemark(const QString &remark, bool isFault)
{
    if (remark == m_remark->text() && isFault == m_isFault)
        return;
    m_isFault = isFault;
    m_remark->setText(remark);
    m_remark->setVisible(!remark.isEmpty());
    paintRemark();
    place();
    setAccessibleDescription(remark);
    QAccessibleEvent event(this, QAccessible::DescriptionChanged);
    QAccessible::updateAccessibility(&event);
}

void RemarkField::paintRemark()
{
    QPalette colors = m_remark->palette();
    colors.setColor(QPalette::WindowText, m_isFault ? themeColors().bad : themeColors().faint);
    m_remark->setPalette(colors);
}

/// Text that is typed ends before the remark.
void RemarkField::place()
{
    const int width = m_remark->text().isEmpty() ? 0 : m_remark->sizeHint().width() + mediumGap;
    setTextMargins(0, 0, width, 0);
    m_remark->setGeometry(this->width() - width, 0, width, height());
}

void RemarkField::resizeEvent(QResizeEvent *event)
{
    QLineEdit::resizeEvent(event);
    place();
}

void RemarkField::changeEvent(QEvent *event)
{
    QLineEdit::changeEvent(event);
    if (event->type() == QEvent::PaletteChange)
        paintRemark();
}

} // namespace board

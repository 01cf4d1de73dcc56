#include "panels/buttonflow.h"

#include "look/linestart.h"
#include "look/theme.h"

#include <QtWidgets/QGridLayout>
#include <QtWidgets/QLabel>

namespace board {

ButtonFlow::ButtonFlow(const QString &caption, QWidget *parent)
    : QWidget(parent)
    , m_grid(new QGridLayout)
{
    auto *label = new QLabel(caption, this);
    QFont bold = label->font();
    bold.setBold(true);
    label->setFont(bold);
    label->setAlignment(lineStart() | Qt::AlignVCenter);
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(smallGap);
    column->addWidget(label);
    column->addLayout(m_grid);
    m_grid->setSpacing(smallGap);
    m_grid->setAlignment(Qt::AlignLeft | Qt::AlignTop);
}

void ButtonFlow::addWidget(QWidget *widget)
{
    m_widgets.append(widget);
    m_shown.append(widget);
    m_columns = 0;
}

void ButtonFlow::showOnly(const QVector<QWidget *> &widgets)
{
    m_shown = widgets;
    for (QWidget *widget : qAsConst(m_widgets)) {
        m_grid->removeWidget(widget);
        widget->setVisible(widgets.contains(widget));
    }
    rearrange();
    setVisible(!widgets.isEmpty());
}

int ButtonFlow::widthOfColumns(int columns) const
{
    const int oneWidget = m_widgets.isEmpty() ? 0 : m_widgets.first()->sizeHint().width();
    return columns * (oneWidget + m_grid->spacing()) - m_grid->spacing();
}

QSize ButtonFlow::minimumSizeHint() const
{
    return {widthOfColumns(1), QWidget::minimumSizeHint().height()};
}

int ButtonFlow::columnCount() const
{
    if (m_widgets.isEmpty())
        return 1;
    const int step = m_widgets.first()->sizeHint().width() + m_grid->spacing();
    return qMax(1, (width() + m_grid->spacing()) / step);
}

void ButtonFlow::rearrange()
{
    m_columns = columnCount();
    for (int index = 0; index < m_shown.size(); ++index) {
        m_grid->removeWidget(m_shown[index]);
        m_grid->addWidget(m_shown[index], index / m_columns, index % m_columns);
    }
}

void ButtonFlow::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    if (columnCount() != m_columns)
        rearrange();
}

} // namespace board

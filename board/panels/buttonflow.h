#pragma once

#include <QtCore/QVector>
#include <QtWidgets/QWidget>

class QGridLayout;

namespace board {

/// A caption and, below it, widgets of one size in as many columns as there is room for.
class ButtonFlow : public QWidget
{
    Q_OBJECT

public:
    explicit ButtonFlow(const QString &caption, QWidget *parent = nullptr);

    void addWidget(QWidget *widget);
    /// Shows these of its widgets in their order and hides the others; without any, the whole flow.
    void showOnly(const QVector<QWidget *> &widgets);
    /// One button wide, however many stand in a row now: else the flow would never become narrower.
    QSize minimumSizeHint() const override;
    /// Room for so many of its widgets beside each other, logical pixels.
    int widthOfColumns(int columns) const;

protected:
    void resizeEvent(QResizeEvent *event) override;

private:
    int columnCount() const;
    void rearrange();

    QGridLayout *m_grid;
    QVector<QWidget *> m_widgets;
    QVector<QWidget *> m_shown;
    int m_columns = 0;
};

} // namespace board

#pragma once

#include <QtCore/QVector>
#include <QtWidgets/QWidget>

class QGridLayout;

namespace board {

/// A caption and, below it, widgets of one size in as many columns as there is room for. Hidden widgets leave no
/// gap.
class ButtonFlow : public QWidget
{
    Q_OBJECT

public:
    explicit ButtonFlow(const QString &caption, QWidget *parent = nullptr);

    void addWidget(QWidget *widget);
    /// One button wide, however many stand in a row now: else the flow would never become narrower.
    QSize minimumSizeHint() const override;
    /// Room for so many of its widgets beside each other, logical pixels.
    int widthOfColumns(int columns) const;
    /// Arranges the widgets anew after one was shown or hidden; the whole flow hides when none is shown.
    void rearrange();

protected:
    void resizeEvent(QResizeEvent *event) override;

private:
    int columnCount() const;

    QGridLayout *m_grid;
    QVector<QWidget *> m_widgets;
    int m_columns = 0;
};

} // namespace board

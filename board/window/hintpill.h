#pragma once

#include <QtWidgets/QLabel>

namespace board {

/// A hint at the foot or the head of the page: how the waiting tool is used, or what is shown.
class HintPill : public QLabel
{
    Q_OBJECT

public:
    /// Lies over `view`, which gets all presses on it.
    explicit HintPill(QWidget *view);

    /// Hides for an empty text. Stands at the top or the bottom edge of the view.
    void showHint(const QString &text, Qt::Edge edge = Qt::BottomEdge);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    void place();

    Qt::Edge m_edge = Qt::BottomEdge;
};

} // namespace board

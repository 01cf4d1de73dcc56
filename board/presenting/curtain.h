#pragma once

#include <QtCore/QRectF>
#include <QtWidgets/QWidget>

namespace board {

/// Covers a view. Its sides are dragged inwards to uncover a part; what is left of it stays opaque.
class Curtain : public QWidget
{
    Q_OBJECT

public:
    /// Lies over `covered` and follows its size, at first open.
    explicit Curtain(QWidget *covered);

    bool isDrawn() const { return !isHidden(); }
    /// Draws it over the whole view, or opens it.
    void setDrawn(bool drawn);
    /// The part that is covered, from 0 to 1 in both directions.
    QRectF part() const { return m_part; }
    void setPart(const QRectF &part);

Q_SIGNALS:
    /// It was drawn, opened or dragged.
    void changed();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void moveEvent(QMoveEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;

private:
    void layOut();
    Qt::Edges sidesAt(const QPoint &pos) const;

    QRectF m_part{0, 0, 1, 1};
    Qt::Edges m_dragged;
};

} // namespace board

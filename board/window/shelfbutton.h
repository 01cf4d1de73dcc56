#pragma once

#include <QtGui/QColor>
#include <QtWidgets/QToolButton>

namespace board {

/// A colour, or a width as a stroke, to choose from.
class ShelfButton : public QToolButton
{
    Q_OBJECT

public:
    ShelfButton(const QColor &color, const QString &name, QWidget *parent);
    /// `thickness` of the stroke that is shown, logical pixels.
    ShelfButton(double thickness, const QString &name, QWidget *parent);

    /// Logical pixels; at first 28. Its picture grows with it.
    void setSide(int side);
    /// Of a width: shows it in a colour.
    void setStroke(const QColor &color, double thickness);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    void describe(const QString &name);
    void paintColor(QPainter *painter) const;
    void paintStroke(QPainter *painter) const;

    QColor m_color;       ///< invalid for a width
    QColor m_strokeColor; ///< invalid for that of the letters
    double m_thickness = 0;
};

} // namespace board

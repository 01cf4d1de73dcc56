#pragma once

#include <QtGui/QColor>
#include <QtWidgets/QToolButton>

namespace board {

/// A colour, a width as a stroke, or a size of letters, to choose from.
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
    /// Of a width that is the size of letters: shows a letter so high, logical pixels of the usual side.
    void setLetter(int height);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    void describe(const QString &name);
    void paintColor(QPainter *painter) const;
    void paintChoice(QPainter *painter) const;
    void paintStroke(QPainter *painter, const QColor &usual) const;
    void paintLetter(QPainter *painter, const QColor &color) const;

    QColor m_color;       ///< invalid for a width
    QColor m_strokeColor; ///< invalid for that of the letters
    double m_thickness = 0;
    int m_letter = 0; ///< none for a stroke
};

} // namespace board

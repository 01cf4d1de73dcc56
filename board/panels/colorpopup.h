#pragma once

#include <QtGui/QColor>
#include <QtWidgets/QMenu>

class QSlider;
class QGridLayout;

namespace board {

class Workspace;

/// A small palette of colours with a slider for opacity and a way to any other colour.
class ColorPopup : public QMenu
{
    Q_OBJECT

public:
    ColorPopup(const Workspace *workspace, QWidget *parent);

    void setColor(const QColor &color);
    QColor color() const { return m_color; }

Q_SIGNALS:
    /// With the alpha of the slider.
    void colorPicked(const QColor &color);

private:
    QWidget *makeContent();
    void addSwatches(QGridLayout *grid);
    void pick(const QColor &opaqueColor);
    void pickOpacity(int percent);
    void openDialog();

    const Workspace *m_workspace;
    QColor m_color = Qt::black;
    QSlider *m_opacity = nullptr;
};

/// Fills `area` with `color`, over squares that show its transparency.
void paintSwatch(QPainter *painter, const QRectF &area, double radius, const QColor &color);

} // namespace board

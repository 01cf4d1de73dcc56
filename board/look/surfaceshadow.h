#pragma once

#include <QtWidgets/QWidget>

namespace board {

/// The shadow that a surface casts on what lies below it (paintSurfaceShadow()): a widget of the same window, so
/// that it needs no compositor. It follows the surface's place, order and visibility, and takes no mouse.
class SurfaceShadow : public QWidget
{
    Q_OBJECT

public:
    /// Of a part of the window, on its parent; or of a popup window, on the window that it belongs to, until it
    /// closes.
    SurfaceShadow(QWidget *surface, QWidget *below);

    /// A surface that has been made a part of the window casts none.
    void setCast(bool cast);
    /// 0 to 1, for surfaces that fade.
    void setStrength(double strength);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void moveEvent(QMoveEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    QRect surfaceRect() const;
    void follow();
    void followOrder();

    QWidget *m_surface;
    double m_strength = 1;
    bool m_isCast = true;
};

/// Gives all menus of the application their shadows, from now on.
void castShadowsOfMenus();

} // namespace board

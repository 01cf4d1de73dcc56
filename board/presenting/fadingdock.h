#pragma once

#include <QtCore/QTimer>
#include <QtCore/QVariantAnimation>
#include <QtWidgets/QWidget>

class QGraphicsOpacityEffect;
class QHBoxLayout;

namespace board {

class SurfaceShadow;

/// A small bar in the lower left corner of a widget. It fades when the pointer has been away for a while, and comes
/// back when the pointer moves near it or somebody presses there. With it, the pointer hides.
class FadingDock : public QWidget
{
    Q_OBJECT

public:
    /// Milliseconds.
    static constexpr int patience = 3000;
    /// How near the pointer must come, logical pixels.
    static constexpr int reach = 120;

    /// Lies over `under`, whose pointer it watches.
    explicit FadingDock(QWidget *under);

    QHBoxLayout *row() const { return m_row; }
    bool isShown() const { return m_isShown; }
    /// Comes back for a while.
    void appear();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void moveEvent(QMoveEvent *event) override;
    void enterEvent(QEvent *event) override;
    void leaveEvent(QEvent *event) override;

private:
    void layOut();
    void fade();
    void hidePointer(bool hidden);
    void setShown(bool shown);

    QWidget *m_under;
    QHBoxLayout *m_row;
    QGraphicsOpacityEffect *m_opacity;
    SurfaceShadow *m_shadow;
    QVariantAnimation m_fading;
    QTimer m_patience;
    QTimer m_pointerPatience;
    bool m_isShown = true;
    bool m_isPointerHidden = false;
};

} // namespace board

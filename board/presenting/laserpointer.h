#pragma once

#include "presenting/lasertrail.h"

#include <QtCore/QElapsedTimer>
#include <QtCore/QPointer>
#include <QtCore/QTimer>
#include <QtWidgets/QWidget>

#include <optional>

class QGraphicsView;

namespace board {

class ToolChoice;

/// The laser pointer over a view: while it is the tool in use, a red dot in place of the pointer, with a trail that
/// fades within a second. Presses do nothing then.
class LaserPointer : public QWidget
{
    Q_OBJECT

public:
    /// Covers the view's viewport. Out of use once `tools` are gone, which may be before the view is.
    LaserPointer(QGraphicsView *view, const ToolChoice *tools);

    /// Shows the dot at a place (scene coordinates), as a mirror of another view's does.
    void pointAt(const QPointF &scenePos);
    void leave();
    /// The trail as it is now.
    QVector<LaserTrail::Place> trail() { return m_trail.places(m_clock.elapsed()); }

Q_SIGNALS:
    /// Scene coordinates.
    void pointed(const QPointF &scenePos);
    void left();

protected:
    /// Watches the viewport.
    bool eventFilter(QObject *watched, QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void moveEvent(QMoveEvent *event) override;

private:
    bool isInUse() const;
    bool usePointer(QEvent *event);
    void followTool();
    void hidePointer();
    void step();

    QGraphicsView *m_view;
    QPointer<const ToolChoice> m_tools;
    LaserTrail m_trail;
    QElapsedTimer m_clock;
    QTimer m_frames;
    std::optional<QPointF> m_dot; ///< scene coordinates
};

} // namespace board

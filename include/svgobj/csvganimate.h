#pragma once

#include <svgobj/svgobj_global.h>

#include <QtCore/QObject>

class CSVGBase;
class QTimer;

/// Timer of an animated shape: repaints it 30 times a second while it runs.
class SVGOBJ_EXPORT CSVGAnimate : public QObject
{
    Q_OBJECT

public:
    /// Stopped. `shape` is not owned and must outlive the timer.
    CSVGAnimate(QObject *parent, CSVGBase *shape);
    ~CSVGAnimate() override;

    /// Starts the timer and paints one frame at once. The first start also starts the document's animation; a
    /// restart stops the document's animation and restarts only the timer.
    void startAnimate();
    /// Stops the timer; the document's own animation is left as it is.
    void stopAnimate();
    /// Whether the timer runs.
    bool isRunning() const { return m_running; }

Q_SIGNALS:
    /// For connections of the host; never emitted here.
    void repaintNeeded();

public Q_SLOTS:
    /// Paints one frame.
    void doAnimate();

private:
    CSVGBase *m_shape;
    QTimer *m_timer = nullptr;
    int m_frameRate = 30;
    bool m_running = false;
};

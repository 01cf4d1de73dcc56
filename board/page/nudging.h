#pragma once

#include <pagehost/geometrysnapshot.h>

#include <QtCore/QPointF>
#include <QtCore/QVector>

namespace pagehost {
class Page;
} // namespace pagehost

namespace board {

/// How far an arrow key moves, scene units: by the lines of the grid or a usual step, with Shift ten times as far,
/// with Alt by a pixel.
double keyStep(const pagehost::Page &page, Qt::KeyboardModifiers modifiers);

/// Moving the selection with the arrow keys. A key that is held down repeats; all of its repeats are one undo step.
class Nudging
{
public:
    ~Nudging() { finish(); }

    /// Moves the selected objects of `page` by `delta` (scene units), locked ones aside. False when there is none.
    bool move(pagehost::Page *page, const QPointF &delta);
    /// The key was let go: makes the undo step. Nothing when nothing was moved.
    void finish();

private:
    QVector<pagehost::GeometrySnapshot> m_before;
};

} // namespace board

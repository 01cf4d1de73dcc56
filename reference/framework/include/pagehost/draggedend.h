#pragma once

namespace pagehost {

/// Special properties, beside those of pagehost::SpecialProperty, of objects whose ends follow other objects
/// (FollowedObjects) and can be dragged from one to another.
enum DraggedEndProperty {
    /// Read only: the control points that are ends, in the order of FollowedObjects, as far as they can be dragged
    /// so: a
    /// qint32 count, then their numbers (qint32, from 1).
    FollowingEnds = 2915,
    /// Write only: a drag of one of these ends, in place of the object's own mouse handling: the phase (qint32,
    /// EndDragPhase), the number of the control point (qint32), where the end is dragged to (QPointF, scene
    /// coordinates),
    /// and the object that it follows there (quint32, 0 for none) at the place of that name (QString, empty for the
    /// outline). The object records the moves, and makes the undo step when the drag is finished. It refuses an
    /// object
    /// that it can't follow.
    DraggedEnd = 2916
};

/// Phases of such a drag.
enum EndDragPhase { BeginEndDrag, MoveEnd, FinishEndDrag, CancelEndDrag };

} // namespace pagehost

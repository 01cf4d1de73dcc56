#pragma once

namespace pagehost {

/// Special properties (CPSRootObject::GetSpecialProperty(), SetSpecialProperty()) that the host uses of any object.
/// They are not part of its state: never saved, recorded or undone. Plug-ins are built with these numbers: new ones
/// follow the last.
enum SpecialProperty {
    /// bool: whether the object plays its animation; off for a new object. While on, it reports every frame with
    /// AppearanceChanged; switched off, it stops where it is, and continues from there. Objects without animation
    /// lack the property.
    AnimationRuns = 2901,
    /// QRectF, item coordinates, read only: a box around everything that the object paints and can be hit at, with
    /// its editing aids while it is selected. Read when size, look or selection have changed. Without the property
    /// the host uses the region and a margin around the client rectangle.
    PaintedArea,
    /// QMap<QByteArray, QByteArray>, read only: the texts that the object is made of beside its saved data, such as
    /// the file that declares a shape, by the first 32 hexadecimal digits of their SHA-256. The object names each
    /// of these keys in its data. The host asks for them before it saves the object, and keeps them with the
    /// document.
    NeededTexts,
    /// The same, write only, of an object that nothing has been read into yet: the texts that its data name. The
    /// host tells every new object, if only of no text: an object that has been told leaves its texts to the host,
    /// any other one saves them itself.
    KnownTexts,
    /// bool: whether the object is made of the present version of the file that it comes from, which may have
    /// changed since. Setting it to true makes it so, as an undo step of its own; setting it to false does nothing.
    IsPresentVersion,
    /// QString, read only: what the drag of a part does at this moment, for the user to read ("Corner radius 12").
    /// Unknown while nothing is dragged, and to objects that have nothing to say.
    DragHint,
    /// Read only: the places where lines to other objects may end: a qint32 count, then for each its name
    /// (QString), the place (QPointF, item coordinates as they are seen) and the direction in which a line leaves
    /// it (double, degrees clockwise from the right; NaN for any).
    ConnectionPlaces,
    /// Read only: texts that users write on the page: a qint32 count, then for each its property (qint32), the text
    /// (QString), its box (QRectF, item coordinates as they are seen), the height of the font (double, item units),
    /// whether it is bold, whether it may have several lines (bool each), its colour (QColor), and its place in the
    /// box (qint32, Qt::Alignment).
    LabelPlaces,
    /// Write only: one of these texts while it is typed: its property (qint32) and the text (QString). Recorded
    /// where that is asked for, without an undo step: at the end the host puts the first text back in this way, and
    /// sets the property to the last one.
    LabelText,
    /// bool, read only: whether nothing of the object is to be seen, so that it leaves the page when the user has
    /// ended writing it. Objects without such texts lack the property.
    VanishesEmpty,
    /// Of an object that follows others, as a line does that connects two of them: a qint32 count, then for each
    /// end the number of the object that it follows (quint32, ToolPage::numberOf()), 0 for none. The object saves
    /// the numbers. The host writes others into a copy whose originals were copied along, and 0 where they were
    /// not.
    FollowedObjects,
    /// Write only: where those objects are, in the same order: a qint32 count, then for each whether it is on the
    /// page (bool), and if so its outline (QPainterPath) and its ConnectionPlaces, all in scene coordinates. The
    /// host writes it whenever one of them or the object itself has changed. The object follows unrecorded and
    /// without undo steps, and is the same whenever it is told the same.
    FollowedPlaces,
    /// QPainterPath, read only, item coordinates as they are seen: the outline where lines to other objects end.
    /// Without the property they end at the client rectangle.
    ConnectionOutline,
    /// Read only: the control points that users see on the selected object: a qint32 count, then for each its
    /// number (qint32, from 1), what it sets at present for the user to read (QString, as DragHint; may be empty),
    /// its centre, a place where a press takes it and no other, and the range of its centre (two QPointF and a
    /// QRectF, item coordinates as they are seen), and whether it moves across and down the document (bool each).
    ControlPoints,
    /// Read only: what control points that move along one way would set at the ends of their range: a qint32 count,
    /// then for each its number (qint32, as in ControlPoints) and two QString, as the hint there. Points that say
    /// nothing are left out.
    ControlPointEnds,
    /// Write only, of an object whose ends follow others (FollowedObjects) and can be dragged from one to another:
    /// a
    /// drag of such an end, in place of the object's own mouse handling: the phase (qint32, EndDragPhase), the
    /// number
    /// of the control point (qint32), where the end is dragged to (QPointF, scene coordinates), and the object that
    /// it
    /// follows there (quint32, 0 for none) at the place of that name (QString, empty for the outline). The object
    /// records the moves, and makes the undo step when the drag is finished. It refuses an object that it can't
    /// follow.
    DraggedEnd,
    /// Of an object whose labels (LabelPlaces) may have links. Read: a qint32 count, then for each such label its
    /// property and that of its links (qint32 each), whose value is a QByteArray (encodedLinks()). Write: the links
    /// of
    /// a label while it is typed, as LabelText: the label's property (qint32) and the links (QByteArray).
    LabelLinks,
    /// Read only: where links stand: a qint32 count, then for each a box (QRectF, item coordinates as they are
    /// seen)
    /// and the address (QString). Nobody has checked the addresses.
    LinkAreas,
    /// bool, read only: whether the region of the object is that of its lines and labels alone, since nothing is
    /// filled
    /// at present. Presses near it are meant for the object, too. Objects without the property are hit where their
    /// region is.
    HitAtOutline,
    /// Read only: the control points that DraggedEnd drags, in the order of FollowedObjects: a qint32 count, then
    /// their
    /// numbers (qint32, from 1).
    FollowingEnds,
    /// Write only: the property (qint32) of the text among LabelPlaces whose letters aren't drawn for now; 0 for
    /// none. The host looks at the object without them while it has an editor in their place. Neither saved nor
    /// recorded. Objects without the property draw their letters.
    HiddenLabel
};

/// Phases of the drag of an end (DraggedEnd).
enum EndDragPhase { BeginEndDrag, MoveEnd, FinishEndDrag, CancelEndDrag };

} // namespace pagehost

#pragma once

#include <framework/cobjaction.h>
#include <framework/framework_global.h>

#include <pagehost/geometrysnapshot.h>
#include <pagehost/pointer.h>

#include <QtCore/QPointF>
#include <QtCore/QPointer>
#include <QtCore/QRectF>
#include <QtCore/QTimer>
#include <QtCore/QVector>
#include <QtGui/QCursor>
#include <QtWidgets/QGraphicsScene>

#include <memory>

class CBaseObject;

namespace pagehost {

class FrameDrag;
class GripCourse;
class Page;
class PageTool;
class Snapper;
class ToolInput;
struct ToolPointer;

/// The editable thing at a point of the page.
struct Grip
{
    /// Sorts of grips.
    enum Kind {
        Nothing,      ///< empty page
        Body,         ///< an object that a press would select or move
        Handle,       ///< a handle of the selected object, see `action`
        ControlPoint, ///< an object's own control point, which the object drags itself
        FrameHandle   ///< a handle of the frame around several selected objects, see `action`; `object` is one of
                      ///< them
    };
    Kind kind = Nothing;                               ///< sort of the grip
    CBaseObject *object = nullptr;                     ///< null for empty page
    CObjAction::ACT_Def action = CObjAction::ACT_None; ///< of a handle
    /// Offset from the point asked for to the one that the object responds to, scene units: pointers miss slightly.
    QPointF offset;
    int point = -1; ///< index of the control point in ControlPoints; below 0 where the object doesn't tell of it
};

/// The scene of a page: brings mouse and keys to the objects and draws selection frames and handles.
///
/// A press goes to handles and control points of the selected objects first: to the one with the nearest centre
/// within hitSize() of the device that points, so that a near miss of one does not deselect; then to the object
/// under the point; a press on empty page is left to the view, whose rubber band it starts. Shift adds to the
/// selection and takes from it. So does Ctrl, unless the selected object lies above or below others: then a click
/// takes the one below it, a drag copies the selected ones. A press on a member takes its group, a double click
/// enters the group. While a tool is set, it gets the mouse. Views show hover and cursors once mouse tracking is on
/// for their viewport.
class FRAMEWORK_EXPORT PageScene : public QGraphicsScene
{
    Q_OBJECT

public:
    /// The scene of this page, which owns it.
    explicit PageScene(Page *page);
    ~PageScene() override;

    /// The page that is shown.
    Page *page() const { return m_page; }

    /// The grip that a press of `pointer` at `scenePos` (scene coordinates) would take.
    Grip gripAt(const QPointF &scenePos, Pointer pointer = Pointer::Mouse) const;
    /// Whether a press there, on no object, was meant for the frame of the selected objects.
    bool isNearFrame(const QPointF &scenePos, Pointer pointer) const;
    /// The device behind mouse events that have been made of others: a finger, unless the view says otherwise.
    void setMadeMouse(Pointer pointer) { m_madeMouse = pointer; }
    /// The device behind a mouse event from this source.
    Pointer pointerOf(Qt::MouseEventSource source) const;
    /// Draws handles as large as fingers need them.
    void setLargeHandles(bool large);
    /// See setLargeHandles().
    bool hasLargeHandles() const { return m_hasLargeHandles; }
    /// The cursor that shows what a press at `scenePos` would do, for handles by their direction on screen, for
    /// control points, bodies, and the tool.
    QCursor cursorAt(const QPointF &scenePos) const;
    /// Handle under the mouse; ACT_None without one.
    CObjAction::ACT_Def hoveredHandle() const { return m_hover.action; }
    /// The grip under the mouse.
    Grip hovered() const { return m_hover; }

    /// A tool that gets the mouse before any object; null for none. Not owned.
    void setTool(PageTool *tool);
    /// Null for none.
    PageTool *tool() const;
    /// @name A pen that the view hands on itself, since scenes get no events of pens
    /// False, without effect, where no tool can be used.
    /// @{

    /// The pen touches the page.
    bool pressTool(const ToolPointer &pointer);
    /// The pen moves.
    bool moveTool(const ToolPointer &pointer);
    /// The pen is lifted.
    bool releaseTool(const ToolPointer &pointer);
    /// @}

    /// @name Snapping, initially off
    /// Moved, resized and newly drawn objects catch at others, at the page and at the grid, turned ones at steps
    /// of 15 degrees, unless Alt is held.
    /// @{

    /// Switches snapping on or off.
    void setSnapping(bool on);
    /// Whether it is on; Alt doesn't count.
    bool isSnapping() const;
    /// Shows a grid with lines at this distance, scene units; 0 for none. Visible in views only.
    void setGrid(double distance);
    /// See setGrid().
    double grid() const;
    /// Of this scene's tools.
    Snapper &snapper() const { return *m_snapper; }
    /// Shows what Snapper::guides() are now.
    void updateGuides();
    /// The drag has ended: its guides disappear in a moment.
    void endSnapping();
    /// @}

    /// True between a press that an object took and its release.
    bool isDragging() const;
    /// An object is being dragged or drawn.
    bool isBusy() const;
    /// Figures of the drag of a grip, for people to read.
    struct DragFigures
    {
        /// Figures that say something.
        enum Kind { None, Place, Size, Turn };
        Kind kind = None;   ///< which of them do
        QPointF place;      ///< top-left of what is moved, scene coordinates
        QSizeF size;        ///< of the resized object, item units, or of the frame
        double degrees = 0; ///< of the turned object, or by which several have been turned
    };
    /// Of the drag that is going on; None without one.
    DragFigures dragFigures() const;
    /// Cancels a running drag without a trace: objects and control points return to where they were, a tool takes
    /// back its drawing, the selection is the one before the press; no undo step remains, what could be redone
    /// still can be. False when none runs. The Esc key does the same.
    bool cancelDrag();

    /// @name A drag without a mouse
    /// As a mouse drags a control point of a selected object from a press to a release; scene coordinates. The
    /// first is false, without effect, where a press there would not take a control point, and while another drag
    /// runs.
    /// @{

    /// Presses at a control point of the object.
    bool beginPointDrag(CBaseObject *object, const QPointF &scenePos);
    /// Moves there.
    void dragPointTo(const QPointF &scenePos);
    /// Releases: one undo step.
    void endPointDrag();
    /// @}

    /// Highlighted parts.
    enum Highlight {
        ObjectOnly,
        ObjectAndPlaces ///< with its ConnectionPlaces
    };
    /// Highlights an object of the page, above everything else and in every state of the document, until it is
    /// reset with null or the object leaves the page. Visible in views only, not in thumbnails, exported pages or
    /// saved data.
    void setHighlight(CBaseObject *object, Highlight parts = ObjectOnly);
    /// Null for none.
    CBaseObject *highlight() const { return m_highlight; }

    /// Bounds of the selected objects' frames and handles, scene coordinates; null without any.
    QRectF frameBounds() const;
    /// Centre of a handle of a selected object, scene coordinates.
    static QPointF handlePlace(CBaseObject *object, CObjAction::ACT_Def handle);
    /// Repaints frames and handles after an object has changed position or size. Objects call it themselves.
    void updateOverlay();
    /// Ends any action with an object that is about to leave the page.
    void forget(CBaseObject *object);

Q_SIGNALS:
    /// The tool has dealt with a press, a release or a key.
    void toolUsed();
    /// A press is about to begin a drag or a drawing.
    void gestureStarted();
    /// All is as it was at gestureStarted().
    void gestureCancelled();
    /// Selected objects were dragged by this way with Ctrl: copies are to be made there; they themselves are back.
    void copyDropped(const QPointF &way);

protected:
    /// Tells the tool when the pointer leaves the view.
    bool event(QEvent *event) override;
    /// Gives the press to the tool or to the grip there.
    void mousePressEvent(QGraphicsSceneMouseEvent *event) override;
    /// Leads the drag, or shows what is hovered.
    void mouseMoveEvent(QGraphicsSceneMouseEvent *event) override;
    /// Ends the drag.
    void mouseReleaseEvent(QGraphicsSceneMouseEvent *event) override;
    /// Enters a group, or goes to the object.
    void mouseDoubleClickEvent(QGraphicsSceneMouseEvent *event) override;
    /// Esc, the modifiers of a drag, keys of the tool; other keys go to the one selected object.
    void keyPressEvent(QKeyEvent *event) override;
    /// Modifiers of a drag.
    void keyReleaseEvent(QKeyEvent *event) override;
    /// The page's background and the grid.
    void drawBackground(QPainter *painter, const QRectF &rect) override;
    /// Selection frames, handles, guides and highlight.
    void drawForeground(QPainter *painter, const QRectF &rect) override;

private:
    bool usesTool() const;
    bool useToolKey(QKeyEvent *event);
    double pixel() const;
    void pressGrip(const Grip &grip, QGraphicsSceneMouseEvent *event);
    void deliver(QGraphicsSceneMouseEvent *event, const QPointF &offset) const;
    void lead(QGraphicsSceneMouseEvent *event, Pointer pointer);
    void endDrag();
    void releaseGrip(QGraphicsSceneMouseEvent *event);
    void leadAgain(Qt::KeyboardModifiers modifiers);
    bool canDropCopy() const;
    bool takeBelow();
    void dropCopy(Qt::KeyboardModifiers modifiers);
    bool showsOldPlace() const;
    QVector<GeometrySnapshot> dragStart() const;
    QVector<CBaseObject *> draggedObjects() const;
    bool followKey(const QKeyEvent *event, bool isPressed);
    bool followModifiers(const QKeyEvent *event);
    bool isPresented() const;
    void beginGesture();
    bool takeBack();
    void releaseAtStart();
    void selectAsBefore();
    void setHover(const Grip &grip);
    bool isEditable() const;
    void repaintOverlay();
    void stateChanged();
    void zoomChanged();

    Page *m_page;
    std::unique_ptr<ToolInput> m_tool;
    Grip m_hover;
    Grip m_drag;
    CBaseObject *m_highlight = nullptr;
    Highlight m_highlightedParts = ObjectOnly;
    QPointF m_pressPos;        ///< scene coordinates
    bool m_takesBelow = false; ///< the drag that is going on, if it ends as a click
    QPointF m_lastPos;         ///< of the mouse in the drag that is going on, scene coordinates
    std::unique_ptr<Snapper> m_snapper;
    std::unique_ptr<GripCourse> m_course;   ///< of the drag that is going on
    std::unique_ptr<FrameDrag> m_frameDrag; ///< of a FrameHandle
    Qt::KeyboardModifiers m_dragModifiers;
    Pointer m_madeMouse = Pointer::Finger;
    Pointer m_dragPointer = Pointer::Mouse;
    bool m_hasLargeHandles = false;
    QTimer m_guideTimer;
    QVector<QPointer<CBaseObject>> m_selectedBefore; ///< before the last gesture
    GeometrySnapshot m_reshaped;                     ///< the object of a dragged control point, before the drag
    QTimer m_overlayTimer;
    QRectF m_overlay;   ///< area of the last overlay, scene coordinates
    double m_pixel = 1; ///< a pixel of the view painted last, scene units
};

} // namespace pagehost

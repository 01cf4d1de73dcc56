#pragma once

#include <framework/cobjaction.h>
#include <framework/framework_global.h>

#include <QtCore/QPointF>
#include <QtCore/QRectF>
#include <QtCore/QTimer>
#include <QtGui/QCursor>
#include <QtWidgets/QGraphicsScene>

class CBaseObject;

namespace pagehost {

class CreationTool;
class Page;

/// The editable thing under a point of the page.
struct Grip
{
    enum Kind {
        Nothing,     ///< empty page
        Body,        ///< an object that a press would select or move
        Handle,      ///< a handle of the selected object, see `action`
        ControlPoint ///< a point of the object's own that it drags itself
    };
    Kind kind = Nothing;
    CBaseObject *object = nullptr;
    CObjAction::ACT_Def action = CObjAction::ACT_None;
    /// Scene units from the point asked about to the one that the object answers to: fingers miss by a little.
    QPointF offset;
};

/// The scene of a page: brings mouse and keys to the objects and draws selection frames and handles.
///
/// A press goes to handles and control points of the selected objects first, so that a near miss of one does not
/// deselect; then to the object under the point; a press on empty page is left to the view, whose rubber band it
/// starts. Shift or Ctrl adds to the selection and takes from it. While a creation tool is set, it gets the mouse.
/// Views show hover and cursors once mouse tracking is on for their viewport.
class FRAMEWORK_EXPORT PageScene : public QGraphicsScene
{
    Q_OBJECT

public:
    explicit PageScene(Page *page);
    ~PageScene() override;

    Page *page() const { return m_page; }

    Grip gripAt(const QPointF &scenePos) const;
    /// The cursor that tells what a press at `scenePos` would do: by the handle's direction on screen (the object's
    /// rotation counts), for control points, bodies, and the creation tool.
    QCursor cursorAt(const QPointF &scenePos) const;
    /// Handle under the mouse, ACT_None when none is.
    CObjAction::ACT_Def hoveredHandle() const { return m_hover.action; }
    Grip hovered() const { return m_hover; }

    /// A tool that gets the mouse before any object; null for none. Not owned.
    void setCreationTool(CreationTool *tool);
    CreationTool *creationTool() const { return m_tool; }

    /// True between a press that an object took and its release.
    bool isDragging() const;
    /// Ends a running drag: handle drags put the objects back where they were, and a drag of an object's own
    /// control point ends where it began; no undo step stays behind. False when none runs. The Esc key does the
    /// same.
    bool cancelDrag();

    /// Draws attention to an object of the page, over everything else and in every state of the document, until it
    /// is taken back with null or the object leaves the page. Seen in views only: thumbnails, exported pages and
    /// saved data know nothing of it.
    void setHighlight(CBaseObject *object);
    CBaseObject *highlight() const { return m_highlight; }

    /// Repaints frames and handles after an object changed place or size. Objects call it themselves.
    void updateOverlay();
    /// Ends whatever runs with an object that is about to leave the page.
    void forget(CBaseObject *object);

protected:
    void mousePressEvent(QGraphicsSceneMouseEvent *event) override;
    void mouseMoveEvent(QGraphicsSceneMouseEvent *event) override;
    void mouseReleaseEvent(QGraphicsSceneMouseEvent *event) override;
    void mouseDoubleClickEvent(QGraphicsSceneMouseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void drawBackground(QPainter *painter, const QRectF &rect) override;
    void drawForeground(QPainter *painter, const QRectF &rect) override;

private:
    void pressGrip(const Grip &grip, QGraphicsSceneMouseEvent *event);
    void deliver(QGraphicsSceneMouseEvent *event) const;
    void setHover(const Grip &grip);
    bool isEditable() const;
    void repaintOverlay();
    void stateChanged();
    void zoomChanged();

    Page *m_page;
    CreationTool *m_tool = nullptr;
    Grip m_hover;
    Grip m_drag;
    CBaseObject *m_highlight = nullptr;
    QPointF m_pressPos; ///< scene coordinates
    QTimer m_overlayTimer;
    QRectF m_overlay;   ///< what the overlay covered last, scene coordinates
    double m_pixel = 1; ///< a pixel of the view that was painted last, scene units
};

} // namespace pagehost

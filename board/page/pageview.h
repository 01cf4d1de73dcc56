#pragma once

#include "page/bandselection.h"
#include "page/emptyhint.h"
#include "page/keyhand.h"
#include "page/nudging.h"
#include "page/textmark.h"
#include "page/touchinput.h"

#include <pagehost/page.h>
#include <pagehost/pointer.h>

#include <QtCore/QPointer>
#include <QtWidgets/QGraphicsView>

#include <functional>
#include <optional>

class CBaseObject;
class QMimeData;
class QTabletEvent;
class QTouchEvent;

namespace board {

class LabelWriting;

/// The view that a page is edited in. Its object name is the one that page objects show their control points in.
///
/// A press that no object wants begins a rubber band; the middle button, or the left one with the space bar held
/// down, pans; Ctrl and the wheel zoom about the cursor. Touches are what TouchJudge takes them for.
class PageView : public QGraphicsView
{
    Q_OBJECT

public:
    static constexpr double smallestZoom = 0.1;
    static constexpr double largestZoom = 8;

    explicit PageView(QWidget *parent = nullptr);

    /// Shows `page`; null for nothing.
    void setPage(pagehost::Page *page);
    pagehost::Page *page() const { return m_page; }
    /// False while the page only plays a lesson.
    bool isEditable() const;
    /// Shows nothing but the page, as large as it fits, on black or another colour.
    void setBare(bool bare);
    void setBareColor(const QColor &color);
    /// Shows grips as large as fingers need them.
    void setLargeGrips(bool large);
    /// A finger uses the tool even where there is a pen.
    void setFingersDraw(bool draw) { m_touch.setFingersDraw(draw); }
    void setEmptyHint(const EmptyHint &hint);
    KeyHand *keys() { return &m_keys; }

    /// Scene units to logical pixels.
    double zoom() const { return m_zoom; }
    /// Zooms so that what is under `anchor` (viewport coordinates) stays there. The rate is brought into the range.
    void setZoom(double rate, const QPoint &anchor);
    /// About the middle of the view.
    void setZoom(double rate);
    void zoomIn();
    void zoomOut();
    /// Shows the whole page, and goes on doing so while the window is resized, until the user zooms.
    void fitPage();
    bool isFitted() const { return m_fitted; }

    /// The edge of the window where the tools are. The view keeps room for a shelf beside them, however the page is
    /// zoomed.
    void setShelfEdge(Qt::Edge edge);

    /// Decides what can be dropped besides kinds of shape.
    void setDropTest(const std::function<bool(const QMimeData &)> &test) { m_dropTest = test; }
    /// Ends what is going on: keys that move become a step, a drag is taken back.
    void settle();
    /// The effect of the Esc key: takes back what is going on, else leaves a group, else gives the tool up, else
    /// deselects.
    void cancel();
    bool isWriting() const;
    LabelWriting *writing() const { return m_writing; }
    /// Whether the only selected object has a label that can be written.
    bool canWriteLabel() const;
    /// Begins to write the first label of the only selected object. False where there is none.
    bool writeFirstLabel(bool ofNewObject = false);
    /// Marks a text of an object, in place of the one that was marked; null for none.
    void markText(CBaseObject *object, qint32 propertyId) { m_textMark.set(object, propertyId); }
    /// The box around it, scene coordinates; null where none is marked on the page.
    QRectF markedText() const { return m_textMark.box(); }

Q_SIGNALS:
    /// page() is another one.
    void pageShown();
    /// The user has ended writing a text of an object; null for one that is gone. `madeStep` unless the text has
    /// stayed as it was.
    void writingEnded(CBaseObject *object, bool madeStep);
    /// A double click where no label is, and where a text may begin; scene coordinates.
    void textWanted(const QPointF &scenePos);
    /// The Esc key was pressed while a tool waited.
    void toolGivenUp();
    /// The pen's button is held, or its other end is used; or no longer.
    void penErases(bool erases);
    /// See PageScene::copyDropped().
    void copyDropped(const QPointF &way);
    void zoomChanged(double rate);
    /// Scene coordinates.
    void pointerMoved(const QPointF &scenePos);
    void pointerLeft();
    /// A kind of shape was dragged here from the palette; scene coordinates.
    void kindDropped(const QString &kindId, const QPointF &scenePos);
    /// Data accepted by the drop test was dropped; scene coordinates.
    void dataDropped(const QMimeData &data, const QPointF &scenePos);

protected:
    void mousePressEvent(QMouseEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void keyReleaseEvent(QKeyEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;
    bool focusNextPrevChild(bool next) override;
    bool event(QEvent *event) override;
    bool viewportEvent(QEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void drawBackground(QPainter *painter, const QRectF &rect) override;
    void drawForeground(QPainter *painter, const QRectF &rect) override;
    void dragEnterEvent(QDragEnterEvent *event) override;
    void dragMoveEvent(QDragMoveEvent *event) override;
    void dropEvent(QDropEvent *event) override;

private:
    bool isNewBoard() const;
    static void hideMirrorHandles(CBaseObject *object);
    void acceptDrag(QDropEvent *event) const;
    bool wantsToPan(const QMouseEvent *event) const;
    void panTo(const QPoint &pos);
    void endBand(const QMouseEvent *event);
    void showHint(const QPoint &pointer);
    bool usePen(QTabletEvent *event);
    bool turnPen(const QTabletEvent *event);
    void waitForRest(const QTabletEvent *event);
    void setPenErases(bool erases);
    void useTouch(QTouchEvent *event);
    void takeBack();
    void hold(const QPointF &pos);
    void pull(const QPointF &pos, double factor);
    void bringTo(const QPointF &scenePos, const QPointF &pos);
    void beginZooming();
    void openMenu(const QPoint &pos);
    pagehost::Pointer pointerOf(const QMouseEvent *event) const;
    void updateCursor(const QPoint &pos);
    bool nudge(const QKeyEvent *event);
    bool useKeyOfPage(const QKeyEvent *event);
    void finishKeys();
    void followPage();
    void applyZoom(double rate);
    void updateSceneArea();
    void showFitted();
    void writeAt(const QPoint &pos);

    QPointer<pagehost::Page> m_page;
    std::function<bool(const QMimeData &)> m_dropTest;
    EmptyHint m_hint;
    BandSelection m_band;
    Nudging m_nudging;
    KeyHand m_keys;
    TextMark m_textMark;
    TouchInput m_touch;
    Resting m_penRest;
    double m_zoom = 1;
    Qt::Edge m_shelfEdge = Qt::TopEdge;
    int m_shelfMargin = 0; ///< between it and the page, logical pixels
    bool m_fitted = true;
    bool m_isBare = false;
    QColor m_bareColor = Qt::black;
    bool m_hasLargeGrips = false;
    bool m_spaceDown = false;
    bool m_panning = false;
    bool m_showsHint = false;
    bool m_penIsDown = false;
    bool m_penErases = false;
    QPointF m_heldPlace;   ///< of the page between the fingers, scene coordinates
    double m_heldZoom = 1; ///< when they took hold of it
    QPoint m_panPos;       ///< viewport coordinates
    /// Of a double click that is going on, viewport coordinates.
    std::optional<QPoint> m_doubleClicked;
    LabelWriting *m_writing;
};

/// The format under which the palette drags a kind of shape: its id in UTF-8.
extern const char *const kindMimeType;

} // namespace board

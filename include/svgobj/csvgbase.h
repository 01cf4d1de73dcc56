#pragma once

#include <svgobj/svgobj_global.h>

#include <svgobj/csvgpropitem.h>

#include <QtCore/QByteArray>
#include <QtCore/QJsonArray>
#include <QtCore/QJsonObject>
#include <QtCore/QList>
#include <QtCore/QMap>
#include <QtCore/QPointF>
#include <QtCore/QRectF>
#include <QtCore/QSizeF>
#include <QtCore/QString>
#include <QtCore/QVariant>
#include <QtCore/QVector>
#include <QtGui/QBrush>
#include <QtGui/QColor>

class CSVGAnimate;
class CSVGBaseUndoCmd;
class CSVGObj;
class IDocument;
class QDataStream;
class QGraphicsSceneMouseEvent;
class QGraphicsView;
class QKeyEvent;
class QPainter;
class QPainterPath;
class QZeSvgNode;
class QZeSvgStructureNode;
class QZeSvgTinyDocument;

/// Reads one number at `str` and leaves `str` on the first character that is not part of it. `str` must point into
/// zero-terminated text. A null pointer gives 0.
SVGOBJ_EXPORT double toDouble(const QChar *&str);

/// The core of a vector shape: its SVG document, its control points, and all editing of them.
///
/// A concrete shape derives, supplies a template (getSVG()) and a type number (getSVGType()), sets mode flags in
/// its constructor and calls loadSVG() once. Most operations need that document. Two coordinate systems meet here:
/// object coordinates (the page object's item coordinates, origin at its top-left) and document units (those of the
/// template's view box, which is stretched over the object).
class SVGOBJ_EXPORT CSVGBase
{
public:
    /// `owner` is the page object that will own this core; its zoom rate is read here. Without an owner the zoom
    /// is 1.
    explicit CSVGBase(CSVGObj *owner);
    CSVGBase(const CSVGBase &) = delete;
    CSVGBase &operator=(const CSVGBase &) = delete;

    // The order of the virtual operations is part of the binary interface.
    virtual ~CSVGBase();

    virtual bool save(QDataStream &out);
    virtual bool load(QDataStream &in);
    virtual bool saveJson(QJsonObject &object);
    virtual bool loadJson(QJsonObject &object);
    virtual bool SavePropertyForPlayback(QDataStream &out);
    virtual bool LoadPropertyForPlayback(QDataStream &in);
    /// Replays one recorded action or undo step without recording it again; false when it could not be applied.
    virtual bool DoPlaybackActionEx(int actionId, QDataStream &in);
    virtual bool getAllAttributes(QMap<QString, QVariant> &map);
    virtual bool setAllAttributes(const QMap<QString, QVariant> &map, bool flag);
    virtual bool GetAttribute(int propId, QDataStream &out);
    virtual bool SetAttribute(int propId, QDataStream &in, bool record, bool addUndo);
    virtual bool GetSpecialProperty(int propId, QDataStream &out);
    virtual bool SetSpecialProperty(int propId, QDataStream &in, bool record);
    virtual void PopupObjectMenu(void *where);

    /// Draws the shape into the page object's client rectangle; `toCache` says that the target is the off-screen
    /// picture.
    virtual void paint(QPainter *painter, bool toCache);
    /// As paint(), magnified by `scale` about the client rectangle's centre.
    virtual void paintEx(QPainter *painter, float scale, bool toCache);

    /// Starts dragging the control point under the event's item position; true when there is one.
    virtual bool mousePressEvent(QGraphicsSceneMouseEvent *event);
    /// Drags; false when no drag is under way or editing is blocked.
    virtual bool mouseMoveEvent(QGraphicsSceneMouseEvent *event);
    /// Ends a drag with one undo step; true when it did.
    virtual bool mouseReleaseEvent(QGraphicsSceneMouseEvent *event);
    virtual bool mouseDoubleClickEvent(QGraphicsSceneMouseEvent *event);
    virtual void keyPressEvent(QKeyEvent *event);

    /// Loads the template (once), finds the control points and builds the property items; `initGlobals` asks for
    /// the shape's initial values first. True when the shape has a document afterwards. A template that does not
    /// parse is replaced by an empty 20 × 20 document.
    virtual bool loadSVG(bool initGlobals);
    /// The template's SVG text; empty here.
    virtual QString getSVG();
    /// The type number of the shape. It is saved with it and decides who fills it: up to 26 and 1000 the host.
    virtual int getSVGType() = 0;
    /// Hook: place all control points where the geometry has them. False when nothing was done.
    virtual bool updateAllControlPoints(bool refresh, bool finished);
    /// The size that a new object gets by a click: the view box's, 100 × 100 without a document.
    virtual QSizeF getDefaultSVGSize();
    /// Rebuilds the outline (document units) where the shape keeps one.
    virtual void updateOutlineRegion();
    /// Follows a size change of the page object (item units) by moving the control points in proportion.
    virtual void setSize(QSizeF oldSize, QSizeF newSize);
    /// The smallest size (item units) that the object may be given: 16 × 16 with control points, else 1 × 1.
    virtual QSizeF getMinimizeSize();
    /// The largest pen width offered, 8.
    virtual int getMaxPenWidth();
    /// Hook: the user finished drawing the shape.
    virtual void notifyObjectCreated();
    /// Whether `pos` (object coordinates) lies on a visible control point.
    virtual bool CheckHitTestHandlers(const QPointF &pos);
    /// Sets the fill of the whole drawing and tells the page object. A brush of the present colour is dropped,
    /// whatever its style. The last argument is not used.
    virtual void setFillBrush(const QBrush &brush, bool record, bool notify);
    /// Hook: append the shape's own controls to the settings panel. The result is not used.
    virtual bool GetSettingArray(QJsonArray &settings);
    /// Hook: apply the answers of the shape's own controls. The result is not used.
    virtual bool SetSettingArray(QMap<QString, QString> &values, bool record, bool undo);
    virtual bool GetSettingJson(QString &out);
    virtual bool SetSettingJson(const QString &json, bool record, bool undo);
    /// Whether loadSVG() installs the document's painter callback.
    virtual void setExternalFilled(bool on);
    /// Hook: control point `node` has just moved by `delta` (document units); rewrite the geometry. With `refresh`
    /// the shape calls invalidate() when it is done, since nobody else repaints.
    virtual bool updateSVG(QZeSvgNode *node, QPointF delta, bool refresh);
    /// Hook: rewrite the whole geometry.
    virtual bool updateSVG(bool refresh);
    /// @name Limits of a control point's top-left corner, document units
    /// The node's attributes "x_from", "x_to", "y_from" and "y_to"; ∓1000000 where absent.
    /// @{
    virtual double getXMin(QZeSvgNode *node);
    virtual double getXMax(QZeSvgNode *node);
    virtual double getYMin(QZeSvgNode *node);
    virtual double getYMax(QZeSvgNode *node);
    /// @}
    virtual QBrush getFillBrush();
    virtual QColor getPenColor();
    virtual void setPenColor(QColor color, bool record);
    virtual Qt::PenStyle getPenStyle();
    virtual void setPenStyle(Qt::PenStyle style, bool record);
    /// Whole units, rounded half up.
    virtual int getPenWidth();
    /// Sets the stroke width of the whole drawing (document units); with raw control points their size follows it,
    /// between 8 and 50 pixels.
    virtual void setPenWidth(int width, bool record);
    /// Writes the bare value of one property; false, with nothing written, for an unknown id.
    virtual bool getInnerProperty(int propId, QDataStream &out);
    /// Reads and applies the bare value of one property, with an undo step when `addUndo` is set. With `record` the
    /// value of the pen width is a list index (one less than the width). False, with nothing read, for an unknown
    /// id.
    virtual bool setInnerProperty(int propId, QDataStream &in, bool record, bool addUndo);
    /// Rebuilds the property items: the shape's own first, then the common ones that its flags enable.
    virtual void initPropItems();
    /// Hook: append the shape's own property items to propItems.
    virtual void initSpecialPropItems();
    /// Localisation key of a property's name; empty for an unknown id.
    virtual QString getPropName(int propId);
    /// Hook: set the shape's initial values; loadSVG(true) calls it just before the property items are built.
    virtual void initGlobalPropValues();
    /// Hook, after the pen width changed the control points to `size` pixels. Here: updateAllControlPoints(true,
    /// true).
    virtual void updateAfterPenWidthChanged(int size);
    /// Hook: veto a control point's move to `pos` (top-left, document units).
    virtual bool CanMoveControlPoint(QZeSvgNode *node, QPointF pos);
    /// The property that records its changes under `actionId`; PROP_SVG_NONE when none does.
    virtual int actionIdToPropId(int actionId);
    /// The object's region in item coordinates: the outline, widened by the pen. False, with `path` untouched, when
    /// the shape has no outline.
    virtual bool getOutlinePath(QPainterPath *path);

    /// @name Document
    /// @{
    /// Adopts the page object's mirror state: `horizontal` mirrors x, `vertical` mirrors y.
    void setFlipOn(bool horizontal, bool vertical);
    /// Adds a node under `id` to its parent, or to the document when it has none. Null is ignored.
    void addNode(QZeSvgNode *node, const QString &id);
    void removeNode(QZeSvgNode *node);
    /// @}

    /// @name Mapping between object coordinates and document units
    /// @{
    QPointF mapToSVG(QPointF pos);
    /// Lengths; negative for a positive one when the axis is mirrored.
    double mapXToSVG(double length);
    double mapYToSVG(double length);
    /// Lengths; ignores the mirror state.
    double mapXToObject(double length);
    double mapYToObject(double length);
    /// @}

    /// @name Resizing the visible part of the document
    /// @{
    /// Moves the view box by `offset` and grows it by (dw, dh), document units; with `updateObject` the page object
    /// is moved and resized so that the drawing stays where it was on the page.
    void adjustSvgPosition(QPointF offset, double dw, double dh, bool updateObject);
    /// Makes the view box equal to `rect`.
    void adjustSvgPosition(QRectF rect, bool updateObject);
    void resizeSVG(double dw, double dh, bool updateObject);
    /// @}

    /// @name Property items
    /// @{
    void initCommonPropItems();
    /// The first item with that id; null when there is none.
    CSVGPropItem *findPropItemByPropID(int propId);
    void changePropName(int propId, const QString &name);
    void clearPropItems();
    /// @}

    /// Sets the fill of the whole drawing and nothing else.
    void updateBrush(const QBrush &brush);

    /// @name Undo and playback record
    /// @{
    /// Pushes the command on the host's undo stack, which owns it from then on. Null is ignored.
    void addUndoRedo(CSVGBaseUndoCmd *command);
    void RecordColor(QColor value, int actionId);
    void RecordBrush(const QBrush &value, int actionId);
    void RecordInt(int value, int actionId);
    void RecordDouble(double value, int actionId);
    void RecordBool(bool value, int actionId);
    void RecordString(const QString &value, int actionId);
    void RecordDataBuffer(const QByteArray &data, int actionId);
    /// @}

    /// @name Outline
    /// @{
    void addAllItemsRegion(QPainterPath *path);
    void addAllItemsRegion(QZeSvgStructureNode *node, QPainterPath *path);
    /// The outline mapped into the page object's client rectangle (item coordinates, never mirrored). False, with
    /// `path` untouched, without an outline or with an empty client rectangle.
    bool getOutlineRegion(QPainterPath *path);
    void addBorderPenWidthRegionImpl(QPainterPath *target, const QPainterPath *source);
    void addAllControlPointsRegionImpl(QPainterPath *path);
    void addBorderPenWidthRegion(QPainterPath *target, const QPainterPath *source);
    void addAllControlPointsRegion(QPainterPath *path);
    /// @}

    /// @name Painting
    /// @{
    /// Renders the page object's off-screen picture anew and tells the host that the look changed.
    void invalidate();
    /// The page object was selected or deselected: control points show only while it is selected.
    void setSelected(bool selected);
    IDocument *getBelongDoc();
    QGraphicsView *findFirstVisibleView(QList<QGraphicsView *> &views);
    /// @}

    /// @name Animation
    /// @{
    /// False when the template contains no animation.
    bool startAnimate();
    /// Always false.
    bool stopAnimate();
    bool isAnimating();
    /// @}

    /// @name Control points
    /// @{
    /// Moves the dragged control point for the mouse at `pos` (object coordinates); false when none is dragged.
    bool moveControlPoint(QPointF pos);
    /// Places a control point's top-left at `pos` (document units). Returns what updateSVG() returns; false when
    /// nothing moved.
    bool updateSVGControlPoint(QZeSvgNode *node, QPointF pos, bool refresh, bool record, bool finished);
    /// Gives a control point the side `size` (document units), keeping its centre.
    void changeControlPointSize(QZeSvgNode *node, double size, bool resizeOwner);
    /// @}

    /// @name Number text of path data
    /// @{
    QVector<double> parseNumbersList(const QChar *&str);
    QString numbersToString(QVector<double> numbers);
    /// @}

    /// @name Stretching path data
    /// @{
    QString changePathBeginPoint(QString path, double dx, double dy);
    QString changePathWidth(QString path, double delta);
    QString changePathWidth(QString path, double delta, int from);
    QString changePathHeight(QString path, double delta);
    QString changePathHeight(QString path, double delta, int from);
    /// @}

protected:
    // The order of the members is part of the binary interface.
    IDocument *belongDoc = nullptr;         ///< found lazily by getBelongDoc(); not owned; null again when it dies
    CSVGObj *owner;                         ///< not owned
    QZeSvgTinyDocument *document = nullptr; ///< owned
    QPointF lastMousePos;                   ///< press position of a control-point drag, object coordinates
    QZeSvgNode *activeControlPoint = nullptr; ///< the control point being dragged
    bool flipHorizontal = false;
    bool flipVertical = false;
    QPointF dragStartPos;       ///< top-left of the active control point when its drag began, document units
    QZeSvgNode **controlPoints; ///< 32 entries; entry i is "control_{i + 1}"
    quint32 controlPointCount = 0;
    QVector<CSVGPropItem *> propItems; ///< owned
    bool propPenEnabled = true;
    bool propPenStyleEnabled = false;
    bool propPenWidthEnabled = false;
    bool propFillEnabled = false;
    QPainterPath *outlineRegion = nullptr; ///< document units; owned
    bool keepOutlineRegion = false;        ///< whether the shape has an outline at all
    bool resizeRewritesSVG = false;        ///< whether size changes of the page object reach setSize()
    double controlPointSize = 8.0;         ///< side, document units
    double dragXMin = -1000000.0;
    double dragXMax = 1000000.0;
    double dragYMin = -1000000.0;
    double dragYMax = 1000000.0;
    bool keepAspectRatio = true;
    bool rawControlPoints = false; ///< control points follow the pen width and are stored as they stand
    bool externallyFilled = false;
    double zoomRate;                 ///< pixels per scene unit when control points were last sized
    CSVGAnimate *animator = nullptr; ///< owned
    bool updateFinished = true;      ///< false between press and release
    int savedPenStyleIndex = 0;
    QColor savedPenColor;
    QBrush savedFillBrush;

private:
    friend class CSVGObj;
    friend class CSVGAnimate;
    friend class LivingCores;
    void discoverControlPoints();
    bool isEditingBlocked();
    void beginDrag(QZeSvgNode *node, QPointF pressPos);
    bool resolveViewFlag(QPainter *painter, bool toCache);
    void followZoom();
    float storedDrawScale(float scale);
    void resizeControlPoints(int size);
    QZeSvgNode *storedControlPoint(quint32 number);
    void placeStoredControlPoint(QZeSvgNode *node, QPointF pos);
    void takeFillOfOwner();
};

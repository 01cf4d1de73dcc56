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

    /// Writes view box (raw control points alone), places of the control points (document units) and pen. The
    /// template belongs to the class, the fill to the page object. Always true.
    virtual bool save(QDataStream &out);
    /// Reads what save() writes. What a short or damaged stream lacks stays or becomes a default value. Always
    /// true.
    virtual bool load(QDataStream &in);
    /// Adds the values of save() to the page object's JSON object, under keys that begin with "SVG_". Always true.
    virtual bool saveJson(QJsonObject &object);
    /// Reads what saveJson() writes; keys that are missing are added as null. Always true.
    virtual bool loadJson(QJsonObject &object);
    /// Writes the whole state, as save() does, for the start of a recording. Always true.
    virtual bool SavePropertyForPlayback(QDataStream &out);
    /// Reads what SavePropertyForPlayback() writes. Always true.
    virtual bool LoadPropertyForPlayback(QDataStream &in);
    /// Replays one recorded action or undo step without recording it again; false when it could not be applied.
    virtual bool DoPlaybackActionEx(int actionId, QDataStream &in);
    /// Adds "pen_width", "pen_color", "pen_style" and "fill_color" (a QBrush) to the map. Always true.
    virtual bool getAllAttributes(QMap<QString, QVariant> &map);
    /// Applies those of these names that differ, unrecorded and without undo step; "fill_color" is taken as a
    /// QColor. The flag is not used. True when something has changed; the shape has repainted then.
    virtual bool setAllAttributes(const QMap<QString, QVariant> &map, bool flag);
    /// Writes the description of a property with its value, as panels read it: id, editor, name, value. False, with
    /// nothing written, for a property that the shape doesn't offer, and without a document.
    virtual bool GetAttribute(int propId, QDataStream &out);
    /// Applies a bare value as setInnerProperty() does, and repaints. ACT_SVG_STYLE_SNAPSHOT notes pen and fill,
    /// ACT_SVG_STYLE_RESTORE brings them back. False for an id that is no property of the shape.
    virtual bool SetAttribute(int propId, QDataStream &in, bool record, bool addUndo);
    /// The bare value, as getInnerProperty() writes it; shapes add properties that only the host asks for.
    virtual bool GetSpecialProperty(int propId, QDataStream &out);
    /// As setInnerProperty(), with an undo step and without repainting.
    virtual bool SetSpecialProperty(int propId, QDataStream &in, bool record);
    /// Hook: show the shape's own menu; `where` is a pointer that the host defines. Does nothing here.
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
    /// Hook: a double click on the object. The result is not used; false here.
    virtual bool mouseDoubleClickEvent(QGraphicsSceneMouseEvent *event);
    /// Hook: a key pressed while the object has the focus. Does nothing here.
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
    /// Writes the description of the settings panel as JSON text: the controls of pen and fill that the flags
    /// enable, then the shape's own (GetSettingArray()). Always true.
    virtual bool GetSettingJson(QString &out);
    /// Applies the answers of the panel, JSON text as the host parses it; unreadable text changes nothing. Several
    /// of them are one undo step if `undo` is set. Always true.
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

    /// Smallest x, from "x_from".
    virtual double getXMin(QZeSvgNode *node);
    /// Largest x, from "x_to".
    virtual double getXMax(QZeSvgNode *node);
    /// Smallest y, from "y_from".
    virtual double getYMin(QZeSvgNode *node);
    /// Largest y, from "y_to".
    virtual double getYMax(QZeSvgNode *node);
    /// @}
    /// The fill of the whole drawing; no brush without a document.
    virtual QBrush getFillBrush();
    /// The colour of all strokes; invalid without a document.
    virtual QColor getPenColor();
    /// Sets the colour of all strokes, without repainting. `record` adds a step to the playback record.
    virtual void setPenColor(QColor color, bool record);
    /// The style of all strokes; Qt::NoPen without a document.
    virtual Qt::PenStyle getPenStyle();
    /// Sets the style of all strokes, without repainting. `record` adds a step to the playback record.
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
    /// Takes a node out of its parent, or out of the document when it has none. It stays alive as long as the
    /// document. Null is ignored.
    void removeNode(QZeSvgNode *node);
    /// @}

    /// @name Mapping between object coordinates and document units
    /// @{

    /// A point of the object in document units. Without a page object the two are the same.
    QPointF mapToSVG(QPointF pos);
    /// Lengths; negative for a positive one when the axis is mirrored.
    double mapXToSVG(double length);
    /// As mapXToSVG(), along y.
    double mapYToSVG(double length);
    /// Lengths; ignores the mirror state.
    double mapXToObject(double length);
    /// As mapXToObject(), along y.
    double mapYToObject(double length);
    /// @}

    /// @name Resizing the visible part of the document
    /// @{

    /// Moves the view box by `offset` and grows it by (dw, dh), document units; with `updateObject` the page object
    /// is moved and resized so that the drawing stays where it was on the page.
    void adjustSvgPosition(QPointF offset, double dw, double dh, bool updateObject);
    /// Makes the view box equal to `rect`.
    void adjustSvgPosition(QRectF rect, bool updateObject);
    /// Grows the view box by (dw, dh), document units, and leaves its top-left corner in place.
    void resizeSVG(double dw, double dh, bool updateObject);
    /// @}

    /// @name Property items
    /// @{

    /// Appends the items of fill, pen colour, pen style and pen width that the flags enable.
    void initCommonPropItems();
    /// The first item with that id; null when there is none.
    CSVGPropItem *findPropItemByPropID(int propId);
    /// Changes the name, a localisation key, of the first item with that id; ignored when there is none.
    void changePropName(int propId, const QString &name);
    /// Deletes all items and withdraws their ids from the page object.
    void clearPropItems();
    /// @}

    /// Sets the fill of the whole drawing and nothing else.
    void updateBrush(const QBrush &brush);

    /// @name Undo and playback record
    /// @{

    /// Pushes the command on the host's undo stack, which owns it from then on. Null is ignored.
    void addUndoRedo(CSVGBaseUndoCmd *command);
    /// Records the colour.
    void RecordColor(QColor value, int actionId);
    /// Records the brush.
    void RecordBrush(const QBrush &value, int actionId);
    /// Records the number as qint32.
    void RecordInt(int value, int actionId);
    /// Records the number.
    void RecordDouble(double value, int actionId);
    /// Records the truth value.
    void RecordBool(bool value, int actionId);
    /// Records the text.
    void RecordString(const QString &value, int actionId);
    /// Hands an action with these bytes to the page object, which records it while a lesson is being recorded.
    void RecordDataBuffer(const QByteArray &data, int actionId);
    /// @}

    /// @name Outline
    /// @{

    /// Adds the outlines of everything visible in the document (document units), with winding fill. Null is
    /// ignored.
    void addAllItemsRegion(QPainterPath *path);
    /// The same for what is below a node. Null pointers are ignored.
    void addAllItemsRegion(QZeSvgStructureNode *node, QPainterPath *path);
    /// The outline mapped into the page object's client rectangle (item coordinates, never mirrored). False, with
    /// `path` untouched, without an outline or with an empty client rectangle.
    bool getOutlineRegion(QPainterPath *path);
    /// Adds a stroke along `source`, two units wider than the pen, to `target`. Null pointers are ignored.
    void addBorderPenWidthRegionImpl(QPainterPath *target, const QPainterPath *source);
    /// Adds the rectangles of the control points (document units) that the path doesn't contain yet. Null is
    /// ignored.
    void addAllControlPointsRegionImpl(QPainterPath *path);
    /// Does nothing; addBorderPenWidthRegionImpl() is for shapes whose region has the pen's width.
    void addBorderPenWidthRegion(QPainterPath *target, const QPainterPath *source);
    /// Does nothing; addAllControlPointsRegionImpl() is for shapes whose region has the control points.
    void addAllControlPointsRegion(QPainterPath *path);
    /// @}

    /// @name Painting
    /// @{

    /// Renders the page object's off-screen picture anew and tells the host that the look changed.
    void invalidate();
    /// The page object was selected or deselected: control points show only while it is selected.
    void setSelected(bool selected);
    /// The document of the page object's page, else the current one of the application; null before there is one.
    IDocument *getBelongDoc();
    /// The first visible view of the list; null when none is.
    QGraphicsView *findFirstVisibleView(QList<QGraphicsView *> &views);
    /// @}

    /// @name Animation
    /// @{

    /// False when the template contains no animation.
    bool startAnimate();
    /// Always false.
    bool stopAnimate();
    /// Whether the shape's animation runs.
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

    /// Reads a list of numbers as in path data, and leaves `str` on the first character that cannot start one.
    /// `str` must point into zero-terminated text; a null pointer gives no number.
    QVector<double> parseNumbersList(const QChar *&str);
    /// The numbers as path data, six significant digits each. Only a positive number gets a blank before it: 0 must
    /// not follow another number.
    QString numbersToString(QVector<double> numbers);
    /// @}

    /// @name Stretching path data
    /// @{

    /// The path with its start point, which must be an absolute "M", moved by (dx, dy). Text without it is returned
    /// unchanged.
    QString changePathBeginPoint(QString path, double dx, double dy);
    /// The path with its first relative horizontal piece ("h", else "l") longer by `delta`, in the piece's own
    /// direction; one of length 0 grows forward. Text without such a piece is returned unchanged.
    QString changePathWidth(QString path, double delta);
    /// The same for every such piece that begins at the character `from` or later.
    QString changePathWidth(QString path, double delta, int from);
    /// As changePathWidth() for vertical pieces ("v", else "l").
    QString changePathHeight(QString path, double delta);
    /// The same for every such piece that begins at the character `from` or later.
    QString changePathHeight(QString path, double delta, int from);
    /// @}

protected:
    // The order of the members is part of the binary interface.
    IDocument *belongDoc = nullptr;         ///< found lazily by getBelongDoc(); not owned; null again when it dies
    CSVGObj *owner;                         ///< not owned
    QZeSvgTinyDocument *document = nullptr; ///< owned
    QPointF lastMousePos;                   ///< press position of a control-point drag, object coordinates
    QZeSvgNode *activeControlPoint = nullptr; ///< the control point being dragged
    bool flipHorizontal = false;              ///< mirrored left to right
    bool flipVertical = false;                ///< mirrored top to bottom
    QPointF dragStartPos;              ///< top-left of the active control point when its drag began, document units
    QZeSvgNode **controlPoints;        ///< 32 entries; entry i is "control_{i + 1}"
    quint32 controlPointCount = 0;     ///< of the template or of the loaded data
    QVector<CSVGPropItem *> propItems; ///< owned
    bool propPenEnabled = true;        ///< the panels offer the pen's colour
    bool propPenStyleEnabled = false;  ///< the panels offer the pen's style
    bool propPenWidthEnabled = false;  ///< the panels offer the pen's width
    bool propFillEnabled = false;      ///< the panels offer the fill
    QPainterPath *outlineRegion = nullptr; ///< document units; owned
    bool keepOutlineRegion = false;        ///< whether the shape has an outline at all
    bool resizeRewritesSVG = false;        ///< whether size changes of the page object reach setSize()
    double controlPointSize = 8.0;         ///< side, document units
    double dragXMin = -1000000.0;          ///< limits of the drag, document units
    double dragXMax = 1000000.0;           ///< see dragXMin
    double dragYMin = -1000000.0;          ///< see dragXMin
    double dragYMax = 1000000.0;           ///< see dragXMin
    bool keepAspectRatio = true;           ///< resizing keeps the proportions of the page object
    bool rawControlPoints = false;         ///< control points follow the pen width and are stored as they stand
    bool externallyFilled = false;         ///< see setExternalFilled()
    double zoomRate;                       ///< pixels per scene unit when control points were last sized
    CSVGAnimate *animator = nullptr;       ///< owned
    bool updateFinished = true;            ///< false between press and release
    int savedPenStyleIndex = 0;            ///< noted by ACT_SVG_STYLE_SNAPSHOT: the style less one
    QColor savedPenColor;                  ///< noted by ACT_SVG_STYLE_SNAPSHOT
    QBrush savedFillBrush;                 ///< noted by ACT_SVG_STYLE_SNAPSHOT

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

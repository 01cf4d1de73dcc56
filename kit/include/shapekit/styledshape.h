#pragma once

#include <shapekit/shapekit_global.h>

#include <svgobj/csvgbase.h>

#include <framework/operationtype.h>

#include <QtCore/QVector>
#include <QtGui/QTransform>

namespace shapekit {

struct Kind;
class Text;

/// A place where a line to another object may end, document units.
struct Connection
{
    QString name;   ///< unique within the shape; saved with the line that ends there
    QPointF place;  ///< where it ends
    double out = 0; ///< the direction of a line that leaves, degrees clockwise from the right; NaN for any
};

/// A text of a shape that the user writes, document units.
struct LabelPlace
{
    int propertyId = 0;       ///< of the text
    QString text;             ///< as it stands
    QRectF box;               ///< the lines break within it
    double fontSize = 0;      ///< height of the font
    bool isBold = false;      ///< weight of the font
    bool hasManyLines = true; ///< whether it may have several lines
    QColor color;             ///< of the letters
    Qt::Alignment alignment;  ///< in the box
};

/// A shape that takes its look from the template: which nodes follow the user's pen and fill, and who fills it.
///
/// The type number decides who fills a shape. For types up to 26 and for 1000 it is the page object, with
/// gradients, patterns and pictures; while such a shape is painted its document holds no brush, so the fill is
/// read, compared and changed at the page object. Other shapes are filled by their document. A template without any
/// fill gives a shape of lines: it offers no fill, and is hit on its lines alone.
///
/// Attributes of template nodes that are read here; those of a group apply to its contents:
/// - `keeps="fill"`, `keeps="stroke"`, `keeps="fill stroke"`: the node keeps its own fill or stroke, whatever the
/// user chooses;
/// - `fill_follows="pen"`: filled with the colour of the pen, as letters and arrow heads are;
/// - `stroke_follows="pen"`: a line in the colour of the pen, but of its own width and style, as fine ticks are.
class SHAPEKIT_EXPORT StyledShape : public CSVGBase
{
public:
    /// Whether the shape shows dropped and pasted pictures (takePicture()).
    static constexpr bool takesPictures = false;

    /// Without a document until loadSVG().
    StyledShape(CSVGObj *owner, int type);

    /// The kind as which the page object was made; it outlives the core. Null before that is set.
    const Kind *kind() const { return m_kind; }
    /// Sets it, once, before the template is loaded.
    void setKind(const Kind &kind) { m_kind = &kind; }
    /// Whether the page object can do an operation at present, of those that shapes can do.
    virtual bool permits(OperationType operation)
    {
        Q_UNUSED(operation)
        return true;
    }
    /// All texts that panels show for the shape's own properties.
    virtual QVector<const Text *> texts() const { return {}; }

    /// The shape as an SVG document of its page object's size, with the page object's fill and without control
    /// points. Empty without a document.
    virtual QByteArray toSvg();
    /// Shows a picture, SVG text; ignored by shapes that don't show pictures.
    virtual void takePicture(const QByteArray &svg);

    int getSVGType() override { return m_type; }
    /// The template of the kind.
    QString getSVG() override;
    bool loadSVG(bool initGlobals) override;
    /// Gives a new shape the page object's pen colour and the template's fill.
    void initGlobalPropValues() override;
    void initPropItems() override;
    /// The page object's fill brush if it fills the shape; no brush while its fill is off.
    QBrush getFillBrush() override;
    /// If the page object fills the shape: fills it with the brush's colour, or with nothing for Qt::NoBrush. A
    /// brush that makes no difference is neither recorded nor applied. With `notify`, which announces a fill that
    /// the page object got elsewhere, the shape always repaints.
    void setFillBrush(const QBrush &brush, bool record, bool notify) override;
    void setPenColor(QColor color, bool record) override;
    /// @name A colour that replaces a gradient, a pattern or a picture
    /// Its undo step holds the whole fill of the page object; a brush would restore only the colour.
    /// @{
    bool setInnerProperty(int propId, QDataStream &in, bool record, bool addUndo) override;
    bool DoPlaybackActionEx(int actionId, QDataStream &in) override;
    /// @}
    /// @name Special properties that the host asks of every animated object (pagehost::SpecialProperty)
    /// @{
    bool GetSpecialProperty(int propId, QDataStream &out) override;
    bool SetSpecialProperty(int propId, QDataStream &in, bool record) override;
    /// @}
    /// The outline is that of the nodes whose id is "figure" or begins with "figure_"; without such nodes, of the
    /// whole template except control points, which are never filled.
    void updateOutlineRegion() override;
    /// Without a fill, that of the lines and of labels with letters alone.
    bool getOutlinePath(QPainterPath *path) override;
    /// Answer to pagehost::PaintedArea: a box, item coordinates, around all lines and texts with their pens, and
    /// around the area where the shape can be hit.
    virtual QRectF paintedArea();
    /// Tells the user the effect of the present drag; empty for nothing to say.
    virtual QString dragHint() { return {}; }
    /// Tells the user what a control point sets at present; empty for nothing to say.
    virtual QString pointHint(int number)
    {
        Q_UNUSED(number)
        return {};
    }
    /// Places for lines to other objects: the middles of the sides, named "left", "top", "right" and "bottom".
    virtual QVector<Connection> connections();
    /// Texts that are written on the page, last drawn last.
    virtual QVector<LabelPlace> labelPlaces() { return {}; }
    /// Draws the shape without the letters of the label with that property until it is called again; 0 for with
    /// all. False for a shape that can't.
    virtual bool hideLabel(int propertyId)
    {
        Q_UNUSED(propertyId)
        return false;
    }
    /// Whether the shape is reading its data; its owner renders its picture afterwards.
    bool isReadingData() const { return isBeingLoaded; }
    /// Brings the document up to date before it is used; for shapes that defer drawing.
    virtual void settleDrawing() {}

protected:
    /// Fills the document with the page object's fill, a gradient from edge to edge of the document. The base class
    /// would keep the style of a fill of the same colour, and place a gradient relative to the page object.
    void takePageFill();
    /// Reloads the template after it has changed. No control point may be in use.
    void reloadTemplate();
    /// The part of the document that covers the page object, document units.
    virtual QRectF drawnArea();
    /// The size that the template asks for.
    QSizeF naturalSize() const;
    /// Set by shapes whose nodes all keep their own look.
    bool keepsItsLook = false;
    /// Set while the shape reads its data; it draws and repaints once, when everything is read.
    bool isBeingLoaded = false;

    /// Whether the type is one that the page object fills.
    bool isFilledByPageObject() const;
    /// The mapping of the drawing to the page object as it is seen: mirroring is part of how a shape is painted.
    QTransform seenMapping();
    /// The same for control points, which a drawing scale leaves alone.
    QTransform seenPointMapping();
    /// The mapping that stretches a non-empty view box over a rectangle.
    static QTransform stretching(const QRectF &box, const QRectF &target);
    /// Painted area of a node with all that it contains, document units; empty while it is hidden.
    static QRectF paintedBoundsOf(const QZeSvgNode &node);
    /// A node of the template; null, with a report, when no node has that id.
    QZeSvgNode *node(const char *id) const;
    /// Reports an error of the template or its use, once for all shapes of the kind.
    void reportError(const char *code, const QString &element, const QString &text) const;

private:
    QTransform mirroring() const;
    void writeConnections(QDataStream &out);
    void writeControlPoints(QDataStream &out);
    QPointF pressPlace(int index, const QTransform &toObject) const;
    int pressedPoint(QPointF place) const;
    QPainterPath connectionOutline();
    /// Whether presses between the lines are meant for the shape.
    bool isHitInside();
    bool takeLines(QPainterPath *path);
    void writeLabels(QDataStream &out);
    bool writeLabel(QDataStream &in, bool record);
    void play(bool on);
    void readLook();
    void colorPenFollowers();
    /// Reads a fill as the library does, without applying it. False when the stream doesn't hold a complete one.
    bool readFill(QDataStream &in, QBrush &fill);
    void fillPageObject(const QBrush &brush);
    /// Whether the fill is more than a brush can describe.
    bool hasRichFill() const;

    void reportUnreadTemplate(const QString &text) const;

    int m_type;
    const Kind *m_kind = nullptr;
    bool m_lookRead = false;
    QBrush m_templateFill;
    QBrush *m_fillBeingRead = nullptr; ///< receives the brush of setFillBrush() while readFill() runs
    /// A painted node, and the reach of its stroke in stroke widths.
    struct PaintedNode
    {
        const QZeSvgNode *node;
        double reach;
    };
    QVector<PaintedNode> m_painted; ///< without control points
    QVector<QZeSvgNode *> m_figures;
    QVector<QZeSvgNode *> m_pennedFills; ///< nodes filled with the colour of the pen
    QVector<QZeSvgNode *> m_pennedLines; ///< nodes whose stroke takes only the colour of the pen
};

} // namespace shapekit

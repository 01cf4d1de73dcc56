#pragma once

#include <svgobj/csvgbase.h>

#include <QtCore/QVector>
#include <QtGui/QTransform>

namespace shapekit {

/// A shape whose look is the template's: which of its nodes follow the user's pen and fill, and who fills it.
///
/// The type number decides who fills a shape. Up to 26 and 1000 it is the page object, with gradients, patterns and
/// pictures; while such a shape is painted its document holds no brush, so that the fill is read, compared and
/// changed at the page object. Other shapes are filled by their document. A template without any fill makes a shape
/// of lines: it offers no fill, and is hit on its lines alone.
///
/// Attributes of template nodes that are read here; those of a group hold for all that is in it:
/// - `keeps="fill"`, `keeps="stroke"`, `keeps="fill stroke"`: that look is the node's own, whatever the user
/// chooses;
/// - `fill_follows="pen"`: filled with the colour of the pen, as letters and arrow heads are;
/// - `stroke_follows="pen"`: a line in the colour of the pen, but of its own width and style, as fine ticks are.
class StyledShape : public CSVGBase
{
public:
    /// Whether the shape shows pictures from elsewhere (takePicture()).
    static constexpr bool takesPictures = false;

    StyledShape(CSVGObj *owner, int type);

    /// The shape as an SVG document of its page object's size, with the page object's fill and without control
    /// points. Empty without a document.
    virtual QByteArray toSvg();
    /// Shows SVG text; shapes that do not show pictures ignore it.
    virtual void takePicture(const QByteArray &svg);

    int getSVGType() override { return m_type; }
    /// The template of the kind.
    QString getSVG() override;
    /// A new shape has the page object's pen colour and the template's fill.
    void initGlobalPropValues() override;
    void initPropItems() override;
    /// The page object's fill brush, no brush while its fill is off, where the page object fills the shape.
    QBrush getFillBrush() override;
    /// Where the page object fills the shape: fills it with the brush's colour, or with nothing for Qt::NoBrush. A
    /// brush that makes no difference is neither recorded nor applied. With `notify`, which is how the page object
    /// tells of a fill that it got elsewhere, the shape repaints in any case.
    void setFillBrush(const QBrush &brush, bool record, bool notify) override;
    void setPenColor(QColor color, bool record) override;
    /// @name A colour that replaces a gradient, a pattern or a picture
    /// Its undo step holds the whole fill of the page object, of which a brush would bring only the colour back.
    /// @{
    bool setInnerProperty(int propId, QDataStream &in, bool record, bool addUndo) override;
    bool DoPlaybackActionEx(int actionId, QDataStream &in) override;
    /// @}
    /// @name Besides properties of the shape: what the host asks of every object that moves
    /// (pagehost::SpecialProperty)
    /// @{
    bool GetSpecialProperty(int propId, QDataStream &out) override;
    bool SetSpecialProperty(int propId, QDataStream &in, bool record) override;
    /// @}
    /// The outline is that of the nodes whose id is "figure" or begins with "figure_"; control points are no part
    /// of what is filled. A template without such nodes has the outline of everything in it.
    void updateOutlineRegion() override;
    /// What the host asks for as pagehost::PaintedArea: a box, item coordinates, around all lines and texts with
    /// the pens that they have, and around where the shape can be hit.
    virtual QRectF paintedArea();
    /// Whether the shape is reading its data, after which its owner makes a picture of it.
    bool isReadingData() const { return isBeingLoaded; }
    /// Brings the document up to date before somebody looks at it; for shapes that put that off.
    virtual void settleDrawing() {}

protected:
    /// Fills the document as the page object's fill says, a gradient from edge to edge of the document: the base
    /// class keeps the style of a fill of the same colour, and lays a gradient where the page object is.
    void takePageFill();
    /// Reads the template anew, which has become another. No control point may be in use.
    void reloadTemplate();
    /// The part of the document that fills the page object, document units.
    virtual QRectF drawnArea();
    /// The size that the template asks for.
    QSizeF naturalSize() const;
    /// Set by a shape whose nodes all keep their own look.
    bool keepsItsLook = false;
    /// Set while the shape reads its data: it draws and repaints once, when all of it is known.
    bool isBeingLoaded = false;

    bool isFilledByPageObject() const;
    /// How a view box, which is not empty, is stretched over a rectangle.
    static QTransform stretching(const QRectF &box, const QRectF &target);
    /// A node of the template; null when there is none of that id.
    QZeSvgNode *node(const char *id) const;

private:
    void play(bool on);
    void readLook();
    void colorPenFollowers();
    /// Reads a fill as the library does, and applies nothing. False when the stream does not hold a whole one.
    bool readFill(QDataStream &in, QBrush &fill);
    void fillPageObject(const QBrush &brush);
    /// Whether a brush could not say how the shape is filled.
    bool hasRichFill() const;

    int m_type;
    bool m_lookRead = false;
    QBrush m_templateFill;
    QBrush *m_fillBeingRead = nullptr; ///< takes what setFillBrush() gets, while readFill() runs
    /// What is painted, and how far a line around it reaches as a part of its width.
    struct PaintedNode
    {
        const QZeSvgNode *node;
        double reach;
    };
    QVector<PaintedNode> m_painted; ///< without control points
    QVector<QZeSvgNode *> m_figures;
    QVector<QZeSvgNode *> m_pennedFills; ///< nodes that are filled with the colour of the pen
    QVector<QZeSvgNode *> m_pennedLines; ///< nodes whose lines have the colour of the pen and nothing else of it
};

} // namespace shapekit

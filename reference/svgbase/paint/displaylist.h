#pragma once

#include "paint/damage.h"
#include "paint/keptpicture.h"
#include "paint/mappingbudget.h"
#include "paint/patternpaint.h"
#include "raster/flatoutline.h"
#include "resolve/images.h"
#include "resolve/settledtree.h"
#include "scene/drawreport.h"

#include <memory>

namespace Svg {

struct LayerEffects;

/// What an image shows, scaled down where it is much larger than its place, and where it goes.
struct ShownPicture : QSharedData
{
    ImagePointer content;
    /// From pixels of the content to the units of the target, and from these to those of the element.
    QTransform fit;
    QTransform toElement;
    QImage image;
    /// The part that is shown, pixels, and where that goes.
    QRectF source;
    QRectF target;
    /// From the units of the target to the painter's.
    QTransform toPainter;
};

/// One thing to paint, with its outline and pens mapped to the painter's coordinates.
struct DisplayItem
{
    enum Kind { Shape, Image, BeginLayer, EndLayer };
    Kind kind = Shape;
    /// A shape of a clip path: its outline is filled by the clip rule, whatever its paint.
    bool silhouette = false;
    /// Where the item comes from; the same origin under the same mapping gives the same picture.
    NodeIndex node = noNode;
    FactsPointer facts;
    StyleOverridePointer override;
    int outline = 0;
    /// Which of both the item paints; the order may be the other way round than painters have it.
    bool paintsFill = true;
    bool paintsStroke = true;
    bool smooth = true;
    /// In the place of a brush; null where the outline's own paint counts.
    PatternPointer fillPattern;
    PatternPointer strokePattern;
    /// Of a layer, or of a shape that is not painted into a layer of its own.
    double opacity = 1;
    /// What happens to the picture of a layer besides; null for nothing.
    std::shared_ptr<LayerEffects> effects;
    /// Of a layer: the place of its end in the list.
    int end = 0;
    /// A control point is counter-scaled about its centre, document units.
    bool control = false;
    QPointF controlCentre;

    bool mapped = false;
    /// Whether another list took over what is mapped here.
    bool takenOver = false;
    /// Whether painting a part of the item may give other pixels than painting all of it: steps along a gradient or
    /// a pattern are counted from where a row begins, and lines with hard edges or without round ends from where
    /// they enter the clip.
    bool isIndivisible = false;
    QPainterPath path;
    /// Where the mapped outline is not kept: what it is mapped with when it is painted. Else null.
    MappingPointer mapping;
    /// Of the mapped outlines, kept or not.
    int elementCount = 0;
    QBrush fill;
    QPen pen;
    /// The pen as it is in the units of the element, and how far it reaches beyond the outline along the axes,
    /// painter units.
    QPen strokedWith = Qt::NoPen;
    QSizeF strokeReach{0, 0};
    /// Outline of the stroke, where the mapping distorts it so that no pen can draw it.
    QPainterPath strokePath;
    /// The outlines as they are painted in plain colours; null before that.
    mutable std::shared_ptr<const FlatShape> flat;
    /// How far the outlines go along the axes, painter units.
    double outlineLength = 0;
    /// Segments, and dashes, that a pen goes along.
    double strokedPieces = 0;
    /// Null for all but images.
    QSharedDataPointer<ShownPicture> picture;
    /// Everything that the item paints, painter coordinates.
    QRectF bounds;
};

/// What a document amounts to under one mapping: a flat list to paint from front to back. Items whose origin did
/// not change keep their mapped outlines, and the part of the picture that they alone cover.
class DisplayList
{
public:
    /// Brings the list up to date. `stretch` maps the document to the target, `world` the target to the painter's
    /// coordinates; control points keep their size under the first.
    void update(SettledTree &document, const QTransform &stretch, const QTransform &world);

    /// Paints the items, then the control points if they are wanted. The painter's world transform must be the
    /// identity.
    void paint(QPainter *painter, bool withControlPoints);
    /// The pixels that the last paint() painted where it could have copied others; empty where nothing changed.
    const QVector<QRect> &repainted() const { return m_repainted; }
    /// What was left out when the list was built and painted last.
    QVector<Message> messages(const Tree &tree) const;
    /// Memory that the list takes, bytes, estimated.
    int weight() const;

private:
    QRectF paintedBounds(bool withControlPoints) const;
    double paintAll(QPainter *painter, bool withControlPoints);
    void reportPainting(const PaintBudget &budget);
    void paintAndKeep(QPainter *painter, const QImage &target, bool withControlPoints);
    void repair(QPainter *painter, QImage *target, bool withControlPoints);
    QVector<QRect> damagedParts(bool withControlPoints) const;
    void replaceItems(QVector<DisplayItem> *items, QVector<DisplayItem> fresh, const QTransform &stretch,
                      const QTransform &world);

    QVector<DisplayItem> m_items;
    QVector<DisplayItem> m_controlPoints;
    KeptPicture m_picture;
    std::shared_ptr<PatternTiles> m_tiles;
    MappingBudget m_mapping;
    DrawReport m_buildReport;
    DrawReport m_paintReport;
    /// What changed since the picture was kept.
    Damage m_damage;
    QVector<QRect> m_repainted;
    /// What painting the kept picture, and all repairs since, took of what painting may take; 1 is all of it.
    double m_effort = 0;
    /// How often it was painted, more than once counting as twice.
    int m_paintings = 0;
    QTransform m_stretch;
    QTransform m_world;
    quint32 m_revision = 0;
    bool m_built = false;
};

} // namespace Svg

Q_DECLARE_TYPEINFO(Svg::DisplayItem, Q_MOVABLE_TYPE);

#pragma once

#include "paint/damage.h"
#include "paint/keptpicture.h"
#include "paint/mappeditem.h"
#include "paint/patterntiles.h"
#include "resolve/settledtree.h"
#include "scene/drawreport.h"

namespace Svg {

/// A document under one mapping: a flat list to paint from front to back. Items whose origin did not change keep
/// their mapped outlines, and the part of the picture that they alone cover.
class DisplayList
{
public:
    /// Brings the list up to date. `stretch` maps the document to the target, `world` the target to the painter's
    /// coordinates; control points keep their size under the first.
    void update(SettledTree &document, const QTransform &stretch, const QTransform &world);

    /// Paints the items, then the control points if wanted. The painter's world transform must be the identity.
    void paint(QPainter *painter, bool withControlPoints);
    /// The pixels that the last paint() painted instead of copying; empty when nothing had changed.
    const QVector<QRect> &repainted() const { return m_repainted; }
    /// Parts left out when the list was last built and painted.
    QVector<Message> messages(const Tree &tree) const;
    /// Estimated memory of the list, bytes.
    int weight() const;

private:
    QRectF paintedBounds(bool withControlPoints) const;
    double paintAll(QPainter *painter, bool withControlPoints);
    void reportPainting(const PaintBudget &budget);
    bool isMostOfArea(const QVector<QRect> &parts) const;
    void paintWhole(QPainter *painter, bool withControlPoints);
    void paintAndKeep(QPainter *painter, const QImage &target, bool withControlPoints);
    void repair(QPainter *painter, QImage *target, bool withControlPoints);
    QVector<QRect> damagedParts(bool withControlPoints) const;
    void map(MappedItems *items);
    void replaceItems(MappedItems *items, const DisplayItems &built);

    MappedItems m_items;
    MappedItems m_controlPoints;
    KeptPicture m_picture;
    PatternTiles m_tiles;
    MappingBudget m_mappingBudget;
    DrawReport m_buildReport;
    DrawReport m_paintReport;
    /// Changes since the picture was kept.
    Damage m_damage;
    QVector<QRect> m_repainted;
    /// Share of the painting budget used by the kept picture and all repairs since; 1 is all of it.
    double m_effort = 0;
    /// How often it was painted, counted up to two.
    int m_paintings = 0;
    Mapping m_mapping;
    quint32 m_revision = 0;
    bool m_built = false;
};

} // namespace Svg

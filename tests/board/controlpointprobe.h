#pragma once

#include <QtCore/QPointF>
#include <QtCore/QVector>

class CBaseObject;
class CSVGBase;
class QZeSvgNode;

namespace boardtest {

/// Sees the control points of a shape as the library knows them.
class ControlPointProbe
{
public:
    /// The object must be one of the library's.
    explicit ControlPointProbe(CBaseObject *object);

    int count() const;
    /// Centre of control point `index` (from 0), scene coordinates, mirroring and rotation included.
    QPointF sceneCentre(int index) const;
    /// Side of its square, document units.
    double documentSide(int index) const;
    bool canMoveHorizontally(int index) const;
    bool canMoveVertically(int index) const;
    /// How the centre moves in the scene when the control point moves by one unit along the document's axis.
    QPointF sceneStepX(int index) const;
    QPointF sceneStepY(int index) const;
    /// Document units that the control point may still move along an axis: the way to the nearer of 0 and to the
    /// limit that is farther away, with its sign.
    double roomX(int index) const;
    double roomY(int index) const;
    /// Whether the point stands where the shape says that it may be.
    bool isWithinLimits(int index) const;

private:
    QZeSvgNode *node(int index) const;
    QPointF documentCentre(int index) const;
    QPointF toScene(const QPointF &documentPoint) const;

    CBaseObject *m_object;
    CSVGBase *m_core;
};

} // namespace boardtest

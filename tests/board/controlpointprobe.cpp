#include <board/controlpointprobe.h>

#include <svgobj/csvgbase.h>
#include <svgobj/csvgobj.h>

#include <svgbase/qzesvgtinydocument.h>

namespace boardtest {

namespace {

/// Protected members that the probe has to see.
struct ObjectAccess : CSVGObj
{
    static CSVGBase *coreOf(CSVGObj &object) { return object.*(&ObjectAccess::svgBase); }
};

struct CoreAccess : CSVGBase
{
    static QZeSvgTinyDocument *documentOf(CSVGBase &core) { return core.*(&CoreAccess::document); }
    static quint32 countOf(CSVGBase &core) { return core.*(&CoreAccess::controlPointCount); }
    static QZeSvgNode *nodeOf(CSVGBase &core, int index) { return (core.*(&CoreAccess::controlPoints))[index]; }
};

/// The larger of the ways to the two limits, with its sign.
double widerRoom(double position, double minimum, double maximum)
{
    return maximum - position >= position - minimum ? maximum - position : minimum - position;
}

} // namespace

ControlPointProbe::ControlPointProbe(CBaseObject *object)
    : m_object(object)
    , m_core(ObjectAccess::coreOf(dynamic_cast<CSVGObj &>(*object)))
{
}

int ControlPointProbe::count() const
{
    return int(CoreAccess::countOf(*m_core));
}

QZeSvgNode *ControlPointProbe::node(int index) const
{
    return CoreAccess::nodeOf(*m_core, index);
}

QPointF ControlPointProbe::documentCentre(int index) const
{
    return node(index)->boundingRect().center();
}

QPointF ControlPointProbe::toScene(const QPointF &documentPoint) const
{
    const QRectF box = CoreAccess::documentOf(*m_core)->viewBox();
    const QRectF client = m_object->getClientRect();
    QPointF item((documentPoint.x() - box.x()) * client.width() / box.width(),
                 (documentPoint.y() - box.y()) * client.height() / box.height());
    if (m_object->isMirrored())
        item.setX(client.width() - item.x());
    if (m_object->isFlipped())
        item.setY(client.height() - item.y());
    return m_object->mapToScene(item);
}

QPointF ControlPointProbe::sceneCentre(int index) const
{
    return toScene(documentCentre(index));
}

double ControlPointProbe::documentSide(int index) const
{
    return node(index)->boundingRect().width();
}

bool ControlPointProbe::canMoveHorizontally(int index) const
{
    return node(index)->canMoveHorizontally();
}

bool ControlPointProbe::canMoveVertically(int index) const
{
    return node(index)->canMoveVertically();
}

QPointF ControlPointProbe::sceneStepX(int index) const
{
    return toScene(documentCentre(index) + QPointF(1, 0)) - sceneCentre(index);
}

QPointF ControlPointProbe::sceneStepY(int index) const
{
    return toScene(documentCentre(index) + QPointF(0, 1)) - sceneCentre(index);
}

double ControlPointProbe::roomX(int index) const
{
    const double x = node(index)->boundingRect().x();
    return widerRoom(x, m_core->getXMin(node(index)), m_core->getXMax(node(index)));
}

bool ControlPointProbe::isWithinLimits(int index) const
{
    constexpr double rounding = 1e-6;
    const QPointF corner = node(index)->boundingRect().topLeft();
    const QRectF limits(QPointF(m_core->getXMin(node(index)), m_core->getYMin(node(index))),
                        QPointF(m_core->getXMax(node(index)), m_core->getYMax(node(index))));
    return limits.adjusted(-rounding, -rounding, rounding, rounding).contains(corner);
}

double ControlPointProbe::roomY(int index) const
{
    const double y = node(index)->boundingRect().y();
    return widerRoom(y, m_core->getYMin(node(index)), m_core->getYMax(node(index)));
}

} // namespace boardtest

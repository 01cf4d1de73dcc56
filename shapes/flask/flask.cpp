#include <flask/flask.h>

#include <kit/pathtext.h>
#include <kit/templatetext.h>

#include <svgobj/csvgobj.h>

#include <svgbase/qzesvgtinydocument.h>

#include <algorithm>

namespace {

// The inside of the glass, document units.
constexpr double axis = 60;
constexpr double shoulder = 52;
constexpr double shoulderHalf = 10;
constexpr double slopeEnd = 134;
constexpr double slopeEndHalf = 42.5;
constexpr double ground = 146;
constexpr double groundHalf = 35;
constexpr double groundCornerHalf = 47;
/// The surface hangs through by this much in the middle.
constexpr double surfaceSag = 4;
constexpr double highestLevel = 60;
constexpr double lowestLevel = 126;

/// Half the inner width of the glass at `y`.
double halfWidthAt(double y)
{
    return shoulderHalf + (y - shoulder) * (slopeEndHalf - shoulderHalf) / (slopeEnd - shoulder);
}

QString liquidPath(double level)
{
    const double half = halfWidthAt(level);
    shapekit::PathText path;
    path.moveTo({axis - half, level})
        .lineTo({axis - slopeEndHalf, slopeEnd})
        .curveTo({axis - groundCornerHalf, ground}, {axis - groundHalf, ground})
        .lineTo({axis + groundHalf, ground})
        .curveTo({axis + groundCornerHalf, ground}, {axis + slopeEndHalf, slopeEnd})
        .lineTo({axis + half, level})
        .curveTo({axis, level + surfaceSag}, {axis - half, level})
        .close();
    return path.text();
}

} // namespace

Flask::Flask(CSVGObj *owner)
    : CSVGBase(owner)
{
    propPenEnabled = true;
    propPenStyleEnabled = true;
    propPenWidthEnabled = true;
    propFillEnabled = true;
    keepOutlineRegion = true;
    // Pixels until here; the painting step only follows later changes of the zoom.
    controlPointSize /= zoomRate;
}

QString Flask::getSVG()
{
    return shapekit::templateText(QStringLiteral(":/gliololok/flask/template.svg"));
}

bool Flask::loadSVG(bool initGlobals)
{
    const bool loaded = CSVGBase::loadSVG(initGlobals);
    exemptDecoration();
    updateSVG(false);
    return loaded;
}

void Flask::initGlobalPropValues()
{
    exemptDecoration();
    setPenColor(owner->getMyPen().color(), false);
}

bool Flask::updateSVG(QZeSvgNode *node, QPointF, bool refresh)
{
    if (!node || node != controlPoints[0])
        return false;
    const QRectF place = node->boundingRect();
    if (node == activeControlPoint)
        m_dragged.noteDrag(dragStartPos, place);
    const QPointF centre = m_dragged.meantCentre(place);
    node->setNumericAttribute(QStringLiteral("x"), centre.x() - place.width() / 2);
    node->setNumericAttribute(QStringLiteral("y"), centre.y() - place.height() / 2);
    return updateSVG(refresh);
}

bool Flask::updateSVG(bool refresh)
{
    if (!controlPoints[0])
        return false;
    pourTo(controlPoints[0]->boundingRect().center().y());
    if (refresh)
        invalidate();
    return true;
}

bool Flask::updateAllControlPoints(bool refresh, bool)
{
    return updateSVG(refresh);
}

void Flask::exemptDecoration()
{
    if (!document)
        return;
    for (const char *id : {"glass_tint", "bubble_1", "bubble_2", "bubble_3", "marks", "shine"}) {
        if (QZeSvgNode *node = document->namedNode(QLatin1String(id))) {
            node->setFillEnabled(false);
            node->setStrokeEnabled(false);
        }
    }
}

void Flask::pourTo(double level)
{
    if (QZeSvgNode *liquid = document->namedNode(QStringLiteral("liquid")))
        liquid->setAttribute(QStringLiteral("d"), liquidPath(std::clamp(level, highestLevel, lowestLevel)));
}

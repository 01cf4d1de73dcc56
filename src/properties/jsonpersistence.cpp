// Saves and loads the state of a shape as members of the page object's JSON object: the same values as the stream.

#include <svgobj/csvgbase.h>

#include <framework/ijsonutil.h>

#include <svgbase/qzesvgtinydocument.h>

#include "properties/namedcolor.h"
#include "properties/penstyle.h"
#include "shape/controlpoints.h"
#include "shape/viewbox.h"

namespace {

const QString viewBoxKey = QStringLiteral("SVG_viewBox");
const QString controlCountKey = QStringLiteral("SVG_ControlCount");
const QString fillEnabledKey = QStringLiteral("SVG_PropFillEnabled");
const QString penEnabledKey = QStringLiteral("SVG_PropPenEnabled");
const QString penColorKey = QStringLiteral("SVG_PenColor");
const QString penStyleEnabledKey = QStringLiteral("SVG_PropPenStyleEnabled");
const QString penStyleKey = QStringLiteral("SVG_PenStyle");
const QString penWidthEnabledKey = QStringLiteral("SVG_PropPenWidthEnabled");
const QString penWidthKey = QStringLiteral("SVG_PenWidth");

QString pointKey(const QString &prefix, quint32 number)
{
    return QStringLiteral("%1_%2").arg(prefix).arg(number);
}

QString xKey(quint32 number)
{
    return pointKey(QStringLiteral("SVG_PosX"), number);
}

QString yKey(quint32 number)
{
    return pointKey(QStringLiteral("SVG_PosY"), number);
}

} // namespace

bool CSVGBase::saveJson(QJsonObject &object)
{
    if (rawControlPoints)
        object[viewBoxKey] = GetJsonUtil()->variantToJson(settledViewBox(document));
    // Without a document there are no points, whatever count was loaded.
    const quint32 count = document ? controlPointCount : 0;
    object[controlCountKey] = int(count);
    for (quint32 i = 1; i <= count; ++i) {
        const QZeSvgNode *node = document->namedNode(controlPointId(i));
        if (!node)
            continue;
        object[xKey(i)] = node->boundingRect().x();
        object[yKey(i)] = node->boundingRect().y();
    }
    object[fillEnabledKey] = propFillEnabled;
    object[penEnabledKey] = propPenEnabled;
    if (propPenEnabled)
        object[penColorKey] = getPenColor().name(QColor::HexArgb);
    object[penStyleEnabledKey] = propPenStyleEnabled;
    if (propPenStyleEnabled)
        object[penStyleKey] = int(getPenStyle());
    object[penWidthEnabledKey] = propPenWidthEnabled;
    if (propPenWidthEnabled)
        object[penWidthKey] = getPenWidth();
    return true;
}

// Reads keys through the modifying operator, which deliberately adds missing ones as null.
bool CSVGBase::loadJson(QJsonObject &object)
{
    if (rawControlPoints)
        setViewBoxOf(document, GetJsonUtil()->jsonToVariant(object[viewBoxKey].toObject()).toRectF());
    controlPointCount = quint32(qBound(0, object[controlCountKey].toInt(), int(maxControlPoints)));
    for (quint32 i = 1; i <= controlPointCount; ++i) {
        QZeSvgNode *node = storedControlPoint(i);
        if (!node && i == 1)
            continue;
        const double x = object[xKey(i)].toDouble();
        const double y = object[yKey(i)].toDouble();
        if (node)
            placeStoredControlPoint(node, QPointF(x, y));
    }
    if (rawControlPoints)
        updateAllControlPoints(false, false);
    object[fillEnabledKey]; // read like the others, but the page object restores its own fill
    if (object[penEnabledKey].toBool())
        setPenColor(namedColor(object[penColorKey].toString()), false);
    if (object[penStyleEnabledKey].toBool())
        setPenStyle(penStyleFromInt(object[penStyleKey].toInt()), false);
    if (object[penWidthEnabledKey].toBool())
        setPenWidth(object[penWidthKey].toInt(), false);
    takeFillOfOwner();
    return true;
}

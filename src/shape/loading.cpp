// Lifetime of the shape core: construction, loading of the template and its control points, destruction.

#include <svgobj/csvganimate.h>
#include <svgobj/csvgbase.h>
#include <svgobj/csvgobj.h>

#include <svgbase/qzesvgtinydocument.h>

#include "shape/controlpoints.h"
#include "shape/emptytext.h"
#include "shape/livingcores.h"

namespace {

constexpr char fallbackTemplate[] =
    "<?xml version='1.0' encoding='utf-8'?>"
    "<svg version='1.1' xmlns='http://www.w3.org/2000/svg' x='0px' y='0px' width='20px' height='20px' "
    "viewBox='0 0 20 20'>"
    "</svg>";

QZeSvgTinyDocument *loadTemplate(const QString &text)
{
    if (QZeSvgTinyDocument *document = QZeSvgTinyDocument::load(text.toUtf8()))
        return document;
    return QZeSvgTinyDocument::load(fallbackTemplate);
}

} // namespace

CSVGBase::CSVGBase(CSVGObj *owner)
    : owner(owner)
    , controlPoints(new QZeSvgNode *[maxControlPoints]())
    , zoomRate(owner ? owner->getCurZoomRate() : 1.0)
{
    LivingCores::add(this);
}

CSVGBase::~CSVGBase()
{
    LivingCores::remove(this);
    delete document;
    clearPropItems();
    delete animator;
    animator = nullptr;
    delete outlineRegion;
    outlineRegion = nullptr;
    delete[] controlPoints;
}

bool CSVGBase::loadSVG(bool initGlobals)
{
    if (!document)
        document = loadTemplate(getSVG());
    if (document) {
        if (externallyFilled)
            document->setCallback([this](QPainter *painter) {
                if (owner)
                    owner->callback(painter);
            });
        discoverControlPoints();
        if (initGlobals)
            initGlobalPropValues();
        initPropItems();
    }
    // Even without a document: the page object's picture must be rendered.
    invalidate();
    return document != nullptr;
}

void CSVGBase::discoverControlPoints()
{
    controlPointCount = 0;
    for (quint32 i = 0; i < maxControlPoints; ++i) {
        QZeSvgNode *node = document->namedNode(controlPointId(i + 1));
        controlPoints[i] = node;
        if (!node)
            return;
        // Document-wide styling applies to the drawing, never to its control points.
        node->setFillEnabled(false);
        node->setStrokeEnabled(false);
        changeControlPointSize(node, controlPointSize, false);
        ++controlPointCount;
    }
}

QString CSVGBase::getSVG()
{
    return emptyText();
}

void CSVGBase::setExternalFilled(bool on)
{
    externallyFilled = on;
}

void CSVGBase::setFlipOn(bool horizontal, bool vertical)
{
    flipHorizontal = horizontal;
    flipVertical = vertical;
}

void CSVGBase::addNode(QZeSvgNode *node, const QString &id)
{
    if (!node)
        return;
    QZeSvgStructureNode *parent = node->parent();
    if (QZeSvgStructureNode *holder = parent ? parent : document)
        holder->addChild(node, id);
}

void CSVGBase::removeNode(QZeSvgNode *node)
{
    if (!node)
        return;
    QZeSvgStructureNode *parent = node->parent();
    if (QZeSvgStructureNode *holder = parent ? parent : document)
        holder->removeChild(node);
}

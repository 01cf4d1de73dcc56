#include "tag.h"

#include <svgbase/qzesvgtinydocument.h>

Tag::Tag(CSVGObj *owner)
    : CSVGBase(owner)
{
    keepAspectRatio = false;
}

QString Tag::getSVG()
{
    return QStringLiteral(
        "<svg xmlns='http://www.w3.org/2000/svg' viewBox='0 0 100 50'>"
        "<path d='M2 25L20 2H98V48H20Z' fill='#ffe9a8' stroke='#333333'/>"
        "<circle id='hole' cx='26' cy='25' r='5' fill='#ffffff' stroke='#333333'/>"
        "<rect id='control_1' x='22' y='21' width='8' height='8' y_move='0' x_from='20' x_to='80'/>"
        "</svg>");
}

bool Tag::updateSVG(QZeSvgNode *node, QPointF, bool refresh)
{
    document->namedNode(QStringLiteral("hole"))
        ->setNumericAttribute(QStringLiteral("cx"), node->boundingRect().center().x());
    if (refresh)
        invalidate();
    return true;
}

QPointF Tag::hole() const
{
    return document->namedNode(QStringLiteral("hole"))->boundingRect().center();
}

TagObject::TagObject()
    : CSVGObj(1001, true, nullptr)
{
    createSVGBase(40, true);
}

bool TagObject::createSVGBase(int, bool initGlobals)
{
    delete svgBase;
    svgBase = new Tag(this);
    return svgBase->loadSVG(initGlobals);
}

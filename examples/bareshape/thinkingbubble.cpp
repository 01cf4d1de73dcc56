#include "thinkingbubble.h"

#include <svgbase/qzesvgtinydocument.h>

#include <QtCore/QFile>

ThinkingBubble::ThinkingBubble(CSVGObj *owner)
    : CSVGBase(owner)
{
    keepAspectRatio = false;
    propPenStyleEnabled = true;
    propPenWidthEnabled = true;
    propFillEnabled = true;
    controlPointSize /= zoomRate; // in pixels up to here; later changes of the zoom are followed
}

QString ThinkingBubble::getSVG()
{
    QFile file(QStringLiteral(":/thinkingbubble/template.svg"));
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

bool ThinkingBubble::loadSVG(bool initGlobals)
{
    if (!CSVGBase::loadSVG(initGlobals))
        return false;
    // The user's fill applies to the bubble; the dots keep their own. A template that can't be read was replaced by
    // an empty document: no node is there for certain.
    for (const char *id : {"dot_1", "dot_2", "dot_3"})
        if (QZeSvgNode *dot = document->namedNode(QLatin1String(id)))
            dot->setFillEnabled(false);
    return true;
}

bool ThinkingBubble::updateSVG(QZeSvgNode *node, QPointF, bool refresh)
{
    if (!node || !document)
        return false;
    pointTo(node->boundingRect().center());
    if (refresh)
        invalidate();
    return true;
}

bool ThinkingBubble::updateAllControlPoints(bool refresh, bool)
{
    return controlPoints[0] && updateSVG(controlPoints[0], QPointF(), refresh);
}

void ThinkingBubble::pointTo(QPointF tip)
{
    const QString body = QStringLiteral("M20 5H120Q135 5 135 20V52Q135 67 120 67H%1H20Q5 67 5 52V20Q5 5 20 5Z");
    const QString tail = QStringLiteral("68L%1 %2L44 67").arg(tip.x()).arg(tip.y());
    const QPointF root(56, 67);
    const QPointF middle = root + (tip - root) / 2;
    const QString drops = QStringLiteral("M%1 %2a4 4 0 1 0 8 0a4 4 0 1 0 -8 0ZM%3 %4a2 2 0 1 0 4 0a2 2 0 1 0 -4 0Z")
                              .arg(middle.x() - 4)
                              .arg(middle.y())
                              .arg(tip.x() - 2)
                              .arg(tip.y());
    if (QZeSvgNode *bubble = document->namedNode(QStringLiteral("bubble")))
        bubble->setAttribute(QStringLiteral("d"), m_isThought ? body.arg(44) + drops : body.arg(tail));
}

#include "speechbubble.h"

#include <svgbase/qzesvgtinydocument.h>

#include <QtCore/QFile>

SpeechBubble::SpeechBubble(CSVGObj *owner)
    : CSVGBase(owner)
{
    keepAspectRatio = false;
    propPenStyleEnabled = true;
    propPenWidthEnabled = true;
    propFillEnabled = true;
}

QString SpeechBubble::getSVG()
{
    QFile file(QStringLiteral(":/speechbubble/template.svg"));
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

bool SpeechBubble::updateSVG(QZeSvgNode *node, QPointF, bool refresh)
{
    pointTo(node->boundingRect().center());
    if (refresh)
        invalidate();
    return true;
}

bool SpeechBubble::updateAllControlPoints(bool refresh, bool)
{
    return controlPoints[0] && updateSVG(controlPoints[0], QPointF(), refresh);
}

void SpeechBubble::pointTo(QPointF tip)
{
    const QString path =
        QStringLiteral("M20 5H120Q135 5 135 20V52Q135 67 120 67H68L%1 %2L44 67H20Q5 67 5 52V20Q5 5 20 5Z");
    document->namedNode(QStringLiteral("bubble"))
        ->setAttribute(QStringLiteral("d"), path.arg(tip.x()).arg(tip.y()));
}

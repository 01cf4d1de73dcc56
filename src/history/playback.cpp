// Replay of recorded actions and undo steps: nothing here is recorded again.

#include <svgobj/csvgbase.h>

#include <svgbase/qzesvgtinydocument.h>

#include "properties/valuecodec.h"

bool CSVGBase::SavePropertyForPlayback(QDataStream &out)
{
    save(out);
    return true;
}

bool CSVGBase::LoadPropertyForPlayback(QDataStream &in)
{
    load(in);
    return true;
}

bool CSVGBase::DoPlaybackActionEx(int actionId, QDataStream &in)
{
    if (!document)
        return false;
    if (actionId == ACT_SVG_CONTROLPOINT) {
        QZeSvgNode *node = document->namedNode(decodeValue<QString>(in));
        if (!node)
            return false;
        updateSVGControlPoint(node, decodeValue<QPointF>(in), true, false, false);
        return true;
    }
    const bool applied = setInnerProperty(actionIdToPropId(actionId), in, false, false);
    if (applied)
        invalidate();
    return applied;
}

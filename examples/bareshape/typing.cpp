// Animation of the bubble: the host reads the property AnimationRuns and sets it for visible objects.

#include "thinkingbubble.h"

#include <svgbase/qzesvgtinydocument.h>

#include <pagehost/objectplugin.h>

#include <QtCore/QDataStream>

bool ThinkingBubble::GetSpecialProperty(int propId, QDataStream &out)
{
    if (propId != pagehost::AnimationRuns)
        return CSVGBase::GetSpecialProperty(propId, out);
    out << isAnimating();
    return true;
}

bool ThinkingBubble::SetSpecialProperty(int propId, QDataStream &in, bool record)
{
    if (propId != pagehost::AnimationRuns)
        return CSVGBase::SetSpecialProperty(propId, in, record);
    bool on = false;
    in >> on;
    if (!document || in.status() != QDataStream::Ok)
        return false;
    if (on == isAnimating())
        return true;
    if (on) {
        startAnimate();
        // A restart leaves the document's clock stopped.
        document->startAnimate();
        return true;
    }
    stopAnimate();
    document->stopAnimate();
    return true;
}

#include "speechbubbleobject.h"

#include "speechbubble.h"

namespace {

/// The host's number for page objects that are shapes.
constexpr int shapeKind = 1001;

} // namespace

SpeechBubbleObject::SpeechBubbleObject()
    : CSVGObj(shapeKind, true, nullptr)
{
    createSVGBase(SpeechBubble::typeNumber, true);
}

QString SpeechBubbleObject::kindName() const
{
    return QStringLiteral("IDS_EXAMPLE_SPEECHBUBBLE");
}

bool SpeechBubbleObject::createSVGBase(int type, bool initGlobals)
{
    delete svgBase;
    svgBase = nullptr;
    if (type != SpeechBubble::typeNumber)
        return false;
    svgBase = new SpeechBubble(this);
    return svgBase->loadSVG(initGlobals);
}

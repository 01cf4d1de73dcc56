#include "thinkingbubbleobject.h"

#include "thinkingbubble.h"

namespace {

/// The host's number for page objects that are shapes.
constexpr int shapeKind = 1001;

} // namespace

ThinkingBubbleObject::ThinkingBubbleObject()
    : CSVGObj(shapeKind, true, nullptr)
{
    createSVGBase(ThinkingBubble::typeNumber, true);
}

QString ThinkingBubbleObject::kindName() const
{
    return QStringLiteral("IDS_EXAMPLE_THINKINGBUBBLE");
}

bool ThinkingBubbleObject::createSVGBase(int type, bool initGlobals)
{
    delete svgBase;
    svgBase = nullptr;
    if (type != ThinkingBubble::typeNumber)
        return false;
    svgBase = new ThinkingBubble(this);
    return svgBase->loadSVG(initGlobals);
}

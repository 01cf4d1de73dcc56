#pragma once

#include <svgobj/csvgobj.h>

/// The page object of a speech bubble.
class ThinkingBubbleObject : public CSVGObj
{
public:
    ThinkingBubbleObject();

    QString kindName() const override;
    bool createSVGBase(int type, bool initGlobals) override;
};

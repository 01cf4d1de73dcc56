#pragma once

#include <svgobj/csvgobj.h>

/// The page object of a speech bubble.
class SpeechBubbleObject : public CSVGObj
{
public:
    SpeechBubbleObject();

    QString kindName() const override;
    bool createSVGBase(int type, bool initGlobals) override;
};

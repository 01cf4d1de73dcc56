#pragma once

#include <svgobj/csvgbase.h>

/// A speech bubble whose tip the user drags to who is speaking.
class SpeechBubble : public CSVGBase
{
public:
    static constexpr int typeNumber = 101;

    explicit SpeechBubble(CSVGObj *owner);

    QString getSVG() override;
    int getSVGType() override { return typeNumber; }
    bool updateSVG(QZeSvgNode *node, QPointF delta, bool refresh) override;
    bool updateAllControlPoints(bool refresh, bool finished) override;

private:
    void pointTo(QPointF tip);
};

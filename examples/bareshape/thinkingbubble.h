#pragma once

#include <svgobj/csvgbase.h>

/// A bubble whose tip the user drags to the person who is speaking, or thinking.
class ThinkingBubble : public CSVGBase
{
public:
    static constexpr int typeNumber = 101;

    explicit ThinkingBubble(CSVGObj *owner);

    QString getSVG() override;
    int getSVGType() override { return typeNumber; }
    bool loadSVG(bool initGlobals) override;
    bool updateSVG(QZeSvgNode *node, QPointF delta, bool refresh) override;
    bool updateAllControlPoints(bool refresh, bool finished) override;

    /// @name A property of its own: whether the bubble holds a thought
    /// @{
    void initSpecialPropItems() override;
    bool getInnerProperty(int propId, QDataStream &out) override;
    bool setInnerProperty(int propId, QDataStream &in, bool record, bool addUndo) override;
    bool save(QDataStream &out) override;
    bool load(QDataStream &in) override;
    bool saveJson(QJsonObject &object) override;
    bool loadJson(QJsonObject &object) override;
    /// @}

    /// @name The dots that move
    /// @{
    bool GetSpecialProperty(int propId, QDataStream &out) override;
    bool SetSpecialProperty(int propId, QDataStream &in, bool record) override;
    /// @}

private:
    void setThought(bool on);
    void pointTo(QPointF tip);

    bool m_isThought = false;
};

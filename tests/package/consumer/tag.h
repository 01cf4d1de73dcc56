#pragma once

#include <svgobj/csvgbase.h>
#include <svgobj/csvgobj.h>

/// A price tag whose hole the user can move along its middle.
class Tag : public CSVGBase
{
public:
    explicit Tag(CSVGObj *owner);

    QString getSVG() override;
    int getSVGType() override { return 40; }
    bool updateSVG(QZeSvgNode *node, QPointF delta, bool refresh) override;

    /// Centre of the hole, document units.
    QPointF hole() const;
};

class TagObject : public CSVGObj
{
public:
    TagObject();
    QString kindName() const override { return QStringLiteral("Tag"); }
    bool createSVGBase(int type, bool initGlobals) override;
    Tag *tag() const { return static_cast<Tag *>(svgBase); }
};

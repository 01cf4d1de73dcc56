#pragma once

#include <kit/draggedplaces.h>

#include <svgobj/csvgbase.h>

/// A conical laboratory flask, drawn by its template alone and stretched with the page object; its control point
/// sets the level of the liquid. The fill colours the liquid, the pen draws the glass.
class Flask : public CSVGBase
{
public:
    explicit Flask(CSVGObj *owner);

    QString getSVG() override;
    int getSVGType() override { return 30; }
    bool loadSVG(bool initGlobals) override;
    void initGlobalPropValues() override;
    bool updateSVG(QZeSvgNode *node, QPointF delta, bool refresh) override;
    bool updateSVG(bool refresh) override;
    bool updateAllControlPoints(bool refresh, bool finished) override;

private:
    /// Bubbles, marks and reflections keep their own look whatever pen and fill the user chooses.
    void exemptDecoration();
    void pourTo(double level);

    shapekit::DraggedPlaces m_dragged;
};

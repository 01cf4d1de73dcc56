#pragma once

#include <svgobj/csvgbase.h>

namespace shapekit {

/// A shape whose area the page object fills, so that it can have the host's gradients, patterns and pictures.
///
/// While such a shape is painted its document holds no brush: the fill stands in the page object's fill property
/// alone, and that is what is read, compared and changed here.
class HostFilledShape : public CSVGBase
{
public:
    explicit HostFilledShape(CSVGObj *owner);

    /// The page object's fill brush; no brush while its fill is off.
    QBrush getFillBrush() override;
    /// Fills the page object with the brush's colour, or with nothing for Qt::NoBrush. A brush that makes no
    /// difference is neither recorded nor applied. With `notify`, which is how the page object tells of a fill that
    /// it got elsewhere, the shape repaints in any case.
    void setFillBrush(const QBrush &brush, bool record, bool notify) override;
    /// A new shape is drawn with the page object's pen colour.
    void initGlobalPropValues() override;

private:
    void fillPageObject(const QBrush &brush);
};

} // namespace shapekit

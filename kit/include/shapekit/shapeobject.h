#pragma once

#include <shapekit/kind.h>

#include <shapekit/styledshape.h>

#include <svgobj/csvgobj.h>

namespace shapekit {

/// The page object of a shape: everything particular to it is in its shape core.
class ShapeObject : public CSVGObj
{
public:
    /// A new object with a core of its own, filled with the colour that the template has.
    explicit ShapeObject(const Kind &kind);

    QString kindName() const override { return m_kind.nameKey(); }
    /// Makes a core unless there is one of that type already. A type that is not this shape's leaves no core.
    bool createSVGBase(int type, bool initGlobals) override;
    void OnQPainterDraw(QPainter *painter) override;

    /// Null after loading a type that is not this shape's.
    StyledShape *core() const { return static_cast<StyledShape *>(svgBase); }

private:
    const Kind &m_kind;
};

} // namespace shapekit

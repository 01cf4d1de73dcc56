#pragma once

#include <shapekit/kind.h>
#include <shapekit/shapekit_global.h>

#include <shapekit/styledshape.h>

#include <svgobj/csvgobj.h>

namespace shapekit {

/// The page object of a shape; everything specific to the shape is in its core.
class SHAPEKIT_EXPORT ShapeObject : public CSVGObj
{
public:
    /// A new object with a core of its own, filled with the template's colour.
    explicit ShapeObject(const Kind &kind);

    /// The kind that it was made as.
    const Kind &kind() const { return m_kind; }
    QString kindName() const override { return m_kind.nameKey(); }
    /// Creates a core unless there is already one of that type. A type of another shape leaves no core.
    bool createSVGBase(int type, bool initGlobals) override;
    void OnQPainterDraw(QPainter *painter) override;
    /// As its core permits.
    bool canDo(OperationType operation) override;

    /// Null after loading the type of another shape.
    StyledShape *core() const { return static_cast<StyledShape *>(svgBase); }

private:
    void makeCore();

    const Kind &m_kind;
};

/// Ends the creating state of a new object as a click at its place does: it gets the size of its shape.
SHAPEKIT_EXPORT void finishCreation(CSVGObj &object);

/// The core of a page object; null for an object without a core of that class.
template<typename Core> Core *coreOf(CBaseObject *object)
{
    const auto *shape = dynamic_cast<ShapeObject *>(object);
    return shape ? dynamic_cast<Core *>(shape->core()) : nullptr;
}

} // namespace shapekit

#pragma once

#include <svgobj/csvgobj.h>

namespace shapekit {

/// Makes a shape core for a page object.
using CoreFactory = CSVGBase *(*)(CSVGObj *owner);

/// The page object of a shape: everything particular to it is in its shape core.
class ShapeObject : public CSVGObj
{
public:
    /// `kindNameKey` is a localisation key; `fill` is the colour that a new object is filled with.
    ShapeObject(const QString &kindNameKey, CoreFactory makeCore, const QColor &fill);

    QString kindName() const override { return m_kindNameKey; }
    /// Makes a core unless there is one of that type already. A type that is not this shape's leaves no core.
    bool createSVGBase(int type, bool initGlobals) override;

    CSVGBase *core() const { return svgBase; }

private:
    void setInitialFill(const QColor &color);

    QString m_kindNameKey;
    CoreFactory m_makeCore;
};

} // namespace shapekit

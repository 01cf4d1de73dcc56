#pragma once

#include "pageobjects.h"

#include <framework/cbaseobject.h>

#include <QtCore/QByteArray>
#include <QtCore/QPointF>
#include <QtCore/QString>

#include <memory>

/// An object during a drag of a control point; `grip` is where it was pressed.
struct Dragged
{
    std::unique_ptr<CBaseObject> object;
    QPointF grip;

    void moveBy(double distance) const;
    /// The object's present look as SVG text.
    QByteArray look() const;
};

/// Presses the first control point of a new object that is `side` units wide and high; a null grip where the kind
/// has none.
Dragged beginDrag(const QString &kindId, int side, const pagehost::ObjectRegistry &registry = shapeRegistry());

#pragma once

#include <QtCore/QPointF>
#include <QtCore/QRectF>
#include <QtCore/QSizeF>

/// Mapping between a view box (document units) and an object (object coordinates, origin at its top-left): the view
/// box is stretched to the object's size and mirrored with it.
///
/// Results are compared exactly, so each operation keeps its own order of multiplication and division.
struct ViewMapping
{
    QRectF viewBox;
    QSizeF objectSize;
    bool flipHorizontal = false;
    bool flipVertical = false;

    /// Maps an object point to a document point.
    QPointF toDocument(QPointF pos) const;
    /// Lengths along an axis, object to document, negated on a mirrored axis.
    double xToDocument(double length) const;
    double yToDocument(double length) const;
    /// Lengths along an axis, document to object. Deliberately ignores the mirror state: callers that need the sign
    /// of a mirrored shape handle it.
    double xToObject(double length) const;
    double yToObject(double length) const;
};

#pragma once

#include <QtCore/QPointF>
#include <QtCore/QRectF>
#include <QtCore/QSizeF>

/// How a view box (document units) lies over an object (object coordinates, origin at its top-left): stretched to
/// its size and, where the object is mirrored, turned over.
///
/// Results are compared exactly, so each operation keeps its own order of multiplication and division.
struct ViewMapping
{
    QRectF viewBox;
    QSizeF objectSize;
    bool flipHorizontal = false;
    bool flipVertical = false;

    /// An object point as a document point.
    QPointF toDocument(QPointF pos) const;
    /// Lengths along an axis, object to document, negated on a mirrored axis.
    double xToDocument(double length) const;
    double yToDocument(double length) const;
    /// Lengths along an axis, document to object. The mirror state is deliberately not looked at: a caller who
    /// needs the sign of a mirrored shape handles it.
    double xToObject(double length) const;
    double yToObject(double length) const;
};

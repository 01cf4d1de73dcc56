#pragma once

#include "tree/attributes.h"

#include <QtCore/QVector>

namespace Svg {

/// The shorthand of (nearly) every property.
inline const QLatin1String allProperties("all");

/// A property set by a shorthand.
struct Longhand
{
    AttributeId property;
    QString value;
};

/// The properties that a shorthand of CSS ("font" and the like) sets; none for any other name, and for a value that
/// violates the shorthand's grammar.
QVector<Longhand> longhands(const QString &name, const QString &value);
/// Whether style may set an attribute that is not a presentation attribute in SVG 1.1 (SVG 2 §8.9): the geometry
/// properties, and "transform".
bool isStyledAttribute(AttributeId id);

} // namespace Svg

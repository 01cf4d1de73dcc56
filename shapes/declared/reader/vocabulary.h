#pragma once

#include <QtCore/QStringList>

namespace declared {

/// @name Names that files may use
/// docs/shape-reference.md lists all of them.
/// @{
/// Elements that declare something.
QStringList declarations();
QStringList attributesOf(const QString &declaration);
/// In the order of PropertyDeclaration::Kind.
QStringList propertyTypes();
QStringList pointAttributes();
QStringList trackNames();
QStringList figureAttributes();
/// Values that expressions know in every file, besides the control points.
QStringList fixedNames();
/// @}

/// Whether an SVG element may have an attribute of the figure.
bool takesAttribute(const QString &element, const QString &attribute);
/// Whether an SVG element is drawn, and may be written anew.
bool isDrawnElement(const QString &element);

} // namespace declared

#pragma once

#include <framework/cbaseobject.h>

#include <QtCore/QString>
#include <QtCore/QStringList>

#include <memory>

namespace pagehost {
class ObjectRegistry;
}

/// Registry of the shape plug-ins.
const pagehost::ObjectRegistry &shapeRegistry();
/// Registry of shapes in C++ that files have succeeded since, under the ids of the files; empty in a build without
/// tests, which keep them.
const pagehost::ObjectRegistry &codedTwins();
/// Ids of the kinds that are in both registries.
QStringList twinKinds();
/// The kinds of object that the shape plug-ins offer.
QStringList shapeKinds();
/// A finished object of that kind, drawn by press, move and release over `size` (item units).
std::unique_ptr<CBaseObject> makeShape(const QString &kindId, QSizeF size,
                                       const pagehost::ObjectRegistry &registry = shapeRegistry());
/// Delivers a mouse event of that type with the given item position to the object.
void sendMouse(CBaseObject *object, int eventType, QPointF pos);
/// The name of a kind's template ("flask" for "shapes.flask").
QString templateName(const QString &kindId);

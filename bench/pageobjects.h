#pragma once

#include <framework/cbaseobject.h>

#include <QtCore/QString>
#include <QtCore/QStringList>

#include <memory>

namespace pagehost {
class ObjectRegistry;
}

/// The shape plug-ins.
const pagehost::ObjectRegistry &shapeRegistry();
/// The kinds of object that the shape plug-ins offer.
QStringList shapeKinds();
/// A finished object of that kind, drawn by press, move and release over `size` (item units).
std::unique_ptr<CBaseObject> makeShape(const QString &kindId, QSizeF size);
/// Delivers a mouse event of that type with the given item position to the object.
void sendMouse(CBaseObject *object, int eventType, QPointF pos);
/// The template's file name of a kind ("shapes.flask" is "flask").
QString templateName(const QString &kindId);

#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QJsonArray>
#include <QtCore/QJsonObject>

namespace checklist {

class ShapeDriver;

/// @name A shape as it is saved
/// @{
QByteArray savedBytes(const ShapeDriver &shape);
QByteArray savedJson(const ShapeDriver &shape);
/// False when the shape refuses the bytes, or leaves some.
bool open(const ShapeDriver &shape, const QByteArray &bytes);
/// @}

/// The controls of the settings panel.
QJsonArray settingsOf(const ShapeDriver &shape);
/// Answers controls, recorded and undone.
bool answer(const ShapeDriver &shape, const QJsonObject &values);

} // namespace checklist

#pragma once

#include <QtCore/QByteArray>

namespace declared {

class ShapeKind;

/// The file that a kind was read from, with the declared look in place of its own where a review finds that they
/// differ: attributes, texts and places of control points. All else stays as it is. Elements below a repeated group
/// are made anew where they are drawn without others inside.
QByteArray withDeclaredLook(const ShapeKind &kind, const QByteArray &file);

} // namespace declared

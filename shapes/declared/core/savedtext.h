#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QJsonObject>

class QDataStream;

namespace declared {

/// The key of what declared shapes save behind the data of all shapes.
constexpr char declaredKey[] = "SVG_Declared";

/// The data of an object there, without reading from the stream; empty when it is not found.
QJsonObject savedAhead(QDataStream &in);

/// A text inside the data of an object, for hosts that keep no texts.
QString inlined(const QByteArray &text);
/// Empty for damaged text, and for what is longer than a file may be.
QByteArray fromInlined(const QString &inlined);

} // namespace declared

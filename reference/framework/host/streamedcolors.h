#pragma once

#include <QtCore/QByteArray>
#include <QtGui/QBrush>
#include <QtGui/QColor>

#include <optional>

class QDataStream;

/// Colours and brushes from untrusted streams. Qt accepts any number as the kind of a colour and fails on it later.
namespace pagehost {

/// Bytes of a colour on a stream: its kind and five numbers of 16 bits.
constexpr int streamedColorBytes = 1 + 5 * 2;
/// Offset of the colour in a brush, after its style.
constexpr int colorInBrush = 1;

/// The colour at the stream's position; empty unless it is of a kind that Qt knows.
std::optional<QColor> readColor(QDataStream &in);
/// The colour in exactly these bytes.
std::optional<QColor> colorFrom(const QByteArray &bytes);
/// Whether the bytes are exactly one readable brush.
bool isWholeBrush(const QByteArray &bytes);
/// Empty unless the bytes are exactly one brush.
std::optional<QBrush> brushFrom(const QByteArray &bytes);

} // namespace pagehost

#pragma once

#include <QtCore/QByteArray>
#include <QtGui/QBrush>
#include <QtGui/QColor>

#include <optional>

class QDataStream;

/// Colours and brushes from streams of anybody. Qt takes over any number as the kind of a colour, and trips over it
/// later.
namespace pagehost {

/// Bytes of a colour on a stream: its kind, and five numbers of 16 bits.
constexpr int streamedColorBytes = 1 + 5 * 2;
/// Where the colour stands in a brush, behind its style.
constexpr int colorInBrush = 1;

/// The colour that the stream stands at; nothing when there is none of a kind that Qt knows.
std::optional<QColor> readColor(QDataStream &in);
/// The colour that the bytes are, to the last one.
std::optional<QColor> colorFrom(const QByteArray &bytes);
/// Whether the bytes are a brush, whole and nothing else, that can be read.
bool isWholeBrush(const QByteArray &bytes);
/// Nothing for bytes that are no whole brush.
std::optional<QBrush> brushFrom(const QByteArray &bytes);

} // namespace pagehost

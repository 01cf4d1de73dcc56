#pragma once

class QDataStream;

/// Checks foreign data before Qt, which trusts every number, reads colours and brushes from it. The checks look
/// ahead and consume nothing. They accept a stream that ends too early, which Qt reads safely.
namespace StreamCheck {

/// Whether the colour that begins `offset` bytes ahead is of a kind that QColor knows.
bool hasKnownColorKind(QDataStream &in, int offset = 0);

/// Whether the brush at the stream's position can be read: its style is one of Qt's; the stops of a gradient are
/// complete; a texture is a PNG picture of at most 64 Mi pixels, with enough data to fill them.
bool isReadableBrush(QDataStream &in);

/// Whether the brush at the stream's position is a gradient.
bool isGradient(QDataStream &in);

} // namespace StreamCheck

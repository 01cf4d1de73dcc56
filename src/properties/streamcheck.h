#pragma once

class QDataStream;

/// What stands between Qt's reading of colours and brushes, which trusts every number, and the bytes of somebody
/// else's file. Both look ahead and read nothing. Both are true for a stream that ends too early, which Qt reads
/// safely.
namespace StreamCheck {

/// Whether the colour that begins `offset` bytes ahead is of a kind that QColor has.
bool hasKnownColorKind(QDataStream &in, int offset = 0);

/// Whether the brush that the stream stands at can be read: its style is one of Qt's; the stops of a gradient are
/// all there; a texture is a picture in the PNG format that its data can fill, of at most 64 Mi pixels.
bool isReadableBrush(QDataStream &in);

/// Whether the brush that the stream stands at is a gradient.
bool isGradient(QDataStream &in);

} // namespace StreamCheck

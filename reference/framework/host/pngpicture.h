#pragma once

#include <QtCore/QByteArray>
#include <QtGui/QImage>

/// Null for data that is no picture, or one beyond 2^26 pixels: compressed data can claim any size.
QImage pngPicture(const QByteArray &png);

#pragma once

#include <QtCore/QByteArray>
#include <QtGui/QImage>

/// Null for data that is not a picture, or for one of more than 2^26 pixels: compressed data can claim any size.
QImage pngPicture(const QByteArray &png);

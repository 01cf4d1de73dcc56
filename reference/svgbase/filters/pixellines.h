#pragma once

#include <QtCore/QVector>
#include <QtGui/QImage>

namespace Svg {

/// A channel of one row or column of a picture.
using PixelLine = QVector<uchar>;

/// Applies `change` to every channel of every row (or column) of a picture in place.
template<typename Change> void changeLines(QImage *picture, bool columns, Change change)
{
    constexpr int channels = 4;
    const int length = columns ? picture->height() : picture->width();
    const int count = columns ? picture->width() : picture->height();
    const int step = columns ? int(picture->bytesPerLine()) : channels;
    const int next = columns ? channels : int(picture->bytesPerLine());
    uchar *bits = picture->bits();
    PixelLine line(length);
    for (int i = 0; i < count; ++i) {
        for (int channel = 0; channel < channels; ++channel) {
            uchar *first = bits + qptrdiff(i) * next + channel;
            for (int k = 0; k < length; ++k)
                line[k] = first[qptrdiff(k) * step];
            change(line.data(), length);
            for (int k = 0; k < length; ++k)
                first[qptrdiff(k) * step] = line[k];
        }
    }
}

} // namespace Svg

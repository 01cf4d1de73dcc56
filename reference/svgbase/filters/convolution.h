#pragma once

#include <QtCore/QVector>
#include <QtGui/QImage>

namespace Svg {

/// Parameters of an "feConvolveMatrix" (Filter Effects 1 §9.9).
struct Convolution
{
    enum Edges : quint8 { Duplicate, Wrap, Transparent };

    /// Factors of the neighbours, row by row, already divided; empty to leave the picture unchanged.
    QVector<double> factors;
    QSize order{3, 3};
    QPoint target{1, 1};
    double bias = 0;
    Edges edges = Duplicate;
    bool preservesAlpha = false;
};

/// Replaces every pixel within `area`, whose edges are the picture's, by a weighted sum of its neighbours.
void convolvePicture(QImage *picture, const Convolution &convolution, const QRect &area);

} // namespace Svg

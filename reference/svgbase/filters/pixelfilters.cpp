#include "filters/pixelfilters.h"

#include "grammar/linearlight.h"

namespace Svg {

namespace {

constexpr int greatest = 255;
constexpr int valueCount = 256;

template<typename Change> void forEachPixel(QImage *picture, Change change)
{
    for (int y = 0; y < picture->height(); ++y) {
        auto *row = reinterpret_cast<QRgb *>(picture->scanLine(y));
        for (int x = 0; x < picture->width(); ++x)
            row[x] = change(row[x]);
    }
}

int byteOf(double value)
{
    return qRound(qBound(0.0, value, double(greatest)));
}

std::array<int, valueCount> linearTable()
{
    std::array<int, valueCount> table{};
    for (int i = 0; i < valueCount; ++i)
        table[size_t(i)] = qRound(linearFromEncoded(i) * greatest);
    return table;
}

std::array<int, valueCount> encodedTable()
{
    std::array<int, valueCount> table{};
    for (int i = 0; i < valueCount; ++i)
        table[size_t(i)] = encodedFromLinear(i / double(greatest));
    return table;
}

void lookUpColors(QImage *picture, const std::array<int, valueCount> &table)
{
    forEachPixel(picture, [&table](QRgb pixel) {
        if (qAlpha(pixel) == 0)
            return pixel;
        const QRgb plain = qUnpremultiply(pixel);
        return qPremultiply(qRgba(table[size_t(qRed(plain))], table[size_t(qGreen(plain))],
                                  table[size_t(qBlue(plain))], qAlpha(plain)));
    });
}

double rowSum(const double *row, QRgb plain)
{
    return row[0] * qRed(plain) + row[1] * qGreen(plain) + row[2] * qBlue(plain) + row[3] * qAlpha(plain) +
           row[4] * greatest;
}

} // namespace

void applyMatrix(QImage *picture, const std::array<double, 20> &matrix)
{
    const double *m = matrix.data();
    forEachPixel(picture, [m](QRgb pixel) {
        const QRgb plain = qUnpremultiply(pixel);
        return qPremultiply(qRgba(byteOf(rowSum(m, plain)), byteOf(rowSum(m + 5, plain)),
                                  byteOf(rowSum(m + 10, plain)), byteOf(rowSum(m + 15, plain))));
    });
}

void applyTables(QImage *picture, const std::array<QByteArray, 4> &tables)
{
    const auto look = [&tables](size_t channel, int value) { return int(uchar(tables[channel].at(value))); };
    forEachPixel(picture, [&look](QRgb pixel) {
        const QRgb plain = qUnpremultiply(pixel);
        return qPremultiply(
            qRgba(look(0, qRed(plain)), look(1, qGreen(plain)), look(2, qBlue(plain)), look(3, qAlpha(plain))));
    });
}

void combinePictures(QImage *below, const QImage &source, const std::array<double, 4> &k)
{
    const auto combine = [&k](int a, int b) {
        return k[0] * a * b / greatest + k[1] * a + k[2] * b + k[3] * greatest;
    };
    for (int y = 0; y < below->height(); ++y) {
        auto *row = reinterpret_cast<QRgb *>(below->scanLine(y));
        const auto *other = reinterpret_cast<const QRgb *>(source.constScanLine(y));
        for (int x = 0; x < below->width(); ++x) {
            const QRgb a = other[x];
            const QRgb b = row[x];
            const int alpha = byteOf(combine(qAlpha(a), qAlpha(b)));
            row[x] = qRgba(qMin(alpha, byteOf(combine(qRed(a), qRed(b)))),
                           qMin(alpha, byteOf(combine(qGreen(a), qGreen(b)))),
                           qMin(alpha, byteOf(combine(qBlue(a), qBlue(b)))), alpha);
        }
    }
}

void encodeLinear(QImage *picture)
{
    static const std::array<int, valueCount> table = linearTable();
    lookUpColors(picture, table);
}

void decodeLinear(QImage *picture)
{
    static const std::array<int, valueCount> table = encodedTable();
    lookUpColors(picture, table);
}

void keepAlpha(QImage *picture)
{
    forEachPixel(picture, [](QRgb pixel) { return qRgba(0, 0, 0, qAlpha(pixel)); });
}

} // namespace Svg

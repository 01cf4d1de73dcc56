// Painting from another thread, which copies the finished picture, compared with drawing that picture.

#include "pageobjects.h"

#include <QtGui/QImage>
#include <QtGui/QPainter>

#include <benchmark/benchmark.h>

#include <functional>
#include <thread>

namespace {

constexpr int side = 256;

void onOtherThread(const std::function<void()> &work)
{
    std::thread(work).join();
}

void copyPicture(benchmark::State &state)
{
    const std::unique_ptr<CBaseObject> object = makeShape(shapeKinds().constFirst(), QSizeF(side, side));
    onOtherThread([&] {
        QImage image(side, side, QImage::Format_ARGB32_Premultiplied);
        QPainter painter(&image);
        for (auto _ : state)
            object->OnQPainterDraw(&painter);
    });
}

void copyPicturePeer(benchmark::State &state)
{
    const std::unique_ptr<CBaseObject> object = makeShape(shapeKinds().constFirst(), QSizeF(side, side));
    QImage picture(side, side, QImage::Format_ARGB32);
    picture.fill(Qt::transparent);
    QPainter picturePainter(&picture);
    onOtherThread([&] { object->OnQPainterDraw(&picturePainter); });
    picturePainter.end();
    onOtherThread([&] {
        QImage image(side, side, QImage::Format_ARGB32_Premultiplied);
        QPainter painter(&image);
        for (auto _ : state)
            painter.drawImage(QRectF(0, 0, side, side), picture, QRectF(0, 0, side, side));
    });
}

} // namespace

void registerThreadBenchmarks()
{
    benchmark::RegisterBenchmark("thread-paint/peer/256", copyPicturePeer)->UseRealTime();
    benchmark::RegisterBenchmark("thread-paint/gliololok/256", copyPicture)->UseRealTime();
}

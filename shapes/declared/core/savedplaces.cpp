#include <declared/core/savedplaces.h>

#include <declared/reader/filelimits.h>

#include <QtCore/QDataStream>

#include <algorithm>
#include <cmath>

namespace declared {

namespace {

/// No page is larger, document units.
constexpr double farthest = 1e6;
constexpr int numbersOfPlace = 4;

/// Appends the place that the numbers tell; false when they are no place.
bool append(Places &places, const double (&numbers)[numbersOfPlace])
{
    const bool isPlace = std::all_of(std::begin(numbers), std::end(numbers), [](double number) {
        return std::isfinite(number) && std::abs(number) <= farthest;
    });
    if (!isPlace || numbers[2] <= 0 || numbers[3] <= 0)
        return false;
    places.append({{numbers[0], numbers[1]}, {numbers[2], numbers[3]}});
    return true;
}

} // namespace

QByteArray bytesOf(const Places &places)
{
    QByteArray bytes;
    QDataStream out(&bytes, QIODevice::WriteOnly);
    out << qint32(places.size());
    for (const shapekit::Place &place : places)
        out << place.centre.x() << place.centre.y() << place.size.width() << place.size.height();
    return bytes;
}

Places placesFrom(QDataStream &in)
{
    Places places;
    qint32 count = 0;
    in >> count;
    for (int i = 0; i < std::min(count, limits::controlPoints); ++i) {
        double numbers[numbersOfPlace] = {};
        for (double &number : numbers)
            in >> number;
        if (in.status() != QDataStream::Ok || !append(places, numbers))
            break;
    }
    return places;
}

QJsonArray toJson(const Places &places)
{
    QJsonArray saved;
    for (const shapekit::Place &place : places)
        saved.append(QJsonArray{place.centre.x(), place.centre.y(), place.size.width(), place.size.height()});
    return saved;
}

Places placesFrom(const QJsonArray &saved)
{
    Places places;
    for (int i = 0; i < std::min(saved.size(), limits::controlPoints); ++i) {
        const QJsonArray entry = saved.at(i).toArray();
        double numbers[numbersOfPlace] = {};
        for (int k = 0; k < numbersOfPlace; ++k)
            numbers[k] = entry.at(k).toDouble(qQNaN());
        if (!append(places, numbers))
            break;
    }
    return places;
}

} // namespace declared

#include <pages/connectionfinder.h>

#include <framework/cbaseobject.h>

#include <host/followedobjects.h>

#include <QtCore/QLineF>

#include <algorithm>
#include <optional>

namespace pagehost {

namespace {

constexpr double placeReachPixels = 10;
constexpr double outlineReachPixels = 6;

QRectF around(const QPointF &centre, double reach)
{
    return {centre - QPointF(reach, reach), centre + QPointF(reach, reach)};
}

std::optional<ToolPage::Connection> connectionOf(CBaseObject *object, const ToolPointer &pointer)
{
    if (!object->isVisible() || followedObjects(*object))
        return std::nullopt;
    double least = placeReachPixels * pointer.pixel;
    std::optional<ToolPage::Connection> connection;
    const QVector<ConnectionPlace> places = connectionPlaces(*object);
    for (const ConnectionPlace &place : places) {
        const double distance = QLineF(place.point, pointer.pos).length();
        if (distance > least)
            continue;
        least = distance;
        connection = ToolPage::Connection{object, place.name};
    }
    if (!connection &&
        connectionOutline(*object).intersects(around(pointer.pos, outlineReachPixels * pointer.pixel)))
        connection = ToolPage::Connection{object, QString()};
    return connection;
}

} // namespace

ToolPage::Connection connectionAt(const QVector<CBaseObject *> &objects, const ToolPointer &pointer)
{
    for (auto object = objects.crbegin(); object != objects.crend(); ++object)
        if (const auto connection = connectionOf(*object, pointer))
            return *connection;
    return {};
}

QRectF connectionReach(const ToolPointer &pointer)
{
    return around(pointer.pos, std::max(placeReachPixels, outlineReachPixels) * pointer.pixel);
}

} // namespace pagehost

#include <polygon/polygonplugin.h>

#include <polygon/polygon.h>

namespace {

constexpr QRgb newFill = 0xffc9ecc8;

} // namespace

PolygonPlugin::PolygonPlugin()
    : SingleShapePlugin(
          QStringLiteral("polygon"), {QStringLiteral("Polygon"), QStringLiteral("Vieleck")},
          [](CSVGObj *owner) -> CSVGBase * { return new Polygon(owner); }, QColor(newFill))
{
}

#include <roundedrectangle/roundedrectangleplugin.h>

#include <roundedrectangle/roundedrectangle.h>

namespace {

constexpr QRgb newFill = 0xffd3e4fd;

} // namespace

RoundedRectanglePlugin::RoundedRectanglePlugin()
    : SingleShapePlugin(
          QStringLiteral("roundedrectangle"),
          {QStringLiteral("Rounded rectangle"), QStringLiteral("Abgerundetes Rechteck")},
          [](CSVGObj *owner) -> CSVGBase * { return new RoundedRectangle(owner); }, QColor(newFill))
{
}

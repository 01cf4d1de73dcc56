#include <flask/flaskplugin.h>

#include <flask/flask.h>

namespace {

constexpr QRgb newFill = 0xff7fd0e6;

} // namespace

FlaskPlugin::FlaskPlugin()
    : SingleShapePlugin(
          QStringLiteral("flask"), {QStringLiteral("Flask"), QStringLiteral("Kolben")},
          [](CSVGObj *owner) -> CSVGBase * { return new Flask(owner); }, QColor(newFill))
{
}

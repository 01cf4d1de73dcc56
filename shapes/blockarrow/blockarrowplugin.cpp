#include <blockarrow/blockarrowplugin.h>

#include <blockarrow/blockarrow.h>

namespace {

constexpr QRgb newFill = 0xffffdf9e;

} // namespace

BlockArrowPlugin::BlockArrowPlugin()
    : SingleShapePlugin(
          QStringLiteral("blockarrow"), {QStringLiteral("Block arrow"), QStringLiteral("Blockpfeil")},
          [](CSVGObj *owner) -> CSVGBase * { return new BlockArrow(owner); }, QColor(newFill))
{
}

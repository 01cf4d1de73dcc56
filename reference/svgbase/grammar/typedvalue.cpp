#include "grammar/typedvalue.h"

#include "grammar/numbers.h"

#include <QtCore/QStringList>

namespace Svg {

namespace {

QString textOf(const QVector<Length> &lengths)
{
    QStringList texts;
    for (const Length &length : lengths)
        texts.append(numberText(length.value) + unitText(length.unit));
    return texts.join(QLatin1Char(' '));
}

QString textOf(const QColor &color)
{
    return colorText(color);
}

QString textOf(const PathValue &path)
{
    return pathText(path);
}

QString textOf(const TransformList &list)
{
    return transformText(list);
}

} // namespace

QString valueText(const TypedValue &value)
{
    return std::visit([](const auto &held) { return textOf(held); }, value);
}

QString colorText(const QColor &color)
{
    if (!color.isValid())
        return QString();
    const QString name = color.name(QColor::HexArgb);
    return color.alpha() == 255 ? color.name() : QLatin1Char('#') + name.mid(3) + name.mid(1, 2);
}

} // namespace Svg

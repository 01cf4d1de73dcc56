#include "properties/propertyrows.h"

#include "grammar/colors.h"
#include "grammar/numbers.h"
#include "grammar/paints.h"

namespace Svg {

bool isWord(QStringView text, const char *word)
{
    return text.compare(QLatin1String(word), Qt::CaseInsensitive) == 0;
}

QString referenceText(const QString &id)
{
    return id.isEmpty() ? QStringLiteral("none") : QStringLiteral("url(#%1)").arg(id);
}

bool readReference(QStringView text, QString *id)
{
    if (text == QLatin1String("none")) {
        id->clear();
        return true;
    }
    QStringView rest;
    *id = functionReference(text, &rest);
    return !id->isEmpty() || text.startsWith(QLatin1String("url("), Qt::CaseInsensitive);
}

LengthContext lengthContext(const ComputedStyle &style, const PropertyContext &context)
{
    return {context.viewport, style.font.size, style.font.rootSize};
}

std::optional<double> OpacityCodec::read(QStringView text, const ComputedStyle &, const PropertyContext &)
{
    return parseOpacity(text);
}

std::optional<double> OpacityCodec::settle(const Length &length, const ComputedStyle &, const PropertyContext &)
{
    if (length.unit == Unit::User)
        return qBound(0.0, length.value, 1.0);
    return length.unit == Unit::Percent ? std::optional<double>(qBound(0.0, length.value / 100, 1.0))
                                        : std::nullopt;
}

QString OpacityCodec::print(double value)
{
    return numberText(value);
}

std::optional<QColor> ColorCodec::read(QStringView text, const ComputedStyle &style, const PropertyContext &)
{
    return isWord(text, "currentColor") ? style.color : parseColor(text, {style.color});
}

} // namespace Svg

#include "resolve/fonts.h"

#include <QtCore/QStringList>

namespace Svg {

namespace {

struct GenericFamily
{
    QLatin1String name;
    QFont::StyleHint hint;
};

const GenericFamily genericFamilies[] = {
    {QLatin1String("serif"), QFont::Serif},         {QLatin1String("sans-serif"), QFont::SansSerif},
    {QLatin1String("monospace"), QFont::Monospace}, {QLatin1String("cursive"), QFont::Cursive},
    {QLatin1String("fantasy"), QFont::Fantasy},
};

QString unquoted(const QString &name)
{
    const QString trimmed = name.trimmed();
    const bool quoted = trimmed.size() >= 2 && trimmed.front() == trimmed.back() &&
                        (trimmed.front() == QLatin1Char('\'') || trimmed.front() == QLatin1Char('"'));
    return quoted ? trimmed.mid(1, trimmed.size() - 2) : trimmed;
}

void setFamilies(QFont &font, const QString &list)
{
    QStringList families;
    const QStringList names = list.split(QLatin1Char(','), Qt::SkipEmptyParts);
    for (const QString &name : names) {
        families.append(unquoted(name));
        for (const GenericFamily &generic : genericFamilies) {
            if (families.constLast() == generic.name)
                font.setStyleHint(generic.hint);
        }
    }
    if (!families.isEmpty())
        font.setFamilies(families);
}

} // namespace

int qtFontWeight(int weight)
{
    constexpr int byHundreds[] = {0, 12, 25, 50, 57, 63, 75, 81, 87};
    return byHundreds[qBound(1, (weight + 50) / 100, 9) - 1];
}

QFont outlineFont(const FontStyle &style, const TextStyle &text)
{
    QFont font;
    setFamilies(font, style.family);
    font.setPixelSize(outlineFontSize);
    font.setWeight(qtFontWeight(style.weight));
    font.setItalic(style.italic);
    font.setHintingPreference(QFont::PreferNoHinting);
    font.setKerning(text.kerning);
    if (text.stretch != QFont::Unstretched)
        font.setStretch(text.stretch);
    if (text.smallCaps)
        font.setCapitalization(QFont::SmallCaps);
    font.setStyleStrategy(QFont::ForceOutline);
    return font;
}

} // namespace Svg

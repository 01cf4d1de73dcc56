#include "resolve/fonts.h"

#include "inputlimits.h"

#include <QtCore/QHash>
#include <QtCore/QStringList>
#include <QtGui/QFontInfo>

#include <algorithm>
#include <mutex>

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
    {QLatin1String("fantasy"), QFont::Fantasy},     {QLatin1String("system-ui"), QFont::AnyStyle},
    {QLatin1String("ui-serif"), QFont::Serif},      {QLatin1String("ui-sans-serif"), QFont::SansSerif},
    {QLatin1String("math"), QFont::AnyStyle},       {QLatin1String("ui-monospace"), QFont::Monospace},
    {QLatin1String("emoji"), QFont::AnyStyle},
};

/// What the system gives for names of families, asked once for each name. It is asked for a few names only: looking
/// for a replacement takes long.
class KnownFamilies
{
public:
    /// The name of an installed family, or of what replaces it; empty where nothing is known.
    QString find(const QString &name, QFont::StyleHint hint = QFont::AnyStyle)
    {
        const std::lock_guard lock(m_mutex);
        const QString key = name.toLower();
        const auto found = m_families.constFind(key);
        if (found != m_families.constEnd())
            return *found;
        if (m_asked >= Limits::askedFamilies)
            return QString();
        ++m_asked;
        QFont font;
        font.setFamily(name);
        font.setStyleHint(hint);
        return *m_families.insert(key, QFontInfo(font).family());
    }

private:
    std::mutex m_mutex;
    QHash<QString, QString> m_families;
    int m_asked = 0;
};

const GenericFamily *genericFamily(const FamilyName &name)
{
    const auto found =
        std::find_if(std::begin(genericFamilies), std::end(genericFamilies), [&](const GenericFamily &generic) {
            return name.text.compare(generic.name, Qt::CaseInsensitive) == 0;
        });
    return name.quoted || found == std::end(genericFamilies) ? nullptr : found;
}

/// What the system has for a name, and whether it is that family rather than a replacement.
struct SystemFamily
{
    QString name;
    bool isThere = false;
};

SystemFamily systemFamily(const FamilyName &name)
{
    static KnownFamilies families;
    if (const GenericFamily *generic = genericFamily(name))
        return {families.find(generic->name, generic->hint), true};
    const QString family = families.find(name.text);
    return {family, family.compare(name.text, Qt::CaseInsensitive) == 0};
}

// The families that are there, in their order (CSS Fonts 3 §5), else what replaces the first one.
void setFamilies(QFont &font, const QString &list)
{
    QStringList there;
    QString replacement;
    const QVector<FamilyName> names = parseFontFamilies(list);
    for (const FamilyName &name : names) {
        const SystemFamily family = systemFamily(name);
        if (family.name.isEmpty() || there.contains(family.name))
            continue;
        if (family.isThere)
            there.append(family.name);
        else if (replacement.isEmpty())
            replacement = family.name;
    }
    if (!there.isEmpty())
        font.setFamilies(there);
    else if (!replacement.isEmpty())
        font.setFamily(replacement);
}

} // namespace

bool isInstalled(const FamilyName &name)
{
    return systemFamily(name).isThere;
}

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

#include "text/fonts.h"

#include "grammar/inputlimits.h"

#include <QtCore/QHash>
#include <QtCore/QStringList>
#include <QtGui/QFontDatabase>
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

/// The system's fonts for names of families, looked up once per name. The number of lookups is limited: searching
/// for a replacement is expensive.
class KnownFamilies
{
public:
    /// The name of an installed family, or of its replacement; empty without either.
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

/// The system's font for a name, and whether it is that family or a replacement.
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

// The installed families in order (CSS Fonts 3 §5), else the replacement of the first one.
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

struct NamedStretch
{
    QLatin1String word;
    int stretch;
};

// The longest words first: they contain the others.
const NamedStretch namedStretches[] = {
    {QLatin1String("ultracondensed"), 50}, {QLatin1String("extracondensed"), 62},
    {QLatin1String("semicondensed"), 87},  {QLatin1String("condensed"), 75},
    {QLatin1String("narrow"), 75},         {QLatin1String("semiexpanded"), 112},
    {QLatin1String("extraexpanded"), 150}, {QLatin1String("ultraexpanded"), 200},
    {QLatin1String("expanded"), 125},
};

int stretchOfStyle(const QString &style)
{
    QString name = style.toLower();
    name.remove(QLatin1Char(' ')).remove(QLatin1Char('-'));
    for (const NamedStretch &known : namedStretches)
        if (name.contains(known.word))
            return known.stretch;
    return QFont::Unstretched;
}

// The better of two widths for the wanted one: narrower ones first for narrow letters, wider ones first for wide
// ones (CSS Fonts 3 §5.2).
bool isBetterStretch(int a, int b, int wanted)
{
    const bool narrow = wanted <= QFont::Unstretched;
    const bool sideOfA = narrow ? a <= wanted : a >= wanted;
    const bool sideOfB = narrow ? b <= wanted : b >= wanted;
    return sideOfA != sideOfB ? sideOfA : qAbs(a - wanted) < qAbs(b - wanted);
}

/// The widths of families, each looked up once.
class KnownStretches
{
public:
    int nearest(const QString &family, int wanted)
    {
        const std::lock_guard lock(m_mutex);
        auto known = m_stretches.find(family);
        if (known == m_stretches.end())
            known = m_stretches.insert(family, stretchesOf(family));
        int best = known->value(0, QFont::Unstretched);
        for (const int stretch : qAsConst(*known))
            if (isBetterStretch(stretch, best, wanted))
                best = stretch;
        return best;
    }

private:
    static QVector<int> stretchesOf(const QString &family)
    {
        QVector<int> result;
        const QStringList styles = QFontDatabase().styles(family);
        for (const QString &style : styles)
            result.append(stretchOfStyle(style));
        return result;
    }

    std::mutex m_mutex;
    QHash<QString, QVector<int>> m_stretches;
};

// Letters are never stretched when the family has no such face.
void setStretch(QFont &font, int wanted)
{
    static KnownStretches stretches;
    const QStringList families = font.families();
    const int nearest = stretches.nearest(families.isEmpty() ? font.family() : families.constFirst(), wanted);
    if (nearest != QFont::Unstretched)
        font.setStretch(nearest);
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
    font.setKerning(text.fontKerns());
    if (text.stretch != QFont::Unstretched)
        setStretch(font, text.stretch);
    if (text.smallCaps != SmallCaps::None)
        font.setCapitalization(QFont::SmallCaps);
    font.setStyleStrategy(QFont::ForceOutline);
    return font;
}

} // namespace Svg

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
    {QLatin1String("fantasy"), QFont::Fantasy},
};

QString unquoted(const QString &name)
{
    const QString trimmed = name.trimmed();
    const bool quoted = trimmed.size() >= 2 && trimmed.front() == trimmed.back() &&
                        (trimmed.front() == QLatin1Char('\'') || trimmed.front() == QLatin1Char('"'));
    return quoted ? trimmed.mid(1, trimmed.size() - 2) : trimmed;
}

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

QString knownFamily(const QString &name)
{
    static KnownFamilies families;
    for (const GenericFamily &generic : genericFamilies) {
        if (name == generic.name)
            return families.find(name, generic.hint);
    }
    return families.find(name);
}

bool isGeneric(const QString &name)
{
    return std::any_of(std::begin(genericFamilies), std::end(genericFamilies),
                       [&](const GenericFamily &generic) { return name == generic.name; });
}

// The first family that is there (CSS Fonts 3 §5), else what replaces the first one.
void setFamilies(QFont &font, const QString &list)
{
    QString replacement;
    const QStringList names = list.split(QLatin1Char(','), Qt::SkipEmptyParts);
    for (const QString &quoted : names) {
        const QString name = unquoted(quoted);
        const QString family = knownFamily(name);
        if (family.isEmpty())
            continue;
        if (isGeneric(name) || family.compare(name, Qt::CaseInsensitive) == 0) {
            font.setFamily(family);
            return;
        }
        if (replacement.isEmpty())
            replacement = family;
    }
    if (!replacement.isEmpty())
        font.setFamily(replacement);
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

#include <pagehost/localizer.h>

#include <host/hosttexts.h>

namespace pagehost {

namespace {

const QString &english()
{
    static const QString code = QStringLiteral("en");
    return code;
}

const QLatin1String keyPrefix("IDS_");

/// The key as words, without its prefix.
QString wordsOf(const QString &key)
{
    QString words = key.mid(keyPrefix.size()).replace(QLatin1Char('_'), QLatin1Char(' ')).simplified().toLower();
    if (!words.isEmpty())
        words[0] = words[0].toUpper();
    return words;
}

} // namespace

Localizer::Localizer()
    : m_tables({{english(), hosttexts::english()}, {QStringLiteral("de"), hosttexts::german()}})
    , m_language(english())
{
}

QString Localizer::text(const QString &key) const
{
    if (hasText(m_language, key))
        return m_tables.value(m_language).value(key);
    if (hasText(english(), key))
        return m_tables.value(english()).value(key);
    return key.startsWith(keyPrefix) ? wordsOf(key) : key;
}

bool Localizer::hasText(const QString &language, const QString &key) const
{
    const auto table = m_tables.find(language);
    return table != m_tables.end() && table->contains(key);
}

void Localizer::setLanguage(const QString &language)
{
    const QString stem = language.section(QLatin1Char('_'), 0, 0);
    if (m_tables.contains(language))
        m_language = language;
    else
        m_language = m_tables.contains(stem) ? stem : english();
}

void Localizer::addTexts(const QString &language, const TextTable &texts)
{
    TextTable &table = m_tables[language];
    for (auto text = texts.begin(); text != texts.end(); ++text)
        table.insert(text.key(), text.value());
}

LocalizedDelegate::LocalizedDelegate(const ILocalize *localizer, QObject *parent)
    : QStyledItemDelegate(parent)
    , m_localizer(localizer)
{
}

QString LocalizedDelegate::displayText(const QVariant &value, const QLocale &locale) const
{
    return m_localizer->text(QStyledItemDelegate::displayText(value, locale));
}

} // namespace pagehost

#include <shapekit/text.h>

#include <shapekit/kind.h>

namespace shapekit {

Words inEnglishAndGerman(const char *english, const char *german)
{
    return {{QStringLiteral("en"), QString::fromUtf8(english)}, {QStringLiteral("de"), QString::fromUtf8(german)}};
}

Text::Text(const char *english, const char *german)
    : Text(inEnglishAndGerman(english, german))
{
}

Text::Text(const Words &words)
    : m_words(words)
{
}

Text::Text(const QString &key, const QString &name)
    : m_key(key)
    , m_name(name)
{
}

QString Text::key(const Kind *kind) const
{
    if (!m_key.isEmpty())
        return m_key;
    return kind ? kind->textKey(name().toUpper()) : name().toUpper();
}

QString Text::name() const
{
    return m_key.isEmpty() ? joinedWords(m_words.value(QStringLiteral("en"))) : m_name;
}

QString Text::joinedWords(const QString &text)
{
    QString name;
    bool startsWord = true;
    for (const QChar character : text) {
        if (character.isLetterOrNumber())
            name += startsWord ? character.toUpper() : character;
        startsWord = !character.isLetterOrNumber();
    }
    return name;
}

} // namespace shapekit

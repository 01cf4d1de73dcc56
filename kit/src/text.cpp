#include <shapekit/text.h>

#include <shapekit/kind.h>

#include <QtCore/QVector>

namespace shapekit {

namespace {

QVector<const Text *> &knownTexts()
{
    static QVector<const Text *> texts;
    return texts;
}

} // namespace

Text::Text(const char *english, const char *german)
    : m_english(QString::fromUtf8(english))
    , m_german(QString::fromUtf8(german))
{
    knownTexts().append(this);
}

Text::Text(const QString &key, const QString &name)
    : m_key(key)
    , m_english(name)
{
}

QString Text::key() const
{
    return m_key.isEmpty() ? kind().textKey(name().toUpper()) : m_key;
}

QString Text::name() const
{
    return m_key.isEmpty() ? joinedWords(m_english) : m_english;
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

QMap<QString, QString> Text::all(const QString &language)
{
    QMap<QString, QString> texts;
    const bool english = language == QLatin1String("en");
    if (!english && language != QLatin1String("de"))
        return texts;
    for (const Text *text : qAsConst(knownTexts()))
        texts.insert(text->key(), english ? text->m_english : text->m_german);
    return texts;
}

} // namespace shapekit

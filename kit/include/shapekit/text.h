#pragma once

#include <shapekit/shapekit_global.h>

#include <QtCore/QMap>
#include <QtCore/QString>

namespace shapekit {

struct Kind;

/// A text by language; English under "en".
using Words = QMap<QString, QString>;

/// UTF-8.
SHAPEKIT_EXPORT Words inEnglishAndGerman(const char *english, const char *german);

/// Text shown to the user: the title of a property or of an entry of a choice. Texts are constants of a shape's
/// source file; the plug-in passes those of its shapes to the host.
class SHAPEKIT_EXPORT Text
{
public:
    /// UTF-8. The joined English words form the key: they must be unique within the shape.
    Text(const char *english, const char *german);
    /// The same for any languages; English must be among them.
    explicit Text(const Words &words);
    /// A text that its owner passes to the host under that key, and that has that name.
    Text(const QString &key, const QString &name);
    Text(const Text &) = delete;
    Text &operator=(const Text &) = delete;

    /// The localisation key of a text of that kind of shape, "IDS_SHAPE_<KIND>_<ENGLISHWORDS>".
    QString key(const Kind *kind) const;
    /// The English words joined without spaces: "Corner count" gives "CornerCount".
    QString name() const;
    /// The words of a text, each with a capital letter, without what stands between them.
    static QString joinedWords(const QString &text);
    /// Empty for a text that its owner passes to the host.
    const Words &words() const { return m_words; }

private:
    QString m_key;  ///< empty where the English words form it
    QString m_name; ///< with a key
    Words m_words;
};

} // namespace shapekit

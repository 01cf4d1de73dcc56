#pragma once

#include <QtCore/QMap>
#include <QtCore/QString>

namespace shapekit {

/// Text shown to the user, in the languages of the shapes. Texts are constants of a shape's source file; the
/// plug-in passes all of them to the host.
class Text
{
public:
    /// UTF-8. The joined English words form the key: they must be unique within the shape.
    Text(const char *english, const char *german);
    /// A text that its owner passes to the host under that key, and that has that name.
    Text(const QString &key, const QString &name);
    Text(const Text &) = delete;
    Text &operator=(const Text &) = delete;

    /// The localisation key, "IDS_SHAPE_<kind>_<english words>".
    QString key() const;
    /// The English words joined without spaces: "Corner count" gives "CornerCount".
    QString name() const;
    static QString joinedWords(const QString &text);

    /// All texts of this plug-in by key; empty for a language other than "en" and "de".
    static QMap<QString, QString> all(const QString &language);

private:
    QString m_key; ///< empty where the English words form it
    QString m_english;
    QString m_german;
};

} // namespace shapekit

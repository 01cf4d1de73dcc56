#pragma once

#include <QtCore/QMap>
#include <QtCore/QString>

namespace shapekit {

/// Words that the user reads, in the languages that shapes speak. Texts are constants of a shape's source file: the
/// plug-in hands all of them to the host.
class Text
{
public:
    /// UTF-8. The English words, put together, make the key: they differ from those of every other text of the
    /// shape.
    Text(const char *english, const char *german);
    Text(const Text &) = delete;
    Text &operator=(const Text &) = delete;

    /// The localisation key, "IDS_SHAPE_<kind>_<english words>".
    QString key() const;
    /// The English words without what is between them: "Corner count" gives "CornerCount".
    QString name() const;

    /// All texts of this plug-in by key; empty for a language other than "en" and "de".
    static QMap<QString, QString> all(const QString &language);

private:
    QString m_english;
    QString m_german;
};

} // namespace shapekit

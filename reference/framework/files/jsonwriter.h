#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QJsonObject>
#include <QtCore/QJsonValue>

namespace pagehost {

/// Writes JSON text: members and the elements of outer arrays on lines of their own, indented; arrays of plain
/// values on one line. Numbers are the shortest text that reads back as the same value.
class JsonWriter
{
public:
    void beginObject(const char *key = nullptr);
    void endObject();
    void beginArray(const char *key);
    void endArray();

    void member(const char *key, const QJsonValue &value);
    void member(const char *key, const QByteArray &asciiText);
    /// With a key of any characters; those above are ASCII without `"` and `\`.
    void member(const QString &key, const QJsonValue &value);
    /// `text` must be JSON.
    void rawMember(const char *key, const QByteArray &text);

    /// False after a number that JSON cannot reproduce (infinite, NaN, subnormal) was written as null.
    bool isExact() const { return m_isExact; }

    int size() const { return m_text.size(); }
    /// Removes what was written after size() was `size`, which must have been between the same brackets.
    void cutBack(int size);
    /// Ends with a line break.
    QByteArray text() const { return m_text + '\n'; }

private:
    void beginItem(const char *key);
    void newLine();
    void writeValue(const QJsonValue &value);
    void writeObject(const QJsonObject &object);
    void writeArray(const QJsonArray &array);
    void writeNumber(const QJsonValue &value);
    void writeString(const QString &text);

    QByteArray m_text;
    int m_depth = 0;
    bool m_isExact = true;
};

} // namespace pagehost

#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QJsonValue>
#include <QtCore/QString>

namespace pagehost {

/// Moves over JSON text value by value, without recursion, and reports where it fails. It checks only the syntax
/// needed to find the ends of values; parseJson() checks what is inside.
class JsonCursor
{
public:
    /// Refers to the text.
    explicit JsonCursor(const QByteArray &text);

    qint64 offset() const { return m_pos; }
    void setOffset(qint64 offset) { m_pos = offset; }
    bool atEnd() const { return m_pos >= m_text.size(); }
    /// The next character that is not white space, without taking it; 0 at the end.
    char peek();
    /// Takes `character` if it is the next.
    bool take(char character);

    /// Takes a member's key and its colon.
    bool takeKey(QByteArray &key);
    /// Takes one value of any kind; `value` refers to its text. False, without moving, when it does not end or is
    /// invalid.
    bool takeValue(QByteArray &value);

private:
    bool takeString(QByteArray &contents);
    bool skipBracketed();

    QByteArray m_text;
    qint64 m_pos = 0;
};

struct JsonProblem
{
    bool isThere = false;
    QString text; ///< empty for none
    qint64 offset = 0;
};

/// The value of a text; undefined, with `problem` set, for one that is invalid or nested too deeply.
QJsonValue parseJson(const QByteArray &text, JsonProblem &problem);

/// Lines and columns of offsets, fast for increasing ones.
class LineCounter
{
public:
    explicit LineCounter(const QByteArray &text)
        : m_text(text)
    {
    }
    /// Both from 1; the column in bytes.
    void locate(qint64 offset, int &line, int &column);

private:
    QByteArray m_text;
    qint64 m_lineStart = 0;
    qint64 m_pos = 0;
    int m_line = 1;
};

} // namespace pagehost

#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QVector>

#include <array>
#include <vector>

namespace pagehost {

/// An object in a text that is whole, and of a sort that stands for itself wherever it is found.
struct JsonEntry
{
    enum Sort { Object, Lesson };
    Sort sort = Object;
    qint64 start = 0;
    qint64 end = 0;
};

/// Holds JSON text against the grammar, without recursion. Inside strings only their end is looked for, and of
/// numbers only that they begin as one.
class JsonScan
{
public:
    /// Refers to the text.
    explicit JsonScan(const QByteArray &text)
        : m_text(text)
    {
    }

    /// Whether a whole value begins at `start`, white space aside; end() is then behind it.
    bool takeValue(qint64 start);
    qint64 end() const { return m_pos; }
    /// The entries of the value, outer ones only, those of a broken one too.
    QVector<JsonEntry> entries() const { return m_entries; }
    /// Of a broken value: where the grammar is left.
    qint64 failure() const { return m_pos; }
    /// Of a broken value: from where on nothing has been understood. Lies in the last string, since a quote may be
    /// what is missing.
    qint64 resumption() const { return m_resumption; }

private:
    enum Expectation { Value, ValueOrEnd, Key, KeyOrEnd, Separator };
    /// An object that is open, and which of the members that matter it has so far.
    struct Level
    {
        std::size_t depth = 0; ///< of brackets, from 1; 0 for none
        qint64 start = 0;
        quint32 members = 0;
    };

    char peek();
    bool takeNext();
    bool takeKey();
    bool takeString();
    bool takeWord();
    void open(bool isObject);
    bool close(char bracket);
    void noteMember(char firstOfValue);
    void noteEntry(const Level &level);
    Level &innermost();

    QByteArray m_text;
    qint64 m_pos = 0;
    qint64 m_lastString = 0;
    qint64 m_resumption = 0;
    Expectation m_expected = Value;
    std::vector<bool> m_isObject;   ///< of every open bracket
    std::array<Level, 64> m_levels; ///< of the inner ones of them, by depth modulo their number
    QByteArray m_key;               ///< of the member whose value comes next
    QVector<JsonEntry> m_entries;
};

/// All entries of a text that is broken somewhere, in their order. Takes time in proportion to the text.
QVector<JsonEntry> findEntries(const QByteArray &text);

} // namespace pagehost

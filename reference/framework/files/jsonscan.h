#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QVector>

#include <array>
#include <vector>

namespace pagehost {

/// An object in intact text, of a kind that is recognised anywhere.
struct JsonEntry
{
    enum Sort { Object, Lesson };
    Sort sort = Object;
    qint64 start = 0;
    qint64 end = 0;
};

/// Checks JSON text against the grammar, without recursion. Of strings it only finds the end, and of numbers the
/// start.
class JsonScan
{
public:
    /// Refers to the text.
    explicit JsonScan(const QByteArray &text)
        : m_text(text)
    {
    }

    /// Whether a whole value begins at `start`, after white space; end() is then after it.
    bool takeValue(qint64 start);
    qint64 end() const { return m_pos; }
    /// The entries of the value, outermost ones only, including those of a broken one.
    QVector<JsonEntry> entries() const { return m_entries; }
    /// Of a broken value: where it violates the grammar.
    qint64 failure() const { return m_pos; }
    /// Of a broken value: where understanding ended. Lies in the last string, since a quote may be missing.
    qint64 resumption() const { return m_resumption; }

private:
    enum Expectation { Value, ValueOrEnd, Key, KeyOrEnd, Separator };
    /// An open object, and which of the relevant members it has so far.
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
    std::array<Level, 64> m_levels; ///< of the innermost ones, by depth modulo their number
    QByteArray m_key;               ///< of the member whose value comes next
    QVector<JsonEntry> m_entries;
};

/// All entries of a text that is broken somewhere, in order. Takes time proportional to the text.
QVector<JsonEntry> findEntries(const QByteArray &text);

} // namespace pagehost

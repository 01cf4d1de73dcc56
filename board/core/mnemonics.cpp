#include "core/mnemonics.h"

#include <QtCore/QHash>
#include <QtCore/QSet>
#include <QtCore/QVector>

namespace board {

namespace {

constexpr QLatin1Char mark('&');

/// -1 without one.
int indexOfMark(const QString &text)
{
    for (int index = text.indexOf(mark); index >= 0; index = text.indexOf(mark, index + 2))
        if (index + 1 < text.size() && text.at(index + 1) != mark)
            return index;
    return -1;
}

/// Indices of characters that can be marked, those that begin words first. Keys at the end of a menu's entry are
/// none.
QVector<int> places(const QString &text)
{
    QVector<int> first;
    QVector<int> others;
    for (int index = 0; index < text.size() && text.at(index) != QLatin1Char('\t'); ++index) {
        const bool beginsWord = index == 0 || !text.at(index - 1).isLetterOrNumber();
        if (text.at(index).isLetterOrNumber())
            (beginsWord ? first : others).append(index);
    }
    return first + others;
}

/// Finds each text a place whose character no other one has.
class Distribution
{
public:
    /// `taken` characters are out of reach.
    Distribution(const QStringList &texts, const QSet<QChar> &taken)
        : m_texts(texts)
        , m_taken(taken)
        , m_places(texts.size(), -1)
    {
    }

    /// Where all its characters are taken, others get another place.
    void give(int text)
    {
        const QVector<int> possible = places(m_texts.at(text));
        for (const int place : possible)
            if (isFree(characterAt(text, place)))
                return put(text, place);
        m_asked.clear();
        displace(text);
    }
    /// -1 where the text got none.
    int placeOf(int text) const { return m_places.at(text); }

private:
    QChar characterAt(int text, int place) const { return m_texts.at(text).at(place).toLower(); }
    bool isFree(QChar character) const { return !m_taken.contains(character) && !m_owners.contains(character); }

    void put(int text, int place)
    {
        m_owners.insert(characterAt(text, place), text);
        m_places[text] = place;
    }

    // As deep as there are texts.
    bool displace(int text)
    {
        const QVector<int> possible = places(m_texts.at(text));
        for (const int place : possible) {
            const QChar character = characterAt(text, place);
            if (m_taken.contains(character) || m_asked.contains(character))
                continue;
            m_asked.insert(character);
            const int owner = m_owners.value(character, -1);
            if (owner >= 0 && !displace(owner))
                continue;
            put(text, place);
            return true;
        }
        return false;
    }

    QStringList m_texts;
    QSet<QChar> m_taken;
    QVector<int> m_places;
    QHash<QChar, int> m_owners;
    QSet<QChar> m_asked; ///< in the search that is going on
};

} // namespace

QChar mnemonicOf(const QString &text)
{
    const int index = indexOfMark(text);
    return index < 0 ? QChar() : text.at(index + 1).toLower();
}

QString withoutMnemonic(const QString &text)
{
    const int index = indexOfMark(text);
    return index < 0 ? text : QString(text).remove(index, 1);
}

QStringList withMnemonics(const QStringList &texts)
{
    QStringList marked = texts;
    QSet<QChar> kept;
    for (QString &text : marked) {
        const QChar character = mnemonicOf(text);
        if (kept.contains(character))
            text = withoutMnemonic(text);
        else if (!character.isNull())
            kept.insert(character);
    }
    Distribution distribution(marked, kept);
    for (int index = 0; index < marked.size(); ++index)
        if (mnemonicOf(marked.at(index)).isNull())
            distribution.give(index);
    for (int index = 0; index < marked.size(); ++index)
        if (distribution.placeOf(index) >= 0)
            marked[index].insert(distribution.placeOf(index), mark);
    return marked;
}

} // namespace board

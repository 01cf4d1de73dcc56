#include "page/formulatyping.h"

#include <QtCore/QString>
#include <QtGui/QTextBlock>
#include <QtGui/QTextCursor>

#include <algorithm>
#include <iterator>

namespace board {

namespace {

const QString plainRaised = QStringLiteral("0123456789+-=()inabcdefghjklmoprstuvwxyz");
const QString raised = QStringLiteral("⁰¹²³⁴⁵⁶⁷⁸⁹⁺⁻⁼⁽⁾ⁱⁿᵃᵇᶜᵈᵉᶠᵍʰʲᵏˡᵐᵒᵖʳˢᵗᵘᵛʷˣʸᶻ");
const QString plainLowered = QStringLiteral("0123456789+-=()aehijklmnoprstuvx");
const QString lowered = QStringLiteral("₀₁₂₃₄₅₆₇₈₉₊₋₌₍₎ₐₑₕᵢⱼₖₗₘₙₒₚᵣₛₜᵤᵥₓ");
/// Letters of a chemical symbol, which has numbers as indices, and of a variable; more are a word.
constexpr int longestSymbol = 2;
constexpr int longestVariable = 1;

int trailingLetters(const QString &text)
{
    const auto isLetter = [](QChar one) {
        return one.isLetter() && !raised.contains(one) && !lowered.contains(one);
    };
    return int(std::distance(text.rbegin(), std::find_if_not(text.rbegin(), text.rend(), isLetter)));
}

bool takesIndex(const QString &base, QChar index)
{
    const QChar last = base.at(base.size() - 1);
    const int letters = trailingLetters(base);
    const bool isSymbol = letters > 0 && letters <= (index.isLetter() ? longestVariable : longestSymbol) &&
                          (letters == base.size() || base.at(base.size() - 1 - letters) != QLatin1Char('_'));
    return isSymbol || last == QLatin1Char(')') || raised.contains(last) || lowered.contains(last);
}

bool takesExponent(const QString &base)
{
    const QChar last = base.at(base.size() - 1);
    return !last.isSpace() && last != QLatin1Char('^');
}

/// Null for a character that has none.
QChar counterpart(QChar character, const QString &plain, const QString &others)
{
    const int index = plain.indexOf(character);
    return index < 0 ? QChar() : others.at(index);
}

} // namespace

bool raiseOrLower(QTextCursor cursor)
{
    const QString before = cursor.block().text().left(cursor.positionInBlock());
    if (cursor.hasSelection() || before.size() < 3)
        return false;
    const QChar typed = before.at(before.size() - 1);
    const QChar mark = before.at(before.size() - 2);
    const QString base = before.chopped(2);
    QChar character;
    if (mark == QLatin1Char('^') && takesExponent(base))
        character = counterpart(typed, plainRaised, raised);
    else if (mark == QLatin1Char('_') && takesIndex(base, typed))
        character = counterpart(typed, plainLowered, lowered);
    if (character.isNull())
        return false;
    cursor.beginEditBlock();
    cursor.movePosition(QTextCursor::PreviousCharacter, QTextCursor::KeepAnchor, 2);
    cursor.insertText(character);
    cursor.endEditBlock();
    return true;
}

} // namespace board

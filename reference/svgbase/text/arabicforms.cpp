#include "text/arabicforms.h"

namespace Svg {

namespace {

/// How many marks are skipped when looking for a neighbour.
constexpr int farthestNeighbour = 16;

QChar::JoiningType joiningAt(const QString &text, int at)
{
    return QChar::joiningType(text.at(at).unicode());
}

// Marks don't separate letters.
QChar::JoiningType neighbour(const QString &text, int at, int step)
{
    for (int i = at + step; i >= 0 && i < text.size() && qAbs(i - at) <= farthestNeighbour; i += step)
        if (joiningAt(text, i) != QChar::Joining_Transparent)
            return joiningAt(text, i);
    return QChar::Joining_None;
}

bool joinsNext(QChar::JoiningType type)
{
    return type == QChar::Joining_Dual || type == QChar::Joining_Left || type == QChar::Joining_Causing;
}

bool joinsPrevious(QChar::JoiningType type)
{
    return type == QChar::Joining_Dual || type == QChar::Joining_Right || type == QChar::Joining_Causing;
}

} // namespace

ArabicForm arabicForm(const QString &text, int at)
{
    const QChar::JoiningType own = joiningAt(text, at);
    const bool previous = joinsPrevious(own) && joinsNext(neighbour(text, at, -1));
    const bool next = joinsNext(own) && joinsPrevious(neighbour(text, at, 1));
    if (previous)
        return next ? ArabicForm::Medial : ArabicForm::Terminal;
    return next ? ArabicForm::Initial : ArabicForm::Isolated;
}

} // namespace Svg

#include "commands/finder.h"

#include "core/commands.h"
#include "core/texts.h"
#include "core/workspace.h"

#include <algorithm>

namespace board {

namespace {

/// Of a text and of the words that stand for it besides, in all languages.
QString wordsOf(const Workspace &workspace, const QString &textKey)
{
    const QString wordsKey = textKey + QStringLiteral("_WORDS");
    pagehost::Localizer localizer = workspace.localizer();
    QStringList words;
    const QStringList languages = boardLanguages();
    for (const QString &language : languages) {
        localizer.setLanguage(language);
        words.append(localizer.text(textKey).remove(QLatin1Char('&')));
        if (localizer.hasText(language, wordsKey))
            words.append(localizer.text(wordsKey));
    }
    return words.join(QLatin1Char(' '));
}

bool hasAll(const QString &words, const QStringList &wanted)
{
    return std::all_of(wanted.begin(), wanted.end(),
                       [&](const QString &word) { return words.contains(word, Qt::CaseInsensitive); });
}

/// The lower the better.
int rankOf(const Findable &findable, const QString &text)
{
    if (findable.name.startsWith(text, Qt::CaseInsensitive))
        return 0;
    if (findable.name.contains(QLatin1Char(' ') + text, Qt::CaseInsensitive))
        return 1;
    return findable.name.contains(text, Qt::CaseInsensitive) ? 2 : 3;
}

} // namespace

QVector<Findable> findables(const Workspace &workspace, const Commands &commands)
{
    QVector<Findable> all;
    const QVector<Command> performed = commands.performed();
    for (const Command command : performed) {
        const CommandFacts &facts = factsOf(command);
        const QString group = workspace.text(groupTextKey(facts.group)).remove(QLatin1Char('&'));
        all.append({commands.name(command), group, wordsOf(workspace, QLatin1String(facts.textKey)), command, {}});
    }
    const QVector<pagehost::ObjectKind> kinds = workspace.registry().kinds();
    for (const pagehost::ObjectKind &kind : kinds)
        all.append({workspace.text(kind.nameKey),
                    workspace.text(kind.group),
                    wordsOf(workspace, kind.nameKey),
                    {},
                    kind.id});
    return all;
}

QVector<Findable> findMatches(const QVector<Findable> &all, const QString &text)
{
    const QString trimmed = text.simplified();
    const QStringList wanted = trimmed.split(QLatin1Char(' '), Qt::SkipEmptyParts);
    QVector<Findable> found;
    std::copy_if(all.begin(), all.end(), std::back_inserter(found),
                 [&](const Findable &findable) { return hasAll(findable.words, wanted); });
    std::stable_sort(found.begin(), found.end(), [&](const Findable &one, const Findable &other) {
        return rankOf(one, trimmed) < rankOf(other, trimmed);
    });
    return found;
}

} // namespace board

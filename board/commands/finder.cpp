#include "commands/finder.h"

#include "core/commands.h"
#include "core/searchwords.h"
#include "core/workspace.h"

#include <algorithm>

namespace board {

QVector<Findable> findables(const Workspace &workspace, const Commands &commands)
{
    QVector<Findable> all;
    const QVector<Command> performed = commands.performed();
    for (const Command command : performed) {
        const CommandFacts &facts = factsOf(command);
        const QString group = workspace.text(groupTextKey(facts.group)).remove(QLatin1Char('&'));
        all.append(
            {commands.name(command), group, searchWords(workspace, QLatin1String(facts.textKey)), command, {}});
    }
    const QVector<pagehost::ObjectKind> kinds = workspace.registry().kinds();
    for (const pagehost::ObjectKind &kind : kinds)
        all.append({workspace.text(kind.nameKey),
                    workspace.text(kind.group),
                    searchWords(workspace, kind.nameKey),
                    {},
                    kind.id});
    return all;
}

QVector<Findable> findMatches(const QVector<Findable> &all, const QString &text)
{
    const QString trimmed = text.simplified();
    QVector<Findable> found;
    std::copy_if(all.begin(), all.end(), std::back_inserter(found),
                 [&](const Findable &findable) { return hasAllWords(findable.words, trimmed); });
    std::stable_sort(found.begin(), found.end(), [&](const Findable &one, const Findable &other) {
        return nameRank(one.name, trimmed) < nameRank(other.name, trimmed);
    });
    return found;
}

} // namespace board

#include "panels/paletteorder.h"

#include "core/searchwords.h"
#include "core/workspace.h"

#include <QtCore/QCollator>

#include <algorithm>

namespace board {

QVector<PaletteEntry> paletteEntries(const Workspace &workspace)
{
    QVector<PaletteEntry> entries;
    const QVector<pagehost::ObjectKind> kinds = workspace.registry().kinds();
    for (const pagehost::ObjectKind &kind : kinds)
        if (!kind.group.isEmpty())
            entries.append({kind.id, workspace.text(kind.nameKey), workspace.text(kind.group),
                            searchWords(workspace, kind.nameKey), kind.rank});
    const QString basic = workspace.text(pagehost::basicGroup);
    const QString own = workspace.text(pagehost::ownGroup);
    const QCollator collator(QLocale(workspace.localizer().language()));
    std::stable_sort(entries.begin(), entries.end(), [&](const PaletteEntry &one, const PaletteEntry &other) {
        if (one.group == other.group && one.rank != other.rank)
            return other.rank == 0 || (one.rank != 0 && one.rank < other.rank);
        if (one.group == other.group)
            return collator.compare(one.name, other.name) < 0;
        if (one.group == basic || other.group == basic)
            return one.group == basic;
        if (one.group == own || other.group == own)
            return other.group == own;
        return collator.compare(one.group, other.group) < 0;
    });
    return entries;
}

} // namespace board

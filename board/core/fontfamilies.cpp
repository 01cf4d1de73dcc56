#include "core/fontfamilies.h"

#include <QtGui/QFontDatabase>

namespace board {

namespace {

bool standsForAnother(const QString &family)
{
    static const QStringList names{QStringLiteral("Serif"), QStringLiteral("Sans"), QStringLiteral("Sans Serif"),
                                   QStringLiteral("Sans-serif"), QStringLiteral("Monospace")};
    return names.contains(family, Qt::CaseInsensitive);
}

/// Families of the same name from several makers are told apart by "[maker]", which no drawing knows.
QString withoutMaker(const QString &family)
{
    const int maker = family.lastIndexOf(QLatin1String(" ["));
    return maker > 0 && family.endsWith(QLatin1Char(']')) ? family.left(maker) : family;
}

} // namespace

QStringList fontFamilies()
{
    const QFontDatabase database;
    QStringList found;
    const QStringList all = database.families();
    for (const QString &family : all)
        if (!standsForAnother(family) && !database.isPrivateFamily(family) && database.isSmoothlyScalable(family))
            found.append(withoutMaker(family));
    found.removeDuplicates();
    return found;
}

} // namespace board

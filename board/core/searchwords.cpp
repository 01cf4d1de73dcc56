#include "core/searchwords.h"

#include "core/texts.h"
#include "core/workspace.h"

#include <algorithm>

namespace board {

QString searchWords(const Workspace &workspace, const QString &textKey)
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

bool hasAllWords(const QString &words, const QString &sought)
{
    const QStringList wanted = sought.split(QLatin1Char(' '), Qt::SkipEmptyParts);
    return std::all_of(wanted.begin(), wanted.end(),
                       [&](const QString &word) { return words.contains(word, Qt::CaseInsensitive); });
}

int nameRank(const QString &name, const QString &sought)
{
    if (name.compare(sought, Qt::CaseInsensitive) == 0)
        return 0;
    if (name.startsWith(sought, Qt::CaseInsensitive))
        return 1;
    if (name.contains(QLatin1Char(' ') + sought, Qt::CaseInsensitive))
        return 2;
    return name.contains(sought, Qt::CaseInsensitive) ? 3 : 4;
}

} // namespace board

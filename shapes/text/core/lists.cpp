#include "text/core/lists.h"

#include <pagehost/listmark.h>

#include <QtCore/QStringList>

namespace text {

ListKind listKindOf(const QString &text)
{
    const QString mark = pagehost::listMark(text.section(QLatin1Char('\n'), 0, 0));
    if (mark.isEmpty())
        return ListKind::None;
    return mark.at(0) == QChar(pagehost::listBullet) ? ListKind::Bullets : ListKind::Numbers;
}

QString asList(const QString &text, ListKind kind)
{
    QStringList lines = text.split(QLatin1Char('\n'));
    int number = 0;
    for (QString &line : lines) {
        line.remove(0, pagehost::listMark(line).size());
        ++number;
        if (kind == ListKind::Bullets)
            line.prepend(QString(QChar(pagehost::listBullet)) + QLatin1Char(' '));
        else if (kind == ListKind::Numbers)
            line.prepend(QStringLiteral("%1. ").arg(number));
    }
    return lines.join(QLatin1Char('\n'));
}

} // namespace text

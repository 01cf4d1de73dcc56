#include "properties/editorlists.h"

#include <framework/cutil.h>

#include "shape/emptytext.h"

#include <QtCore/QDataStream>

namespace {

enum ListKind : qint32 { TextList = 0, IconList = 2 };

constexpr qint32 lineStyleCount = 6;
constexpr int iconWidth = 80;
constexpr int iconHeight = 15;
constexpr int iconLineWidth = 3;

QByteArray makeLineStyles()
{
    QByteArray bytes;
    QDataStream out(&bytes, QIODevice::WriteOnly);
    out << lineStyleCount << qint32(IconList);
    for (int style = 0; style < lineStyleCount; ++style)
        out << emptyText() << CUtil::genIconForLineStyle(iconWidth, iconHeight, iconLineWidth, style, Qt::black);
    return bytes;
}

} // namespace

QByteArray EditorLists::lineStyles()
{
    static const QByteArray bytes = makeLineStyles();
    return bytes;
}

QByteArray EditorLists::penWidths(int maximum)
{
    QByteArray bytes;
    QDataStream out(&bytes, QIODevice::WriteOnly);
    out << qint32(maximum) << qint32(TextList);
    for (int width = 1; width <= maximum; ++width)
        out << QStringLiteral("%1").arg(width);
    return bytes;
}

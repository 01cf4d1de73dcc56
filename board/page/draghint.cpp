#include "page/draghint.h"

#include <pagehost/objectplugin.h>

#include <framework/cbaseobject.h>

#include <QtCore/QDataStream>
#include <QtWidgets/QToolTip>

namespace board {

QString dragHintOf(CBaseObject &object)
{
    QByteArray bytes;
    QDataStream out(&bytes, QIODevice::WriteOnly);
    if (!object.GetSpecialProperty(pagehost::DragHint, out))
        return {};
    QString hint;
    QDataStream in(bytes);
    in >> hint;
    return hint;
}

void showDragHint(const QString &hint, const QPoint &pointer, QWidget *view)
{
    // Markup of a shape's file is text here.
    QToolTip::showText(pointer, hint.isEmpty() ? QString() : hint.toHtmlEscaped(), view);
}

} // namespace board

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

QString textOf(const pagehost::PageScene::DragFigures &figures)
{
    using Figures = pagehost::PageScene::DragFigures;
    switch (figures.kind) {
    case Figures::None:
        break;
    case Figures::Place:
        return QStringLiteral("%1, %2").arg(qRound(figures.place.x())).arg(qRound(figures.place.y()));
    case Figures::Size:
        return QStringLiteral("%1 × %2").arg(qRound(figures.size.width())).arg(qRound(figures.size.height()));
    case Figures::Turn:
        return QStringLiteral("%1°").arg(qRound(figures.degrees) % 360);
    }
    return {};
}

void showDragHint(const QString &hint, const QPoint &pointer, QWidget *view)
{
    // Markup of a shape's file is text here.
    QToolTip::showText(pointer, hint.isEmpty() ? QString() : hint.toHtmlEscaped(), view);
}

} // namespace board

#pragma once

#include <pagehost/pagescene.h>

#include <QtCore/QString>

class CBaseObject;
class QPoint;
class QWidget;

namespace board {

/// Tells the effect of the present drag of a part of an object; empty when nothing is dragged or the object says
/// nothing.
QString dragHintOf(CBaseObject &object);

/// "120, 80", "200 × 120" or "45°", rounded; empty for no figures.
QString textOf(const pagehost::PageScene::DragFigures &figures);

/// Shows a hint in a bubble near the pointer (global coordinates); hides the bubble for an empty one.
void showDragHint(const QString &hint, const QPoint &pointer, QWidget *view);

} // namespace board

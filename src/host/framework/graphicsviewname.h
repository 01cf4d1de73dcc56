#pragma once

#include <framework/framework_global.h>

#include <QtCore/QString>

class QGraphicsScene;
class QPainter;

/// The object name of the view of `scene` that `painter` paints into; empty when it paints into none of them (an
/// image, a pixmap, a printer) or either argument is null.
FRAMEWORK_EXPORT QString painter_getGraphicsViewName(QPainter *painter, QGraphicsScene *scene);

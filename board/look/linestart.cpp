#include "look/linestart.h"

#include <QtGui/QGuiApplication>

namespace board {

Qt::Alignment lineStart()
{
    return Qt::AlignAbsolute | (QGuiApplication::isRightToLeft() ? Qt::AlignRight : Qt::AlignLeft);
}

QMargins alongLines(int start, int top, int end, int bottom)
{
    return QGuiApplication::isRightToLeft() ? QMargins(end, top, start, bottom) : QMargins(start, top, end, bottom);
}

} // namespace board

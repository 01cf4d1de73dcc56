// Default implementations of hooks for concrete shapes, which do nothing.

#include <svgobj/csvgbase.h>

void CSVGBase::PopupObjectMenu(void *) {}

bool CSVGBase::mouseDoubleClickEvent(QGraphicsSceneMouseEvent *)
{
    return false;
}

void CSVGBase::keyPressEvent(QKeyEvent *) {}

bool CSVGBase::updateAllControlPoints(bool, bool)
{
    return false;
}

void CSVGBase::notifyObjectCreated() {}

bool CSVGBase::GetSettingArray(QJsonArray &)
{
    return true;
}

bool CSVGBase::SetSettingArray(QMap<QString, QString> &, bool, bool)
{
    return true;
}

bool CSVGBase::updateSVG(QZeSvgNode *, QPointF, bool)
{
    return false;
}

bool CSVGBase::updateSVG(bool)
{
    return false;
}

void CSVGBase::initSpecialPropItems() {}

void CSVGBase::initGlobalPropValues() {}

bool CSVGBase::CanMoveControlPoint(QZeSvgNode *, QPointF)
{
    return true;
}

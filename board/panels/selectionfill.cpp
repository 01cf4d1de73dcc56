#include "panels/selectionfill.h"

#include <pagehost/commands.h>
#include <pagehost/style.h>

#include <framework/cbaseobject.h>

#include <algorithm>

namespace board {

QVector<CBaseObject *> filledOf(const QVector<CBaseObject *> &objects)
{
    QVector<CBaseObject *> filled;
    for (CBaseObject *object : objects)
        if (pagehost::styleOf(object).hasFill && object->getFillProp())
            filled.append(object);
    return filled;
}

bool isPlain(const CPageBgProp &fill)
{
    return fill.isFillEnable() && fill.fillType() == CPageBgProp::SolidFill;
}

void giveFill(const QVector<CBaseObject *> &objects, const CPageBgProp &fill)
{
    const QVector<CBaseObject *> filled = filledOf(objects);
    if (filled.isEmpty())
        return;
    QColor color = fill.fillColor();
    color.setAlpha(fill.opacity());
    const bool allPlain = std::all_of(filled.begin(), filled.end(),
                                      [](const CBaseObject *object) { return isPlain(*object->getFillProp()); });
    if (isPlain(fill) && allPlain)
        pagehost::setFill(filled, color);
    else
        pagehost::setObjectsFill(filled, fill);
}

void giveFillColor(const QVector<CBaseObject *> &objects, const QColor &color)
{
    const QVector<CBaseObject *> filled = filledOf(objects);
    if (filled.isEmpty())
        return;
    CPageBgProp fill = *filled.first()->getFillProp();
    if (!fill.isFillEnable() || fill.fillType() == CPageBgProp::PictureFill)
        fill.setFillType(CPageBgProp::SolidFill);
    fill.setFillEnable(true);
    fill.setFillColor(color);
    fill.setOpacity(color.alpha());
    giveFill(filled, fill);
}

} // namespace board

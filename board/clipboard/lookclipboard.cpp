#include "clipboard/lookclipboard.h"

#include <pagehost/commands.h>

#include <framework/cbaseobject.h>
#include <framework/iframework.h>

namespace board {

namespace {

const QString fillKey = QStringLiteral("fill_color");

QVector<CBaseObject *> filledOnes(const QVector<CBaseObject *> &objects)
{
    QVector<CBaseObject *> filled;
    for (CBaseObject *object : objects)
        if (pagehost::styleOf(object).hasFill && object->getFillProp())
            filled.append(object);
    return filled;
}

} // namespace

void LookClipboard::take(CBaseObject *object)
{
    m_map = pagehost::styleMapOf(object);
    m_fill.reset();
    const CPageBgProp *fill = object->getFillProp();
    const bool isPlain = !fill || !fill->isFillEnable() || fill->fillType() == CPageBgProp::SolidFill;
    if (!isPlain && pagehost::styleOf(object).hasFill)
        m_fill = *fill;
}

bool LookClipboard::give(const QVector<CBaseObject *> &objects) const
{
    pagehost::StyleMap map = m_map;
    if (m_fill)
        map.remove(fillKey);
    GetFramework()->beginUndoGroup(QStringLiteral("IDS_BOARD_PASTE_STYLE"));
    bool changed = pagehost::setStyleMap(objects, map);
    if (m_fill)
        changed |= pagehost::setObjectsFill(filledOnes(objects), *m_fill);
    GetFramework()->endUndoGroup();
    return changed;
}

} // namespace board

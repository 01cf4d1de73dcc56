// The list of property items: the shape's own, then the common ones that its flags enable.

#include <svgobj/csvgbase.h>
#include <svgobj/csvgobj.h>

#include "properties/editorlists.h"
#include "shape/emptytext.h"

#include <algorithm>

void CSVGBase::initPropItems()
{
    clearPropItems();
    initSpecialPropItems();
    initCommonPropItems();
    if (!owner)
        return;
    for (const CSVGPropItem *item : qAsConst(propItems))
        if (item->isAttribute)
            owner->addAttributeId(item->propId);
}

void CSVGBase::initCommonPropItems()
{
    const auto append = [this](PropId propId, ActionId actionId, DATA_TYPE type, QByteArray *extraData) {
        propItems.append(new CSVGPropItem(propId, getPropName(propId), actionId, type, extraData, true));
    };
    if (propFillEnabled)
        append(PROP_SVG_FILLCOLOR, ACT_SVG_FILLCOLOR, DATA_TYPE_COLOR, nullptr);
    if (propPenEnabled)
        append(PROP_SVG_PENCOLOR, ACT_SVG_PENCOLOR, DATA_TYPE_COLOR, nullptr);
    if (propPenStyleEnabled) {
        QByteArray styles = EditorLists::lineStyles();
        append(PROP_SVG_PENSTYLE, ACT_SVG_PENSTYLE, DATA_TYPE_INT, &styles);
    }
    if (propPenWidthEnabled) {
        QByteArray widths = EditorLists::penWidths(getMaxPenWidth());
        append(PROP_SVG_PENWIDTH, ACT_SVG_PENWIDTH, DATA_TYPE_INT, &widths);
    }
}

void CSVGBase::clearPropItems()
{
    for (CSVGPropItem *item : qAsConst(propItems)) {
        // Also when it was never added.
        if (owner)
            owner->removeAttributeId(item->propId);
        delete item;
    }
    propItems.clear();
}

QString CSVGBase::getPropName(int propId)
{
    switch (propId) {
    case PROP_SVG_PENCOLOR:
        return QStringLiteral("IDS_SVG_PENCOLOR");
    case PROP_SVG_PENSTYLE:
        return QStringLiteral("IDS_SVG_PENSTYLE");
    case PROP_SVG_PENWIDTH:
        return QStringLiteral("IDS_SVG_PENWIDTH");
    case PROP_SVG_FILLCOLOR:
        return QStringLiteral("IDS_SVG_FILLCOLOR");
    default:
        return emptyText();
    }
}

CSVGPropItem *CSVGBase::findPropItemByPropID(int propId)
{
    const auto found = std::find_if(propItems.cbegin(), propItems.cend(),
                                    [propId](const CSVGPropItem *item) { return item->propId == propId; });
    return found == propItems.cend() ? nullptr : *found;
}

void CSVGBase::changePropName(int propId, const QString &name)
{
    if (CSVGPropItem *item = findPropItemByPropID(propId))
        item->propName = name;
}

int CSVGBase::actionIdToPropId(int actionId)
{
    const auto found = std::find_if(propItems.cbegin(), propItems.cend(),
                                    [actionId](const CSVGPropItem *item) { return item->actionId == actionId; });
    return found == propItems.cend() ? int(PROP_SVG_NONE) : (*found)->propId;
}

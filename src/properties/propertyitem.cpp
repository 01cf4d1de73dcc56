#include <svgobj/csvgpropitem.h>

CSVGPropItem::CSVGPropItem(int propId, const QString &name, int actionId, DATA_TYPE dataType, QByteArray *extraData,
                           bool isAttribute)
    : propId(propId)
    , propName(name)
    , actionId(actionId)
    , dataType(dataType)
    , isAttribute(isAttribute)
{
    if (extraData)
        this->extraData.append(*extraData);
}

CSVGPropItem::~CSVGPropItem() = default;

QByteArray *CSVGPropItem::getExtraData()
{
    return extraData.isEmpty() ? nullptr : &extraData;
}

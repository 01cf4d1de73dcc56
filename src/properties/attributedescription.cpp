#include "properties/attributedescription.h"

namespace {

enum EditorCode : int {
    ListEditor = 1,
    ColorEditor = 2,
    Kind0Editor = 4,
    Kind4Editor = 5,
    RangeEditor = 7,
    Kind5Editor = 8
};

constexpr int intRangeBytes = 12;  // minimum, maximum and step as qint32
constexpr int realRangeBytes = 24; // the same as doubles

bool isRange(CSVGPropItem &item)
{
    const int size = item.extraData.size();
    return (item.dataType == DATA_TYPE_INT && size == intRangeBytes) ||
           (item.dataType == DATA_TYPE_REAL && size == realRangeBytes);
}

bool isList(CSVGPropItem &item)
{
    return item.dataType == DATA_TYPE_INT && item.getExtraData() && !isRange(item);
}

} // namespace

int AttributeDescription::editorCode(CSVGPropItem &item)
{
    if (isRange(item))
        return RangeEditor;
    if (isList(item))
        return ListEditor;
    switch (item.dataType) {
    case DATA_TYPE_0:
        return Kind0Editor;
    case DATA_TYPE_COLOR:
        return ColorEditor;
    case DATA_TYPE_4:
        return Kind4Editor;
    case DATA_TYPE_5:
        return Kind5Editor;
    default:
        return noEditor;
    }
}

AttributeDescription::Layout AttributeDescription::layout(CSVGPropItem &item)
{
    if (!item.getExtraData())
        return Layout::ValueOnly;
    if (isRange(item))
        return Layout::RangeThenValue;
    return isList(item) ? Layout::ListAroundValue : Layout::Nothing;
}

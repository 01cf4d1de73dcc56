#pragma once

#include <svgobj/csvgpropitem.h>

/// Description of a property for the host's property panel.
namespace AttributeDescription {

/// Position of the value relative to the editor description.
enum class Layout {
    ValueOnly,       ///< no editor description
    RangeThenValue,  ///< the whole description, then the value
    ListAroundValue, ///< the entry count, the value (the selected entry), the rest of the description
    Nothing          ///< neither description nor value is sent
};

/// The code of the editor that shows the item; noEditor when no code is sent.
constexpr int noEditor = 0;
int editorCode(CSVGPropItem &item);

Layout layout(CSVGPropItem &item);

/// Bytes of a list description that come before the value.
constexpr int listCountBytes = 4;

} // namespace AttributeDescription

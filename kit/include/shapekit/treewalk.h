#pragma once

#include <shapekit/shapekit_global.h>

#include <functional>

class QZeSvgNode;
class QZeSvgStructureNode;

namespace shapekit {

/// Look attributes of a template node, set on the node or on an enclosing group.
struct NodeLook
{
    bool keepsFill = false;        ///< keeps="fill"
    bool keepsStroke = false;      ///< keeps="stroke"
    bool fillFollowsPen = false;   ///< fill_follows="pen"
    bool strokeFollowsPen = false; ///< stroke_follows="pen"
};

/// Called with each node and the look attributes that apply to it.
using LookVisitor = std::function<void(QZeSvgNode &node, const NodeLook &look)>;

/// Visits all nodes below `root` in document order, groups before their contents.
void forEachNode(const QZeSvgStructureNode &root, const LookVisitor &visit);

} // namespace shapekit

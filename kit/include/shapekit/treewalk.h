#pragma once

#include <shapekit/shapekit_global.h>

#include <functional>

class QZeSvgNode;
class QZeSvgStructureNode;

namespace shapekit {

/// Look attributes of a template node, set on the node or on an enclosing group.
struct NodeLook
{
    bool keepsFill = false;
    bool keepsStroke = false;
    bool fillFollowsPen = false;
    bool strokeFollowsPen = false;
};

using LookVisitor = std::function<void(QZeSvgNode &node, const NodeLook &look)>;

/// Visits all nodes below `root` in document order, groups before their contents.
void forEachNode(const QZeSvgStructureNode &root, const LookVisitor &visit);

} // namespace shapekit

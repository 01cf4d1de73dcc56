#pragma once

#include <functional>

class QZeSvgNode;
class QZeSvgStructureNode;

namespace shapekit {

/// What a template says about the look of a node, on the node or on a group that it is in.
struct NodeLook
{
    bool keepsFill = false;
    bool keepsStroke = false;
    bool fillFollowsPen = false;
    bool strokeFollowsPen = false;
};

using LookVisitor = std::function<void(QZeSvgNode &node, const NodeLook &look)>;

/// Visits all nodes below `root` in document order, groups before what is in them.
void forEachNode(const QZeSvgStructureNode &root, const LookVisitor &visit);

} // namespace shapekit

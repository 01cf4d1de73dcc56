#pragma once

#include <QtCore/QString>

#include <functional>

class QZeSvgNode;
class QZeSvgStructureNode;

namespace shapekit {

/// Called with a node, with what it and its groups say under "keeps", and whether it or one of them has
/// fill_follows="pen".
using LookVisitor = std::function<void(QZeSvgNode &node, const QString &keeps, bool followsPen)>;

/// Visits all nodes below `root` in document order, groups before what is in them.
void forEachNode(const QZeSvgStructureNode &root, const LookVisitor &visit);

} // namespace shapekit

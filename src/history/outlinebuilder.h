#pragma once

#include <QtCore/QRectF>
#include <QtGui/QPainterPath>

class QZeSvgStructureNode;

/// Outlines of a template's items, and their mapping into an object.
namespace OutlineBuilder {

/// Adds the outlines (document units) of the node's visible children to `path`, in document order, descending into
/// groups.
void addChildren(const QZeSvgStructureNode *node, QPainterPath *path);

/// `outline` (document units) moved from the view box into the client rectangle (item coordinates), never mirrored.
QPainterPath mapped(const QPainterPath &outline, const QRectF &viewBox, const QRectF &clientRect);

/// Whether the outline can be hit. A view box without width or height, or one that is tiny compared with the
/// drawing, maps outlines to meaningless places; their regions are expensive and useless.
bool isWithinReach(const QPainterPath &outline);

/// The area that a pen of `width` covers along `path`, with round caps and mitred joins.
QPainterPath stroked(const QPainterPath &path, double width);

} // namespace OutlineBuilder

#pragma once

#include <QtCore/QRectF>

class QZeSvgTinyDocument;

/// @name View boxes, document units
/// Without a document the view box is the zero rectangle, and setting it does nothing.
/// @{
QRectF viewBoxOf(const QZeSvgTinyDocument *document);
void setViewBoxOf(QZeSvgTinyDocument *document, const QRectF &box);
/// The document's view box. If its width and height are both exactly 0, it is first replaced, in the document, by
/// the document's bounds.
QRectF settledViewBox(QZeSvgTinyDocument *document);
/// @}

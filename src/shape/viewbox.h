#pragma once

#include <QtCore/QRectF>

class QZeSvgTinyDocument;

/// The document's view box, document units. One whose width and height are both exactly 0 is first replaced, in the
/// document, by what the document covers.
QRectF settledViewBox(QZeSvgTinyDocument *document);

#pragma once

#include <QtCore/QPointF>

class CSVGObj;
class CSVGBase;

namespace support {

/// @name The mouse in the user's words
/// Points are item coordinates of the page object; the event's scene position is where the item has that point. The
/// left button is used.
/// @{

/// Delivers the event to the page object, as a scene does.
void press(CSVGObj &object, QPointF pos);
void moveTo(CSVGObj &object, QPointF pos);
void release(CSVGObj &object, QPointF pos);
/// press, one move and release.
void drag(CSVGObj &object, QPointF from, QPointF to);

/// Delivers the event to the core alone and gives its answer; item and scene position are the same.
bool press(CSVGBase &shape, QPointF pos);
bool moveTo(CSVGBase &shape, QPointF pos);
bool release(CSVGBase &shape, QPointF pos);
/// press, one move and release; the release's answer.
bool drag(CSVGBase &shape, QPointF from, QPointF to);

/// @}

} // namespace support

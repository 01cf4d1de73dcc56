#pragma once

#include <QtCore/QString>

class CBaseObject;

namespace pagehost {
class Page;
} // namespace pagehost

namespace board {

class Workspace;

/// Words of screen readers for the page and what is on it.

/// "Page 2 of 5, 8 objects".
QString nameOf(const pagehost::Page &page, const Workspace &workspace);
/// "Star, 7 corners": its own name or its kind, and the first of its settings.
QString nameOf(CBaseObject &object, const pagehost::Page &page, const Workspace &workspace);
/// Its texts, place and size: "“Sun”, at 40, 60, 120 × 80, turned by 15°".
QString descriptionOf(CBaseObject &object, const Workspace &workspace);
/// "120 × 80".
QString sizeOf(const CBaseObject &object);
/// Clockwise, whole degrees from 0 to 359.
int angleOf(const CBaseObject &object);

} // namespace board

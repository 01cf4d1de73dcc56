#pragma once

#include <framework/cpagebgprop.h>

#include <QtCore/QVector>

class CBaseObject;

namespace board {

/// Those of the objects that take a fill.
QVector<CBaseObject *> filledOf(const QVector<CBaseObject *> &objects);
/// Whether the fill is one colour.
bool isPlain(const CPageBgProp &fill);

/// Fills the objects that take a fill, as one undo step.
void giveFill(const QVector<CBaseObject *> &objects, const CPageBgProp &fill);
/// Gives the colour, with its transparency, to the fill of the first object and the result to all of them. Objects
/// without a fill get a plain one.
void giveFillColor(const QVector<CBaseObject *> &objects, const QColor &color);

} // namespace board

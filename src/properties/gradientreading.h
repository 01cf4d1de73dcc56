#pragma once

#include <QtCore/QByteArray>

class QBrush;
class QDataStream;

/// Reads the gradient at the stream's position, whose stops must be complete (StreamCheck::isReadableBrush), with
/// Qt's result. Qt inserts each stop by comparing it with all before it, which takes quadratic time; this sorts
/// them first. As in Qt, stops outside 0 to 1 are left out, and the last of several stops at one position wins.
QBrush readGradient(QDataStream &in);

/// Encodes the stops of a gradient, laid out as in streams like `model`, in the order that readGradient() gives
/// them: their count, then the stops.
QByteArray settledStops(const QByteArray &stops, const QDataStream &model);

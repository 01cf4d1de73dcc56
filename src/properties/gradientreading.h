#pragma once

#include <QtCore/QByteArray>

class QBrush;
class QDataStream;

/// Reads the gradient that the stream stands at, all of whose stops are there (StreamCheck::isReadableBrush), as Qt
/// does. Qt sorts stops in by comparing each with those before it, which takes as long as the square of their
/// number; they are sorted before it sees them. Stops at no place from 0 to 1 are left out, and of those at the
/// same place the colour of the last one counts, as Qt has it.
QBrush readGradient(QDataStream &in);

/// The stops of a gradient, as a stream like `model` has them one behind the other, as readGradient() settles them:
/// their number, then themselves in order.
QByteArray settledStops(const QByteArray &stops, const QDataStream &model);

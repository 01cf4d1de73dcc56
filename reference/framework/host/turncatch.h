#pragma once

#include <QtCore/Qt>

class CPSRootObject;

/// The angle at which a turn to `degrees` stops: steps catch while the object's page snaps and Alt is not held;
/// with Shift there are only steps.
double caughtTurn(double degrees, Qt::KeyboardModifiers modifiers, const CPSRootObject &object);

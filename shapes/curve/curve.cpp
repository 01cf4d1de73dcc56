#include "curve/core/curve.h"

using curve::Curve;

SHAPEKIT_PLUGIN(Curve, "Curve", "Kurve", Mathematics)

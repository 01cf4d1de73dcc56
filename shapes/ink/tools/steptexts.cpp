#include "ink/tools/steptexts.h"

namespace ink {

const shapekit::Text drawnText("Draw a stroke", "Strich zeichnen");
const shapekit::Text erasedText("Erase", "Radieren");

} // namespace ink

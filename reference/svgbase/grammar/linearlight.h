#pragma once

namespace Svg {

/// The linear light, 0 to 1, of an sRGB component from 0 to 255 (IEC 61966-2-1).
double linearFromEncoded(int component);
/// The sRGB component, 0 to 255, of linear light held between 0 and 1.
int encodedFromLinear(double light);

} // namespace Svg

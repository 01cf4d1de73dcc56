#pragma once

namespace board {

/// Things that move or fade by themselves.
enum class Motion { PresentingBar, LaserTrail };

/// How long that takes, milliseconds; 0 while motion is reduced.
int timeOf(Motion motion);

/// Some people get sick of things that move.
bool isMotionReduced();
/// Acts on what begins to move from now on.
void setMotionReduced(bool reduced);

} // namespace board

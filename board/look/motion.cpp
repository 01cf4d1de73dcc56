#include "look/motion.h"

namespace board {

namespace {

bool isReduced = false;

} // namespace

int timeOf(Motion motion)
{
    if (isReduced)
        return 0;
    switch (motion) {
    case Motion::PresentingBar:
        return 300;
    case Motion::LaserTrail:
        return 1000;
    }
    return 0;
}

bool isMotionReduced()
{
    return isReduced;
}

void setMotionReduced(bool reduced)
{
    isReduced = reduced;
}

} // namespace board

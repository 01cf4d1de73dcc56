#pragma once

namespace pagehost {

/// The device that points.
enum class Pointer { Mouse, Pen, Finger };

/// @name How exactly a device points, logical pixels of the view
/// @{

/// Side of the area around the centre of a grip where a press takes it.
constexpr double hitSize(Pointer pointer)
{
    constexpr double sizes[] = {24, 28, 44};
    return sizes[int(pointer)];
}
/// A pressed pointer that has not yet moved this far clicks.
constexpr double dragStart(Pointer pointer)
{
    return pointer == Pointer::Finger ? 8 : 4;
}
/// A press this far outside the frame of a selected object was meant for it.
constexpr double frameReach(Pointer pointer)
{
    return pointer == Pointer::Finger ? 12 : 6;
}
/// @}

} // namespace pagehost

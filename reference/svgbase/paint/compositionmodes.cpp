#include "paint/compositionmodes.h"

namespace Svg {

QPainter::CompositionMode compositionMode(BlendMode mode)
{
    switch (mode) {
    case BlendMode::Multiply:
        return QPainter::CompositionMode_Multiply;
    case BlendMode::Screen:
        return QPainter::CompositionMode_Screen;
    case BlendMode::Overlay:
        return QPainter::CompositionMode_Overlay;
    case BlendMode::Darken:
        return QPainter::CompositionMode_Darken;
    case BlendMode::Lighten:
        return QPainter::CompositionMode_Lighten;
    case BlendMode::ColorDodge:
        return QPainter::CompositionMode_ColorDodge;
    case BlendMode::ColorBurn:
        return QPainter::CompositionMode_ColorBurn;
    case BlendMode::HardLight:
        return QPainter::CompositionMode_HardLight;
    case BlendMode::SoftLight:
        return QPainter::CompositionMode_SoftLight;
    case BlendMode::Difference:
        return QPainter::CompositionMode_Difference;
    case BlendMode::Exclusion:
        return QPainter::CompositionMode_Exclusion;
    case BlendMode::PlusLighter:
        return QPainter::CompositionMode_Plus;
    default:
        return QPainter::CompositionMode_SourceOver;
    }
}

bool isForPainters(BlendMode mode)
{
    return mode < BlendMode::Hue || mode == BlendMode::PlusLighter;
}

QPainter::CompositionMode compositionMode(CompositeOperator op)
{
    switch (op) {
    case CompositeOperator::In:
        return QPainter::CompositionMode_SourceIn;
    case CompositeOperator::Out:
        return QPainter::CompositionMode_SourceOut;
    case CompositeOperator::Atop:
        return QPainter::CompositionMode_SourceAtop;
    case CompositeOperator::Xor:
        return QPainter::CompositionMode_Xor;
    case CompositeOperator::Lighter:
        return QPainter::CompositionMode_Plus;
    default:
        return QPainter::CompositionMode_SourceOver;
    }
}

} // namespace Svg

#pragma once

/// Type numbers with special meaning.
enum ShapeType : int {
    RectangularRegionShape = 2, ///< its region is its client rectangle
    LastHostFilledShape = 26,
    ScaledDrawingShape = 26, ///< its drawing scale is kept in a property
    FreeHostFilledShape = 1000
};

/// Host sub type of a loaded ScaledDrawingShape.
constexpr int scaledDrawingSubType = 13001;

/// Whether the page object paints the host's fill under shapes of this type and keeps their outline fresh. Other
/// types are painted by their template alone.
constexpr bool isHostFilled(int shapeType)
{
    return shapeType == FreeHostFilledShape || shapeType <= LastHostFilledShape;
}

#pragma once

/// The actions that a press on a page object can start; each also names the handle that offers it.
class CObjAction
{
public:
    /// The numbers are part of the interface.
    enum ACT_Def {
        ACT_None = 0,
        ACT_Move = 1,
        ACT_ResizeTopLeft = 21,
        ACT_ResizeTop = 22,
        ACT_ResizeTopRight = 23,
        ACT_ResizeLeft = 24,
        ACT_ResizeRight = 25,
        ACT_ResizeBottomLeft = 26,
        ACT_ResizeBottom = 27,
        ACT_ResizeBottomRight = 28,
        ACT_Rotate = 29,
        ACT_MirrorHorizontal = 30,
        ACT_MirrorVertical = 31
    };
};

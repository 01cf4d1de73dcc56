#pragma once

#include <QtGui/QIcon>

namespace board {

/// The board's own pictograms.
enum class Icon {
    Undo,
    Redo,
    Duplicate,
    Delete,
    ToFront,
    Forward,
    Backward,
    ToBack,
    MirrorHorizontal,
    MirrorVertical,
    RotateLeft,
    RotateRight,
    ZoomIn,
    ZoomOut,
    ZoomFit,
    Add,
    Remove,
    FillNone,
    FillSolid,
    FillGradient,
    FillPattern,
    FillPicture,
    Info,
    Open,
    Save,
    Cut,
    Copy,
    Paste,
    Record,
    Stop,
    Play,
    Pause,
    Animation
};

/// The colour of recording, everywhere.
inline QColor recordingColor()
{
    return {229, 57, 53};
}

/// A pictogram that is drawn when it is shown: sharp at every size and pixel ratio, in the palette's text colour of
/// that moment, paler while disabled.
QIcon icon(Icon which);

} // namespace board

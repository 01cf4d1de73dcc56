#pragma once

#include <QtCore/QByteArray>

#include <optional>

class CBaseObject;

/// Distinguishes frames of an animation from changes of the object: a playing object whose saved state stays the
/// same has only a new picture.
class PlayedState
{
public:
    /// The object plays its animation from now on.
    void begin(CBaseObject &object);
    void end() { m_saved.reset(); }
    /// Whether a new look of the object is only the next frame, not a change of the page.
    bool isNextPicture(CBaseObject &object);

private:
    std::optional<QByteArray> m_saved; ///< null for an object that does not play
};

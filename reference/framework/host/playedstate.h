#pragma once

#include <QtCore/QByteArray>

#include <optional>

class CBaseObject;

/// Tells the pictures of what moves in an object from changes of the object: as long as an object that plays saves
/// the same, only its picture is another one.
class PlayedState
{
public:
    /// The object plays what moves in it from now on.
    void begin(CBaseObject &object);
    void end() { m_saved.reset(); }
    /// Whether a new look of the object is only its next picture, which is no change of the page.
    bool isNextPicture(CBaseObject &object);

private:
    std::optional<QByteArray> m_saved; ///< null for an object that does not play
};

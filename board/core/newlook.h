#pragma once

#include <pagehost/style.h>

#include <QtCore/QObject>

#include <optional>

class CBaseObject;

namespace board {

/// The look that the user has chosen for new shapes, with the first colour of a fill that is not plain. Without
/// one, shapes have their own.
class NewLook : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

    bool isChosen() const { return m_style.has_value(); }
    /// Takes the look of an object.
    void choose(CBaseObject *object);
    void giveUp();
    /// Whether the object looks like new ones do, as far as it has the properties.
    bool isLookOf(CBaseObject *object) const;
    /// Gives an object the chosen look, if any, without an undo step.
    void giveTo(CBaseObject *object) const;

Q_SIGNALS:
    void changed();

private:
    std::optional<pagehost::StyleMap> m_style;
};

} // namespace board

#pragma once

#include <framework/framework_global.h>

#include <QtCore/QByteArray>

class CPSRootObject;

namespace pagehost {

/// Ids of the actions that this host records itself. Payloads are QDataStream values in the default version.
enum HostAction : int {
    ActionMoved = 101,      ///< QPointF: the new position, scene coordinates
    ActionResized = 102,    ///< QSizeF: the requested size, item units
    ActionRotated = 103,    ///< double: degrees; QPointF: the position afterwards, scene coordinates
    ActionMirrored = 104,   ///< bool: left to right; bool: top to bottom
    ActionFilled = 105,     ///< the fill as CPageBgProp::save() writes it
    ActionPenColored = 106, ///< QColor
    ActionNumbered = 107    ///< quint32: the object's number (setObjectId())
};

/// Receives the actions that page objects record (CPSRootObject::RecordAction) while users edit them.
class FRAMEWORK_EXPORT ActionSink
{
public:
    virtual ~ActionSink() = default;
    /// One action of `object`, at once, in the GUI thread. HostAction numbers are this host's, all others the
    /// object's.
    virtual void actionRecorded(CPSRootObject *object, int actionId, const QByteArray &payload) = 0;
};

/// Sets the process's only sink and returns the previous one; null for none. The caller keeps ownership.
FRAMEWORK_EXPORT ActionSink *setActionSink(ActionSink *sink);
/// The present sink; null for none.
FRAMEWORK_EXPORT ActionSink *actionSink();

/// Replays one recorded action: this host's own kinds through the base class, all others through the object.
FRAMEWORK_EXPORT bool replayAction(CPSRootObject *object, int actionId, const QByteArray &payload);

} // namespace pagehost

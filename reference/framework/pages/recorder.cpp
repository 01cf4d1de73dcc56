#include <pagehost/recorder.h>

#include <framework/cpsrootobject.h>

#include <QtCore/QDataStream>

namespace pagehost {

namespace {

ActionSink *g_sink = nullptr;

bool isHostAction(int actionId)
{
    return actionId >= ActionMoved && actionId <= ActionNumbered;
}

} // namespace

ActionSink *setActionSink(ActionSink *sink)
{
    ActionSink *previous = g_sink;
    g_sink = sink;
    return previous;
}

ActionSink *actionSink()
{
    return g_sink;
}

bool replayAction(CPSRootObject *object, int actionId, const QByteArray &payload)
{
    QDataStream in(payload);
    // Objects handle only their own actions and do not call the base class.
    return isHostAction(actionId) ? object->CPSRootObject::DoPlaybackActionEx(actionId, in)
                                  : object->DoPlaybackActionEx(actionId, in);
}

} // namespace pagehost

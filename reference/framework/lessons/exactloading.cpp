#include <lessons/exactloading.h>

#include <framework/cbaseobject.h>

#include <pagehost/recorder.h>

#include <host/payload.h>
#include <host/saveddata.h>

#include <algorithm>
#include <iterator>

namespace pagehost {

namespace {

constexpr int controlPointAction = 1001;
constexpr int mostControlPoints = 32;
/// Document units, to either side of any shape: a point that one of them leaves at its limit moves by the other.
constexpr double farAway[] = {-1000, 1000};

/// False when there is no such control point.
bool displace(CBaseObject &object, int number, double to)
{
    const QString name = QStringLiteral("control_%1").arg(number);
    return replayAction(&object, controlPointAction, payloadOf(name, QPointF(to, to)));
}

/// Restores the host's own data of the object, such as its fill, bypassing the object's load().
bool bringBackHostState(CBaseObject &object, const QByteArray &state)
{
    QDataStream in(state);
    object.CPSRootObject::LoadPropertyForPlayback(in);
    object.OnQPainterDraw(nullptr);
    return savedData(object) == state;
}

bool loadAgain(CBaseObject &object, const QByteArray &state)
{
    QDataStream in(state);
    object.load(in);
    return savedData(object) == state || bringBackHostState(object, state);
}

bool loadWithAllDisplaced(CBaseObject &object, const QByteArray &state, double to)
{
    for (int number = 1; number <= mostControlPoints && displace(object, number, to); ++number) {
    }
    return loadAgain(object, state);
}

/// A point whose place hangs on another one gets its own only when that one is there already.
bool loadWithEachDisplaced(CBaseObject &object, const QByteArray &state, double to)
{
    for (int number = 1; number <= mostControlPoints && displace(object, number, to); ++number) {
        if (loadAgain(object, state)) {
            return true;
        }
    }
    return false;
}

} // namespace

bool loadExactly(CBaseObject &object, const QByteArray &state)
{
    const auto anyPlace = [&](auto load) {
        return std::any_of(std::begin(farAway), std::end(farAway),
                           [&](double place) { return load(object, state, place); });
    };
    return savedData(object) == state || bringBackHostState(object, state) || anyPlace(loadWithAllDisplaced) ||
           anyPlace(loadWithEachDisplaced);
}

} // namespace pagehost

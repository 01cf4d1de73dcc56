#include <lessons/exactloading.h>

#include <framework/cbaseobject.h>

#include <pagehost/recorder.h>

#include <host/payload.h>
#include <lessons/objectdata.h>

#include <algorithm>
#include <iterator>

namespace pagehost {

namespace {

constexpr int controlPointAction = 1001;
constexpr int mostControlPoints = 32;
/// Document units, to either side of any shape: a point that one of them leaves at its limit moves by the other.
constexpr double farAway[] = {-1000, 1000};

void displaceControlPoints(CBaseObject &object, double to)
{
    for (int number = 1; number <= mostControlPoints; ++number) {
        const QString name = QStringLiteral("control_%1").arg(number);
        if (!replayAction(&object, controlPointAction, payloadOf(name, QPointF(to, to)))) {
            return;
        }
    }
}

/// What the host itself keeps of the object, its fill among it, past the object's own load().
bool bringBackHostState(CBaseObject &object, const QByteArray &state)
{
    QDataStream in(state);
    object.CPSRootObject::LoadPropertyForPlayback(in);
    object.OnQPainterDraw(nullptr);
    return savedData(object) == state;
}

bool loadAgain(CBaseObject &object, const QByteArray &state, double displacement)
{
    displaceControlPoints(object, displacement);
    QDataStream in(state);
    object.load(in);
    return savedData(object) == state || bringBackHostState(object, state);
}

} // namespace

bool loadExactly(CBaseObject &object, const QByteArray &state)
{
    return savedData(object) == state || bringBackHostState(object, state) ||
           std::any_of(std::begin(farAway), std::end(farAway),
                       [&](double place) { return loadAgain(object, state, place); });
}

} // namespace pagehost

#include <lessons/exactloading.h>

#include <framework/cbaseobject.h>

#include <pagehost/recorder.h>

#include <host/payload.h>
#include <lessons/objectdata.h>

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

} // namespace

bool loadExactly(CBaseObject &object, const QByteArray &state)
{
    for (const double place : farAway) {
        if (savedData(object) == state) {
            return true;
        }
        displaceControlPoints(object, place);
        QDataStream in(state);
        object.load(in);
    }
    return savedData(object) == state;
}

} // namespace pagehost

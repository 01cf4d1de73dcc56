#include <framework/cbaseobject.h>

#include <host/baseobject.h>
#include <host/hoststate.h>
#include <host/rootobjectprivate.h>

#include <QtCore/QDataStream>

namespace {

/// Reads the stream format and applies everything except the stacking number; false, with nothing changed, for bad
/// data.
bool readState(CPSRootObject &object, QDataStream &in, HostState &state)
{
    CPageBgProp fill(*object.getFillProp());
    in >> state;
    if (in.status() != QDataStream::Ok || !state.isPlausible() || !fill.load(in))
        return false;
    CPSRootObjectPrivate &host = CPSRootObjectPrivate::of(object);
    host.setFill(fill);
    host.setState(state);
    return true;
}

const QLatin1String fillKey("fill");

} // namespace

bool CPSRootObject::save(QDataStream &out)
{
    out << HostState::of(*baseObject(*this));
    return fillProp->save(out);
}

bool CPSRootObject::load(QDataStream &in)
{
    HostState state;
    d->refusedState = !readState(*this, in, state);
    if (d->refusedState)
        return false;
    baseObject(*this)->setZValue(state.stacking);
    return true;
}

bool CPSRootObject::saveJson(QJsonObject &object)
{
    QJsonObject fill;
    fillProp->saveJson(fill);
    object[fillKey] = fill;
    HostState::of(*baseObject(*this)).write(object);
    return true;
}

bool CPSRootObject::loadJson(QJsonObject &object)
{
    HostState state = HostState::of(*baseObject(*this));
    const bool hasReadableColor = state.read(object);
    CPageBgProp fill(*fillProp);
    const bool hasFill = fill.loadJson(object.value(fillKey).toObject());
    d->refusedState = !state.isPlausible() || !hasReadableColor;
    if (d->refusedState)
        return false;
    d->setFill(fill);
    d->setState(state);
    baseObject(*this)->setZValue(state.stacking);
    return hasFill;
}

bool CPSRootObject::SavePropertyForPlayback(QDataStream &out)
{
    return CPSRootObject::save(out);
}

bool CPSRootObject::LoadPropertyForPlayback(QDataStream &in)
{
    // Not the stacking order, which belongs to the page and may have changed meanwhile.
    HostState state;
    return readState(*this, in, state);
}

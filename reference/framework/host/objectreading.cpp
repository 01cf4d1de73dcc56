#include <host/objectreading.h>

#include <framework/cbaseobject.h>

#include <host/rootobjectprivate.h>

ObjectReading::ObjectReading(CBaseObject &object, IPsPage *page)
    : m_object(object)
{
    CPSRootObjectPrivate &host = CPSRootObjectPrivate::of(m_object);
    host.isBeingRead = true;
    host.refusedState = false;
    m_object.SetPage(page);
}

ObjectReading::~ObjectReading()
{
    m_object.SetPage(nullptr);
    CPSRootObjectPrivate::of(m_object).isBeingRead = false;
}

bool ObjectReading::wasRefused() const
{
    return CPSRootObjectPrivate::of(m_object).refusedState;
}

double followedZoom(const CPSRootObject &object)
{
    return CPSRootObjectPrivate::of(object).followedZoom;
}

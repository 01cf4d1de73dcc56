#include <host/objectplaying.h>

#include <framework/cbaseobject.h>

#include <host/rootobjectprivate.h>

void setPlayed(CBaseObject &object, bool played)
{
    PlayedState &state = CPSRootObjectPrivate::of(object).played;
    if (played)
        state.begin(object);
    else
        state.end();
}

#include <pagehost/objectid.h>

#include <framework/cbaseobject.h>

#include <pagehost/page.h>

#include <algorithm>
#include <limits>

namespace pagehost {

namespace {

/// Key of an object's number in the data of its graphics item.
constexpr int objectIdData = 0x6f626964;

template<typename Function> void forEachObject(const Document &document, Function function)
{
    const QVector<Page *> pages = document.pages();
    for (const Page *page : pages) {
        const QVector<CBaseObject *> objects = page->objects();
        std::for_each(objects.begin(), objects.end(), function);
    }
}

quint32 freeId(const Document &document)
{
    quint32 highest = 0;
    forEachObject(document, [&](const CBaseObject *object) { highest = std::max(highest, objectId(object)); });
    if (highest < std::numeric_limits<quint32>::max())
        return highest + 1;
    quint32 free = 1;
    while (objectWithId(document, free))
        ++free;
    return free;
}

} // namespace

quint32 objectId(const CBaseObject *object)
{
    return object ? object->data(objectIdData).toUInt() : 0;
}

void setObjectId(CBaseObject *object, quint32 id)
{
    if (id != objectId(object))
        object->setData(objectIdData, id);
}

quint32 ensureObjectId(CBaseObject *object, const Document &document)
{
    if (objectId(object) == 0)
        setObjectId(object, freeId(document));
    return objectId(object);
}

CBaseObject *objectWithId(const Document &document, quint32 id)
{
    CBaseObject *found = nullptr;
    forEachObject(document, [&](CBaseObject *object) {
        if (!found && id != 0 && objectId(object) == id)
            found = object;
    });
    return found;
}

} // namespace pagehost

#include <pagehost/objectid.h>

#include <framework/cbaseobject.h>

#include <pagehost/page.h>

#include <host/followedobjects.h>

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

/// Also of objects that undo brings back, and of those that are followed or in groups although they are gone.
quint32 highestId(const Document &document)
{
    quint32 highest = 0;
    const auto look = [&](CBaseObject *object) {
        highest = std::max(highest, objectId(object));
        const QVector<quint32> followed = followedObjects(*object).value_or(QVector<quint32>());
        for (const quint32 id : followed)
            highest = std::max(highest, id);
    };
    forEachObject(document, look);
    const QVector<Page *> pages = document.pages();
    for (const Page *page : pages) {
        const QVector<CBaseObject *> kept = page->keptObjects();
        std::for_each(kept.begin(), kept.end(), look);
        const ObjectGroups groups = page->groups();
        for (const ObjectGroup &group : groups)
            for (const quint32 id : group.members)
                highest = std::max(highest, id);
    }
    return highest;
}

quint32 freeId(const Document &document)
{
    const quint32 highest = highestId(document);
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

void ensureObjectIds(const QVector<CBaseObject *> &objects, const Document &document)
{
    constexpr quint32 last = std::numeric_limits<quint32>::max();
    quint32 highest = highestId(document);
    for (const CBaseObject *object : objects)
        highest = std::max(highest, objectId(object));
    const auto isTaken = [&](quint32 id) {
        return objectWithId(document, id) ||
               std::any_of(objects.begin(), objects.end(),
                           [id](const CBaseObject *object) { return objectId(object) == id; });
    };
    quint32 free = 0;
    for (CBaseObject *object : objects) {
        if (objectId(object) != 0)
            continue;
        if (highest < last) {
            setObjectId(object, ++highest);
            continue;
        }
        do {
            ++free;
        } while (isTaken(free));
        setObjectId(object, free);
    }
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

void followCopies(const QVector<CBaseObject *> &copies, const QVector<quint32> &originals, const Document *document)
{
    quint32 next = 0;
    const auto numberOfCopy = [&](quint32 original) -> quint32 {
        const int index = original == 0 || !document ? -1 : originals.indexOf(original);
        if (index < 0)
            return 0;
        if (objectId(copies.at(index)) == 0) {
            next = next == 0 ? freeId(*document) : next + 1;
            while (next == 0 || objectWithId(*document, next))
                ++next;
            setObjectId(copies.at(index), next);
        }
        return objectId(copies.at(index));
    };
    for (CBaseObject *copy : copies) {
        const auto followed = followedObjects(*copy);
        if (!followed)
            continue;
        QVector<quint32> numbers;
        for (const quint32 number : *followed)
            numbers.append(numberOfCopy(number));
        if (numbers != *followed)
            setFollowedObjects(*copy, numbers);
    }
}

} // namespace pagehost

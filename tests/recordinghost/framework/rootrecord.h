#pragma once

#include <framework/cpsrootobject.h>

#include <QtCore/QSet>

/// What the recording framework keeps about a page object besides its declared members.
class CPSRootObjectPrivate
{
public:
    QGraphicsItem *item = nullptr;
    IPsPage *page = nullptr;
    QSet<int> disabledHandles;
    bool locked = false;
    int subType = 0;

    static QGraphicsItem *itemOf(const CPSRootObject *object) { return object->d->item; }
};

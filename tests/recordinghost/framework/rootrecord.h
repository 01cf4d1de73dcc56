#pragma once

#include <framework/cpsrootobject.h>

#include <QtCore/QSet>

/// The recording framework's private data of a page object.
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

#include "page/labels.h"

#include <pagehost/objectplugin.h>

#include <framework/cbaseobject.h>

#include <QtCore/QDataStream>

namespace board {

namespace {

template<typename Value> void set(CBaseObject &object, qint32 propertyId, const Value &value)
{
    QByteArray bytes;
    QDataStream out(&bytes, QIODevice::WriteOnly);
    out << value;
    QDataStream in(&bytes, QIODevice::ReadWrite);
    object.SetAttribute(propertyId, in, false);
}

} // namespace

void setLabelText(CBaseObject &object, qint32 propertyId, const QString &text)
{
    set(object, propertyId, text);
}

void setLabelLinks(CBaseObject &object, qint32 propertyId, const QVector<pagehost::TextLink> &links)
{
    set(object, propertyId, pagehost::encodedLinks(links));
}

bool vanishesEmpty(CBaseObject &object)
{
    QByteArray bytes;
    QDataStream out(&bytes, QIODevice::WriteOnly);
    if (!object.GetSpecialProperty(pagehost::VanishesEmpty, out))
        return false;
    bool isEmpty = false;
    QDataStream in(bytes);
    in >> isEmpty;
    return isEmpty;
}

} // namespace board

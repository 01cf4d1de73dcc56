#include <framework/cbaseobject.h>

#include <host/attributecommand.h>
#include <host/baseobject.h>
#include <host/geometry.h>
#include <host/hostattributes.h>
#include <host/objectpage.h>
#include <host/payload.h>
#include <host/rootobjectprivate.h>
#include <host/streamedcolors.h>

#include <QtCore/QDataStream>
#include <QtGui/QTextDocument>
#include <QtGui/QTextOption>

#include <cmath>
#include <optional>

namespace {

template<typename Value> std::optional<Value> readValue(QDataStream &in)
{
    Value value{};
    in >> value;
    return in.status() == QDataStream::Ok ? std::optional<Value>(value) : std::nullopt;
}

std::optional<double> readNumber(QDataStream &in, double least)
{
    const std::optional<double> value = readValue<double>(in);
    return value && std::isfinite(*value) && *value >= least ? value : std::nullopt;
}

QFont textFont(const CBaseObject &item)
{
    return item.font();
}

bool setTextFont(CBaseObject &item, const QFont &font)
{
    item.setFont(font);
    return true;
}

bool setTextFamily(CBaseObject &item, QDataStream &in)
{
    const auto family = readValue<QString>(in);
    if (!family || family->isEmpty())
        return false;
    QFont font = textFont(item);
    font.setFamily(*family);
    return setTextFont(item, font);
}

bool setTextSize(CBaseObject &item, QDataStream &in)
{
    const auto points = readNumber(in, HostAttribute::smallestTextSize);
    if (!points || *points > HostAttribute::largestTextSize)
        return false;
    QFont font = textFont(item);
    font.setPointSizeF(*points);
    return setTextFont(item, font);
}

bool setTextColor(CBaseObject &item, QDataStream &in)
{
    const auto color = pagehost::readColor(in);
    if (color)
        item.setDefaultTextColor(*color);
    return color.has_value();
}

bool setTextAlignment(CBaseObject &item, QDataStream &in)
{
    const auto alignment = readValue<qint32>(in);
    if (!alignment)
        return false;
    QTextOption option = item.document()->defaultTextOption();
    option.setAlignment(Qt::Alignment(*alignment) & Qt::AlignHorizontal_Mask);
    item.document()->setDefaultTextOption(option);
    return true;
}

bool setBorderColor(CBaseObject &item, QDataStream &in)
{
    const auto color = pagehost::readColor(in);
    if (color)
        item.setMyPenColor(*color, false);
    return color.has_value();
}

bool setBorderWidth(CBaseObject &item, QDataStream &in)
{
    const auto width = readNumber(in, 0);
    if (width) {
        CPSRootObjectPrivate::of(item).setPenWidth(*width);
        item.CPSRootObject::update();
        noteChange(item);
    }
    return width.has_value();
}

bool setPlace(CBaseObject &item, int id, QDataStream &in)
{
    const auto value = readValue<double>(in);
    if (!value || !std::isfinite(*value))
        return false;
    const QPointF pos = item.getPos();
    const QSizeF size = item.getClientRect().size();
    switch (id) {
    case HostAttribute::PositionX:
        item.CPSRootObject::setPos(QPointF(*value, pos.y()), false);
        return true;
    case HostAttribute::PositionY:
        item.CPSRootObject::setPos(QPointF(pos.x(), *value), false);
        return true;
    case HostAttribute::Rotation:
        item.setRotateByPoint(normalizedDegrees(*value), item.getClientRect().center(), false);
        return true;
    case HostAttribute::Width:
        item.setSize(possibleSize({*value, size.height()}), false, false);
        return true;
    default:
        item.setSize(possibleSize({size.width(), *value}), false, false);
        return true;
    }
}

bool setLockedState(CBaseObject &item, QDataStream &in)
{
    const auto locked = readValue<bool>(in);
    if (locked)
        item.setLocked(*locked);
    return locked.has_value();
}

} // namespace

bool HostAttribute::write(CBaseObject &item, int id, QDataStream &out)
{
    switch (id) {
    case TextFamily:
        out << textFont(item).family();
        return true;
    case TextSize:
        out << double(textFont(item).pointSizeF());
        return true;
    case TextColor:
        out << item.defaultTextColor();
        return true;
    case TextAlignment:
        out << qint32(item.document()->defaultTextOption().alignment());
        return true;
    case BorderColor:
        out << item.getMyPen().color();
        return true;
    case BorderWidth:
        out << double(item.getMyPen().widthF());
        return true;
    case PositionX:
        out << double(item.getPos().x());
        return true;
    case PositionY:
        out << double(item.getPos().y());
        return true;
    case Width:
        out << double(item.getClientRect().width());
        return true;
    case Height:
        out << double(item.getClientRect().height());
        return true;
    case Rotation:
        out << double(item.rotation());
        return true;
    case Locked:
        out << item.isLocked();
        return true;
    default:
        return false;
    }
}

bool HostAttribute::apply(CBaseObject &item, int id, QDataStream &in)
{
    switch (id) {
    case TextFamily:
        return setTextFamily(item, in);
    case TextSize:
        return setTextSize(item, in);
    case TextColor:
        return setTextColor(item, in);
    case TextAlignment:
        return setTextAlignment(item, in);
    case BorderColor:
        return setBorderColor(item, in);
    case BorderWidth:
        return setBorderWidth(item, in);
    case PositionX:
    case PositionY:
    case Width:
    case Height:
    case Rotation:
        return setPlace(item, id, in);
    case Locked:
        return setLockedState(item, in);
    default:
        return false;
    }
}

bool CPSRootObject::GetAttribute(int id, QDataStream &out)
{
    CBaseObject *item = baseObject(*this);
    return item && HostAttribute::write(*item, id, out);
}

bool CPSRootObject::SetAttribute(int id, QDataStream &in, bool record)
{
    CBaseObject *item = baseObject(*this);
    if (!item)
        return false;
    return record ? AttributeCommand::applyUndoably(*item, id, in) : HostAttribute::apply(*item, id, in);
}

bool CPSRootObject::GetSpecialProperty(int, QDataStream &)
{
    return false;
}

bool CPSRootObject::SetSpecialProperty(int, QDataStream &, bool)
{
    return false;
}

namespace {

const QLatin1String nameAttribute("name");
const QLatin1String lockedAttribute("locked");

struct PlaceAttribute
{
    QLatin1String key;
    int id;
};

const PlaceAttribute placeAttributes[] = {{QLatin1String("x"), HostAttribute::PositionX},
                                          {QLatin1String("y"), HostAttribute::PositionY},
                                          {QLatin1String("width"), HostAttribute::Width},
                                          {QLatin1String("height"), HostAttribute::Height},
                                          {QLatin1String("rotation"), HostAttribute::Rotation}};

double placeValue(CBaseObject &item, int id)
{
    QByteArray bytes;
    QDataStream out(&bytes, QIODevice::WriteOnly);
    HostAttribute::write(item, id, out);
    double value = 0;
    QDataStream(bytes) >> value;
    return value;
}

bool applyPlaceValue(CBaseObject &item, int id, const QVariant &variant)
{
    bool isNumber = false;
    const double value = variant.toDouble(&isNumber);
    if (!isNumber)
        return false;
    QByteArray bytes = payloadOf(value);
    QDataStream in(bytes);
    return HostAttribute::apply(item, id, in);
}

} // namespace

bool CPSRootObject::getAllAttributes(QMap<QString, QVariant> &map)
{
    CBaseObject *item = baseObject(*this);
    if (!item)
        return false;
    map[nameAttribute] = getObjName();
    map[lockedAttribute] = isLocked();
    for (const PlaceAttribute &attribute : placeAttributes)
        map[attribute.key] = placeValue(*item, attribute.id);
    return true;
}

bool CPSRootObject::setAllAttributes(const QMap<QString, QVariant> &map, bool)
{
    CBaseObject *item = baseObject(*this);
    if (!item)
        return false;
    bool known = false;
    if (map.contains(nameAttribute)) {
        objName = map.value(nameAttribute).toString();
        noteInvisibleChange(*this);
        known = true;
    }
    if (map.contains(lockedAttribute)) {
        setLocked(map.value(lockedAttribute).toBool());
        known = true;
    }
    for (const PlaceAttribute &attribute : placeAttributes)
        if (map.contains(attribute.key))
            known |= applyPlaceValue(*item, attribute.id, map.value(attribute.key));
    return known;
}

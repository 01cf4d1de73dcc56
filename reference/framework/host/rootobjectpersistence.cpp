#include <host/rootobjectprivate.h>

#include <framework/cbaseobject.h>

#include <QtCore/QDataStream>
#include <QtCore/QJsonArray>

#include <cmath>

// The stream is the fields of HostState in their order; the two formats hold the same facts.

namespace {

constexpr double largestPenWidth = 10000;

struct HostState
{
    QString name;
    qint32 subType = 0;
    QPointF pos;
    double rotation = 0;
    bool mirrored = false;
    bool flipped = false;
    double stacking = 0;
    QRectF clientRect;
    quint32 penColor = 0;
    double penWidth = 1;
    qint32 penStyle = Qt::SolidLine;
    bool visible = true;
    bool locked = false;
};

bool isPlausible(const HostState &state)
{
    return isFinite(state.pos) && std::isfinite(state.rotation) && std::isfinite(state.stacking) &&
           isFinite(state.clientRect) && state.clientRect.width() >= 0 && state.clientRect.height() >= 0 &&
           state.penWidth >= 0 && state.penWidth <= largestPenWidth && state.penStyle >= Qt::NoPen &&
           state.penStyle <= Qt::DashDotDotLine;
}

QDataStream &operator<<(QDataStream &out, const HostState &state)
{
    return out << state.name << state.subType << state.pos << state.rotation << state.mirrored << state.flipped
               << state.stacking << state.clientRect << state.penColor << state.penWidth << state.penStyle
               << state.visible << state.locked;
}

QDataStream &operator>>(QDataStream &in, HostState &state)
{
    return in >> state.name >> state.subType >> state.pos >> state.rotation >> state.mirrored >> state.flipped >>
           state.stacking >> state.clientRect >> state.penColor >> state.penWidth >> state.penStyle >>
           state.visible >> state.locked;
}

HostState stateOf(CPSRootObject &object)
{
    const CBaseObject *item = CPSRootObjectPrivate::baseObject(object);
    HostState state;
    // An empty name and none are the same to everybody but the stream.
    state.name = object.getObjName().isEmpty() ? QString() : object.getObjName();
    state.subType = object.getSubType();
    state.pos = item->pos();
    state.rotation = item->rotation();
    state.mirrored = object.isMirrored();
    state.flipped = object.isFlipped();
    state.stacking = item->zValue();
    state.clientRect = object.getClientRect();
    state.penColor = object.getMyPen().color().rgba();
    state.penWidth = object.getMyPen().widthF();
    state.penStyle = object.getMyPen().style();
    // The item's own flag: an object off the scene or on a hidden page is not hidden itself.
    state.visible = item->QGraphicsItem::isVisible();
    state.locked = object.isLocked();
    return state;
}

void apply(CPSRootObject &object, const HostState &state)
{
    CBaseObject *item = CPSRootObjectPrivate::baseObject(object);
    CPSRootObjectPrivate::setName(object, state.name);
    object.setSubType(state.subType);
    CPSRootObjectPrivate::place(object, state.pos, state.rotation);
    CPSRootObjectPrivate::assignMirror(object, state.mirrored, state.flipped);
    const QRectF rect = state.clientRect;
    CPSRootObjectPrivate::setClientRect(object, {rect.topLeft(), possibleSize(rect.size())});
    QPen &pen = CPSRootObjectPrivate::pen(object);
    pen.setColor(QColor::fromRgba(state.penColor));
    pen.setWidthF(state.penWidth);
    pen.setStyle(Qt::PenStyle(state.penStyle));
    item->setVisible(state.visible);
    object.CPSRootObject::setLocked(state.locked);
    object.updateAfterObjRectChanged(item, true);
}

/// Reads the stream format and applies all but the stacking number; false, with nothing changed, for bad data.
bool readState(CPSRootObject &object, QDataStream &in, HostState &state)
{
    CPageBgProp fill(*object.getFillProp());
    in >> state;
    if (in.status() != QDataStream::Ok || !isPlausible(state) || !fill.load(in)) {
        return false;
    }
    CPSRootObjectPrivate::assignFill(object, fill);
    apply(object, state);
    return true;
}

QJsonArray numbers(std::initializer_list<double> values)
{
    QJsonArray array;
    for (const double value : values) {
        array.append(value);
    }
    return array;
}

const QLatin1String nameKey("name");
const QLatin1String subTypeKey("subType");
const QLatin1String posKey("pos");
const QLatin1String rotationKey("rotation");
const QLatin1String mirroredKey("mirrored");
const QLatin1String flippedKey("flipped");
const QLatin1String stackingKey("stacking");
const QLatin1String clientRectKey("clientRect");
const QLatin1String penColorKey("penColor");
const QLatin1String penWidthKey("penWidth");
const QLatin1String penStyleKey("penStyle");
const QLatin1String visibleKey("visible");
const QLatin1String lockedKey("locked");
const QLatin1String fillKey("fill");

void write(QJsonObject &object, const HostState &state)
{
    const QRectF rect = state.clientRect;
    object[nameKey] = state.name;
    object[subTypeKey] = state.subType;
    object[posKey] = numbers({state.pos.x(), state.pos.y()});
    object[rotationKey] = state.rotation;
    object[mirroredKey] = state.mirrored;
    object[flippedKey] = state.flipped;
    object[stackingKey] = state.stacking;
    object[clientRectKey] = numbers({rect.x(), rect.y(), rect.width(), rect.height()});
    object[penColorKey] = QColor::fromRgba(state.penColor).name(QColor::HexArgb);
    object[penWidthKey] = state.penWidth;
    object[penStyleKey] = state.penStyle;
    object[visibleKey] = state.visible;
    object[lockedKey] = state.locked;
}

/// Missing and mistyped members keep what `state` holds.
void read(const QJsonObject &object, HostState &state)
{
    const QJsonArray pos = object.value(posKey).toArray();
    const QJsonArray rect = object.value(clientRectKey).toArray();
    const QColor pen(object.value(penColorKey).toString());
    const QString name = object.value(nameKey).toString(state.name);
    state.name = name.isEmpty() ? QString() : name;
    state.subType = object.value(subTypeKey).toInt(state.subType);
    state.pos = pos.size() == 2 ? QPointF(pos[0].toDouble(), pos[1].toDouble()) : state.pos;
    state.rotation = object.value(rotationKey).toDouble(state.rotation);
    state.mirrored = object.value(mirroredKey).toBool(state.mirrored);
    state.flipped = object.value(flippedKey).toBool(state.flipped);
    state.stacking = object.value(stackingKey).toDouble(state.stacking);
    if (rect.size() == 4) {
        state.clientRect = {rect[0].toDouble(), rect[1].toDouble(), rect[2].toDouble(), rect[3].toDouble()};
    }
    state.penColor = pen.isValid() ? pen.rgba() : state.penColor;
    state.penWidth = object.value(penWidthKey).toDouble(state.penWidth);
    state.penStyle = object.value(penStyleKey).toInt(state.penStyle);
    state.visible = object.value(visibleKey).toBool(state.visible);
    state.locked = object.value(lockedKey).toBool(state.locked);
}

/// A name that is no colour is damage; none keeps the present one.
bool hasReadableColor(const QJsonObject &object)
{
    const QJsonValue color = object.value(penColorKey);
    return color.isUndefined() || QColor(color.toString()).isValid();
}

} // namespace

QSizeF CPSRootObjectPrivate::savedSize(QDataStream &in)
{
    HostState state;
    in >> state;
    const bool isThere = in.status() == QDataStream::Ok && isFinite(state.clientRect);
    return isThere ? state.clientRect.size() : QSizeF(0, 0);
}

QSizeF CPSRootObjectPrivate::savedSize(const QJsonObject &object)
{
    HostState state;
    read(object, state);
    return isFinite(state.clientRect) ? state.clientRect.size() : QSizeF(0, 0);
}

bool CPSRootObject::save(QDataStream &out)
{
    out << stateOf(*this);
    return fillProp->save(out);
}

bool CPSRootObject::load(QDataStream &in)
{
    HostState state;
    d->refusedState = !readState(*this, in, state);
    if (d->refusedState) {
        return false;
    }
    CPSRootObjectPrivate::baseObject(*this)->setZValue(state.stacking);
    return true;
}

bool CPSRootObject::saveJson(QJsonObject &object)
{
    QJsonObject fill;
    fillProp->saveJson(fill);
    object[fillKey] = fill;
    write(object, stateOf(*this));
    return true;
}

bool CPSRootObject::loadJson(QJsonObject &object)
{
    HostState state = stateOf(*this);
    read(object, state);
    CPageBgProp fill(*fillProp);
    const bool hasFill = fill.loadJson(object.value(fillKey).toObject());
    d->refusedState = !isPlausible(state) || !hasReadableColor(object);
    if (d->refusedState) {
        return false;
    }
    CPSRootObjectPrivate::assignFill(*this, fill);
    apply(*this, state);
    CPSRootObjectPrivate::baseObject(*this)->setZValue(state.stacking);
    return hasFill;
}

bool CPSRootObject::SavePropertyForPlayback(QDataStream &out)
{
    return CPSRootObject::save(out);
}

bool CPSRootObject::LoadPropertyForPlayback(QDataStream &in)
{
    // Not the place in stacking order: that belongs to the page and may be another one by now.
    HostState state;
    return readState(*this, in, state);
}

#include <host/hoststate.h>

#include <framework/cbaseobject.h>

#include <host/geometry.h>

#include <QtCore/QDataStream>
#include <QtCore/QJsonArray>
#include <QtCore/QJsonObject>

#include <cmath>

namespace {

constexpr double largestPenWidth = 10000;

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

QJsonArray numbers(std::initializer_list<double> values)
{
    QJsonArray array;
    for (const double value : values)
        array.append(value);
    return array;
}

/// Empty and null names differ only on the stream.
QString storedName(const QString &name)
{
    return name.isEmpty() ? QString() : name;
}

} // namespace

HostState HostState::of(CBaseObject &object)
{
    HostState state;
    state.name = storedName(object.getObjName());
    state.subType = object.getSubType();
    state.pos = object.pos();
    state.rotation = object.rotation();
    state.mirrored = object.isMirrored();
    state.flipped = object.isFlipped();
    state.stacking = object.zValue();
    state.clientRect = object.getClientRect();
    state.penColor = object.getMyPen().color().rgba();
    state.penWidth = object.getMyPen().widthF();
    state.penStyle = object.getMyPen().style();
    // The item's own flag: an object off the scene or on a hidden page is not hidden itself.
    state.visible = object.QGraphicsItem::isVisible();
    state.locked = object.isLocked();
    return state;
}

bool HostState::isPlausible() const
{
    return isFinite(pos) && std::isfinite(rotation) && std::isfinite(stacking) && isFinite(clientRect) &&
           clientRect.width() >= 0 && clientRect.height() >= 0 && penWidth >= 0 && penWidth <= largestPenWidth &&
           penStyle >= Qt::NoPen && penStyle <= Qt::DashDotDotLine;
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

void HostState::write(QJsonObject &object) const
{
    object[nameKey] = name;
    object[subTypeKey] = subType;
    object[posKey] = numbers({pos.x(), pos.y()});
    object[rotationKey] = rotation;
    object[mirroredKey] = mirrored;
    object[flippedKey] = flipped;
    object[stackingKey] = stacking;
    object[clientRectKey] = numbers({clientRect.x(), clientRect.y(), clientRect.width(), clientRect.height()});
    object[penColorKey] = QColor::fromRgba(penColor).name(QColor::HexArgb);
    object[penWidthKey] = penWidth;
    object[penStyleKey] = penStyle;
    object[visibleKey] = visible;
    object[lockedKey] = locked;
}

bool HostState::read(const QJsonObject &object)
{
    const QJsonArray place = object.value(posKey).toArray();
    const QJsonArray rect = object.value(clientRectKey).toArray();
    const QJsonValue pen = object.value(penColorKey);
    const QColor color(pen.toString());
    name = storedName(object.value(nameKey).toString(name));
    subType = object.value(subTypeKey).toInt(subType);
    pos = place.size() == 2 ? QPointF(place[0].toDouble(), place[1].toDouble()) : pos;
    rotation = object.value(rotationKey).toDouble(rotation);
    mirrored = object.value(mirroredKey).toBool(mirrored);
    flipped = object.value(flippedKey).toBool(flipped);
    stacking = object.value(stackingKey).toDouble(stacking);
    if (rect.size() == 4)
        clientRect = {rect[0].toDouble(), rect[1].toDouble(), rect[2].toDouble(), rect[3].toDouble()};
    penColor = color.isValid() ? color.rgba() : penColor;
    penWidth = object.value(penWidthKey).toDouble(penWidth);
    penStyle = object.value(penStyleKey).toInt(penStyle);
    visible = object.value(visibleKey).toBool(visible);
    locked = object.value(lockedKey).toBool(locked);
    return pen.isUndefined() || color.isValid();
}

QSizeF savedClientSize(QDataStream &in)
{
    HostState state;
    in >> state;
    const bool isThere = in.status() == QDataStream::Ok && isFinite(state.clientRect);
    return isThere ? state.clientRect.size() : QSizeF(0, 0);
}

QSizeF savedClientSize(const QJsonObject &object)
{
    HostState state;
    state.read(object);
    return isFinite(state.clientRect) ? state.clientRect.size() : QSizeF(0, 0);
}

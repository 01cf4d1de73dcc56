#include <framework/cbaseobject.h>

#include <pagehost/objectid.h>
#include <pagehost/recorder.h>

#include <host/baseobject.h>
#include <host/geometry.h>
#include <host/objectpage.h>
#include <host/objectplace.h>
#include <host/payload.h>
#include <host/rootobjectprivate.h>
#include <host/streamedcolors.h>

#include <QtCore/QDataStream>

#include <cmath>

QPointF CPSRootObject::getPos() const
{
    return d->item ? d->item->scenePos() : QPointF();
}

void CPSRootObject::setPos(QPointF pos, bool record)
{
    if (!d->item || !isFinite(pos))
        return;
    const QGraphicsItem *parent = d->item->parentItem();
    d->item->setPos(parent ? parent->mapFromScene(pos) : pos);
    if (!record)
        return;
    QByteArray payload = payloadOf(pos);
    RecordAction(pagehost::ActionMoved, &payload);
}

void CPSRootObject::setRotateByPoint(double degrees, QPointF center, bool record)
{
    if (!d->item || !std::isfinite(degrees) || !isFinite(center))
        return;
    const QPointF fixedPoint = d->item->pos() + rotated(center, d->item->rotation());
    placeItem(*this, fixedPoint - rotated(center, degrees), degrees);
    if (!record)
        return;
    QByteArray payload = payloadOf(degrees, getPos());
    RecordAction(pagehost::ActionRotated, &payload);
}

void CPSRootObject::setMirror(bool horizontal, bool vertical, bool record)
{
    mirrorHorizontal = horizontal;
    mirrorVertical = vertical;
    OnQPainterDraw(nullptr);
    update();
    notifyObjPropertyChanged(AppearanceChanged, QString());
    if (!record)
        return;
    QByteArray payload = payloadOf(horizontal, vertical);
    RecordAction(pagehost::ActionMirrored, &payload);
}

void CPSRootObject::setSize(QSizeF size, bool flag, bool redraw)
{
    if (!isFinite(size))
        return;
    assignClientSize(*this, possibleSize(size));
    updateAfterObjRectChanged(d->item, redraw);
    if (!flag)
        return;
    QByteArray payload = payloadOf(size);
    RecordAction(pagehost::ActionResized, &payload);
}

void CPSRootObject::updateRectChanged()
{
    updateAfterObjRectChanged(d->item, true);
}

namespace {

bool isColorOnly(const CPageBgProp &fill)
{
    return fill.fillType() == CPageBgProp::SolidFill;
}

bool showsMoreThanColor(const CPageBgProp &fill)
{
    return fill.fillType() == CPageBgProp::GradientFill || fill.fillType() == CPageBgProp::PatternFill ||
           fill.fillType() == CPageBgProp::PictureFill;
}

bool sameColor(const CPageBgProp &one, const CPageBgProp &other)
{
    return one.fillColor() == other.fillColor() && one.opacity() == other.opacity() &&
           one.isFillEnable() == other.isFillEnable();
}

} // namespace

void CPSRootObject::setFillProp(CPageBgProp *prop, bool record)
{
    if (!prop)
        return;
    const bool keepsPresent = isColorOnly(*prop) && showsMoreThanColor(*fillProp) && sameColor(*prop, *fillProp);
    if (!keepsPresent) {
        // A copy, since the argument may be the object's own rectangle.
        d->setFill(CPageBgProp(*prop));
    }
    update();
    noteChange(*this);
    if (!record)
        return;
    QByteArray payload;
    QDataStream stream(&payload, QIODevice::WriteOnly);
    fillProp->save(stream);
    RecordAction(pagehost::ActionFilled, &payload);
}

namespace {

template<typename... Values> bool readAll(QDataStream &in, Values &...values)
{
    (in >> ... >> values);
    return in.status() == QDataStream::Ok;
}

} // namespace

bool CPSRootObject::DoPlaybackActionEx(int actionId, QDataStream &in)
{
    QPointF pos;
    QSizeF size;
    std::optional<QColor> color;
    double degrees = 0;
    bool horizontal = false;
    bool vertical = false;
    CPageBgProp fill(*fillProp);
    quint32 number = 0;
    switch (actionId) {
    case pagehost::ActionMoved:
        if (!readAll(in, pos))
            return false;
        setPos(pos, false);
        return true;
    case pagehost::ActionResized:
        if (!readAll(in, size) || !isFinite(size))
            return false;
        setSize(possibleSize(size), false, false);
        return true;
    case pagehost::ActionRotated:
        if (!readAll(in, degrees, pos) || !std::isfinite(degrees) || !isFinite(pos))
            return false;
        placeItem(*this, pos, degrees);
        return true;
    case pagehost::ActionMirrored:
        if (!readAll(in, horizontal, vertical))
            return false;
        setMirror(horizontal, vertical, false);
        return true;
    case pagehost::ActionFilled:
        if (!fill.load(in))
            return false;
        setFillProp(&fill, false);
        return true;
    case pagehost::ActionPenColored:
        color = pagehost::readColor(in);
        if (color)
            setMyPenColor(*color, false);
        return color.has_value();
    case pagehost::ActionNumbered:
        if (!readAll(in, number))
            return false;
        pagehost::setObjectId(baseObject(*this), number);
        return true;
    default:
        return false;
    }
}

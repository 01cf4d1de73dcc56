#pragma once

#include <framework/cpsrootobject.h>

#include <host/objectbounds.h>
#include <host/playedstate.h>

#include <memory>

class GripDrag;
struct HostState;

/// The host's private data of a page object: a few values, each with a header that says what it is for. Only files
/// of this folder look in here; others ask objectpage.h, objectplace.h, objectreading.h, objectplaying.h and
/// gripdrag.h.
class CPSRootObjectPrivate
{
public:
    CPSRootObjectPrivate(CPSRootObject &object, IPsPage *page, QGraphicsItem *item);
    ~CPSRootObjectPrivate();

    static CPSRootObjectPrivate &of(CPSRootObject &object) { return *object.d; }
    static const CPSRootObjectPrivate &of(const CPSRootObject &object) { return *object.d; }

    QGraphicsItem *item;
    IPsPage *page;
    /// A bit per CObjAction::ACT_Def.
    quint32 disabledHandles = 0;
    int subType = 0;
    bool locked = false;
    /// The last load() or loadJson() of the base class found its data bad.
    bool refusedState = false;
    /// The object takes its state from saved data. It knows its page already, which is not told of it yet.
    bool isBeingRead = false;
    /// A view is painting the object into the picture that it will keep; there is none to forget.
    bool isPainting = false;
    /// Zoom that the object followed last: objects may size parts of theirs in pixels, and save them so.
    double followedZoom = 1;
    ObjectBounds bounds;
    PlayedState played;
    std::unique_ptr<GripDrag> drag;

    /// Brings the bounds up to date, and the pictures that views keep with them.
    void refreshBounds();
    void dropPaintedArea();
    void dropRegion();
    /// Lets views forget the pictures that they keep of the object. A repaint that Qt is asked for is not enough:
    /// of an object that is larger than the view, it takes over what the old picture shows of the view's area and
    /// paints only what was scrolled into it.
    void dropPicture();

    /// @name Protected members of the object, with what follows from them
    /// @{
    void setClientRect(const QRectF &rect);
    void setFill(const CPageBgProp &fill);
    void setPenWidth(double width);
    /// Everything but the stacking number.
    void setState(const HostState &state);
    /// @}

private:
    CPSRootObject &m_object;
};

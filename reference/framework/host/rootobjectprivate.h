#pragma once

#include <framework/cpsrootobject.h>

#include <host/objectbounds.h>
#include <host/playedstate.h>

#include <memory>

class GripDrag;
struct HostState;

/// The host's private data of a page object: a few values, each declared and explained in its own header. Only
/// files of this folder use it; others use objectpage.h, objectplace.h, objectreading.h, objectplaying.h and
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
    /// One bit for each CObjAction::ACT_Def.
    quint32 disabledHandles = 0;
    int subType = 0;
    bool locked = false;
    /// The last load() or loadJson() of the base class found its data bad.
    bool refusedState = false;
    /// The object is being loaded. It knows its page already, which is not notified yet.
    bool isBeingRead = false;
    /// A view is painting the object into its cached picture; there is none to discard.
    bool isPainting = false;
    /// The zoom that the object followed last: objects may size parts of themselves in pixels, and save those
    /// sizes.
    double followedZoom = 1;
    ObjectBounds bounds;
    PlayedState played;
    std::unique_ptr<GripDrag> drag;

    /// Updates the bounds and the pictures that views cache with them.
    void refreshBounds();
    void dropPaintedArea();
    void dropRegion();
    /// Makes views discard their cached pictures of the object. A repaint request to Qt is not enough: for an
    /// object larger than the view, Qt reuses the part of the old picture inside the view and paints only what was
    /// scrolled in.
    void dropPicture();

    /// @name Protected members of the object, with their consequences
    /// @{
    void setClientRect(const QRectF &rect);
    void setFill(const CPageBgProp &fill);
    void setPenWidth(double width);
    /// Everything except the stacking number.
    void setState(const HostState &state);
    /// @}

private:
    CPSRootObject &m_object;
};

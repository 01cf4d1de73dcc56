#pragma once

#include <framework/cpsrootobject.h>

#include <QtCore/QByteArray>
#include <QtCore/QVector>

#include <memory>
#include <optional>

class CBaseObject;
class GripDrag;
class IDocument;

namespace pagehost {
class Page;
class PageScene;
} // namespace pagehost

/// The host's private data of a page object, and its access that bypasses virtual operations.
class CPSRootObjectPrivate
{
public:
    QGraphicsItem *item = nullptr;
    IPsPage *page = nullptr;
    /// A bit per CObjAction::ACT_Def.
    quint32 disabledHandles = 0;
    int subType = 0;
    bool locked = false;
    /// The last load() or loadJson() of the base class found its data bad. Objects may answer for their own data
    /// alone.
    bool refusedState = false;
    /// The object takes its state from saved data. It knows its page already, which hears nothing of it yet.
    bool isBeingRead = false;
    /// Zoom that the object followed last: objects may size parts of theirs in pixels, and save them so.
    double followedZoom = 1;
    /// Saved data of the object, kept while its animation changes nothing but its picture.
    std::optional<QByteArray> playedState;
    /// The region was made for another size or look. Making it is expensive, so it waits for a request.
    bool regionIsStale = false;
    /// refreshBounds() has no effect.
    bool keepsBounds = false;
    /// A view is painting the object into the picture that it will keep; there is none to forget.
    bool isPainting = false;
    /// Bounding rectangle as the scene knows it, item coordinates.
    QRectF bounds;
    /// Outside of a scene the bounds wait until somebody asks for them.
    bool boundsAreStale = false;
    /// The object's answer to pagehost::PaintedArea; null before asking, empty without an answer.
    std::optional<QRectF> paintedArea;
    std::unique_ptr<GripDrag> drag;

    CPSRootObjectPrivate();
    ~CPSRootObjectPrivate();

    static CPSRootObjectPrivate &of(CPSRootObject &object) { return *object.d; }
    static const CPSRootObjectPrivate &of(const CPSRootObject &object) { return *object.d; }

    /// The graphics item; null for an object whose item is no CBaseObject.
    static CBaseObject *baseObject(CPSRootObject &object);
    /// The page to tell of the object's changes.
    static pagehost::Page *pageOf(const CPSRootObject &object);
    /// The scene that shows the object when it is a page's.
    static pagehost::PageScene *pageScene(const CPSRootObject &object);
    /// The document of the object's page, else the current one; null when there is none at all.
    static IDocument *documentOf(const CPSRootObject &object);
    static bool isEditingBlocked(const CPSRootObject &object);
    /// Makes the object the only selected one of the scene that it is in.
    static void selectAlone(CBaseObject &object);
    /// The handles that the object offers, in drawing order.
    static QVector<CObjAction::ACT_Def> handles(CPSRootObject &object);

    /// Client size without the object's virtual setSize(): exactly this size.
    static void assignClientSize(CPSRootObject &object, const QSizeF &size);
    static void assignMirror(CPSRootObject &object, bool horizontal, bool vertical);
    static void assignFill(CPSRootObject &object, const CPageBgProp &fill);
    /// Position of the item's origin and rotation, without records.
    static void place(CPSRootObject &object, const QPointF &pos, double degrees);
    /// The client size that save() or saveJson() has written; empty when the data do not begin with one.
    static QSizeF savedSize(QDataStream &in);
    static QSizeF savedSize(const QJsonObject &object);
    /// Bounding rectangle from client rectangle, region and editing aids.
    static void refreshBounds(CPSRootObject &object);
    /// Lets views forget the pictures that they keep of the object. A repaint that Qt is asked for is not enough:
    /// of an object that is larger than the view, it takes over what the old picture shows of the view's area and
    /// paints only what was scrolled into it.
    static void dropPicture(CPSRootObject &object);
    /// The bounding rectangle of now, item coordinates.
    static QRectF currentBounds(CBaseObject &object);
    /// Selection has changed, and with it what is painted.
    static void dropPaintedArea(CPSRootObject &object);
    /// Size or look have changed, and with them the region.
    static void dropRegion(CPSRootObject &object);
    /// The region of now, item coordinates; empty when the object has none of its own.
    static QPainterPath currentRegion(CBaseObject &object);
    static void noteChange(CPSRootObject &object);
    /// Of what is saved, but not shown.
    static void noteInvisibleChange(CPSRootObject &object);
    /// Says that the object plays what moves in it, or does so no longer.
    static void setPlayed(CPSRootObject &object, bool played);
    /// Whether a new appearance of the object is only the next picture of what moves in it, which is no change of
    /// the page.
    static bool isNextPicture(CPSRootObject &object);
    static QPen &pen(CPSRootObject &object) { return object.myPen; }
    static void setName(CPSRootObject &object, const QString &name) { object.objName = name; }
    static void setClientRect(CPSRootObject &object, const QRectF &rect);

private:
    static QRectF wantedBounds(CBaseObject &object);
};

/// The longest side of an object, item units. Objects keep a picture with a pixel to the unit for other threads: a
/// square of this side takes 1 GiB.
constexpr double longestSide = 16384;
/// `size` with each side brought into 0 to longestSide.
QSizeF possibleSize(const QSizeF &size);
/// Degrees brought into 0 to 360, 360 excluded.
double normalizedDegrees(double degrees);
/// A vector of item coordinates as the item's rotation turns it.
QPointF rotated(const QPointF &vector, double degrees);
bool isFinite(const QPointF &point);
bool isFinite(const QSizeF &size);
bool isFinite(const QRectF &rect);

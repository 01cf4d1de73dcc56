#pragma once

#include <framework/cobjaction.h>
#include <framework/cpagebgprop.h>
#include <framework/framework_global.h>
#include <framework/operationtype.h>

#include <QtCore/QJsonObject>
#include <QtCore/QList>
#include <QtCore/QMap>
#include <QtCore/QPointF>
#include <QtCore/QRectF>
#include <QtCore/QString>
#include <QtCore/QVariant>
#include <QtGui/QBrush>
#include <QtGui/QPainterPath>
#include <QtGui/QPen>

#include <memory>

class CPSRootObjectPrivate;
class IPsPage;
class QDataStream;
class QGraphicsItem;
class QGraphicsView;
class QPainter;

/// The page-object half of every object on a page, which the host's selection, handles, undo, recording, panels and
/// persistence use. The graphics-item half is CBaseObject's other base.
///
/// Tests and hosts can override the virtual operations. Unless noted otherwise, operations that return bool say
/// whether the object handled the request.
class FRAMEWORK_EXPORT CPSRootObject
{
public:
    /// Reasons for notifyObjPropertyChanged().
    enum Notification { SizeChanged = 105, AppearanceChanged = 1002 };

    virtual ~CPSRootObject();
    CPSRootObject(const CPSRootObject &) = delete;
    CPSRootObject &operator=(const CPSRootObject &) = delete;

    /// Name given by the user; empty when there is none.
    virtual QString getObjName();

    /// Paints the object's content in item coordinates; a null painter asks for the off-screen picture to be
    /// rendered anew. Called in the owning thread, or in another thread with a painter; the host never resizes,
    /// loads or deletes the object meanwhile.
    virtual void OnQPainterDraw(QPainter *painter);
    /// Brackets all painting of content. Saves the painter's state and applies the object's mirroring about the
    /// client rectangle's centre. An inactive painter is left alone, silently.
    virtual void beginPaint(QPainter *painter);
    /// Restores the painter's state of beginPaint().
    virtual void endPaint(QPainter *painter);
    /// Drops cached pictures of the page layers that show the object; `reason` 2 says that only editing aids
    /// changed.
    virtual void clearLayerEffectCache(int reason);

    /// Whether the object can do an operation at present.
    virtual bool canDo(OperationType operation);
    /// Writes the object's state for load().
    virtual bool save(QDataStream &out);
    /// Reads what save() writes.
    virtual bool load(QDataStream &in);
    /// Adds the object's state to `object`.
    virtual bool saveJson(QJsonObject &object);
    /// Reads what saveJson() writes.
    virtual bool loadJson(QJsonObject &object);

    /// Takes `size` (item units) as the client size. `flag` asks for a playback record of the change, `redraw` for
    /// an immediate update of the graphics item. Ignores a size that is not finite; a size equal to the present one
    /// writes no client rectangle.
    virtual void setSize(QSizeF size, bool flag, bool redraw);
    /// Tells the host that the region path (item coordinates) is new; `item` is the graphics item to update, null
    /// for the object's own.
    virtual void regenRegionShape(QGraphicsItem *item);

    /// Writes the state from which a recording starts.
    virtual bool SavePropertyForPlayback(QDataStream &out);
    /// Reads what SavePropertyForPlayback() writes.
    virtual bool LoadPropertyForPlayback(QDataStream &in);
    /// Replays one recorded action (RecordAction()) of the host's own kinds.
    virtual bool DoPlaybackActionEx(int actionId, QDataStream &in);
    /// Adds the object's look to `map`, by names.
    virtual bool getAllAttributes(QMap<QString, QVariant> &map);
    /// Applies those of the values that the object has; true when something has changed.
    virtual bool setAllAttributes(const QMap<QString, QVariant> &map, bool flag);
    /// Writes the description of a property with its value.
    virtual bool GetAttribute(int id, QDataStream &out);
    /// Applies a value of a property; `record` asks for an undo step and a playback record.
    virtual bool SetAttribute(int id, QDataStream &in, bool record);
    /// Writes the value of a property that only the host asks for.
    virtual bool GetSpecialProperty(int id, QDataStream &out);
    /// Applies such a value; `record` asks for a playback record.
    virtual bool SetSpecialProperty(int id, QDataStream &in, bool record);
    /// Shows the object's own menu; `where` is a host-defined pointer.
    virtual void PopupObjectMenu(void *where);
    /// Whether `scenePos` (scene coordinates) lies on one of the enabled handles of the selected object; `action`
    /// is then what it starts.
    virtual bool CheckHitTestHandlers(const QPointF &scenePos, CObjAction::ACT_Def &action);
    /// Copies the fill and creates the fill brush from it. A solid fill of the object's present colour and opacity
    /// keeps an existing picture, pattern or gradient. `record` asks for a playback record. Null is ignored. Never
    /// paints before it returns.
    virtual void setFillProp(CPageBgProp *prop, bool record);
    /// Writes the description of the object's settings panel.
    virtual bool GetSettingJson(QString &out);
    /// Applies the answers of the panel; `record` asks for a playback record, `undo` for an undo step.
    virtual bool SetSettingJson(const QString &json, bool record, bool undo);
    /// Called after something other than the host changed the client rectangle.
    virtual void updateRectChanged();

    /// Whether the item is visible.
    virtual bool isVisible() const;
    /// The kind of the object as a localisation key ("IDS_..."): shown in lists, hints and to screen readers.
    virtual QString kindName() const = 0;
    /// Locks the object in its place, or unlocks it.
    virtual void setLocked(bool locked);
    /// Whether it is locked.
    virtual bool isLocked() const;

    /// @name Notifications from an object to its host
    /// @{

    /// Adds one step to the playback record: an action id and its payload, which is copied. Null is ignored.
    virtual void RecordAction(int actionId, QByteArray *data);
    /// Something about the object changed (see Notification); `value` is host-defined text.
    virtual void notifyObjPropertyChanged(int id, const QString &value);
    /// The end of creation; `byUser` is true only for the last step of drawing the object with the mouse.
    virtual void onCreateFinished(bool byUser);
    /// Recomputes bounding rectangle, handles and scene after the client rectangle changed. `item` is the graphics
    /// item, null for the object's own; `redraw` asks for an update of the item.
    virtual void updateAfterObjRectChanged(QGraphicsItem *item, bool redraw);
    /// The page that the object stands on; null when on none.
    virtual IPsPage *GetPage() const;
    /// @}

    /// Sets the page that the object stands on; null for none. Not owned.
    void SetPage(IPsPage *page);

    /// @name Place and size
    /// @{

    /// Client rectangle, item coordinates. The host keeps its top-left at (0, 0) and moves the item instead.
    QRectF getClientRect() const { return clientRect; }
    /// Position of the item's origin, scene coordinates.
    QPointF getPos() const;
    /// Moves the item's origin to `pos` (scene coordinates); `record` asks for a playback record.
    void setPos(QPointF pos, bool record);
    /// Sets the rotation to `degrees` and moves the item so that `center` (item coordinates of the unrotated
    /// object) stays where the unrotated object has it; `record` asks for a playback record.
    void setRotateByPoint(double degrees, QPointF center, bool record);
    /// Mirrored left to right.
    bool isMirrored() const { return mirrorHorizontal; }
    /// Mirrored top to bottom.
    bool isFlipped() const { return mirrorVertical; }
    /// Mirrors the content about the client rectangle's vertical (`horizontal`) and horizontal (`vertical`) axis.
    void setMirror(bool horizontal, bool vertical, bool record);
    /// Schedules a repaint of the object's graphics item.
    void update();
    /// @}

    /// Scene units to screen pixels of the view that edits the object's document (1 before there is one).
    double getCurZoomRate() const;
    /// The first view of the list that is visible; null when none is.
    static QGraphicsView *FindFirstVisibleView(QList<QGraphicsView *> &views);

    /// Withdraws a handle from the selected object, or offers it again.
    void setHandlesDisable(CObjAction::ACT_Def handle, bool disable);
    /// Whether the handle has been withdrawn.
    bool isHandleDisabled(CObjAction::ACT_Def handle) const;

    /// Host pen colour; `notify` asks for a notification and a playback record.
    void setMyPenColor(QColor color, bool notify);
    /// The host's pen.
    QPen getMyPen() const { return myPen; }
    /// The host's fill; owned by the object, never null.
    CPageBgProp *getFillProp() const { return fillProp; }
    /// The brush created from the fill property; no brush while the fill is disabled.
    QBrush getHostFillBrush() const { return fillBrush; }
    /// Region for selection, hit tests and clipping, item coordinates; null until it is first made.
    const QPainterPath *getRegionPath() const { return regionPath; }
    /// Ids of the properties that the object offers to panels.
    QList<int> getAttributeIds() const { return attributeIds; }
    /// False while the object is still being drawn.
    bool isCreateFinished() const { return createFinished; }

    /// A host-defined sub type of the object, initially 0.
    void setSubType(int subType);
    /// See setSubType().
    int getSubType() const;

    /// @name Controls of a settings panel
    /// Each returns one control as a JSON object whose members belong to the host's panel. References are only
    /// read.
    /// @{

    /// A list: `index` is the chosen entry, from 0; entries have icons, texts or both.
    QJsonObject GetSettingJsonComboBox(QString &id, QString &title, int index, QList<QString> &icons,
                                       QList<QString> &texts);
    /// A colour, "#aarrggbb".
    QJsonObject GetSettingJsonColorPicker(QString &id, QString &title, QString &color);
    /// A field for text or, by `type`, for a number between two bounds.
    QJsonObject GetSettingJsonInput(QString &id, QString &title, QString &value, QString &type, QString &minimum,
                                    QString &maximum, QString &unit);
    /// On or off.
    QJsonObject GetSettingJsonSwitch(QString &id, QString &title, bool on);
    /// A slider between two bounds.
    QJsonObject GetSettingJsonSlider(QString &id, QString &title, QString &value, QString &minimum,
                                     QString &maximum, QString &step, QString &unit);
    /// A button that carries out `command`.
    QJsonObject GetSettingJsonCommond(QString &id, QString &title, QString &command);
    /// Reads a panel's answer, an object of ids and values, into `values`. False, with `values` untouched, when the
    /// text is not such an object.
    bool ParseSettingJson(const QString &json, QMap<QString, QString> &values);
    /// @}

protected:
    /// The item is the object's own graphics item. The page may be null.
    CPSRootObject(IPsPage *page, QGraphicsItem *item);

    QString objName; ///< name given by the user
    /// Set once the object's creation is finished; until then the object itself follows the creating drag.
    bool createFinished = true;
    QList<int> attributeIds; ///< see getAttributeIds()
    QRectF clientRect;       ///< see getClientRect()
    /// The drag rectangle, item coordinates: start and present end of a creating drag.
    QPointF dragStart;
    QPointF dragEnd;                    ///< see dragStart
    QPen myPen;                         ///< see getMyPen()
    CPageBgProp *fillProp;              ///< owned
    QBrush fillBrush;                   ///< see getHostFillBrush()
    QPainterPath *regionPath = nullptr; ///< owned
    bool mirrorHorizontal = false;      ///< left to right
    bool mirrorVertical = false;        ///< top to bottom

private:
    friend class CPSRootObjectPrivate;
    std::unique_ptr<CPSRootObjectPrivate> d;
};

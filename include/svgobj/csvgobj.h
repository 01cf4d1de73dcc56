#pragma once

#include <svgobj/svgobj_global.h>

#include <framework/cbaseobject.h>

#include <QtCore/QMutex>
#include <QtGui/QImage>

class CSVGBase;

/// The page object of a vector shape, as the host's scene, selection, undo, playback, panels and persistence see
/// it.
///
/// It owns one shape core (CSVGBase) and forwards to it; the host's base class answers whatever the core declines.
/// A concrete shape derives, makes its core in the constructor and in createSVGBase(), and names its kind.
class SVGOBJ_EXPORT CSVGObj : public CBaseObject
{
public:
    /// `kind` and `selectable` go to the host base unchanged.
    CSVGObj(int kind, bool selectable, QGraphicsItem *parent);
    ~CSVGObj() override;

    /// Paints the content through OnQPainterDraw().
    void paint(QPainter *painter, const QStyleOptionGraphicsItem *option, QWidget *widget) override;
    /// QGraphicsItem::UserType + 1001, whatever the shape.
    int type() const override;
    /// In the creating state begins the drawing of the object; else starts a drag of a control point, or what the
    /// host makes of a press.
    void mousePressEvent(QGraphicsSceneMouseEvent *event) override;
    /// Goes on with whatever the press began.
    void mouseMoveEvent(QGraphicsSceneMouseEvent *event) override;
    /// Ends it: a new object gets its final size (a click: getDefaultSize()), and creation is finished.
    void mouseReleaseEvent(QGraphicsSceneMouseEvent *event) override;
    /// Forwarded to the core.
    void mouseDoubleClickEvent(QGraphicsSceneMouseEvent *event) override;
    /// Forwarded to the core.
    void keyPressEvent(QKeyEvent *event) override;
    QString getObjName() override;
    /// Paints onto `painter`; with null renders the off-screen picture that other threads copy. Another thread gets
    /// a copy of that picture in the client rectangle; the host alone keeps such copying apart from resizing,
    /// loading and deleting the object, which take no lock.
    void OnQPainterDraw(QPainter *painter) override;
    /// Operations of shapes, and whatever the host's base class can do.
    bool canDo(OperationType operation) override;
    /// Writes the host's data, whether there is a core, its type number and its data. Always true.
    bool save(QDataStream &out) override;
    /// Reads what save() writes into a core of the stored type (createSVGBase()), and finishes creation. Always
    /// true.
    bool load(QDataStream &in) override;
    /// Adds the values of save() to `object`. Always true.
    bool saveJson(QJsonObject &object) override;
    /// Reads what saveJson() writes. Always true.
    bool loadJson(QJsonObject &object) override;
    /// Applies a requested size (item units): never below the core's minimum, at the kept aspect ratio, and passed
    /// on to a core that rewrites its drawing. `forceOutline` rebuilds the outline of such a core whatever its
    /// type.
    void setSize(QSizeF size, bool flag, bool forceOutline) override;
    /// Tells the core when the object is selected or deselected.
    QVariant itemChange(GraphicsItemChange change, const QVariant &value) override;
    void regenRegionShape(QGraphicsItem *item) override;
    /// Writes the host's state, then the core's. The result is the core's, without one the host's.
    bool SavePropertyForPlayback(QDataStream &out) override;
    /// Reads what SavePropertyForPlayback() writes. The result is the core's, without one the host's.
    bool LoadPropertyForPlayback(QDataStream &in) override;
    bool DoPlaybackActionEx(int actionId, QDataStream &in) override;
    /// Adds the host's values, then the core's. False without a core.
    bool getAllAttributes(QMap<QString, QVariant> &map) override;
    /// Applies the values to host and core, unrecorded; true when one of the two has changed. A map with
    /// "doc_state_edit" only says whether the object counts as selected, and gives true.
    bool setAllAttributes(const QMap<QString, QVariant> &map, bool flag) override;
    /// The core's description of a property, else the host's. False when neither has it.
    bool GetAttribute(int id, QDataStream &out) override;
    /// Sets a property of the core with an undo step, else one of the host. After the core has taken the value, the
    /// stream is rewound and holds a qint32 of 0. False when neither has the property.
    bool SetAttribute(int id, QDataStream &in, bool record) override;
    /// The core's property, else the host's. False when neither has it, and without a core.
    bool GetSpecialProperty(int id, QDataStream &out) override;
    /// Sets a property of the core, else of the host. False when neither has it, and without a core.
    bool SetSpecialProperty(int id, QDataStream &in, bool record) override;
    /// The shape core must be present.
    void PopupObjectMenu(void *where) override;
    bool CheckHitTestHandlers(const QPointF &scenePos, CObjAction::ACT_Def &action) override;
    void setFillProp(CPageBgProp *prop, bool record) override;
    /// The core's; false without a core.
    bool GetSettingJson(QString &out) override;
    /// The core's; false without a core.
    bool SetSettingJson(const QString &json, bool record, bool undo) override;
    void updateRectChanged() override;

    /// Puts a new shape core for the given shape type into svgBase. The library passes false and ignores the
    /// result.
    virtual bool createSVGBase(int type, bool flag) = 0;

    /// Applies a final size (item units): client rectangle, host, off-screen picture, notification. An equal size
    /// writes no client rectangle.
    void setSize2(QSizeF size, bool flag);
    /// Raises each side of `size` to the core's minimum size in whole units (1 without a core).
    void validateSize(QSizeF &size);
    /// The core's default size, 30 × 30 without a core.
    QSizeF getDefaultSize();
    /// The largest size of the aspect ratio of `ratio` that fits into `size`.
    QSizeF limitSize(QSizeF size, QSizeF ratio);

    /// The last step of creation, by hand or by loading: outline, host, off-screen picture.
    void doAfterObjCreated();
    /// For cores and subclasses: rebuilds the region path after the outline changed.
    void notifyOutlineRegionChanged();
    /// Called while the document of an externally filled shape draws; does nothing.
    void callback(QPainter *painter);
    /// Draws the core's document into the client rectangle, item coordinates.
    void drawSVG(QPainter *painter);

    /// Offers a property to the host's panels; an id may be there several times.
    void addAttributeId(int id);
    /// Removes every occurrence.
    void removeAttributeId(int id);

    /// @name Settings panel controls, passed through to the host for the shape core
    /// @{

    /// A list: `index` is the chosen entry, from 0; entries have icons, texts or both.
    QJsonObject GetSettingJsonComboBox(QString &id, QString &title, int index, QList<QString> &icons,
                                       QList<QString> &texts);
    /// A colour, "#aarrggbb".
    QJsonObject GetSettingJsonColorPicker(QString &id, QString &title, QString &color);
    /// A field for text or, by `type`, a number between two bounds.
    QJsonObject GetSettingJsonInput(QString &id, QString &title, QString &value, QString &type, QString &minimum,
                                    QString &maximum, QString &unit);
    /// On or off.
    QJsonObject GetSettingJsonSwitch(QString &id, QString &title, bool on);
    /// A slider between two bounds.
    QJsonObject GetSettingJsonSlider(QString &id, QString &title, QString &value, QString &minimum,
                                     QString &maximum, QString &step, QString &unit);
    /// A button that carries out `command`.
    QJsonObject GetSettingJsonCommond(QString &id, QString &title, QString &command);
    /// Reads the answers of the panel by the ids of the controls. False for text that is no such JSON.
    bool ParseSettingJson(const QString &json, QMap<QString, QString> &values);
    /// @}

protected:
    CSVGBase *svgBase; ///< the shape core, owned; null until the concrete shape makes it
    /// The size last applied; keep-aspect resizing keeps its ratio. (-1, -1) at first.
    QSizeF baseSize;
    Qt::HANDLE createThreadId; ///< the thread that paints on screen; others copy cacheImage
    QMutex cacheMutex;         ///< guards cacheImage, and nothing else
    QImage cacheImage;         ///< the object rendered off screen, for painting from other threads

private:
    void paintHostFill(QPainter *target);
    void paintContent(QPainter *target, bool toCache);
    void renderCache();
    void copyCache(QPainter *painter);

    void startCreation(QPointF pos);
    void followCreation(QPointF scenePos);
    QSizeF releasedSize(QPointF scenePos);
    void finishCreation(QPointF scenePos);
};

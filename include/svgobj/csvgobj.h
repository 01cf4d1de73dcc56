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

    void paint(QPainter *painter, const QStyleOptionGraphicsItem *option, QWidget *widget) override;
    /// QGraphicsItem::UserType + 1001, whatever the shape.
    int type() const override;
    void mousePressEvent(QGraphicsSceneMouseEvent *event) override;
    void mouseMoveEvent(QGraphicsSceneMouseEvent *event) override;
    void mouseReleaseEvent(QGraphicsSceneMouseEvent *event) override;
    void mouseDoubleClickEvent(QGraphicsSceneMouseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    QString getObjName() override;
    /// Paints onto `painter`; with null renders the off-screen picture that other threads copy. Another thread gets
    /// a copy of that picture in the client rectangle; the host alone keeps such copying apart from resizing,
    /// loading and deleting the object, which take no lock.
    void OnQPainterDraw(QPainter *painter) override;
    bool canDo(OperationType operation) override;
    bool save(QDataStream &out) override;
    bool load(QDataStream &in) override;
    bool saveJson(QJsonObject &object) override;
    bool loadJson(QJsonObject &object) override;
    /// Applies a requested size (item units): never below the core's minimum, at the kept aspect ratio, and passed
    /// on to a core that rewrites its drawing. `forceOutline` rebuilds the outline of such a core whatever its
    /// type.
    void setSize(QSizeF size, bool flag, bool forceOutline) override;
    QVariant itemChange(GraphicsItemChange change, const QVariant &value) override;
    void regenRegionShape(QGraphicsItem *item) override;
    bool SavePropertyForPlayback(QDataStream &out) override;
    bool LoadPropertyForPlayback(QDataStream &in) override;
    bool DoPlaybackActionEx(int actionId, QDataStream &in) override;
    bool getAllAttributes(QMap<QString, QVariant> &map) override;
    bool setAllAttributes(const QMap<QString, QVariant> &map, bool flag) override;
    bool GetAttribute(int id, QDataStream &out) override;
    bool SetAttribute(int id, QDataStream &in, bool record) override;
    bool GetSpecialProperty(int id, QDataStream &out) override;
    bool SetSpecialProperty(int id, QDataStream &in, bool record) override;
    /// The shape core must be present.
    void PopupObjectMenu(void *where) override;
    bool CheckHitTestHandlers(const QPointF &scenePos, CObjAction::ACT_Def &action) override;
    void setFillProp(CPageBgProp *prop, bool record) override;
    bool GetSettingJson(QString &out) override;
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
    void drawSVG(QPainter *painter);

    void addAttributeId(int id);
    /// Removes every occurrence.
    void removeAttributeId(int id);

    /// @name Settings panel controls, passed through to the host for the shape core
    /// @{
    QJsonObject GetSettingJsonComboBox(QString &id, QString &title, int index, QList<QString> &icons,
                                       QList<QString> &texts);
    QJsonObject GetSettingJsonColorPicker(QString &id, QString &title, QString &color);
    QJsonObject GetSettingJsonInput(QString &id, QString &title, QString &value, QString &type, QString &minimum,
                                    QString &maximum, QString &unit);
    QJsonObject GetSettingJsonSwitch(QString &id, QString &title, bool on);
    QJsonObject GetSettingJsonSlider(QString &id, QString &title, QString &value, QString &minimum,
                                     QString &maximum, QString &step, QString &unit);
    QJsonObject GetSettingJsonCommond(QString &id, QString &title, QString &command);
    bool ParseSettingJson(const QString &json, QMap<QString, QString> &values);
    /// @}

protected:
    CSVGBase *svgBase; ///< the shape core, owned; null until the concrete shape makes it
    /// The size last applied; keep-aspect resizing keeps its ratio. (-1, -1) at first.
    QSizeF baseSize;
    Qt::HANDLE createThreadId;
    QMutex cacheMutex; ///< guards cacheImage, and nothing else
    QImage cacheImage; ///< the object rendered off screen, for painting from other threads

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

#pragma once

#include <svgobj/csvgbase.h>

#include <functional>

namespace support {

/// A shape core for tests: its template and type are data, every virtual operation that the library calls on a core
/// is written to the call log (object "shape"), and each can be given another behaviour through a function object.
/// An empty function means the base's behaviour.
///
/// Log entries have the arguments that QVariant can hold: nodes as their ids, points, sizes, numbers and flags as
/// they are; painters, streams, events, paths and maps are left out.
class TestShape : public CSVGBase
{
public:
    explicit TestShape(CSVGObj *owner, const QString &templateText = {}, int type = 27);

    /// The template; empty gives what the base class gives.
    QString templateText;
    int type;

    /// @name Behaviours
    /// @{
    std::function<bool(QZeSvgNode *node, QPointF delta, bool refresh)> onUpdateNode;
    std::function<bool(bool refresh)> onUpdateSVG;
    std::function<bool(bool refresh, bool finished)> onUpdateAllControlPoints;
    std::function<bool(QZeSvgNode *node, QPointF pos)> onCanMoveControlPoint;
    std::function<void(int size)> onUpdateAfterPenWidthChanged;
    std::function<void()> onInitGlobalPropValues;
    std::function<void()> onInitSpecialPropItems;
    std::function<QString(int propId)> onGetPropName;
    std::function<bool(int propId, QDataStream &out)> onGetInnerProperty;
    std::function<bool(int propId, QDataStream &in, bool record, bool addUndo)> onSetInnerProperty;
    std::function<bool(int propId, QDataStream &out)> onGetSpecialProperty;
    std::function<bool(int propId, QDataStream &in, bool record)> onSetSpecialProperty;
    std::function<bool(int propId, QDataStream &out)> onGetAttribute;
    std::function<bool(int propId, QDataStream &in, bool record, bool addUndo)> onSetAttribute;
    std::function<bool(int actionId, QDataStream &in)> onDoPlaybackActionEx;
    std::function<bool(QJsonArray &settings)> onGetSettingArray;
    std::function<bool(QMap<QString, QString> &values, bool record, bool undo)> onSetSettingArray;
    std::function<bool(QString &out)> onGetSettingJson;
    std::function<bool(const QString &json, bool record, bool undo)> onSetSettingJson;
    std::function<bool(QMap<QString, QVariant> &map)> onGetAllAttributes;
    std::function<bool(const QMap<QString, QVariant> &map, bool flag)> onSetAllAttributes;
    std::function<bool(QDataStream &out)> onSave;
    std::function<bool(QDataStream &in)> onLoad;
    std::function<bool(QJsonObject &object)> onSaveJson;
    std::function<bool(QJsonObject &object)> onLoadJson;
    std::function<void(QPainter *painter, bool toCache)> onPaint;
    std::function<void(QPainter *painter, float scale, bool toCache)> onPaintEx;
    std::function<bool(QGraphicsSceneMouseEvent *event)> onMousePress;
    std::function<bool(QGraphicsSceneMouseEvent *event)> onMouseMove;
    std::function<bool(QGraphicsSceneMouseEvent *event)> onMouseRelease;
    std::function<bool(QGraphicsSceneMouseEvent *event)> onMouseDoubleClick;
    std::function<bool(const QPointF &pos)> onCheckHitTestHandlers;
    std::function<void(QSizeF oldSize, QSizeF newSize)> onSetSize;
    std::function<QSizeF()> onGetMinimizeSize;
    std::function<QSizeF()> onGetDefaultSVGSize;
    std::function<int()> onGetMaxPenWidth;
    std::function<int()> onGetPenWidth;
    std::function<QBrush()> onGetFillBrush;
    std::function<void(const QBrush &brush, bool record, bool notify)> onSetFillBrush;
    std::function<double(QZeSvgNode *node)> onGetXMin;
    std::function<void()> onUpdateOutlineRegion;
    std::function<bool(QPainterPath *path)> onGetOutlinePath;
    /// @}

    /// The control point with that one-based number; null when the shape has not found it.
    QZeSvgNode *point(int number) const { return controlPoints[number - 1]; }
    /// Its bounding rectangle, document units.
    QRectF pointRect(int number) const;
    /// Any node of the document by its id.
    QZeSvgNode *node(const QString &id) const;

    // Makes protected members of the library accessible.
    using CSVGBase::activeControlPoint;
    using CSVGBase::animator;
    using CSVGBase::belongDoc;
    using CSVGBase::controlPointCount;
    using CSVGBase::controlPoints;
    using CSVGBase::controlPointSize;
    using CSVGBase::document;
    using CSVGBase::dragStartPos;
    using CSVGBase::dragXMax;
    using CSVGBase::dragXMin;
    using CSVGBase::dragYMax;
    using CSVGBase::dragYMin;
    using CSVGBase::externallyFilled;
    using CSVGBase::flipHorizontal;
    using CSVGBase::flipVertical;
    using CSVGBase::keepAspectRatio;
    using CSVGBase::keepOutlineRegion;
    using CSVGBase::lastMousePos;
    using CSVGBase::outlineRegion;
    using CSVGBase::owner;
    using CSVGBase::propFillEnabled;
    using CSVGBase::propItems;
    using CSVGBase::propPenEnabled;
    using CSVGBase::propPenStyleEnabled;
    using CSVGBase::propPenWidthEnabled;
    using CSVGBase::rawControlPoints;
    using CSVGBase::resizeRewritesSVG;
    using CSVGBase::savedFillBrush;
    using CSVGBase::savedPenColor;
    using CSVGBase::savedPenStyleIndex;
    using CSVGBase::updateFinished;
    using CSVGBase::zoomRate;

    bool save(QDataStream &out) override;
    bool load(QDataStream &in) override;
    bool saveJson(QJsonObject &object) override;
    bool loadJson(QJsonObject &object) override;
    bool SavePropertyForPlayback(QDataStream &out) override;
    bool LoadPropertyForPlayback(QDataStream &in) override;
    bool DoPlaybackActionEx(int actionId, QDataStream &in) override;
    bool getAllAttributes(QMap<QString, QVariant> &map) override;
    bool setAllAttributes(const QMap<QString, QVariant> &map, bool flag) override;
    bool GetAttribute(int propId, QDataStream &out) override;
    bool SetAttribute(int propId, QDataStream &in, bool record, bool addUndo) override;
    bool GetSpecialProperty(int propId, QDataStream &out) override;
    bool SetSpecialProperty(int propId, QDataStream &in, bool record) override;
    void PopupObjectMenu(void *where) override;
    void paint(QPainter *painter, bool toCache) override;
    void paintEx(QPainter *painter, float scale, bool toCache) override;
    bool mousePressEvent(QGraphicsSceneMouseEvent *event) override;
    bool mouseMoveEvent(QGraphicsSceneMouseEvent *event) override;
    bool mouseReleaseEvent(QGraphicsSceneMouseEvent *event) override;
    bool mouseDoubleClickEvent(QGraphicsSceneMouseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    QString getSVG() override;
    int getSVGType() override;
    bool updateAllControlPoints(bool refresh, bool finished) override;
    QSizeF getDefaultSVGSize() override;
    void updateOutlineRegion() override;
    void setSize(QSizeF oldSize, QSizeF newSize) override;
    QSizeF getMinimizeSize() override;
    int getMaxPenWidth() override;
    void notifyObjectCreated() override;
    bool CheckHitTestHandlers(const QPointF &pos) override;
    void setFillBrush(const QBrush &brush, bool record, bool notify) override;
    bool GetSettingArray(QJsonArray &settings) override;
    bool SetSettingArray(QMap<QString, QString> &values, bool record, bool undo) override;
    bool GetSettingJson(QString &out) override;
    bool SetSettingJson(const QString &json, bool record, bool undo) override;
    bool updateSVG(QZeSvgNode *node, QPointF delta, bool refresh) override;
    bool updateSVG(bool refresh) override;
    double getXMin(QZeSvgNode *node) override;
    QBrush getFillBrush() override;
    QColor getPenColor() override;
    void setPenColor(QColor color, bool record) override;
    Qt::PenStyle getPenStyle() override;
    void setPenStyle(Qt::PenStyle style, bool record) override;
    int getPenWidth() override;
    void setPenWidth(int width, bool record) override;
    bool getInnerProperty(int propId, QDataStream &out) override;
    bool setInnerProperty(int propId, QDataStream &in, bool record, bool addUndo) override;
    void initPropItems() override;
    void initSpecialPropItems() override;
    QString getPropName(int propId) override;
    void initGlobalPropValues() override;
    void updateAfterPenWidthChanged(int size) override;
    bool CanMoveControlPoint(QZeSvgNode *node, QPointF pos) override;
    int actionIdToPropId(int actionId) override;
    bool getOutlinePath(QPainterPath *path) override;
};

} // namespace support

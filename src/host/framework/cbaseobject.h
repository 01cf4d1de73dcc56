#pragma once

#include <framework/cpsrootobject.h>

#include <QtWidgets/QGraphicsTextItem>

/// A page object that is a graphics item: the base of everything that stands on a page.
///
/// A plug-in's object is made in the "creating" state when it clears createFinished; the host then delivers it one
/// press, moves and one release, and it finishes itself.
class FRAMEWORK_EXPORT CBaseObject : public QGraphicsTextItem, public CPSRootObject
{
public:
    /// `kind` is the host's number for the kind of object, kept for the host's own lists; `selectable` lets users
    /// select and move the item.
    CBaseObject(int kind, bool selectable, QGraphicsItem *parent, IPsPage *page);
    ~CBaseObject() override;

    using CPSRootObject::isVisible;
    using CPSRootObject::setPos;
    using CPSRootObject::update;
    using QGraphicsTextItem::setPos;
    using QGraphicsTextItem::update;

    QRectF boundingRect() const override;
    QPainterPath shape() const override;
    bool contains(const QPointF &point) const override;
    /// Paints the content through OnQPainterDraw() and nothing else; handles belong to the view.
    void paint(QPainter *painter, const QStyleOptionGraphicsItem *option, QWidget *widget) override;
    int type() const override;
    void mousePressEvent(QGraphicsSceneMouseEvent *event) override;
    void mouseMoveEvent(QGraphicsSceneMouseEvent *event) override;
    void mouseReleaseEvent(QGraphicsSceneMouseEvent *event) override;
    void mouseDoubleClickEvent(QGraphicsSceneMouseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;

    // Redeclared so that these can be called through the graphics item's virtual table too; the order is fixed.
    QString getObjName() override;
    void OnQPainterDraw(QPainter *painter) override;
    bool canDo(OperationType operation) override;
    bool save(QDataStream &out) override;
    bool load(QDataStream &in) override;
    bool saveJson(QJsonObject &object) override;
    bool loadJson(QJsonObject &object) override;
    void setSize(QSizeF size, bool flag, bool redraw) override;
    QVariant itemChange(GraphicsItemChange change, const QVariant &value) override;
    void regenRegionShape(QGraphicsItem *item) override;

    /// The host's number of the object type: type() less QGraphicsItem::UserType.
    int GetType() const;
    int kind() const;
    QGraphicsItem *GetGraphicsItemPtr();

private:
    friend class CPSRootObjectPrivate;
    int m_kind;
};

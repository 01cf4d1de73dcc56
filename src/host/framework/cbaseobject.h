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

    /// All that the object paints, with its handles; item coordinates.
    QRectF boundingRect() const override;
    /// Where the object can be hit, item coordinates.
    QPainterPath shape() const override;
    /// Whether shape() contains the point.
    bool contains(const QPointF &point) const override;
    /// Paints the content through OnQPainterDraw() and nothing else; handles belong to the view.
    void paint(QPainter *painter, const QStyleOptionGraphicsItem *option, QWidget *widget) override;
    /// QGraphicsItem::UserType and above.
    int type() const override;
    /// Starts what the handle or the body under the mouse offers.
    void mousePressEvent(QGraphicsSceneMouseEvent *event) override;
    /// Goes on with it.
    void mouseMoveEvent(QGraphicsSceneMouseEvent *event) override;
    /// Ends it with one undo step.
    void mouseReleaseEvent(QGraphicsSceneMouseEvent *event) override;
    /// Accepts the event, and does nothing.
    void mouseDoubleClickEvent(QGraphicsSceneMouseEvent *event) override;
    /// Ignores the event.
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
    /// Keeps the host informed of moves and of the selection.
    QVariant itemChange(GraphicsItemChange change, const QVariant &value) override;
    void regenRegionShape(QGraphicsItem *item) override;

    /// The host's number of the object type: type() less QGraphicsItem::UserType.
    int GetType() const;
    /// The number given to the constructor.
    int kind() const;
    /// The object as a graphics item.
    QGraphicsItem *GetGraphicsItemPtr();

private:
    friend class CPSRootObjectPrivate;
    int m_kind;
};

#pragma once

#include "accessible/pointsliders.h"
#include "accessible/readpage.h"
#include "page/keyhand.h"

#include <framework/cbaseobject.h>

#include <QtCore/QHash>
#include <QtCore/QPointer>

namespace board {

/// An object of the page for screen readers. Its children are the grips that keys change it by.
class ObjectAccess : public QAccessibleInterface, public QAccessibleActionInterface
{
public:
    ObjectAccess(CBaseObject *object, ReadPage *reader);
    ~ObjectAccess() override;

    bool isAlive() const { return m_object; }
    bool isOf(const CBaseObject *object) const { return m_object == object; }
    /// The interface of a grip; null where the object has none such now. The first one of a point with two.
    QAccessibleInterface *grip(KeyHand::Part part, int number);
    /// All interfaces of a point.
    QVector<QAccessibleInterface *> slidersOfPoint(int number);

    bool isValid() const override;
    QObject *object() const override { return nullptr; }
    QWindow *window() const override;
    QAccessibleInterface *childAt(int x, int y) const override;
    QAccessibleInterface *parent() const override;
    QAccessibleInterface *child(int index) const override;
    int childCount() const override;
    int indexOfChild(const QAccessibleInterface *child) const override;
    QString text(QAccessible::Text kind) const override;
    void setText(QAccessible::Text, const QString &) override {}
    QRect rect() const override;
    QAccessible::Role role() const override { return QAccessible::Graphic; }
    QAccessible::State state() const override;
    void *interface_cast(QAccessible::InterfaceType type) override;

    QStringList actionNames() const override;
    QString localizedActionName(const QString &name) const override;
    QString localizedActionDescription(const QString &name) const override;
    void doAction(const QString &name) override;
    QStringList keyBindingsForAction(const QString &name) const override;

private:
    struct Grip
    {
        KeyHand::Part part = KeyHand::Point;
        int number = 0;
        PointSlider::Way way = PointSlider::Meaning;
    };

    QVector<Grip> grips() const;
    QAccessibleInterface *interfaceOf(const Grip &grip) const;
    bool canWrite() const;

    QPointer<CBaseObject> m_object;
    QPointer<ReadPage> m_reader;
    mutable QHash<int, QAccessible::Id> m_ids; ///< of grips
};

} // namespace board

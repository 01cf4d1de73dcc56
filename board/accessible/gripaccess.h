#pragma once

#include "accessible/pointsliders.h"
#include "accessible/readpage.h"
#include "page/keyhand.h"

#include <framework/cbaseobject.h>

#include <QtCore/QPointer>

namespace board {

/// A grip of an object for screen readers, at a place that keys move.
class GripAccess : public QAccessibleInterface, public QAccessibleActionInterface
{
public:
    GripAccess(CBaseObject *object, ReadPage *reader, KeyHand::Part part, int number);

    bool isValid() const override;
    QObject *object() const override { return nullptr; }
    QWindow *window() const override;
    QAccessibleInterface *childAt(int, int) const override { return nullptr; }
    QAccessibleInterface *parent() const override;
    QAccessibleInterface *child(int) const override { return nullptr; }
    int childCount() const override { return 0; }
    int indexOfChild(const QAccessibleInterface *) const override { return -1; }
    void setText(QAccessible::Text, const QString &) override {}
    QRect rect() const override;
    QAccessible::State state() const override;
    void *interface_cast(QAccessible::InterfaceType type) override;

    /// "select": takes the grip, so that keys change it.
    QStringList actionNames() const override;
    QString localizedActionName(const QString &name) const override;
    void doAction(const QString &name) override;
    QStringList keyBindingsForAction(const QString &) const override { return {}; }

protected:
    CBaseObject *owner() const { return m_object; }
    ReadPage *reader() const { return m_reader; }
    KeyHand::Part part() const { return m_part; }
    int number() const { return m_number; }
    /// Scene coordinates.
    virtual QPointF place() const = 0;

private:
    QPointer<CBaseObject> m_object;
    QPointer<ReadPage> m_reader;
    KeyHand::Part m_part;
    int m_number;
};

/// The grip at the corner, which changes the size.
class SizeGripAccess : public GripAccess
{
public:
    SizeGripAccess(CBaseObject *object, ReadPage *reader);

    QString text(QAccessible::Text kind) const override;
    QAccessible::Role role() const override { return QAccessible::Grip; }

protected:
    QPointF place() const override;
};

/// A grip that stands for a number.
class SliderAccess : public GripAccess, public QAccessibleValueInterface
{
public:
    using GripAccess::GripAccess;

    QAccessible::Role role() const override { return QAccessible::Slider; }
    QString text(QAccessible::Text kind) const override;
    void *interface_cast(QAccessible::InterfaceType type) override;
    QVariant currentValue() const override;
    void setCurrentValue(const QVariant &value) override;
    QVariant maximumValue() const override;
    QVariant minimumValue() const override;
    QVariant minimumStepSize() const override;

protected:
    /// Number 0 where there is no such any more.
    virtual PointSlider slider() const = 0;
    virtual void set(double value) = 0;
};

/// The grip that turns the object: whole degrees, clockwise.
class TurnGripAccess : public SliderAccess
{
public:
    TurnGripAccess(CBaseObject *object, ReadPage *reader);

protected:
    QPointF place() const override;
    PointSlider slider() const override;
    void set(double value) override;
};

/// A control point, or one of the ways that it moves.
class PointAccess : public SliderAccess
{
public:
    PointAccess(CBaseObject *object, ReadPage *reader, int number, PointSlider::Way way);

    bool isValid() const override;

protected:
    QPointF place() const override;
    PointSlider slider() const override;
    void set(double value) override;

private:
    PointSlider::Way m_way;
};

} // namespace board

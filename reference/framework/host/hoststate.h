#pragma once

#include <QtCore/QPointF>
#include <QtCore/QRectF>
#include <QtCore/QString>

class CBaseObject;
class QDataStream;
class QJsonObject;

/// Saved data of every object, apart from its fill and that of its class. A stream has the fields in their order,
/// JSON has them by name.
struct HostState
{
    QString name;
    qint32 subType = 0;
    QPointF pos;
    double rotation = 0;
    bool mirrored = false;
    bool flipped = false;
    double stacking = 0;
    QRectF clientRect;
    quint32 penColor = 0;
    double penWidth = 1;
    qint32 penStyle = 1;
    bool visible = true;
    bool locked = false;

    static HostState of(CBaseObject &object);
    /// Whether an object can have this state. Damaged data may contain any numbers.
    bool isPlausible() const;

    void write(QJsonObject &object) const;
    /// Missing and mistyped members keep their present value. False for an invalid pen colour.
    bool read(const QJsonObject &object);
};

QDataStream &operator<<(QDataStream &out, const HostState &state);
QDataStream &operator>>(QDataStream &in, HostState &state);

/// The client size in an object's saved data; empty when the data doesn't begin with one.
QSizeF savedClientSize(QDataStream &in);
QSizeF savedClientSize(const QJsonObject &object);

#pragma once

#include <QtCore/QPointF>
#include <QtCore/QRectF>
#include <QtCore/QString>

class CBaseObject;
class QDataStream;
class QJsonObject;

/// Saved data of every object, besides its fill and its own. A stream holds the fields in their order, JSON the
/// same facts by name.
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
    /// Whether an object can be like that. Damaged data may hold any numbers.
    bool isPlausible() const;

    void write(QJsonObject &object) const;
    /// Missing and mistyped members keep what the state holds. False for a pen colour that is no colour.
    bool read(const QJsonObject &object);
};

QDataStream &operator<<(QDataStream &out, const HostState &state);
QDataStream &operator>>(QDataStream &in, HostState &state);

/// The client size that an object has saved; empty when the data do not begin with one.
QSizeF savedClientSize(QDataStream &in);
QSizeF savedClientSize(const QJsonObject &object);

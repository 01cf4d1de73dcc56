#pragma once

#include <framework/cbaseobject.h>

#include <files/objectrecord.h>

namespace pagehost {

/// Represents an object that could not be made and keeps its data from the file. Shown as a dashed box with the
/// kind's name, at the position in the data as far as that can be understood.
class PlaceholderObject : public CBaseObject
{
public:
    explicit PlaceholderObject(const ObjectRecord &record);

    /// The record that was read; with the position when the user has moved or locked the placeholder.
    ObjectRecord record() const;

    QString kindName() const override;
    bool canDo(OperationType operation) override;
    void OnQPainterDraw(QPainter *painter) override;
    /// Exactly the data that was read.
    bool save(QDataStream &out) override;
    bool saveJson(QJsonObject &object) override;

private:
    void takePlace();

    ObjectRecord m_record;
    ObjectRecord::Place m_placeInData;
};

} // namespace pagehost

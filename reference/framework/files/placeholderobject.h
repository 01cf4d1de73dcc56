#pragma once

#include <framework/cbaseobject.h>

#include <files/objectrecord.h>

namespace pagehost {

/// Stands on the page for an object that could not be made, and keeps what the file holds of it. Shown as a dashed
/// box with the kind's name, at the place that the data tell when they can be understood that far.
class PlaceholderObject : public CBaseObject
{
public:
    explicit PlaceholderObject(const ObjectRecord &record);

    /// The record that was read; with the place when the user has moved or locked the placeholder.
    ObjectRecord record() const;

    QString kindName() const override;
    bool canDo(OperationType operation) override;
    void OnQPainterDraw(QPainter *painter) override;
    /// The data as they were read, nothing else.
    bool save(QDataStream &out) override;
    bool saveJson(QJsonObject &object) override;

private:
    void takePlace();

    ObjectRecord m_record;
    ObjectRecord::Place m_placeInData;
};

} // namespace pagehost

#pragma once

#include <shapekit/property.h>
#include <shapekit/styledshape.h>

namespace shapekit {

/// A shape that has properties of its own besides pen and fill.
///
/// They are saved behind the data that every shape has: their number, then each as a byte array that holds its
/// value, so that a file with fewer or more of them can be read. In JSON each has a key of its own.
class PropertiedShape : public StyledShape
{
public:
    /// A property of this id is the scale that the library draws a shape of type 26 at.
    static constexpr int drawingScaleId = 26;

    using StyledShape::StyledShape;

    bool save(QDataStream &out) override;
    bool load(QDataStream &in) override;
    bool saveJson(QJsonObject &object) override;
    bool loadJson(QJsonObject &object) override;
    bool getInnerProperty(int propId, QDataStream &out) override;
    bool setInnerProperty(int propId, QDataStream &in, bool record, bool addUndo) override;
    void initSpecialPropItems() override;
    QString getPropName(int propId) override;
    bool GetSettingArray(QJsonArray &settings) override;
    bool SetSettingArray(QMap<QString, QString> &values, bool record, bool undo) override;

    /// For properties: takes one up and gives it its ids.
    void addProperty(Property *property, int &id, int &actionId);

protected:
    /// A property has a new value; without a property, several may have.
    virtual void propertyChanged(const Property *property) = 0;

private:
    Property *propertyWithId(int id) const;

    QVector<Property *> m_properties; ///< members of the derived class
};

} // namespace shapekit

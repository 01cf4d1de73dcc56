#pragma once

#include <shapekit/property.h>
#include <shapekit/shapekit_global.h>
#include <shapekit/styledshape.h>

namespace shapekit {

/// A shape that has properties of its own besides pen and fill.
///
/// They are saved after the data common to all shapes: their count, then the value of each as a byte array, so that
/// files with fewer or more of them can be read. In JSON each has a key of its own.
class SHAPEKIT_EXPORT PropertiedShape : public StyledShape
{
public:
    /// Id of the property that scales the drawing of a shape of type 26.
    static constexpr int drawingScaleId = 26;

    /// Without properties; those that follow as members register themselves.
    using StyledShape::StyledShape;

    /// As CSVGBase::save(), then the values.
    bool save(QDataStream &out) override;
    /// Reads what save() writes; values that are missing stay.
    bool load(QDataStream &in) override;
    /// As CSVGBase::saveJson(), then the values by Property::jsonKey().
    bool saveJson(QJsonObject &object) override;
    /// Reads what saveJson() writes; values that are missing stay.
    bool loadJson(QJsonObject &object) override;
    bool getInnerProperty(int propId, QDataStream &out) override;
    bool setInnerProperty(int propId, QDataStream &in, bool record, bool addUndo) override;
    void initSpecialPropItems() override;
    QString getPropName(int propId) override;
    int actionIdToPropId(int actionId) override;
    QVector<const Text *> texts() const override;
    bool GetSettingArray(QJsonArray &settings) override;
    bool SetSettingArray(QMap<QString, QString> &values, bool record, bool undo) override;

    /// Called by properties: registers one and assigns its ids.
    void addProperty(Property *property, int &id, int &actionId);

protected:
    /// Called when a property has a new value; null when several may have changed.
    virtual void propertyChanged(const Property *property) = 0;
    /// @name Values behind the data that every shape saves
    /// @{

    /// Writes their count and the bytes of each; without properties the further value alone, behind a mark, or
    /// nothing.
    virtual void saveValues(QDataStream &out);
    /// Reads what saveValues() writes.
    virtual void loadValues(QDataStream &in);
    /// Adds each under its key.
    virtual void saveValues(QJsonObject &object);
    /// Reads them by their keys.
    virtual void loadValues(const QJsonObject &object);
    /// @}
    /// A value behind those of the properties, such as one that a later version has added; empty for none, as in
    /// data without one.
    virtual QByteArray furtherValue() const { return {}; }
    /// Takes what furtherValue() has given when the data were saved.
    virtual void takeFurtherValue(const QByteArray &) {}
    /// Item units per drawn unit; 1 for a shape without a `DrawingScale`.
    double drawingScale() const;

private:
    Property *propertyWithId(int id) const;
    /// Those that aren't saved by the shape itself.
    QVector<Property *> savedProperties() const;

    QVector<Property *> m_properties; ///< not owned: members of the derived class
};

} // namespace shapekit

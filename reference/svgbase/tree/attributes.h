#pragma once

#include "tree/attributenames.h"
#include "tree/attributevalue.h"

#include <QtCore/QString>
#include <QtCore/QVector>

namespace Svg {

/// Names that the library interprets, see attributenames.h.
enum class AttributeId : quint8 {
    Unknown,
#define SVG_ID(id, name) id,
    SVG_STYLE_PROPERTIES(SVG_ID) SVG_EFFECT_PROPERTIES(SVG_ID) SVG_TEXT_PROPERTIES(SVG_ID)
    /// A custom property declared by style, with the value "--name:value"; not an attribute of a text.
    CustomProperty,
    SVG_ELEMENT_ATTRIBUTES(SVG_ID)
#undef SVG_ID
};

constexpr AttributeId firstProperty = AttributeId::Color;
constexpr AttributeId lastProperty = AttributeId::WritingMode;

inline bool isProperty(AttributeId id)
{
    return id >= firstProperty && id <= lastProperty;
}

inline bool isTextProperty(AttributeId id)
{
    return id >= AttributeId::AlignmentBaseline && id <= AttributeId::WritingMode;
}

AttributeId attributeId(QStringView name);
/// The name of an attribute; empty for `Unknown` and for ids that are not attributes of a text.
QLatin1String attributeName(AttributeId id);

/// An attribute as set by the template or a later write.
struct Attribute
{
    AttributeId id = AttributeId::Unknown;
    /// Only for names that are not interpreted; others are given by the id.
    QString name;
    AttributeValue value;

    bool operator==(const Attribute &other) const
    {
        return id == other.id && name == other.name && value == other.value;
    }
};

/// The attributes of one element, shared between copies until one of them changes.
class Attributes
{
public:
    /// The text of an attribute; empty if there is none of that name.
    QString value(AttributeId id) const;
    QString value(const QString &name) const;
    /// An attribute as it is held; a null value if there is none of that name.
    const AttributeValue &held(AttributeId id) const;
    const AttributeValue &held(const QString &name) const;
    bool contains(AttributeId id) const { return find(id) != nullptr; }
    bool contains(const QString &name) const { return find(attributeId(name), name) != nullptr; }
    /// A null value removes the attribute.
    void set(const QString &name, const AttributeValue &value);
    void set(AttributeId id, const AttributeValue &value);
    /// Appends without searching for an attribute of that name.
    void append(const Attribute &attribute) { m_list.append(attribute); }
    void reserve(int count) { m_list.reserve(count); }
    int count() const { return m_list.size(); }

    QVector<Attribute>::const_iterator begin() const { return m_list.constBegin(); }
    QVector<Attribute>::const_iterator end() const { return m_list.constEnd(); }

private:
    void change(const Attribute *known, const Attribute &wanted);
    const Attribute *find(AttributeId id) const;
    const Attribute *find(AttributeId id, const QString &name) const;

    QVector<Attribute> m_list;
};

} // namespace Svg

Q_DECLARE_TYPEINFO(Svg::Attribute, Q_MOVABLE_TYPE);

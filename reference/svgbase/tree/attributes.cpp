#include "tree/attributes.h"

namespace Svg {

namespace {

struct AttributeName
{
    QLatin1String name;
    AttributeId id;
};

/// In the order of their ids, behind `Unknown`.
const AttributeName attributeNames[] = {
#define SVG_NAME(id, name) {QLatin1String(name), AttributeId::id},
    SVG_STYLE_PROPERTIES(SVG_NAME) SVG_EFFECT_PROPERTIES(SVG_NAME)
        SVG_TEXT_PROPERTIES(SVG_NAME){QLatin1String(), AttributeId::CustomProperty},
    SVG_ELEMENT_ATTRIBUTES(SVG_NAME)
#undef SVG_NAME
};

/// The names by a hash of their length and their ends; a few collide and are chained.
class NameTable
{
public:
    NameTable()
    {
        for (const AttributeName &known : attributeNames) {
            if (known.name.isEmpty())
                continue;
            size_t place = placeOf(known.name);
            while (m_places[place])
                place = (place + 1) % placeCount;
            m_places[place] = &known;
        }
    }

    AttributeId find(QStringView name) const
    {
        if (name.isEmpty())
            return AttributeId::Unknown;
        for (size_t place = placeOf(name); m_places[place]; place = (place + 1) % placeCount) {
            const QLatin1String known = m_places[place]->name;
            if (known.size() == name.size() && name == known)
                return m_places[place]->id;
        }
        return AttributeId::Unknown;
    }

private:
    static constexpr size_t placeCount = 256;

    template<typename Text> static size_t placeOf(const Text &text)
    {
        const auto code = [](auto c) { return size_t(QChar(c).unicode()); };
        return (size_t(text.size()) * 31 + code(text.front()) * 7 + code(text.back()) * 13) % placeCount;
    }

    const AttributeName *m_places[placeCount] = {};
};

const AttributeValue &noValue()
{
    static const AttributeValue none;
    return none;
}

} // namespace

AttributeId attributeId(QStringView name)
{
    static const NameTable table;
    return table.find(name);
}

QLatin1String attributeName(AttributeId id)
{
    if (id == AttributeId::Unknown)
        return QLatin1String();
    return attributeNames[int(id) - 1].name;
}

const Attribute *Attributes::find(AttributeId id) const
{
    for (const Attribute &attribute : m_list)
        if (attribute.id == id)
            return &attribute;
    return nullptr;
}

const Attribute *Attributes::find(AttributeId id, const QString &name) const
{
    if (id != AttributeId::Unknown)
        return find(id);
    for (const Attribute &attribute : m_list)
        if (attribute.id == AttributeId::Unknown && attribute.name == name)
            return &attribute;
    return nullptr;
}

QString Attributes::value(AttributeId id) const
{
    return held(id).text();
}

QString Attributes::value(const QString &name) const
{
    return held(name).text();
}

const AttributeValue &Attributes::held(AttributeId id) const
{
    const Attribute *attribute = find(id);
    return attribute ? attribute->value : noValue();
}

const AttributeValue &Attributes::held(const QString &name) const
{
    const Attribute *attribute = find(attributeId(name), name);
    return attribute ? attribute->value : noValue();
}

void Attributes::change(const Attribute *known, const Attribute &wanted)
{
    const int place = known ? int(known - m_list.constData()) : -1;
    if (known && wanted.value.isNull())
        m_list.remove(place);
    else if (known)
        m_list[place].value = wanted.value;
    else if (!wanted.value.isNull())
        m_list.append(wanted);
}

void Attributes::set(const QString &name, const AttributeValue &value)
{
    const AttributeId id = attributeId(name);
    change(find(id, name), {id, id == AttributeId::Unknown ? name : QString(), value});
}

void Attributes::set(AttributeId id, const AttributeValue &value)
{
    change(find(id), {id, QString(), value});
}

} // namespace Svg

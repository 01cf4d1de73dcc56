// Properties: values that the user sets.

#include <declared/reader/filelimits.h>
#include <declared/reader/filereader.h>
#include <declared/reader/vocabulary.h>

#include <shapekit/text.h>

#include <QtCore/QCryptographicHash>

#include <algorithm>
#include <cmath>

namespace declared {

namespace {

const QStringList panels{QStringLiteral("both"), QStringLiteral("properties"), QStringLiteral("settings"),
                         QStringLiteral("none")};
/// Behind "SVG_" keys of saved shapes, behind "id" controls of the panel.
const QStringList takenNames{QStringLiteral("SVGType"),
                             QStringLiteral("ControlCount"),
                             QStringLiteral("Declared"),
                             QStringLiteral("PenColor"),
                             QStringLiteral("PenStyle"),
                             QStringLiteral("PenWidth"),
                             QStringLiteral("PropPenEnabled"),
                             QStringLiteral("PropPenStyleEnabled"),
                             QStringLiteral("PropPenWidthEnabled"),
                             QStringLiteral("PropFillEnabled"),
                             QStringLiteral("FillColor"),
                             QStringLiteral("LineStyle"),
                             QStringLiteral("OutlineColor")};
constexpr double largestNumber = 1e6;
/// Ids of declared properties begin there, above those of all others.
constexpr int firstPropertyId = 1 << 20;

bool isNumber(PropertyDeclaration::Kind kind)
{
    return kind == PropertyDeclaration::Whole || kind == PropertyDeclaration::Real;
}

bool isList(PropertyDeclaration::Kind kind)
{
    return kind == PropertyDeclaration::Numbers || kind == PropertyDeclaration::Points;
}

Type typeOf(PropertyDeclaration::Kind kind)
{
    switch (kind) {
    case PropertyDeclaration::Choice:
    case PropertyDeclaration::Colour:
    case PropertyDeclaration::Text:
        return Type::Text;
    case PropertyDeclaration::Points:
        return Type::Point;
    default:
        return Type::Number;
    }
}

} // namespace

int FileReader::propertyId(const QString &kind, const QString &name)
{
    const QByteArray text = kind.toUtf8() + ':' + name.toUtf8();
    const QByteArray hash = QCryptographicHash::hash(text, QCryptographicHash::Sha1);
    return firstPropertyId + (uchar(hash.at(0)) << 12 | uchar(hash.at(1)) << 4 | uchar(hash.at(2)) >> 4);
}

void FileReader::readProperties()
{
    int count = 0;
    for (int i = 0; i < m_elements.size(); ++i) {
        const Element &element = m_elements.at(i);
        if (isShape(element, "entry") &&
            (element.parent < 0 || !isShape(m_elements.at(element.parent), "property")))
            error("C16", element, QStringLiteral("an entry stands inside of a property"));
        if (!isShape(element, "property"))
            continue;
        if (++count > limits::properties) {
            error("C17", element, QStringLiteral("a file has at most 64 properties"));
            return;
        }
        readProperty(element);
    }
    for (const Element &element : m_elements)
        if (isShape(element, "property"))
            checkFormer(element);
}

void FileReader::readProperty(const Element &element)
{
    checkNames(element);
    const Attribute *name = element.attribute(QStringLiteral("name"));
    const Attribute *type = element.attribute(QStringLiteral("type"));
    if (!name || !type) {
        name ? error("C13", element, QStringLiteral("a property needs a type"))
             : error("C12", element, QStringLiteral("a property needs a name"));
        return;
    }
    PropertyDeclaration property;
    int kind = 0;
    if (!readChoice(type, propertyTypes(), kind, "C13"))
        return;
    property.name = name->value;
    property.kind = PropertyDeclaration::Kind(kind);
    property.id = propertyId(type->value, name->value);
    property.title = texts(element, "title");
    if (!property.title.contains(QStringLiteral("en")))
        property.title.insert(QStringLiteral("en"), name->value);
    checkTitle(element, property);
    const bool listed = isList(property.kind);
    property.slot = listed ? m_shape.listCount++ : newSlot();
    if (!define(name->value, *name,
                {listed ? Symbol::List : Symbol::Variable, typeOf(property.kind), property.slot, 0}))
        return;
    for (const PropertyDeclaration &other : qAsConst(m_shape.properties)) {
        if (other.id == property.id)
            error("C14", *name,
                  QStringLiteral("\"%1\" gets the id of \"%2\": rename one").arg(name->value, other.name));
    }
    readBounds(element, property);
    readValue(element, property);
    int panel = 0;
    if (readChoice(element.attribute(QStringLiteral("panel")), panels, panel, "C15")) {
        property.inPropertyPanel = panel <= 1;
        property.inSettings = panel == 0 || panel == 2;
    }
    readFormer(element, property);
    m_shape.properties.append(property);
}

/// Properties of a successor are known by their titles; others have their names, apart from all keys.
void FileReader::checkTitle(const Element &element, const PropertyDeclaration &property)
{
    if (!m_shape.isSuccessor())
        return;
    const auto keyOf = [](const PropertyDeclaration &one) {
        return shapekit::Text::joinedWords(one.title.value(QStringLiteral("en")));
    };
    const QString key = keyOf(property);
    const bool isTaken = takenNames.contains(key) ||
                         std::any_of(m_shape.properties.cbegin(), m_shape.properties.cend(),
                                     [&](const PropertyDeclaration &other) { return keyOf(other) == key; });
    const Attribute *title = element.attribute(QStringLiteral("title"));
    if (isTaken)
        error("C12", title ? *title : *element.attribute(QStringLiteral("name")),
              QStringLiteral("the key \"SVG_%1\" that is made of this title is taken").arg(key));
}

/// Former names with their types: "corners:real tips:whole".
void FileReader::readFormer(const Element &element, PropertyDeclaration &property)
{
    const Attribute *was = element.attribute(QStringLiteral("was"));
    if (!was)
        return;
    if (m_shape.isSuccessor()) {
        error("C51", *was, QStringLiteral("properties of a shape with a layout go by their order"));
        return;
    }
    const QStringList entries = was->value.simplified().split(QLatin1Char(' '), Qt::SkipEmptyParts);
    for (const QString &entry : entries) {
        const QString name = entry.section(QLatin1Char(':'), 0, 0);
        const int kind = propertyTypes().indexOf(entry.section(QLatin1Char(':'), 1));
        if (!isName(name) || kind < 0) {
            error("C47", *was, QStringLiteral("\"%1\" is no \"name:type\" of a property").arg(entry));
            return;
        }
        const auto former = PropertyDeclaration::Kind(kind);
        if (former != property.kind && !(isNumber(former) && isNumber(property.kind))) {
            error("C47", *was, QStringLiteral("a value of \"%1\" can't become one of this property").arg(entry));
            return;
        }
        property.former.append({name, former, propertyId(propertyTypes().at(kind), name)});
    }
}

/// A former name must not be that of another property, present or former.
void FileReader::checkFormer(const Element &element)
{
    const Attribute *was = element.attribute(QStringLiteral("was"));
    const QString name = element.value("name");
    const auto property = std::find_if(m_shape.properties.begin(), m_shape.properties.end(),
                                       [&](const PropertyDeclaration &one) { return one.name == name; });
    if (!was || property == m_shape.properties.end())
        return;
    for (const FormerProperty &former : qAsConst(property->former)) {
        int uses = 0;
        for (const PropertyDeclaration &other : qAsConst(m_shape.properties)) {
            uses += other.id == former.id || (&other != &*property && other.name == former.name) ? 1 : 0;
            for (const FormerProperty &one : other.former)
                uses += one.id == former.id ? 1 : 0;
        }
        if (uses > 1)
            error("C47", *was, QStringLiteral("\"%1\" is the name of another property").arg(former.name));
    }
}

void FileReader::readBounds(const Element &element, PropertyDeclaration &property)
{
    const bool needsBounds = isNumber(property.kind);
    const bool isBounded = needsBounds || isList(property.kind);
    property.from = isBounded ? -largestNumber : 0;
    property.to = isBounded ? largestNumber : 1;
    const Attribute *from = element.attribute(QStringLiteral("from"));
    const Attribute *to = element.attribute(QStringLiteral("to"));
    if (needsBounds && (!from || !to)) {
        error("C15", element, QStringLiteral("a number needs its bounds: \"from\" and \"to\""));
        return;
    }
    if (!isBounded && (from || to)) {
        error("C15", from ? *from : *to, QStringLiteral("only numbers have bounds"));
        return;
    }
    if ((from && !readNumber(*from, property.from, "C15")) || (to && !readNumber(*to, property.to, "C15")))
        return;
    const double widest = property.kind == PropertyDeclaration::Whole ? 1e9 : largestNumber;
    if (property.from >= property.to || property.from < -widest || property.to > widest)
        error("C15", from ? *from : element.attributes.first(),
              QStringLiteral("\"from\" is less than \"to\", both within a million"));
    const Attribute *step = element.attribute(QStringLiteral("step"));
    if (step && readNumber(*step, property.step, "C15") && property.step <= 0)
        error("C15", *step, QStringLiteral("a step is above 0"));
    else if (!step && property.kind == PropertyDeclaration::Real)
        property.step = (property.to - property.from) / 100;
}

void FileReader::readValue(const Element &element, PropertyDeclaration &property)
{
    const Attribute *value = element.attribute(QStringLiteral("value"));
    if (!value) {
        error("C15", element, QStringLiteral("a property needs the value that new shapes have"));
        return;
    }
    const QString text = value->value;
    int on = 0;
    switch (property.kind) {
    case PropertyDeclaration::Whole:
    case PropertyDeclaration::Real:
        if (!readNumber(*value, property.number, "C15"))
            return;
        if (property.number < property.from || property.number > property.to)
            error("C15", *value, QStringLiteral("the value is out of its bounds"));
        else if (property.kind == PropertyDeclaration::Whole && property.number != std::floor(property.number))
            error("C15", *value, QStringLiteral("\"%1\" is no whole number").arg(text));
        return;
    case PropertyDeclaration::Switch:
        if (readChoice(value, {QStringLiteral("no"), QStringLiteral("yes")}, on, "C15"))
            property.number = on;
        return;
    case PropertyDeclaration::Choice:
        readEntries(element, property, *value);
        return;
    case PropertyDeclaration::Colour:
        property.colour = QColor(text);
        if (text.size() != 7 || !text.startsWith(QLatin1Char('#')) || !property.colour.isValid())
            error("C15", *value, QStringLiteral("a colour is \"#rrggbb\""));
        return;
    case PropertyDeclaration::Text:
        property.text = text;
        if (text.size() > limits::textCharacters)
            error("C15", *value, QStringLiteral("a text has at most 10000 characters"));
        return;
    case PropertyDeclaration::Numbers:
    case PropertyDeclaration::Points:
        readList(element, *value, property);
        return;
    }
}

void FileReader::readList(const Element &element, const Attribute &value, PropertyDeclaration &property)
{
    const int parts = property.kind == PropertyDeclaration::Points ? 2 : 1;
    bool isRead = false;
    property.numbers = numbers(value.value, isRead);
    property.count = property.numbers.size() / parts;
    double count = property.count;
    const Attribute *counted = element.attribute(QStringLiteral("count"));
    if (counted && !readNumber(*counted, count, "C15"))
        return;
    if (!isRead || property.numbers.size() != count * parts || count < 1 || count > limits::entriesOfList) {
        error("C15", value, QStringLiteral("a list has 1 to 200 entries, as many as \"count\" says"));
        return;
    }
    for (const double number : qAsConst(property.numbers)) {
        if (number < property.from || number > property.to) {
            error("C15", value, QStringLiteral("the value is out of its bounds"));
            return;
        }
    }
}

void FileReader::readEntries(const Element &element, PropertyDeclaration &property, const Attribute &value)
{
    for (const SourceContent &content : element.contents) {
        if (content.element < 0 || !isShape(m_elements.at(content.element), "entry"))
            continue;
        const Element &entry = m_elements.at(content.element);
        checkNames(entry);
        const Attribute *name = entry.attribute(QStringLiteral("name"));
        if (!name || name->value.isEmpty() || property.entries.contains(name->value)) {
            error("C16", entry, QStringLiteral("an entry needs a name of its own"));
            continue;
        }
        Texts title = texts(entry, "title");
        if (!title.contains(QStringLiteral("en")))
            title.insert(QStringLiteral("en"), name->value);
        property.entries.append(name->value);
        property.entryTitles.append(title);
    }
    if (property.entries.size() > limits::entriesOfChoice)
        error("C17", element, QStringLiteral("a choice has at most 64 entries"));
    int index = 0;
    if (readChoice(&value, property.entries, index, "C16"))
        property.number = index;
}

} // namespace declared

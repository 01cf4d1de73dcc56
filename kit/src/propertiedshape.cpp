#include <shapekit/propertiedshape.h>

#include <svgobj/csvgbaseundocmd.h>
#include <svgobj/csvgobj.h>

#include <QtCore/QDataStream>
#include <QtCore/QIODevice>

#include <algorithm>
#include <iterator>

namespace shapekit {

namespace {

constexpr int firstPropertyId = 5101;
constexpr int firstActionId = 1101;
/// No shape has more; a larger count in a stream means damage.
constexpr qint32 mostProperties = 64;
/// In front of the further value of a shape without properties, whose data had ended there before: what follows in
/// the stream may be the host's.
constexpr int markSize = 8;
constexpr char furtherMark[markSize + 1] = "\x89SVGmore";

QByteArray markedValue(QDataStream &in)
{
    QByteArray value;
    if (!in.device() || in.device()->peek(markSize) != furtherMark)
        return value;
    in.skipRawData(markSize);
    in >> value;
    return value;
}

/// Returns the value behind those of the properties.
QByteArray loadInOrder(const QVector<Property *> &properties, QDataStream &in)
{
    qint32 count = 0;
    in >> count;
    QByteArray further;
    for (int i = 0; i < qMin(count, mostProperties) && in.status() == QDataStream::Ok; ++i) {
        QByteArray bytes;
        in >> bytes;
        if (i < properties.size())
            properties.at(i)->setBytes(bytes);
        else if (i == properties.size())
            further = bytes;
    }
    return further;
}

} // namespace

bool PropertiedShape::save(QDataStream &out)
{
    StyledShape::save(out);
    saveValues(out);
    return true;
}

void PropertiedShape::saveValues(QDataStream &out)
{
    const QVector<Property *> properties = savedProperties();
    const QByteArray further = furtherValue();
    if (properties.isEmpty() && !further.isEmpty())
        out.writeRawData(furtherMark, markSize);
    if (!properties.isEmpty())
        out << qint32(properties.size() + (further.isEmpty() ? 0 : 1));
    for (const Property *property : properties)
        out << property->bytes();
    if (!further.isEmpty())
        out << further;
}

bool PropertiedShape::load(QDataStream &in)
{
    StyledShape::load(in);
    loadValues(in);
    return true;
}

void PropertiedShape::loadValues(QDataStream &in)
{
    if (m_properties.isEmpty())
        return;
    const QVector<Property *> properties = savedProperties();
    // A shape may have had no properties in earlier versions.
    if (properties.isEmpty())
        takeFurtherValue(markedValue(in));
    else
        takeFurtherValue(in.atEnd() ? QByteArray() : loadInOrder(properties, in));
    propertyChanged(nullptr);
}

bool PropertiedShape::saveJson(QJsonObject &object)
{
    StyledShape::saveJson(object);
    saveValues(object);
    return true;
}

void PropertiedShape::saveValues(QJsonObject &object)
{
    const QVector<Property *> properties = savedProperties();
    for (const Property *property : properties)
        object[property->jsonKey()] = property->toJson();
}

bool PropertiedShape::loadJson(QJsonObject &object)
{
    StyledShape::loadJson(object);
    loadValues(object);
    return true;
}

void PropertiedShape::loadValues(const QJsonObject &object)
{
    const QVector<Property *> properties = savedProperties();
    for (Property *property : properties)
        property->fromJson(object.value(property->jsonKey()));
    if (!m_properties.isEmpty())
        propertyChanged(nullptr);
}

bool PropertiedShape::getInnerProperty(int propId, QDataStream &out)
{
    const Property *property = propertyWithId(propId);
    if (!property)
        return StyledShape::getInnerProperty(propId, out);
    property->write(out);
    return true;
}

bool PropertiedShape::setInnerProperty(int propId, QDataStream &in, bool record, bool addUndo)
{
    Property *property = propertyWithId(propId);
    if (!property)
        return StyledShape::setInnerProperty(propId, in, record, addUndo);
    const QByteArray before = property->bytes();
    property->read(in);
    const QByteArray after = property->bytes();
    if (addUndo) {
        auto *command = new CSVGBaseUndoCmd(this, property->actionId(), nullptr, true);
        command->setDataBuffer(before, after);
        addUndoRedo(command);
    }
    if (record)
        RecordDataBuffer(after, property->actionId());
    propertyChanged(property);
    return true;
}

void PropertiedShape::initSpecialPropItems()
{
    for (const Property *property : qAsConst(m_properties)) {
        if (!property->isInPropertyPanel())
            continue;
        QByteArray editor = property->editor();
        propItems.append(new CSVGPropItem(property->id(), property->nameKey(), property->actionId(),
                                          property->dataType(), &editor, true));
    }
}

QString PropertiedShape::getPropName(int propId)
{
    const Property *property = propertyWithId(propId);
    return property ? property->nameKey() : StyledShape::getPropName(propId);
}

int PropertiedShape::actionIdToPropId(int actionId)
{
    // Undo and playback also change what no panel offers.
    const auto isIt = [actionId](const Property *property) { return property->actionId() == actionId; };
    const auto found = std::find_if(m_properties.cbegin(), m_properties.cend(), isIt);
    return found == m_properties.cend() ? StyledShape::actionIdToPropId(actionId) : (*found)->id();
}

QVector<const Text *> PropertiedShape::texts() const
{
    QVector<const Text *> texts;
    for (const Property *property : m_properties)
        texts += property->texts();
    return texts;
}

bool PropertiedShape::GetSettingArray(QJsonArray &settings)
{
    for (const Property *property : qAsConst(m_properties)) {
        const QJsonObject control = property->isInSettings() ? property->control(*owner) : QJsonObject();
        if (!control.isEmpty())
            settings.append(control);
    }
    return true;
}

bool PropertiedShape::SetSettingArray(QMap<QString, QString> &values, bool record, bool undo)
{
    for (Property *property : qAsConst(m_properties)) {
        if (!values.contains(property->controlId()))
            continue;
        const QByteArray before = property->bytes();
        property->takeAnswer(values.value(property->controlId()));
        const QByteArray wanted = property->bytes();
        property->setBytes(before);
        QDataStream stream(wanted);
        SetAttribute(property->id(), stream, record, undo);
    }
    return true;
}

void PropertiedShape::addProperty(Property *property, int &id, int &actionId)
{
    if (id == 0)
        id = firstPropertyId + m_properties.size();
    actionId = firstActionId + m_properties.size();
    m_properties.append(property);
}

double PropertiedShape::drawingScale() const
{
    const auto *scale = dynamic_cast<const DrawingScale *>(propertyWithId(drawingScaleId));
    return scale ? double(*scale) : 1;
}

QVector<Property *> PropertiedShape::savedProperties() const
{
    QVector<Property *> saved;
    std::copy_if(m_properties.cbegin(), m_properties.cend(), std::back_inserter(saved),
                 [](const Property *property) { return !property->isSavedByShape(); });
    return saved;
}

Property *PropertiedShape::propertyWithId(int id) const
{
    for (Property *property : m_properties)
        if (property->id() == id)
            return property;
    return nullptr;
}

} // namespace shapekit

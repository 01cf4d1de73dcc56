// The bubble's own property: the item shown by panels, its value for panels, undo and playback, and its place in
// both saved formats.

#include "thinkingbubble.h"

#include <svgobj/csvgbaseundocmd.h>
#include <svgobj/csvgpropitem.h>

#include <QtCore/QDataStream>
#include <QtCore/QJsonObject>

namespace {

constexpr int thoughtId = 5101;
constexpr int thoughtAction = 1101;
const QString thoughtNameKey = QStringLiteral("IDS_EXAMPLE_THOUGHT");
const QString thoughtJsonKey = QStringLiteral("SVG_Thought");

} // namespace

void ThinkingBubble::initSpecialPropItems()
{
    propItems.append(new CSVGPropItem(thoughtId, thoughtNameKey, thoughtAction, DATA_TYPE_0, nullptr, true));
}

bool ThinkingBubble::getInnerProperty(int propId, QDataStream &out)
{
    if (propId != thoughtId)
        return CSVGBase::getInnerProperty(propId, out);
    out << m_isThought;
    return true;
}

bool ThinkingBubble::setInnerProperty(int propId, QDataStream &in, bool record, bool addUndo)
{
    if (propId != thoughtId)
        return CSVGBase::setInnerProperty(propId, in, record, addUndo);
    bool on = m_isThought;
    in >> on;
    if (in.status() != QDataStream::Ok)
        return false;
    if (addUndo) {
        auto *command = new CSVGBaseUndoCmd(this, thoughtAction, nullptr, true);
        command->setBool(m_isThought, on);
        addUndoRedo(command);
    }
    if (record)
        RecordBool(on, thoughtAction);
    setThought(on);
    return true;
}

void ThinkingBubble::setThought(bool on)
{
    m_isThought = on;
    updateAllControlPoints(true, true);
}

bool ThinkingBubble::save(QDataStream &out)
{
    CSVGBase::save(out);
    out << m_isThought;
    return true;
}

bool ThinkingBubble::load(QDataStream &in)
{
    CSVGBase::load(in);
    bool on = false;
    in >> on;
    setThought(on);
    return true;
}

bool ThinkingBubble::saveJson(QJsonObject &object)
{
    CSVGBase::saveJson(object);
    object[thoughtJsonKey] = m_isThought;
    return true;
}

bool ThinkingBubble::loadJson(QJsonObject &object)
{
    CSVGBase::loadJson(object);
    setThought(object.value(thoughtJsonKey).toBool());
    return true;
}

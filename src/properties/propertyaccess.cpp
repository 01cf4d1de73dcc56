// Properties by id, through streams.

#include <svgobj/csvgbase.h>
#include <svgobj/csvgbaseundocmd.h>

#include "properties/attributedescription.h"
#include "properties/penstyle.h"
#include "properties/valuecodec.h"

namespace {

/// A stream that holds just one value, for setInnerProperty().
class ValueStream
{
public:
    template<typename Value>
    explicit ValueStream(const Value &value)
        : m_bytes(encodeValues(value))
        , m_stream(m_bytes)
    {
    }
    QDataStream &stream() { return m_stream; }

private:
    QByteArray m_bytes;
    QDataStream m_stream;
};

void writeRaw(QDataStream &out, const QByteArray &bytes)
{
    out.writeRawData(bytes.constData(), bytes.size());
}

/// @name The list of pen widths, which begins with 1
/// Limits of the integer type, which no panel sends, wrap around.
/// @{
qint32 listIndexOf(int width)
{
    return qint32(quint32(width) - 1u);
}

qint32 widthAt(qint32 index)
{
    return qint32(quint32(index) + 1u);
}
/// @}

CSVGBaseUndoCmd *appliedCommand(CSVGBase *shape, ActionId actionId)
{
    return new CSVGBaseUndoCmd(shape, actionId, nullptr, true);
}

} // namespace

bool CSVGBase::getInnerProperty(int propId, QDataStream &out)
{
    if (!document)
        return false;
    switch (propId) {
    case PROP_SVG_PENCOLOR:
        out << getPenColor();
        return true;
    case PROP_SVG_PENSTYLE:
        out << qint32(getPenStyle());
        return true;
    case PROP_SVG_PENWIDTH:
        out << listIndexOf(getPenWidth());
        return true;
    case PROP_SVG_FILLCOLOR:
        out << getFillBrush();
        return true;
    default:
        return false;
    }
}

// Each command stores the old value and is pushed before the new one is applied.
bool CSVGBase::setInnerProperty(int propId, QDataStream &in, bool record, bool addUndo)
{
    if (!document)
        return false;
    switch (propId) {
    case PROP_SVG_PENCOLOR: {
        const QColor color = decodeValue<QColor>(in);
        if (addUndo) {
            CSVGBaseUndoCmd *command = appliedCommand(this, ACT_SVG_PENCOLOR);
            command->setColor(getPenColor(), color);
            addUndoRedo(command);
        }
        setPenColor(color, record);
        return true;
    }
    case PROP_SVG_PENSTYLE: {
        const qint32 style = decodeValue<qint32>(in);
        if (addUndo) {
            CSVGBaseUndoCmd *command = appliedCommand(this, ACT_SVG_PENSTYLE);
            command->setInt(getPenStyle(), style);
            addUndoRedo(command);
        }
        setPenStyle(penStyleFromInt(style), record);
        return true;
    }
    case PROP_SVG_PENWIDTH: {
        qint32 width = decodeValue<qint32>(in);
        // Deliberate: a panel, which records, sends the index in the list of widths; replay and undo send the
        // width.
        if (record)
            width = widthAt(width);
        if (addUndo) {
            CSVGBaseUndoCmd *command = appliedCommand(this, ACT_SVG_PENWIDTH);
            command->setInt(getPenWidth(), width);
            addUndoRedo(command);
        }
        setPenWidth(width, record);
        return true;
    }
    case PROP_SVG_FILLCOLOR: {
        const QBrush brush = decodeValue<QBrush>(in);
        if (addUndo) {
            CSVGBaseUndoCmd *command = appliedCommand(this, ACT_SVG_FILLCOLOR);
            command->setBrush(getFillBrush(), brush);
            addUndoRedo(command);
        }
        setFillBrush(brush, record, true);
        return true;
    }
    default:
        return false;
    }
}

bool CSVGBase::GetAttribute(int propId, QDataStream &out)
{
    using namespace AttributeDescription;
    CSVGPropItem *item = document ? findPropItemByPropID(propId) : nullptr;
    if (!item)
        return false;
    out << qint32(propId);
    if (const int code = editorCode(*item))
        out << qint32(code);
    out << item->propName << true;
    switch (layout(*item)) {
    case Layout::ValueOnly:
        getInnerProperty(propId, out);
        break;
    case Layout::RangeThenValue:
        writeRaw(out, item->extraData);
        getInnerProperty(propId, out);
        break;
    case Layout::ListAroundValue:
        writeRaw(out, item->extraData.left(listCountBytes));
        getInnerProperty(propId, out);
        writeRaw(out, item->extraData.mid(listCountBytes));
        break;
    case Layout::Nothing:
        break;
    }
    return true;
}

bool CSVGBase::SetAttribute(int propId, QDataStream &in, bool record, bool addUndo)
{
    if (!document)
        return false;
    const bool applied = setInnerProperty(propId, in, record, addUndo);
    if (applied)
        invalidate();
    if (propId == ACT_SVG_STYLE_SNAPSHOT) {
        if (propPenStyleEnabled)
            savedPenStyleIndex = getPenStyle() - 1;
        if (propPenEnabled)
            savedPenColor = getPenColor();
        if (propFillEnabled)
            savedFillBrush = getFillBrush();
    }
    if (propId == ACT_SVG_STYLE_RESTORE) {
        if (propPenStyleEnabled)
            setInnerProperty(PROP_SVG_PENSTYLE, ValueStream(qint32(savedPenStyleIndex + 1)).stream(), record,
                             false);
        if (propPenEnabled)
            setInnerProperty(PROP_SVG_PENCOLOR, ValueStream(savedPenColor).stream(), record, false);
        if (propFillEnabled)
            setInnerProperty(PROP_SVG_FILLCOLOR, ValueStream(savedFillBrush).stream(), record, false);
    }
    return applied;
}

bool CSVGBase::GetSpecialProperty(int propId, QDataStream &out)
{
    return getInnerProperty(propId, out);
}

bool CSVGBase::SetSpecialProperty(int propId, QDataStream &in, bool record)
{
    return setInnerProperty(propId, in, record, true);
}

#include <svgobj/csvgbase.h>
#include <svgobj/csvgbaseundocmd.h>

#include <svgbase/qzesvgnode.h>

#include "properties/valuecodec.h"
#include "shape/shapetype.h"

CSVGBaseUndoCmd::CSVGBaseUndoCmd(CSVGBase *shape, int actionId, QUndoCommand *parent, bool alreadyApplied)
    : CWbUndoCmd(parent)
    , m_shape(shape)
    , m_actionId(actionId)
    , m_redoEnabled(!alreadyApplied)
{
    setText(QStringLiteral("IDS_SVG_attribute_adjust"));
}

CSVGBaseUndoCmd::~CSVGBaseUndoCmd() = default;

void CSVGBaseUndoCmd::undo()
{
    if (m_actionId == ACT_SVG_CONTROLPOINT)
        replayControlPoint(m_oldPos);
    else
        replayData(m_oldData);
}

void CSVGBaseUndoCmd::redo()
{
    if (!m_redoEnabled)
        return;
    if (m_actionId == ACT_SVG_CONTROLPOINT)
        replayControlPoint(m_newPos);
    else
        replayData(m_newData);
}

void CSVGBaseUndoCmd::replayControlPoint(QPointF pos)
{
    if (!m_controlPoint)
        return;
    replayData(encodeValues(m_controlPoint->nodeId(), pos));
    if (isHostFilled(m_shape->getSVGType()))
        m_shape->updateOutlineRegion();
}

void CSVGBaseUndoCmd::replayData(const QByteArray &data)
{
    QDataStream in(data);
    m_shape->DoPlaybackActionEx(m_actionId, in);
}

void CSVGBaseUndoCmd::setBool(bool oldValue, bool newValue)
{
    m_oldData = encodeValues(oldValue);
    m_newData = encodeValues(newValue);
}

void CSVGBaseUndoCmd::setInt(int oldValue, int newValue)
{
    m_oldData = encodeValues(qint32(oldValue));
    m_newData = encodeValues(qint32(newValue));
}

void CSVGBaseUndoCmd::setDouble(double oldValue, double newValue)
{
    m_oldData = encodeValues(oldValue);
    m_newData = encodeValues(newValue);
}

void CSVGBaseUndoCmd::setColor(QColor oldValue, QColor newValue)
{
    m_oldData = encodeValues(oldValue);
    m_newData = encodeValues(newValue);
}

void CSVGBaseUndoCmd::setBrush(const QBrush &oldValue, const QBrush &newValue)
{
    m_oldData = encodeValues(oldValue);
    m_newData = encodeValues(newValue);
}

void CSVGBaseUndoCmd::setString(QString oldValue, QString newValue)
{
    m_oldData = encodeValues(oldValue);
    m_newData = encodeValues(newValue);
}

void CSVGBaseUndoCmd::setDataBuffer(const QByteArray &oldData, const QByteArray &newData)
{
    m_oldData.append(oldData);
    m_newData.append(newData);
}

void CSVGBaseUndoCmd::setControlPointPos(QZeSvgNode *node, QPointF oldPos, QPointF newPos)
{
    m_controlPoint = node;
    m_oldPos = oldPos;
    m_newPos = newPos;
}

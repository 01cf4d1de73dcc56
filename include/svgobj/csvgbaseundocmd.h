#pragma once

#include <svgobj/svgobj_global.h>

#include <framework/cwbundocmd.h>

#include <QtCore/QByteArray>
#include <QtCore/QPointF>
#include <QtGui/QBrush>
#include <QtGui/QColor>

class CSVGBase;
class QZeSvgNode;

/// One undoable change of a shape: a moved control point, or a new value of a property.
///
/// Undo and redo replay the old or new value through CSVGBase::DoPlaybackActionEx, as playback of a lesson does.
/// The shape and the node are not owned and must outlive the command.
class SVGOBJ_EXPORT CSVGBaseUndoCmd : public CWbUndoCmd
{
public:
    /// `actionId` is ACT_SVG_CONTROLPOINT or the action id of one of the shape's properties. With `alreadyApplied`
    /// redo() does nothing until CSVGBase::addUndoRedo has pushed the command.
    CSVGBaseUndoCmd(CSVGBase *shape, int actionId, QUndoCommand *parent, bool alreadyApplied);
    ~CSVGBaseUndoCmd() override;

    /// Replays the old value.
    void undo() override;
    /// Replays the new value; nothing during the push of a change that has been made already.
    void redo() override;

    /// @name Old and new value
    /// Called once on a fresh command, with the kind of value that the property's action replays.
    /// @{

    /// For properties that replay a truth value.
    void setBool(bool oldValue, bool newValue);
    /// For properties that replay a qint32.
    void setInt(int oldValue, int newValue);
    /// For properties that replay a double.
    void setDouble(double oldValue, double newValue);
    /// For properties that replay a QColor.
    void setColor(QColor oldValue, QColor newValue);
    /// For properties that replay a QBrush.
    void setBrush(const QBrush &oldValue, const QBrush &newValue);
    /// For properties that replay a QString.
    void setString(QString oldValue, QString newValue);
    /// For properties whose value is already a stream: the bytes are kept as they are.
    void setDataBuffer(const QByteArray &oldData, const QByteArray &newData);
    /// Top-left corners of the control point's bounding rectangle, document units.
    void setControlPointPos(QZeSvgNode *node, QPointF oldPos, QPointF newPos);
    /// @}

private:
    friend class CSVGBase;
    void replayControlPoint(QPointF pos);
    void replayData(const QByteArray &data);

    CSVGBase *m_shape;
    int m_actionId;
    QZeSvgNode *m_controlPoint = nullptr;
    QPointF m_oldPos;
    QPointF m_newPos;
    QByteArray m_oldData;
    QByteArray m_newData;
    bool m_redoEnabled;
};

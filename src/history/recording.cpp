// Undo commands and the playback record of a shape.

#include <svgobj/csvgbase.h>
#include <svgobj/csvgbaseundocmd.h>
#include <svgobj/csvgobj.h>

#include <framework/cundoredo.h>

#include "properties/valuecodec.h"

void CSVGBase::addUndoRedo(CSVGBaseUndoCmd *command)
{
    if (!command)
        return;
    CUndoRedo::GetInstance()->push(command);
    // The redo during the push was for a change that is already applied; from here on every redo counts.
    command->m_redoEnabled = true;
}

void CSVGBase::RecordColor(QColor value, int actionId)
{
    RecordDataBuffer(encodeValues(value), actionId);
}

void CSVGBase::RecordBrush(const QBrush &value, int actionId)
{
    RecordDataBuffer(encodeValues(value), actionId);
}

void CSVGBase::RecordInt(int value, int actionId)
{
    RecordDataBuffer(encodeValues(qint32(value)), actionId);
}

void CSVGBase::RecordDouble(double value, int actionId)
{
    RecordDataBuffer(encodeValues(value), actionId);
}

void CSVGBase::RecordBool(bool value, int actionId)
{
    RecordDataBuffer(encodeValues(value), actionId);
}

void CSVGBase::RecordString(const QString &value, int actionId)
{
    RecordDataBuffer(encodeValues(value), actionId);
}

void CSVGBase::RecordDataBuffer(const QByteArray &data, int actionId)
{
    if (!owner)
        return;
    QByteArray bytes = data;
    owner->RecordAction(actionId, &bytes);
}

#pragma once

#include <pagehost/geometrysnapshot.h>

#include <framework/cwbundocmd.h>

#include <QtCore/QByteArray>

class CBaseObject;
class QDataStream;

/// A change of one host attribute of one object.
class AttributeCommand : public CWbUndoCmd
{
public:
    /// Applies the value on the stream and pushes the step. False, with no step, when the attribute did not take
    /// it.
    static bool applyUndoably(CBaseObject &object, int id, QDataStream &in);

    void undo() override;
    void redo() override;

private:
    AttributeCommand(CBaseObject &object, int id);
    static QByteArray valueOf(CBaseObject &object, int id);
    static pagehost::GeometrySnapshot placeOf(CBaseObject &object, int id);
    void bring(const QByteArray &value, const pagehost::GeometrySnapshot &place);

    CBaseObject &m_object;
    int m_id;
    QByteArray m_before;
    QByteArray m_after;
    /// Position and size are restored from a snapshot: rotating moves the item, and a kept aspect ratio changes
    /// both sides.
    pagehost::GeometrySnapshot m_placeBefore;
    pagehost::GeometrySnapshot m_placeAfter;
    bool m_applied = true;
};

#include <host/attributecommand.h>

#include <framework/cbaseobject.h>
#include <framework/cundoredo.h>

#include <host/hostattributes.h>

#include <QtCore/QDataStream>

#include <memory>

using pagehost::GeometrySnapshot;

AttributeCommand::AttributeCommand(CBaseObject &object, int id)
    : m_object(object)
    , m_id(id)
    , m_before(valueOf(object, id))
    , m_placeBefore(placeOf(object, id))
{
    setText(QStringLiteral("IDS_ITEM_SET_ATTRIBUTE"));
}

bool AttributeCommand::applyUndoably(CBaseObject &object, int id, QDataStream &in)
{
    std::unique_ptr<AttributeCommand> command(new AttributeCommand(object, id));
    if (!HostAttribute::apply(object, id, in))
        return false;
    command->m_after = valueOf(object, id);
    command->m_placeAfter = placeOf(object, id);
    if (command->m_after != command->m_before)
        CUndoRedo::GetInstance()->push(command.release());
    return true;
}

void AttributeCommand::undo()
{
    bring(m_before, m_placeBefore);
}

void AttributeCommand::redo()
{
    if (m_applied) {
        m_applied = false;
        return;
    }
    bring(m_after, m_placeAfter);
}

void AttributeCommand::bring(const QByteArray &value, const GeometrySnapshot &place)
{
    if (HostAttribute::changesPlace(m_id)) {
        place.restore();
        return;
    }
    QDataStream in(value);
    HostAttribute::apply(m_object, m_id, in);
}

QByteArray AttributeCommand::valueOf(CBaseObject &object, int id)
{
    QByteArray bytes;
    QDataStream out(&bytes, QIODevice::WriteOnly);
    HostAttribute::write(object, id, out);
    return bytes;
}

GeometrySnapshot AttributeCommand::placeOf(CBaseObject &object, int id)
{
    if (!HostAttribute::changesPlace(id))
        return {};
    return {&object, HostAttribute::changesSize(id) ? GeometrySnapshot::WithContent : GeometrySnapshot::PlaceOnly};
}

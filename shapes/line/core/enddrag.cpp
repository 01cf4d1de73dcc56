// The drag of an end of a line: off the object that it is joined to, and onto another one.

#include "line/core/line.h"

#include <svgobj/csvgbaseundocmd.h>
#include <svgobj/csvgobj.h>

#include <svgbase/qzesvgtinydocument.h>

#include <pagehost/specialproperty.h>

#include <QtCore/QDataStream>

namespace line {

namespace {

bool leadsNowhere(const Joint &one, const Joint &other)
{
    return one.object != 0 && one.object == other.object &&
           (one.place.isEmpty() || other.place.isEmpty() || one.place == other.place);
}

} // namespace

/// Places of one that is turned or mirrored aren't those of the page.
bool Line::isUpright() const
{
    return document && owner->rotation() == 0 && !owner->isMirrored() && !owner->isFlipped();
}

bool Line::dragEnd(QDataStream &in)
{
    qint32 phase = 0;
    qint32 number = 0;
    QPointF place;
    quint32 object = 0;
    QString name;
    in >> phase >> number >> place >> object >> name;
    if (in.status() != QDataStream::Ok || !isUpright() || number < 1 || number > 2)
        return false;
    switch (phase) {
    case pagehost::BeginEndDrag:
        m_endsBefore = endState();
        return true;
    case pagehost::MoveEnd:
        return moveEnd(number - 1, place, object, name);
    case pagehost::FinishEndDrag:
        finishEndDrag();
        return true;
    default:
        QDataStream before(m_endsBefore);
        return takeEndState(before);
    }
}

/// False, with nothing changed, for an object that the line would be joined to twice.
bool Line::moveEnd(int end, QPointF place, quint32 object, const QString &name)
{
    Joints joints = m_joints;
    joints[size_t(end)] = {object, name, {}};
    if (leadsNowhere(joints[size_t(end)], joints[size_t(1 - end)]))
        return false;
    keepJoints(joints);
    keepDetour({});
    LineCourse course = m_course;
    (end == 0 ? course.start : course.end) = place - origin();
    take(course);
    RecordDataBuffer(endState(), endsAction);
    return true;
}

void Line::finishEndDrag()
{
    const QByteArray after = endState();
    if (after == m_endsBefore)
        return;
    auto *command = new CSVGBaseUndoCmd(this, endsAction, nullptr, true);
    command->setDataBuffer(m_endsBefore, after);
    addUndoRedo(command);
}

/// With the origin: the coordinates of a line without joints are its own.
QByteArray Line::endState()
{
    QByteArray bytes;
    QDataStream out(&bytes, QIODevice::WriteOnly);
    out << origin() << encoded(m_course) << encoded(m_joints) << encoded(m_detour);
    return bytes;
}

bool Line::takeEndState(QDataStream &in)
{
    QPointF wanted;
    QByteArray courseBytes;
    QByteArray joints;
    QByteArray detour;
    in >> wanted >> courseBytes >> joints >> detour;
    const std::optional<LineCourse> course = decoded(courseBytes);
    if (in.status() != QDataStream::Ok || !course || !isUpright())
        return false;
    const QPointF shift = origin() - wanted;
    m_course.start += shift;
    m_course.end += shift;
    for (QPointF &corner : m_detour)
        corner += shift;
    document->setViewBox(document->viewBox().translated(shift));
    const QRectF before = fittingBox();
    // Those that are joined are told where their objects are.
    m_isEndJoined = {};
    keepJoints(decodedJoints(joints));
    keepDetour(decodedDetour(detour));
    keep(*course);
    ShapeOfType::propertyChanged(nullptr);
    growBox(before, fittingBox());
    invalidate();
    return true;
}

} // namespace line
